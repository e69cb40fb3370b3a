#include "gallery/picture/CanvasPainter.h"

#include <gtest/gtest.h>

using Gallery::CanvasGeometry;
using Gallery::CanvasPainter;

namespace {

constexpr QRgb g_desk = 0xff808080;

/// A canvas of 200 by 100 with a picture of 60 by 40 in its middle, from 70, 30 on.
class CanvasPainterTest : public testing::Test
{
protected:
    CanvasPainterTest() { m_canvas.fill(g_desk); }

    QRgb at(int x, int y)
    {
        if (m_painter.isActive())
            m_painter.end();
        return m_canvas.pixel(x, y);
    }

    QImage m_canvas{200, 100, QImage::Format_RGB32};
    CanvasGeometry m_geometry{QSize(60, 40), QRectF(0, 0, 200, 100), 100, {}};
    QPainter m_painter{&m_canvas};
    CanvasPainter m_parts{m_painter, m_geometry, QRectF(0, 0, 200, 100)};
};

QImage picture(const QColor& color)
{
    QImage image(60, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

}

TEST_F(CanvasPainterTest, ThePictureFillsItsPlaceAndNoMore)
{
    m_parts.DrawPicture(picture(Qt::red));

    EXPECT_EQ(at(70, 30), 0xffff0000);
    EXPECT_EQ(at(129, 69), 0xffff0000);
    EXPECT_NE(at(69, 30), 0xffff0000);
    EXPECT_EQ(at(5, 5), g_desk);
}

TEST_F(CanvasPainterTest, AClearPictureShowsACheckerboard)
{
    m_parts.DrawPicture(picture(Qt::transparent));

    EXPECT_NE(at(74, 34), g_desk);
    EXPECT_NE(at(80, 34), at(88, 34));
}

TEST_F(CanvasPainterTest, TheGridLiesOnEachStepInsideThePicture)
{
    m_parts.DrawGrid(20);

    EXPECT_NE(at(90, 35), g_desk);
    EXPECT_EQ(at(85, 35), g_desk);
    EXPECT_EQ(at(90, 10), g_desk);
}

TEST_F(CanvasPainterTest, AGridThatWouldFillThePictureIsLeftOut)
{
    m_parts.DrawGrid(2);

    EXPECT_EQ(at(72, 35), g_desk);
    EXPECT_EQ(at(74, 35), g_desk);
}

TEST_F(CanvasPainterTest, GuidesRunThroughTheThirdsAcrossTheCanvas)
{
    m_parts.DrawGuides(Qt::blue);

    EXPECT_EQ(at(90, 5), 0xff0000ff);
    EXPECT_EQ(at(110, 95), 0xff0000ff);
}

TEST_F(CanvasPainterTest, TheSelectionHasAnEdgeAndNoFill)
{
    m_parts.DrawSelection(QRect(10, 10, 20, 20));

    EXPECT_NE(at(80, 50), g_desk);
    EXPECT_EQ(at(90, 50), g_desk);
}

TEST_F(CanvasPainterTest, RulersLieOnTheTopAndLeftEdge)
{
    m_parts.DrawRulers(Qt::white, Qt::black);

    EXPECT_EQ(at(2, 2), 0xffffffff);
    EXPECT_EQ(at(70, 20), 0xff000000) << "the mark of the picture's left edge";
    EXPECT_EQ(at(20, 30), 0xff000000) << "the mark of the picture's upper edge";
    EXPECT_EQ(at(100, 50), g_desk);
}
