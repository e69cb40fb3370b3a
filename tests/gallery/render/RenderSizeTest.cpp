#include "gallery/render/RenderSize.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ParseRenderSize;
using Gallery::WhyNoRenderSize;

namespace {

struct BadSize
{
    const char* name;
    const char* text;
    const char* sentence;
};

}

TEST(RenderSize, WidthAndHeightAreReadInThisOrder)
{
    QString error;

    EXPECT_EQ(ParseRenderSize(u"800x600"_s, error), QSize(800, 600));
    EXPECT_EQ(error, QString());
}

TEST(RenderSize, TheSmallestAndTheLargestPictureAreTaken)
{
    QString error;

    EXPECT_EQ(ParseRenderSize(u"1x1"_s, error), QSize(1, 1));
    EXPECT_EQ(ParseRenderSize(u"16384x16384"_s, error), QSize(16384, 16384));
}

TEST(RenderSize, ASizeThatDidNotComeAsATextIsJudgedToo)
{
    EXPECT_EQ(WhyNoRenderSize(QSize(200, 100)), QString());
    EXPECT_EQ(WhyNoRenderSize(QSize(200, -1)),
              u"A picture of 200x-1 pixels is empty: each side has 1 at least."_s);
}

class BadRenderSizes : public testing::TestWithParam<BadSize>
{ };

TEST_P(BadRenderSizes, AreToldInOneSentence)
{
    QString error;

    EXPECT_FALSE(ParseRenderSize(QString::fromUtf8(GetParam().text), error));
    EXPECT_EQ(error, QString::fromUtf8(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    RenderSize, BadRenderSizes,
    testing::Values(
        BadSize{"OneNumber", "800", "--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"800\"."},
        BadSize{"AWord", "large", "--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"large\"."},
        BadSize{"ABlank", "800 x600",
                "--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"800 x600\"."},
        BadSize{"ALineEnd", "800x600\n",
                "--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"800x600\n\"."},
        BadSize{"AMinus", "-8x600", "--size wants WIDTHxHEIGHT in pixels, such as 800x600, not \"-8x600\"."},
        BadSize{"NoWidth", "0x600", "A picture of 0x600 pixels is empty: each side has 1 at least."},
        BadSize{"NoHeight", "800x0", "A picture of 800x0 pixels is empty: each side has 1 at least."},
        BadSize{"OnePixelTooWide", "16385x1",
                "A picture of 16385x1 pixels is too large: each side has 16384 at most."},
        BadSize{"OnePixelTooHigh", "1x16385",
                "A picture of 1x16385 pixels is too large: each side has 16384 at most."},
        BadSize{"BeyondAnyNumber", "99999999999x1",
                "A picture of 99999999999x1 pixels is too large: each side has 16384 at most."}),
    [](const auto& row) { return row.param.name; });
