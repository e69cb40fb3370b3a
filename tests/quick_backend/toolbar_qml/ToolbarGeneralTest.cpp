#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

namespace {

constexpr char Field[] = "TextInput { activeFocusOnTab: true; text: 'abc' }";
constexpr char Slider[]
    = "T.Slider { implicitWidth: 60; implicitHeight: 20; focusPolicy: Qt.StrongFocus; value: 0.5; "
      "stepSize: 0.1 }";
constexpr char Label[] = "Rectangle { implicitWidth: 60; implicitHeight: 20 }";
constexpr char Group[]
    = "Row { Rectangle { width: 20; height: 20 } TextInput { width: 40; activeFocusOnTab: true } }";

/// open, a hosted item and help.
class ToolbarGeneral : public testing::Test
{
protected:
    void SetUp() override { window.AddButton("open"); }

    CVqQuickItemControl& Host(const char* qml)
    {
        CVqQuickItemControl& control = window.AddGeneral("hosted", qml);
        window.AddButton("help");
        window.FocusField("before");
        return control;
    }

    ToolbarWindow window;
};

}

TEST_F(ToolbarGeneral, StandsInTheMiddleInItsOwnSize)
{
    const CVqQuickItemControl& control = Host(Label);
    window.Settle();

    EXPECT_EQ(ToolbarWindow::Place(control.Content()).size(), QSizeF(60, 20));
    EXPECT_EQ(ToolbarWindow::Place(control.Content()).center().y(), 2 + 17);
}

TEST_F(ToolbarGeneral, FollowsTheSizeThatItsItemWants)
{
    const CVqQuickItemControl& control = Host(Label);
    window.Settle();

    control.Content()->setImplicitWidth(90);
    window.Settle();

    EXPECT_EQ(control.Content()->width(), 90);
}

TEST_F(ToolbarGeneral, IsDisabledWithItsControl)
{
    CVqQuickItemControl& control = Host(Field);
    window.Settle();

    control.Enable(false);

    EXPECT_FALSE(control.Content()->isEnabled());
}

TEST_F(ToolbarGeneral, IsAStopOfTheArrowsAndKeepsItsOwn)
{
    const CVqQuickItemControl& control = Host(Slider);
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Right);
    ASSERT_EQ(window.Focus(), "hosted");

    window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Focus(), "hosted");
    EXPECT_GT(control.Content()->property("value").toDouble(), 0.55);
}

TEST_F(ToolbarGeneral, KeepsArrowsThatItsItemDoesNotTake)
{
    Host(Field);
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Right);

    for (int i = 0; i < 5; ++i)
        window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Focus(), "hosted");
}

TEST_F(ToolbarGeneral, TabLeavesFromWithinIt)
{
    Host(Slider);
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_Right);

    window.Press(Qt::Key_Tab);

    EXPECT_EQ(window.Focus(), "after");
}

TEST_F(ToolbarGeneral, BacktabFromBehindComesToTheControlThatHadItLast)
{
    Host(Slider);
    window.FocusField("after");

    window.Press(Qt::Key_Backtab);

    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(ToolbarGeneral, GivesItToTheFirstStopOfAGroup)
{
    Host(Group);
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Focus(), "hosted");
    EXPECT_TRUE(window.Window().activeFocusItem()->inherits("QQuickTextInput"));
}

TEST_F(ToolbarGeneral, IsSkippedWhenNothingInItTakesTheKeyboard)
{
    Host(Label);
    window.Press(Qt::Key_Tab);

    window.Press(Qt::Key_Right);
    EXPECT_EQ(window.Focus(), "help");

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Focus(), "open");
}

TEST_F(ToolbarGeneral, MovesIntoThePickerAndBack)
{
    const CVqQuickItemControl& control = Host(Label);
    QQuickItem* content = control.Content();

    window.SetBar("width", 80);
    ASSERT_TRUE(control.IsInPicker());
    window.Picker().SetOpened(true);
    window.Settle();
    EXPECT_EQ(content->window(), &window.Window());

    window.SetBar("width", 300);
    EXPECT_TRUE(window.Bar()->isAncestorOf(content));
}

TEST_F(ToolbarGeneral, ItsItemStaysWhenTheLooksGo)
{
    const CVqQuickItemControl& control = Host(Label);
    window.Settle();

    window.SetBar("toolbar", QVariant::fromValue<CVqQuickButtonToolbar*>(nullptr));
    window.SetBar("toolbar", QVariant::fromValue(&window.Toolbar()));

    EXPECT_EQ(ToolbarWindow::Place(control.Content()).size(), QSizeF(60, 20));
}
