#include "AbstractGui/CVqAccelerators.h"
#include "tests/AbstractGui/AccelTexts.h"
#include "tests/AbstractGui/AnsweringTranslator.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using Text = std::basic_string<vq_wchar>;
using FlagsAndKeys = std::vector<std::pair<vq_uint32, int>>;

constexpr vq_wchar no_key = 0xFFFF;

FlagsAndKeys records_of(const CVqAccelerators& table)
{
    FlagsAndKeys records;
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    for (vq_uint32 index = 0; table.GetAccelKeyByIndex(index, &flags, &key) == 0; ++index)
        records.emplace_back(flags, key);
    return records;
}

FlagsAndKeys added_by(const vq_wchar* text)
{
    CVqAccelerators table;
    EXPECT_EQ(table.AddAccelKey(1, text, 0), -4);
    return records_of(table);
}

struct Area
{
    explicit Area(const Text& text = Text()) { text.copy(units, text.size()); }

    Text GetText() const { return units; }

    vq_wchar units[512] = {};
};

Text joined(const CVqAccelerators& table, const Text& before = Text(),
            const vq_wchar* separator = VQ_TEXT(", "))
{
    Area area(before);
    EXPECT_EQ(table.GetAllAccelKeys(1, area.units, separator), 0);
    return area.GetText();
}

void add(CVqAccelerators& table, std::initializer_list<vq_wchar> keys)
{
    for (const vq_wchar key : keys)
        table.AddAccelKey(1, 16, key, 0);
}

}

// Adding by text -------------------------------------------------------------------------------------

TEST(CVqAcceleratorsText, OneKeyTextAddsOneRecord)
{
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl+A")), (FlagsAndKeys{{18, 0x41}}));
}

TEST(CVqAcceleratorsText, RecordAddedByTextHasIdentifierAndTarget)
{
    CVqAccelerators table;
    table.AddAccelKey(7, VQ_TEXT("Ctrl+A"), 0x123456789ABC);

    vq_uint64 target = 0;
    vq_uint32 id = 0;
    EXPECT_TRUE(table.Translate(0x41, 2, target, id));
    EXPECT_EQ(target, 0x123456789ABCu);
    EXPECT_EQ(id, 7u);
}

TEST(CVqAcceleratorsText, SecondKeyOfAListAddsTheFirstAgain)
{
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl+A,Ctrl+B")), (FlagsAndKeys{{18, 0x41}, {18, 0x41}}));
}

// "Ctrl+Shift+Z" ends at 12. Eight units are left, and the first eight of the text are "Ctrl+Shi".
TEST(CVqAcceleratorsText, EachPassOfAListReadsFromTheStart)
{
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl+Shift+Z, Ctrl+Y")), (FlagsAndKeys{{22, 0x5A}, {18, 0x53}}));
}

// The first pass reads "A", the later ones two units each: "A,".
TEST(CVqAcceleratorsText, ListOfLettersAddsTheFirstLetterOnly)
{
    EXPECT_EQ(added_by(VQ_TEXT("A,B,C")), (FlagsAndKeys{{16, 0x41}, {16, 0x41}, {16, 0x41}}));
}

// "Ctrl" names no key, so the next pass takes "Ctrl,+A"; the one behind it takes two units, "Ct".
TEST(CVqAcceleratorsText, ItemThatDoesNotParseLengthensTheNextPass)
{
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl,+A")), (FlagsAndKeys{{18, 0x41}}));
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl,+A,B")), (FlagsAndKeys{{18, 0x41}, {16, 0x43}}));
}

TEST(CVqAcceleratorsText, ListThatNeverParsesAddsNothing)
{
    EXPECT_EQ(added_by(VQ_TEXT(";,A,B")), FlagsAndKeys());
}

// At the end one unit is left, the comma; one unit from the start is "C".
TEST(CVqAcceleratorsText, CommaAtTheEndReadsTheFirstUnit)
{
    EXPECT_EQ(added_by(VQ_TEXT("Ctrl+A,")), (FlagsAndKeys{{18, 0x41}, {16, 0x43}}));
}

TEST(CVqAcceleratorsText, EmptyAndNullTextAddNothing)
{
    EXPECT_EQ(added_by(VQ_TEXT("")), FlagsAndKeys());
    EXPECT_EQ(added_by(VQ_TEXT(",,")), FlagsAndKeys());
    EXPECT_EQ(added_by(nullptr), FlagsAndKeys());
}

TEST(CVqAcceleratorsText, StretchOf511UnitsIsRead)
{
    const Text text = Text(505, VQ_TEXT(' ')) + VQ_TEXT("Ctrl+A");

    EXPECT_EQ(added_by(text.c_str()), (FlagsAndKeys{{18, 0x41}}));
}

TEST(CVqAcceleratorsText, ListOfAnyLengthIsReadInShortStretches)
{
    Text text = VQ_TEXT("A");
    for (int count = 0; count < 1000; ++count)
        text += VQ_TEXT(",B");

    EXPECT_EQ(added_by(text.c_str()), FlagsAndKeys(1001, {16, 0x41}));
}

TEST(CVqAcceleratorsTextDeathTest, StretchOf512UnitsEndsTheProcess)
{
    const Text text = Text(506, VQ_TEXT(' ')) + VQ_TEXT("Ctrl+A");
    CVqAccelerators table;

    EXPECT_DEATH(table.AddAccelKey(1, text.c_str(), 0), "");
}

TEST(CVqAcceleratorsTextDeathTest, StretchGrowsOverItemsThatDoNotParse)
{
    Text text;
    for (int count = 0; count < 512; ++count)
        text += VQ_TEXT(',');
    CVqAccelerators table;

    EXPECT_DEATH(table.AddAccelKey(1, text.c_str(), 0), "");
}

// The text of one key ---------------------------------------------------------------------------------

TEST(CVqAcceleratorsText, TextOfTheNextKeyOfAnIdentifierIsStored)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);
    table.AddAccelKey(2, 18, 0x42, 0);
    table.AddAccelKey(1, 20, 0x70, 0);
    Area area;

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, area.units), 0);
    EXPECT_EQ(area.GetText(), VQ_TEXT("Ctrl+A"));
    EXPECT_EQ(index, 1);
    EXPECT_EQ(table.GetAccelKey(1, index, area.units), 0);
    EXPECT_EQ(area.GetText(), VQ_TEXT("Shift+F1"));
    EXPECT_EQ(index, 3);
    EXPECT_EQ(table.GetAccelKey(1, index, area.units), -13);
}

TEST(CVqAcceleratorsText, MissLeavesTheTextAndMovesTheIndexToTheCount)
{
    CVqAccelerators table;
    add(table, {0x41, 0x42});
    Area area(VQ_TEXT("kept"));

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(9, index, area.units), -13);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(area.GetText(), VQ_TEXT("kept"));
}

TEST(CVqAcceleratorsText, RecordWithoutKeyIsAHitThatLeavesTheText)
{
    CVqAccelerators table;
    add(table, {no_key});
    Area area(VQ_TEXT("kept"));

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, area.units), 0);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(area.GetText(), VQ_TEXT("kept"));
}

TEST(CVqAcceleratorsText, NullTextStillSteps)
{
    CVqAccelerators table;
    add(table, {0x41});

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, nullptr), 0);
    EXPECT_EQ(index, 1);
}

TEST(CVqAcceleratorsText, NegativeStartIndexLeavesTextAndIndex)
{
    CVqAccelerators table;
    add(table, {0x41});
    Area area(VQ_TEXT("kept"));

    int index = -1;
    EXPECT_EQ(table.GetAccelKey(1, index, area.units), -13);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(area.GetText(), VQ_TEXT("kept"));
}

// All texts of an identifier --------------------------------------------------------------------------

TEST(CVqAcceleratorsText, AllKeysOfAnIdentifierAreJoined)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);
    table.AddAccelKey(2, 18, 0x42, 0);
    table.AddAccelKey(1, 16, 45, 0);

    EXPECT_EQ(joined(table), VQ_TEXT("Ctrl+A, Insert"));
}

TEST(CVqAcceleratorsText, UnknownIdentifierAppendsNothing)
{
    const CVqAccelerators table;

    EXPECT_EQ(joined(table), VQ_TEXT(""));
    EXPECT_EQ(joined(table, VQ_TEXT("kept")), VQ_TEXT("kept"));
}

TEST(CVqAcceleratorsText, AreaThatHoldsATextIsAppendedTo)
{
    CVqAccelerators table;
    add(table, {0x41});

    EXPECT_EQ(joined(table, VQ_TEXT("Key")), VQ_TEXT("Key, A"));
}

TEST(CVqAcceleratorsText, EqualAdjacentTextsPrintOnce)
{
    CVqAccelerators table;
    add(table, {0x41, 0x41});

    EXPECT_EQ(joined(table), VQ_TEXT("A"));
}

TEST(CVqAcceleratorsText, EqualTextsThatAreNotAdjacentPrintEach)
{
    CVqAccelerators table;
    add(table, {0x41, 0x42, 0x41});

    EXPECT_EQ(joined(table), VQ_TEXT("A, B, A"));
}

TEST(CVqAcceleratorsText, KeysThatPrintAlikeCountAsEqual)
{
    CVqAccelerators table;
    add(table, {0x6B, 0xBB});

    EXPECT_EQ(joined(table), VQ_TEXT("+"));
}

TEST(CVqAcceleratorsText, RecordsOfOthersDoNotSeparateEqualTexts)
{
    CVqAccelerators table;
    add(table, {0x41});
    table.AddAccelKey(2, 16, 0x42, 0);
    add(table, {0x41});

    EXPECT_EQ(joined(table), VQ_TEXT("A"));
}

TEST(CVqAcceleratorsText, FirstRecordWithoutKeyIsLeftOut)
{
    CVqAccelerators table;
    add(table, {no_key, 0x41});

    EXPECT_EQ(joined(table), VQ_TEXT("A"));
}

TEST(CVqAcceleratorsText, LaterRecordWithoutKeyIsAnEmptyTextBetweenSeparators)
{
    CVqAccelerators table;
    add(table, {0x41, no_key, no_key, 0x41});

    EXPECT_EQ(joined(table), VQ_TEXT("A, , A"));
}

TEST(CVqAcceleratorsText, NullSeparatorJoinsWithoutOne)
{
    CVqAccelerators table;
    add(table, {0x41, 0x42});

    EXPECT_EQ(joined(table, Text(), nullptr), VQ_TEXT("AB"));
}

TEST(CVqAcceleratorsText, NullAreaIsLeftAlone)
{
    CVqAccelerators table;
    add(table, {0x41});

    EXPECT_EQ(table.GetAllAccelKeys(1, nullptr, VQ_TEXT(", ")), 0);
}

TEST(CVqAcceleratorsText, TextsFillTheAreaUpToItsTerminator)
{
    CVqAccelerators table;
    add(table, {0x41});

    EXPECT_EQ(joined(table, Text(508, VQ_TEXT('x'))), Text(508, VQ_TEXT('x')) + VQ_TEXT(", A"));
    EXPECT_EQ(joined(table, Text(509, VQ_TEXT('x'))), Text(509, VQ_TEXT('x')));
}

TEST(CVqAcceleratorsText, FromTheFirstTextThatDoesNotFitTheRestIsLeftOut)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 16, 0x41, 0);
    table.AddAccelKey(1, 23, 0x42, 0);
    table.AddAccelKey(1, 16, 0x43, 0);

    EXPECT_EQ(joined(table, Text(500, VQ_TEXT('x'))), Text(500, VQ_TEXT('x')) + VQ_TEXT(", A"));
}

TEST(CVqAcceleratorsText, AreaWithoutTerminatorIsLeftAlone)
{
    CVqAccelerators table;
    add(table, {0x41});
    const Text full(512, VQ_TEXT('x'));
    Area area(full);

    EXPECT_EQ(table.GetAllAccelKeys(1, area.units, VQ_TEXT(", ")), 0);
    EXPECT_EQ(Text(area.units, 512), full);
}

TEST(CVqAcceleratorsText, TextLongerThanTheAreaIsLeftOut)
{
    const AnsweringTranslator translator([](const QString&, const QString&) { return QString(600, u'x'); });
    CVqAccelerators table;
    add(table, {8});

    EXPECT_EQ(joined(table), VQ_TEXT(""));
}
