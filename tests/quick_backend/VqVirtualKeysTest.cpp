#include "quick_backend/VqVirtualKeys.h"

#include "AbstractGui/CVqAccelerators.h"
#include "system/CVqStringW.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace {

struct KeyRow
{
    const char* name;
    int qt_key;
    Qt::KeyboardModifiers modifiers;
    unsigned key;
    const char* label; // as the table of key texts has it, or null
};

std::ostream& operator<<(std::ostream& out, const KeyRow& row)
{
    return out << row.name;
}

SVqKeyPress KeyOf(int qt_key, Qt::KeyboardModifiers modifiers, EVqKeyCodes codes = EVqKeyCodes::None,
                  quint32 scan = 0, quint32 native = 0)
{
    return VqVirtualKey(QKeyEvent(QEvent::KeyPress, qt_key, modifiers, scan, native, 0), codes);
}

class VqVirtualKeysTable : public testing::TestWithParam<KeyRow>
{ };

constexpr auto Pad = Qt::KeypadModifier;
constexpr auto Plain = Qt::NoModifier;

const KeyRow TextRows[] = {
    {"Break", Qt::Key_Cancel, Plain, 3, "Break"},
    {"Backspace", Qt::Key_Backspace, Plain, 8, "Backspace"},
    {"Tab", Qt::Key_Tab, Plain, 9, "Tab"},
    {"Num5", Qt::Key_Clear, Pad, 12, "Num 5"},
    {"Return", Qt::Key_Return, Plain, 13, "Enter"},
    {"PadEnter", Qt::Key_Enter, Pad, 13, "Enter"},
    {"Pause", Qt::Key_Pause, Plain, 19, "Pause"},
    {"Esc", Qt::Key_Escape, Plain, 27, "Esc"},
    {"Space", Qt::Key_Space, Plain, 32, "Space"},
    {"PageUp", Qt::Key_PageUp, Plain, 33, "PageUp"},
    {"PageDown", Qt::Key_PageDown, Plain, 34, "PageDown"},
    {"End", Qt::Key_End, Plain, 35, "End"},
    {"Home", Qt::Key_Home, Plain, 36, "Home"},
    {"PadHome", Qt::Key_Home, Pad, 36, "Home"},
    {"Left", Qt::Key_Left, Plain, 37, "Left"},
    {"Up", Qt::Key_Up, Plain, 38, "Up"},
    {"Right", Qt::Key_Right, Plain, 39, "Right"},
    {"Down", Qt::Key_Down, Plain, 40, "Down"},
    {"Select", Qt::Key_Select, Plain, 41, "Select"},
    {"Print", Qt::Key_Printer, Plain, 42, "Print"},
    {"Exec", Qt::Key_Execute, Plain, 43, "Exec"},
    {"SnapShot", Qt::Key_Print, Plain, 44, "SnapShot"},
    {"SysReq", Qt::Key_SysReq, Plain, 44, "SnapShot"},
    {"Insert", Qt::Key_Insert, Plain, 45, "Insert"},
    {"Delete", Qt::Key_Delete, Plain, 46, "Delete"},
    {"Num0", Qt::Key_0, Pad, 96, "Num0"},
    {"Num1", Qt::Key_1, Pad, 97, "Num1"},
    {"Num2", Qt::Key_2, Pad, 98, "Num2"},
    {"Num3", Qt::Key_3, Pad, 99, "Num3"},
    {"Num4", Qt::Key_4, Pad, 100, "Num4"},
    {"Num5Digit", Qt::Key_5, Pad, 101, "Num5"},
    {"Num6", Qt::Key_6, Pad, 102, "Num6"},
    {"Num7", Qt::Key_7, Pad, 103, "Num7"},
    {"Num8", Qt::Key_8, Pad, 104, "Num8"},
    {"Num9", Qt::Key_9, Pad, 105, "Num9"},
    {"PadTimes", Qt::Key_Asterisk, Pad, 106, "*"},
    {"PadPlus", Qt::Key_Plus, Pad, 107, "+"},
    {"PadSeparator", Qt::Key_Bar, Pad, 108, "|"},
    {"PadMinus", Qt::Key_Minus, Pad, 109, "-"},
    {"PadPeriod", Qt::Key_Period, Pad, 110, "."},
    {"PadComma", Qt::Key_Comma, Pad, 110, "."},
    {"PadSlash", Qt::Key_Slash, Pad, 111, "/"},
    {"NumLock", Qt::Key_NumLock, Plain, 144, "Num Lock"},
    {"ScrollLock", Qt::Key_ScrollLock, Plain, 145, "Scroll Lock"},
    {"Semicolon", Qt::Key_Semicolon, Plain, 186, ";"},
    {"Plus", Qt::Key_Plus, Plain, 187, "+"},
    {"Equal", Qt::Key_Equal, Plain, 187, "+"},
    {"Comma", Qt::Key_Comma, Plain, 188, ","},
    {"Minus", Qt::Key_Minus, Plain, 189, "-"},
    {"Period", Qt::Key_Period, Plain, 190, "."},
    {"Slash", Qt::Key_Slash, Plain, 191, "/"},
    {"Backquote", Qt::Key_QuoteLeft, Plain, 192, "`"},
    {"BracketLeft", Qt::Key_BracketLeft, Plain, 219, "["},
    {"Backslash", Qt::Key_Backslash, Plain, 220, "\\"},
    {"BracketRight", Qt::Key_BracketRight, Plain, 221, "]"},
    {"Apostrophe", Qt::Key_Apostrophe, Plain, 222, "'"},
};

const KeyRow ShiftedRows[] = {
    {"Backtab", Qt::Key_Backtab, Qt::ShiftModifier, 9, nullptr},
    {"Exclam", Qt::Key_Exclam, Qt::ShiftModifier, '1', nullptr},
    {"ParenRight", Qt::Key_ParenRight, Qt::ShiftModifier, '0', nullptr},
    {"Colon", Qt::Key_Colon, Qt::ShiftModifier, 186, nullptr},
    {"Less", Qt::Key_Less, Qt::ShiftModifier, 188, nullptr},
    {"Underscore", Qt::Key_Underscore, Qt::ShiftModifier, 189, nullptr},
    {"Greater", Qt::Key_Greater, Qt::ShiftModifier, 190, nullptr},
    {"Question", Qt::Key_Question, Qt::ShiftModifier, 191, nullptr},
    {"Tilde", Qt::Key_AsciiTilde, Qt::ShiftModifier, 192, nullptr},
    {"BraceLeft", Qt::Key_BraceLeft, Qt::ShiftModifier, 219, nullptr},
    {"Bar", Qt::Key_Bar, Qt::ShiftModifier, 220, nullptr},
    {"BraceRight", Qt::Key_BraceRight, Qt::ShiftModifier, 221, nullptr},
    {"QuoteDbl", Qt::Key_QuoteDbl, Qt::ShiftModifier, 222, nullptr},
};

std::string NameOf(const testing::TestParamInfo<KeyRow>& info)
{
    return info.param.name;
}

}

TEST_P(VqVirtualKeysTable, NamesTheKey)
{
    const KeyRow& row = GetParam();

    EXPECT_EQ(KeyOf(row.qt_key, row.modifiers).key, row.key);
}

TEST_P(VqVirtualKeysTable, PrintsAsItsLabel)
{
    const KeyRow& row = GetParam();
    if (!row.label)
        return;

    vq_wchar text[64] = {};
    CVqAccelerators::PrintAccel(0, KeyOf(row.qt_key, row.modifiers).key, text);

    EXPECT_EQ(CVqStringW(text).ToQString().toStdString(), row.label);
}

INSTANTIATE_TEST_SUITE_P(Texts, VqVirtualKeysTable, testing::ValuesIn(TextRows), NameOf);
INSTANTIATE_TEST_SUITE_P(Shifted, VqVirtualKeysTable, testing::ValuesIn(ShiftedRows), NameOf);

TEST(VqVirtualKeys, LettersAndDigitsAreTheirOwnCodes)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        EXPECT_EQ(KeyOf(letter, Plain).key, letter);
    for (char digit = '0'; digit <= '9'; ++digit)
        EXPECT_EQ(KeyOf(digit, Plain).key, digit);
}

TEST(VqVirtualKeys, FunctionKeysRunTo24)
{
    for (int number = 1; number <= 24; ++number)
        EXPECT_EQ(KeyOf(Qt::Key_F1 + number - 1, Plain).key, 111 + number);
    EXPECT_EQ(KeyOf(Qt::Key_F25, Plain).key, 0);
}

TEST(VqVirtualKeys, ModifiersBecomeFlags)
{
    EXPECT_EQ(KeyOf(Qt::Key_A, Qt::AltModifier).flags, 1u);
    EXPECT_EQ(KeyOf(Qt::Key_A, Qt::ControlModifier).flags, 2u);
    EXPECT_EQ(KeyOf(Qt::Key_A, Qt::ShiftModifier).flags, 4u);
    EXPECT_EQ(KeyOf(Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier).flags, 7u);
    EXPECT_EQ(KeyOf(Qt::Key_Home, Pad).flags, 0u);
}

TEST(VqVirtualKeys, ModifiersAloneAndTheDesktopsKeysNameNoKey)
{
    for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr,
                          Qt::Key_CapsLock, Qt::Key_Super_L, Qt::Key_VolumeUp})
        EXPECT_EQ(KeyOf(key, Plain).key, 0) << key;
    EXPECT_EQ(KeyOf(Qt::Key_E, Qt::MetaModifier).key, 0);
}

TEST(VqVirtualKeys, ACyrillicLetterGoesByItsPosition)
{
    const int es = 0x0421; // on the key that is C on a Latin layout

    EXPECT_EQ(KeyOf(es, Qt::ControlModifier, EVqKeyCodes::Evdev, 54).key, 'C');
    EXPECT_EQ(KeyOf(es, Qt::ControlModifier, EVqKeyCodes::Windows, 0, 'C').key, 'C');
    EXPECT_EQ(KeyOf(es, Qt::ControlModifier, EVqKeyCodes::Mac, 0, 8).key, 'C');
    EXPECT_EQ(KeyOf(es, Qt::ControlModifier).key, 0);
}

TEST(VqVirtualKeys, ALatinLetterGoesByItsCharacterWhereverItStands)
{
    EXPECT_EQ(KeyOf(Qt::Key_A, Plain, EVqKeyCodes::Evdev, 24).key, 'A'); // the French A, on the place of Q
}

TEST(VqVirtualKeys, AFrenchDigitKeyGoesByItsPosition)
{
    EXPECT_EQ(KeyOf(Qt::Key_Ampersand, Qt::ControlModifier, EVqKeyCodes::Evdev, 10).key, '1');
    EXPECT_EQ(KeyOf(Qt::Key_Minus, Qt::ControlModifier, EVqKeyCodes::Evdev, 15).key, '6');
}

TEST(VqVirtualKeys, AGermanShiftedSevenIsSevenAndNoSlash)
{
    EXPECT_EQ(KeyOf(Qt::Key_Slash, Qt::ShiftModifier, EVqKeyCodes::Evdev, 16).key, '7');
}

TEST(VqVirtualKeys, AnUnshiftedLessIsNotTheCommaKey)
{
    EXPECT_EQ(KeyOf(Qt::Key_Less, Qt::ControlModifier, EVqKeyCodes::Evdev, 94).key, 0);
}

TEST(VqVirtualKeys, WindowsCodesThatNameNoPositionAreNotTaken)
{
    EXPECT_EQ(KeyOf(Qt::Key_VolumeUp, Plain, EVqKeyCodes::Windows, 0, 0xAF).key, 0);
}

TEST(VqVirtualKeys, AMacEventWithoutNativeCodesIsNotTheLetterA)
{
    EXPECT_EQ(KeyOf(0x0421, Plain, EVqKeyCodes::Mac, 0, 0).key, 0);
}

TEST(VqVirtualKeys, TheOffscreenPlatformHasNoNativeCodes)
{
    EXPECT_EQ(VqPlatformKeyCodes(), EVqKeyCodes::None);
}
