#include "docs/snippets/menu_guide.h"

#include "tests/support/TestMenu.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class MenuGuide : public ::testing::Test
{
protected:
    MenuGuide() { m_menu.AppendPopup(10, 0, VQ_TEXT("&Edit")); }

    TestMenu m_menu;
    const QTemporaryDir m_folder;
    const QString m_file = m_folder.filePath(QStringLiteral("menu.cbor"));
};

}

TEST_F(MenuGuide, FurtherKeysOfAnItemAndKeysWithoutATextAllFire)
{
    give_keys(m_menu);

    EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "20:22+90 20:18+89 21:18+188 90:16+112");
    EXPECT_EQ(m_menu.Text(20), "&Redo|Ctrl+Shift+Z, Ctrl+Y");
    EXPECT_EQ(m_menu.Text(21), "&Preferences...|Ctrl+,");
}

TEST_F(MenuGuide, AKeyOfTheUserIsAskedFirst)
{
    give_keys(m_menu);

    const bool assigned = assign_user_key(m_menu, 20, 2, VQ_TEXT('R'));

    vq_uint64 target = 1;
    vq_uint32 id = 0;
    EXPECT_TRUE(assigned);
    EXPECT_TRUE(m_menu.Translate(VQ_TEXT('R'), 2, target, id));
    EXPECT_EQ(id, 20U);
    EXPECT_EQ(TestMenu::Keys(m_menu.SecondTable()), "20:18+82");
}

TEST_F(MenuGuide, AKeyThatAnotherCommandHasIsNotTaken)
{
    give_keys(m_menu);

    const bool assigned = assign_user_key(m_menu, 20, 2, 188);

    EXPECT_FALSE(assigned);
    EXPECT_EQ(TestMenu::Keys(m_menu.SecondTable()), "");
}

TEST_F(MenuGuide, AKeyThatTheCommandHasIsNotAddedAgain)
{
    give_keys(m_menu);
    assign_user_key(m_menu, 20, 2, VQ_TEXT('R'));

    const bool assigned = assign_user_key(m_menu, 20, 2, VQ_TEXT('R'));

    EXPECT_TRUE(assigned);
    EXPECT_EQ(TestMenu::Keys(m_menu.SecondTable()), "20:18+82");
}

TEST_F(MenuGuide, AKeyOfTheUserIsAssignedAgainBehindALoad)
{
    give_keys(m_menu);
    assign_user_key(m_menu, 20, 2, VQ_TEXT('R'));
    TestMenu other;

    EXPECT_TRUE(save_menu(m_menu, m_file));
    EXPECT_TRUE(load_menu(other, m_file));
    EXPECT_EQ(TestMenu::Keys(other.SecondTable()), "");
    EXPECT_TRUE(assign_user_key(other, 20, 2, VQ_TEXT('R')));

    vq_uint64 target = 1;
    vq_uint32 id = 0;
    EXPECT_TRUE(other.Translate(VQ_TEXT('R'), 2, target, id));
    EXPECT_EQ(id, 20U);
}

TEST_F(MenuGuide, HidingACommandHidesItsItemAndTheSeparatorThatIsLeftOver)
{
    m_menu.AppendMenuItem(11, 10, VQ_TEXT("Open"), VQ_TEXT("FileOpen"), 0);
    m_menu.AppendSeparator(12, 10);
    m_menu.AppendMenuItem(13, 10, VQ_TEXT("Import scan"), VQ_TEXT("FileImport(2);"), 0);

    hide_commands(m_menu);

    EXPECT_EQ(m_menu.Tree(), "10(11 12- 13*)");
}

TEST_F(MenuGuide, AStoredMenuComesBack)
{
    give_keys(m_menu);
    TestMenu other;

    EXPECT_TRUE(save_menu(m_menu, m_file));
    EXPECT_TRUE(load_menu(other, m_file));

    EXPECT_EQ(other.Tree(), m_menu.Tree());
    EXPECT_EQ(other.Text(20), "&Redo|Ctrl+Shift+Z, Ctrl+Y");
}

TEST_F(MenuGuide, AFileThatHoldsNoMenuLeavesTheMenu)
{
    QFile file(m_file);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("no menu");
    file.close();

    EXPECT_FALSE(load_menu(m_menu, m_file));
    EXPECT_FALSE(load_menu(m_menu, m_folder.filePath(QStringLiteral("missing"))));

    EXPECT_EQ(m_menu.Tree(), "10");
}

TEST_F(MenuGuide, AMenuIsNotSavedWhereNothingCanBeWritten)
{
    EXPECT_FALSE(save_menu(m_menu, m_folder.filePath(QStringLiteral("missing/menu.cbor"))));
}
