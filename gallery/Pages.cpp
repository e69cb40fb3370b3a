#include "gallery/Pages.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

// A page is its English title here and one file: pages/<title>Page.qml.
constexpr const char* g_titles[] = {
    QT_TRANSLATE_NOOP("Pages", "Picture"),   QT_TRANSLATE_NOOP("Pages", "Offscreen"),
    QT_TRANSLATE_NOOP("Pages", "Resources"), QT_TRANSLATE_NOOP("Pages", "Resize"),
    QT_TRANSLATE_NOOP("Pages", "Keys"),      QT_TRANSLATE_NOOP("Pages", "Colours"),
    QT_TRANSLATE_NOOP("Pages", "Sliders"),   QT_TRANSLATE_NOOP("Pages", "Files"),
    QT_TRANSLATE_NOOP("Pages", "Lists"),
};

QString name_of(const char* title)
{
    return QLatin1StringView(title) + "Page"_L1;
}

}

QStringList PageNames()
{
    QStringList names;
    for (const char* title : g_titles)
        names << name_of(title);
    return names;
}

QString PageTitle(const QString& name)
{
    for (const char* title : g_titles)
        if (name == name_of(title))
            return QCoreApplication::translate("Pages", title);
    return {};
}

QUrl PageUrl(const QString& name)
{
    return GalleryUrl(u"pages/%1.qml"_s.arg(name));
}

QUrl GalleryUrl(const QString& path)
{
    return QUrl(u"qrc:///qt/qml/K7/Arbor/Gallery/"_s + path);
}

}
