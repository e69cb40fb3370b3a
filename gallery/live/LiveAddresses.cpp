#include "gallery/live/LiveAddresses.h"

#include "arbor_qml_support.h"
#include "gallery/Pages.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString prefix()
{
    return GalleryUrl({}).path();
}

const ResourcePrefix g_source_tree(prefix(), u"branch9/src/arbor_qml_support/gallery/"_s);

}

QUrl LiveAddresses::intercept(const QUrl& url, DataType type)
{
    // What lists the types of a module stays the compiled one: the source tree has none.
    return type == QmldirFile ? url : FindQmlResource(url, {});
}

void ReadQmlFrom(const QString& folder)
{
    [[maybe_unused]] const ResourcePrefix row(prefix(), QDir(folder).absolutePath() + u'/');
}

QStringList LiveFolders()
{
    QStringList folders;
    for (const QUrl& url : {GalleryUrl(u"Main.qml"_s), PageUrl(PageNames().constFirst())}) {
        const QUrl found = FindQmlResource(url, {});
        if (found.isLocalFile())
            folders << QFileInfo(found.toLocalFile()).absolutePath();
    }
    return folders;
}

}
