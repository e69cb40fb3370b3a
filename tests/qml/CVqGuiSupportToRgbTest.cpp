#include "qml/CVqGuiSupport.h"
#include "tests/qml/PaperColours.h"

#include <gtest/gtest.h>

#include <limits>

// Bytes of colours given by hue, saturation and lightness or value, and the pastel tint, which goes there and
// back.

namespace {

using Bytes = std::tuple<vq_uint8, vq_uint8, vq_uint8>;

constexpr float g_nan = std::numeric_limits<float>::quiet_NaN();
constexpr float g_infinity = std::numeric_limits<float>::infinity();

struct ShareRow
{
    const char* name;
    float hue;
    float saturation;
    float rest; // lightness or value
    Bytes from_hsl;
    Bytes from_hsv;
};

void PrintTo(const ShareRow& row, std::ostream* out)
{
    *out << row.name;
}

const float below_one = std::nextafter(1.F, 0.F);
const float below_last_sixth = std::nextafter(5.F / 6.F, 0.F);

// 0.5 of 255 is 127.5, which rounds up.
const ShareRow share_rows[] = {
    {"Red", 0, 1, 0.5F, {255, 0, 0}, {128, 0, 0}},
    {"FirstSixth", 1 / 12.F, 1, 0.5F, {255, 128, 0}, {128, 64, 0}},
    {"Yellow", 1 / 6.F, 1, 0.5F, {255, 255, 0}, {128, 128, 0}},
    {"SecondSixth", 0.25F, 1, 0.5F, {128, 255, 0}, {64, 128, 0}},
    {"Green", 1 / 3.F, 1, 0.5F, {0, 255, 0}, {0, 128, 0}},
    {"ThirdSixth", 5 / 12.F, 1, 0.5F, {0, 255, 128}, {0, 128, 64}},
    {"Cyan", 0.5F, 1, 0.5F, {0, 255, 255}, {0, 128, 128}},
    {"FourthSixth", 7 / 12.F, 1, 0.5F, {0, 128, 255}, {0, 64, 128}},
    {"Blue", 2 / 3.F, 1, 0.5F, {0, 0, 255}, {0, 0, 128}},
    {"FifthSixth", 0.75F, 1, 0.5F, {128, 0, 255}, {64, 0, 128}},
    {"EndOfTheFifthSixth", below_last_sixth, 1, 0.5F, {255, 0, 255}, {127, 0, 128}},
    {"LastSixthBeginsWithMagenta", 5 / 6.F, 1, 0.5F, {255, 0, 255}, {128, 0, 128}},
    {"LastSixthIsMagenta", 0.9F, 1, 0.5F, {255, 0, 255}, {128, 0, 128}},
    {"LastSixthIsMagentaOfTheGivenChroma", 0.95F, 0.5F, 0.5F, {191, 64, 191}, {128, 64, 128}},
    {"LastSixthIsMagentaToItsEnd", below_one, 1, 0.5F, {255, 0, 255}, {128, 0, 128}},
    {"HueOneIsGreyOfTheLowestChannel", 1, 0.5F, 0.5F, {64, 64, 64}, {64, 64, 64}},
    {"HueOneAtFullSaturationIsBlack", 1, 1, 0.5F, {0, 0, 0}, {0, 0, 0}},
    {"White", 0.3F, 0, 1, {255, 255, 255}, {255, 255, 255}},
    {"Black", 0.3F, 1, 0, {0, 0, 0}, {0, 0, 0}},
    {"LightnessOneIsWhiteValueOneIsBright", 0, 1, 1, {255, 255, 255}, {255, 0, 0}},
    {"Grey", 0.7F, 0, 0.2F, {51, 51, 51}, {51, 51, 51}},
    {"HueBelowZeroIsZero", -0.1F, 1, 0.5F, {255, 0, 0}, {128, 0, 0}},
    {"HueAboveOneIsOne", 1.1F, 0.5F, 0.5F, {64, 64, 64}, {64, 64, 64}},
    {"SaturationBelowZeroIsZero", 0, -1, 0.2F, {51, 51, 51}, {51, 51, 51}},
    {"SaturationAboveOneIsOne", 0, 9, 0.5F, {255, 0, 0}, {128, 0, 0}},
    {"RestBelowZeroIsZero", 0, 1, -3, {0, 0, 0}, {0, 0, 0}},
    {"RestAboveOneIsOne", 0, 1, 3, {255, 255, 255}, {255, 0, 0}},
    {"InfiniteHue", g_infinity, 1, 0.5F, {0, 0, 0}, {0, 0, 0}},
    {"InfiniteHueBelowZero", -g_infinity, 1, 0.5F, {255, 0, 0}, {128, 0, 0}},
    {"HueThatIsNotANumberIsZero", g_nan, 1, 0.5F, {255, 0, 0}, {128, 0, 0}},
    {"SaturationThatIsNotANumberIsZero", 0, g_nan, 0.2F, {51, 51, 51}, {51, 51, 51}},
    {"RestThatIsNotANumberIsZero", 0, 1, g_nan, {0, 0, 0}, {0, 0, 0}},
};

class CVqGuiSupportShares : public testing::TestWithParam<ShareRow>
{ };

/// What the last sixth has in place of the circle's colours: as much blue as red.
PaperChannels with_magenta(const PaperChannels& channels, float hue)
{
    const double low = std::min({channels[0], channels[1], channels[2]});
    const double high = std::max({channels[0], channels[1], channels[2]});
    return hue < 5.F / 6.F ? channels : PaperChannels{high, low, high};
}

bool is_rounded(vq_uint8 byte, double channel)
{
    // Single precision may fall to the other side of a half only this near to it.
    constexpr double margin = 1e-4;
    return std::abs(byte - channel * 255) <= 0.5 + margin;
}

bool are_rounded(const Bytes& bytes, const PaperChannels& channels)
{
    return is_rounded(std::get<0>(bytes), channels[0]) && is_rounded(std::get<1>(bytes), channels[1])
        && is_rounded(std::get<2>(bytes), channels[2]);
}

struct PastelRow
{
    const char* name;
    vq_uint32 argb;
    vq_uint32 expected;
};

void PrintTo(const PastelRow& row, std::ostream* out)
{
    *out << row.name;
}

// Channels reach from 0.65, which is 166, to 0.85, which is 217.
const PastelRow pastel_rows[] = {
    {"Red", 0xFFFF0000, 0xFFD9A6A6},
    {"DarkRed", 0xFF010000, 0xFFD9A6A6},
    {"Green", 0xFF00FF00, 0xFFA6D9A6},
    {"Blue", 0xFF0000FF, 0xFFA6A6D9},
    {"Yellow", 0xFFFFFF00, 0xFFD9D9A6},
    {"AlphaIsKept", 0x80112233, 0x80A6BFD9},
    {"AlphaOfZeroIsKept", 0x00FF0000, 0x00D9A6A6},
    {"RedWithALittleBlueIsMagenta", 0xFFFF0001, 0xFFD9A6D9},
    {"Grey", 0x80444444, 0x80BFBFBF},
    {"Black", 0xFF000000, 0xFFBFBFBF},
    {"White", 0x00FFFFFF, 0x00BFBFBF},
};

class CVqGuiSupportPastels : public testing::TestWithParam<PastelRow>
{ };

}

TEST_P(CVqGuiSupportShares, GiveBytesFromHsl)
{
    EXPECT_EQ(CVqGuiSupport().RGBFromHSL(GetParam().hue, GetParam().saturation, GetParam().rest),
              GetParam().from_hsl);
}

TEST_P(CVqGuiSupportShares, GiveBytesFromHsv)
{
    EXPECT_EQ(CVqGuiSupport().RGBFromHSV(GetParam().hue, GetParam().saturation, GetParam().rest),
              GetParam().from_hsv);
}

INSTANTIATE_TEST_SUITE_P(Shares, CVqGuiSupportShares, testing::ValuesIn(share_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqGuiSupportToRgb, HueOneOfABrightColourIsBlack)
{
    EXPECT_EQ(CVqGuiSupport().RGBFromHSV(1, 1, 1), Bytes(0, 0, 0));
}

TEST(CVqGuiSupportToRgb, RandomSharesAgreeWithPaperInHsl)
{
    CVqGuiSupport support;

    const auto is_right = [&support](const std::array<float, 3>& shares) {
        const auto [hue, saturation, lightness] = shares;
        return are_rounded(support.RGBFromHSL(hue, saturation, lightness),
                           with_magenta(paper_hsl(hue, saturation, lightness), hue));
    };

    EXPECT_EQ(first_wrong_triple(is_right), "");
}

TEST(CVqGuiSupportToRgb, RandomSharesAgreeWithPaperInHsv)
{
    CVqGuiSupport support;

    const auto is_right = [&support](const std::array<float, 3>& shares) {
        const auto [hue, saturation, value] = shares;
        return are_rounded(support.RGBFromHSV(hue, saturation, value),
                           with_magenta(paper_hsv(hue, saturation, value), hue));
    };

    EXPECT_EQ(first_wrong_triple(is_right), "");
}

TEST(CVqGuiSupportToRgb, GreysComeBack)
{
    CVqGuiSupport support;

    for (int grey = 0; grey < 256; ++grey) {
        const auto byte = static_cast<vq_uint8>(grey);
        EXPECT_EQ(support.RGBFromHSL(0.4F, 0, grey / 255.F), Bytes(byte, byte, byte)) << grey;
        EXPECT_EQ(support.RGBFromHSV(0.4F, 0, grey / 255.F), Bytes(byte, byte, byte)) << grey;
    }
}

TEST_P(CVqGuiSupportPastels, AreTints)
{
    EXPECT_EQ(CVqGuiSupport().pastelARGB(GetParam().argb), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Pastels, CVqGuiSupportPastels, testing::ValuesIn(pastel_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqGuiSupportToRgb, PastelsOfRandomColoursAgreeWithPaper)
{
    CVqGuiSupport support;

    const auto is_right = [&support](const SPaperColour& colour) {
        if (colour.Range() == 0)
            return true;
        const vq_uint32 argb
            = 0x5A000000U | static_cast<vq_uint32>(colour.red << 16 | colour.green << 8 | colour.blue);
        const vq_uint32 pastel = support.pastelARGB(argb);
        const Bytes bytes(pastel >> 16 & 255, pastel >> 8 & 255, pastel & 255);
        const auto hue = static_cast<float>(colour.Hue());
        return pastel >> 24 == 0x5A
            && are_rounded(bytes, with_magenta(paper_hsl(colour.Hue(), 0.4, 0.75), hue));
    };

    EXPECT_EQ(first_wrong_colour(is_right), "");
}
