#include "tests/quick_backend/toolbar_setup/SetupPanel.h"

namespace {

using ToolbarSetupCommands = SetupPanel;

class MirroredToolbarSetupCommands : public SetupPanel
{
protected:
    MirroredToolbarSetupCommands() : SetupPanel("width: 740; LayoutMirroring.enabled: true") { }
};

}

TEST_F(ToolbarSetupCommands, ACommandIsAddedInFrontOfTheChosenButton)
{
    EnterAt(1);
    Click(Command(6));

    Click(Find("setupAdd"));

    EXPECT_EQ(Order(first), "open Paste save - zoom undo");
    EXPECT_EQ(setup->Control(), Named(first, "Paste"));
}

TEST_F(ToolbarSetupCommands, ADoubleClickAddsToo)
{
    QTest::mouseDClick(&Window(), Qt::LeftButton, {}, On(Command(6), 0.5));

    EXPECT_EQ(Order(first), "open save - zoom undo Paste");
}

TEST_F(ToolbarSetupCommands, ACommandIsDraggedOntoABar)
{
    DragAndDrop(On(Command(6), 0.5), On(Named(second, "copy"), 0.1));

    EXPECT_EQ(Order(second), "cut Paste copy");
}

TEST_F(ToolbarSetupCommands, TypingFindsCommandsAndEnterAddsTheFirst)
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

TEST_F(ToolbarSetupCommands, EscapeClearsWhatWasTypedBeforeItCancels)
{
    Find("setupSearch")->forceActiveFocus();
    QTest::keyClick(&Window(), 'p');

    Press(Qt::Key_Escape);
    EXPECT_EQ(Find("setupSearch")->property("text").toString(), QString());
    EXPECT_TRUE(setup->IsActive());
    Press(Qt::Key_Escape);

    EXPECT_FALSE(setup->IsActive());
}

TEST_F(ToolbarSetupCommands, WithoutCommandsThereIsNoListOfThem)
{
    CVqVariant factory;
    setup->cancel();

    first.ShowToolbarSetup(0, factory, 0, false, nullptr);
    Draw();

    EXPECT_FALSE(Find("setupCommands"));
    EXPECT_TRUE(Find("setupButtons"));
}

TEST_F(ToolbarSetupCommands, TheListOfCommandsWorksByKeyboard)
{
    Find("setupSearch")->forceActiveFocus();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);

    Press(Qt::Key_Return);

    EXPECT_EQ(Order(first), "open save - zoom undo FileSave");
}

TEST_F(MirroredToolbarSetupCommands, TheSearchBeginsAtTheRight)
{
    EXPECT_EQ(Find("setupSearch")->property("effectiveHorizontalAlignment").toInt(), int(Qt::AlignRight));
}
