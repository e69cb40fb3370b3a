#include "system/CVqStringW.h"

#include "tests/support/ScopedLocale.h"
#include "tests/system/SystemPrinters.h"

#include <gtest/gtest.h>

#include <climits>
#include <clocale>
#include <map>
#include <utility>

namespace {

const vq_wchar* const null_text = nullptr;
const CVqStringW long_text(VQ_TEXT("a text that needs a buffer outside of the object"));

}

TEST(CVqStringW, DefaultIsEmptyAndNeverNull)
{
    const CVqStringW text;

    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    ASSERT_NE(text.GetString(), nullptr);
    EXPECT_EQ(*text.GetString(), 0);
}

TEST(CVqStringW, CopiesHaveBuffersOfTheirOwnEvenWhenEmpty)
{
    const CVqStringW empty;
    const CVqStringW empty_copy(empty);
    const CVqStringW copy(long_text);

    EXPECT_NE(empty.GetString(), empty_copy.GetString());
    EXPECT_EQ(copy, long_text);
    EXPECT_NE(copy.GetString(), long_text.GetString());
}

TEST(CVqStringW, ChangingACopyLeavesTheSource)
{
    CVqStringW copy(long_text);

    copy.MakeUpper();

    EXPECT_EQ(long_text.GetAt(0), VQ_TEXT('a'));
}

TEST(CVqStringW, ConstructorLengthCutsAndZeroTakesAll)
{
    EXPECT_EQ(CVqStringW(VQ_TEXT("File"), 0), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File"), 2), VQ_TEXT("Fi"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File"), 20), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File"), -1), VQ_TEXT("File"));
}

TEST(CVqStringW, ConstructorFromNarrowTextWidens)
{
    EXPECT_EQ(CVqStringW("", 0), VQ_TEXT(""));
    EXPECT_EQ(CVqStringW("File", 0), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW("File", 3), VQ_TEXT("Fil"));
    EXPECT_EQ(CVqStringW("\xC3\xA4", 0), u"\u00E4");
}

TEST(CVqStringW, NullReadsAsEmptyEverywhere)
{
    EXPECT_TRUE(CVqStringW(null_text).IsEmpty());
    EXPECT_TRUE(CVqStringW(static_cast<const char*>(nullptr)).IsEmpty());
    CVqStringW text(VQ_TEXT("x"));
    text.AddString(null_text).AddString(static_cast<const char*>(nullptr)).Insert(null_text, 0);
    text += null_text;
    EXPECT_EQ(text.Replace(null_text, VQ_TEXT("y")), VQ_TEXT("x"));
    EXPECT_EQ(text + null_text, VQ_TEXT("x"));
    text = null_text;
    EXPECT_EQ(text, null_text);
    EXPECT_EQ(text.Format(null_text), VQ_TEXT(""));
}

TEST(CVqStringW, StandardStringsAreTakenWhole)
{
    const CVqStringW::string_type source(VQ_TEXT("a\0b"), 3);

    CVqStringW text(source);
    EXPECT_EQ(text.GetLength(), 3);

    text = CVqStringW::string_type(VQ_TEXT("plain"));
    EXPECT_EQ(text, VQ_TEXT("plain"));
}

TEST(CVqStringW, AssignmentReplacesTheContent)
{
    CVqStringW text(VQ_TEXT("old"));

    text = VQ_TEXT("new");
    EXPECT_EQ(text, VQ_TEXT("new"));
    text = long_text;
    EXPECT_EQ(text, long_text);
    text = *&text;
    EXPECT_EQ(text, long_text);
    text = text.GetString() + 2;
    EXPECT_EQ(text, long_text.Mid(2));
}

TEST(CVqStringW, QStringsPassWithoutLoss)
{
    const QString source = QString(QChar(0xD800)) + QChar(0) + QStringLiteral("\u65E5\U0001F600");

    const CVqStringW text = CVqStringW::FromQString(source);

    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_EQ(text.ToQString(), source);
}

TEST(CVqStringW, GetAtTheLengthIsZeroAndOutsideToo)
{
    const CVqStringW text(VQ_TEXT("ab"));

    EXPECT_EQ(text.GetAt(1), VQ_TEXT('b'));
    EXPECT_EQ(text.GetAt(2), 0);
    EXPECT_EQ(text.GetAt(3), 0);
    EXPECT_EQ(text.GetAt(-1), 0);
    EXPECT_EQ(CVqStringW().GetAt(0), 0);
}

TEST(CVqStringW, FindSearchesFromTheStart)
{
    const CVqStringW text(VQ_TEXT("a&b&c"));

    EXPECT_EQ(text.Find(VQ_TEXT('&'), 0), 1);
    EXPECT_EQ(text.Find(VQ_TEXT('&'), 1), 1);
    EXPECT_EQ(text.Find(VQ_TEXT('&'), 2), 3);
    EXPECT_EQ(text.Find(VQ_TEXT('&'), 4), -1);
    EXPECT_EQ(text.Find(VQ_TEXT('&'), -7), 1);
    EXPECT_EQ(text.Find(VQ_TEXT('&'), INT_MAX), -1);
    EXPECT_EQ(text.Find(VQ_TEXT('x'), 0), -1);
}

TEST(CVqStringW, FindOnAnEmptyStringGivesMinusOne)
{
    EXPECT_EQ(CVqStringW().Find(VQ_TEXT('a'), 0), -1);
}

TEST(CVqStringW, ReplaceTakesEveryOccurrenceOnce)
{
    EXPECT_EQ(CVqStringW(VQ_TEXT("(\"a\") (\"")).Replace(VQ_TEXT("(\""), VQ_TEXT("((")),
              VQ_TEXT("((a\") (("));
    EXPECT_EQ(CVqStringW(VQ_TEXT("aaa")).Replace(VQ_TEXT("a"), VQ_TEXT("aa")), VQ_TEXT("aaaaaa"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("aaa")).Replace(VQ_TEXT("aa"), VQ_TEXT("b")), VQ_TEXT("ba"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("a b ")).Replace(VQ_TEXT(" "), VQ_TEXT("")), VQ_TEXT("ab"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("ab")).Replace(VQ_TEXT(""), VQ_TEXT("x")), VQ_TEXT("ab"));
}

TEST(CVqStringW, ReplaceByThePartOfItself)
{
    CVqStringW text(VQ_TEXT("ab"));

    text.Replace(text.GetString() + 1, text.GetString());

    EXPECT_EQ(text, VQ_TEXT("aab"));
}

TEST(CVqStringW, LeftTakesTheFirstUnits)
{
    const CVqStringW text(VQ_TEXT("File"));

    EXPECT_EQ(text.Left(2), VQ_TEXT("Fi"));
    EXPECT_EQ(text.Left(0), VQ_TEXT(""));
    EXPECT_EQ(text.Left(-1), VQ_TEXT(""));
    EXPECT_EQ(text.Left(INT_MAX), VQ_TEXT("File"));
}

TEST(CVqStringW, MidTakesFromTheStartAndMinusOneAll)
{
    const CVqStringW text(VQ_TEXT("a00Open"));

    EXPECT_EQ(text.Mid(3, -1), VQ_TEXT("Open"));
    EXPECT_EQ(text.Mid(3, 2), VQ_TEXT("Op"));
    EXPECT_EQ(text.Mid(7, -1), VQ_TEXT(""));
    EXPECT_EQ(text.Mid(99, 5), VQ_TEXT(""));
    EXPECT_EQ(text.Mid(-4, 2), VQ_TEXT("a0"));
    EXPECT_EQ(text.Mid(5, INT_MAX), VQ_TEXT("en"));
    EXPECT_EQ(text.Mid(INT_MIN, INT_MIN), VQ_TEXT("a00Open"));
}

TEST(CVqStringW, InsertPutsUnitsAtThePosition)
{
    EXPECT_EQ(CVqStringW(VQ_TEXT("Fe")).Insert(VQ_TEXT("il"), 1, -1), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("Fe")).Insert(VQ_TEXT("ilX"), 1, 2), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("Fe")).Insert(VQ_TEXT("il"), 1, 99), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("b")).Insert(VQ_TEXT("a"), -3, -1), VQ_TEXT("ab"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("a")).Insert(VQ_TEXT("b"), 99, -1), VQ_TEXT("ab"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("a")).Insert(VQ_TEXT("b"), 0, 0), VQ_TEXT("a"));
}

TEST(CVqStringW, InsertOfTheOwnText)
{
    CVqStringW text(VQ_TEXT("abc"));

    text.Insert(text.GetString(), 1, -1);

    EXPECT_EQ(text, VQ_TEXT("aabcbc"));
}

TEST(CVqStringW, DeleteRemovesUnits)
{
    EXPECT_EQ(CVqStringW(VQ_TEXT("&File")).Delete(0, 1), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(1, 2), VQ_TEXT("Fe"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(2, INT_MAX), VQ_TEXT("Fi"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(2, -1), VQ_TEXT("Fi"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(9, 1), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(-9, 1), VQ_TEXT("ile"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).Delete(1, 0), VQ_TEXT("File"));
}

TEST(CVqStringW, TruncateAtCutsAtThePosition)
{
    EXPECT_EQ(CVqStringW(VQ_TEXT("File\tCtrl")).TruncateAt(4), VQ_TEXT("File"));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).TruncateAt(0), VQ_TEXT(""));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).TruncateAt(-1), VQ_TEXT(""));
    EXPECT_EQ(CVqStringW(VQ_TEXT("File")).TruncateAt(99), VQ_TEXT("File"));
}

TEST(CVqStringW, MakeUpperKeepsTheLengthOfEveryUnit)
{
    for (int unit = 1; unit <= 0xFFFF; ++unit) {
        CVqStringW text(CVqStringW::string_type(1, static_cast<vq_wchar>(unit)));
        ASSERT_EQ(text.MakeUpper().GetLength(), 1) << unit;
        const vq_wchar upper = text.GetAt(0);
        ASSERT_NE(upper, 0) << unit;
        ASSERT_EQ(text.MakeUpper().GetAt(0), upper) << unit;
        ASSERT_EQ(QChar(upper).isSurrogate(), QChar(static_cast<char16_t>(unit)).isSurrogate()) << unit;
    }
}

TEST(CVqStringW, MakeUpperLeavesEverySurrogate)
{
    for (int unit = 0xD800; unit <= 0xDFFF; ++unit) {
        CVqStringW text(CVqStringW::string_type(1, static_cast<vq_wchar>(unit)));
        ASSERT_EQ(text.MakeUpper().GetAt(0), unit);
    }
}

TEST(CVqStringW, MakeUpperGivesTheCapitalWhereItIsOneUnit)
{
    for (int unit = 1; unit <= 0xFFFF; ++unit) {
        CVqStringW text(CVqStringW::string_type(1, static_cast<vq_wchar>(unit)));
        const QString capital = text.ToQString().toUpper();
        if (capital.size() == 1) {
            ASSERT_EQ(text.MakeUpper().GetAt(0), capital.at(0).unicode()) << unit;
        }
    }
}

TEST(CVqStringW, MakeUpperKeepsAZero)
{
    CVqStringW text(CVqStringW::string_type(VQ_TEXT("a\0b"), 3));

    EXPECT_EQ(text.MakeUpper(), CVqStringW(CVqStringW::string_type(VQ_TEXT("A\0B"), 3)));
}

TEST(CVqStringW, MakeUpperMapsLettersAndLeavesWhatWouldGrow)
{
    CVqStringW text(u"az \u00E4\u00DF\u0149\u00FF\u01C6\uFB01\u0436\u03C3\U00010428");

    EXPECT_EQ(text.MakeUpper(), u"AZ \u00C4\u00DF\u0149\u0178\u01C4\uFB01\u0416\u03A3\U00010428");
}

TEST(CVqStringW, MakeUpperIsTheSameUnderATurkishLocale)
{
    const ScopedLocale turkish(LC_CTYPE, "tr_TR.UTF-8");
    if (!turkish.IsSet())
        GTEST_SKIP() << "this machine has no locale tr_TR.UTF-8";

    EXPECT_EQ(CVqStringW(VQ_TEXT("iI")).MakeUpper(), VQ_TEXT("II"));
}

TEST(CVqStringW, AddStringAppendsEachKind)
{
    CVqStringW text;

    text.AddString("a").AddString(VQ_TEXT("b")).AddString(CVqStringW(VQ_TEXT("c")));

    EXPECT_EQ(text, VQ_TEXT("abc"));
    EXPECT_EQ(text.AddString(text), VQ_TEXT("abcabc"));
    EXPECT_EQ(text.AddString(text.GetString() + 4), VQ_TEXT("abcabcbc"));
}

TEST(CVqStringW, AddIntAppendsSignedDecimalDigits)
{
    CVqStringW text(VQ_TEXT("x"));

    text.AddInt(0).AddInt(-7).AddInt(INT_MAX).AddInt(INT_MIN);

    EXPECT_EQ(text, VQ_TEXT("x0-72147483647-2147483648"));
}

TEST(CVqStringW, PlusAssignAppendsTextAndUnits)
{
    CVqStringW text(VQ_TEXT("a"));

    text += CVqStringW(VQ_TEXT("b"));
    text += VQ_TEXT("c");
    text += VQ_TEXT('d');
    text += text;

    EXPECT_EQ(text, VQ_TEXT("abcdabcd"));
}

TEST(CVqStringW, PlusConcatenates)
{
    const CVqStringW left(VQ_TEXT("a"));

    EXPECT_EQ(left + CVqStringW(VQ_TEXT("b")), VQ_TEXT("ab"));
    EXPECT_EQ(left + VQ_TEXT("c"), VQ_TEXT("ac"));
    EXPECT_EQ(left, VQ_TEXT("a"));
}

TEST(CVqStringW, EqualityIsExact)
{
    const CVqStringW text(VQ_TEXT("File"));

    EXPECT_TRUE(text == CVqStringW(VQ_TEXT("File")));
    EXPECT_TRUE(text == VQ_TEXT("File"));
    EXPECT_TRUE(VQ_TEXT("File") == text);
    EXPECT_TRUE(text != CVqStringW(VQ_TEXT("file")));
    EXPECT_TRUE(text != VQ_TEXT("Fil"));
    EXPECT_TRUE(VQ_TEXT("Files") != text);
    EXPECT_FALSE(text != VQ_TEXT("File"));
}

TEST(CVqStringW, OrderIsThatOfUnits)
{
    EXPECT_TRUE(CVqStringW(VQ_TEXT("B")) < CVqStringW(VQ_TEXT("a")));
    EXPECT_TRUE(CVqStringW(VQ_TEXT("a")) < CVqStringW(VQ_TEXT("aa")));
    EXPECT_FALSE(CVqStringW(VQ_TEXT("a")) < CVqStringW(VQ_TEXT("a")));
    EXPECT_TRUE(CVqStringW(u"\U0001F600") < CVqStringW(u"\uFFFD"));
}

TEST(CVqStringW, KeysAnOrderedMap)
{
    std::map<CVqStringW, int> map{{VQ_TEXT("b"), 2}, {VQ_TEXT("a"), 1}};

    EXPECT_EQ(map.begin()->first, VQ_TEXT("a"));
    EXPECT_EQ(map[VQ_TEXT("b")], 2);
}

TEST(CVqStringW, ConvertsToAPointer)
{
    const CVqStringW text(VQ_TEXT("File"));
    const vq_wchar* pointer = text;

    EXPECT_EQ(pointer, text.GetString());
}
