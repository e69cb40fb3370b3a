#include "quick_backend/images/VqFittedDrawing.h"

#include "quick_backend/images/CVqSvgImage.h"
#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

TEST(VqFittedDrawing, MiddleIsInWholePixels)
{
    EXPECT_EQ(VqMiddlePlace({4, 2}, {4, 7}), QPoint(0, 2));
    EXPECT_EQ(VqMiddlePlace({1, 1}, {4, 1}), QPoint(1, 0));
}

TEST(VqFittedDrawing, ImageStandsInTheMiddleOfItsBox)
{
    const CVqSvgImage image(TwoColourSvg());

    const QImage drawn = VqDrawFitted(image, {4, 4}, {});

    QImage expected(4, 4, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    for (int y = 1; y < 3; ++y) {
        for (int x = 0; x < 4; ++x)
            expected.setPixelColor(x, y, x < 2 ? Qt::red : Qt::blue);
    }
    EXPECT_TRUE(EqualPictures(drawn, expected));
}

TEST(VqFittedDrawing, ImageOfTheSameRatioFillsItsBox)
{
    const CVqSvgImage image(TwoColourSvg());

    EXPECT_TRUE(EqualPictures(VqDrawFitted(image, {6, 3}, {}), Columns({0xFFFF0000, 0xFF0000FF}, 3, 3)));
}

TEST(VqFittedDrawing, EmptyBoxHasNoPicture)
{
    const CVqSvgImage image(TwoColourSvg());

    EXPECT_TRUE(VqDrawFitted(image, {0, 3}, {}).isNull());
}
