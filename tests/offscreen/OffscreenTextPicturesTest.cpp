#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QQuickView>

#include <gtest/gtest.h>

namespace {

struct TextScene
{
    const char* m_name;
    QByteArray m_text;
};

const TextScene g_scenes[] = {
    {"Plain", "Text { text: 'Sphinx of black quartz, judge my vow'; font.pixelSize: 20 }"},
    {"Small", "Text { text: 'Layers'; font.pixelSize: 9 }"},
    {"Large", "Text { text: 'Ag'; font.pixelSize: 150; color: '#80ff0000' }"},
    {"Native",
     "Text { text: 'Sphinx of black quartz'; font.pixelSize: 20; renderType: Text.NativeRendering }"},
    {"Styled", "Text { text: '<b>Bold</b> <i>italic</i>'; textFormat: Text.RichText; font.pixelSize: 30 }"},
    {"Outlined", "Text { text: 'Outline'; style: Text.Outline; styleColor: 'red'; font.pixelSize: 40 }"},
    {"Turned", "Text { text: 'Turned'; x: 40; y: 20; rotation: 33; font.pixelSize: 24 }"},
    {"InALayer", "Text { text: 'Layer'; layer.enabled: true; opacity: 0.5; font.pixelSize: 40 }"},
    {"Edited", "TextEdit { text: 'First line\\nSecond line'; font.pixelSize: 18 }"},
};

}

/// The reference is a window of Qt's own, drawn by the same scene graph in a way that shares no code with the
/// offscreen window.
class OffscreenTextPictures : public testing::TestWithParam<TextScene>
{
protected:
    QUrl Scene() { return m_folder.Scene("Item { width: 300; height: 160\n" + GetParam().m_text + "}"); }

    QImage PlainPicture(const QUrl& url, const QColor& colour)
    {
        QQuickView view;
        view.setColor(colour);
        view.setSource(url);
        return view.grabWindow();
    }

    QmlFolder m_folder;
};

TEST_P(OffscreenTextPictures, EqualThoseOfAPlainView)
{
    const QUrl url = Scene();
    FramedView view;
    view.setSource(url);

    EXPECT_TRUE(EqualPictures(view.grab(), PlainPicture(url, Qt::white)));
}

TEST_P(OffscreenTextPictures, EqualThoseOfAPlainTransparentView)
{
    const QUrl url = Scene();
    FramedView view;
    view.setColor(Qt::transparent);
    view.setSource(url);

    EXPECT_TRUE(EqualPictures(view.grab(), PlainPicture(url, Qt::transparent)));
}

TEST_P(OffscreenTextPictures, HaveTextInThem)
{
    FramedView view;
    view.setColor(Qt::transparent);
    view.setSource(Scene());

    const QImage picture = view.grab();

    QImage empty(picture.size(), picture.format());
    empty.fill(Qt::transparent);
    EXPECT_NE(picture, empty);
}

INSTANTIATE_TEST_SUITE_P(Scenes, OffscreenTextPictures, testing::ValuesIn(g_scenes),
                         [](const auto& row) { return row.param.m_name; });
