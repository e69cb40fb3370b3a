#include "tests/AbstractGui/PickerLengths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::IsEmpty;

struct Into
{
    const char* name;
    EOrientation orientation;
    bool picker_in_use;
    int extent;
    bool moved;
};

class CVqAbstractToolbarMoveToPicker : public testing::TestWithParam<Into>
{ };

// The toolbar is 100 long and the picker 20.
TEST_P(CVqAbstractToolbarMoveToPicker, HandsOverWhatEndsBehindTheRoom)
{
    const Into& row = GetParam();
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& a = bar.Add("a");
    RecordingControl& b = bar.Add("b");
    bar.m_eOrientation = row.orientation;
    set_length(bar.ThePicker(), row.orientation, 20);
    if (row.picker_in_use)
        bar.SetBoundary(b);
    bar.m_bLayoutDirty = false;
    const std::string order = bar.Order();

    EXPECT_EQ(bar.MoveToPicker(&bar.ThePicker(), &a, row.extent, 100), row.moved);

    const TestToolbar::Lines lines = bar.TakeCalls();
    EXPECT_EQ(lines, row.moved ? TestToolbar::Lines{"picker.Command 2308 a"} : TestToolbar::Lines{});
    EXPECT_EQ(bar.Order(), order);
    EXPECT_EQ(bar.ThePicker().SizeValue(), row.picker_in_use ? -1 : 0);
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CVqAbstractToolbarMoveToPicker,
    testing::Values(Into{"LyingBeforeTheEnd", g_lying, false, 99, false},
                    Into{"LyingAtTheEnd", g_lying, false, 100, false},
                    Into{"LyingBehindTheEnd", g_lying, false, 101, true},
                    Into{"LyingBeforeThePicker", g_lying, true, 79, false},
                    Into{"LyingAtThePicker", g_lying, true, 80, false},
                    Into{"LyingBehindThePicker", g_lying, true, 81, true},
                    Into{"UprightBeforeTheEnd", g_upright, false, 99, false},
                    Into{"UprightAtTheEnd", g_upright, false, 100, false},
                    Into{"UprightBehindTheEnd", g_upright, false, 101, true},
                    Into{"UprightBeforeThePicker", g_upright, true, 79, false},
                    Into{"UprightAtThePicker", g_upright, true, 80, false},
                    Into{"UprightBehindThePicker", g_upright, true, 81, true},
                    Into{"AnyOtherOrientationIsUprightAtThePicker", EOrientation(2), true, 80, false},
                    Into{"AnyOtherOrientationIsUprightBehindThePicker", EOrientation(2), true, 81, true}),
    [](const auto& row) { return row.param.name; });

TEST(CVqAbstractToolbarIntoPicker, NullAndEqualPointersAreRefused)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& a = bar.Add("a");
    RecordingPicker* picker = &bar.ThePicker();

    EXPECT_FALSE(bar.MoveToPicker(nullptr, &a, 1000, 100));
    EXPECT_FALSE(bar.MoveToPicker(picker, nullptr, 1000, 100));
    EXPECT_FALSE(bar.MoveToPicker(picker, picker, 1000, 100));

    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarIntoPicker, ToolbarInAPickerMovesNothing)
{
    TestToolbar main(EToolbarType::Main);
    RecordingControl& a = main.Add("a");
    TestToolbar bar = TestToolbar::InPickerOf(main);

    EXPECT_FALSE(bar.MoveToPicker(&main.ThePicker(), &a, 1000, 100));

    EXPECT_THAT(main.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarIntoPicker, RoomBelowTheSmallestIntegerIsReckonedWithoutOverflow)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& a = bar.Add("a");
    bar.SetBoundary(a);
    set_length(bar.ThePicker(), g_lying, 2'147'483'647);

    EXPECT_TRUE(bar.MoveToPicker(&bar.ThePicker(), &a, -2'147'483'647, -2'147'483'647));
}
