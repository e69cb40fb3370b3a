#include "system/CVqLiteVariantR.h"

#include "system/CVqLiteVariantW.h"
#include "tests/support/SmallStack.h"
#include "tests/system/SystemPrinters.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

const vq_wchar* const null_text = nullptr;

CVqStringW name_under_cursor(const CVqLiteVariantR& reader)
{
    vq_wchar buffer[255];
    reader.GetCurrentName(buffer, 255);
    return buffer;
}

CVqStringW numbered(int number)
{
    return CVqStringW().Format(VQ_TEXT("Name%d"), number);
}

}

/// Width 3, an empty level Empty, a level Root of two anonymous records, Text "7", Width 4.
class CVqLiteVariantRTest : public testing::Test
{
protected:
    CVqLiteVariantRTest()
    {
        CVqLiteVariantW writer;
        writer.Set(3, VQ_TEXT("Width"));
        writer.LevelBegin(VQ_TEXT("Empty"));
        writer.LevelEnd();
        writer.LevelBegin(VQ_TEXT("Root"));
        for (unsigned id = 1; id <= 2; ++id) {
            writer.LevelBegin(VQ_TEXT(""));
            writer.Set(id, VQ_TEXT("Id"));
            writer.LevelEnd();
        }
        writer.LevelEnd();
        writer.Set(VQ_TEXT("7"), VQ_TEXT("Text"));
        writer.Set(4, VQ_TEXT("Width"));
        writer.Finalize(m_reader, 0);
    }

    CVqLiteVariantR m_reader;
    CVqStringW m_text{VQ_TEXT("before")};
};

TEST_F(CVqLiteVariantRTest, ANewReaderHasNothingAndFailsWithoutHarm)
{
    CVqLiteVariantR reader;
    vq_wchar buffer[4] = {'x', 'x', 'x', 0};

    EXPECT_FALSE(reader.IsNextValue());
    EXPECT_FALSE(reader.IsValueSet(VQ_TEXT("a")));
    EXPECT_EQ(reader.NextValue(), -9);
    EXPECT_EQ(reader.LevelBegin(VQ_TEXT("a")), -13);
    EXPECT_EQ(reader.CurrentLevelBegin(), -13);
    EXPECT_EQ(reader.LevelEnd(), -9);
    EXPECT_EQ(reader.Get(VQ_TEXT("a"), 5), 5);
    EXPECT_EQ(reader.GetCurrentName(buffer, 4), -9);
    EXPECT_EQ(buffer[0], 0);
    EXPECT_EQ(reader.GetCVqStringW(m_text, VQ_TEXT("a"), VQ_TEXT("default")), VQ_TEXT("default"));
}

TEST_F(CVqLiteVariantRTest, TheCursorVisitsEntriesInTheirOrder)
{
    std::string names;
    for (; m_reader.IsNextValue(); m_reader.NextValue())
        names += name_under_cursor(m_reader).ToQString().toStdString() + ' ';

    EXPECT_EQ(names, "Width Empty Root Text Width ");
    EXPECT_EQ(m_reader.NextValue(), -9);
    EXPECT_EQ(m_reader.CurrentLevelBegin(), -13);
}

TEST_F(CVqLiteVariantRTest, IsValueSetSeesValuesAndLevelsOfThisLevelOnly)
{
    EXPECT_TRUE(m_reader.IsValueSet(VQ_TEXT("Width")));
    EXPECT_TRUE(m_reader.IsValueSet(VQ_TEXT("Root")));
    EXPECT_TRUE(m_reader.IsValueSet(VQ_TEXT("Empty")));
    EXPECT_FALSE(m_reader.IsValueSet(VQ_TEXT("Id")));
    EXPECT_FALSE(m_reader.IsValueSet(VQ_TEXT("width")));
    EXPECT_FALSE(m_reader.IsValueSet(VQ_TEXT("")));
    EXPECT_FALSE(m_reader.IsValueSet(null_text));
}

TEST_F(CVqLiteVariantRTest, LevelBeginGivesTheNumberOfEntries)
{
    int count = -1;

    EXPECT_EQ(m_reader.LevelBegin(VQ_TEXT("Empty"), &count), 0);
    EXPECT_EQ(count, 0);
    EXPECT_FALSE(m_reader.IsNextValue());
    EXPECT_EQ(m_reader.LevelEnd(), 0);

    EXPECT_EQ(m_reader.LevelBegin(VQ_TEXT("Root"), &count), 0);
    EXPECT_EQ(count, 2);
    EXPECT_TRUE(m_reader.IsNextValue());
}

TEST_F(CVqLiteVariantRTest, LevelBeginOfAValueOrAMissingNameFails)
{
    int count = -1;

    EXPECT_EQ(m_reader.LevelBegin(VQ_TEXT("Width"), &count), -13);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(m_reader.LevelBegin(VQ_TEXT("Nowhere")), -13);
    EXPECT_EQ(m_reader.CurrentLevelBegin(&count), -13);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Width"), 0), 3);
}

TEST_F(CVqLiteVariantRTest, LevelBeginFailsWhereAValueOfTheSameNameStandsFirst)
{
    CVqLiteVariantW writer;
    writer.Set(1, VQ_TEXT("a"));
    writer.LevelBegin(VQ_TEXT("a"));
    writer.Finalize(m_reader, 0);

    EXPECT_EQ(m_reader.LevelBegin(VQ_TEXT("a")), -13);
    m_reader.NextValue();
    EXPECT_EQ(m_reader.CurrentLevelBegin(), 0);
}

TEST_F(CVqLiteVariantRTest, LeavingALevelStandsWhereTheOuterOneStood)
{
    m_reader.NextValue();

    m_reader.LevelBegin(VQ_TEXT("Root"));
    m_reader.NextValue();
    EXPECT_EQ(m_reader.LevelEnd(), 0);

    EXPECT_EQ(name_under_cursor(m_reader), VQ_TEXT("Empty"));
    EXPECT_EQ(m_reader.LevelEnd(), -9);
}

TEST_F(CVqLiteVariantRTest, CurrentLevelBeginReachesTheElementsOfAList)
{
    m_reader.LevelBegin(VQ_TEXT("Root"));
    std::vector<int> ids;

    for (; m_reader.IsNextValue(); m_reader.NextValue()) {
        EXPECT_EQ(name_under_cursor(m_reader), VQ_TEXT(""));
        int count = 0;
        ASSERT_EQ(m_reader.CurrentLevelBegin(&count), 0);
        EXPECT_EQ(count, 1);
        ids.push_back(m_reader.Get(VQ_TEXT("Id"), 0));
        EXPECT_EQ(m_reader.LevelEnd(), 0);
    }

    EXPECT_EQ(ids, (std::vector<int>{1, 2}));
}

TEST_F(CVqLiteVariantRTest, MissingValuesGiveTheDefault)
{
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Height"), -8), -8);
    EXPECT_TRUE(m_reader.Get(VQ_TEXT("Height"), true));
    EXPECT_FALSE(m_reader.Get(VQ_TEXT("Height"), false));
    EXPECT_EQ(&m_reader.GetCVqStringW(m_text, VQ_TEXT("Height"), VQ_TEXT("d")), &m_text);
    EXPECT_EQ(m_text, VQ_TEXT("d"));
    EXPECT_EQ(m_reader.GetCVqStringW(m_text, VQ_TEXT("Height"), null_text), VQ_TEXT(""));
}

TEST_F(CVqLiteVariantRTest, ValuesAreConverted)
{
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Text"), 0), 7);
    EXPECT_TRUE(m_reader.Get(VQ_TEXT("Width"), false));
    EXPECT_EQ(m_reader.GetCVqStringW(m_text, VQ_TEXT("Width"), VQ_TEXT("")), VQ_TEXT("3"));
}

TEST_F(CVqLiteVariantRTest, ALevelHasNoValue)
{
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Root"), 5), 5);
    EXPECT_EQ(m_reader.GetCVqStringW(m_text, VQ_TEXT("Root"), VQ_TEXT("d")), VQ_TEXT("d"));
}

TEST_F(CVqLiteVariantRTest, ARepeatedNameGivesTheFirstWhateverWasAskedBefore)
{
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Text"), 0), 7);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Width"), 0), 3);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Width"), 0), 3);
}

TEST_F(CVqLiteVariantRTest, TheDefaultMayBeTheOutputItself)
{
    EXPECT_EQ(m_reader.GetCVqStringW(m_text, VQ_TEXT("Height"), m_text.GetString()), VQ_TEXT("before"));
}

TEST_F(CVqLiteVariantRTest, CurrentNameIsCutToTheBuffer)
{
    vq_wchar buffer[4] = {'x', 'x', 'x', 'x'};

    EXPECT_EQ(m_reader.GetCurrentName(buffer, 3), 0);
    EXPECT_EQ(CVqStringW(buffer), VQ_TEXT("Wi"));
    EXPECT_EQ(buffer[3], 'x');
    EXPECT_EQ(m_reader.GetCurrentName(buffer, 1), 0);
    EXPECT_EQ(buffer[0], 0);
    EXPECT_EQ(m_reader.GetCurrentName(buffer, 0), -9);
    EXPECT_EQ(m_reader.GetCurrentName(buffer, -1), -9);
    EXPECT_EQ(m_reader.GetCurrentName(nullptr, 4), -9);
}

TEST_F(CVqLiteVariantRTest, CopiesHaveCursorsOfTheirOwn)
{
    CVqLiteVariantR copy(m_reader);

    copy.NextValue();
    m_reader = CVqLiteVariantR();

    EXPECT_EQ(name_under_cursor(copy), VQ_TEXT("Empty"));
    const CVqLiteVariantR moved(std::move(copy));
    EXPECT_TRUE(moved.IsValueSet(VQ_TEXT("Root")));
    EXPECT_FALSE(copy.IsNextValue()); // NOLINT(bugprone-use-after-move): a moved-from reader is empty
}

TEST_F(CVqLiteVariantRTest, ARepeatedNameAroundALevelThatHasItTooGivesTheFirst)
{
    CVqLiteVariantW writer;
    writer.Set(1, VQ_TEXT("a"));
    writer.Set(2, VQ_TEXT("b"));
    writer.LevelBegin(VQ_TEXT("inner"));
    writer.Set(3, VQ_TEXT("a"));
    writer.LevelEnd();
    writer.Set(4, VQ_TEXT("a"));
    writer.Finalize(m_reader, 0);

    EXPECT_EQ(m_reader.Get(VQ_TEXT("b"), 0), 2);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("a"), 0), 1);
}

TEST_F(CVqLiteVariantRTest, NamesAreFoundInAnyOrder)
{
    CVqLiteVariantW writer;
    for (int i = 0; i < 500; ++i)
        writer.Set(i, numbered(i));
    writer.Finalize(m_reader, 0);
    std::mt19937 random(11);

    for (int i = 0; i < 2000; ++i) {
        const int wanted = static_cast<int>(random() % 600);
        ASSERT_EQ(m_reader.Get(numbered(wanted), -1), wanted < 500 ? wanted : -1);
    }
}

// Entry by entry, each of these would walk the level from end to end.
TEST_F(CVqLiteVariantRTest, NamesOfAVeryLargeLevelAreFoundInReverseOrder)
{
    constexpr int count = 200'000;
    for (const bool repeats : {false, true}) {
        CVqLiteVariantW writer;
        for (int i = 0; i < count; ++i)
            writer.Set(i, numbered(i));
        if (repeats)
            writer.Set(-1, numbered(0));
        writer.Finalize(m_reader, 0);

        for (int i = count - 1; i >= 0; --i)
            ASSERT_EQ(m_reader.Get(numbered(i), -1), i);
    }
}

TEST_F(CVqLiteVariantRTest, ALargeLevelIsFoundAlikeByACopyAndAfterItWasLeft)
{
    CVqLiteVariantW writer;
    writer.LevelBegin(VQ_TEXT("Level"));
    for (int i = 0; i < 2'000; ++i)
        writer.Set(i, numbered(i));
    writer.LevelEnd();
    writer.Set(7, numbered(3));
    writer.Finalize(m_reader, 0);
    m_reader.LevelBegin(VQ_TEXT("Level"));
    for (int i = 1'999; i >= 0; --i)
        m_reader.Get(numbered(i), -1);

    const CVqLiteVariantR copy(m_reader);
    m_reader.LevelEnd();

    EXPECT_EQ(copy.Get(numbered(3), -1), 3);
    EXPECT_FALSE(copy.IsValueSet(VQ_TEXT("Level")));
    EXPECT_EQ(m_reader.Get(numbered(3), -1), 7);
}

TEST_F(CVqLiteVariantRTest, TheEntryUnderTheCursorIsReadWithoutItsName)
{
    CVqLiteVariantW writer;
    writer.Set(5, VQ_TEXT("Twice"));
    writer.Set(VQ_TEXT("text"), VQ_TEXT("Twice"));
    writer.LevelBegin(VQ_TEXT("Level"));
    writer.LevelEnd();
    writer.Finalize(m_reader, 0);

    EXPECT_EQ(m_reader.CurrentName(), VQ_TEXT("Twice"));
    EXPECT_EQ(m_reader.GetCurrent(9), 5);
    EXPECT_TRUE(m_reader.GetCurrent(false));
    EXPECT_EQ(m_reader.GetCurrent(m_text, VQ_TEXT("d")), VQ_TEXT("5"));
    m_reader.NextValue();
    EXPECT_EQ(m_reader.GetCurrent(9), 9);
    EXPECT_EQ(&m_reader.GetCurrent(m_text, VQ_TEXT("d")), &m_text);
    EXPECT_EQ(m_text, VQ_TEXT("text"));
    m_reader.NextValue();
    EXPECT_EQ(m_reader.CurrentName(), VQ_TEXT("Level"));
    EXPECT_TRUE(m_reader.IsCurrentValueSet());
    EXPECT_EQ(m_reader.GetCurrent(9), 9);
    EXPECT_EQ(m_reader.GetCurrent(m_text, VQ_TEXT("d")), VQ_TEXT("d"));
}

TEST_F(CVqLiteVariantRTest, BehindTheLastEntryThereIsNoCurrentOne)
{
    const CVqLiteVariantR empty;

    EXPECT_EQ(empty.CurrentName(), VQ_TEXT(""));
    EXPECT_FALSE(empty.IsCurrentValueSet());
    EXPECT_EQ(empty.GetCurrent(9), 9);
    EXPECT_TRUE(empty.GetCurrent(true));
    EXPECT_EQ(empty.GetCurrent(m_text, VQ_TEXT("d")), VQ_TEXT("d"));
}

TEST_F(CVqLiteVariantRTest, NamesWithTheSameBeginningAreToldApart)
{
    CVqLiteVariantW writer;
    writer.Set(1, VQ_TEXT("Col"));
    writer.Set(2, VQ_TEXT("Col1"));
    writer.Set(3, VQ_TEXT("C"));
    writer.Set(4, VQ_TEXT(""));
    writer.Finalize(m_reader, 0);

    EXPECT_EQ(m_reader.Get(VQ_TEXT("C"), 0), 3);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Col1"), 0), 2);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Col"), 0), 1);
    EXPECT_EQ(m_reader.Get(VQ_TEXT(""), 0), 4);
    EXPECT_EQ(m_reader.Get(null_text, 0), 4);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Col11"), 0), 0);
    EXPECT_EQ(m_reader.Get(VQ_TEXT("Co"), 0), 0);
}

TEST_F(CVqLiteVariantRTest, ManyLevelsAndManyEntriesNeedNoStack)
{
    run_in_small_stack([] {
        CVqLiteVariantW writer;
        for (int i = 0; i < 200'000; ++i)
            writer.LevelBegin(VQ_TEXT("in"));
        CVqLiteVariantR reader;
        writer.Finalize(reader, 0);
        int depth = 0;
        while (reader.LevelBegin(VQ_TEXT("in")) == 0)
            ++depth;
        EXPECT_EQ(depth, 200'000);
        while (reader.LevelEnd() == 0)
            --depth;
        EXPECT_EQ(depth, 0);
    });
}
