#include "system/VqText.h"

#include "tests/support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cwctype>

TEST(VqText, NullHasNoLengthAndAnEmptyView)
{
    EXPECT_EQ(VqLength(nullptr), 0);
    EXPECT_TRUE(VqView(nullptr).empty());
}

TEST(VqText, LengthCountsUnitsBeforeTheTerminator)
{
    EXPECT_EQ(VqLength(VQ_TEXT("")), 0);
    EXPECT_EQ(VqLength(VQ_TEXT("File")), 4);
    EXPECT_EQ(VqLength(u"\U0001F600"), 2);
    EXPECT_EQ(VqView(VQ_TEXT("ab\0cd")).size(), 2u);
}

TEST(VqText, EqualityIsExactAndNullReadsAsEmpty)
{
    EXPECT_TRUE(VqEquals(VQ_TEXT("File"), VQ_TEXT("File")));
    EXPECT_FALSE(VqEquals(VQ_TEXT("File"), VQ_TEXT("file")));
    EXPECT_FALSE(VqEquals(VQ_TEXT("File"), VQ_TEXT("Files")));
    EXPECT_TRUE(VqEquals(nullptr, VQ_TEXT("")));
    EXPECT_TRUE(VqEquals(nullptr, nullptr));
    EXPECT_FALSE(VqEquals(VQ_TEXT("x"), nullptr));
}

TEST(VqText, AsciiLettersFoldAndOtherAsciiStays)
{
    for (int unit = 0; unit < 0x80; ++unit) {
        SCOPED_TRACE(unit);
        const bool upper = unit >= 'A' && unit <= 'Z';
        const bool lower = unit >= 'a' && unit <= 'z';
        EXPECT_EQ(VqLower(static_cast<vq_wchar>(unit)), upper ? unit + 32 : unit);
        EXPECT_EQ(VqUpper(static_cast<vq_wchar>(unit)), lower ? unit - 32 : unit);
    }
}

TEST(VqText, OtherLettersFollowTheCLibrary)
{
    const ScopedLocale locale(LC_CTYPE, "C.UTF-8");
    ASSERT_TRUE(locale.IsSet());

    EXPECT_EQ(VqLower(u'\u00C4'), u'\u00E4');
    EXPECT_EQ(VqUpper(u'\u0436'), u'\u0416');
}

TEST(VqText, AsciiLettersFoldByThemselvesUnderATurkishLocale)
{
    const ScopedLocale turkish(LC_CTYPE, "tr_TR.UTF-8");
    if (!turkish.IsSet())
        GTEST_SKIP() << "this machine has no locale tr_TR.UTF-8";
    ASSERT_EQ(std::towlower(L'I'), 0x131u) << "the locale has no dotless i";
    ASSERT_EQ(std::towupper(L'i'), 0x130u) << "the locale has no dotted I";

    EXPECT_EQ(VqLower(VQ_TEXT('I')), VQ_TEXT('i'));
    EXPECT_EQ(VqUpper(VQ_TEXT('i')), VQ_TEXT('I'));
    EXPECT_EQ(VqLower(u'\u0130'), VQ_TEXT('i'));
    EXPECT_EQ(VqUpper(u'\u0131'), VQ_TEXT('I'));
}

TEST(VqText, SurrogatesStay)
{
    for (int unit = 0xD800; unit <= 0xDFFF; ++unit) {
        ASSERT_EQ(VqLower(static_cast<vq_wchar>(unit)), unit);
        ASSERT_EQ(VqUpper(static_cast<vq_wchar>(unit)), unit);
    }
}
