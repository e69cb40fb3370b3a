#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// open, a separator, save, which is disabled, print and help.
class ToolbarKeyboard : public testing::Test
{
protected:
    explicit ToolbarKeyboard(const QByteArray& properties = {},
                             EOrientation orientation = EOrientation::Horizontal)
        : window(properties, orientation)
    {
        open = &window.AddButton("open");
        window.AddSeparator();
        window.AddButton("save").Enable(false);
        print = &window.AddButton("print");
        help = &window.AddButton("help");
        window.FocusField("before");
    }

    ToolbarWindow window;
    CVqQuickButton* open = nullptr;
    CVqQuickButton* print = nullptr;
    CVqQuickButton* help = nullptr;
};

class MirroredToolbarKeyboard : public ToolbarKeyboard
{
protected:
    MirroredToolbarKeyboard() : ToolbarKeyboard("LayoutMirroring.enabled: true") { }
};

class VerticalToolbarKeyboard : public ToolbarKeyboard
{
protected:
    VerticalToolbarKeyboard() : ToolbarKeyboard({}, EOrientation::Vertical) { }
};

}

TEST_F(ToolbarKeyboard, TabComesInAtTheFirstControlAndLeaves)
{
    window.Press(Qt::Key_Tab);
    EXPECT_EQ(window.Focus(), "open");

    window.Press(Qt::Key_Tab);
    EXPECT_EQ(window.Focus(), "after");
}

TEST_F(ToolbarKeyboard, BacktabComesInAndLeavesToTheFront)
{
    window.FocusField("after");

    window.Press(Qt::Key_Backtab);
    EXPECT_EQ(window.Focus(), "open");

    window.Press(Qt::Key_Backtab);
    EXPECT_EQ(window.Focus(), "before");
}

TEST_F(ToolbarKeyboard, TabComesBackToTheControlThatHadIt)
{
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Right);
    ASSERT_EQ(window.Focus(), "print");
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Backtab);

    EXPECT_EQ(window.Focus(), "print");
}

TEST_F(ToolbarKeyboard, TabPassesByAToolbarThatNothingCanBePressedOn)
{
    window.Toolbar().EnableAll(false);

    window.Press(Qt::Key_Tab);

    EXPECT_EQ(window.Focus(), "after");
}

TEST_F(ToolbarKeyboard, BacktabPassesByAToolbarThatNothingCanBePressedOn)
{
    window.Toolbar().EnableAll(false);
    window.FocusField("after");

    window.Press(Qt::Key_Backtab);

    EXPECT_EQ(window.Focus(), "before");
}

TEST_F(ToolbarKeyboard, ArrowsSkipWhatCannotBePressedAndGoRound)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Focus(), "print");

    window.Press(Qt::Key_Left);
    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Focus(), "help");
}

TEST_F(ToolbarKeyboard, HomeAndEndGoToTheEnds)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_End);
    EXPECT_EQ(window.Focus(), "help");

    window.Press(Qt::Key_Home);
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(MirroredToolbarKeyboard, LeftGoesOn)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Focus(), "print");

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(VerticalToolbarKeyboard, DownAndUpWalk)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Focus(), "print");

    window.Press(Qt::Key_Up);
    window.Press(Qt::Key_Up);
    EXPECT_EQ(window.Focus(), "help");
}

TEST_F(ToolbarKeyboard, SpaceAndEnterTrigger)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Space);
    window.Press(Qt::Key_Return);
    window.Press(Qt::Key_Enter, Qt::KeypadModifier);

    EXPECT_THAT(window.Events(), ElementsAre("open triggered", "open triggered", "open triggered"));
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(ToolbarKeyboard, DownOpensWhatHangsBelow)
{
    ToolbarWindow::SetDropDown(*open);
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Down);
    window.Press(Qt::Key_Down, Qt::AltModifier);

    EXPECT_THAT(window.Events(), ElementsAre("open drop-down at 2,36", "open drop-down at 2,36"));
}

TEST_F(ToolbarKeyboard, DownOnAPlainButtonDoesNothing)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Down);

    EXPECT_THAT(window.Events(), IsEmpty());
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(VerticalToolbarKeyboard, RightAndAltDownOpenWhatHangsBeside)
{
    ToolbarWindow::SetDropDown(*open);
    window.Press(Qt::Key_Tab);
    const QRectF place = ToolbarWindow::Place(window.Look(*open));
    const std::string event = "open drop-down at " + std::to_string(int(place.right())) + ",2";

    window.Press(Qt::Key_Right);
    window.Press(Qt::Key_Down, Qt::AltModifier);

    EXPECT_THAT(window.Events(), ElementsAre(event, event));
}

TEST_F(ToolbarKeyboard, MenuKeyAndShiftF10OpenTheContextMenu)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Menu);
    window.Press(Qt::Key_F10, Qt::ShiftModifier);

    EXPECT_THAT(window.Events(), ElementsAre("open context menu at 2,36", "open context menu at 2,36"));
}

TEST_F(ToolbarKeyboard, LeavesKeysThatAreNotItsOwn)
{
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Right, Qt::ControlModifier);
    window.Press(Qt::Key_Space, Qt::ControlModifier);
    window.Press(Qt::Key_F10);
    window.Press(Qt::Key_Escape);

    EXPECT_EQ(window.Focus(), "open");
    EXPECT_THAT(window.Events(), IsEmpty());
}

TEST_F(ToolbarKeyboard, TheControlThatHasItShowsARing)
{
    window.Press(Qt::Key_Tab);

    EXPECT_TRUE(window.Part(*open, "focusRing"));
    EXPECT_EQ(window.ColorAt(window.Look(*open), {1, 17}), QColor(0x20, 0x60, 0xc0));

    window.Press(Qt::Key_Right);
    EXPECT_FALSE(window.Part(*open, "focusRing"));
}

TEST_F(ToolbarKeyboard, AButtonThatGoesLeavesItToTheFirst)
{
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_End);

    window.Toolbar().RemoveButton(help->GetControlID());

    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(ToolbarKeyboard, AButtonThatIsDisabledLeavesItToAnother)
{
    window.Press(Qt::Key_Tab);

    open->Enable(false);

    EXPECT_EQ(window.Focus(), "print");
}

TEST_F(ToolbarKeyboard, AButtonThatIsHiddenLeavesItToAnother)
{
    window.Press(Qt::Key_Tab);

    window.Toolbar().SetButtonVisibility(open->GetControlID(), false);

    EXPECT_EQ(window.Focus(), "print");
}

TEST_F(ToolbarKeyboard, AButtonThatMovesToThePickerLeavesItToAnother)
{
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_End);

    window.SetBar("width", 100);

    ASSERT_TRUE(help->IsInPicker());
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(ToolbarKeyboard, AButtonThatDeletesItselfLeavesItToAnother)
{
    static CVqQuickButtonToolbar* toolbar = nullptr;
    toolbar = &window.Toolbar();
    open->SetHandler([](IVqUIcontrol* control, SVqUiEvent&) {
        toolbar->RemoveButton(control->GetControlID());
        return true;
    });
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Space);

    EXPECT_EQ(window.Find("look:open"), nullptr);
    EXPECT_EQ(window.Focus(), "print");
}

TEST_F(ToolbarKeyboard, WhileCustomisedAllAreWalkedOverAndNoneIsPressed)
{
    window.Toolbar().EnableToolbarDragDrop(true);
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Space);

    window.Press(Qt::Key_Right);
    window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Focus(), "save");
    EXPECT_THAT(window.Events(), IsEmpty());
}

TEST(ToolbarShortcuts, KeysOfTheControlThatHasItGoBeforeShortcutsOfTheWindow)
{
    ToolbarWindow window("Shortcut { sequence: 'Space'; onActivated: console.warn(sequence) }");
    window.AddButton("open");
    window.FocusField("before");
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Space);

    EXPECT_THAT(window.Events(), ElementsAre("open triggered"));
}
