#include "tests/quick_backend/toolbar_setup/SetupPanel.h"

namespace {

using ToolbarSetupPanel = SetupPanel;

}

TEST_F(ToolbarSetupPanel, ListsTheButtonsOfTheChosenBar)
{
    EXPECT_TRUE(Row(4));
    EXPECT_FALSE(Row(5));

    Click(Find("setupTab1"));

    EXPECT_EQ(setup->CurrentToolbar(), &second);
    EXPECT_TRUE(Row(1));
    EXPECT_FALSE(Row(2));
}

TEST_F(ToolbarSetupPanel, ArrowsChooseAmongTheTabs)
{
    Find("setupTabs")->forceActiveFocus();

    Press(Qt::Key_Right);
    Press(Qt::Key_Right);

    EXPECT_EQ(setup->CurrentToolbar(), &second);
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
