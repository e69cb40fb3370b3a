#include "tests/quick_backend/toolbar_setup/SetupWindow.h"

namespace {

class ToolbarSetupPanel : public testing::Test, protected SetupWindow
{
protected:
    ToolbarSetupPanel()
    {
        setup->begin();
        Draw();
    }

    QQuickItem* Row(int row) { return Find(("setupRow" + std::to_string(row)).c_str()); }
    QQuickItem* Command(int row) { return Find(("commandRow" + std::to_string(row)).c_str()); }

    void ClickBox(int row)
    {
        QTest::mouseClick(&Window(), Qt::LeftButton, {}, Row(row)->mapToScene({14, 14}).toPoint());
        Draw();
    }

    /// Gives the list of buttons the keyboard, at a row.
    void EnterAt(int row) { Click(Row(row)); }
};

}

// The buttons of the bar ---------------------------------------------------------------------------------

TEST_F(ToolbarSetupPanel, ListsTheButtonsOfTheChosenBar)
{
    EXPECT_TRUE(Row(4));
    EXPECT_FALSE(Row(5));

    Click(Find("setupTab1"));

    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_TRUE(Row(1));
    EXPECT_FALSE(Row(2));
}

TEST_F(ToolbarSetupPanel, TheBoxShowsAndHides)
{
    ClickBox(1);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");

    ClickBox(1);
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupPanel, ARowIsDraggedToItsPlace)
{
    DragAndDrop(On(Row(0), 0.5), On(Row(3), 0.6));

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupPanel, EscapePutsADraggedRowBack)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    EXPECT_EQ(Order(first), "save - zoom open undo");

    Press(Qt::Key_Escape);
    LetGo(target);

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_TRUE(setup->IsActive());
}

TEST_F(ToolbarSetupPanel, ARowThatIsDraggedByItsBoxStaysShown)
{
    const QPoint target = Row(3)->mapToScene({10, 17}).toPoint();

    Drag(Row(0)->mapToScene({10, 14}).toPoint(), target);
    QTest::mouseMove(&Window(), target + QPoint(0, 1)); // back onto the row, which followed
    LetGo(target + QPoint(0, 1));

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupPanel, ACancelledDragOfARowMovesNothing)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    ASSERT_EQ(Order(first), "save - zoom open undo");

    Window().mouseGrabberItem()->ungrabMouse();
    LetGo(target);

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupPanel, EscapeAfterACancelledDragOfARowCancelsTheSession)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    Window().mouseGrabberItem()->ungrabMouse();
    LetGo(target);

    Press(Qt::Key_Escape);

    EXPECT_FALSE(setup->IsActive());
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupPanel, TheEndOfTheSessionEndsTheDragOfARowWhereItIs)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);

    setup->accept();
    Draw();
    LetGo(target);

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupPanel, TheButtonsBelowMoveTheChosenOne)
{
    EnterAt(1);

    Click(Find("setupDown"));
    EXPECT_EQ(Order(first), "open - save zoom undo");
    Click(Find("setupUp"));
    Click(Find("setupUp"));

    EXPECT_EQ(Order(first), "save open - zoom undo");
    EXPECT_FALSE(Find("setupUp")->isEnabled());
}

TEST_F(ToolbarSetupPanel, SeparatorsAreAddedInFrontAndRemoved)
{
    EnterAt(1);

    Click(Find("setupSeparator"));
    EXPECT_EQ(Order(first), "open - save - zoom undo");
    Click(Find("setupRemove"));

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "save"));
}

TEST_F(ToolbarSetupPanel, AGeneralControlCannotBeRemoved)
{
    EnterAt(3);

    EXPECT_FALSE(Find("setupRemove")->isEnabled());
}

TEST_F(ToolbarSetupPanel, ALockedButtonCannotBeShownOrHidden)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("save"), true, true);

    ClickBox(1);

    EXPECT_TRUE(setup->isShown(Named(first, "save")));
}

TEST_F(ToolbarSetupPanel, TheListFollowsTheChoiceOnTheBar)
{
    Click(Named(second, "copy")->Item());

    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_TRUE(Row(1)->property("isCurrent").toBool());
}

// The commands -------------------------------------------------------------------------------------------

TEST_F(ToolbarSetupPanel, ACommandIsAddedInFrontOfTheChosenButton)
{
    EnterAt(1);
    Click(Command(6));

    Click(Find("setupAdd"));

    EXPECT_EQ(Order(first), "open Paste save - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "Paste"));
}

TEST_F(ToolbarSetupPanel, ADoubleClickAddsToo)
{
    QTest::mouseDClick(&Window(), Qt::LeftButton, {}, On(Command(6), 0.5));

    EXPECT_EQ(Order(first), "open save - zoom undo Paste");
}

TEST_F(ToolbarSetupPanel, ACommandIsDraggedOntoABar)
{
    DragAndDrop(On(Command(6), 0.5), On(Named(second, "copy"), 0.1));

    EXPECT_EQ(Order(second), "cut Paste copy");
}

TEST_F(ToolbarSetupPanel, TypingFindsCommandsAndEnterAddsTheFirst)
{
    Find("setupSearch")->forceActiveFocus();
    for (const char letter : {'p', 'a', 's'})
        QTest::keyClick(&Window(), letter);
    Draw();
    EXPECT_TRUE(Command(0));
    EXPECT_FALSE(Command(1));

    Press(Qt::Key_Return);

    EXPECT_EQ(Order(first), "open save - zoom undo Paste");
}

TEST_F(ToolbarSetupPanel, EscapeClearsWhatWasTypedBeforeItCancels)
{
    Find("setupSearch")->forceActiveFocus();
    QTest::keyClick(&Window(), 'p');

    Press(Qt::Key_Escape);
    EXPECT_EQ(Find("setupSearch")->property("text").toString(), QString());
    EXPECT_TRUE(setup->IsActive());
    Press(Qt::Key_Escape);

    EXPECT_FALSE(setup->IsActive());
}

TEST_F(ToolbarSetupPanel, WithoutCommandsThereIsNoListOfThem)
{
    CVqVariant factory;
    setup->cancel();

    first.ShowToolbarSetup(0, factory, 0, false, nullptr);
    Draw();

    EXPECT_FALSE(Find("setupCommands"));
    EXPECT_TRUE(Find("setupButtons"));
}

// By keyboard --------------------------------------------------------------------------------------------

TEST_F(ToolbarSetupPanel, TheListOfButtonsWorksByKeyboard)
{
    EnterAt(0);

    Press(Qt::Key_Down);
    EXPECT_EQ(setup->Control(), Named(first, "save"));
    Press(Qt::Key_Space);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Order(first), "open - (save) zoom undo");
    Press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");
    Press(Qt::Key_Insert);
    EXPECT_EQ(Order(first), "open - (save) - zoom undo");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");
}

TEST_F(ToolbarSetupPanel, TheListOfCommandsWorksByKeyboard)
{
    Find("setupSearch")->forceActiveFocus();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);

    Press(Qt::Key_Return);

    EXPECT_EQ(Order(first), "open save - zoom undo FileSave");
}

TEST_F(ToolbarSetupPanel, TabGoesThroughAllPartsAndBack)
{
    const std::vector<const char*> parts{"setupTabs",   "setupRow0",   "setupSeparator",
                                         "setupSearch", "commandRow0", "setupAdd",
                                         "setupReset",  "setupCancel", "setupDone"};
    Find("setupTabs")->forceActiveFocus();
    std::vector<std::string> met;
    for (int i = 0; i < 20 && (met.empty() || met.back() != "setupDone"); ++i) {
        met.push_back(Window().activeFocusItem()->objectName().toStdString());
        Press(Qt::Key_Tab);
    }

    for (const char* part : parts)
        EXPECT_THAT(met, testing::Contains(part));
}

TEST_F(ToolbarSetupPanel, ArrowsChooseAmongTheTabs)
{
    Find("setupTabs")->forceActiveFocus();

    Press(Qt::Key_Right);
    Press(Qt::Key_Right);

    EXPECT_EQ(setup->CurrentToolbar(), &second);
}

// The end ------------------------------------------------------------------------------------------------

TEST_F(ToolbarSetupPanel, ResetCancelAndDoneDoAsTheySay)
{
    ClickBox(0);
    Click(Find("setupReset"));
    EXPECT_EQ(Order(first), "open save - zoom undo");

    ClickBox(0);
    Click(Find("setupCancel"));
    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_FALSE(Find("toolbarSetupPanel"));

    setup->begin();
    Draw();
    ClickBox(0);
    Click(Find("setupDone"));
    EXPECT_EQ(Order(first), "(open) save - zoom undo");
    EXPECT_FALSE(setup->IsActive());
}

TEST_F(ToolbarSetupPanel, EscapeCancels)
{
    EnterAt(0);
    Press(Qt::Key_Delete);

    Press(Qt::Key_Escape);

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_FALSE(setup->IsActive());
}

// For everybody ------------------------------------------------------------------------------------------

TEST_F(ToolbarSetupPanel, ScreenReadersHearRowsWithTheirState)
{
    setup->setShown(Named(first, "save"), false);
    Draw();

    EXPECT_EQ(NameOf(Row(0)), QStringLiteral("open"));
    EXPECT_TRUE(Accessible(Row(0))->state().checked);
    EXPECT_FALSE(Accessible(Row(1))->state().checked);
    EXPECT_EQ(Accessible(Row(2))->role(), QAccessible::Separator);
    EXPECT_EQ(NameOf(Row(2)), QStringLiteral("Separator"));
    EXPECT_EQ(NameOf(Command(0)), QStringLiteral("File > Open"));
    EXPECT_EQ(NameOf(Find("setupSearch")), QStringLiteral("Search commands"));
    EXPECT_EQ(NameOf(Find("setupUp")), QStringLiteral("Move up"));
}

TEST(ToolbarSetupPanelNarrow, StacksItsLists)
{
    SetupWindow window("width: 360");
    window.setup->begin();
    window.Draw();

    const QQuickItem* buttons = window.Find("setupButtons");
    const QQuickItem* commands = window.Find("setupCommands");

    EXPECT_LT(buttons->mapToScene({0, buttons->height()}).y(), commands->mapToScene({}).y());
    EXPECT_LE(commands->mapToScene({commands->width(), 0}).x(), 60 + 360);
}
