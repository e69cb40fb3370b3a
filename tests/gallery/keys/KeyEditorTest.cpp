#include "gallery/keys/KeyEditor.h"

#include "tests/gallery/keys/KeyMenu.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Gallery::KeyEditor;
using Gallery::MenuKey;

namespace {

class KeyEditorTest : public testing::Test
{
protected:
    KeyEditorTest() { m_editor.SetCommand(u"Print"_s); }

    void Press(const MenuKey& key) { m_editor.press(key.flags & 7, key.key); }

    const Gallery::MenuDocument m_document = KeyDocument();
    KeyMenu m_menu{m_document};
    KeyEditor m_editor{m_menu.Menu(), m_document};
    QSignalSpy m_changes{&m_editor, &KeyEditor::KeysChanged};
};

}

TEST_F(KeyEditorTest, TellsTheCommandInHand)
{
    EXPECT_EQ(m_editor.Label(), u"Print..."_s);
    EXPECT_EQ(m_editor.Place(), u"File"_s);
    EXPECT_EQ(m_editor.KeyTexts(), QStringList{u"Ctrl+P"_s});
    EXPECT_FALSE(m_editor.IsOwn());
    EXPECT_EQ(m_editor.OwnCount(), 0);
}

TEST_F(KeyEditorTest, AnUnknownCommandIsNone)
{
    m_editor.SetCommand(u"Wobble"_s);
    Press(KeyOf::CtrlK);
    m_editor.remove(0);
    m_editor.reset();

    EXPECT_EQ(m_editor.Command(), QString());
    EXPECT_EQ(m_editor.Label(), QString());
    EXPECT_TRUE(m_editor.KeyTexts().isEmpty());
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, AFreeKeyIsGivenAtOnce)
{
    Press(KeyOf::CtrlK);

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 3u);
    EXPECT_EQ(m_editor.KeyTexts(), (QStringList{u"Ctrl+P"_s, u"Ctrl+K"_s}));
    EXPECT_EQ(m_editor.Told(), u"Print... has the key Ctrl+K now."_s);
    EXPECT_TRUE(m_editor.IsOwn());
    EXPECT_EQ(m_changes.size(), 1);
}

TEST_F(KeyEditorTest, ItsOwnKeyIsNoQuestion)
{
    Press(KeyOf::CtrlP);

    EXPECT_EQ(m_editor.Told(), u"Print... has the key Ctrl+P already."_s);
    EXPECT_EQ(m_editor.Question(), QString());
    EXPECT_EQ(m_editor.KeyTexts(), QStringList{u"Ctrl+P"_s});
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, AKeyOfAnotherCommandIsAskedFirst)
{
    Press(KeyOf::CtrlS);

    EXPECT_EQ(m_editor.Question(), u"Ctrl+S is the key of Save."_s);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, TakingOverLeavesTheOtherKeysOfTheHolder)
{
    Press(KeyOf::CtrlS);

    m_editor.takeOver();

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 3u);
    EXPECT_EQ(m_menu.Fires(KeyOf::F12), 2u);
    EXPECT_EQ(m_menu.Shown(2), u"F12"_s);
    EXPECT_EQ(m_menu.Shown(3), u"Ctrl+P, Ctrl+S"_s);
    EXPECT_EQ(m_editor.Told(), u"Print... has the key Ctrl+S now, which was taken from Save."_s);
    EXPECT_EQ(m_editor.Question(), QString());
    EXPECT_EQ(m_changes.size(), 1);
    EXPECT_EQ(m_editor.OwnCount(), 2);
}

TEST_F(KeyEditorTest, LeavingChangesNothing)
{
    Press(KeyOf::CtrlS);

    m_editor.leave();

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
    EXPECT_EQ(m_editor.Told(), u"Save keeps the key Ctrl+S."_s);
    EXPECT_EQ(m_editor.Question(), QString());
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, WithoutAQuestionTheAnswersDoNothing)
{
    m_editor.takeOver();
    m_editor.leave();

    EXPECT_EQ(m_editor.Told(), QString());
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, AnotherCommandLeavesTheQuestion)
{
    Press(KeyOf::CtrlS);

    m_editor.SetCommand(u"Pan"_s);
    m_editor.takeOver();

    EXPECT_EQ(m_editor.Question(), QString());
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
}

TEST_F(KeyEditorTest, AKeyWithoutAnEntryCanBeTakenOver)
{
    Press(KeyOf::Left);

    EXPECT_EQ(m_editor.Question(), u"Left is the key of Pan Left."_s);
    m_editor.takeOver();
    EXPECT_EQ(m_menu.Fires(KeyOf::Left), 3u);
}

TEST_F(KeyEditorTest, ACommandWithoutAnEntryGetsAKey)
{
    m_editor.SetCommand(u"Pan"_s);

    Press(KeyOf::CtrlK);

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 90u);
    EXPECT_EQ(m_menu.Fires(KeyOf::Left), 90u);
}

TEST_F(KeyEditorTest, AKeyIsTakenAwayFromWhicheverEntryHasIt)
{
    m_editor.SetCommand(u"Save"_s);

    m_editor.remove(2);

    EXPECT_EQ(m_menu.Fires(KeyOf::ShiftF12), 0u);
    EXPECT_EQ(m_editor.KeyTexts(), (QStringList{u"Ctrl+S"_s, u"F12"_s}));
    EXPECT_EQ(m_editor.Told(), u"Save has lost the key Shift+F12."_s);
    EXPECT_EQ(m_changes.size(), 1);
}

TEST_F(KeyEditorTest, AKeyOutsideTheListIsNotTakenAway)
{
    m_editor.remove(1);
    m_editor.remove(-1);

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 3u);
    EXPECT_EQ(m_changes.size(), 0);
}

TEST_F(KeyEditorTest, ResetGivesTheFactoryKeysBack)
{
    Press(KeyOf::CtrlK);
    m_editor.remove(0);

    m_editor.reset();

    EXPECT_EQ(m_editor.KeyTexts(), QStringList{u"Ctrl+P"_s});
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 0u);
    EXPECT_EQ(m_editor.Told(), u"Print... has its factory keys again."_s);
    EXPECT_FALSE(m_editor.IsOwn());
}

TEST_F(KeyEditorTest, ResetTakesNothingFromOthers)
{
    Press(KeyOf::CtrlS);
    m_editor.takeOver();
    m_editor.SetCommand(u"Save"_s);

    m_editor.reset();

    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 3u);
    EXPECT_EQ(m_editor.KeyTexts(), (QStringList{u"F12"_s, u"Shift+F12"_s}));
    EXPECT_EQ(m_editor.Told(),
              u"Save has its factory keys again, but for Ctrl+S: another command has that."_s);
}

TEST_F(KeyEditorTest, ResetOfAllGivesEachItsFactoryKeys)
{
    Press(KeyOf::CtrlS);
    m_editor.takeOver();
    m_editor.remove(0);
    m_editor.SetCommand(u"Red"_s);
    Press(KeyOf::CtrlK);

    m_editor.resetAll();

    EXPECT_EQ(m_editor.OwnCount(), 0);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlS), 2u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlP), 3u);
    EXPECT_EQ(m_menu.Fires(KeyOf::CtrlK), 0u);
    EXPECT_EQ(m_editor.Told(), u"All commands have their factory keys."_s);
}
