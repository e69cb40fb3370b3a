#include "system/CVqStringA.h"

#include <gtest/gtest.h>

TEST(CVqStringA, DefaultIsEmptyAndNeverNull)
{
    const CVqStringA text;

    EXPECT_TRUE(text.IsEmpty());
    EXPECT_STREQ(text.GetString(), "");
}

TEST(CVqStringA, LengthZeroTakesTheWholeText)
{
    const CVqStringA text(VQ_TEXT("CVqListVariant"), 0);

    EXPECT_STREQ(text.GetString(), "CVqListVariant");
    EXPECT_EQ(text.GetLength(), 14);
}

TEST(CVqStringA, ALengthCutsAndEndsAtTheTerminator)
{
    EXPECT_STREQ(CVqStringA(VQ_TEXT("List"), 2).GetString(), "Li");
    EXPECT_STREQ(CVqStringA(VQ_TEXT("List"), 99).GetString(), "List");
}

TEST(CVqStringA, WideUnitsBecomeUtf8)
{
    EXPECT_STREQ(CVqStringA(u"\u00E4\U0001F600", 0).GetString(), "\xC3\xA4\xF0\x9F\x98\x80");
}

TEST(CVqStringA, ALoneSurrogateBecomesAQuestionMark)
{
    const vq_wchar lone[] = {0xD800, 0};

    EXPECT_STREQ(CVqStringA(lone, 0).GetString(), "?");
}

TEST(CVqStringA, NullReadsAsEmpty)
{
    CVqStringA text(static_cast<const vq_wchar*>(nullptr), 0);
    EXPECT_TRUE(text.IsEmpty());

    text = "svg";
    text = nullptr;
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CVqStringA, AssignmentTakesTheBytes)
{
    CVqStringA text(VQ_TEXT("old"), 0);

    text = "<svg/>";

    EXPECT_STREQ(text, "<svg/>");
}

TEST(CVqStringA, AssignmentFromTheOwnBuffer)
{
    CVqStringA text(VQ_TEXT("a text of more than a few bytes"), 0);

    text = text.GetString() + 2;

    EXPECT_STREQ(text, "text of more than a few bytes");
}
