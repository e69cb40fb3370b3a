#include "DelayedProgressWndBase.h"
#include "tests/RecordedProgressWnd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

struct PercentRow
{
    const char* name;
    unsigned int range;
    unsigned int position;
    const char* label;
};

struct CounterRow
{
    const char* name;
    const vq_wchar* title;
    unsigned int range;
    unsigned int position;
    const char* shown;
};

template <class Row>
    requires requires(const Row& row) { row.name; }
void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

template <class Row>
std::string name_of(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

std::string label_of(int flags, const PercentRow& row)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), row.range, 0, false, flags);
    window.MakeView();
    window.SetPos(row.position);
    return window.Label();
}

class WholePercent : public testing::TestWithParam<PercentRow>
{ };

class PercentWithDecimals : public testing::TestWithParam<PercentRow>
{ };

class ProgressCounter : public testing::TestWithParam<CounterRow>
{ };

}

TEST_P(WholePercent, IsCutAndWrapsAt32Bits)
{
    EXPECT_EQ(label_of(4, GetParam()), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(CVqDelayedProgressWndBase, WholePercent,
                         testing::Values(PercentRow{"Nothing", 100, 0, "\"Progress: 0%\""},
                                         PercentRow{"OneDigit", 100, 7, "\"Progress: 7%\""},
                                         PercentRow{"AThird", 3, 1, "\"Progress: 33%\""},
                                         PercentRow{"TwoThirds", 3, 2, "\"Progress: 66%\""},
                                         PercentRow{"BelowOne", 1000, 9, "\"Progress: 0%\""},
                                         PercentRow{"All", 100, 100, "\"Progress: 100%\""},
                                         PercentRow{"PastTheRange", 100, 150, "\"Progress: 150%\""},
                                         PercentRow{"LastBeforeTheWrap", 1000000, 42949672,
                                                    "\"Progress: 4294%\""},
                                         PercentRow{"FirstOfTheWrap", 1000000, 42949673, "\"Progress: 0%\""},
                                         PercentRow{"LargeHalf", 86000000, 43000000, "\"Progress: 0%\""},
                                         PercentRow{"RangeOfZero", 0, 0, "\"Progress: 0%\""},
                                         PercentRow{"StepsInARangeOfZero", 0, 5, "\"Progress: 0%\""}),
                         name_of<PercentRow>);

TEST_P(PercentWithDecimals, IsRoundedToTwoAndDoesNotWrap)
{
    EXPECT_EQ(label_of(4 + 32, GetParam()), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(CVqDelayedProgressWndBase, PercentWithDecimals,
                         testing::Values(PercentRow{"Nothing", 100, 0, "\"Progress: 0.00%\""},
                                         PercentRow{"OneDigit", 100, 7, "\"Progress: 7.00%\""},
                                         PercentRow{"AThird", 3, 1, "\"Progress: 33.33%\""},
                                         PercentRow{"TwoThirds", 3, 2, "\"Progress: 66.67%\""},
                                         PercentRow{"AnEighth", 8, 1, "\"Progress: 12.50%\""},
                                         PercentRow{"BelowOne", 1000, 9, "\"Progress: 0.90%\""},
                                         PercentRow{"All", 100, 100, "\"Progress: 100.00%\""},
                                         PercentRow{"PastTheRange", 100, 150, "\"Progress: 150.00%\""},
                                         PercentRow{"LargeHalf", 86000000, 43000000, "\"Progress: 50.00%\""},
                                         PercentRow{"LargestPosition", 3, 4294967295,
                                                    "\"Progress: 143165576500.00%\""},
                                         PercentRow{"RangeOfZero", 0, 0, "\"Progress: 0.00%\""},
                                         PercentRow{"StepsInARangeOfZero", 0, 5, "\"Progress: 0.00%\""}),
                         name_of<PercentRow>);

TEST_P(ProgressCounter, StandsBehindTheTitle)
{
    const auto& [name, title, range, position, shown] = GetParam();
    RecordedProgressWnd window(title, range, 0, false, 2);
    window.MakeView();

    window.SetPos(position);

    EXPECT_EQ(window.Title(), shown);
    EXPECT_EQ(window.m_strTitle, title);
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, ProgressCounter,
    testing::Values(CounterRow{"Nothing", VQ_TEXT("Copy"), 10, 0, "\"Copy (0/10)\""},
                    CounterRow{"Some", VQ_TEXT("Copy"), 10, 3, "\"Copy (3/10)\""},
                    CounterRow{"PastTheRange", VQ_TEXT("Copy"), 10, 13, "\"Copy (13/10)\""},
                    CounterRow{"RangeOfZero", VQ_TEXT("Copy"), 0, 0, "\"Copy (0/0)\""},
                    CounterRow{"EmptyTitle", VQ_TEXT(""), 10, 3, "\" (3/10)\""},
                    CounterRow{"TitleLikeAFormat", VQ_TEXT("Copy 100% %d"), 10, 3, "\"Copy 100% %d (3/10)\""},
                    CounterRow{"LargestSigned", VQ_TEXT("Copy"), 2147483647, 3, "\"Copy (3/2147483647)\""},
                    CounterRow{"BeyondSigned", VQ_TEXT("Copy"), 4294967295, 2147483648,
                               "\"Copy (-2147483648/-1)\""}),
    name_of<CounterRow>);

TEST(CVqDelayedProgressWndBaseLabel, CounterIsNeverPiledUp)
{
    RecordedProgressWnd window(2);
    window.MakeView();

    window.SetPos(3);
    window.SetPos(4);

    EXPECT_EQ(window.Title(), "\"Copy (4/10)\"");
}

TEST(CVqDelayedProgressWndBaseLabel, NewTitleShowsWithTheNextPosition)
{
    RecordedProgressWnd window(2);
    window.MakeView();
    window.SetPos(3);

    window.setTitle(VQ_TEXT("Move"));
    EXPECT_EQ(window.Title(), "\"Copy (3/10)\"");

    window.IncrementPos();
    EXPECT_EQ(window.Title(), "\"Move (4/10)\"");
}

TEST(CVqDelayedProgressWndBaseLabel, EmptyLabelIsPassedOnBesideTheCounter)
{
    RecordedProgressWnd window(2);
    window.MakeView();

    window.SetPos(3);

    EXPECT_THAT(*window.Calls(),
                ElementsAre("positionChanged 3", "SetLabel \"\"", "SetTitle \"Copy (3/10)\"", "SetPos 3"));
}

TEST(CVqDelayedProgressWndBaseLabel, EmptyLabelIsPassedOnWhereThereIsNoEstimateYet)
{
    RecordedProgressWnd window(1);
    window.MakeView();

    window.SetPos(1);

    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 1", "SetLabel \"\"", "SetPos 1"));
}

TEST(CVqDelayedProgressWndBaseLabel, EmptyLabelIsPassedOnWhenUpdatedWithoutAnyFlag)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.UpdateLabel(5);

    EXPECT_THAT(*window.Calls(), ElementsAre("SetLabel \"\""));
}

TEST(CVqDelayedProgressWndBaseLabel, PercentAndEstimateAreDividedByADash)
{
    RecordedProgressWnd window(1 + 4 + 32);
    window.MakeView();
    window.Clock().Step(3000);

    window.SetPos(5);

    EXPECT_EQ(window.Label(), "\"Progress: 50.00% - Time remaining: 3 seconds\"");
}

TEST(CVqDelayedProgressWndBaseLabel, HalfTheStepsInOneSecondIsFinalizing)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 100, 0, false, 1 + 4);
    window.MakeView();
    window.Clock().Step(1000);

    window.SetPos(50);

    EXPECT_EQ(window.Label(), "\"Progress: 50% - Finalizing...\"");
}

TEST(CVqDelayedProgressWndBaseLabel, FirstTwoPositionsShowOnlyThePercent)
{
    RecordedProgressWnd window(1 + 4);
    window.MakeView();
    window.Clock().Step(3000);

    window.SetPos(0);
    EXPECT_EQ(window.Label(), "\"Progress: 0%\"");

    window.SetPos(1);
    EXPECT_EQ(window.Label(), "\"Progress: 10%\"");

    window.SetPos(2);
    EXPECT_EQ(window.Label(), "\"Progress: 20% - Time remaining: 12 seconds\"");
}

TEST(CVqDelayedProgressWndBaseLabel, PercentIsOfTheStoredPositionAndTheRestOfTheGivenOne)
{
    RecordedProgressWnd window(1 + 2 + 4);
    window.SetPos(1);
    window.MakeView();
    window.Clock().Step(3000);

    window.UpdateLabel(5);
    EXPECT_EQ(window.Label(), "\"Progress: 10% - Time remaining: 3 seconds\"");
    EXPECT_EQ(window.Title(), "\"Copy (5/10)\"");

    window.setFlags(4 + 32);
    window.UpdateLabel(5);
    EXPECT_EQ(window.Label(), "\"Progress: 10.00%\"");
}
