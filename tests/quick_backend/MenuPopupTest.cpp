#include "tests/quick_backend/MenuWindow.h"

#include <QAccessible>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MenuPopup : public testing::Test
{
protected:
    void SetUp() override { FillMenu(window.Menu()); }

    void OpenFile() { window.Type('f', Qt::AltModifier); }

    /// Lets timers without delay and what they set off run.
    bool ComesTo(const std::string& path)
    {
        return QTest::qWaitFor([&] { return window.Path() == path; });
    }

    MenuWindow window;
};

}

TEST_F(MenuPopup, ArrowsSkipGrayedRowsAndSeparatorsAndGoRound)
{
    OpenFile();

    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Path(), "File/Recent");

    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Path(), "File/Open");

    window.Press(Qt::Key_Up);
    EXPECT_EQ(window.Path(), "File/Recent");
}

TEST_F(MenuPopup, HomeEndAndPagesReachTheEnds)
{
    window.Type('e', Qt::AltModifier);

    window.Press(Qt::Key_End);
    EXPECT_EQ(window.Path(), "Edit/Cut");

    window.Press(Qt::Key_Home);
    EXPECT_EQ(window.Path(), "Edit/Undo");

    window.Press(Qt::Key_PageDown);
    EXPECT_EQ(window.Path(), "Edit/Cut");

    window.Press(Qt::Key_PageUp);
    EXPECT_EQ(window.Path(), "Edit/Undo");
}

TEST_F(MenuPopup, RightOpensThreeLevelsAndLeftLeavesThem)
{
    OpenFile();
    window.Press(Qt::Key_End);

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "File/Recent/one");

    window.Press(Qt::Key_Down);
    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Path(), "File/Recent/More/deep");

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Path(), "File/Recent/More");

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Path(), "File/Recent");
}

TEST_F(MenuPopup, RightOnACommandGoesToTheNextPopupOfTheBar)
{
    OpenFile();
    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Right);

    window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Path(), "Edit/Undo");
}

TEST_F(MenuPopup, EscapeLeavesOneLevel)
{
    OpenFile();
    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Return);
    ASSERT_EQ(window.Path(), "File/Recent/one");

    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Path(), "File/Recent");

    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Path(), "File");
}

TEST_F(MenuPopup, ACommandThreeLevelsDownFiresOnceAndPutsEverythingAway)
{
    OpenFile();
    window.Type('r');
    window.Type('m');
    ASSERT_EQ(window.Path(), "File/Recent/More/deep");

    window.Press(Qt::Key_Space);

    EXPECT_THAT(window.Fired(), ElementsAre(8u));
    EXPECT_EQ(window.Path(), "");
    EXPECT_FALSE(window.Menu().IsTracking());
}

TEST_F(MenuPopup, AUniqueMnemonicFires)
{
    window.Type('e', Qt::AltModifier);

    window.Type('C');

    EXPECT_THAT(window.Fired(), ElementsAre(12u));
}

TEST_F(MenuPopup, ASharedMnemonicWalksOverItsRows)
{
    window.Menu().AppendMenuItem(14, 10, VQ_TEXT("&Check"), VQ_TEXT("Check"), 0);
    CVqMenuItem* check = window.Menu().Manipulators().find_item(14u, window.Menu().getRootMenuItem());
    check->setMnemonic(VQ_TEXT('C'));
    window.Type('e', Qt::AltModifier);

    window.Type('c');
    EXPECT_EQ(window.Path(), "Edit/Copy");

    window.Type('c');
    EXPECT_EQ(window.Path(), "Edit/Check");
    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(MenuPopup, TheMnemonicOfAGrayedRowDoesNothing)
{
    OpenFile();

    window.Type('s');

    EXPECT_EQ(window.Path(), "File/Open");
    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(MenuPopup, AltPutsEverythingAway)
{
    OpenFile();
    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Right);

    window.PressAltAlone();

    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuPopup, KeysOfTheTablesRestWhileItIsOpen)
{
    OpenFile();

    window.Press(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(MenuPopup, AClickFiresOnce)
{
    window.Click(window.BarItem(1));

    window.Click(window.Row(2));

    EXPECT_THAT(window.Fired(), ElementsAre(13u));
    EXPECT_EQ(window.Path(), "");
}

TEST_F(MenuPopup, APressThatIsDraggedToAnotherRowFiresThatOne)
{
    window.Click(window.BarItem(1));

    window.PressOn(window.Row(0));
    window.DragTo(window.Row(2));
    EXPECT_EQ(window.Path(), "Edit/Cut");

    window.LetGo(window.Row(2));
    EXPECT_THAT(window.Fired(), ElementsAre(13u));
}

TEST_F(MenuPopup, AnIdentifierBeyond31BitsFires)
{
    window.Menu().AppendMenuItem(0xFFFFFFF0, 20, VQ_TEXT("&Large"), VQ_TEXT("Large"), 0);
    window.Type('h', Qt::AltModifier);

    window.Type('l');

    EXPECT_THAT(window.Fired(), ElementsAre(0xFFFFFFF0));
}

TEST_F(MenuPopup, AClickOnAGrayedRowOrASeparatorDoesNothing)
{
    window.Click(window.BarItem(0));

    window.Click(window.Row(1));
    window.Click(window.Row(2));

    EXPECT_THAT(window.Fired(), IsEmpty());
    EXPECT_EQ(window.Path(), "File/");
}

TEST_F(MenuPopup, ThePointerOpensAndClosesTheNextLevel)
{
    window.Click(window.BarItem(0));
    QQuickItem* open_row = window.Row(0);

    window.Hover(window.Row(3));
    EXPECT_TRUE(ComesTo("File/Recent/")) << window.Path();

    window.Hover(open_row);
    EXPECT_TRUE(ComesTo("File/Open")) << window.Path();
}

TEST_F(MenuPopup, APressInAnOpenLevelKeepsTheOthersOpen)
{
    window.Click(window.BarItem(0));
    window.Click(window.Row(3));
    ASSERT_EQ(window.Path(), "File/Recent/");

    window.Click(window.Row(1));

    EXPECT_EQ(window.Path(), "File/Recent/More/");
}

TEST_F(MenuPopup, ShowsMarksKeysAndHidesWhatIsRemoved)
{
    window.Menu().CheckId(12, true);
    window.Menu().CheckRadioId(13, 13, 13);
    window.Menu().Manipulators().find_item(11u, window.Menu().getRootMenuItem())->setRemoved(true);
    window.Click(window.BarItem(1));

    EXPECT_EQ(window.Row(0), nullptr);
    EXPECT_TRUE(window.Row(1)->property("checked").toBool());
    EXPECT_FALSE(window.Row(1)->property("radio").toBool());
    EXPECT_TRUE(window.Row(2)->property("radio").toBool());
    EXPECT_EQ(window.Row(1)->y(), 0);
}

TEST_F(MenuPopup, FollowsTheMenuWhileItIsOpen)
{
    window.Click(window.BarItem(1));
    const qreal height = window.OpenLists().back()->height();

    window.Menu().AppendMenuItem(14, 10, VQ_TEXT("&Paste"), VQ_TEXT("Paste"), 0);
    window.Menu().SetIdMenuString(11, VQ_TEXT("&Take back"));
    window.Settle();

    EXPECT_EQ(window.Row(0)->property("accessibleName"), QStringLiteral("Take back"));
    EXPECT_DOUBLE_EQ(window.OpenLists().back()->height(), height / 3 * 4);
}

TEST_F(MenuPopup, ClosesWhenItsItemsGo)
{
    window.Click(window.BarItem(1));

    window.Menu().DeleteAllIn(10);

    EXPECT_EQ(window.Path(), "Edit");
}

TEST_F(MenuPopup, SurvivesThatTheWholeMenuGoes)
{
    OpenFile();
    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Right);

    window.Menu().DeleteAll();
    window.Press(Qt::Key_Escape);

    EXPECT_THAT(window.OpenLists(), IsEmpty());
}

TEST_F(MenuPopup, ARecreatedPopupOpensAgain)
{
    window.Menu().RecreatePopup(1);
    window.Menu().RecreatePopup(5);

    OpenFile();
    window.Type('r');

    EXPECT_EQ(window.Path(), "File/Recent/one");
}

TEST_F(MenuPopup, OneTallerThanTheWindowScrollsToItsCurrentRow)
{
    for (vq_uint32 id = 100; id < 160; ++id)
        window.Menu().AppendMenuItem(id, 20, VQ_TEXT("Topic"), VQ_TEXT("Topic"), 0);
    window.Type('h', Qt::AltModifier);

    window.Press(Qt::Key_End);
    QQuickItem* last = window.Row(60);

    ASSERT_TRUE(last);
    EXPECT_LE(window.OpenLists().back()->height(), window.Window().height());
    EXPECT_LE(last->mapToScene({0, last->height()}).y(), window.Window().height());
}

TEST_F(MenuPopup, TenThousandRowsMakeItemsForTheVisibleOnesOnly)
{
    for (vq_uint32 id = 100; id < 10'100; ++id)
        window.Menu().AppendMenuItem(id, 20, VQ_TEXT("Topic"), VQ_TEXT("Topic"), 0);

    window.Type('h', Qt::AltModifier);
    window.Settle();

    const auto rows = window.OpenLists().back()->findChildren<QQuickItem*>(
        QRegularExpression(QStringLiteral("^menuRow\\d+$")));
    EXPECT_LT(window.OpenLists().back()->property("count").toInt(), 10'002);
    EXPECT_LT(rows.size(), 100);
}

TEST_F(MenuPopup, DrawsColoursAndWidthsWithNamesOfTheirOwn)
{
    window.Menu().AppendOneColor(31, 20, 0x0000FF, VQ_TEXT("Red"));
    window.Menu().AppendTwoColor(32, 20, 0x00FF00, 0xFF0000, VQ_TEXT("Both"));
    window.Menu().AppendLineWidth(33, 20, 3, VQ_TEXT(""), VQ_TEXT("Wide"));
    window.Click(window.BarItem(2));

    EXPECT_EQ(window.Row(1)->property("accessibleName"), QStringLiteral("#ff0000"));
    EXPECT_EQ(window.Row(2)->property("accessibleName"), QStringLiteral("#00ff00, #0000ff"));
    EXPECT_EQ(window.Row(3)->property("accessibleName"), QStringLiteral("3 px"));

    window.Click(window.Row(2));
    EXPECT_THAT(window.Fired(), ElementsAre(32u));
}

TEST_F(MenuPopup, TellsScreenReadersNamesKeysAndMarks)
{
    window.Menu().CheckId(11, true);
    window.Click(window.BarItem(1));
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window.Row(0));
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(window.Find(QStringLiteral("menuBar")));
    ASSERT_TRUE(row && bar);

    EXPECT_EQ(bar->role(), QAccessible::MenuBar);
    EXPECT_EQ(row->role(), QAccessible::MenuItem);
    EXPECT_EQ(row->text(QAccessible::Name), QStringLiteral("Undo"));
    EXPECT_EQ(row->text(QAccessible::Description), QStringLiteral("Ctrl+Z"));
    EXPECT_TRUE(row->state().checkable);
    EXPECT_TRUE(row->state().checked);
}

TEST_F(MenuPopup, TellsScreenReadersWhichPopupARowIsIn)
{
    OpenFile();
    window.Type('r');
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window.Row(0));
    ASSERT_TRUE(row && row->parent());

    EXPECT_EQ(row->parent()->role(), QAccessible::PopupMenu);
    EXPECT_EQ(row->parent()->text(QAccessible::Name), QStringLiteral("Recent"));
}

TEST_F(MenuPopup, TellsScreenReadersWhichRowHasTheFocus)
{
    OpenFile();
    window.Press(Qt::Key_Down);
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window.Row(3));
    QAccessibleInterface* grayed = QAccessible::queryAccessibleInterface(window.Row(1));
    ASSERT_TRUE(row && grayed);

    EXPECT_TRUE(row->state().focused);
    EXPECT_TRUE(grayed->state().disabled);
}

TEST_F(MenuPopup, AScreenReaderCanPressARow)
{
    window.Click(window.BarItem(1));
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window.Row(1));
    ASSERT_TRUE(row && row->actionInterface());

    row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());

    EXPECT_THAT(window.Fired(), ElementsAre(12u));
}

TEST(MenuPopupLooks, EachLevelHasTheFontAndThePaletteOfTheBar)
{
    MenuWindow window("font.pixelSize: 21; palette { text: \"#102030\"; base: \"#a0b0c0\" }");
    FillMenu(window.Menu());
    window.Type('f', Qt::AltModifier);
    window.Type('r');
    window.Type('m');

    ASSERT_EQ(window.OpenLists().size(), 3u);
    EXPECT_EQ(window.Row(0)->property("font").value<QFont>().pixelSize(), 21);
    EXPECT_EQ(
        window.Row(0)->property("ink").value<QColor>(),
        window.Row(0)->property("palette").value<QObject*>()->property("highlightedText").value<QColor>());
    EXPECT_EQ(window.ColorAt(window.OpenLists().back(), {80, -2}), QColor(0xA0, 0xB0, 0xC0));
}
