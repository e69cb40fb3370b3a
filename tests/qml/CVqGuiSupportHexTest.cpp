#include "qml/CVqGuiSupport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

// Colours as hexadecimal text, both ways.

namespace {

struct ReadRow
{
    const char* name;
    QString text;
    vq_uint32 expected;
};

void PrintTo(const ReadRow& row, std::ostream* out)
{
    *out << row.name;
}

const ReadRow read_rows[] = {
    {"SixDigitsAreOpaque", u"#0a0b0c"_s, 0xFF0A0B0C},
    {"EightDigitsHaveAlphaLast", u"#0a0b0c7f"_s, 0x7F0A0B0C},
    {"AlphaOf255IsReadToo", u"#0a0b0cff"_s, 0xFF0A0B0C},
    {"AlphaOf0IsReadToo", u"#0a0b0c00"_s, 0x000A0B0C},
    {"AllDigitsSet", u"#ffffffff"_s, 0xFFFFFFFF},
    {"BlackIsNotMistakenForAFailure", u"#000000"_s, 0xFF000000},
    {"UpperCase", u"#ABCDEF"_s, 0xFFABCDEF},
    {"MixedCase", u"#aBcDeF12"_s, 0x12ABCDEF},
    {"SixDigitsWithoutHash", u"0a0b0c"_s, 0xFF0A0B0C},
    {"EightDigitsWithoutHash", u"0a0b0c7f"_s, 0x7F0A0B0C},
    {"Empty", QString(), 0},
    {"HashAlone", u"#"_s, 0},
    {"OneDigit", u"#1"_s, 0},
    {"ThreeDigits", u"#123"_s, 0},
    {"FiveDigits", u"#12345"_s, 0},
    {"SevenDigits", u"#1234567"_s, 0},
    {"NineDigits", u"#123456789"_s, 0},
    {"NineDigitsOfWhichTheFirstIsZero", u"#012345678"_s, 0},
    {"NoDigits", u"xyz"_s, 0},
    {"SixCharactersWithALetterTooMany", u"#12345g"_s, 0},
    {"EightCharactersWithALetterTooMany", u"#1234567g"_s, 0},
    {"OneHashOnlyIsDropped", u"##123456"_s, 0},
    {"HashBehind", u"123456#"_s, 0},
    {"BlankBeforeTheHash", u" #123456"_s, 0},
    {"MinusSign", u"#-12345"_s, 0},
    {"DigitsOfAnotherScript", u"#\u0661\u0662\u0663\u0664\u0665\u0666"_s, 0},
    {"WideDigits", u"#\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16"_s, 0},
    {"NullCharacterAmongDigits", u"#123\u0000456"_s, 0},
    // What QString::toUInt() passes over counts as characters all the same.
    {"PlusSignIsACharacter", u"#+12345"_s, 0xFF012345},
    {"PrefixIsTwoCharacters", u"#0x1234"_s, 0xFF001234},
    {"PrefixAndSixDigitsAreEightCharacters", u"0x123456"_s, 0x56001234},
    {"BlanksAtTheEndsAreCharacters", u"# 1234 "_s, 0xFF001234},
    {"BlankInTheMiddleIsRefused", u"#123 56"_s, 0},
};

class CVqGuiSupportReadHex : public testing::TestWithParam<ReadRow>
{ };

std::string printed(vq_uint32 argb)
{
    const unsigned alpha = argb >> 24;
    char text[16];
    std::snprintf(text, sizeof text, "#%06x", argb & 0xFFFFFFU);
    if (alpha < 255)
        std::snprintf(text + 7, sizeof text - 7, "%02x", alpha);
    return text;
}

/// The first of 100,000 random colours for which `is_right` says no, as text; empty if there is none.
template <class Check>
std::string first_wrong(Check is_right)
{
    std::mt19937 random(1);
    for (int colour = 0; colour < 100000; ++colour) {
        // A quarter is opaque.
        const vq_uint32 argb = static_cast<vq_uint32>(random()) | (colour % 4 ? 0 : 0xFF000000);
        if (!is_right(argb))
            return printed(argb);
    }
    return {};
}

}

TEST(CVqGuiSupportHex, OpaqueColourHasSixDigitsInLowerCase)
{
    EXPECT_EQ(CVqGuiSupport().makeHEX(0xFF0A0B0C), u"#0a0b0c"_s);
}

TEST(CVqGuiSupportHex, AlphaBelow255ComesLast)
{
    EXPECT_EQ(CVqGuiSupport().makeHEX(0x7F0A0B0C), u"#0a0b0c7f"_s);
}

TEST(CVqGuiSupportHex, AlphaOf254IsWritten)
{
    EXPECT_EQ(CVqGuiSupport().makeHEX(0xFEFFFFFF), u"#fffffffe"_s);
}

TEST(CVqGuiSupportHex, ZeroIsFilledUp)
{
    EXPECT_EQ(CVqGuiSupport().makeHEX(0), u"#00000000"_s);
}

TEST(CVqGuiSupportHex, RandomColoursAreWrittenAsTheCLibraryPrintsThem)
{
    CVqGuiSupport support;

    const auto is_right
        = [&support](vq_uint32 argb) { return support.makeHEX(argb).toStdString() == printed(argb); };

    EXPECT_EQ(first_wrong(is_right), "");
}

TEST(CVqGuiSupportHex, RandomColoursAreReadFromWhatTheCLibraryPrints)
{
    CVqGuiSupport support;

    const auto is_right = [&support](vq_uint32 argb) {
        return support.makeARGB(QString::fromStdString(printed(argb))) == argb;
    };

    EXPECT_EQ(first_wrong(is_right), "");
}

TEST_P(CVqGuiSupportReadHex, GivesTheColour)
{
    EXPECT_EQ(CVqGuiSupport().makeARGB(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, CVqGuiSupportReadHex, testing::ValuesIn(read_rows),
                         [](const auto& row) { return row.param.name; });
