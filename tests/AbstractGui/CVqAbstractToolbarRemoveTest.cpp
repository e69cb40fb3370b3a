#include "tests/AbstractGui/ThreeControls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using OwnedControl = std::unique_ptr<RecordingControl>;

}

// RemoveControl ------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarRemove, ControlLeavesListAndMapDestroyedButNotDeleted)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.b);
    const vq_uint64 id = three.b.GetControlID();
    three.bar.m_bLayoutDirty = false;

    EXPECT_EQ(three.bar.RemoveControl(three.b), 0);

    EXPECT_EQ(three.bar.Order(), "a c |picker");
    EXPECT_EQ(three.bar.GetControl(id), nullptr);
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("b.DestroyUI"));
    EXPECT_TRUE(three.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarRemove, ControlAtTheBoundaryMovesItOnAndThePickerIsTold)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.b);
    three.bar.SetBoundary(three.b);

    EXPECT_EQ(three.bar.RemoveControl(three.b), 0);

    EXPECT_EQ(three.bar.Order(), "a |c picker");
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("picker.Set 2306 c", "b.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, LastControlInThePickerMakesThePickerTheBoundary)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.c);
    three.bar.SetBoundary(three.c);

    EXPECT_EQ(three.bar.RemoveControl(three.c), 0);

    EXPECT_EQ(three.bar.Order(), "a b |picker");
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("picker.Set 2306 picker", "c.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, ControlBehindTheBoundaryLeavesItAndTellsNobody)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.c);
    three.bar.SetBoundary(three.b);

    EXPECT_EQ(three.bar.RemoveControl(three.c), 0);

    EXPECT_EQ(three.bar.Order(), "a |b picker");
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("c.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, OtherTypesMoveABoundaryOnAndTellNobody)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.b);
    three.bar.SetBoundary(three.b);
    three.bar.ChangeToolbarType(EToolbarType::Fixed, false);

    EXPECT_EQ(three.bar.RemoveControl(three.b), 0);

    EXPECT_EQ(three.bar.Order(), "a |c picker");
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("b.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, PickerItselfCanBeTakenOut)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl picker(&three.bar.ThePicker());

    EXPECT_EQ(three.bar.RemoveControl(*picker), 0);

    EXPECT_EQ(three.bar.Order(), "a b c");
    EXPECT_EQ(three.bar.m_pBoundary, nullptr);
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("picker.Set 2306 null", "picker.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, LastNodeWithoutAControlIsToldNothing)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.b);
    three.bar.SetBoundary(three.b);
    three.bar.m_pControls->Append(nullptr);

    EXPECT_EQ(three.bar.RemoveControl(three.b), 0);

    EXPECT_EQ(three.bar.Order(), "a |c picker -");
    EXPECT_THAT(three.bar.TakeCalls(), ElementsAre("b.DestroyUI"));
}

TEST(CVqAbstractToolbarRemove, AbsentControlIsRefusedButAnEqualIdentifierLeavesTheMap)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl absent(three.bar.Make("x"));
    three.bar.m_pControlIds->insert_or_assign(absent->GetControlID(), &three.a);
    three.bar.m_bLayoutDirty = false;

    EXPECT_EQ(three.bar.RemoveControl(*absent), -9);

    EXPECT_EQ(three.bar.GetControl(absent->GetControlID()), nullptr);
    EXPECT_EQ(three.bar.GetIdCount(), 3);
    EXPECT_EQ(three.bar.Order(), "a b c |picker");
    EXPECT_THAT(three.bar.TakeCalls(), IsEmpty());
    EXPECT_FALSE(three.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarRemove, MapEntryGoesEvenWithoutAList)
{
    TestToolbar bar(EToolbarType::Fixed);
    const OwnedControl control(bar.Make("x"));
    bar.m_pControlIds->insert_or_assign(control->GetControlID(), control.get());
    const std::unique_ptr<CVqList> list(bar.m_pControls);
    bar.m_pControls = nullptr;

    EXPECT_EQ(bar.RemoveControl(*control), -9);

    EXPECT_EQ(bar.GetIdCount(), 0);
    bar.m_pControls = new CVqList;
}

TEST(CVqAbstractToolbarRemove, ToolbarInAPickerDoesNothing)
{
    TestToolbar main(EToolbarType::Main);
    RecordingControl& control = main.Add("a");
    TestToolbar bar = TestToolbar::InPickerOf(main);
    bar.m_bLayoutDirty = false;

    EXPECT_EQ(bar.RemoveControl(control), 0);

    EXPECT_EQ(main.Order(), "a |picker");
    EXPECT_EQ(main.GetControl(control.GetControlID()), &control);
    EXPECT_THAT(main.TakeCalls(), IsEmpty());
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

// Renamed controls ---------------------------------------------------------------------------------------

namespace {

void rename(IVqUIcontrol& control, const vq_wchar* name)
{
    CVqStringW text(name);
    control.Set(262, 0, &text);
}

constexpr const vq_wchar* g_long_name = VQ_TEXT("a name that is too long for the place of the short one");

}

TEST(CVqAbstractToolbarRenamed, MapKeepsTheOldIdentifierAndDoesNotKnowTheNewOne)
{
    ThreeControls three(EToolbarType::Main);
    const vq_uint64 old_id = three.b.GetControlID();

    rename(three.b, g_long_name);

    ASSERT_NE(three.b.GetControlID(), old_id);
    EXPECT_EQ(three.bar.GetControl(old_id), &three.b);
    EXPECT_EQ(three.bar.GetControl(three.b.GetControlID()), nullptr);
    EXPECT_EQ(three.bar.GetControlByName(g_long_name), &three.b);
    EXPECT_EQ(three.bar.GetIdCount(), 3);
}

TEST(CVqAbstractToolbarRenamed, ControlThatIsTakenOutLeavesNoIdentifierBehind)
{
    ThreeControls three(EToolbarType::Main);
    const OwnedControl removed(&three.b);
    const vq_uint64 old_id = three.b.GetControlID();
    rename(three.b, g_long_name);

    EXPECT_EQ(three.bar.RemoveControl(three.b), 0);

    EXPECT_EQ(three.bar.GetControl(old_id), nullptr);
    EXPECT_EQ(three.bar.GetIdCount(), 2);
}

TEST(CVqAbstractToolbarRenamed, IdentifierThatComesAgainBelongsToTheNewControl)
{
    ThreeControls three(EToolbarType::Main);
    RecordingControl* control = three.bar.Make("x");
    three.bar.m_pControlIds->insert_or_assign(control->GetControlID(), &three.a);
    vq_uint64 id = 0;

    three.bar.AddControl(*control, id);

    EXPECT_EQ(three.bar.GetControl(id), control);
}

// RemoveAllControls --------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarRemoveAll, PickerSurvivesAndIsTheBoundary)
{
    ThreeControls three(EToolbarType::Main);
    three.bar.SetBoundary(three.b);

    EXPECT_EQ(three.bar.RemoveAllControls(), 0);

    EXPECT_EQ(three.bar.Order(), "|picker");
    EXPECT_EQ(three.bar.GetFirstNode(), nullptr);
    EXPECT_EQ(three.bar.GetIdCount(), 0);
    EXPECT_THAT(three.bar.TakeCalls(),
                ElementsAre("a.DestroyUI", "a.Delete", "b.DestroyUI", "b.Delete", "c.DestroyUI", "c.Delete",
                            "picker.Set 2306 picker"));
}

TEST(CVqAbstractToolbarRemoveAll, OtherTypesAreEmptyThen)
{
    ThreeControls three(EToolbarType::Fixed);
    three.bar.SetBoundary(three.b);

    EXPECT_EQ(three.bar.RemoveAllControls(), 0);

    EXPECT_EQ(three.bar.Order(), "");
    EXPECT_EQ(three.bar.GetIdCount(), 0);
    EXPECT_NE(three.bar.m_pControls, nullptr);
    EXPECT_EQ(three.bar.m_pBoundary, nullptr);
}

TEST(CVqAbstractToolbarRemoveAll, LayoutFlagIsLeftAsItIs)
{
    ThreeControls three(EToolbarType::Main);
    three.bar.m_bLayoutDirty = false;

    three.bar.RemoveAllControls();
    EXPECT_FALSE(three.bar.m_bLayoutDirty);

    three.bar.m_bLayoutDirty = true;
    three.bar.RemoveAllControls();
    EXPECT_TRUE(three.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarRemoveAll, ToolbarInAPickerDoesNothing)
{
    TestToolbar main(EToolbarType::Main);
    main.Add("a");
    TestToolbar bar = TestToolbar::InPickerOf(main);

    EXPECT_EQ(bar.RemoveAllControls(), 0);

    EXPECT_EQ(main.Order(), "a |picker");
    EXPECT_THAT(main.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarRemoveAll, EmptyMainToolbarWithoutPickerStaysEmpty)
{
    TestToolbar bar(EToolbarType::Main, TestToolbar::Picker::None);

    EXPECT_EQ(bar.RemoveAllControls(), 0);

    EXPECT_EQ(bar.Order(), "");
}
