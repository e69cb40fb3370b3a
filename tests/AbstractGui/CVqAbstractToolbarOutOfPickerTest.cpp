#include "tests/AbstractGui/PickerLengths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A control in the picker by its length; a hidden one by its negative length.
using Lengths = std::vector<int>;

}

struct OutOf
{
    const char* name;
    EOrientation orientation;
    Lengths lengths;
    int limit;
    int moved;    ///< How many came back.
    int position; ///< Where the toolbar's controls end then; 50 before.
    bool picker_shown;
};

class CVqAbstractToolbarMoveFromPicker : public testing::TestWithParam<OutOf>
{ };

// In front of the boundary stand a visible control and a hidden one, both longer than all else. The picker is
// 20 long.
TEST_P(CVqAbstractToolbarMoveFromPicker, BringsBackWhatFits)
{
    const OutOf& row = GetParam();
    TestToolbar bar(EToolbarType::Main);
    bar.m_eOrientation = row.orientation;
    set_length(bar.ThePicker(), row.orientation, 20);
    set_length(bar.Add("front"), row.orientation, 300);
    set_length(bar.Add("gone").Hidden(), row.orientation, 300);
    std::vector<std::string> names;
    for (const int length : row.lengths) {
        names.push_back("c" + std::to_string(names.size()));
        RecordingControl& control = bar.Add(names.back());
        set_length(control, row.orientation, std::abs(length));
        if (length < 0)
            control.Hidden();
        if (names.size() == 1)
            bar.SetBoundary(control);
    }
    names.push_back("picker");
    bar.m_bLayoutDirty = false;
    int position = 50;

    EXPECT_TRUE(bar.MoveFromPicker(&bar.ThePicker(), position, row.limit, false));

    TestToolbar::Lines lines;
    for (int i = 1; i <= row.moved; ++i)
        lines.push_back("picker.Set 2306 " + names.at(static_cast<std::size_t>(i)));
    lines.push_back(std::string("picker.SetControlVisibility ") + (row.picker_shown ? "1" : "0"));
    EXPECT_EQ(bar.TakeCalls(), lines);
    EXPECT_EQ(position, row.position);
    const auto* first = static_cast<IVqUIcontrol*>(bar.m_pControls->GetData(bar.m_pBoundary));
    EXPECT_EQ(TestToolbar::NameOf(first), names.at(static_cast<std::size_t>(row.moved)));
    EXPECT_EQ(bar.ThePicker().SizeValue(), -1);
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

INSTANTIATE_TEST_SUITE_P(Empty, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingHidesThePicker", g_lying, {}, 100, 0, 50, false},
                                         OutOf{
                                             "LyingWithoutRoomHidesThePicker", g_lying, {}, 0, 0, 50, false},
                                         OutOf{"UprightHidesThePicker", g_upright, {}, 100, 0, 50, false}),
                         [](const auto& row) { return row.param.name; });

// Nothing follows: no reserve, and no pixel between. 50 + 10 = 60.
INSTANTIATE_TEST_SUITE_P(
    One, CVqAbstractToolbarMoveFromPicker,
    testing::Values(OutOf{"LyingBelow", g_lying, {10}, 59, 0, 50, true},
                    OutOf{"LyingAt", g_lying, {10}, 60, 1, 60, false},
                    OutOf{"LyingAbove", g_lying, {10}, 61, 1, 60, false},
                    OutOf{"UprightBelow", g_upright, {10}, 59, 0, 50, true},
                    OutOf{"UprightAt", g_upright, {10}, 60, 1, 60, false},
                    OutOf{"UprightAbove", g_upright, {10}, 61, 1, 60, false},
                    OutOf{"OtherOrientationBelow", EOrientation(2), {10}, 59, 0, 50, true},
                    OutOf{"OtherOrientationAt", EOrientation(2), {10}, 60, 1, 60, false}),
    [](const auto& row) { return row.param.name; });

// First: 50 + 10 + 1 = 61 with a reserve of min(15, 20) = 15, so from 76 on. Second: 61 + 15 = 76.
INSTANTIATE_TEST_SUITE_P(TwoOfWhichTheLastIsSmallerThanThePicker, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingBelow", g_lying, {10, 15}, 75, 0, 50, true},
                                         OutOf{"LyingAt", g_lying, {10, 15}, 76, 2, 76, false},
                                         OutOf{"LyingAbove", g_lying, {10, 15}, 77, 2, 76, false},
                                         OutOf{"UprightBelow", g_upright, {10, 15}, 75, 0, 50, true},
                                         OutOf{"UprightAt", g_upright, {10, 15}, 76, 2, 76, false},
                                         OutOf{"UprightAbove", g_upright, {10, 15}, 77, 2, 76, false}),
                         [](const auto& row) { return row.param.name; });

// First: 61 with a reserve of min(30, 20) = 20, so from 81 on. Second: 61 + 30 = 91.
INSTANTIATE_TEST_SUITE_P(TwoOfWhichTheLastIsLargerThanThePicker, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingBelowFirst", g_lying, {10, 30}, 80, 0, 50, true},
                                         OutOf{"LyingAtFirst", g_lying, {10, 30}, 81, 1, 61, true},
                                         OutOf{"LyingAboveFirst", g_lying, {10, 30}, 82, 1, 61, true},
                                         OutOf{"LyingBelowSecond", g_lying, {10, 30}, 90, 1, 61, true},
                                         OutOf{"LyingAtSecond", g_lying, {10, 30}, 91, 2, 91, false},
                                         OutOf{"UprightBelowFirst", g_upright, {10, 30}, 80, 0, 50, true},
                                         OutOf{"UprightAtFirst", g_upright, {10, 30}, 81, 1, 61, true},
                                         OutOf{"UprightBelowSecond", g_upright, {10, 30}, 90, 1, 61, true},
                                         OutOf{"UprightAtSecond", g_upright, {10, 30}, 91, 2, 91, false}),
                         [](const auto& row) { return row.param.name; });

// Lying, two follow the first: 61 with a reserve of 20, the whole picker, so from 81 on; then
// 61 + 5 + 1 = 67 with min(5, 20) = 5, from 72 on; then 67 + 5 = 72. Upright, only the next one counts:
// 61 with min(5, 20) = 5, from 66 on; then the same 67 and 72.
INSTANTIATE_TEST_SUITE_P(ThreeSmallOnes, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingBelow", g_lying, {10, 5, 5}, 80, 0, 50, true},
                                         OutOf{"LyingAt", g_lying, {10, 5, 5}, 81, 3, 72, false},
                                         OutOf{"LyingAbove", g_lying, {10, 5, 5}, 82, 3, 72, false},
                                         OutOf{"UprightBelowFirst", g_upright, {10, 5, 5}, 65, 0, 50, true},
                                         OutOf{"UprightAtFirst", g_upright, {10, 5, 5}, 66, 1, 61, true},
                                         OutOf{"UprightAboveFirst", g_upright, {10, 5, 5}, 67, 1, 61, true},
                                         OutOf{"UprightBelowRest", g_upright, {10, 5, 5}, 71, 1, 61, true},
                                         OutOf{"UprightAtRest", g_upright, {10, 5, 5}, 72, 3, 72, false}),
                         [](const auto& row) { return row.param.name; });

// Lying: first 61 with 20, from 81 on; second 61 + 15 + 1 = 77 with min(12, 20) = 12, from 89 on; third
// 77 + 12 = 89. Upright: first 61 with min(15, 20) = 15, from 76 on; the others as lying.
INSTANTIATE_TEST_SUITE_P(ThreeThatComeBackOneByOne, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingBelowFirst", g_lying, {10, 15, 12}, 80, 0, 50, true},
                                         OutOf{"LyingAtFirst", g_lying, {10, 15, 12}, 81, 1, 61, true},
                                         OutOf{"LyingBelowRest", g_lying, {10, 15, 12}, 88, 1, 61, true},
                                         OutOf{"LyingAtRest", g_lying, {10, 15, 12}, 89, 3, 89, false},
                                         OutOf{"UprightBelowFirst", g_upright, {10, 15, 12}, 75, 0, 50, true},
                                         OutOf{"UprightAtFirst", g_upright, {10, 15, 12}, 76, 1, 61, true},
                                         OutOf{"UprightBelowRest", g_upright, {10, 15, 12}, 88, 1, 61, true},
                                         OutOf{"UprightAtRest", g_upright, {10, 15, 12}, 89, 3, 89, false}),
                         [](const auto& row) { return row.param.name; });

// Lying, the two that follow are larger than the picker: the reserve is the picker all the same.
// First 61 with 20, from 81 on; second 61 + 30 + 1 = 92 with 20, from 112 on; third 92 + 40 = 132.
INSTANTIATE_TEST_SUITE_P(ThreeLargeOnes, CVqAbstractToolbarMoveFromPicker,
                         testing::Values(OutOf{"LyingBelowFirst", g_lying, {10, 30, 40}, 80, 0, 50, true},
                                         OutOf{"LyingAtFirst", g_lying, {10, 30, 40}, 81, 1, 61, true},
                                         OutOf{"LyingBelowSecond", g_lying, {10, 30, 40}, 111, 1, 61, true},
                                         OutOf{"LyingAtSecond", g_lying, {10, 30, 40}, 112, 2, 92, true},
                                         OutOf{"LyingBelowThird", g_lying, {10, 30, 40}, 131, 2, 92, true},
                                         OutOf{"LyingAtThird", g_lying, {10, 30, 40}, 132, 3, 132, false}),
                         [](const auto& row) { return row.param.name; });

// Hidden controls come back whatever the room and take none; they are no reason for a reserve.
INSTANTIATE_TEST_SUITE_P(
    Hidden, CVqAbstractToolbarMoveFromPicker,
    testing::Values(OutOf{"LyingAlone", g_lying, {-10}, 0, 1, 50, false},
                    OutOf{"UprightAlone", g_upright, {-10}, 0, 1, 50, false},
                    OutOf{"LyingAll", g_lying, {-10, -15, -12}, 0, 3, 50, false},
                    OutOf{"LyingBeforeAVisibleOneThatDoesNotFit", g_lying, {-10, 15}, 64, 1, 50, true},
                    OutOf{"LyingBeforeAVisibleOneThatFits", g_lying, {-10, 15}, 65, 2, 65, false},
                    OutOf{"UprightBeforeAVisibleOneThatDoesNotFit", g_upright, {-10, 15}, 64, 1, 50, true},
                    OutOf{"UprightBeforeAVisibleOneThatFits", g_upright, {-10, 15}, 65, 2, 65, false},
                    OutOf{"LyingBehindTheOnlyVisibleOneBelow", g_lying, {10, -15}, 59, 0, 50, true},
                    OutOf{"LyingBehindTheOnlyVisibleOneAt", g_lying, {10, -15}, 60, 2, 60, false},
                    OutOf{"UprightBehindTheOnlyVisibleOneBelow", g_upright, {10, -15}, 59, 0, 50, true},
                    OutOf{"UprightBehindTheOnlyVisibleOneAt", g_upright, {10, -15}, 60, 2, 60, false},
                    // First 61 with min(12, 20) = 12, from 73 on; last 61 + 12 = 73.
                    OutOf{"LyingBetweenBelow", g_lying, {10, -15, 12}, 72, 0, 50, true},
                    OutOf{"LyingBetweenAt", g_lying, {10, -15, 12}, 73, 3, 73, false},
                    OutOf{"UprightBetweenBelow", g_upright, {10, -15, 12}, 72, 0, 50, true},
                    OutOf{"UprightBetweenAt", g_upright, {10, -15, 12}, 73, 3, 73, false},
                    // Two visible ones follow the first: 61 with 20, from 81 on.
                    OutOf{"LyingAmongThreeBelow", g_lying, {10, -5, 5, -5, 5}, 80, 0, 50, true},
                    OutOf{"LyingAmongThreeAt", g_lying, {10, -5, 5, -5, 5}, 81, 5, 72, false},
                    OutOf{"UprightAmongThreeBelow", g_upright, {10, -5, 5, -5, 5}, 65, 0, 50, true},
                    // Second: 67 with 5, above 66: the hidden one in front of it is out, and stays so.
                    OutOf{"UprightAmongThreeAt", g_upright, {10, -5, 5, -5, 5}, 66, 2, 61, true}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractToolbarOutOfPicker, LastArgumentDoesNotMatter)
{
    for (const bool value : {false, true}) {
        TestToolbar bar(EToolbarType::Main);
        RecordingControl& a = bar.Add("a");
        a.Sized(10, g_across);
        bar.SetBoundary(a);
        int position = 50;

        EXPECT_TRUE(bar.MoveFromPicker(&bar.ThePicker(), position, 60, value));

        EXPECT_EQ(position, 60);
    }
}

TEST(CVqAbstractToolbarOutOfPicker, HiddenPickerIsHiddenAgain)
{
    TestToolbar bar(EToolbarType::Main);
    bar.ThePicker().Hidden();
    int position = 50;

    EXPECT_TRUE(bar.MoveFromPicker(&bar.ThePicker(), position, 100, true));

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("picker.SetControlVisibility 0"));
}

TEST(CVqAbstractToolbarOutOfPicker, NullPickerIsRefused)
{
    TestToolbar bar(EToolbarType::Main);
    bar.SetBoundary(bar.Add("a"));
    int position = 50;

    EXPECT_FALSE(bar.MoveFromPicker(nullptr, position, 1000, true));

    EXPECT_EQ(bar.Order(), "|a picker");
    EXPECT_EQ(position, 50);
}

TEST(CVqAbstractToolbarOutOfPicker, ToolbarInAPickerMovesNothing)
{
    TestToolbar main(EToolbarType::Main);
    main.SetBoundary(main.Add("a"));
    TestToolbar bar = TestToolbar::InPickerOf(main);
    int position = 50;

    EXPECT_FALSE(bar.MoveFromPicker(&main.ThePicker(), position, 1000, true));

    EXPECT_EQ(main.Order(), "|a picker");
    EXPECT_THAT(main.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarOutOfPicker, PickerThatStandsInFrontOfTheBoundaryIsRefused)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& a = bar.Add("a");
    bar.SetBoundary(bar.Add("b"));
    int position = 50;

    EXPECT_FALSE(bar.MoveFromPicker(&a, position, 1000, true));

    EXPECT_EQ(bar.Order(), "a |b picker");
    EXPECT_EQ(position, 50);
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarOutOfPicker, NodeWithoutAControlComesBackAsIfHidden)
{
    TestToolbar bar(EToolbarType::Main);
    bar.m_pBoundary = bar.m_pControls->Insert(bar.m_pControls->GetLast(), nullptr);
    bar.m_pControls->Insert(bar.m_pControls->GetLast(), nullptr);
    int position = 50;

    EXPECT_TRUE(bar.MoveFromPicker(&bar.ThePicker(), position, 0, true));

    EXPECT_EQ(bar.Order(), "- - |picker");
    EXPECT_EQ(position, 50);
    EXPECT_THAT(
        bar.TakeCalls(),
        ElementsAre("picker.Set 2306 null", "picker.Set 2306 picker", "picker.SetControlVisibility 0"));
}

TEST(CVqAbstractToolbarOutOfPicker, EdgeBeyondTheLargestIntegerDoesNotFit)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& a = bar.Add("a");
    a.Sized(10, g_across);
    bar.SetBoundary(a);
    int position = 2'147'483'640;

    EXPECT_TRUE(bar.MoveFromPicker(&bar.ThePicker(), position, 2'147'483'647, true));

    EXPECT_EQ(bar.Order(), "|a picker");
    EXPECT_EQ(position, 2'147'483'640);
}
