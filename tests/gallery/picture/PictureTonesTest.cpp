#include "gallery/picture/PictureTones.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage plain(QRgb color)
{
    QImage image(4, 3, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

struct ToneRow
{
    const char* name;
    const char* tone;
    int amount;
    QRgb before;
    QRgb after;
};

}

class Tones : public testing::TestWithParam<ToneRow>
{ };

TEST_P(Tones, ChangeEveryPixel)
{
    const ToneRow& row = GetParam();

    const QImage image = Gallery::AdjustTones(plain(row.before), QString::fromLatin1(row.tone), row.amount);

    EXPECT_EQ(image.pixel(0, 0), row.after);
    EXPECT_EQ(image.pixel(3, 2), row.after);
}

INSTANTIATE_TEST_SUITE_P(
    PictureTones, Tones,
    testing::Values(ToneRow{"Invert", "invert", 0, 0xff102030, 0xffefdfcf},
                    ToneRow{"GrayOfGray", "gray", 0, 0xff505050, 0xff505050},
                    ToneRow{"ThresholdDark", "threshold", 0, 0xff404040, 0xff000000},
                    ToneRow{"ThresholdLight", "threshold", 0, 0xff909090, 0xffffffff},
                    ToneRow{"Brighter", "brightness", 20, 0xff102030, 0xff435363},
                    ToneRow{"BrighterStopsAtWhite", "brightness", 100, 0xff102030, 0xffffffff},
                    ToneRow{"DarkerStopsAtBlack", "brightness", -100, 0xff102030, 0xff000000},
                    ToneRow{"NoContrast", "contrast", -100, 0xff102030, 0xff808080},
                    ToneRow{"Warmer", "temperature", 10, 0xff102030, 0xff1a2026},
                    ToneRow{"NoSaturation", "saturation", -100, 0xff505050, 0xff505050},
                    ToneRow{"PosterizeEnds", "posterize", 0, 0xff00ffff, 0xff00ffff},
                    ToneRow{"SolarizeFoldsLight", "solarize", 0, 0xff0040ff, 0xff008000},
                    ToneRow{"SepiaOfBlackIsBrown", "sepia", 0, 0xff000000, 0xff0c0400},
                    ToneRow{"UnknownChangesNothing", "plaid", 50, 0xff102030, 0xff102030}),
    [](const auto& row) { return row.param.name; });

TEST(PictureTones, AutoLevelsStretchesToBlackAndWhite)
{
    QImage image = plain(0xff404040);
    image.setPixel(1, 1, 0xff808080);

    const QImage levelled = Gallery::AutoLevels(image);

    EXPECT_EQ(levelled.pixel(0, 0), 0xff000000);
    EXPECT_EQ(levelled.pixel(1, 1), 0xffffffff);
}

TEST(PictureTones, AutoLevelsOfOneColourChangesNothing)
{
    EXPECT_EQ(Gallery::AutoLevels(plain(0xff404040)), plain(0xff404040));
}

TEST(PictureTones, TheHistogramHasSixtyFourStepsAndTheFullestIsOne)
{
    QImage image = plain(0xff000000);
    for (int x = 0; x < 3; ++x)
        image.setPixel(x, 0, 0xffffffff);

    const QList<qreal> histogram = Gallery::LightnessHistogram(image);

    ASSERT_EQ(histogram.size(), 64);
    EXPECT_DOUBLE_EQ(histogram.first(), 1);
    EXPECT_DOUBLE_EQ(histogram.last(), 3 / 9.0);
    EXPECT_DOUBLE_EQ(histogram[32], 0);
}
