#include "system/CVqLiteVariantW.h"

#include "system/CVqLiteVariantR.h"
#include "tests/system/SystemPrinters.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

const vq_wchar* const null_text = nullptr;

}

static_assert(std::has_virtual_destructor_v<CVqLiteVariantW>);

TEST(CVqLiteVariantW, NothingWrittenGivesAnEmptyStream)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;

    EXPECT_EQ(writer.Finalize(reader, 0), 0);

    EXPECT_FALSE(reader.IsNextValue());
    EXPECT_EQ(reader.CurrentLevelBegin(), -13);
}

TEST(CVqLiteVariantW, SetWritesEachKindOfValue)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;
    CVqStringW text;

    EXPECT_EQ(writer.Set(VQ_TEXT("&Open"), VQ_TEXT("Text")), 0);
    EXPECT_EQ(writer.Set(4000000000u, VQ_TEXT("Id")), 0);
    EXPECT_EQ(writer.Set(-5, VQ_TEXT("Col1")), 0);
    EXPECT_EQ(writer.Set(true, VQ_TEXT("Removed")), 0);
    writer.Finalize(reader, 0);

    EXPECT_EQ(reader.GetCVqStringW(text, VQ_TEXT("Text"), VQ_TEXT("")), VQ_TEXT("&Open"));
    EXPECT_EQ(static_cast<unsigned>(reader.Get(VQ_TEXT("Id"), 0)), 4000000000u);
    EXPECT_EQ(reader.Get(VQ_TEXT("Col1"), 0), -5);
    EXPECT_TRUE(reader.Get(VQ_TEXT("Removed"), false));
}

TEST(CVqLiteVariantW, NullNamesAndTextsReadAsEmpty)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;
    CVqStringW text(VQ_TEXT("x"));

    writer.Set(null_text, null_text);
    writer.LevelBegin(null_text);
    writer.Finalize(reader, 0);

    EXPECT_EQ(reader.GetCVqStringW(text, VQ_TEXT(""), VQ_TEXT("default")), VQ_TEXT(""));
}

TEST(CVqLiteVariantW, LevelsNest)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;

    EXPECT_EQ(writer.LevelBegin(VQ_TEXT("Root")), 0);
    EXPECT_EQ(writer.LevelBegin(VQ_TEXT("")), 0);
    writer.Set(1, VQ_TEXT("Id"));
    EXPECT_EQ(writer.LevelEnd(), 0);
    EXPECT_EQ(writer.LevelEnd(), 0);
    writer.Set(2, VQ_TEXT("Id"));
    writer.Finalize(reader, 0);

    EXPECT_EQ(reader.Get(VQ_TEXT("Id"), 0), 2);
    ASSERT_EQ(reader.LevelBegin(VQ_TEXT("Root")), 0);
    EXPECT_FALSE(reader.IsValueSet(VQ_TEXT("Id")));
    ASSERT_EQ(reader.CurrentLevelBegin(), 0);
    EXPECT_EQ(reader.Get(VQ_TEXT("Id"), 0), 1);
}

TEST(CVqLiteVariantW, EndingTheOutermostLevelIsRefused)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;

    EXPECT_EQ(writer.LevelEnd(), -9);
    writer.Set(1, VQ_TEXT("a"));
    EXPECT_EQ(writer.LevelEnd(), -9);
    writer.Finalize(reader, 0);

    EXPECT_EQ(reader.Get(VQ_TEXT("a"), 0), 1);
}

TEST(CVqLiteVariantW, FinalizeEndsWhatIsOpen)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR reader;

    writer.LevelBegin(VQ_TEXT("a"));
    writer.LevelBegin(VQ_TEXT("b"));
    writer.Set(1, VQ_TEXT("c"));
    writer.Finalize(reader, 0);

    EXPECT_EQ(reader.LevelBegin(VQ_TEXT("a")), 0);
    EXPECT_EQ(reader.LevelBegin(VQ_TEXT("b")), 0);
    EXPECT_EQ(reader.Get(VQ_TEXT("c"), 0), 1);
}

TEST(CVqLiteVariantW, FinalizeReplacesWhatTheReaderHeldAndTheWriterStartsAnew)
{
    CVqLiteVariantW writer;
    CVqLiteVariantR first;
    CVqLiteVariantR second;
    writer.LevelBegin(VQ_TEXT("old"));
    writer.Finalize(first, 0);
    first.CurrentLevelBegin();

    writer.Set(1, VQ_TEXT("new"));
    writer.Finalize(first, 0);
    writer.Finalize(second, 0);

    EXPECT_TRUE(first.IsValueSet(VQ_TEXT("new")));
    EXPECT_FALSE(first.IsValueSet(VQ_TEXT("old")));
    EXPECT_FALSE(second.IsNextValue());
}
