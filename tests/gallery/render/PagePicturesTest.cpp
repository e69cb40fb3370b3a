#include "gallery/render/PagePictures.h"

#include "gallery/Pages.h"
#include "gallery/Session.h"
#include "gallery/render/PageRenderer.h"
#include "tests/gallery/PageFolder.h"
#include "tests/gallery/QmlTypes.h"
#include "tests/gallery/RealMenu.h"

#include <QDir>
#include <QQmlEngine>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

int colors_in(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

class PagePictures : public testing::Test
{
protected:
    PagePictures() { RegisterQmlTypes(); }

    QString Take(const QString& folder) { return Gallery::TakePagePictures(m_renderer, m_session, folder); }

    PageFolder m_folder;
    Gallery::Session m_session{RealMenu()};
    QQmlEngine m_engine;
    Gallery::PageRenderer m_renderer{m_engine};
};

}

TEST_F(PagePictures, EachPageIsDrawnLightAndDark)
{
    const QString folder = m_folder.Path(u"new/pages"_s);

    const QString error = Take(folder);

    EXPECT_EQ(error, QString());
    for (const QString& name : Gallery::PageNames()) {
        const QImage light(QDir(folder).filePath(name + u".png"_s));
        const QImage dark(QDir(folder).filePath(name + u"-dark.png"_s));
        EXPECT_EQ(light.size(), QSize(1180, 664)) << name.toStdString();
        EXPECT_GT(colors_in(light), 20) << name.toStdString();
        EXPECT_NE(light, dark) << name.toStdString();
    }
    EXPECT_FALSE(m_session.View()->dark);
}

TEST_F(PagePictures, APictureThatCannotBeWrittenIsTold)
{
    const QString folder = m_folder.Write(u"taken"_s, "");

    const QString error = Take(folder);

    EXPECT_TRUE(error.startsWith(folder + u"/PicturePage.png cannot be written: "_s)) << error.toStdString();
}
