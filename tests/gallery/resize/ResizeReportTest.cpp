#include "gallery/resize/ResizeReport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ResizeSummary;

TEST(ResizeReport, AllDoneIsOneSentence)
{
    EXPECT_EQ(ResizeSummary({12, 12, {}, false}), u"Images resized: 12 of 12."_s);
}

TEST(ResizeReport, FailuresAreCounted)
{
    EXPECT_EQ(ResizeSummary({12, 10, {{u"a"_s, u"x"_s}, {u"b"_s, u"y"_s}}, false}),
              u"Images resized: 10 of 12. Failed: 2."_s);
}

TEST(ResizeReport, ACancelledRunSaysSoFirst)
{
    EXPECT_EQ(ResizeSummary({12, 4, {}, true}), u"Cancelled. Images resized: 4 of 12."_s);
}
