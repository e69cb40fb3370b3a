#include "quick_backend/images/CVqRasterImage.h"

#include "tests/quick_backend/images/ImageSamples.h"
#include "tests/support/PictureCompare.h"

namespace {

CVqRasterImage::SVqVariant variant(QRgb colour, int side)
{
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(colour);
    return {picture.size(), {}, {}, picture};
}

}

TEST(CVqRasterImage, NaturalSizeIsThatOfTheFirstVariant)
{
    const CVqRasterImage image({variant(qRgb(1, 2, 3), 4), variant(qRgb(1, 2, 3), 8)});

    EXPECT_EQ(image.Size(), QSize(4, 4));
}

TEST(CVqRasterImage, PixelsOfAFileComeBackInNaturalSize)
{
    const QImage sample = SampleImage(5, 3);
    const CVqRasterImage image({{{5, 3}, Encoded(sample, "png"), "png", {}}});

    const QImage drawn = image.Draw({5, 3}, {});

    EXPECT_TRUE(EqualPictures(drawn, sample));
    EXPECT_EQ(drawn.format(), QImage::Format_ARGB32_Premultiplied);
}

TEST(CVqRasterImage, EachSizeIsDrawnFromTheVariantScaledLeast)
{
    const CVqRasterImage image({variant(qRgb(255, 0, 0), 16), variant(qRgb(0, 0, 255), 32)});

    EXPECT_EQ(image.Draw({18, 18}, {}).pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(image.Draw({30, 30}, {}).pixelColor(9, 9), QColor(Qt::blue));
}

TEST(CVqRasterImage, DrawingIsStretchedToExactlyTheSize)
{
    const CVqRasterImage image({variant(qRgb(255, 0, 0), 16)});

    EXPECT_EQ(image.Draw({5, 40}, {}).size(), QSize(5, 40));
}

TEST(CVqRasterImage, InkIsNotLookedAt)
{
    const CVqRasterImage image({variant(qRgb(255, 0, 0), 1)});

    EXPECT_EQ(image.Draw({1, 1}, {QIcon::Selected, qRgb(0, 255, 0)}).pixelColor(0, 0), QColor(Qt::red));
}

TEST(CVqRasterImage, DisabledIsGreyAndHalfAsOpaque)
{
    const CVqRasterImage image({variant(qRgb(255, 255, 255), 1)});

    const QImage drawn = image.Draw({1, 1}, {QIcon::Disabled, {}});

    EXPECT_TRUE(EqualPictures(drawn, Columns({qRgba(255, 255, 255, 127)}, 1, 1)));
}

TEST(CVqRasterImage, EmptySizeGivesNoPicture)
{
    EXPECT_TRUE(CVqRasterImage({variant(qRgb(255, 0, 0), 1)}).Draw({3, 0}, {}).isNull());
}
