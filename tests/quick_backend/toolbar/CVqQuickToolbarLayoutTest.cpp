#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "tests/quick_backend/toolbar/LayoutCheck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

constexpr int g_longest = 2000;
constexpr int g_bars = 200;
constexpr int g_bars_a_case = 50;

/// Toolbars with the seeds of a range.
class CVqQuickToolbarLayoutTest : public testing::TestWithParam<int>
{
protected:
    template <class Work>
    void EachBar(Work work)
    {
        for (int seed = GetParam(); seed < GetParam() + g_bars_a_case && !HasFatalFailure(); ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            RandomBar bar(std::mt19937::result_type(seed + 1));
            LayoutCheck check(bar);
            work(bar, check);
        }
    }

    static void ExpectRight(RandomBar& bar, LayoutCheck& check, int length)
    {
        bar.Stretch(length);
        const char* fault = check.Fault(length);
        ASSERT_FALSE(fault) << fault << ", at length " << length;
    }
};

/// A narrow and a wide control of 30 and 500 pixels.
class CVqQuickToolbarFirstOverflowTest : public testing::TestWithParam<EOrientation>
{
protected:
    static QQuickItem* Item(int length)
    {
        return GetParam() == EOrientation::Horizontal ? CoreBar::SizedItem(length, 20)
                                                      : CoreBar::SizedItem(20, length);
    }

    CoreBar bar{EToolbarType::Main, GetParam()};
    CVqQuickControl& narrow = bar.Take(new CVqQuickItemControl(Item(30)), "narrow");
    CVqQuickControl& wide = bar.Take(new CVqQuickItemControl(Item(500)), "wide");
};

}

TEST_P(CVqQuickToolbarLayoutTest, PutsEachControlInOnePlaceAtEachLength)
{
    EachBar([](RandomBar& bar, LayoutCheck& check) {
        for (int length = 1; length <= g_longest && !HasFatalFailure(); ++length)
            ExpectRight(bar, check, length);
    });
}

TEST_P(CVqQuickToolbarLayoutTest, NeverTakesAControlOffTheToolbarWhileItGrows)
{
    EachBar([](RandomBar& bar, LayoutCheck&) {
        std::ptrdiff_t before = 0;
        for (int length = 1; length <= g_longest; ++length) {
            bar.Stretch(length);
            const std::ptrdiff_t on_bar
                = std::ranges::count_if(bar.Controls(), [](const CVqQuickControl* control) {
                      return control->IsShown() && !control->IsInPicker();
                  });
            ASSERT_GE(on_bar, before) << length;
            before = on_bar;
        }
    });
}

TEST_P(CVqQuickToolbarLayoutTest, ShowsTheSameFromWhereverItComes)
{
    EachBar([](RandomBar& bar, LayoutCheck& check) {
        for (int length = g_longest; length > 1 && !HasFatalFailure(); --length) {
            if (check.ExpectedCount(length) == check.ExpectedCount(length - 1))
                continue;
            for (const int step : {length + 1, length, length - 1, length, 1, length, g_longest, length - 1,
                                   1, length - 1, g_longest, length})
                ExpectRight(bar, check, step);
        }
        for (int jump = 0; jump < 100 && !HasFatalFailure(); ++jump)
            ExpectRight(bar, check, 1 + bar.Below(g_longest));
    });
}

INSTANTIATE_TEST_SUITE_P(Seeds, CVqQuickToolbarLayoutTest, testing::Range(0, g_bars, g_bars_a_case));

TEST_P(CVqQuickToolbarFirstOverflowTest, GoesFromNoneToOneAndBack)
{
    const int whole = 2 + 30 + 1 + 500 + 2;
    bar.Stretch(whole);
    EXPECT_EQ(bar.Lies(), "narrow wide |");

    bar.Stretch(whole - 1);
    EXPECT_EQ(bar.Lies(), "narrow > | wide");
    bar.Stretch(whole);

    EXPECT_EQ(bar.Lies(), "narrow wide |");
}

TEST_P(CVqQuickToolbarFirstOverflowTest, StaysTheSameUntilThePickerNeedsTheRoom)
{
    for (int length = 534; length >= 2 + 30 + 20 + 2; --length) {
        bar.Stretch(length);
        ASSERT_EQ(bar.Lies(), "narrow > | wide") << length;
    }

    bar.Stretch(53);

    EXPECT_EQ(bar.Lies(), "> | narrow wide");
}

TEST_P(CVqQuickToolbarFirstOverflowTest, ShowsThePickerAloneWhereThereIsRoomForNothing)
{
    for (int length = 0; length < 24; ++length) {
        bar.Stretch(length);
        ASSERT_EQ(bar.Lies(), "> | narrow wide") << length;
    }
}

TEST_P(CVqQuickToolbarFirstOverflowTest, FitsIntoTheLengthThatItAsksFor)
{
    const bool lies = GetParam() == EOrientation::Horizontal;
    const CVqSizeBase<int> full = bar.toolbar.FullSize();

    bar.Stretch(lies ? full.m_iWidth : full.m_iHeight);

    EXPECT_EQ(bar.Lies(), "narrow wide |");
    EXPECT_EQ(lies ? bar.area().implicitWidth() : bar.area().implicitHeight(), 535);
}

TEST_P(CVqQuickToolbarFirstOverflowTest, CountsControlsOfNoLengthWithTheirSpace)
{
    bar.Take(new CVqQuickItemControl(Item(0)), "none");

    const CVqSizeBase<int> full = bar.toolbar.FullSize();

    EXPECT_EQ(GetParam() == EOrientation::Horizontal ? full.m_iWidth : full.m_iHeight, 536);
}

INSTANTIATE_TEST_SUITE_P(Orientations, CVqQuickToolbarFirstOverflowTest,
                         testing::Values(EOrientation::Horizontal, EOrientation::Vertical),
                         [](const auto& row) {
                             return std::string(row.param == EOrientation::Horizontal ? "Lying" : "Upright");
                         });
