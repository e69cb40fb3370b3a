#include "AbstractGui/VqAccelParse.h"

#include "tests/AbstractGui/AccelTexts.h"
#include "tests/AbstractGui/AnsweringTranslator.h"
#include "tests/support/ScopedLocale.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <clocale>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

using Text = std::basic_string<vq_wchar>;

struct KeyRow
{
    const char* name;
    const vq_wchar* text;
    int key;
};

struct ParseRow
{
    const char* name;
    const vq_wchar* text;
    Parsed expected;
};

template <class Row>
std::string name_of(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

template <class Row>
void PrintTo(const Row& row, std::ostream* out)
    requires requires {
        row.name;
        row.text;
    }
{
    *out << row.name;
}

struct OpenAccelerators : CVqAccelerators
{
    using CVqAccelerators::parse_special;
};

int special_key(const vq_wchar* text)
{
    vq_wchar key = Parsed::untouched;
    const bool found = OpenAccelerators::parse_special(text, &key);
    return found ? key : -int(key);
}

// In the order in which they are looked for.
constexpr KeyRow key_rows[] = {KeyRow{"Backspace", VQ_TEXT("backspace"), 8},
                               KeyRow{"Tab", VQ_TEXT("tab"), 9},
                               KeyRow{"Enter", VQ_TEXT("enter"), 13},
                               KeyRow{"Clear", VQ_TEXT("clear"), 12},
                               KeyRow{"Esc", VQ_TEXT("esc"), 27},
                               KeyRow{"Space", VQ_TEXT("space"), 32},
                               KeyRow{"Pageup", VQ_TEXT("pageup"), 33},
                               KeyRow{"Pagedown", VQ_TEXT("pagedown"), 34},
                               KeyRow{"End", VQ_TEXT("end"), 35},
                               KeyRow{"Home", VQ_TEXT("home"), 36},
                               KeyRow{"Left", VQ_TEXT("left"), 37},
                               KeyRow{"Up", VQ_TEXT("up"), 38},
                               KeyRow{"Right", VQ_TEXT("right"), 39},
                               KeyRow{"Down", VQ_TEXT("down"), 40},
                               KeyRow{"Select", VQ_TEXT("select"), 41},
                               KeyRow{"Print", VQ_TEXT("print"), 42},
                               KeyRow{"Exec", VQ_TEXT("exec"), 43},
                               KeyRow{"Snapshot", VQ_TEXT("snapshot"), 44},
                               KeyRow{"Insert", VQ_TEXT("insert"), 45},
                               KeyRow{"Delete", VQ_TEXT("delete"), 46},
                               KeyRow{"Num0", VQ_TEXT("num0"), 96},
                               KeyRow{"Num1", VQ_TEXT("num1"), 97},
                               KeyRow{"Num2", VQ_TEXT("num2"), 98},
                               KeyRow{"Num3", VQ_TEXT("num3"), 99},
                               KeyRow{"Num4", VQ_TEXT("num4"), 100},
                               KeyRow{"Num5", VQ_TEXT("num5"), 101},
                               KeyRow{"Num6", VQ_TEXT("num6"), 102},
                               KeyRow{"Num7", VQ_TEXT("num7"), 103},
                               KeyRow{"Num8", VQ_TEXT("num8"), 104},
                               KeyRow{"Num9", VQ_TEXT("num9"), 105},
                               KeyRow{"Asterisk", VQ_TEXT("*"), 106},
                               KeyRow{"Plus", VQ_TEXT("+"), 107},
                               KeyRow{"Bar", VQ_TEXT("|"), 108},
                               KeyRow{"Minus", VQ_TEXT("-"), 109},
                               KeyRow{"Dot", VQ_TEXT("."), 110},
                               KeyRow{"Slash", VQ_TEXT("/"), 111},
                               KeyRow{"F10", VQ_TEXT("f10"), 121},
                               KeyRow{"F11", VQ_TEXT("f11"), 122},
                               KeyRow{"F12", VQ_TEXT("f12"), 123},
                               KeyRow{"F13", VQ_TEXT("f13"), 124},
                               KeyRow{"F14", VQ_TEXT("f14"), 125},
                               KeyRow{"F15", VQ_TEXT("f15"), 126},
                               KeyRow{"F16", VQ_TEXT("f16"), 127},
                               KeyRow{"F17", VQ_TEXT("f17"), 128},
                               KeyRow{"F18", VQ_TEXT("f18"), 129},
                               KeyRow{"F19", VQ_TEXT("f19"), 130},
                               KeyRow{"F20", VQ_TEXT("f20"), 131},
                               KeyRow{"F21", VQ_TEXT("f21"), 132},
                               KeyRow{"F22", VQ_TEXT("f22"), 133},
                               KeyRow{"F23", VQ_TEXT("f23"), 134},
                               KeyRow{"F24", VQ_TEXT("f24"), 135},
                               KeyRow{"F1", VQ_TEXT("f1"), 112},
                               KeyRow{"F2", VQ_TEXT("f2"), 113},
                               KeyRow{"F3", VQ_TEXT("f3"), 114},
                               KeyRow{"F4", VQ_TEXT("f4"), 115},
                               KeyRow{"F5", VQ_TEXT("f5"), 116},
                               KeyRow{"F6", VQ_TEXT("f6"), 117},
                               KeyRow{"F7", VQ_TEXT("f7"), 118},
                               KeyRow{"F8", VQ_TEXT("f8"), 119},
                               KeyRow{"F9", VQ_TEXT("f9"), 120}};
static_assert(std::size(key_rows) == 60);

class KeyNames : public testing::TestWithParam<KeyRow>
{ };

class ParsedTexts : public testing::TestWithParam<ParseRow>
{ };

QString german(const QString& text, const QString& comment)
{
    if (text == "ctrl"_L1 && comment.isEmpty())
        return u"strg"_s;
    if (text == "shift"_L1 && comment == "keyboard key"_L1)
        return u"umschalt"_s;
    return QString();
}

}

TEST_P(KeyNames, IsFoundByItself)
{
    EXPECT_EQ(special_key(GetParam().text), GetParam().key);
}

TEST_P(KeyNames, IsFoundInsideALongerText)
{
    const Text text = Text(VQ_TEXT("_")) + GetParam().text + VQ_TEXT("_");

    EXPECT_EQ(special_key(text.c_str()), GetParam().key);
}

TEST_P(KeyNames, IsReadBehindAModifierUnlessItIsThePlus)
{
    const Text text = Text(VQ_TEXT("Ctrl+")) + GetParam().text;

    const Parsed expected = GetParam().key == 107 ? not_read() : read_as(18, GetParam().key);
    EXPECT_EQ(parsed(text.c_str()), expected);
}

INSTANTIATE_TEST_SUITE_P(VqAccelParse, KeyNames, testing::ValuesIn(key_rows), name_of<KeyRow>);

TEST(VqAccelParse, EarlierNameOfTheListWins)
{
    for (std::size_t at = 1; at < std::size(key_rows); ++at) {
        SCOPED_TRACE(key_rows[at].name);
        const KeyRow& earlier = key_rows[at - 1];
        const Text text = Text(key_rows[at].text) + VQ_TEXT("_") + earlier.text;
        EXPECT_EQ(special_key(text.c_str()), earlier.key);
    }
}

TEST_P(ParsedTexts, GivesFlagsAndKeyOrTouchesNothing)
{
    EXPECT_EQ(parsed(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Ends, ParsedTexts,
                         testing::Values(ParseRow{"NullText", nullptr, not_read()},
                                         ParseRow{"EmptyText", VQ_TEXT(""), not_read()},
                                         ParseRow{"BlanksOnly", VQ_TEXT("   "), not_read()},
                                         ParseRow{"LonePlus", VQ_TEXT("+"), read_as(16, 107)},
                                         ParseRow{"LoneLeftBracket", VQ_TEXT("["), read_as(16, 219)},
                                         ParseRow{"LoneRightBracket", VQ_TEXT("]"), read_as(16, 221)},
                                         ParseRow{"LonePlusAmongBlanks", VQ_TEXT("  + a"), read_as(16, 107)},
                                         ParseRow{"BracketBehindModifier", VQ_TEXT("ctrl+["), not_read()},
                                         ParseRow{"TwoPluses", VQ_TEXT("++"), not_read()},
                                         ParseRow{"ModifierAlone", VQ_TEXT("Ctrl"), not_read()},
                                         ParseRow{"ModifierAndPlus", VQ_TEXT("Ctrl+"), not_read()},
                                         ParseRow{"ModifierAndTwoPluses", VQ_TEXT("Ctrl++"), not_read()},
                                         ParseRow{"ModifiersAlone", VQ_TEXT("Ctrl+Alt+Shift"), not_read()}),
                         name_of<ParseRow>);

INSTANTIATE_TEST_SUITE_P(
    Words, ParsedTexts,
    testing::Values(ParseRow{"JunkBehindTheWord", VQ_TEXT("Ctrl+A junk"), read_as(18, 0x41)},
                    ParseRow{"BlanksAroundPlus", VQ_TEXT("ctrl + a"), not_read()},
                    ParseRow{"LeadingBlanks", VQ_TEXT("   Ctrl+A"), read_as(18, 0x41)},
                    ParseRow{"TabIsNoBlank", VQ_TEXT("a\tb"), read_as(16, 0x41)},
                    ParseRow{"LeadingTabIsPartOfTheKey", VQ_TEXT("\ta"), not_read()},
                    ParseRow{"LeadingPlus", VQ_TEXT("+a"), read_as(16, 0x41)},
                    ParseRow{"ManyPluses", VQ_TEXT("ctrl+++alt++a"), read_as(19, 0x41)},
                    ParseRow{"TokensBehindTheKey", VQ_TEXT("Ctrl+A+Shift"), read_as(18, 0x41)},
                    ParseRow{"CommaBehindTheKey", VQ_TEXT("Ctrl+A,"), read_as(18, 0x41)}),
    name_of<ParseRow>);

INSTANTIATE_TEST_SUITE_P(
    Modifiers, ParsedTexts,
    testing::Values(ParseRow{"CtrlShiftF12", VQ_TEXT("Ctrl+Shift+F12"), read_as(22, 123)},
                    ParseRow{"AltF4", VQ_TEXT("alt+f4"), read_as(17, 115)},
                    ParseRow{"ShiftAltCtrl", VQ_TEXT("shift+alt+ctrl+x"), read_as(23, 0x58)},
                    ParseRow{"TwiceTheSame", VQ_TEXT("ctrl+ctrl+x"), read_as(18, 0x58)},
                    ParseRow{"ShiftlockIsShift", VQ_TEXT("shiftlock+a"), read_as(20, 0x41)},
                    ParseRow{"AlternateIsAlt", VQ_TEXT("alternate+a"), read_as(17, 0x41)},
                    ParseRow{"ControlIsTheLetterC", VQ_TEXT("control+a"), read_as(16, 0x43)},
                    ParseRow{"NameInsideATokenIsNone", VQ_TEXT("xctrl+a"), read_as(16, 0x58)},
                    ParseRow{"UpperCase", VQ_TEXT("CTRL+a"), read_as(18, 0x41)},
                    ParseRow{"TitleCase", VQ_TEXT("Ctrl+A"), read_as(18, 0x41)},
                    ParseRow{"LowerCase", VQ_TEXT("ctrl+A"), read_as(18, 0x41)},
                    ParseRow{"UpperCaseShift", VQ_TEXT("SHIFT+INSERT"), read_as(20, 45)}),
    name_of<ParseRow>);

INSTANTIATE_TEST_SUITE_P(Keys, ParsedTexts,
                         testing::Values(ParseRow{"LetterA", VQ_TEXT("a"), read_as(16, 0x41)},
                                         ParseRow{"LetterZ", VQ_TEXT("z"), read_as(16, 0x5A)},
                                         ParseRow{"Digit7", VQ_TEXT("7"), read_as(16, 0x37)},
                                         ParseRow{"Digit0", VQ_TEXT("0"), read_as(16, 0x30)},
                                         ParseRow{"Digit9", VQ_TEXT("9"), read_as(16, 0x39)},
                                         ParseRow{"FirstLetterOfAWord", VQ_TEXT("zebra"), read_as(16, 0x5A)},
                                         ParseRow{"FirstDigitOfANumber", VQ_TEXT("42"), read_as(16, 0x34)},
                                         ParseRow{"Escape", VQ_TEXT("escape"), read_as(16, 27)},
                                         ParseRow{"PgUp", VQ_TEXT("pgup"), read_as(16, 38)},
                                         ParseRow{"F25", VQ_TEXT("f25"), read_as(16, 113)},
                                         ParseRow{"F12IsNotF1", VQ_TEXT("f12"), read_as(16, 123)},
                                         ParseRow{"NumMinus", VQ_TEXT("num-"), read_as(16, 109)},
                                         ParseRow{"CtrlMinus", VQ_TEXT("Ctrl+-"), read_as(18, 109)},
                                         ParseRow{"EarlierRowWins", VQ_TEXT("downtab"), read_as(16, 9)},
                                         ParseRow{"SymbolBehindAModifier", VQ_TEXT("ctrl+/"),
                                                  read_as(18, 111)},
                                         ParseRow{"UnitBelowA", VQ_TEXT("ctrl+@"), not_read()},
                                         ParseRow{"UnitBehindZ", VQ_TEXT("ctrl+{"), not_read()},
                                         ParseRow{"UnitBehind9", VQ_TEXT("ctrl+:"), not_read()},
                                         ParseRow{"LetterOutsideAscii", VQ_TEXT("ctrl+\u00E4"), not_read()},
                                         ParseRow{"DigitOutsideAscii", VQ_TEXT("ctrl+\u0664"), not_read()},
                                         ParseRow{"LoneSurrogate", VQ_TEXT("ctrl+\xD800"), not_read()}),
                         name_of<ParseRow>);

INSTANTIATE_TEST_SUITE_P(LabelsThatReadBackOtherwise, ParsedTexts,
                         testing::Values(ParseRow{"Num5IsN", VQ_TEXT("Num 5"), read_as(16, 0x4E)},
                                         ParseRow{"PauseIsP", VQ_TEXT("Pause"), read_as(16, 0x50)},
                                         ParseRow{"BreakIsB", VQ_TEXT("Break"), read_as(16, 0x42)},
                                         ParseRow{"NumLockIsN", VQ_TEXT("Num Lock"), read_as(16, 0x4E)},
                                         ParseRow{"ScrollLockIsS", VQ_TEXT("Scroll Lock"), read_as(16, 0x53)},
                                         ParseRow{"Semicolon", VQ_TEXT("ctrl+;"), not_read()},
                                         ParseRow{"Comma", VQ_TEXT("ctrl+,"), not_read()},
                                         ParseRow{"Backquote", VQ_TEXT("ctrl+`"), not_read()},
                                         ParseRow{"Backslash", VQ_TEXT("ctrl+\\"), not_read()},
                                         ParseRow{"Apostrophe", VQ_TEXT("ctrl+'"), not_read()},
                                         ParseRow{"Dot", VQ_TEXT("ctrl+."), read_as(18, 110)}),
                         name_of<ParseRow>);

TEST(VqAccelParse, NullPointersStillGiveTheAnswer)
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    EXPECT_TRUE(CVqAccelerators::ParseAccel(VQ_TEXT("Ctrl+A"), nullptr, nullptr));
    EXPECT_FALSE(CVqAccelerators::ParseAccel(VQ_TEXT("Ctrl"), nullptr, nullptr));
    EXPECT_TRUE(CVqAccelerators::ParseAccel(VQ_TEXT("Ctrl+A"), &flags, nullptr));
    EXPECT_TRUE(CVqAccelerators::ParseAccel(VQ_TEXT("+"), nullptr, &key));
    EXPECT_EQ(flags, 18u);
    EXPECT_EQ(key, 107);
}

TEST(VqAccelParse, TextOf511UnitsIsRead)
{
    const Text blanks(505, VQ_TEXT(' '));

    EXPECT_EQ(parsed((blanks + VQ_TEXT("Ctrl+A")).c_str()), read_as(18, 0x41));
}

TEST(VqAccelParse, TextOf512UnitsIsNotRead)
{
    const Text blanks(506, VQ_TEXT(' '));

    EXPECT_EQ(parsed((blanks + VQ_TEXT("Ctrl+A")).c_str()), not_read());
    EXPECT_EQ(parsed((VQ_TEXT("Ctrl+A") + blanks).c_str()), not_read());
}

TEST(VqAccelParse, KeyNameAtTheEndOf511UnitsIsFound)
{
    const Text filler(508, VQ_TEXT('x'));

    EXPECT_EQ(parsed((filler + VQ_TEXT("tab")).c_str()), read_as(16, 9));
}

TEST(VqAccelParse, ViewNeedsNoTerminator)
{
    SVqParsedAccel accel;

    EXPECT_TRUE(VqParseAccel(std::basic_string_view<vq_wchar>(VQ_TEXT("Ctrl+A,Ctrl+B")).substr(0, 6), accel));
    EXPECT_EQ(accel.flags, 18u);
    EXPECT_EQ(accel.key, 0x41);
}

TEST(VqAccelParse, SpecialNameOfATextWithoutOneStoresNothing)
{
    EXPECT_EQ(special_key(VQ_TEXT("zebra")), -Parsed::untouched);
    EXPECT_EQ(special_key(VQ_TEXT("")), -Parsed::untouched);
    EXPECT_EQ(special_key(nullptr), -Parsed::untouched);
}

TEST(VqAccelParse, SpecialNameIsFoundWithoutAPlaceForItsKey)
{
    EXPECT_TRUE(OpenAccelerators::parse_special(VQ_TEXT("tab"), nullptr));
}

TEST(VqAccelParse, SpecialNameIsLowerCase)
{
    EXPECT_EQ(special_key(VQ_TEXT("Tab")), -Parsed::untouched);
    EXPECT_EQ(special_key(VQ_TEXT("F1")), -Parsed::untouched);
}

TEST(VqAccelParse, SpecialNameOfATextOfAnyLengthIsFound)
{
    const Text filler(5000, VQ_TEXT('x'));

    EXPECT_EQ(special_key((filler + VQ_TEXT("f24")).c_str()), 135);
}

TEST(VqAccelParse, TurkishLocaleChangesNothing)
{
    const ScopedLocale turkish(LC_CTYPE, "tr_TR.UTF-8");
    if (!turkish.IsSet())
        GTEST_SKIP() << "this machine has no locale tr_TR.UTF-8";

    EXPECT_EQ(parsed(VQ_TEXT("CTRL+SHIFT+I")), read_as(22, 0x49));
    EXPECT_EQ(parsed(VQ_TEXT("INSERT")), read_as(16, 45));
}

TEST(VqAccelParse, GermanModifierNamesAreRead)
{
    const AnsweringTranslator translator(german);

    EXPECT_EQ(parsed(VQ_TEXT("Strg+A")), read_as(18, 0x41));
    EXPECT_EQ(parsed(VQ_TEXT("STRG+Alt+Umschalt+F5")), read_as(23, 116));
}

TEST(VqAccelParse, EnglishModifierNamesAreNotReadInGerman)
{
    const AnsweringTranslator translator(german);

    EXPECT_EQ(parsed(VQ_TEXT("Ctrl+A")), read_as(16, 0x43));
}

TEST(VqAccelParse, ChangeOfLanguageIsSeenByTheNextText)
{
    {
        const AnsweringTranslator translator(german);
        EXPECT_EQ(parsed(VQ_TEXT("Strg+A")), read_as(18, 0x41));
    }

    EXPECT_EQ(parsed(VQ_TEXT("Strg+A")), read_as(16, 0x53));
    EXPECT_EQ(parsed(VQ_TEXT("Ctrl+A")), read_as(18, 0x41));
}

TEST(VqAccelParse, KeyNamesAreNeverTranslated)
{
    const AnsweringTranslator translator(
        [](const QString& text, const QString&) { return QString(u'x' + text); });

    EXPECT_EQ(parsed(VQ_TEXT("xctrl+tab")), read_as(18, 9));
}

TEST(VqAccelParse, ModifierNameWithACapitalInTheCatalogueIsNeverMet)
{
    const AnsweringTranslator translator(
        [](const QString& text, const QString&) { return text == "ctrl"_L1 ? u"Strg"_s : QString(); });

    EXPECT_EQ(parsed(VQ_TEXT("Strg+A")), read_as(16, 0x53));
}

TEST(VqAccelParse, ModifiersAreAskedForInTheirOrderWithTheirComments)
{
    QStringList asked;
    const AnsweringTranslator translator([&asked](const QString& text, const QString& comment) {
        asked.append(text + u'|' + comment);
        return QString();
    });

    EXPECT_EQ(parsed(VQ_TEXT("x")), read_as(16, 0x58));
    EXPECT_EQ(asked, (QStringList{u"ctrl|"_s, u"alt|keyboard key"_s, u"shift|keyboard key"_s}));
}

TEST(VqAccelParse, FirstModifierThatFitsWins)
{
    const AnsweringTranslator translator([](const QString&, const QString&) { return u"same"_s; });

    EXPECT_EQ(parsed(VQ_TEXT("same+a")), read_as(18, 0x41));
}
