#include "tests/AbstractGui/WalkedBars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

// Walking ------------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarWalk, MainToolbarShowsAllButThePicker)
{
    WalkedBar bar(EToolbarType::Main);

    EXPECT_EQ(bar.bar.Walk(), "a b c");
}

TEST(CVqAbstractToolbarWalk, BoundaryDoesNotEndTheWalkOfAMainToolbar)
{
    WalkedBar bar(EToolbarType::Main);
    bar.bar.SetBoundary(bar.b);

    EXPECT_EQ(bar.bar.Walk(), "a b c");
}

TEST(CVqAbstractToolbarWalk, OtherTypesShowEveryControl)
{
    WalkedBar bar(EToolbarType::Fixed);

    EXPECT_EQ(bar.bar.Walk(), "a b c");
}

TEST(CVqAbstractToolbarWalk, ToolbarInAPickerStartsAtTheBoundaryAndDoesNotShowThePicker)
{
    PickedBar picked;

    EXPECT_EQ(picked.bar.Walk(), "b c");
}

TEST(CVqAbstractToolbarWalk, NothingIsShownWhenThereIsOnlyAPicker)
{
    TestToolbar main(EToolbarType::Main);
    TestToolbar picked = TestToolbar::InPickerOf(main);

    EXPECT_EQ(main.GetFirstNode(), nullptr);
    EXPECT_EQ(picked.GetFirstNode(), nullptr);
}

TEST(CVqAbstractToolbarWalk, OneControlOfAnotherTypeIsShownAlthoughItIsTheLast)
{
    TestToolbar bar(EToolbarType::Hosted);
    bar.Add("a");

    EXPECT_EQ(bar.Walk(), "a");
}

TEST(CVqAbstractToolbarWalk, EmptyListHasNoFirstNode)
{
    TestToolbar bar(EToolbarType::Fixed);

    EXPECT_EQ(bar.GetFirstNode(), nullptr);
}

TEST(CVqAbstractToolbarWalk, NodeWithoutAControlGivesNullAndTheWalkGoesOn)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.Add("a");
    bar.m_pControls->Append(nullptr);
    bar.Add("b");

    EXPECT_EQ(bar.Walk(), "a - b");
}

TEST(CVqAbstractToolbarWalk, NullNodeGivesNull)
{
    WalkedBar bar(EToolbarType::Main);
    CVqList::CVqNode* node = nullptr;

    EXPECT_EQ(bar.bar.GetNextControl(node), nullptr);
    EXPECT_EQ(node, nullptr);
}

// SetFlatStyle -------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarStyle, FlatStyleReachesAllControlsAndThePicker)
{
    WalkedBar bar(EToolbarType::Main);
    bar.bar.SetBoundary(bar.b);

    bar.bar.SetFlatStyle(true);

    EXPECT_THAT(
        bar.bar.TakeCalls(),
        ElementsAre("a.SetFlatStyle 1", "b.SetFlatStyle 1", "c.SetFlatStyle 1", "picker.SetFlatStyle 1"));
}

TEST(CVqAbstractToolbarStyle, ToolbarInAPickerOnlyStoresTheFlatStyle)
{
    PickedBar picked;
    RecordingControl* added = picked.bar.Make("x");
    vq_uint64 id = 0;

    picked.bar.SetFlatStyle(true);

    EXPECT_THAT(picked.main.bar.TakeCalls(), IsEmpty());
    picked.bar.AddControl(*added, id);
    EXPECT_EQ(picked.main.bar.TakeCalls().back(), "x.SetFlatStyle 1");
}

// SetToolbarControlVisibility ----------------------------------------------------------------------------

TEST(CVqAbstractToolbarVisibility, ChangeMakesTheLayoutDirty)
{
    WalkedBar bar(EToolbarType::Main);
    bar.bar.m_bLayoutDirty = false;

    EXPECT_EQ(bar.bar.SetToolbarControlVisibility(bar.b, false), 0);

    EXPECT_THAT(bar.bar.TakeCalls(), ElementsAre("b.SetControlVisibility 0"));
    EXPECT_TRUE(bar.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarVisibility, SameValueIsPassedOnButTheLayoutStaysClean)
{
    WalkedBar bar(EToolbarType::Main);
    bar.bar.m_bLayoutDirty = false;

    EXPECT_EQ(bar.bar.SetToolbarControlVisibility(bar.b, true), 0);

    EXPECT_THAT(bar.bar.TakeCalls(), ElementsAre("b.SetControlVisibility 1"));
    EXPECT_FALSE(bar.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarVisibility, PickerIsInTheListToo)
{
    WalkedBar bar(EToolbarType::Main);

    EXPECT_EQ(bar.bar.SetToolbarControlVisibility(bar.bar.ThePicker(), false), 0);
}

TEST(CVqAbstractToolbarVisibility, ForeignControlIsRefused)
{
    WalkedBar bar(EToolbarType::Main);
    const std::unique_ptr<RecordingControl> foreign(bar.bar.Make("x"));
    bar.bar.m_bLayoutDirty = false;

    EXPECT_EQ(bar.bar.SetToolbarControlVisibility(*foreign, false), -9);

    EXPECT_THAT(bar.bar.TakeCalls(), IsEmpty());
    EXPECT_FALSE(bar.bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarVisibility, InAPickerOnlyControlsFromTheBoundaryOnAreFound)
{
    PickedBar picked;

    EXPECT_EQ(picked.bar.SetToolbarControlVisibility(picked.main.a, false), -9);
    EXPECT_EQ(picked.bar.SetToolbarControlVisibility(picked.main.c, false), 0);

    EXPECT_THAT(picked.main.bar.TakeCalls(), ElementsAre("c.SetControlVisibility 0"));
}
