#include "gallery/keys/OwnKeys.h"

#include "gallery/keys/MenuKeys.h"
#include "tests/gallery/keys/KeyMenu.h"

using namespace Qt::StringLiterals;
using Gallery::GiveOwnKeys;
using Gallery::MenuDocument;
using Gallery::MenuKey;
using Gallery::MenuKeys;
using Gallery::OwnKeys;
using Gallery::OwnKeysOf;

namespace {

class OwnKeysTest : public testing::Test
{
protected:
    const MenuDocument m_document = KeyDocument();
    KeyMenu m_menu{m_document};
};

}

TEST_F(OwnKeysTest, FactoryKeysAreThoseOfEachEntry)
{
    const QHash<vq_uint32, QList<MenuKey>> keys = Gallery::FactoryKeys(m_document);

    EXPECT_EQ(keys.size(), 4);
    EXPECT_EQ(keys.value(2), (QList<MenuKey>{KeyOf::CtrlS, KeyOf::F12}));
    EXPECT_EQ(keys.value(90), QList<MenuKey>{KeyOf::Left});
}

TEST_F(OwnKeysTest, ANewMenuHasNone)
{
    EXPECT_TRUE(OwnKeysOf(m_menu.Menu(), m_document).isEmpty());
}

TEST_F(OwnKeysTest, AnotherOrderIsNoDifference)
{
    MenuKeys(m_menu.Menu()).Set(2, {KeyOf::F12, KeyOf::CtrlS});

    EXPECT_TRUE(OwnKeysOf(m_menu.Menu(), m_document).isEmpty());
}

TEST_F(OwnKeysTest, MoreFewerAndOtherKeysAreDifferences)
{
    MenuKeys keys(m_menu.Menu());
    keys.Set(2, {KeyOf::CtrlS});
    keys.Set(3, {});
    keys.Set(11, {KeyOf::CtrlK});
    keys.Set(90, {KeyOf::F12});

    EXPECT_EQ(OwnKeysOf(m_menu.Menu(), m_document),
              (QList<OwnKeys>{{2, u"Save"_s, {KeyOf::CtrlS}},
                              {3, u"Print"_s, {}},
                              {11, u"Save"_s, {KeyOf::CtrlK}},
                              {90, u"Pan"_s, {KeyOf::F12}}}));
}

TEST_F(OwnKeysTest, AreGivenToAnotherMenu)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{3, u"Print"_s, {KeyOf::CtrlK}}, {2, u"Save"_s, {}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 0u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 0u);
}

TEST_F(OwnKeysTest, ACommandWithANewIdentifierIsFoundByItsText)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{777, u"Print"_s, {KeyOf::CtrlK}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 3u);
}

TEST_F(OwnKeysTest, AnIdentifierThatStandsForAnotherCommandNowIsNotTakenForIt)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{2, u"Print"_s, {KeyOf::CtrlK}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
}

TEST_F(OwnKeysTest, ACommandThatIsGoneIsPassedOver)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{3, u"Gone"_s, {KeyOf::CtrlS}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
}

TEST_F(OwnKeysTest, OfTwoCommandsWithOneKeyTheUsersOwnHasIt)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{3, u"Print"_s, {KeyOf::CtrlS}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 3u);
    EXPECT_EQ(m_menu.Shown(2), u"F12"_s);
}

TEST_F(OwnKeysTest, KeysThatWereExchangedStayExchanged)
{
    GiveOwnKeys(m_menu.Menu(), m_document, {{2, u"Save"_s, {KeyOf::CtrlP}}, {3, u"Print"_s, {KeyOf::CtrlS}}});

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 2u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 3u);
}
