#include "gallery/script/KeyPress.h"

#include <QKeyEvent>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::KeyPress;
using Gallery::ParseKeyPress;

namespace {

struct PressRow
{
    const char* name;
    const char* key_name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
};

}

class KeyNames : public testing::TestWithParam<PressRow>
{ };

TEST_P(KeyNames, GiveKeyModifiersAndText)
{
    const std::optional<KeyPress> press = ParseKeyPress(QString::fromLatin1(GetParam().key_name));

    ASSERT_TRUE(press);
    EXPECT_EQ(press->key, GetParam().key);
    EXPECT_EQ(press->modifiers, GetParam().modifiers);
    EXPECT_EQ(press->text, QString::fromLatin1(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    KeyPress, KeyNames,
    testing::Values(
        PressRow{"Letter", "s", Qt::Key_S, Qt::NoModifier, "s"},
        PressRow{"CapitalNameOfALetter", "S", Qt::Key_S, Qt::NoModifier, "s"},
        PressRow{"ShiftLetter", "Shift+S", Qt::Key_S, Qt::ShiftModifier, "S"},
        PressRow{"CtrlTypesNothing", "Ctrl+Shift+S", Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, ""},
        PressRow{"AltKeepsItsLetter", "Alt+F", Qt::Key_F, Qt::AltModifier, "f"},
        PressRow{"Digit", "Ctrl+1", Qt::Key_1, Qt::ControlModifier, ""},
        PressRow{"CommaByName", "Ctrl+Comma", Qt::Key_Comma, Qt::ControlModifier, ""},
        PressRow{"PlusByName", "Ctrl+Plus", Qt::Key_Plus, Qt::ControlModifier, ""},
        PressRow{"PlusItself", "Ctrl++", Qt::Key_Plus, Qt::ControlModifier, ""},
        PressRow{"PlusAlone", "+", Qt::Key_Plus, Qt::NoModifier, "+"},
        PressRow{"FunctionKey", "Shift+F12", Qt::Key_F12, Qt::ShiftModifier, ""},
        PressRow{"LastFunctionKey", "F24", Qt::Key_F24, Qt::NoModifier, ""},
        PressRow{"NumericPad", "Ctrl+Num1", Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier, ""},
        PressRow{"Word", "alt+enter", Qt::Key_Return, Qt::AltModifier, ""},
        PressRow{"Bracket", "[", Qt::Key_BracketLeft, Qt::NoModifier, "["},
        PressRow{"BracketByName", "Ctrl+BracketRight", Qt::Key_BracketRight, Qt::ControlModifier, ""},
        PressRow{"Space", "Space", Qt::Key_Space, Qt::NoModifier, " "}),
    [](const auto& row) { return row.param.name; });

class NoKeyNames : public testing::TestWithParam<const char*>
{ };

TEST_P(NoKeyNames, GiveNone)
{
    EXPECT_FALSE(ParseKeyPress(QString::fromLatin1(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(KeyPress, NoKeyNames,
                         testing::Values("", "Ctrl+", "Ctrl", "Hyper+A", "F0", "F25", "Num10", "Wobble",
                                         " "));

namespace {

class ListeningWindow : public QWindow
{
public:
    QList<std::pair<QEvent::Type, int>> m_events;

protected:
    void keyPressEvent(QKeyEvent* event) override { m_events.append({event->type(), event->key()}); }
    void keyReleaseEvent(QKeyEvent* event) override { m_events.append({event->type(), event->key()}); }
};

}

TEST(KeyPress, SendingGivesAPressAndARelease)
{
    ListeningWindow window;

    Gallery::SendKeyPress(*ParseKeyPress(u"F5"_s), window);

    const QList<std::pair<QEvent::Type, int>> expected
        = {{QEvent::KeyPress, Qt::Key_F5}, {QEvent::KeyRelease, Qt::Key_F5}};
    EXPECT_EQ(window.m_events, expected);
}
