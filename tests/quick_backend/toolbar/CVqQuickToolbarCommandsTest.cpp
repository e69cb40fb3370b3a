#include "AbstractGui/VqHiddenMenuCommands.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "tests/quick_backend/toolbar/CommandsFixture.h"

namespace {

class CVqQuickToolbarCommandsTest : public CommandsFixture
{ };

}

// What an item says ------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsTest, AButtonIsEnabledAsItsItemIs)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));

    menu->EnableId(2, false);
    EXPECT_FALSE(open.IsEnabledNow());
    menu->EnableId(2, true);
    EXPECT_TRUE(open.IsEnabledNow());
    menu->GrayId(2, true);
    EXPECT_FALSE(open.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonBelowADisabledPopupIsDisabled)
{
    const CVqQuickControl& one = Bound(VQ_TEXT("One"));

    menu->EnableId(1, false);
    EXPECT_FALSE(one.IsEnabledNow());

    menu->EnableId(1, true);
    EXPECT_TRUE(one.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonIsCheckedAsItsItemIsAndCheckableFromThenOn)
{
    const CVqQuickControl& grid = Bound(VQ_TEXT("Grid"));
    EXPECT_FALSE(grid.IsCheckable());

    menu->CheckId(7, true);
    EXPECT_TRUE(grid.IsChecked());

    menu->CheckId(7, false);
    EXPECT_FALSE(grid.IsChecked());
    EXPECT_TRUE(grid.IsCheckable());
}

TEST_F(CVqQuickToolbarCommandsTest, RadioItemsMakeCheckableButtons)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    const CVqQuickControl& save = Bound(VQ_TEXT("Save"));

    menu->CheckRadioId(3, 2, 3);

    EXPECT_TRUE(open.IsCheckable());
    EXPECT_FALSE(open.IsChecked());
    EXPECT_TRUE(save.IsChecked());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonHasTheKeyOfItsItem)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    EXPECT_EQ(open.KeyText(), QStringLiteral("Ctrl+O"));

    menu->SetIdAccelKey(2, 18, VQ_TEXT('P'), false);
    EXPECT_EQ(open.KeyText(), QStringLiteral("Ctrl+P"));
}

TEST_F(CVqQuickToolbarCommandsTest, AllKeysFollowWhenTheTablesAreSwapped)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    CVqAccelerators main;
    CVqAccelerators second;

    menu->SwapAccels(main, second);

    EXPECT_EQ(open.KeyText(), QString());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonIsHiddenWithItsItem)
{
    CVqQuickControl& open = Bound(VQ_TEXT("Open"));

    Item(2).setRemoved(true);
    EXPECT_FALSE(open.IsShown());
    Item(2).setRemoved(false);
    EXPECT_TRUE(open.IsShown());
    Item(2).setDeleted(true);
    EXPECT_FALSE(open.IsShown());
    EXPECT_TRUE(open.GetControlVisibility());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonOfAHiddenCommandIsHidden)
{
    menu->AppendPopup(12300, 0, VQ_TEXT("&Tools"));
    menu->AppendMenuItem(20, 12300, VQ_TEXT("&Cut"), VQ_TEXT("Cut(1)"), 0);
    const CVqQuickControl& cut = Bound(VQ_TEXT("Cut(1)"));
    VQ_SetMenuCommandAsHidden(VQ_TEXT("owner"), VQ_TEXT("Cut"), true);

    menu->RemoveHiddenInPopup(0, VQ_TEXT("owner"));

    EXPECT_FALSE(cut.IsShown());
    VQ_SetMenuCommandAsHidden(VQ_TEXT("owner"), VQ_TEXT("Cut"), false);
}

TEST_F(CVqQuickToolbarCommandsTest, ADeletedPopupHidesTheButtonsBelowAndARemovedOneDoesNot)
{
    const CVqQuickControl& one = Bound(VQ_TEXT("One"));

    Item(1).setRemoved(true);
    EXPECT_TRUE(one.IsShown());
    EXPECT_TRUE(one.IsEnabledNow());

    Item(1).setDeleted(true);
    EXPECT_FALSE(one.IsShown());
    EXPECT_FALSE(one.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsTest, AUsersOwnHidingSurvivesTheItem)
{
    CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    open.SetControlVisibility(false);

    Item(2).setRemoved(true);
    Item(2).setRemoved(false);

    EXPECT_FALSE(open.IsShown());
}

TEST_F(CVqQuickToolbarCommandsTest, ASeparatorBesideAHiddenCommandGoes)
{
    Bound(VQ_TEXT("Open"));
    bar.AppendSeparator(nullptr);
    Bound(VQ_TEXT("Save"));
    EXPECT_EQ(TidiedOrder(), "Open - Save");

    Item(2).setRemoved(true);
    EXPECT_EQ(TidiedOrder(), "(Open) (-) Save");

    Item(2).setRemoved(false);
    EXPECT_EQ(TidiedOrder(), "Open - Save");
}

// Which command ----------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsTest, TheCommandOfTheCurrentStateCounts)
{
    const vq_uint64 id = Add(VQ_TEXT("tool"), VQ_TEXT("Open"));
    CVqQuickControl& tool = Control(id);
    bar.SetStatesCountOnButton(id, 2);
    bar.SetCommandOnButton(id, 1, VQ_TEXT("Save"));
    menu->CheckId(3, true);
    menu->EnableId(2, false);

    tool.setState(1);
    EXPECT_TRUE(tool.IsEnabledNow());
    EXPECT_TRUE(tool.IsChecked());

    tool.setState(0);
    EXPECT_FALSE(tool.IsEnabledNow());
    EXPECT_FALSE(tool.IsChecked());
    EXPECT_FALSE(tool.IsCheckable());
}

TEST_F(CVqQuickToolbarCommandsTest, AButtonThatLosesItsCommandIsAsNew)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("Open"));
    menu->EnableId(2, false);

    bar.SetCommandOnButton(id, 0, VQ_TEXT(""));

    EXPECT_TRUE(Control(id).IsEnabledNow());
    EXPECT_EQ(Control(id).KeyText(), QString());
}

TEST_F(CVqQuickToolbarCommandsTest, AllButtonsOfACommandFollow)
{
    CVqQuickButtonToolbar second(VQ_TEXT("second"));
    second.SetMenu(menu.get());
    const vq_uint64 id = second.AddTextButton(VQ_TEXT("open"));
    second.SetCommandOnButton(id, 0, VQ_TEXT("Open"));
    const CVqQuickControl& first = Bound(VQ_TEXT("Open"));
    const CVqQuickControl& again = Bound(VQ_TEXT("Open"));

    menu->EnableId(2, false);

    EXPECT_FALSE(first.IsEnabledNow());
    EXPECT_FALSE(again.IsEnabledNow());
    EXPECT_FALSE(second.IsEnabled(id));
}

TEST_F(CVqQuickToolbarCommandsTest, OnlyTheButtonsOfAChangedItemAreTouched)
{
    CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    Bound(VQ_TEXT("Save"));
    const QSignalSpy touched(&open, &CVqQuickControl::lookChanged);

    menu->EnableId(3, false);

    EXPECT_EQ(touched.size(), 0);
}

TEST_F(CVqQuickToolbarCommandsTest, ARemovedButtonIsLetGo)
{
    IVqUIcontrol& open = Control(Add(VQ_TEXT("open"), VQ_TEXT("Open")));
    menu->EnableId(2, false);

    bar.Toolbar().RemoveControl(open);
    EXPECT_TRUE(open.IsEnabled());

    menu->EnableId(2, true);
    menu->EnableId(2, false);
    EXPECT_TRUE(open.IsEnabled());
    open.MarkToDeleteItself();
}

// All at once ------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsTest, WhatTheMenuDisablesStaysSoWhenAllAreEnabled)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    const CVqQuickControl& save = Bound(VQ_TEXT("Save"));
    menu->EnableId(2, false);

    bar.EnableAll(false);
    bar.EnableAll(true);

    EXPECT_FALSE(open.IsEnabledNow());
    EXPECT_TRUE(save.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsTest, TheMenuEnablesNothingWhileAllAreDisabled)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));

    bar.EnableAll(false);
    menu->EnableId(2, false);
    menu->EnableId(2, true);

    EXPECT_FALSE(open.IsEnabledNow());
}

// The other direction ----------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsTest, ATriggeredButtonRunsItsItem)
{
    Trigger(Add(VQ_TEXT("one"), VQ_TEXT("One")));

    EXPECT_EQ(ran, 5U);
}

TEST_F(CVqQuickToolbarCommandsTest, ACommandMayEndItsMenu)
{
    menu->SetCmdHandler([this](vq_uint32) { menu.reset(); });
    const vq_uint64 id = Add(VQ_TEXT("one"), VQ_TEXT("One"));

    Trigger(id);

    EXPECT_EQ(bar.Menu(), nullptr);
}

TEST_F(CVqQuickToolbarCommandsTest, AListenerMayRemoveButtonsAtAnyChange)
{
    const vq_uint64 first = Add(VQ_TEXT("first"), VQ_TEXT("Open"));
    const vq_uint64 second = Add(VQ_TEXT("second"), VQ_TEXT("Open"));
    QObject::connect(&Control(first), &CVqAbstractControl::stateChanged, &bar,
                     [this, second] { bar.RemoveButton(second); });

    menu->EnableId(2, false);

    EXPECT_EQ(bar.GetButtonsCount(), 1);
}
