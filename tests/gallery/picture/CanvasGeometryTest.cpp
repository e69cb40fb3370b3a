#include "gallery/picture/CanvasGeometry.h"

#include <gtest/gtest.h>

using Gallery::CanvasGeometry;

TEST(CanvasGeometry, FittingLeavesTheMarginOnTheTighterSides)
{
    const CanvasGeometry geometry(QSize(1000, 100), QRectF(0, 0, 556, 400), 0, {});

    EXPECT_DOUBLE_EQ(geometry.Scale(), 0.5);
    EXPECT_EQ(geometry.Picture(), QRectF(28, 175, 500, 50));
}

TEST(CanvasGeometry, AZoomIsPercentAroundTheCentreOfTheArea)
{
    const CanvasGeometry geometry(QSize(10, 20), QRectF(100, 0, 200, 100), 200, {});

    EXPECT_DOUBLE_EQ(geometry.Scale(), 2);
    EXPECT_EQ(geometry.Picture(), QRectF(190, 30, 20, 40));
}

TEST(CanvasGeometry, PanningMovesThePictureOffTheCentre)
{
    const CanvasGeometry geometry(QSize(10, 10), QRectF(0, 0, 100, 100), 100, QPointF(7, -5));

    EXPECT_EQ(geometry.Picture().topLeft(), QPointF(52, 40));
}

TEST(CanvasGeometry, AnEmptyPictureOrAreaHasScaleOne)
{
    EXPECT_DOUBLE_EQ(CanvasGeometry(QSize(), QRectF(0, 0, 100, 100), 0, {}).Scale(), 1);
    EXPECT_DOUBLE_EQ(CanvasGeometry(QSize(10, 10), QRectF(0, 0, 20, 20), 0, {}).Scale(), 1);
}

TEST(CanvasGeometry, PointsAndPixelsConvertBothWays)
{
    const CanvasGeometry geometry(QSize(10, 20), QRectF(100, 0, 200, 100), 200, {});

    EXPECT_EQ(geometry.ToPicture(QPointF(194, 34)), QPointF(2, 2));
    EXPECT_EQ(geometry.FromPicture(QPointF(2, 2)), QPointF(194, 34));
}

struct StepRow
{
    const char* name;
    double zoom;
    int step;
};

class RulerSteps : public testing::TestWithParam<StepRow>
{ };

TEST_P(RulerSteps, AreAtLeastSixtyLogicalPixelsApart)
{
    const CanvasGeometry geometry(QSize(100, 100), QRectF(0, 0, 500, 500), GetParam().zoom, {});

    EXPECT_EQ(geometry.RulerStep(), GetParam().step);
}

INSTANTIATE_TEST_SUITE_P(CanvasGeometry, RulerSteps,
                         testing::Values(StepRow{"WholeSize", 100, 100}, StepRow{"Half", 50, 200},
                                         StepRow{"Double", 200, 50}, StepRow{"ExactlySixty", 1200, 5},
                                         StepRow{"SinglePixels", 6400, 1}, StepRow{"Tiny", 1, 10000}),
                         [](const auto& row) { return row.param.name; });
