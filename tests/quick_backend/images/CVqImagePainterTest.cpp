#include "quick_backend/images/CVqImagePainter.h"

#include "quick_backend/images/CVqSvgImage.h"
#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/quick_backend/images/PaletteForTest.h"
#include "tests/support/PictureCompare.h"

#include <QPainter>

namespace {

constexpr QRgb g_red = 0xFFFF0000;
constexpr QRgb g_blue = 0xFF0000FF;

struct CVqImagePainterTest : testing::Test
{
    /// What is drawn on `canvas` into `place`.
    void Paint(QImage& canvas, const QRect& place, bool fits, qreal scale = 1)
    {
        QPainter painter(&canvas);
        painter.scale(scale, scale);
        m_painter.Paint(painter, m_two_colours, place, fits, QIcon::Normal);
    }

    static QImage Canvas(int width, int height)
    {
        QImage canvas(width, height, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        return canvas;
    }

    PaletteForTest m_palette;
    CVqImagePainter m_painter;
    const SVqPoolEntry m_stencil{std::make_shared<CVqSvgImage>(Svg(1, 1, R"(<rect width="1" height="1"/>)")),
                                 1};
    const SVqPoolEntry m_two_colours{std::make_shared<CVqSvgImage>(TwoColourSvg()), 2};
};

}

TEST_F(CVqImagePainterTest, StencilHasTheColourOfItsMode)
{
    const auto colour = [&](QIcon::Mode mode) {
        return m_painter.Stretched(m_stencil, {1, 1}, mode).toImage().pixel(0, 0);
    };

    EXPECT_EQ(colour(QIcon::Normal), PaletteForTest::g_text);
    EXPECT_EQ(colour(QIcon::Disabled), PaletteForTest::g_disabled);
    EXPECT_EQ(colour(QIcon::Selected), PaletteForTest::g_highlighted);
}

TEST_F(CVqImagePainterTest, StencilFollowsThePalette)
{
    m_painter.Stretched(m_stencil, {1, 1}, QIcon::Normal);

    m_palette.Set(qRgb(1, 2, 3), 0, 0);

    EXPECT_EQ(m_painter.Stretched(m_stencil, {1, 1}, QIcon::Normal).toImage().pixel(0, 0), qRgb(1, 2, 3));
}

TEST_F(CVqImagePainterTest, SecondDrawingIsTheKeptOne)
{
    const QPixmap first = m_painter.Stretched(m_two_colours, {20, 10}, QIcon::Normal);

    EXPECT_EQ(m_painter.Stretched(m_two_colours, {20, 10}, QIcon::Normal).cacheKey(), first.cacheKey());
    EXPECT_EQ(m_painter.Cache().Bytes(), 20 * 10 * 4);
}

TEST_F(CVqImagePainterTest, FittedAndStretchedAreTwoDrawings)
{
    const QImage fitted = m_painter.Fitted(m_two_colours, {2, 3}, QIcon::Normal).toImage();
    const QImage stretched = m_painter.Stretched(m_two_colours, {2, 3}, QIcon::Normal).toImage();

    EXPECT_EQ(fitted.pixelColor(0, 0), QColor(Qt::transparent));
    EXPECT_TRUE(EqualPictures(fitted.copy(0, 1, 2, 1), Columns({g_red, g_blue}, 1, 1)));
    EXPECT_TRUE(EqualPictures(stretched, Columns({g_red, g_blue}, 1, 3)));
}

TEST_F(CVqImagePainterTest, EmptySizeIsNoPixmap)
{
    EXPECT_TRUE(m_painter.Fitted(m_two_colours, {}, QIcon::Normal).isNull());
    EXPECT_TRUE(m_painter.Stretched(m_two_colours, {}, QIcon::Normal).isNull());
    EXPECT_EQ(m_painter.Cache().Bytes(), 0);
}

TEST_F(CVqImagePainterTest, PaintFillsThePlace)
{
    QImage canvas = Canvas(8, 5);

    Paint(canvas, {1, 1, 6, 3}, false);

    QImage expected = Canvas(8, 5);
    QPainter(&expected).drawImage(1, 1, Columns({g_red, g_blue}, 3, 3));
    EXPECT_TRUE(EqualPictures(canvas, expected));
}

TEST_F(CVqImagePainterTest, PaintFitsIntoThePlace)
{
    QImage canvas = Canvas(8, 6);

    Paint(canvas, {1, 0, 6, 6}, true);

    QImage expected = Canvas(8, 6);
    QPainter(&expected).drawImage(1, 1, Columns({g_red, g_blue}, 3, 3));
    EXPECT_TRUE(EqualPictures(canvas, expected));
}

TEST_F(CVqImagePainterTest, PaintHasThePixelsOfTheDevice)
{
    QImage canvas = Canvas(6, 3);
    canvas.setDevicePixelRatio(1.5);

    Paint(canvas, {0, 0, 4, 2}, false);

    canvas.setDevicePixelRatio(1);
    EXPECT_TRUE(EqualPictures(canvas, Columns({g_red, g_blue}, 3, 3)));
}

TEST_F(CVqImagePainterTest, PaintHasThePixelsOfAScaledPainter)
{
    QImage canvas = Canvas(20, 10);

    Paint(canvas, {0, 0, 2, 1}, true, 10);

    EXPECT_TRUE(EqualPictures(canvas, Columns({g_red, g_blue}, 10, 10)));
}

TEST_F(CVqImagePainterTest, PaintIntoNothingDrawsNothing)
{
    QImage canvas = Canvas(4, 4);

    Paint(canvas, {0, 0, 0, 4}, true);
    Paint(canvas, {0, 0, 4, -4}, false);
    Paint(canvas, {0, 0, 4, 4}, false, 0);

    EXPECT_TRUE(EqualPictures(canvas, Canvas(4, 4)));
}
