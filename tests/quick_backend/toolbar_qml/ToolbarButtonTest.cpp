#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ToolbarButton : public testing::Test
{
protected:
    explicit ToolbarButton(const QByteArray& properties = {}) : window(properties) { }

    QColor Ground(const CVqQuickControl& button)
    {
        return window.ColorAt(window.Look(button), {3, window.Look(button)->height() / 2});
    }

    ToolbarWindow window;
};

class MirroredToolbarButton : public ToolbarButton
{
protected:
    MirroredToolbarButton() : ToolbarButton("LayoutMirroring.enabled: true") { }
};

}

TEST_F(MirroredToolbarButton, TheArrowStandsAtTheLeft)
{
    auto& button = window.AddButton("open");
    ToolbarWindow::SetDropDown(button);

    EXPECT_EQ(window.Part(button, "toolbarArrow")->x(), 0);
    EXPECT_GE(ToolbarWindow::Place(window.Part(button, "toolbarText")).left(),
              ToolbarWindow::Place(window.Part(button, "toolbarArrow")).right());
}

TEST_F(ToolbarButton, TheArrowTakesItsWidth)
{
    auto& button = window.AddButton("open");

    ToolbarWindow::SetDropDown(button);

    EXPECT_EQ(window.Part(button, "toolbarArrow")->width(), CVqQuickButton::ArrowWidth);
    EXPECT_EQ(ToolbarWindow::Place(window.Part(button, "toolbarArrow")).right(),
              ToolbarWindow::Place(window.Look(button)).right());
    EXPECT_FALSE(window.Look(button)->property("truncated").toBool());
}

TEST_F(ToolbarButton, AClickTriggersOnce)
{
    auto& button = window.AddButton("open");

    window.Click(window.Look(button));

    EXPECT_THAT(window.Events(), ElementsAre("open triggered"));
}

TEST_F(ToolbarButton, AClickDoesNotTakeTheKeyboard)
{
    auto& button = window.AddButton("open");
    window.FocusField("before");

    window.Click(window.Look(button));

    EXPECT_EQ(window.Focus(), "before");
}

TEST_F(ToolbarButton, LetGoBesideItTriggersNothing)
{
    auto& button = window.AddButton("open");
    const QPoint place = ToolbarWindow::Centre(window.Look(button));

    QTest::mousePress(&window.Window(), Qt::LeftButton, {}, place);
    QTest::mouseMove(&window.Window(), {300, 250});
    QTest::mouseRelease(&window.Window(), Qt::LeftButton, {}, {300, 250});

    EXPECT_THAT(window.Events(), IsEmpty());
}

TEST_F(ToolbarButton, ADisabledOneIsNotPressed)
{
    auto& button = window.AddButton("open");
    ToolbarWindow::SetDropDown(button);
    button.Enable(false);

    window.Click(window.Look(button));
    window.Click(window.Part(button, "toolbarArrow"));

    EXPECT_THAT(window.Events(), IsEmpty());
}

TEST_F(ToolbarButton, TheArrowOpensWhatHangsBelow)
{
    auto& button = window.AddButton("open");
    ToolbarWindow::SetDropDown(button);

    window.Click(window.Part(button, "toolbarArrow"));

    EXPECT_THAT(window.Events(), ElementsAre("open drop-down at 2,36"));
}

TEST_F(ToolbarButton, ThePartBesideTheArrowTriggers)
{
    auto& button = window.AddButton("open");
    ToolbarWindow::SetDropDown(button);
    window.Settle();

    window.ClickAt({10, 20});

    EXPECT_THAT(window.Events(), ElementsAre("open triggered"));
}

TEST_F(ToolbarButton, TheRightButtonOpensTheContextMenuWhereItIs)
{
    auto& button = window.AddButton("open");
    button.Enable(false);
    window.Settle();

    window.ClickAt({10, 20}, Qt::RightButton);

    EXPECT_THAT(window.Events(), ElementsAre("open context menu at 10,20"));
}

TEST_F(ToolbarButton, IsDrawnDifferentlyInEachState)
{
    auto& button = window.AddButton("open");
    button.SetFlatStyle(true);
    const QColor idle = Ground(button);
    EXPECT_EQ(idle, QColor(0xf0, 0xf0, 0xf0));

    window.Hover(window.Look(button));
    const QColor hovered = Ground(button);
    EXPECT_LT(hovered.lightness(), idle.lightness());

    QTest::mousePress(&window.Window(), Qt::LeftButton, {}, ToolbarWindow::Centre(window.Look(button)));
    EXPECT_LT(Ground(button).lightness(), hovered.lightness());

    QTest::mouseRelease(&window.Window(), Qt::LeftButton, {}, ToolbarWindow::Centre(window.Look(button)));
    window.ParkPointer();
    ToolbarWindow::Check(button, true);
    EXPECT_GT(Ground(button).blue() - Ground(button).red(), 20);
}

TEST_F(ToolbarButton, AFramedOneHasAFrame)
{
    auto& button = window.AddButton("open");

    button.SetFlatStyle(true);
    const QColor flat = window.ColorAt(window.Look(button), {0, 17});
    button.SetFlatStyle(false);

    EXPECT_LT(window.ColorAt(window.Look(button), {0, 17}).lightness(), flat.lightness());
}

TEST_F(ToolbarButton, WhileCustomisedItIsNeitherPressedNorPointedAt)
{
    auto& button = window.AddButton("open");
    button.SetFlatStyle(true);
    window.Toolbar().EnableToolbarDragDrop(true);

    window.Click(window.Look(button));

    EXPECT_THAT(window.Events(), IsEmpty());
    EXPECT_EQ(Ground(button), QColor(0xf0, 0xf0, 0xf0));
}

TEST_F(ToolbarButton, OneThatDeletesItselfLeavesNothing)
{
    auto& button = window.AddButton("open");
    auto& save = window.AddButton("save");
    static CVqQuickButtonToolbar* toolbar = nullptr;
    static vq_uint64 doomed = 0;
    toolbar = &window.Toolbar();
    doomed = button.GetControlID();
    button.SetHandler([](IVqUIcontrol*, SVqUiEvent&) {
        toolbar->RemoveButton(doomed);
        return true;
    });

    window.Click(window.Look(button));

    EXPECT_EQ(window.Find("look:open"), nullptr);
    EXPECT_EQ(ToolbarWindow::Place(window.Look(save)).left(), 2);
}

TEST_F(ToolbarButton, OneThatChangesItsStateIsPressedAgain)
{
    auto& button = window.AddButton("lock");
    vq_uint32 count = 2;
    button.Set(vq_control_state_count, 0, &count);
    CVqStringW unlocked(VQ_TEXT("Unlocked for now"));
    button.Set(vq_control_text, 1, &unlocked);
    button.SetHandler([](IVqUIcontrol* control, SVqUiEvent&) {
        auto* pressed = dynamic_cast<CVqQuickControl*>(control);
        pressed->setState(1 - pressed->state());
        return true;
    });

    window.Click(window.Look(button));
    EXPECT_EQ(button.state(), 1);

    window.Click(window.Look(button));
    EXPECT_EQ(button.state(), 0);
}

TEST_F(ToolbarButton, OneThatMovesToThePickerByItsPressIsPressedThere)
{
    window.AddButton("open");
    auto& button = window.AddButton("narrow");
    static QQuickItem* bar = nullptr;
    static int presses = 0;
    bar = window.Bar();
    presses = 0;
    button.SetHandler([](IVqUIcontrol*, SVqUiEvent&) {
        bar->setWidth(70);
        return ++presses > 0;
    });

    window.Click(window.Look(button));
    ASSERT_TRUE(button.IsInPicker());
    window.Picker().SetOpened(true);
    window.Click(window.Look(button));

    EXPECT_EQ(presses, 2);
}
