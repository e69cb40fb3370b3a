#include "quick_backend/images/VqImageColours.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

namespace {

constexpr QRgb g_red = qRgb(200, 10, 30);

QImage one_row(const std::vector<QRgb>& colours)
{
    return Columns(colours, 1, 1);
}

}

TEST(VqImageColours, EmptyPictureHasOneColour)
{
    EXPECT_TRUE(VqHasOneColour(one_row({0, 0})));
}

TEST(VqImageColours, ColourAtAllOpacitiesIsOne)
{
    QImage picture(256, 1, QImage::Format_ARGB32_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha)
        picture.setPixelColor(alpha, 0, QColor(200, 10, 30, alpha));

    EXPECT_TRUE(VqHasOneColour(picture));
}

TEST(VqImageColours, TwoColoursAreNotOne)
{
    EXPECT_FALSE(VqHasOneColour(one_row({g_red, g_red, qRgb(200, 10, 40)})));
    EXPECT_FALSE(VqHasOneColour(one_row({qRgba(0, 0, 0, 128), g_red})));
}

TEST(VqImageColours, InkTakesThePlaceOfTheColourAndLeavesOpacity)
{
    QImage picture = one_row({g_red, 0, qRgba(200, 10, 30, 51)});

    VqApplyInk(picture, qRgb(255, 0, 255));

    EXPECT_TRUE(EqualPictures(picture, one_row({qRgb(255, 0, 255), 0, qRgba(255, 0, 255, 51)})));
}

TEST(VqImageColours, OpacitiesOfInkAndPictureBothCount)
{
    QImage picture = one_row({g_red, qRgba(200, 10, 30, 51)});

    VqApplyInk(picture, qRgba(255, 255, 255, 51));

    EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 51);
    EXPECT_EQ(qAlpha(picture.pixel(1, 0)), 10);
}

TEST(VqImageColours, DisabledIsGreyAndHalfAsOpaque)
{
    QImage picture = one_row({qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(255, 0, 0), 0});

    VqMakeDisabled(picture);

    EXPECT_TRUE(EqualPictures(
        picture, one_row({qRgba(255, 255, 255, 127), qRgba(0, 0, 0, 127), qRgba(87, 87, 87, 127), 0})));
}
