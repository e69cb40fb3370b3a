#include "DelayedProgressWndBase.h"
#include "tests/RecordedProgressWnd.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

/// At position 2 of 4 the time left is the time gone.
struct UnitRow
{
    const char* name;
    double elapsed;
    const char* label;
};

struct WrapRow
{
    const char* name;
    unsigned int range;
    unsigned int position;
    double elapsed;
    const char* label;
};

struct ClockRow
{
    const char* name;
    double time;
    int start;
};

struct RestartRow
{
    const char* name;
    void (*restart)(RecordedProgressWnd& window);
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

std::string label_after(double elapsed, unsigned int range, unsigned int position)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), range, 0, false, 1);
    window.MakeView();
    window.ResetRemaining();
    window.Clock().Step(elapsed);
    window.SetPos(position);
    return window.Label();
}

class TimeUnits : public testing::TestWithParam<UnitRow>
{ };

class WrappingEstimates : public testing::TestWithParam<WrapRow>
{ };

class ClockValues : public testing::TestWithParam<ClockRow>
{ };

class ClockRestarts : public testing::TestWithParam<RestartRow>
{ };

constexpr double g_infinity = std::numeric_limits<double>::infinity();

}

TEST_P(TimeUnits, LargestOneShowsAlone)
{
    EXPECT_EQ(label_after(GetParam().elapsed, 4, 2), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, TimeUnits,
    testing::Values(UnitRow{"NoTime", 0, "\"Finalizing...\""},
                    UnitRow{"BelowOneSecond", 999, "\"Finalizing...\""},
                    UnitRow{"OneSecond", 1000, "\"Finalizing...\""},
                    UnitRow{"TwoSeconds", 2000, "\"Finalizing...\""},
                    UnitRow{"BelowThreeSeconds", 2999, "\"Finalizing...\""},
                    UnitRow{"ThreeSeconds", 3000, "\"Time remaining: 3 seconds\""},
                    UnitRow{"BelowAMinute", 59999, "\"Time remaining: 59 seconds\""},
                    UnitRow{"AMinute", 60000, "\"Time remaining: 1 minute(s)\""},
                    UnitRow{"BelowTwoMinutes", 119999, "\"Time remaining: 1 minute(s)\""},
                    UnitRow{"TwoMinutes", 120000, "\"Time remaining: 2 minute(s)\""},
                    UnitRow{"BelowAnHour", 3599999, "\"Time remaining: 59 minute(s)\""},
                    UnitRow{"AnHour", 3600000, "\"Time remaining: 1 hour(s)\""},
                    UnitRow{"AnHourAndAMinute", 3700000, "\"Time remaining: 1 hour(s)\""},
                    UnitRow{"BelowTwoHours", 7199999, "\"Time remaining: 1 hour(s)\""},
                    UnitRow{"TwoHours", 7200000, "\"Time remaining: 2 hour(s)\""},
                    UnitRow{"TwoDays", 172800000, "\"Time remaining: 48 hour(s)\""}),
    name_of<UnitRow>);

// Each comment tells the product of time and steps left modulo 2^32, and the milliseconds that it makes.
INSTANTIATE_TEST_SUITE_P(CVqDelayedProgressWndBase, WrappingEstimates,
                         testing::Values(
                             // 4294967294: 2147483647, the longest time that can be shown
                             WrapRow{"LastBefore", 4, 2, 2147483647, "\"Time remaining: 596 hour(s)\""},
                             // 0: 0
                             WrapRow{"First", 4, 2, 2147483648, "\"Finalizing...\""},
                             // 6000: 3000
                             WrapRow{"SomeBehind", 4, 2, 2147486648, "\"Time remaining: 3 seconds\""},
                             // 705032704: 352516352
                             WrapRow{"LongWork", 1002, 2, 5000000, "\"Time remaining: 97 hour(s)\""},
                             // 4294966296: 1073741574
                             WrapRow{"OnePastTheRange", 3, 4, 1000, "\"Time remaining: 298 hour(s)\""},
                             // 4294965296: 858993059
                             WrapRow{"TwoPastTheRange", 3, 5, 1000, "\"Time remaining: 238 hour(s)\""},
                             // 0: 0
                             WrapRow{"PastTheRangeAtOnce", 3, 5, 0, "\"Finalizing...\""},
                             // 0: 0
                             WrapRow{"AtTheRange", 4, 4, 60000, "\"Finalizing...\""},
                             // 4294965296: 2147482648
                             WrapRow{"ClockThatGoesBack", 4, 2, -1000, "\"Time remaining: 596 hour(s)\""},
                             // 4294963296: 1073740824
                             WrapRow{"RangeOfZero", 0, 4, 1000, "\"Time remaining: 298 hour(s)\""}),
                         name_of<WrapRow>);

TEST_P(WrappingEstimates, ComeFromTheLow32Bits)
{
    const auto& [name, range, position, elapsed, label] = GetParam();

    EXPECT_EQ(label_after(elapsed, range, position), label);
}

TEST_P(ClockValues, StartFromTheirLow32BitsWithoutAFraction)
{
    RecordedProgressWnd window(1);
    window.Clock().Set(GetParam().time);

    window.ResetRemaining();

    EXPECT_EQ(window.m_iStartTime, GetParam().start);
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, ClockValues,
    testing::Values(ClockRow{"Whole", 5000, 5000}, ClockRow{"Fraction", 999.9, 999},
                    ClockRow{"BelowZero", -999.9, -999}, ClockRow{"BelowOne", 0.9, 0},
                    ClockRow{"LargestSigned", 2147483647.9, 2147483647},
                    ClockRow{"BeyondSigned", 2147483648.0, -2147483647 - 1},
                    ClockRow{"SmallestSigned", -2147483648.9, -2147483647 - 1},
                    ClockRow{"BelowSigned", -2147483649.0, 2147483647},
                    ClockRow{"Beyond32Bits", 4294967301.5, 5}, ClockRow{"Below32Bits", -4294967301.5, -5},
                    ClockRow{"SignBitBelow32Bits", -6442450944.0, -2147483647 - 1},
                    ClockRow{"TimeOfDay", 1732223344556.75, 1351524268}, ClockRow{"Beyond64Bits", 1e300, 0},
                    ClockRow{"NotANumber", std::numeric_limits<double>::quiet_NaN(), 0},
                    ClockRow{"Infinite", g_infinity, 0}, ClockRow{"InfiniteBelow", -g_infinity, 0}),
    name_of<ClockRow>);

TEST_P(ClockRestarts, LetTheEstimateCountFromNow)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, 1);
    window.MakeView();
    window.Clock().Set(60000);

    GetParam().restart(window);

    EXPECT_EQ(window.Clock().TimesAsked(), 1);
    window.Clock().Step(3000);
    window.SetPos(2);
    EXPECT_EQ(window.Label(), "\"Time remaining: 3 seconds\"");
}

INSTANTIATE_TEST_SUITE_P(
    CVqDelayedProgressWndBase, ClockRestarts,
    testing::Values(RestartRow{"SetRange", [](RecordedProgressWnd& window) { window.setRange(4); }},
                    RestartRow{"SetDelay", [](RecordedProgressWnd& window) { window.setDelay(0); }},
                    RestartRow{"ResetRemaining",
                               [](RecordedProgressWnd& window) { window.ResetRemaining(); }}),
    name_of<RestartRow>);

TEST(CVqDelayedProgressWndBaseRemaining, TimeCountsFromZeroUntilTheClockIsRestarted)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, 1);
    window.MakeView();
    window.Clock().Set(60000);

    window.SetPos(2);

    EXPECT_EQ(window.m_iStartTime, 0);
    EXPECT_EQ(window.Label(), "\"Time remaining: 1 minute(s)\"");
}

TEST(CVqDelayedProgressWndBaseRemaining, BothTimesAreCutBeforeTheyAreSubtracted)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, 1);
    window.MakeView();
    window.Clock().Set(999.9);
    window.ResetRemaining();

    window.Clock().Set(3999);
    window.SetPos(2);
    EXPECT_EQ(window.Label(), "\"Time remaining: 3 seconds\"");

    window.Clock().Set(3998.9);
    window.SetPos(2);
    EXPECT_EQ(window.Label(), "\"Finalizing...\"");
}

TEST(CVqDelayedProgressWndBaseRemaining, ClockMayPass32BitsMeanwhile)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, 1);
    window.MakeView();
    window.Clock().Set(4294966000);
    window.ResetRemaining();

    window.Clock().Step(3000);
    window.SetPos(2);

    EXPECT_EQ(window.Label(), "\"Time remaining: 3 seconds\"");
}

TEST(CVqDelayedProgressWndBaseRemaining, ClockThatIsNoNumberReadsAsZero)
{
    RecordedProgressWnd window(VQ_TEXT("Copy"), 4, 0, false, 1);
    window.MakeView();
    window.Clock().Set(std::numeric_limits<double>::quiet_NaN());

    window.SetPos(2);

    EXPECT_EQ(window.Label(), "\"Finalizing...\"");
}

TEST(CVqDelayedProgressWndBaseRemaining, TimeIsAskedOnceForEachEstimate)
{
    RecordedProgressWnd window(7);
    window.MakeView();

    window.SetPos(2);
    window.IncrementPos();

    EXPECT_EQ(window.Clock().TimesAsked(), 2);
}

TEST(CVqDelayedProgressWndBaseRemaining, TimeIsNotAskedWithoutAnEstimate)
{
    RecordedProgressWnd window(1);
    window.SetPos(5); // no view

    window.MakeView();
    window.SetPos(0);
    window.SetPos(1);
    window.setFlags(2 + 4);
    window.SetPos(5);

    EXPECT_EQ(window.Clock().TimesAsked(), 0);
}

TEST(CVqDelayedProgressWndBaseRemaining, OtherOperationsLeaveTheClockAlone)
{
    RecordedProgressWnd window(1);
    window.MakeView();

    window.setTitle(VQ_TEXT("Move"));
    window.setSuppressOtherWnds(true);
    window.setFlags(7);
    window.SetLabel(CVqStringW());
    window.CheckCanceled();
    window.CancelProgress();

    EXPECT_EQ(window.Clock().TimesAsked(), 0);
    EXPECT_EQ(window.m_iStartTime, 0);
}
