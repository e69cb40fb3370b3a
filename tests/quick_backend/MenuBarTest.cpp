#include "tests/quick_backend/MenuWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MenuBar : public testing::Test
{
protected:
    void SetUp() override { FillMenu(window.Menu()); }

    void FocusField() { window.Find(QStringLiteral("field"))->forceActiveFocus(); }
    bool FieldHasFocus() { return window.Find(QStringLiteral("field"))->hasActiveFocus(); }

    MenuWindow window;
};

}

TEST_F(MenuBar, ShowsTheTopLevelOfTheMenu)
{
    ASSERT_TRUE(window.BarItem(0) && window.BarItem(1) && window.BarItem(2));

    EXPECT_LT(window.BarItem(0)->x(), window.BarItem(1)->x());
    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, AltAndAMnemonicOpensThePopupWithItsFirstRow)
{
    window.Type('f', Qt::AltModifier);

    EXPECT_EQ(window.Path(), "File/Open");
}

TEST_F(MenuBar, AltAndAnUnknownLetterOpensNothing)
{
    window.Type('x', Qt::AltModifier);

    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, AltAloneGivesItTheKeyboardAndTakesItAgain)
{
    window.PressAltAlone();

    EXPECT_EQ(window.Path(), "File");

    window.PressAltAlone();

    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, AltWithAClickDoesNotGiveItTheKeyboard)
{
    QTest::keyPress(&window.Window(), Qt::Key_Alt);
    window.ClickAt({300, 250});
    QTest::keyRelease(&window.Window(), Qt::Key_Alt);

    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, F10GivesItTheKeyboard)
{
    window.Press(Qt::Key_F10);

    EXPECT_EQ(window.Path(), "File");
}

TEST_F(MenuBar, ArrowsWalkAndGoRoundTheEnds)
{
    window.Press(Qt::Key_F10);
    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Path(), "Help");

    window.Press(Qt::Key_Right);
    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "Edit");

    window.Press(Qt::Key_End);
    EXPECT_EQ(window.Path(), "Help");

    window.Press(Qt::Key_Home);
    EXPECT_EQ(window.Path(), "File");
}

TEST_F(MenuBar, DownAndALetterOpenAPopup)
{
    window.Press(Qt::Key_F10);
    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Path(), "File/Open");

    window.Press(Qt::Key_Escape);
    window.Type('e');
    EXPECT_EQ(window.Path(), "Edit/Undo");
}

TEST_F(MenuBar, RightAndLeftGoFromPopupToPopup)
{
    window.Type('f', Qt::AltModifier);

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "Edit/Undo");

    window.Press(Qt::Key_Left);
    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Path(), "Help/About");
}

TEST_F(MenuBar, EscapeGoesBackOneLevelAtATime)
{
    FocusField();
    window.Type('f', Qt::AltModifier);

    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Path(), "File");
    EXPECT_TRUE(window.Menu().IsTracking());

    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Path(), "");
    EXPECT_FALSE(window.Menu().IsTracking());
    EXPECT_TRUE(FieldHasFocus());
}

TEST_F(MenuBar, EnterFiresOnceAndGivesTheFocusBack)
{
    FocusField();
    window.Type('e', Qt::AltModifier);
    window.Press(Qt::Key_Down);
    window.Press(Qt::Key_Return);

    EXPECT_THAT(window.Fired(), ElementsAre(12u));
    EXPECT_EQ(window.Path(), "");
    EXPECT_TRUE(FieldHasFocus());
}

TEST_F(MenuBar, AClickOpensAndASecondOneCloses)
{
    window.Click(window.BarItem(1));
    EXPECT_EQ(window.Path(), "Edit/");

    window.Click(window.BarItem(1));
    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, WhileOpenThePointerOpensWhatItIsOver)
{
    window.Click(window.BarItem(0));

    window.Hover(window.BarItem(2));

    EXPECT_EQ(window.Path(), "Help/");
}

TEST_F(MenuBar, APressElsewhereClosesEverything)
{
    window.Type('f', Qt::AltModifier);

    window.ClickAt({390, 290});

    EXPECT_EQ(window.Path(), "");
    EXPECT_FALSE(window.Menu().IsTracking());
    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(MenuBar, ACommandInTheBarFires)
{
    window.Menu().AppendMenuItem(30, 0, VQ_TEXT("&Go"), VQ_TEXT("Go"), 0);

    window.Type('g', Qt::AltModifier);
    window.Click(window.BarItem(3));

    EXPECT_THAT(window.Fired(), ElementsAre(30u, 30u));
}

TEST_F(MenuBar, AGrayedPopupDoesNotOpen)
{
    window.Menu().EnableId(10, false);

    window.Type('e', Qt::AltModifier);
    window.Click(window.BarItem(1));

    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, FollowsTheMenu)
{
    window.Menu().SetIdMenuString(10, VQ_TEXT("&Change"));
    window.Menu().DeleteId(1);

    EXPECT_EQ(window.BarItem(0)->property("accessibleName"), QStringLiteral("Change"));
    EXPECT_EQ(window.BarItem(2), nullptr);
}

TEST_F(MenuBar, EnterMenuOpensWhatTheLetterPicks)
{
    window.Menu().EnterMenu(VQ_TEXT('h'));
    EXPECT_EQ(window.Path(), "Help/About");

    window.Press(Qt::Key_Escape);
    window.Press(Qt::Key_Escape);
    window.Menu().UnrollPopup(10);
    EXPECT_EQ(window.Path(), "File");
}

TEST_F(MenuBar, AnEmptyPopupDoesNotOpenAndClosesTheOneBefore)
{
    window.Menu().DeleteAllIn(10);
    window.Type('f', Qt::AltModifier);

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "Edit");

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "Help");
}

TEST_F(MenuBar, AChangedBarPutsEverythingAway)
{
    window.Type('e', Qt::AltModifier);
    window.Menu().DeleteId(1);
    EXPECT_EQ(window.Path(), "");

    window.Type('e', Qt::AltModifier);
    window.Menu().AppendPopup(40, 0, VQ_TEXT("More"));
    EXPECT_EQ(window.Path(), "");
    EXPECT_FALSE(window.Menu().IsTracking());
}

TEST_F(MenuBar, PressDragAndLetGoOnARowFiresOnce)
{
    window.PressOn(window.BarItem(1));
    ASSERT_EQ(window.Path(), "Edit/");

    window.DragTo(window.Row(1));
    EXPECT_EQ(window.Path(), "Edit/Copy");

    window.LetGo(window.Row(2));
    EXPECT_THAT(window.Fired(), ElementsAre(13u));
    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuBar, ADragOverTheBarOpensWhatItIsOver)
{
    window.PressOn(window.BarItem(0));

    window.DragTo(window.BarItem(1));
    EXPECT_EQ(window.Path(), "Edit/");

    window.LetGo(window.BarItem(1));
    EXPECT_EQ(window.Path(), "Edit/");
}

TEST_F(MenuBar, ADragIntoASecondLevelFiresThere)
{
    window.PressOn(window.BarItem(0));

    window.DragTo(window.Row(3));
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.OpenLists().size() == 2; }));
    window.DragTo(window.Row(0));
    window.LetGo(window.Row(0));

    EXPECT_THAT(window.Fired(), ElementsAre(6u));
}

TEST_F(MenuBar, LetGoOnAGrayedRowOrElsewhereFiresNothing)
{
    window.PressOn(window.BarItem(0));
    window.DragTo(window.Row(1));
    window.LetGo(window.Row(1));
    EXPECT_EQ(window.Path(), "File/");
    window.Click(window.BarItem(0));

    QQuickItem* field = window.Find(QStringLiteral("field"));
    window.PressOn(window.BarItem(0));
    window.DragTo(field);
    window.LetGo(field);

    EXPECT_EQ(window.Path(), "");
    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST(MenuBarWithShortcuts, KeysOfTheOpenMenuGoBeforeShortcutsOfTheWindow)
{
    MenuWindow window("Shortcut { sequence: \"C\"; onActivated: console.warn(sequence) }");
    FillMenu(window.Menu());

    window.Type('e', Qt::AltModifier);
    window.Type('c');

    EXPECT_THAT(window.Fired(), ElementsAre(12u));
}

TEST(MenuBarMirrored, RightToLeftTurnsPlacesAndArrowsRound)
{
    MenuWindow window("LayoutMirroring.enabled: true");
    FillMenu(window.Menu());

    window.Press(Qt::Key_F10);
    window.Press(Qt::Key_Left);

    EXPECT_GT(window.BarItem(0)->mapToScene({}).x(), window.BarItem(1)->mapToScene({}).x());
    EXPECT_EQ(window.Path(), "Edit");
}

TEST(MenuBarMirrored, PopupsHangFromTheRightAndOpenToTheLeft)
{
    MenuWindow window("LayoutMirroring.enabled: true");
    FillMenu(window.Menu());
    window.Settle();
    window.Type('f', Qt::AltModifier);
    window.Press(Qt::Key_End);

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Path(), "File/Recent/one");
    EXPECT_LT(window.OpenLists()[1]->mapToScene({}).x(), window.OpenLists()[0]->mapToScene({}).x());

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "File/Recent");
    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "Help/About");
}
