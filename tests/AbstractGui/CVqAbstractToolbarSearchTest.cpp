#include "AbstractGui/VqControlCodes.h"
#include "tests/AbstractGui/RefusingControl.h"
#include "tests/AbstractGui/WalkedBars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

// By identifier ------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarById, ControlIsFoundByItsNumberAndNotByAnEqualText)
{
    WalkedBar bar(EToolbarType::Main);
    const CVqStringW same_text(VQ_TEXT("b"));

    EXPECT_EQ(bar.bar.GetControl(bar.b.GetControlID()), &bar.b);
    EXPECT_EQ(bar.bar.GetControl(reinterpret_cast<vq_uint64>(same_text.GetString())), nullptr);
    EXPECT_EQ(bar.bar.GetControlByName(same_text), &bar.b);
}

TEST(CVqAbstractToolbarById, PickerIsNotInTheMap)
{
    WalkedBar bar(EToolbarType::Main);

    EXPECT_EQ(bar.bar.GetControl(bar.bar.ThePicker().GetControlID()), nullptr);
    EXPECT_EQ(bar.bar.GetIdCount(), 3);
}

TEST(CVqAbstractToolbarById, StateOperationsReachTheControlAndGiveItsResult)
{
    WalkedBar bar(EToolbarType::Main);
    const vq_uint64 id = bar.b.GetControlID();
    int check = 1;
    int read = 0;
    CVqStringW text;

    EXPECT_EQ(bar.bar.SetControlState(id, vq_control_check, 0, &check), 0);
    EXPECT_EQ(bar.bar.GetControlState(id, vq_control_check, 0, &read), 0);
    EXPECT_EQ(bar.bar.GetControlState(id, vq_control_text, 5, &text), -17);
    EXPECT_EQ(bar.bar.ControlCommand(id, vq_control_delete_state, 7, nullptr), -9);
    EXPECT_EQ(bar.bar.ControlCommand(id, vq_control_clear_states, 0, nullptr), 0);

    EXPECT_EQ(read, 1);
    EXPECT_THAT(bar.bar.TakeCalls(), ElementsAre("b.Set 2 1", "b.Command 3 state 7", "b.Command 5 state 0"));
}

TEST(CVqAbstractToolbarById, EnablingReachesTheControl)
{
    WalkedBar bar(EToolbarType::Main);
    const vq_uint64 id = bar.b.GetControlID();

    EXPECT_TRUE(bar.bar.IsControlEnabled(id));
    EXPECT_EQ(bar.bar.EnableControl(id, false), 0);

    EXPECT_FALSE(bar.bar.IsControlEnabled(id));
    EXPECT_FALSE(bar.b.IsEnabled());
}

TEST(CVqAbstractToolbarById, IndexDataAndResultArePassedOn)
{
    TestToolbar bar(EToolbarType::Fixed);
    vq_uint64 id = 0;
    bar.AddControl(*new RefusingControl("x", bar.m_calls), id);
    bar.TakeCalls();
    CVqStringW text(VQ_TEXT("Open"));
    int value = 42;

    EXPECT_EQ(bar.SetControlState(id, vq_control_text, 3, &text), RefusingControl::Result);
    EXPECT_EQ(bar.GetControlState(id, vq_control_value, 0, &value), RefusingControl::Result);
    EXPECT_EQ(bar.ControlCommand(id, vq_control_delete_state, 7, nullptr), RefusingControl::Result);
    EXPECT_EQ(bar.EnableControl(id, false), RefusingControl::Result);

    EXPECT_EQ(value, 0);
    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("x.Set 258 state 3 \"Open\"", "x.Command 3 state 7", "x.Enable 0"));
}

TEST(CVqAbstractToolbarById, UnknownIdentifiersFail)
{
    WalkedBar bar(EToolbarType::Main);
    int value = 42;

    for (const vq_uint64 id : {vq_uint64(0), vq_uint64(4711)}) {
        EXPECT_EQ(bar.bar.GetControl(id), nullptr);
        EXPECT_EQ(bar.bar.SetControlState(id, vq_control_check, 0, &value), -9);
        EXPECT_EQ(bar.bar.GetControlState(id, vq_control_check, 0, &value), -9);
        EXPECT_EQ(bar.bar.ControlCommand(id, vq_control_clear_states, 0, nullptr), -9);
        EXPECT_EQ(bar.bar.EnableControl(id, false), -9);
        EXPECT_FALSE(bar.bar.IsControlEnabled(id));
    }
    EXPECT_EQ(value, 42);
}

// By name ------------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarByName, NamesAreComparedUnitByUnit)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");
    RecordingControl& open = bar.Add("Open");

    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("Open")), &open);
    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("OPEN")), nullptr);
    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("Ope")), nullptr);
    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("Opens")), nullptr);
}

TEST(CVqAbstractToolbarByName, FirstOfSeveralIsFound)
{
    TestToolbar bar(EToolbarType::Fixed);
    RecordingControl& first = bar.Add("open");
    bar.Add("open");

    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("open")), &first);
}

TEST(CVqAbstractToolbarByName, ControlsWithoutANameAreNotFound)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.Add("");
    bar.m_pControls->Append(nullptr);
    RecordingControl& open = bar.Add("open");

    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("")), nullptr);
    EXPECT_EQ(bar.GetControlByName(nullptr), nullptr);
    EXPECT_EQ(bar.GetControlByName(VQ_TEXT("open")), &open);
}

TEST(CVqAbstractToolbarByName, PickerIsNeverFound)
{
    WalkedBar bar(EToolbarType::Main);
    PickedBar picked;

    EXPECT_EQ(bar.bar.GetControlByName(VQ_TEXT("picker")), nullptr);
    EXPECT_EQ(picked.bar.GetControlByName(VQ_TEXT("picker")), nullptr);
}

TEST(CVqAbstractToolbarByName, LastControlOfOtherTypesIsFound)
{
    WalkedBar bar(EToolbarType::Fixed);

    EXPECT_EQ(bar.bar.GetControlByName(VQ_TEXT("c")), &bar.c);
}

TEST(CVqAbstractToolbarByName, InAPickerTheSearchStartsAtTheBoundary)
{
    PickedBar picked;

    EXPECT_EQ(picked.bar.GetControlByName(VQ_TEXT("a")), nullptr);
    EXPECT_EQ(picked.bar.GetControlByName(VQ_TEXT("c")), &picked.main.c);
}
