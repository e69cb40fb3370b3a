#include "DelayedProgressWndBase.h"
#include "tests/RecordedProgressWnd.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct FlagRow
{
    const char* name;
    int set;
    int got;
};

struct StoredRow
{
    const char* name;
    int flag;
    bool RecordedProgressWnd::* field;
    bool value;
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

class ProgressFlags : public testing::TestWithParam<FlagRow>
{ };

class StoredProgressFlags : public testing::TestWithParam<StoredRow>
{ };

}

TEST_P(ProgressFlags, AreReadBackAfterConstruction)
{
    RecordedProgressWnd window(GetParam().set);

    EXPECT_EQ(window.getFlags(), GetParam().got);
}

TEST_P(ProgressFlags, AreReadBackAfterSetting)
{
    RecordedProgressWnd window(~GetParam().set);

    window.setFlags(GetParam().set);

    EXPECT_EQ(window.getFlags(), GetParam().got);
}

INSTANTIATE_TEST_SUITE_P(Alone, ProgressFlags,
                         testing::Values(FlagRow{"None", 0, 16}, FlagRow{"Remaining", 1, 17},
                                         FlagRow{"Counter", 2, 18}, FlagRow{"Percent", 4, 20},
                                         FlagRow{"LabelSet", 8, 24}, FlagRow{"NoEvents", 16, 0},
                                         FlagRow{"Decimals", 32, 48}, FlagRow{"All", 63, 47},
                                         FlagRow{"Unknown", 64, 16}, FlagRow{"EveryBit", -1, 47}),
                         name_of<FlagRow>);

INSTANTIATE_TEST_SUITE_P(
    Pair, ProgressFlags,
    testing::Values(FlagRow{"RemainingCounter", 3, 19}, FlagRow{"RemainingPercent", 5, 21},
                    FlagRow{"RemainingLabelSet", 9, 25}, FlagRow{"RemainingNoEvents", 17, 1},
                    FlagRow{"RemainingDecimals", 33, 49}, FlagRow{"CounterPercent", 6, 22},
                    FlagRow{"CounterLabelSet", 10, 26}, FlagRow{"CounterNoEvents", 18, 2},
                    FlagRow{"CounterDecimals", 34, 50}, FlagRow{"PercentLabelSet", 12, 28},
                    FlagRow{"PercentNoEvents", 20, 4}, FlagRow{"PercentDecimals", 36, 52},
                    FlagRow{"LabelSetNoEvents", 24, 8}, FlagRow{"LabelSetDecimals", 40, 56},
                    FlagRow{"NoEventsDecimals", 48, 32}),
    name_of<FlagRow>);

TEST_P(StoredProgressFlags, StandInTheirField)
{
    const auto& [name, flag, field, value] = GetParam();
    RecordedProgressWnd window(0);
    EXPECT_NE(window.*field, value);

    window.setFlags(flag);
    EXPECT_EQ(window.*field, value);

    window.setFlags(63 - flag);
    EXPECT_NE(window.*field, value);
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, StoredProgressFlags,
    testing::Values(StoredRow{"Remaining", 1, &RecordedProgressWnd::m_bShowRemaining, true},
                    StoredRow{"Counter", 2, &RecordedProgressWnd::m_bShowCounter, true},
                    StoredRow{"Percent", 4, &RecordedProgressWnd::m_bShowPercent, true},
                    StoredRow{"LabelSet", 8, &RecordedProgressWnd::m_bLabelSet, true},
                    StoredRow{"NoEvents", 16, &RecordedProgressWnd::m_bProcessEvents, false},
                    StoredRow{"Decimals", 32, &RecordedProgressWnd::m_bPercentDecimals, true}),
    name_of<StoredRow>);

TEST(CVqDelayedProgressWndBaseFlags, FlagsWrittenBackAsReadTurnEventHandlingRound)
{
    RecordedProgressWnd window(16);

    window.setFlags(window.getFlags());
    EXPECT_TRUE(window.m_bProcessEvents);

    window.setFlags(window.getFlags());
    EXPECT_FALSE(window.m_bProcessEvents);
}

TEST(CVqDelayedProgressWndBaseFlags, OwnLabelSetsItsFlagUntilFlagsAreSet)
{
    RecordedProgressWnd window(0);

    window.SetLabel(CVqStringW());
    EXPECT_EQ(window.getFlags(), 24);

    window.setFlags(0);
    EXPECT_EQ(window.getFlags(), 16);
}
