#include "quick_backend/CVqQuickMenu.h"
#include "tests/quick_backend/OtherWindow.h"
#include "tests/quick_backend/toolbar_qml/ToolbarPickerFixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

using ToolbarPopup = ToolbarPickerFixture;

/// open, with a popup of a menu, lies in the picker.
class ToolbarPopupMenus : public testing::Test
{
protected:
    ToolbarPopupMenus()
    {
        menu.AppendPopup(7, 0, VQ_TEXT("Recent"));
        menu.AppendMenuItem(8, 7, VQ_TEXT("one"), VQ_TEXT("One"), 0);
        menu.SetCmdHandler([this](vq_uint32 id) { fired.push_back(id); });
        window.Find("contextMenu")->setProperty("menu", QVariant::fromValue(&menu));
        window.Toolbar().SetMenu(&menu);
        window.AddButton("new");
        auto& open = window.AddButton("open");
        open.SetHandler(nullptr);
        ToolbarWindow::SetDropDown(open);
        window.Click(window.Find("look:"));
        window.Click(window.Part(open, "toolbarArrow"));
    }

    CVqQuickMenu menu;
    std::vector<vq_uint32> fired;
    ToolbarWindow window{"width: 60", EOrientation::Horizontal, "ContextMenu { anchors.fill: parent }"};
};

}

TEST_F(ToolbarPopup, ByKeyboardTheFirstControlHasIt)
{
    OpenByKeyboard();

    EXPECT_TRUE(Panel());
    EXPECT_EQ(window.Focus(), First());
}

TEST_F(ToolbarPopup, EscapeClosesItAndGoesBackToThePicker)
{
    OpenByKeyboard();

    window.Press(Qt::Key_Escape);

    EXPECT_FALSE(Panel());
    EXPECT_EQ(window.Focus(), "picker");
}

TEST_F(ToolbarPopup, DownOpensIt)
{
    window.Press(Qt::Key_Tab);
    window.Press(Qt::Key_End);

    window.Press(Qt::Key_Down);

    EXPECT_TRUE(Panel());
}

TEST_F(ToolbarPopup, ArrowsAndTabWalkOverItsControls)
{
    OpenByKeyboard();

    window.Press(Qt::Key_Left);
    EXPECT_EQ(window.Focus(), "h");

    window.Press(Qt::Key_Tab);
    EXPECT_EQ(window.Focus(), First());

    window.Press(Qt::Key_Backtab);
    EXPECT_EQ(window.Focus(), "h");
}

TEST_F(ToolbarPopup, UpAndDownGoFromLineToLine)
{
    for (const char* name : {"i", "j", "k", "l", "m"})
        buttons.push_back(&window.AddButton(name));
    OpenByKeyboard();
    const std::string first = First();
    const qreal line = ToolbarWindow::Place(window.Window().activeFocusItem()).top();

    window.Press(Qt::Key_Down);
    EXPECT_GT(ToolbarWindow::Place(window.Window().activeFocusItem()).top(), line);

    window.Press(Qt::Key_Up);
    EXPECT_EQ(window.Focus(), first);
}

TEST_F(ToolbarPopup, SpaceInItTriggersAndGoesBackToThePicker)
{
    OpenByKeyboard();

    window.Press(Qt::Key_Space);

    EXPECT_THAT(window.Events(), ElementsAre(First() + " triggered"));
    EXPECT_FALSE(Panel());
    EXPECT_EQ(window.Focus(), "picker");
}

TEST_F(ToolbarPopup, OpenedByThePointerItGivesTheKeyboardBack)
{
    Open();

    window.Press(Qt::Key_Escape);

    EXPECT_EQ(window.Focus(), "before");
}

TEST_F(ToolbarPopup, OpenedByThePointerTheFirstArrowGoesToItsFirstControl)
{
    Open();
    EXPECT_EQ(window.Focus(), "toolbarHost");

    window.Press(Qt::Key_Right);

    EXPECT_EQ(window.Focus(), First());
}

TEST_F(ToolbarPopup, ScrollsWhereTheWindowIsTooLow)
{
    for (int i = 0; i < 60; ++i)
        window.AddButton("more");

    OpenByKeyboard();
    window.Press(Qt::Key_End);

    const QRectF focused = ToolbarWindow::Place(window.Window().activeFocusItem());
    EXPECT_TRUE(QRectF(0, 0, 400, 300).contains(focused));
}

TEST_F(ToolbarPopup, GoesWhenTheWindowIsLeft)
{
    Open();
    ASSERT_TRUE(Panel());

    const OtherWindow other;

    EXPECT_FALSE(Panel());
    EXPECT_FALSE(window.Picker().IsOpened());
}

TEST_F(ToolbarPopup, WhoComesBackToTheWindowFindsTheKeyboardAtThePicker)
{
    OpenByKeyboard();
    const OtherWindow other;

    window.Window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window.Window()));

    EXPECT_EQ(window.Focus(), "picker");
}

TEST_F(ToolbarPopup, WhileCustomisedItStaysWhenTheWindowIsLeft)
{
    window.Toolbar().EnableToolbarDragDrop(true);
    Open();

    const OtherWindow other;

    EXPECT_TRUE(Panel());
}

TEST_F(ToolbarPopupMenus, WhatHangsFromAButtonInItOpensAboveIt)
{
    ASSERT_TRUE(window.Find("menuRow0"));

    window.Click(window.Find("menuRow0"));

    EXPECT_THAT(fired, ElementsAre(8u));
    EXPECT_EQ(window.Find("menuRow0"), nullptr);
}

TEST_F(ToolbarPopupMenus, WhatHangsFromAButtonGoesWithItWhenTheWindowIsLeft)
{
    ASSERT_TRUE(window.Find("menuRow0"));

    const OtherWindow other;

    EXPECT_EQ(window.Find("menuRow0"), nullptr);
    EXPECT_FALSE(window.Picker().IsOpened());
}
