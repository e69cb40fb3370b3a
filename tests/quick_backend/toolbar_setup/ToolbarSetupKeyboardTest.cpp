#include "tests/quick_backend/OtherWindow.h"
#include "tests/quick_backend/toolbar_setup/SetupWindow.h"

namespace {

/// Who has the keyboard before, during and after a session.
class ToolbarSetupKeyboard : public testing::Test, protected SetupWindow
{
protected:
    ToolbarSetupKeyboard()
    {
        field->forceActiveFocus();
        other->setParentItem(Window().contentItem());
        other->setFocusPolicy(Qt::StrongFocus);
    }

    void Begin(QQuickItem* parent)
    {
        CVqVariant factory;
        first.ShowToolbarSetup(reinterpret_cast<vq_uint64>(parent), factory, 0, true, nullptr);
        Draw();
    }

    bool IsInPanel() { return Find("toolbarSetupPanel")->hasActiveFocus(); }

    QQuickItem* field = Find("field");
    std::unique_ptr<QQuickItem> other = std::make_unique<QQuickItem>();
};

}

TEST_F(ToolbarSetupKeyboard, ThePanelTakesItAndGivesItBack)
{
    Begin(nullptr);
    EXPECT_TRUE(IsInPanel());

    Click(Find("setupDone"));

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, EscapeGivesItBack)
{
    Begin(nullptr);

    Press(Qt::Key_Escape);

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, TheOpenerGetsItWhenItWasElsewhere)
{
    Begin(other.get());

    Press(Qt::Key_Escape);

    EXPECT_TRUE(other->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, ThePartOfTheOpenerGetsItThatHadIt)
{
    Begin(Window().contentItem());

    Press(Qt::Key_Escape);

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, WhoTookItInTheMeantimeKeepsIt)
{
    Begin(nullptr);
    other->forceActiveFocus();

    setup->accept();
    Draw();

    EXPECT_TRUE(other->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, ItComesBackFromABarToo)
{
    Begin(nullptr);
    Click(Named(first, "save")->Item());
    ASSERT_FALSE(field->hasActiveFocus());

    setup->accept();
    Draw();

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, ItComesBackAfterASessionThatTheContextMenuBegan)
{
    Click(Named(first, "save")->Item(), Qt::RightButton);
    Click(Find("toolbarMenuCustomise"));
    EXPECT_TRUE(IsInPanel());

    Press(Qt::Key_Escape);

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, ASessionRightAfterAnotherGivesItBackToo)
{
    Begin(nullptr);

    setup->accept();
    Begin(nullptr);
    EXPECT_TRUE(IsInPanel());
    Press(Qt::Key_Escape);

    EXPECT_TRUE(field->hasActiveFocus());
}

TEST_F(ToolbarSetupKeyboard, TheOpenerMayEndBeforeTheSession)
{
    Begin(other.get());
    other.reset();

    Press(Qt::Key_Escape);

    EXPECT_FALSE(setup->IsActive());
}

TEST_F(ToolbarSetupKeyboard, AnOpenerInAnotherWindowGetsItWithItsWindow)
{
    OtherWindow preferences;
    other->setParentItem(preferences.Window().contentItem());

    Begin(other.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    EXPECT_TRUE(IsInPanel());
    Press(Qt::Key_Escape);

    ASSERT_TRUE(QTest::qWaitForWindowActive(&preferences.Window()));
    EXPECT_TRUE(other->hasActiveFocus());
}
