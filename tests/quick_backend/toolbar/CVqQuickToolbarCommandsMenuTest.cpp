#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "system/CVqVariant.h"
#include "tests/quick_backend/toolbar/CommandsFixture.h"

namespace {

class CVqQuickToolbarCommandsMenuTest : public CommandsFixture
{ };

}

// Which item -------------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsMenuTest, ACommandThatTheMenuDoesNotHaveIsLeftAlone)
{
    CVqQuickControl& other = Bound(VQ_TEXT("Other"));
    int checked = 1;
    other.Enable(false);
    other.Set(vq_control_check, 0, &checked);

    menu->EnableId(2, false);
    bar.SetMenu(nullptr);

    EXPECT_FALSE(other.IsEnabledNow());
    EXPECT_TRUE(other.IsChecked());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AnItemThatComesLaterBindsItsButtons)
{
    const CVqQuickControl& late = Bound(VQ_TEXT("Late"));

    menu->AppendMenuItem(9, 4, VQ_TEXT("&Late\aF5"), VQ_TEXT("Late"), 0);
    menu->EnableId(9, false);

    EXPECT_EQ(late.KeyText(), QStringLiteral("F5"));
    EXPECT_FALSE(late.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AnItemInAPopupThatComesLaterBindsItsButtons)
{
    const CVqQuickControl& late = Bound(VQ_TEXT("Late"));

    menu->AppendPopup(8, 4, VQ_TEXT("&More"));
    menu->AppendMenuItem(9, 8, VQ_TEXT("&Late"), VQ_TEXT("Late"), 0);
    menu->CheckId(9, true);

    EXPECT_TRUE(late.IsChecked());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AButtonWhoseItemGoesIsAsNew)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    menu->CheckId(2, true);
    menu->EnableId(2, false);
    Item(2).setRemoved(true);

    menu->DeleteId(2);

    EXPECT_TRUE(open.IsEnabledNow());
    EXPECT_TRUE(open.IsShown());
    EXPECT_FALSE(open.IsChecked());
    EXPECT_FALSE(open.IsCheckable());
    EXPECT_EQ(open.KeyText(), QString());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AButtonMadeCheckableByItsApplicationStaysSo)
{
    CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    open.SetCheckable(true);
    menu->CheckId(2, true);

    menu->DeleteId(2);

    EXPECT_TRUE(open.IsCheckable());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AWholePopupTakesItsItemsAlong)
{
    const CVqQuickControl& one = Bound(VQ_TEXT("One"));
    menu->EnableId(5, false);

    menu->DeleteId(1);

    EXPECT_TRUE(one.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AnEmptiedMenuLeavesItsButtons)
{
    const CVqQuickControl& one = Bound(VQ_TEXT("One"));
    menu->EnableId(5, false);

    menu->DeleteAll();

    EXPECT_TRUE(one.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, OfSeveralItemsTheFirstInReadingOrderCounts)
{
    const CVqQuickControl& grid = Bound(VQ_TEXT("Grid"));
    menu->AppendMenuItem(9, 4, VQ_TEXT("&Grid"), VQ_TEXT("Grid"), 0);

    menu->EnableId(7, false);
    EXPECT_TRUE(grid.IsEnabledNow());
    menu->EnableId(9, false);
    EXPECT_FALSE(grid.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, WhenTheFirstItemGoesTheNextOneCounts)
{
    CVqQuickControl& grid = Bound(VQ_TEXT("Grid"));
    menu->AppendMenuItem(9, 4, VQ_TEXT("&Grid"), VQ_TEXT("Grid"), 0);
    menu->EnableId(7, false);

    menu->DeleteId(9);

    EXPECT_FALSE(grid.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, PopupsAndSeparatorsStandForNoButton)
{
    const CVqQuickControl& file = Bound(VQ_TEXT("File"));

    menu->SetIdCommand(1, VQ_TEXT("File"));
    menu->EnableId(1, false);

    EXPECT_TRUE(file.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AnItemThatGetsAnotherCommandChangesItsButtons)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    const CVqQuickControl& close = Bound(VQ_TEXT("Close"));
    menu->EnableId(2, false);

    menu->SetIdCommand(2, VQ_TEXT("Close"));

    EXPECT_TRUE(open.IsEnabledNow());
    EXPECT_FALSE(close.IsEnabledNow());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, ALoadedAndARecreatedMenuBindAgain)
{
    const CVqQuickControl& one = Bound(VQ_TEXT("One"));
    CVqVariant tree;
    menu->Save(tree);
    menu->DeleteAll();

    menu->Load(tree);
    menu->EnableId(5, false);
    EXPECT_FALSE(one.IsEnabledNow());

    menu->RecreatePopup(0);
    menu->EnableId(5, true);
    EXPECT_TRUE(one.IsEnabledNow());
}

// Menus come and go ------------------------------------------------------------------------------------

TEST_F(CVqQuickToolbarCommandsMenuTest, AMenuThatIsSetLaterBindsWhatIsThere)
{
    CVqQuickButtonToolbar late(VQ_TEXT("late"));
    const vq_uint64 id = late.AddButton(VQ_TEXT("open"));
    late.SetCommandOnButton(id, 0, VQ_TEXT("Open"));
    menu->EnableId(2, false);

    late.SetMenu(menu.get());

    EXPECT_FALSE(late.IsEnabled(id));
    EXPECT_EQ(late.Menu(), menu.get());
}

TEST_F(CVqQuickToolbarCommandsMenuTest, AnotherMenuTakesOver)
{
    const CVqQuickControl& open = Bound(VQ_TEXT("Open"));
    CVqQuickMenu other;
    other.AppendPopup(1, 0, VQ_TEXT("&File"));
    other.AppendMenuItem(2, 1, VQ_TEXT("&Open\aF2"), VQ_TEXT("Open"), 0);

    bar.SetMenu(&other);
    menu->EnableId(2, false);

    EXPECT_TRUE(open.IsEnabledNow());
    EXPECT_EQ(open.KeyText(), QStringLiteral("F2"));
    bar.SetMenu(nullptr);
}

TEST_F(CVqQuickToolbarCommandsMenuTest, WithoutItsMenuAButtonIsAsNew)
{
    const vq_uint64 id = Add(VQ_TEXT("open"), VQ_TEXT("Open"));
    menu->EnableId(2, false);
    const QSignalSpy told(&bar, &CVqQuickButtonToolbar::triggered);

    menu.reset();
    Trigger(id);

    EXPECT_EQ(bar.Menu(), nullptr);
    EXPECT_TRUE(Control(id).IsEnabledNow());
    EXPECT_EQ(told.size(), 1);
}

TEST_F(CVqQuickToolbarCommandsMenuTest, TheToolbarMayGoFirst)
{
    auto first = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("first"));
    first->SetCommandOnButton(first->AddButton(VQ_TEXT("open")), 0, VQ_TEXT("Open"));
    first->SetMenu(menu.get());

    first.reset();

    EXPECT_EQ(menu->EnableId(2, false), 0);
}
