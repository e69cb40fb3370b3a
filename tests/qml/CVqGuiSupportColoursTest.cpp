#include "qml/CVqGuiSupport.h"
#include "tests/qml/PaperColours.h"

#include <gtest/gtest.h>

// Hue, saturation and lightness or value of colours given by their bytes.

namespace {

using Floats = std::tuple<float, float, float>;

Floats hsl(int red, int green, int blue)
{
    return CVqGuiSupport().HSLFromRGB(static_cast<vq_uint8>(red), static_cast<vq_uint8>(green),
                                      static_cast<vq_uint8>(blue));
}

Floats hsv(int red, int green, int blue)
{
    return CVqGuiSupport().HSVFromRGB(static_cast<vq_uint8>(red), static_cast<vq_uint8>(green),
                                      static_cast<vq_uint8>(blue));
}

Floats hsl(const SPaperColour& colour)
{
    return hsl(colour.red, colour.green, colour.blue);
}

Floats hsv(const SPaperColour& colour)
{
    return hsv(colour.red, colour.green, colour.blue);
}

/// How far a share may be off: channels carry 24 bits, and what is divided by their range loses as many of
/// them as the range is smaller than 1.
double tolerance(const SPaperColour& colour)
{
    return 4 * 0x1p-24 * 255 / std::max(colour.Range(), 1);
}

struct KnownRow
{
    const char* name;
    SPaperColour colour;
    float hue;
    float hsl_saturation;
    float lightness;
    float hsv_saturation;
    float value;
};

void PrintTo(const KnownRow& row, std::ostream* out)
{
    *out << row.name;
}

// Colours whose shares a float tells exactly, or the float nearest to them.
const KnownRow known_rows[] = {
    {"Red", {255, 0, 0}, 0, 1, 0.5F, 1, 1},
    {"Yellow", {255, 255, 0}, 1 / 6.F, 1, 0.5F, 1, 1},
    {"Green", {0, 255, 0}, 1 / 3.F, 1, 0.5F, 1, 1},
    {"Cyan", {0, 255, 255}, 0.5F, 1, 0.5F, 1, 1},
    {"Blue", {0, 0, 255}, 2 / 3.F, 1, 0.5F, 1, 1},
    {"White", {255, 255, 255}, 0, 0, 1, 0, 1},
    {"MiddleGrey", {128, 128, 128}, 0, 0, 128 / 255.F, 0, 128 / 255.F},
    {"DarkRed", {51, 0, 0}, 0, 1, 0.1F, 1, 0.2F},
    {"PaleGreen", {204, 255, 204}, 1 / 3.F, 1, 0.9F, 0.2F, 1},
};

class CVqGuiSupportKnown : public testing::TestWithParam<KnownRow>
{ };

struct RoundedRow
{
    const char* name;
    SPaperColour colour;
    Floats hsl;
    Floats hsv;
};

void PrintTo(const RoundedRow& row, std::ostream* out)
{
    *out << row.name;
}

// Worked out step by step, each rounded to 24 bits. Hue and both saturations differ from the floats next
// to the true ones, which is what a calculation in double precision gives.
const RoundedRow rounded_rows[] = {
    {"Olive",
     {136, 145, 63},
     {0x1.7acbf6p-3F, 0x1.93b13ep-2F, 0x1.a1a1a2p-2F},
     {0x1.7acbf6p-3F, 0x1.218b7cp-1F, 0x1.232324p-1F}},
    {"Teal",
     {21, 173, 160},
     {0x1.f1674ep-2F, 0x1.912798p-1F, 0x1.858586p-2F},
     {0x1.f1674ep-2F, 0x1.c1d988p-1F, 0x1.5b5b5cp-1F}},
    {"Indigo",
     {49, 52, 164},
     {0x1.531b76p-1F, 0x1.146e94p-1F, 0x1.ababacp-2F},
     {0x1.531b76p-1F, 0x1.670640p-1F, 0x1.49494ap-1F}},
    {"Wine",
     {123, 45, 67},
     {0x1.e7ee80p-1F, 0x1.db6db4p-2F, 0x1.515152p-2F},
     {-0x1.811810p-5F, 0x1.44aed2p-1F, 0x1.ededeep-2F}},
};

class CVqGuiSupportRounded : public testing::TestWithParam<RoundedRow>
{ };

}

TEST_P(CVqGuiSupportKnown, GivesHueSaturationAndLightness)
{
    const auto [hue, saturation, lightness] = hsl(GetParam().colour);

    EXPECT_FLOAT_EQ(hue, GetParam().hue);
    EXPECT_NEAR(saturation, GetParam().hsl_saturation, 1e-6);
    EXPECT_FLOAT_EQ(lightness, GetParam().lightness);
}

TEST_P(CVqGuiSupportKnown, GivesHueSaturationAndValue)
{
    const auto [hue, saturation, value] = hsv(GetParam().colour);

    EXPECT_FLOAT_EQ(hue, GetParam().hue);
    EXPECT_NEAR(saturation, GetParam().hsv_saturation, 1e-6);
    EXPECT_FLOAT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Colours, CVqGuiSupportKnown, testing::ValuesIn(known_rows),
                         [](const auto& row) { return row.param.name; });

TEST_P(CVqGuiSupportRounded, IsComputedInSinglePrecisionThroughout)
{
    EXPECT_EQ(hsl(GetParam().colour), GetParam().hsl);
    EXPECT_EQ(hsv(GetParam().colour), GetParam().hsv);
}

INSTANTIATE_TEST_SUITE_P(Colours, CVqGuiSupportRounded, testing::ValuesIn(rounded_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqGuiSupportColours, RedIsExact)
{
    EXPECT_EQ(hsl(255, 0, 0), Floats(0, 1, 0.5F));
}

TEST(CVqGuiSupportColours, GreysHaveNeitherHueNorSaturationInHsl)
{
    for (int grey = 0; grey < 256; ++grey)
        EXPECT_EQ(hsl(grey, grey, grey), Floats(0, 0, grey / 255.F)) << grey;
}

TEST(CVqGuiSupportColours, GreysButBlackHaveNeitherHueNorSaturationInHsv)
{
    for (int grey = 1; grey < 256; ++grey)
        EXPECT_EQ(hsv(grey, grey, grey), Floats(0, 0, grey / 255.F)) << grey;
}

TEST(CVqGuiSupportColours, BlackHasASaturationInHsvThatIsNotANumber)
{
    const auto [hue, saturation, value] = hsv(0, 0, 0);

    EXPECT_EQ(hue, 0);
    EXPECT_TRUE(std::isnan(saturation)) << saturation;
    EXPECT_EQ(value, 0);
}

TEST(CVqGuiSupportColours, RedWithMoreBlueThanGreenHasANegativeHueInHsv)
{
    EXPECT_FLOAT_EQ(std::get<0>(hsv(255, 0, 1)), -1 / 1530.F);
}

TEST(CVqGuiSupportColours, RedWithMoreBlueThanGreenHasAHueBelowOneInHsl)
{
    EXPECT_FLOAT_EQ(std::get<0>(hsl(255, 0, 1)), 1529 / 1530.F);
}

TEST(CVqGuiSupportColours, MagentaIsTheSmallestHueOfHsv)
{
    EXPECT_EQ(std::get<0>(hsv(255, 0, 255)), -1 / 6.F);
    EXPECT_FLOAT_EQ(std::get<0>(hsl(255, 0, 255)), 5 / 6.F);
}

TEST(CVqGuiSupportColours, RandomColoursAgreeWithPaperInHsl)
{
    const auto is_right = [](const SPaperColour& colour) {
        const auto [hue, saturation, lightness] = hsl(colour);
        return std::abs(hue - colour.Hue()) <= tolerance(colour)
            && std::abs(saturation - colour.LightnessSaturation()) <= 2 * tolerance(colour)
            && std::abs(lightness - colour.Lightness()) <= 0x1p-24;
    };

    EXPECT_EQ(first_wrong_colour(is_right), "");
}

TEST(CVqGuiSupportColours, RandomColoursAgreeWithPaperInHsv)
{
    const auto is_right = [](const SPaperColour& colour) {
        const auto [hue, saturation, value] = hsv(colour);
        const double paper_hue
            = colour.Hue() > 0.75 && colour.Max() == colour.red ? colour.Hue() - 1 : colour.Hue();
        return std::abs(hue - paper_hue) <= tolerance(colour) && std::abs(value - colour.Value()) <= 0x1p-24
            && (colour.Max() == 0
                || std::abs(saturation - colour.ValueSaturation()) <= tolerance({colour.Max(), 0, 0}));
    };

    EXPECT_EQ(first_wrong_colour(is_right), "");
}

TEST(CVqGuiSupportColours, EachColourOfTwoEqualChannelsAgreesWithPaper)
{
    for (int step = 0; step < 256 * 256; ++step) {
        const int one = step / 256;
        const int two = step % 256;
        for (const SPaperColour& colour : {SPaperColour{one, one, two}, {one, two, one}, {two, one, one}})
            EXPECT_NEAR(std::get<0>(hsl(colour)), colour.Hue(), tolerance(colour)) << colour.Text();
    }
}
