#include "tests/quick_backend/OtherWindow.h"
#include "tests/quick_backend/toolbar_setup/SetupWindow.h"

namespace {

class ToolbarMenu : public testing::Test, protected SetupWindow
{
protected:
    void OpenOn(CVqQuickControl* control) { Click(control->Item(), Qt::RightButton); }
    bool IsOpen() { return Find("toolbarMenuCustomise") != nullptr; }
};

}

TEST_F(ToolbarMenu, HidesTheButtonThatWasClicked)
{
    const QSignalSpy accepted(setup.get(), &CVqQuickToolbarSetup::accepted);
    OpenOn(Named(first, "save"));
    ASSERT_TRUE(Find("toolbarMenuHide"));
    EXPECT_EQ(Find("toolbarMenuHide")->property("text").toString(), QStringLiteral("Hide \u201csave\u201d"));
    EXPECT_FALSE(Find("toolbarMenuRemove"));

    Click(Find("toolbarMenuHide"));

    EXPECT_EQ(Order(first), "open (save) - zoom undo");
    EXPECT_EQ(accepted.size(), 1);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ToolbarMenu, RemovesASeparator)
{
    OpenOn(At(first, 2));
    EXPECT_FALSE(Find("toolbarMenuHide"));

    Click(Find("toolbarMenuRemove"));

    EXPECT_EQ(Order(first), "open save zoom undo");
}

TEST_F(ToolbarMenu, ShowsWhatIsHiddenAgain)
{
    OpenOn(Named(first, "save"));
    EXPECT_FALSE(Find("toolbarMenuShowAll")->isEnabled());
    Click(Find("toolbarMenuHide"));

    OpenOn(Named(first, "open"));
    Click(Find("toolbarMenuShowAll"));

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(ToolbarMenu, BeginsASessionAtTheButton)
{
    OpenOn(Named(second, "copy"));

    Click(Find("toolbarMenuCustomise"));

    EXPECT_TRUE(setup->IsActive());
    EXPECT_EQ(setup->Control(), Named(second, "copy"));
}

TEST_F(ToolbarMenu, BesideTheButtonsItIsAboutTheBar)
{
    QTest::mouseClick(&Window(), Qt::RightButton, {}, {600, 15});
    Draw();

    ASSERT_TRUE(IsOpen());
    EXPECT_FALSE(Find("toolbarMenuHide"));
    Click(Find("toolbarMenuCustomise"));
    EXPECT_EQ(setup->CurrentToolbar(), &first);
}

TEST_F(ToolbarMenu, WorksByKeyboardAndGoesWithEscape)
{
    OpenOn(Named(first, "save"));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());

    OpenOn(Named(first, "save"));
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);

    EXPECT_EQ(Order(first), "open (save) - zoom undo");
}

TEST_F(ToolbarMenu, GoesWhenTheWindowIsLeft)
{
    OpenOn(Named(first, "save"));
    ASSERT_TRUE(IsOpen());

    const OtherWindow other;
    Draw();

    EXPECT_FALSE(IsOpen());
}

TEST_F(ToolbarMenu, WhileCustomisingItHidesForTheSessionOnly)
{
    setup->begin();
    Draw();
    OpenOn(Named(first, "save"));
    EXPECT_FALSE(Find("toolbarMenuCustomise")->isEnabled());

    Click(Find("toolbarMenuHide"));
    EXPECT_EQ(Order(first), "open (save) - zoom undo");
    setup->cancel();

    EXPECT_EQ(Order(first), "open save - zoom undo");
}
