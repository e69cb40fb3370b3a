#include "gallery/resize/ProgressLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ProgressLine;

TEST(ProgressLine, AWideTerminalShowsAll)
{
    EXPECT_EQ(ProgressLine({6, 12, 8000, u"harbour.png"_s}, 80),
              u"[============            ]  50%  6/12  about 8 s left  harbour.png"_s);
}

TEST(ProgressLine, BeginningAndEndHaveNoEstimate)
{
    EXPECT_EQ(ProgressLine({0, 4, 5000, {}}, 50), u"[              ]   0%  0/4"_s);
    EXPECT_EQ(ProgressLine({4, 4, 5000, {}}, 50), u"[==============] 100%  4/4"_s);
}

TEST(ProgressLine, TheFirstSecondHasNoEstimate)
{
    EXPECT_FALSE(ProgressLine({1, 4, 999, {}}, 80).contains(u"left"_s));
    EXPECT_TRUE(ProgressLine({1, 4, 1000, {}}, 80).contains(u"about 3 s left"_s));
}

TEST(ProgressLine, TheEstimateIsRoundedUpToItsLargestUnit)
{
    EXPECT_TRUE(ProgressLine({1, 2, 1001, {}}, 80).contains(u"about 2 s left"_s));
    EXPECT_TRUE(ProgressLine({1, 2, 60000, {}}, 80).contains(u"about 60 s left"_s));
    EXPECT_TRUE(ProgressLine({1, 2, 60001, {}}, 80).contains(u"about 2 min left"_s));
    EXPECT_TRUE(ProgressLine({1, 2, 3600000, {}}, 80).contains(u"about 60 min left"_s));
    EXPECT_TRUE(ProgressLine({1, 2, 3600001, {}}, 80).contains(u"about 2 h left"_s));
}

TEST(ProgressLine, LongWorkDoesNotWrap)
{
    EXPECT_TRUE(ProgressLine({1, 100000, 3600000, {}}, 80).contains(u"about 99999 h left"_s));
}

TEST(ProgressLine, ANarrowTerminalDropsFromTheRight)
{
    const Gallery::ProgressState state = {6, 12, 8000, u"harbour.png"_s};

    EXPECT_EQ(ProgressLine(state, 50), u"[=======       ]  50%  6/12  about 8 s left"_s);
    EXPECT_EQ(ProgressLine(state, 30), u" 50%  6/12  about 8 s left"_s);
    EXPECT_EQ(ProgressLine(state, 12), u" 50%  6/12"_s);
    EXPECT_EQ(ProgressLine(state, 5), u" 50%"_s);
    EXPECT_EQ(ProgressLine(state, 0), QString());
}

TEST(ProgressLine, TheLastColumnStaysFree)
{
    const QString longest(300, u'a');

    for (int columns = 1; columns < 200; ++columns)
        EXPECT_LE(ProgressLine({6, 12, 8000, longest}, columns).size(), columns - 1) << columns;
}

TEST(ProgressLine, AnUnknownNumberOfStepsIsNoPart)
{
    EXPECT_TRUE(ProgressLine({3, 0, 5000, {}}, 80).contains(u"  0%"_s));
}
