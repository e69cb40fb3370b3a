#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

#include <QAccessible>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

QAccessibleInterface* accessible(QQuickItem* item)
{
    return QAccessible::queryAccessibleInterface(item);
}

void press(QAccessibleInterface* interface)
{
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

class ToolbarAccessible : public testing::Test
{
protected:
    void SetUp() override { button = &window.AddButton("open"); }

    QAccessibleInterface* Button() { return accessible(window.Look(*button)); }

    ToolbarWindow window;
    CVqQuickButton* button = nullptr;
};

}

TEST_F(ToolbarAccessible, TheBarIsAToolbarWithAName)
{
    EXPECT_EQ(accessible(window.Bar())->role(), QAccessible::ToolBar);
    EXPECT_EQ(accessible(window.Bar())->text(QAccessible::Name), u"main"_s);
}

TEST_F(ToolbarAccessible, AButtonIsNamedByItsText)
{
    ToolbarWindow::SetTooltip(*button, "Open a picture");
    button->SetKeyText(u"Ctrl+O"_s);

    EXPECT_EQ(Button()->role(), QAccessible::Button);
    EXPECT_EQ(Button()->text(QAccessible::Name), u"Open"_s);
    EXPECT_EQ(Button()->text(QAccessible::Description), u"Open a picture, Ctrl+O"_s);
}

TEST_F(ToolbarAccessible, WithoutATextTheTooltipIsTheName)
{
    CVqStringW empty;
    button->Set(vq_control_text, 0, &empty);
    ToolbarWindow::SetTooltip(*button, "Open a picture");

    EXPECT_EQ(Button()->text(QAccessible::Name), u"Open a picture"_s);
    EXPECT_EQ(Button()->text(QAccessible::Description), u""_s);
}

TEST_F(ToolbarAccessible, WithNeitherItsNameIsTheName)
{
    CVqStringW empty;
    button->Set(vq_control_text, 0, &empty);

    EXPECT_EQ(Button()->text(QAccessible::Name), u"open"_s);
}

TEST_F(ToolbarAccessible, AButtonThatIsOnOrOffIsACheckBox)
{
    button->SetCheckable(true);
    EXPECT_EQ(Button()->role(), QAccessible::CheckBox);
    EXPECT_TRUE(Button()->state().checkable);
    EXPECT_FALSE(Button()->state().checked);

    ToolbarWindow::Check(*button, true);
    EXPECT_TRUE(Button()->state().checked);
}

TEST_F(ToolbarAccessible, ADisabledButtonIsToldSo)
{
    button->Enable(false);

    EXPECT_TRUE(Button()->state().disabled);
    EXPECT_FALSE(Button()->state().focusable);
}

TEST_F(ToolbarAccessible, TheControlThatHasTheKeyboardIsFocused)
{
    window.FocusField("before");
    window.Press(Qt::Key_Tab);

    EXPECT_TRUE(Button()->state().focused);
}

TEST_F(ToolbarAccessible, APressTriggers)
{
    press(Button());

    EXPECT_THAT(window.Events(), ElementsAre("open triggered"));
}

TEST_F(ToolbarAccessible, TheArrowIsAButtonOfItsOwn)
{
    ToolbarWindow::SetDropDown(*button);
    QAccessibleInterface* arrow = accessible(window.Part(*button, "toolbarArrow"));

    EXPECT_EQ(arrow->role(), QAccessible::ButtonMenu);
    EXPECT_EQ(arrow->text(QAccessible::Name), u"Open"_s);
    EXPECT_EQ(arrow->parent(), Button());

    press(arrow);
    EXPECT_THAT(window.Events(), ElementsAre("open drop-down at 2,36"));
}

TEST_F(ToolbarAccessible, ASeparatorIsASeparator)
{
    CVqQuickControl& separator = window.AddSeparator();
    window.AddButton("save");

    EXPECT_EQ(accessible(window.Look(separator))->role(), QAccessible::Separator);
}

TEST_F(ToolbarAccessible, ThePickerIsNamedAndOpens)
{
    window.AddButton("save");
    window.SetBar("width", 60);
    QQuickItem* look = window.Picker().Item()->childItems().constFirst();
    EXPECT_EQ(accessible(look)->role(), QAccessible::ButtonMenu);
    EXPECT_EQ(accessible(look)->text(QAccessible::Name), u"More buttons"_s);

    press(accessible(look));
    window.Settle();

    EXPECT_TRUE(window.Picker().IsOpened());
    EXPECT_EQ(accessible(window.Picker().Area()->parentItem())->role(), QAccessible::ToolBar);
}

TEST_F(ToolbarAccessible, AHostedItemSpeaksForItself)
{
    CVqQuickControl& control = window.AddGeneral(
        "zoom", "T.Slider { implicitWidth: 60; implicitHeight: 20; Accessible.name: 'Zoom' }");
    window.Settle();
    auto& hosted = dynamic_cast<CVqQuickItemControl&>(control);

    EXPECT_EQ(accessible(hosted.Content())->text(QAccessible::Name), u"Zoom"_s);
    EXPECT_EQ(accessible(hosted.Content())->parent(), accessible(window.Bar()));
}
