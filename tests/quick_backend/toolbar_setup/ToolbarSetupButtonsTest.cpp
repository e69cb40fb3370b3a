#include "tests/quick_backend/toolbar_setup/SetupPanel.h"

namespace {

using ToolbarSetupButtons = SetupPanel;

class MirroredToolbarSetupButtons : public SetupPanel
{
protected:
    MirroredToolbarSetupButtons() : SetupPanel("width: 740; LayoutMirroring.enabled: true") { }
};

}

TEST_F(ToolbarSetupButtons, NothingIsChosenAtFirst)
{
    EXPECT_FALSE(Row(0)->property("isCurrent").toBool());
    EXPECT_FALSE(Find("setupDown")->isEnabled());
    EXPECT_FALSE(Find("setupRemove")->isEnabled());
}

TEST_F(ToolbarSetupButtons, TheBoxShowsAndHides)
{
    ClickBox(1);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");

    ClickBox(1);
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupButtons, ARowIsDraggedToItsPlace)
{
    DragAndDrop(On(Row(0), 0.5), On(Row(3), 0.6));

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupButtons, EscapePutsADraggedRowBack)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    EXPECT_EQ(Order(first), "save - zoom open undo");

    Press(Qt::Key_Escape);
    LetGo(target);

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_TRUE(setup->IsActive());
}

TEST_F(ToolbarSetupButtons, ARowThatIsDraggedByItsBoxStaysShown)
{
    const QPoint target = Row(3)->mapToScene({10, 17}).toPoint();

    Drag(Row(0)->mapToScene({10, 14}).toPoint(), target);
    QTest::mouseMove(&Window(), target + QPoint(0, 1)); // back onto the row, which followed
    LetGo(target + QPoint(0, 1));

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupButtons, ACancelledDragOfARowMovesNothing)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    ASSERT_EQ(Order(first), "save - zoom open undo");

    Window().mouseGrabberItem()->ungrabMouse();
    LetGo(target);

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupButtons, EscapeAfterACancelledDragOfARowCancelsTheSession)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);
    Window().mouseGrabberItem()->ungrabMouse();
    LetGo(target);

    Press(Qt::Key_Escape);

    EXPECT_FALSE(setup->IsActive());
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarSetupButtons, TheEndOfTheSessionEndsTheDragOfARowWhereItIs)
{
    const QPoint target = On(Row(3), 0.6);
    Drag(On(Row(0), 0.5), target);

    setup->accept();
    Draw();
    LetGo(target);

    EXPECT_EQ(Order(first), "save - zoom open undo");
}

TEST_F(ToolbarSetupButtons, TheButtonsBelowMoveTheChosenOne)
{
    EnterAt(1);

    Click(Find("setupDown"));
    EXPECT_EQ(Order(first), "open - save zoom undo");
    Click(Find("setupUp"));
    Click(Find("setupUp"));

    EXPECT_EQ(Order(first), "save open - zoom undo");
    EXPECT_FALSE(Find("setupUp")->isEnabled());
}

TEST_F(ToolbarSetupButtons, SeparatorsAreAddedInFrontAndRemoved)
{
    EnterAt(1);

    Click(Find("setupSeparator"));
    EXPECT_EQ(Order(first), "open - save - zoom undo");
    Click(Find("setupRemove"));

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "save"));
}

TEST_F(ToolbarSetupButtons, AGeneralControlCannotBeRemoved)
{
    EnterAt(3);

    EXPECT_FALSE(Find("setupRemove")->isEnabled());
}

TEST_F(ToolbarSetupButtons, ALockedButtonCannotBeShownOrHidden)
{
    VQ_SetToolbarButtonAsHidden(VQ_TEXT("first"), VQ_TEXT("save"), true, true);

    ClickBox(1);

    EXPECT_TRUE(setup->isShown(Named(first, "save")));
}

TEST_F(ToolbarSetupButtons, TheListFollowsTheChoiceOnTheBar)
{
    Click(Named(second, "copy")->Item());

    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_TRUE(Row(1)->property("isCurrent").toBool());
}

TEST_F(ToolbarSetupButtons, TheListOfButtonsWorksByKeyboard)
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

TEST_F(MirroredToolbarSetupButtons, TheBoxAtTheRightShowsAndHides)
{
    const QQuickItem* box = Part(Row(1), "setupBox");
    ASSERT_GT(box->mapToScene({}).x(), On(Row(1), 0.9).x());

    ClickBox(1);
    EXPECT_EQ(Order(first), "open (save) - zoom undo");

    ClickBox(1);
    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(MirroredToolbarSetupButtons, AClickWhereTheKeyStandsChoosesAlone)
{
    QTest::mouseClick(&Window(), Qt::LeftButton, {}, Row(1)->mapToScene({14, 14}).toPoint());
    Draw();

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "save"));
}

TEST_F(MirroredToolbarSetupButtons, ARowThatIsDraggedByItsBoxStaysShown)
{
    const QPoint box = Part(Row(0), "setupBox")->mapToScene({8, 8}).toPoint();
    const QPoint target(box.x(), On(Row(3), 0.6).y());

    DragAndDrop(box, target);

    EXPECT_EQ(Order(first), "save - zoom open undo");
}
