#include "tests/support/TestToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::IsEmpty;

namespace {

bool take_event(IVqUIcontrol*, SVqUiEvent&)
{
    return true;
}

}

TEST(CVqAbstractToolbarNotCreated, OperationsOnTheListFail)
{
    TestToolbar bar;
    const std::unique_ptr<RecordingControl> control(bar.Make("open"));
    vq_uint64 id = 42;
    int value = 42;

    EXPECT_EQ(bar.AddControl(*control, id), -9);
    EXPECT_EQ(bar.AddControlNoCreate(*control, value), -9);
    EXPECT_EQ(bar.InsertControlBefore(*control, *control, id), -9);
    EXPECT_EQ(bar.InsertControlAfter(*control, *control, id), -9);
    EXPECT_EQ(bar.RemoveControl(*control), -9);
    EXPECT_EQ(bar.SetToolbarControlVisibility(*control, true), -9);
    EXPECT_EQ(bar.SetOrientation(EOrientation::Vertical), -9);
    EXPECT_EQ(bar.ChangeToolbarOrientation(EOrientation::Vertical), -9);

    EXPECT_EQ(id, 42u);
    EXPECT_EQ(value, 42);
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarNotCreated, QuestionsFindNothing)
{
    TestToolbar bar;
    CVqList::CVqNode* node = nullptr;

    EXPECT_EQ(bar.GetFirstNode(), nullptr);
    EXPECT_EQ(bar.GetNextControl(node), nullptr);
    EXPECT_EQ(bar.GetControl(1), nullptr);
    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("open")), nullptr);
    EXPECT_EQ(bar.GetIdCount(), 0);
    EXPECT_FALSE(bar.IsControlEnabled(1));
}

TEST(CVqAbstractToolbarNotCreated, OperationsByIdentifierFail)
{
    TestToolbar bar;
    int value = 42;

    EXPECT_EQ(bar.SetControlState(1, 1, 0, &value), -9);
    EXPECT_EQ(bar.GetControlState(1, 1, 0, &value), -9);
    EXPECT_EQ(bar.ControlCommand(1, 3, 0, nullptr), -9);
    EXPECT_EQ(bar.EnableControl(1, true), -9);

    EXPECT_EQ(value, 42);
}

TEST(CVqAbstractToolbarNotCreated, NothingMovesIntoOrOutOfAPicker)
{
    TestToolbar bar;
    const std::unique_ptr<RecordingControl> picker(bar.Make("picker"));
    const std::unique_ptr<RecordingControl> control(bar.Make("open"));
    int position = 42;

    EXPECT_FALSE(bar.MoveToPicker(picker.get(), control.get(), 100, 10));
    EXPECT_FALSE(bar.MoveFromPicker(picker.get(), position, 1000, true));

    EXPECT_EQ(position, 42);
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarNotCreated, OtherOperationsAreHarmless)
{
    TestToolbar bar;

    EXPECT_EQ(bar.RemoveAllControls(), 0);
    EXPECT_EQ(bar.SetCallback(take_event, nullptr), 0);
    bar.SetFlatStyle(true);
    bar.DestroyUI();

    EXPECT_EQ(bar.m_pCallback, take_event);
}
