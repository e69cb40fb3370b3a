#include "tests/offscreen/CornerScene.h"
#include "tests/offscreen/FramedView.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/offscreen/QmlFolder.h"
#include "tests/support/PictureCompare.h"

#include <QQuickItem>

#include <gtest/gtest.h>

namespace {

QImage tiles(QSize size, int columns, int rows)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * columns / size.width() * 51, y * rows / size.height() * 17, 0));
    return image;
}

// A third layer of transparency: the overlapping part shows the upper rectangle alone.
QImage faded_pair()
{
    QImage image = PixelPainter::Blank({40, 30}, Qt::transparent);
    PixelPainter::Cover(image, {0, 0, 25, 20}, 0x33330000);
    QImage upper = PixelPainter::Blank({25, 20}, Qt::transparent);
    PixelPainter::Cover(upper, upper.rect(), 0x33003300);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 25; ++x)
            image.setPixel(x + 15, y + 10, upper.pixel(x, y));
    return image;
}

}

class OffscreenEffectPictures : public testing::Test
{
protected:
    OffscreenEffectPictures() { m_view.setColor(Qt::transparent); }

    QImage PictureOf(const QByteArray& object)
    {
        m_view.setSource(m_folder.Scene(object));
        return m_view.grab();
    }

    QmlFolder m_folder;
    FramedView m_view;
};

TEST_F(OffscreenEffectPictures, ALayerShowsWhatIsInIt)
{
    const QImage picture = PictureOf(CornerScene::Item({200, 100}, "layer.enabled: true"));

    EXPECT_TRUE(EqualPictures(picture, CornerScene::Picture({200, 100}, Qt::transparent)));
}

TEST_F(OffscreenEffectPictures, ALayerFadesAsOne)
{
    const QImage picture = PictureOf("Item { width: 40; height: 30; layer.enabled: true; opacity: 0.2\n"
                                     "Rectangle { color: '#ff0000'; width: 25; height: 20 }\n"
                                     "Rectangle { color: '#00ff00'; x: 15; y: 10; width: 25; height: 20 } }");

    EXPECT_TRUE(EqualPictures(picture, faded_pair()));
}

TEST_F(OffscreenEffectPictures, ALayerIsDrawnAnewAfterAChangeAndAResize)
{
    m_view.setResizeMode(OffscreenQuickView::SizeRootObjectToView);
    PictureOf(CornerScene::Item({}, "layer.enabled: true"));

    for (const QSize size : {QSize(200, 100), QSize(60, 300), QSize(60, 300), QSize(1, 1)}) {
        m_view.resize(size);
        EXPECT_TRUE(EqualPictures(m_view.grab(), CornerScene::Picture(size, Qt::transparent)));
    }
}

TEST_F(OffscreenEffectPictures, AShaderEffectStandsUpright)
{
    const QImage picture = PictureOf("ShaderEffect { width: 200; height: 100\n"
                                     "property real columns: 5; property real rows: 10\n"
                                     "fragmentShader: 'qrc:/offscreen_tests/shaders/Tiles.frag.qsb' }");

    EXPECT_TRUE(EqualPictures(picture, tiles({200, 100}, 5, 10)));
}

TEST_F(OffscreenEffectPictures, AShaderEffectFollowsItsProperties)
{
    PictureOf("ShaderEffect { width: 200; height: 100\n"
              "property real columns: 5; property real rows: 10\n"
              "fragmentShader: 'qrc:/offscreen_tests/shaders/Tiles.frag.qsb' }");

    m_view.rootObject()->setProperty("columns", 2);

    EXPECT_TRUE(EqualPictures(m_view.grab(), tiles({200, 100}, 2, 10)));
}

TEST_F(OffscreenEffectPictures, AShaderEffectIsInTheTimedFrameToo)
{
    PictureOf("ShaderEffect { width: 200; height: 100\n"
              "property real columns: 5; property real rows: 10\n"
              "fragmentShader: 'qrc:/offscreen_tests/shaders/Tiles.frag.qsb' }");

    ASSERT_TRUE(m_view.DrawDueFrames());

    EXPECT_TRUE(EqualPictures(m_view.Drawn(), tiles({200, 100}, 5, 10)));
}

TEST_F(OffscreenEffectPictures, AnEffectOnALayerChangesEachPixel)
{
    const QImage picture = PictureOf(CornerScene::Item({200, 100},
                                                       "layer.enabled: true\n"
                                                       "layer.effect: ShaderEffect { fragmentShader: "
                                                       "'qrc:/offscreen_tests/shaders/Swap.frag.qsb' }"));

    QImage expected = CornerScene::Picture({200, 100}, Qt::transparent);
    expected.rgbSwap();
    EXPECT_TRUE(EqualPictures(picture, expected));
}

TEST_F(OffscreenEffectPictures, AnEffectOnASourceItemStandsUpright)
{
    const QImage picture
        = PictureOf("Item { width: 200; height: 100\n" + CornerScene::Item({200, 100})
                    + "\n"
                      "ShaderEffectSource { id: taken; sourceItem: corners; hideSource: true }\n"
                      "ShaderEffect { anchors.fill: parent; property var source: taken\n"
                      "fragmentShader: 'qrc:/offscreen_tests/shaders/Swap.frag.qsb' } }");

    QImage expected = CornerScene::Picture({200, 100}, Qt::transparent);
    expected.rgbSwap();
    EXPECT_TRUE(EqualPictures(picture, expected));
}
