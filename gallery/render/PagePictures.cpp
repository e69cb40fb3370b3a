#include "gallery/render/PagePictures.h"

#include "gallery/Pages.h"
#include "gallery/Session.h"
#include "gallery/render/PageRenderer.h"

#include <QDebug>
#include <QDir>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

void set_dark(Session& session, bool dark)
{
    session.View()->dark = dark;
    session.View()->Tell();
}

}

QString TakePagePictures(PageRenderer& renderer, Session& session, const QString& folder)
{
    if (const QString why = WhyNoPages(); !why.isEmpty()) {
        qDebug().noquote() << u"There are no pictures of pages. %1"_s.arg(why);
        return {};
    }
    QDir().mkpath(folder); // a folder that cannot be made is told with the first picture
    bool done = true;
    for (const bool dark : {false, true}) {
        set_dark(session, dark);
        for (const QString& name : PageNames()) {
            const QString file = name + (dark ? u"-dark.png"_s : u".png"_s);
            done = done && renderer.Render({name, QDir(folder).filePath(file), {}, {}});
        }
    }
    set_dark(session, false);
    return renderer.Errors().join(u'\n');
}

}
