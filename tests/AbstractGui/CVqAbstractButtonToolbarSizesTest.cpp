#include "tests/AbstractGui/RefusingControl.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

using testing::ElementsAre;

namespace {

/// Wants one size by itself and has another one set, as a widget does.
class WidgetControl : public RecordingControl
{
public:
    using RecordingControl::RecordingControl;

    int GetControlSize(CVqSizeBase<int>& size, int value) override
    {
        RecordingControl::GetControlSize(size, value);
        m_values.push_back(value);
        if (size.m_iWidth == 0)
            size = m_wanted;
        return 0;
    }

    CVqSizeBase<int> m_wanted;
    std::vector<int> m_values; ///< With which its size was asked for.
};

struct OptimalSize
{
    const char* name;
    EOrientation orientation;
    CVqSizeBase<int> present;
    CVqSizeBase<int> wanted;
    const char* last_line;
};

class CVqAbstractButtonToolbarOptimalSize : public testing::TestWithParam<OptimalSize>
{ };

}

TEST_P(CVqAbstractButtonToolbarOptimalSize, TakesTheWantedWidthAndAHeightByTheOrientation)
{
    const OptimalSize& row = GetParam();
    TestButtonToolbar bar;
    auto* control = new WidgetControl("a", bar.Bar().m_calls);
    const vq_uint64 id = bar.AddGeneralControl(control, VQ_TEXT("a"));
    control->Sized(row.present.m_iWidth, row.present.m_iHeight);
    control->m_wanted = row.wanted;
    bar.Bar().m_eOrientation = row.orientation;
    bar.Settle();

    EXPECT_EQ(bar.SetButtonOptimalSize(id), 0);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.SetControlSize 0x0", row.last_line));
    EXPECT_THAT(control->m_values, ElementsAre(-1, -1));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractButtonToolbarOptimalSize,
    testing::Values(
        OptimalSize{
            "LyingKeepsTheHeight", EOrientation::Horizontal, {10, 20}, {30, 40}, "a.SetControlSize 30x20"},
        OptimalSize{"LyingKeepsALargerHeightToo",
                    EOrientation::Horizontal,
                    {10, 50},
                    {30, 40},
                    "a.SetControlSize 30x50"},
        OptimalSize{"UprightTakesTheWantedHeightWhenItIsLarger",
                    EOrientation::Vertical,
                    {10, 20},
                    {30, 40},
                    "a.SetControlSize 30x40"},
        OptimalSize{"UprightKeepsALargerHeight",
                    EOrientation::Vertical,
                    {10, 50},
                    {30, 40},
                    "a.SetControlSize 30x50"},
        OptimalSize{
            "AnyOtherOrientationIsUpright", EOrientation(2), {10, 20}, {30, 40}, "a.SetControlSize 30x40"}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractButtonToolbarSizes, SizeIsSetAndRead)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddButton(VQ_TEXT("a"));
    bar.Settle();
    CVqSizeBase<int> size;

    EXPECT_EQ(bar.SetButtonSize(id, 30, 40), 0);
    EXPECT_EQ(bar.GetButtonSize(id, size, 5), 0);

    EXPECT_EQ(size, (CVqSizeBase<int>{30, 40}));
    EXPECT_EQ(bar.Control(id).SizeValue(), 5);
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("a.SetControlSize 30x40"));
}

TEST(CVqAbstractButtonToolbarSizes, ControlsResultIsGivenButNotThatOfTheOptimalSize)
{
    TestButtonToolbar bar;
    const vq_uint64 id = bar.AddGeneralControl(new RefusingControl("a", bar.Bar().m_calls), VQ_TEXT("a"));
    CVqSizeBase<int> size;

    EXPECT_EQ(bar.SetButtonSize(id, 30, 40), RefusingControl::Result);
    EXPECT_EQ(bar.GetButtonSize(id, size, -1), RefusingControl::Result);
    EXPECT_EQ(bar.SetButtonOptimalSize(id), 0);
}

TEST(CVqAbstractButtonToolbarSizes, UnknownButtonAndMissingToolbarFail)
{
    TestButtonToolbar bar;
    NoButtonToolbar none;
    CVqSizeBase<int> size{1, 2};

    for (CVqAbstractButtonToolbar* each :
         {static_cast<CVqAbstractButtonToolbar*>(&bar), static_cast<CVqAbstractButtonToolbar*>(&none)}) {
        EXPECT_EQ(each->SetButtonSize(4711, 30, 40), -9);
        EXPECT_EQ(each->GetButtonSize(4711, size, -1), -9);
        EXPECT_EQ(each->SetButtonOptimalSize(4711), -9);
    }
    EXPECT_EQ(size, (CVqSizeBase<int>{1, 2}));
}
