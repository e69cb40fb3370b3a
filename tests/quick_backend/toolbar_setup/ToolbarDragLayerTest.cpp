#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "tests/quick_backend/toolbar_setup/SetupWindow.h"

namespace {

class ToolbarDragLayer : public testing::Test, protected SetupWindow
{
protected:
    ToolbarDragLayer()
    {
        setup->begin();
        Draw();
    }

    /// Chooses a control and gives its bar the keyboard.
    void Choose(CVqQuickControl* control) { Click(control->Item()); }
};

}

// By pointer ---------------------------------------------------------------------------------------------

TEST_F(ToolbarDragLayer, APressChoosesAndRunsNothing)
{
    const QSignalSpy runs(&menu, &CVqQuickMenu::commandTriggered);

    Choose(Named(first, "save"));

    EXPECT_EQ(setup->Control(), Named(first, "save"));
    EXPECT_EQ(runs.size(), 0);
    EXPECT_TRUE(Find("toolbarChosen"));
}

TEST_F(ToolbarDragLayer, AButtonIsDraggedAlongItsBar)
{
    DragAndDrop(On(Named(first, "open"), 0.5), On(Named(first, "undo"), 0.9));

    EXPECT_EQ(Order(first), "save - zoom undo open");
    EXPECT_EQ(setup->Control(), Named(first, "open"));
}

TEST_F(ToolbarDragLayer, AButtonIsDraggedToAnotherBar)
{
    DragAndDrop(On(Named(first, "open"), 0.5), On(Named(second, "copy"), 0.2));

    EXPECT_EQ(Order(first), "save - zoom undo");
    EXPECT_EQ(Order(second), "cut open copy");
}

TEST_F(ToolbarDragLayer, AGeneralControlIsDraggedWithItsItem)
{
    DragAndDrop(On(Named(first, "zoom"), 0.5), On(Named(second, "copy"), 0.2));

    EXPECT_EQ(Order(second), "cut zoom copy");
    EXPECT_EQ(zoom_item->parentItem(), Named(second, "zoom")->Item());
    EXPECT_EQ(zoom_item->window(), &Window());
}

TEST_F(ToolbarDragLayer, APictureFollowsThePointerAndAMarkShowsThePlace)
{
    const QPoint target = On(Named(first, "undo"), 0.1);

    Drag(On(Named(first, "open"), 0.5), target);

    const QQuickItem* mark = Find("toolbarMark");
    ASSERT_TRUE(mark);
    EXPECT_NEAR(mark->mapToScene({1, 0}).x(), Named(first, "undo")->Item()->mapToScene({}).x(), 2);
    ASSERT_TRUE(Find("toolbarLifted"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Find("toolbarPicture") != nullptr; }));
    EXPECT_FALSE(Find("toolbarRemoves"));
    LetGo(target);
    EXPECT_FALSE(Find("toolbarLifted"));
}

TEST_F(ToolbarDragLayer, LetGoBesideAllBarsAButtonGoesUntilCancelled)
{
    Drag(On(Named(first, "open"), 0.5), beside);
    EXPECT_TRUE(Find("toolbarRemoves"));
    EXPECT_FALSE(Find("toolbarMark"));
    LetGo(beside);
    EXPECT_EQ(Order(first), "save - zoom undo");

    setup->cancel();

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarDragLayer, EscapePutsADraggedButtonBack)
{
    Drag(On(Named(first, "open"), 0.5), beside);

    Press(Qt::Key_Escape);
    LetGo(beside);

    EXPECT_EQ(Order(first), "open save - zoom undo");
    EXPECT_TRUE(setup->IsActive());
}

TEST_F(ToolbarDragLayer, ASmallMoveLiftsNothing)
{
    const QPoint place = On(Named(first, "open"), 0.5);

    Drag(place, place + QPoint(3, 0));

    EXPECT_FALSE(Find("toolbarLifted"));
    LetGo(place);
}

TEST_F(ToolbarDragLayer, AClickOnThePickerOpensItAndAButtonIsDraggedOut)
{
    Find("firstBar")->setWidth(70);
    Draw();
    CVqQuickPicker& picker = *first.Toolbar().Picker();
    ASSERT_TRUE(Named(first, "undo")->IsInPicker());
    Click(picker.Item());
    ASSERT_TRUE(picker.IsOpened());

    DragAndDrop(On(Named(first, "undo"), 0.5), On(Named(second, "copy"), 0.9));

    EXPECT_EQ(Order(second), "cut copy undo");
}

TEST_F(ToolbarDragLayer, AButtonIsDraggedIntoAnOpenPicker)
{
    Find("secondBar")->setX(400);
    Find("firstBar")->setWidth(70);
    Draw();
    Click(first.Toolbar().Picker()->Item());

    DragAndDrop(On(Named(second, "cut"), 0.5), On(Named(first, "undo"), 0.9));

    EXPECT_EQ(Order(first), "open save - zoom undo cut");
}

TEST_F(ToolbarDragLayer, AMirroredBarIsReadFromTheRight)
{
    first.Area()->SetMirrored(true);
    Draw();

    DragAndDrop(On(Named(first, "open"), 0.5), On(Named(first, "undo"), 0.1));

    EXPECT_EQ(Order(first), "save - zoom undo open");
}

// By keyboard --------------------------------------------------------------------------------------------

TEST_F(ToolbarDragLayer, ArrowsChooseAlongTheBar)
{
    Choose(Named(first, "open"));

    Press(Qt::Key_Right);
    EXPECT_EQ(setup->Control(), Named(first, "save"));
    Press(Qt::Key_End);
    EXPECT_EQ(setup->Control(), Named(first, "undo"));
    Press(Qt::Key_Left);
    EXPECT_EQ(setup->Control(), Named(first, "zoom"));
    Press(Qt::Key_Home);
    EXPECT_EQ(setup->Control(), Named(first, "open"));
}

TEST_F(ToolbarDragLayer, WithAltOrCtrlArrowsMove)
{
    Choose(Named(first, "open"));

    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Order(first), "save open - zoom undo");
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Order(first), "save - open zoom undo");
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Order(first), "save open - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "open"));
}

TEST_F(ToolbarDragLayer, OnAnUprightBarUpAndDownMove)
{
    Choose(Named(second, "cut"));

    Press(Qt::Key_Down, Qt::AltModifier);

    EXPECT_EQ(Order(second), "copy cut");
}

TEST_F(ToolbarDragLayer, InAMirroredBarLeftIsForward)
{
    first.Area()->SetMirrored(true);
    Draw();
    Choose(Named(first, "open"));

    Press(Qt::Key_Left);
    EXPECT_EQ(setup->Control(), Named(first, "save"));
    Press(Qt::Key_Left, Qt::AltModifier);

    EXPECT_EQ(Order(first), "open - save zoom undo");
}

TEST_F(ToolbarDragLayer, AcrossTheBarArrowsMoveToAnotherOneAndTheKeyboardFollows)
{
    Choose(Named(first, "open"));

    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Order(second), "cut copy open");
    Press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Order(second), "cut open copy");
    Press(Qt::Key_Left, Qt::AltModifier);

    EXPECT_EQ(Order(second), "cut copy");
    EXPECT_EQ(Order(first), "save - zoom undo open");
}

TEST_F(ToolbarDragLayer, DeleteRemovesAndGoesOn)
{
    Choose(Named(first, "open"));

    Press(Qt::Key_Delete);
    EXPECT_EQ(setup->Control(), Named(first, "save"));
    Press(Qt::Key_Delete);

    EXPECT_EQ(Order(first), "- zoom undo");
}

TEST_F(ToolbarDragLayer, InsertPutsASeparatorInFront)
{
    Choose(Named(first, "save"));

    Press(Qt::Key_Insert);

    EXPECT_EQ(Order(first), "open - save - zoom undo");
}

TEST_F(ToolbarDragLayer, TabComesToABarAndLeavesItAgain)
{
    Find("field")->forceActiveFocus();

    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Window().activeFocusItem()->objectName(), QStringLiteral("toolbarPad"));
    EXPECT_EQ(setup->CurrentToolbar(), &second);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(setup->CurrentToolbar(), &first);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Tab);

    EXPECT_EQ(Window().activeFocusItem(), Find("field"));
}

TEST_F(ToolbarDragLayer, ScreenReadersHearWhatIsChosenAndWhere)
{
    QQuickItem* pad = Find("toolbarPad");
    EXPECT_EQ(NameOf(pad), QStringLiteral("Customise Main"));

    Choose(Named(first, "save"));
    EXPECT_EQ(NameOf(pad), QStringLiteral("save, 2 of 5 on Main"));
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(NameOf(pad), QStringLiteral("save, 3 of 5 on Main"));
    Press(Qt::Key_Left);

    EXPECT_EQ(NameOf(pad), QStringLiteral("Separator, 2 of 5 on Main"));
    EXPECT_FALSE(Accessible(pad)->text(QAccessible::Description).isEmpty());
}

TEST_F(ToolbarDragLayer, AfterTheSessionTheButtonsWorkAgain)
{
    const QSignalSpy runs(&menu, &CVqQuickMenu::commandTriggered);
    setup->accept();
    Draw();

    Click(Named(first, "save")->Item());

    EXPECT_EQ(runs.size(), 1);
    EXPECT_FALSE(Find("toolbarPad"));
}
