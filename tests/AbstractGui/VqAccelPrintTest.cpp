#include "AbstractGui/VqAccelPrint.h"

#include "tests/AbstractGui/AccelTexts.h"
#include "tests/AbstractGui/AnsweringTranslator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

using Text = std::basic_string<vq_wchar>;

struct LabelRow
{
    const char* name;
    int key;
    const vq_wchar* label;
    const vq_wchar* comment; // null: never translated
};

struct ModifierRow
{
    const char* name;
    vq_uint32 flags;
    const vq_wchar* text;
};

template <class Row>
std::string name_of(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

void PrintTo(const LabelRow& row, std::ostream* out)
{
    *out << row.name;
}

void PrintTo(const ModifierRow& row, std::ostream* out)
{
    *out << row.name;
}

// Every answer tells what was asked, such as "<Tab|Tab keyboard key>".
QString question(const QString& text, const QString& comment)
{
    return u'<' + text + u'|' + comment + u'>';
}

Text question(const vq_wchar* text, const vq_wchar* comment)
{
    return Text(VQ_TEXT("<")) + text + VQ_TEXT("|") + comment + VQ_TEXT(">");
}

Text grown(vq_uint32 flags, vq_wchar key)
{
    Text text = VQ_TEXT("what it held");
    VqPrintAccel(text, flags, key);
    return text;
}

constexpr LabelRow label_rows[] = {
    LabelRow{"Break", 3, VQ_TEXT("Break"), VQ_TEXT("Break keyboard key")},
    LabelRow{"Backspace", 8, VQ_TEXT("Backspace"), VQ_TEXT("Backspace keyboard key")},
    LabelRow{"Tab", 9, VQ_TEXT("Tab"), VQ_TEXT("Tab keyboard key")},
    LabelRow{"Clear", 12, VQ_TEXT("Num 5"), VQ_TEXT("")},
    LabelRow{"Enter", 13, VQ_TEXT("Enter"), VQ_TEXT("Enter keyboard key")},
    LabelRow{"Pause", 19, VQ_TEXT("Pause"), VQ_TEXT("Pause keyboard key")},
    LabelRow{"Esc", 27, VQ_TEXT("Esc"), VQ_TEXT("Esc keyboard key")},
    LabelRow{"Space", 32, VQ_TEXT("Space"), VQ_TEXT("Space keyboard key")},
    LabelRow{"PageUp", 33, VQ_TEXT("PageUp"), VQ_TEXT("PageUp keyboard key")},
    LabelRow{"PageDown", 34, VQ_TEXT("PageDown"), VQ_TEXT("PageDown keyboard key")},
    LabelRow{"End", 35, VQ_TEXT("End"), VQ_TEXT("End keyboard key")},
    LabelRow{"Home", 36, VQ_TEXT("Home"), VQ_TEXT("Home keyboard key")},
    LabelRow{"Left", 37, VQ_TEXT("Left"), VQ_TEXT("Left keyboard key")},
    LabelRow{"Up", 38, VQ_TEXT("Up"), VQ_TEXT("Up keyboard key")},
    LabelRow{"Right", 39, VQ_TEXT("Right"), VQ_TEXT("Right keyboard key")},
    LabelRow{"Down", 40, VQ_TEXT("Down"), VQ_TEXT("Down keyboard key")},
    LabelRow{"Select", 41, VQ_TEXT("Select"), VQ_TEXT("Select keyboard key (not present on most keyboards)")},
    LabelRow{"Print", 42, VQ_TEXT("Print"), VQ_TEXT("Print keyboard key")},
    LabelRow{"Exec", 43, VQ_TEXT("Exec"), VQ_TEXT("")},
    LabelRow{"SnapShot", 44, VQ_TEXT("SnapShot"), VQ_TEXT("")},
    LabelRow{"Insert", 45, VQ_TEXT("Insert"), VQ_TEXT("Insert keyboard key")},
    LabelRow{"Delete", 46, VQ_TEXT("Delete"), VQ_TEXT("Delete keyboard key")},
    LabelRow{"Num0", 96, VQ_TEXT("Num0"), VQ_TEXT("")},
    LabelRow{"Num1", 97, VQ_TEXT("Num1"), VQ_TEXT("")},
    LabelRow{"Num2", 98, VQ_TEXT("Num2"), VQ_TEXT("")},
    LabelRow{"Num3", 99, VQ_TEXT("Num3"), VQ_TEXT("")},
    LabelRow{"Num4", 100, VQ_TEXT("Num4"), VQ_TEXT("")},
    LabelRow{"Num5", 101, VQ_TEXT("Num5"), VQ_TEXT("")},
    LabelRow{"Num6", 102, VQ_TEXT("Num6"), VQ_TEXT("")},
    LabelRow{"Num7", 103, VQ_TEXT("Num7"), VQ_TEXT("")},
    LabelRow{"Num8", 104, VQ_TEXT("Num8"), VQ_TEXT("")},
    LabelRow{"Num9", 105, VQ_TEXT("Num9"), VQ_TEXT("")},
    LabelRow{"NumAsterisk", 106, VQ_TEXT("*"), nullptr},
    LabelRow{"NumPlus", 107, VQ_TEXT("+"), nullptr},
    LabelRow{"Bar", 108, VQ_TEXT("|"), nullptr},
    LabelRow{"NumMinus", 109, VQ_TEXT("-"), nullptr},
    LabelRow{"NumDot", 110, VQ_TEXT("."), nullptr},
    LabelRow{"NumSlash", 111, VQ_TEXT("/"), nullptr},
    LabelRow{"F1", 112, VQ_TEXT("F1"), nullptr},
    LabelRow{"F2", 113, VQ_TEXT("F2"), nullptr},
    LabelRow{"F3", 114, VQ_TEXT("F3"), nullptr},
    LabelRow{"F4", 115, VQ_TEXT("F4"), nullptr},
    LabelRow{"F5", 116, VQ_TEXT("F5"), nullptr},
    LabelRow{"F6", 117, VQ_TEXT("F6"), nullptr},
    LabelRow{"F7", 118, VQ_TEXT("F7"), nullptr},
    LabelRow{"F8", 119, VQ_TEXT("F8"), nullptr},
    LabelRow{"F9", 120, VQ_TEXT("F9"), nullptr},
    LabelRow{"F10", 121, VQ_TEXT("F10"), nullptr},
    LabelRow{"F11", 122, VQ_TEXT("F11"), nullptr},
    LabelRow{"F12", 123, VQ_TEXT("F12"), nullptr},
    LabelRow{"F13", 124, VQ_TEXT("F13"), nullptr},
    LabelRow{"F14", 125, VQ_TEXT("F14"), nullptr},
    LabelRow{"F15", 126, VQ_TEXT("F15"), nullptr},
    LabelRow{"F16", 127, VQ_TEXT("F16"), nullptr},
    LabelRow{"F17", 128, VQ_TEXT("F17"), nullptr},
    LabelRow{"F18", 129, VQ_TEXT("F18"), nullptr},
    LabelRow{"F19", 130, VQ_TEXT("F19"), nullptr},
    LabelRow{"F20", 131, VQ_TEXT("F20"), nullptr},
    LabelRow{"F21", 132, VQ_TEXT("F21"), nullptr},
    LabelRow{"F22", 133, VQ_TEXT("F22"), nullptr},
    LabelRow{"F23", 134, VQ_TEXT("F23"), nullptr},
    LabelRow{"F24", 135, VQ_TEXT("F24"), nullptr},
    LabelRow{"NumLock", 144, VQ_TEXT("Num Lock"), VQ_TEXT("NumLock keyboard key")},
    LabelRow{"ScrollLock", 145, VQ_TEXT("Scroll Lock"), VQ_TEXT("Scroll_key")},
    LabelRow{"Semicolon", 186, VQ_TEXT(";"), nullptr},
    LabelRow{"PlusKey", 187, VQ_TEXT("+"), nullptr},
    LabelRow{"Comma", 188, VQ_TEXT(","), nullptr},
    LabelRow{"MinusKey", 189, VQ_TEXT("-"), nullptr},
    LabelRow{"DotKey", 190, VQ_TEXT("."), nullptr},
    LabelRow{"SlashKey", 191, VQ_TEXT("/"), nullptr},
    LabelRow{"Backquote", 192, VQ_TEXT("`"), nullptr},
    LabelRow{"LeftBracket", 219, VQ_TEXT("["), nullptr},
    LabelRow{"Backslash", 220, VQ_TEXT("\\"), nullptr},
    LabelRow{"RightBracket", 221, VQ_TEXT("]"), nullptr},
    LabelRow{"Apostrophe", 222, VQ_TEXT("'"), nullptr}};

bool has_label(int key)
{
    return std::ranges::find(label_rows, key, &LabelRow::key) != std::end(label_rows);
}

class KeyLabels : public testing::TestWithParam<LabelRow>
{ };

class ModifierTexts : public testing::TestWithParam<ModifierRow>
{ };

}

TEST_P(KeyLabels, IsPrintedWithoutACatalogue)
{
    EXPECT_EQ(printed(16, static_cast<vq_wchar>(GetParam().key)), GetParam().label);
}

TEST_P(KeyLabels, IsPrintedBehindAModifier)
{
    EXPECT_EQ(printed(18, static_cast<vq_wchar>(GetParam().key)), Text(VQ_TEXT("Ctrl+")) + GetParam().label);
}

TEST_P(KeyLabels, IsTranslatedWithItsCommentOrNotAtAll)
{
    const AnsweringTranslator translator(
        [](const QString& text, const QString& comment) { return question(text, comment); });

    const LabelRow& row = GetParam();
    EXPECT_EQ(printed(0, static_cast<vq_wchar>(row.key)),
              row.comment ? question(row.label, row.comment) : Text(row.label));
}

INSTANTIATE_TEST_SUITE_P(VqAccelPrint, KeyLabels, testing::ValuesIn(label_rows), name_of<LabelRow>);

TEST_P(ModifierTexts, StandInFrontInTheOrderCtrlAltShift)
{
    EXPECT_EQ(printed(GetParam().flags, 0x70), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(VqAccelPrint, ModifierTexts,
                         testing::Values(ModifierRow{"None", 0, VQ_TEXT("F1")},
                                         ModifierRow{"Alt", 1, VQ_TEXT("Alt+F1")},
                                         ModifierRow{"Ctrl", 2, VQ_TEXT("Ctrl+F1")},
                                         ModifierRow{"CtrlAlt", 3, VQ_TEXT("Ctrl+Alt+F1")},
                                         ModifierRow{"Shift", 4, VQ_TEXT("Shift+F1")},
                                         ModifierRow{"AltShift", 5, VQ_TEXT("Alt+Shift+F1")},
                                         ModifierRow{"CtrlShift", 6, VQ_TEXT("Ctrl+Shift+F1")},
                                         ModifierRow{"CtrlAltShift", 7, VQ_TEXT("Ctrl+Alt+Shift+F1")},
                                         ModifierRow{"VirtualKeyMark", 16, VQ_TEXT("F1")},
                                         ModifierRow{"AllOthers", 0xFFFFFFF8, VQ_TEXT("F1")},
                                         ModifierRow{"AllBits", 0xFFFFFFFF, VQ_TEXT("Ctrl+Alt+Shift+F1")}),
                         name_of<ModifierRow>);

TEST(VqAccelPrint, LettersAndDigitsPrintAsThemselves)
{
    EXPECT_EQ(printed(0, 0x41), VQ_TEXT("A"));
    EXPECT_EQ(printed(0, 0x5A), VQ_TEXT("Z"));
    EXPECT_EQ(printed(0, 0x31), VQ_TEXT("1"));
}

TEST(VqAccelPrint, EveryKeyWithoutALabelPrintsAsItsOwnUnit)
{
    for (int key = 1; key <= 0xFFFF; ++key) {
        if (has_label(key))
            continue;
        ASSERT_EQ(printed(0, static_cast<vq_wchar>(key)), Text(1, static_cast<vq_wchar>(key))) << key;
    }
    EXPECT_EQ(printed(2, 0x30C6), VQ_TEXT("Ctrl+\u30C6"));
}

TEST(VqAccelPrint, KeyZeroPrintsNothing)
{
    EXPECT_EQ(printed(0, 0), VQ_TEXT(""));
    EXPECT_EQ(printed(2, 0), VQ_TEXT("Ctrl+"));
    EXPECT_EQ(grown(2, 0), VQ_TEXT("Ctrl+"));
}

TEST(VqAccelPrint, BothPlusKeysPrintAlike)
{
    EXPECT_EQ(printed(0, 0xBB), VQ_TEXT("+"));
    EXPECT_EQ(printed(0, 0x6B), VQ_TEXT("+"));
    EXPECT_EQ(printed(2, 0x6B), VQ_TEXT("Ctrl++"));
}

TEST(VqAccelPrint, ModifierNamesAreTranslated)
{
    const AnsweringTranslator translator(
        [](const QString& text, const QString& comment) { return question(text, comment); });

    EXPECT_EQ(printed(7, 0x41), VQ_TEXT("<Ctrl|>+<Alt|keyboard key>+<Shift|keyboard key>+A"));
}

TEST(VqAccelPrint, GermanTextIsPrinted)
{
    const AnsweringTranslator translator([](const QString& text, const QString&) {
        return text == "Ctrl"_L1 ? u"Strg"_s : text == "Delete"_L1 ? u"Entf"_s : QString();
    });

    EXPECT_EQ(printed(18, 0x41), VQ_TEXT("Strg+A"));
    EXPECT_EQ(printed(18, 46), VQ_TEXT("Strg+Entf"));
}

TEST(VqAccelPrint, ChangeOfLanguageIsSeenByTheNextText)
{
    {
        const AnsweringTranslator translator(
            [](const QString& text, const QString& comment) { return question(text, comment); });
        EXPECT_EQ(printed(2, 9), VQ_TEXT("<Ctrl|>+<Tab|Tab keyboard key>"));
    }

    EXPECT_EQ(printed(2, 9), VQ_TEXT("Ctrl+Tab"));
}

TEST(VqAccelPrint, EmptyTranslationOfAModifierLeavesNoPlus)
{
    const AnsweringTranslator translator(
        [](const QString& text, const QString&) { return text == "Ctrl"_L1 ? u""_s : QString(); });

    EXPECT_EQ(printed(2, 0x41), VQ_TEXT("A"));
    EXPECT_EQ(printed(3, 0x41), VQ_TEXT("Alt+A"));
}

TEST(VqAccelPrint, WhatTheAreaHeldIsOverwritten)
{
    vq_wchar area[512] = VQ_TEXT("something longer than the text");

    CVqAccelerators::PrintAccel(2, 0x41, area);

    EXPECT_EQ(Text(area), VQ_TEXT("Ctrl+A"));
}

TEST(VqAccelPrint, NothingBehindTheTerminatorIsTouched)
{
    vq_wchar area[] = VQ_TEXT("##########");

    CVqAccelerators::PrintAccel(2, 0x41, area);

    EXPECT_EQ(Text(area + 7), VQ_TEXT("###"));
}

TEST(VqAccelPrint, NullAreaIsLeftAlone)
{
    CVqAccelerators::PrintAccel(2, 0x41, nullptr);
}

TEST(VqAccelPrint, TextOverTheAreaIsCutAndTerminated)
{
    vq_wchar area[9] = VQ_TEXT("########");

    VqPrintAccel(area, 8, 7, 0x41);

    EXPECT_EQ(Text(area), VQ_TEXT("Ctrl+Al"));
}

TEST(VqAccelPrint, NoMoreThan512UnitsAreWritten)
{
    const AnsweringTranslator translator([](const QString&, const QString&) { return QString(2000, u'x'); });

    EXPECT_EQ(printed(7, 8), Text(511, VQ_TEXT('x')));
}

TEST(VqAccelPrint, GrowingTextHoldsAnyLength)
{
    const AnsweringTranslator translator([](const QString&, const QString&) { return QString(2000, u'x'); });
    const Text word(2000, VQ_TEXT('x'));

    EXPECT_EQ(grown(6, 8), word + VQ_TEXT("+") + word + VQ_TEXT("+") + word);
}

TEST(VqAccelPrint, GrowingTextIsOverwritten)
{
    EXPECT_EQ(grown(2, 0x41), VQ_TEXT("Ctrl+A"));
    EXPECT_EQ(grown(0, 0), VQ_TEXT(""));
}

TEST(VqAccelPrint, AllTextsOfManyKeysAreWhole)
{
    CVqAccelerators table;
    Text expected;
    for (vq_wchar key = 0x41; key <= 0x5A; ++key) {
        for (const ModifierRow& modifier :
             {ModifierRow{"Alt", 17, VQ_TEXT("Alt+")}, ModifierRow{"CtrlShift", 22, VQ_TEXT("Ctrl+Shift+")},
              ModifierRow{"All", 23, VQ_TEXT("Ctrl+Alt+Shift+")}}) {
            table.AddAccelKey(1, modifier.flags, key, 0);
            expected += (expected.empty() ? Text() : VQ_TEXT(", ")) + modifier.text + Text(1, key);
        }
    }

    EXPECT_GT(expected.size(), 512u);
    EXPECT_EQ(VqAllAccelTexts(table, 1, VQ_TEXT(", ")).View(), expected);
}

TEST(VqAccelPrint, AllTextsDropAnImmediateRepetitionOnly)
{
    CVqAccelerators table;
    for (const vq_wchar key : {0xFFFF, 0x41, 0x41, 0x42, 0xFFFF, 0x41})
        table.AddAccelKey(1, 16, key, 0);

    EXPECT_EQ(VqAllAccelTexts(table, 1, VQ_TEXT(", ")).View(), VQ_TEXT("A, B, , A"));
}

TEST(VqAccelPrint, AllTextsOfAnUnknownIdentifierAreEmpty)
{
    const CVqAccelerators table;

    EXPECT_TRUE(VqAllAccelTexts(table, 1, VQ_TEXT(", ")).IsEmpty());
}

TEST(VqAllAccelTexts, KeysBehindTheFirst256AreLeftOut)
{
    CVqAccelerators table;
    for (int i = 0; i < 128; ++i) {
        table.AddAccelKey(1, 16, VQ_TEXT('A'), 0);
        table.AddAccelKey(1, 18, VQ_TEXT('A'), 0);
    }
    table.AddAccelKey(1, 16, VQ_TEXT('B'), 0);
    std::basic_string<vq_wchar> expected = VQ_TEXT("A, Ctrl+A");
    for (int i = 1; i < 128; ++i)
        expected += VQ_TEXT(", A, Ctrl+A");

    EXPECT_EQ(VqAllAccelTexts(table, 1, VQ_TEXT(", ")).View(), expected);
}
