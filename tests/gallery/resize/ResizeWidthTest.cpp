#include "gallery/resize/ResizeWidth.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ParseResizeWidth;

TEST(ResizeWidth, SmallestAndLargestWillDo)
{
    QString error;

    EXPECT_EQ(ParseResizeWidth(u"1"_s, error), 1);
    EXPECT_EQ(ParseResizeWidth(u" 16384 "_s, error), 16384);
    EXPECT_EQ(Gallery::WhyNoResizeWidth(1), QString());
    EXPECT_EQ(Gallery::WhyNoResizeWidth(16384), QString());
}

namespace {

struct BadWidth
{
    const char* name;
    const char* text;
    const char* sentence;
};

}

class BadResizeWidth : public testing::TestWithParam<BadWidth>
{ };

TEST_P(BadResizeWidth, IsToldInOneSentence)
{
    QString error;

    EXPECT_FALSE(ParseResizeWidth(QLatin1StringView(GetParam().text), error));
    EXPECT_EQ(error, QLatin1StringView(GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    ResizeWidth, BadResizeWidth,
    testing::Values(BadWidth{"Nothing", "0", "A width of 0 pixels leaves nothing: 1 is the smallest."},
                    BadWidth{"OneTooMuch", "16385",
                             "A width of 16385 pixels is too large: 16384 is the largest."},
                    BadWidth{"NoNumberOf32Bits", "99999999999",
                             "A width of 99999999999 pixels is too large: 16384 is the largest."},
                    BadWidth{"Negative", "-5", "\"-5\" is no width: it is a whole number of pixels."},
                    BadWidth{"AFraction", "10.5", "\"10.5\" is no width: it is a whole number of pixels."},
                    BadWidth{"Empty", "", "\"\" is no width: it is a whole number of pixels."}),
    [](const auto& row) { return row.param.name; });
