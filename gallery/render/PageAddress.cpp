#include "gallery/render/PageAddress.h"

#include "arbor_qml_support.h"
#include "gallery/Pages.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString why_no_file(const QFileInfo& file)
{
    if (file.isDir())
        return u"%1: it is a folder."_s.arg(file.filePath());
    if (!file.exists())
        return u"%1: there is no such file, and no such page; there are %2."_s.arg(file.filePath(),
                                                                                   PageNames().join(u", "_s));
    return file.isReadable() ? QString() : u"%1: it cannot be read."_s.arg(file.filePath());
}

}

std::optional<QUrl> PageAddress(const QString& name, QString& error)
{
    if (PageNames().contains(name))
        return FindQmlResource(PageUrl(name), {});
    if (name.startsWith("qrc:"_L1))
        return FindQmlResource(QUrl(name), {});
    error = why_no_file(QFileInfo(name));
    return error.isEmpty() ? std::optional(QUrl::fromLocalFile(QFileInfo(name).absoluteFilePath()))
                           : std::nullopt;
}

}
