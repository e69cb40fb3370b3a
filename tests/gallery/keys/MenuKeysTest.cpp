#include "gallery/keys/MenuKeys.h"

#include "tests/gallery/keys/KeyMenu.h"

using namespace Qt::StringLiterals;
using Gallery::MenuKey;

namespace {

class MenuKeysTest : public testing::Test
{
protected:
    KeyMenu m_menu{KeyDocument()};
    Gallery::MenuKeys m_keys{m_menu.Menu()};
};

}

TEST_F(MenuKeysTest, AllAreThoseOfTheTable)
{
    const QHash<vq_uint32, QList<MenuKey>> all = m_keys.All();

    EXPECT_EQ(all.size(), 4);
    EXPECT_EQ(all.value(2), (QList<MenuKey>{KeyOf::CtrlS, KeyOf::F12}));
    EXPECT_EQ(all.value(3), QList<MenuKey>{KeyOf::CtrlP});
    EXPECT_EQ(all.value(90), QList<MenuKey>{KeyOf::Left});
    EXPECT_EQ(all.value(91), QList<MenuKey>{KeyOf::ShiftF12});
}

TEST_F(MenuKeysTest, TheHolderIsWhoTheKeyFires)
{
    EXPECT_EQ(m_keys.HolderOf(KeyOf::CtrlP), 3u);
    EXPECT_EQ(m_keys.HolderOf(KeyOf::Left), 90u);
    EXPECT_EQ(m_keys.HolderOf(KeyOf::CtrlK), 0u);
}

TEST_F(MenuKeysTest, SetReplacesTheKeys)
{
    m_keys.Set(3, {KeyOf::CtrlK});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 0u);
    EXPECT_EQ(m_menu.Shown(3), u"Ctrl+K"_s);
}

TEST_F(MenuKeysTest, TheLabelFollows)
{
    m_keys.Set(3, {KeyOf::CtrlK});

    EXPECT_EQ(m_menu.Text(3), u"&Print...\aCtrl+K"_s);
}

TEST_F(MenuKeysTest, AnEntryCanLoseItsLastKey)
{
    m_keys.Set(3, {});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 0u);
    EXPECT_EQ(m_menu.Shown(3), QString());
    EXPECT_EQ(m_menu.Text(3), u"&Print..."_s);
}

TEST_F(MenuKeysTest, AKeyThatNoTextCarriesIsSet)
{
    const MenuKey comma{18, 188};

    m_keys.Set(3, {comma});

    EXPECT_EQ(m_menu.Fires(comma), 3u);
    EXPECT_EQ(m_menu.Shown(3), u"Ctrl+,"_s);
}

TEST_F(MenuKeysTest, TakeLeavesTheOtherKeysOfTheHolder)
{
    m_keys.Take(KeyOf::CtrlS);

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 0u);
    EXPECT_EQ(m_menu.Fires(KeyOf::F12), 2u);
    EXPECT_EQ(m_menu.Shown(2), u"F12"_s);
    EXPECT_EQ(m_menu.Text(2), u"&Save\aF12"_s);
}

TEST_F(MenuKeysTest, TakeTakesFromAllThatHoldTheKey)
{
    m_menu.Menu().AppendIdAccelKey(3, KeyOf::CtrlS.flags, KeyOf::CtrlS.key, false);

    m_keys.Take(KeyOf::CtrlS);

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 0u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 3u);
}

TEST_F(MenuKeysTest, AKeyWithoutAnEntryCanBeSetAndTaken)
{
    m_keys.Set(90, {KeyOf::CtrlK});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 90u);
    m_keys.Take(KeyOf::CtrlK);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 0u);
}
