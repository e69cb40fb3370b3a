#include "AbstractGui/CVqAccelerators.h"

#include "tests/AbstractGui/AccelTables.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <type_traits>
#include <vector>

namespace {

int index_by_id(const CVqAccelerators& table, vq_uint32 id, int index)
{
    const int before = index;
    const int result = table.GetAccelIndexById(id, index);
    EXPECT_EQ(index, before);
    return result;
}

}

static_assert(!std::is_polymorphic_v<CVqAccelerators>);
static_assert(sizeof(CVqAccelerators) == 2 * sizeof(void*), "a pointer and a bool");

// A new table ----------------------------------------------------------------------------------------

TEST(CVqAccelerators, NewTableIsEmptyAndTranslates)
{
    CVqAccelerators table;
    EXPECT_EQ(table.GetAccelsCount(), 0u);

    table.AddAccelKey(1, 16, 0x41, 0);
    EXPECT_TRUE(fired(table, 0x41, 0).found);
}

// Adding ---------------------------------------------------------------------------------------------

TEST(CVqAccelerators, AddedRecordsKeepTheirOrderAndEquals)
{
    CVqAccelerators table;

    EXPECT_EQ(table.AddAccelKey(3, 18, 0x41, 0), 0);
    EXPECT_EQ(table.AddAccelKey(1, 18, 0x41, 0), 0);
    EXPECT_EQ(table.AddAccelKey(3, 18, 0x41, 0), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{3, 1, 3}));
}

TEST(CVqAccelerators, AddAllFromAppendsInOrderAndLeavesTheOther)
{
    CVqAccelerators table;
    CVqAccelerators other;
    add_ids(table, {1, 2});
    add_ids(other, {4, 3});

    EXPECT_EQ(table.AddAllFrom(other), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{1, 2, 4, 3}));
    EXPECT_EQ(ids_of(other), (std::vector<vq_uint32>{4, 3}));
    EXPECT_EQ(fired(table, 0x44, 0), (Fired{true, 4, 400}));
}

TEST(CVqAccelerators, AddAllFromItselfDoublesTheRecords)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});

    EXPECT_EQ(table.AddAllFrom(table), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{1, 2, 1, 2}));
}

// Switching ------------------------------------------------------------------------------------------

TEST(CVqAccelerators, EnableAccelKeyMarksEveryRecordOfTheIdentifier)
{
    CVqAccelerators table;
    add_ids(table, {1, 2, 1});
    EXPECT_EQ(marks_of(table), (std::vector<bool>{true, true, true}));

    table.EnableAccelKey(1, false);
    EXPECT_EQ(marks_of(table), (std::vector<bool>{false, true, false}));

    table.EnableAccelKey(1, true);
    EXPECT_EQ(marks_of(table), (std::vector<bool>{true, true, true}));
}

TEST(CVqAccelerators, EnableAccelKeyIsDoneAlsoWithoutARecord)
{
    CVqAccelerators table;

    EXPECT_EQ(table.EnableAccelKey(1, false), 0);
}

TEST(CVqAccelerators, DisabledRecordStillTranslates)
{
    CVqAccelerators table;
    add_ids(table, {1});

    EXPECT_EQ(table.EnableAccelKey(1, false), 0);

    EXPECT_EQ(fired(table, 0x41, 0), (Fired{true, 1, 100}));
}

TEST(CVqAccelerators, DisabledTranslationFiresNothingUntilItIsEnabled)
{
    CVqAccelerators table;
    add_ids(table, {1});

    EXPECT_EQ(table.EnableAccelTranslation(false), 0);
    EXPECT_EQ(fired(table, 0x41, 0), nothing);

    EXPECT_EQ(table.EnableAccelTranslation(true), 0);
    EXPECT_EQ(fired(table, 0x41, 0), (Fired{true, 1, 100}));
}

// FindId ---------------------------------------------------------------------------------------------

TEST(CVqAccelerators, FindIdWalksAllRecordsOfACombinationThenGivesTheCount)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);
    table.AddAccelKey(2, 18, 0x42, 0);
    table.AddAccelKey(3, 18, 0x41, 0);
    table.AddAccelKey(4, 16, 0x41, 0);

    int index = 0;
    vq_uint32 id = 0;
    EXPECT_EQ(table.FindId(18, 0x41, index, &id), 0);
    EXPECT_EQ(id, 1u);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(table.FindId(18, 0x41, index, &id), 0);
    EXPECT_EQ(id, 3u);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(table.FindId(18, 0x41, index, &id), -13);
    EXPECT_EQ(id, 3u);
    EXPECT_EQ(index, 4);
}

TEST(CVqAccelerators, FindIdComparesFlagsExactly)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);

    int index = 0;
    EXPECT_EQ(table.FindId(2, 0x41, index, nullptr), -13);
    index = 0;
    EXPECT_EQ(table.FindId(18, 0x41, index, nullptr), 0);
}

TEST(CVqAccelerators, FindIdFromTheCountOnLeavesTheIndex)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});

    int index = 2;
    EXPECT_EQ(table.FindId(16, 0x41, index, nullptr), -13);
    EXPECT_EQ(index, 2);
    index = 99;
    EXPECT_EQ(table.FindId(16, 0x41, index, nullptr), -13);
    EXPECT_EQ(index, 99);
}

TEST(CVqAccelerators, NegativeStartIndexIsRefusedAndLeavesIndex)
{
    CVqAccelerators table;
    add_ids(table, {1});
    vq_uint32 id = untouched_id;
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    int index = -1;
    EXPECT_EQ(table.FindId(16, 0x41, index, &id), -13);
    EXPECT_EQ(table.GetAccelKey(1, index, &flags, &key), -13);
    EXPECT_EQ(table.GetAccelIndexById(1, index), -13);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(id, untouched_id);
    index = std::numeric_limits<int>::min();
    EXPECT_EQ(table.FindId(16, 0x41, index, &id), -13);
    EXPECT_EQ(index, std::numeric_limits<int>::min());
}

// By index and by identifier --------------------------------------------------------------------------

TEST(CVqAccelerators, GetAccelIdByIndexGivesZeroFromTheCountOn)
{
    CVqAccelerators table;
    add_ids(table, {7});

    EXPECT_EQ(table.GetAccelIdByIndex(0), 7u);
    EXPECT_EQ(table.GetAccelIdByIndex(1), 0u);
    EXPECT_EQ(table.GetAccelIdByIndex(0xFFFFFFFF), 0u);
}

TEST(CVqAccelerators, GetAccelIndexByIdGivesPositionsWithoutMovingTheIndex)
{
    CVqAccelerators table;
    add_ids(table, {1, 2, 1});

    EXPECT_EQ(index_by_id(table, 1, 0), 0);
    EXPECT_EQ(index_by_id(table, 1, 1), 2);
    EXPECT_EQ(index_by_id(table, 2, 2), -1);
    EXPECT_EQ(index_by_id(table, 9, 0), -1);
    EXPECT_EQ(index_by_id(table, 1, 3), -13);
}

TEST(CVqAccelerators, GetAccelIndexByIdOnAnEmptyTableIsOutOfRange)
{
    const CVqAccelerators table;

    EXPECT_EQ(index_by_id(table, 1, 0), -13);
}

TEST(CVqAccelerators, GetAccelKeyWalksTheKeysOfAnIdentifier)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);
    table.AddAccelKey(2, 16, 0x42, 0);
    table.AddAccelKey(1, 20, 0xFFFF, 0);
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, &flags, &key), 0);
    EXPECT_EQ(flags, 18u);
    EXPECT_EQ(key, 0x41);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(table.GetAccelKey(1, index, &flags, &key), 0);
    EXPECT_EQ(flags, 20u);
    EXPECT_EQ(key, 0xFFFF);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(table.GetAccelKey(1, index, &flags, &key), -13);
    EXPECT_EQ(index, 3);
}

TEST(CVqAccelerators, GetAccelKeyMissStoresNothingAndGivesTheCount)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});
    vq_uint32 flags = 77;
    vq_wchar key = 78;

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(9, index, &flags, &key), -13);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(flags, 77u);
    EXPECT_EQ(key, 78);
}

TEST(CVqAccelerators, GetAccelKeyFromTheCountOnLeavesTheIndex)
{
    CVqAccelerators table;
    add_ids(table, {1});

    int index = 99;
    EXPECT_EQ(table.GetAccelKey(1, index, nullptr, nullptr), -13);
    EXPECT_EQ(table.GetAccelKey(1, index, nullptr), -13);
    EXPECT_EQ(index, 99);
}

TEST(CVqAccelerators, GetAccelKeyTakesNullPointers)
{
    CVqAccelerators table;
    add_ids(table, {1});
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    int index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, &flags, nullptr), 0);
    index = 0;
    EXPECT_EQ(table.GetAccelKey(1, index, nullptr, &key), 0);
    EXPECT_EQ(flags, 16u);
    EXPECT_EQ(key, 0x41);
}

TEST(CVqAccelerators, GetAccelKeyByIndexStoresThroughEachPointer)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});
    vq_uint32 flags = 0;
    vq_wchar key = 0;

    EXPECT_EQ(table.GetAccelKeyByIndex(1, &flags, &key), 0);
    EXPECT_EQ(flags, 16u);
    EXPECT_EQ(key, 0x42);
    EXPECT_EQ(table.GetAccelKeyByIndex(0, nullptr, nullptr), 0);
}

TEST(CVqAccelerators, GetAccelKeyByIndexFromTheCountOnStoresNothing)
{
    CVqAccelerators table;
    add_ids(table, {1});
    vq_uint32 flags = 77;
    vq_wchar key = 78;

    EXPECT_EQ(table.GetAccelKeyByIndex(1, &flags, &key), -13);
    EXPECT_EQ(table.GetAccelKeyByIndex(0xFFFFFFFF, &flags, &key), -13);
    EXPECT_EQ(flags, 77u);
    EXPECT_EQ(key, 78);
}

// Removing -------------------------------------------------------------------------------------------

TEST(CVqAccelerators, RemoveAccelKeyTakesEveryRecordOfTheIdentifier)
{
    CVqAccelerators table;
    add_ids(table, {1, 2, 1, 1, 3, 1});

    EXPECT_EQ(table.RemoveAccelKey(1), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{2, 3}));
    EXPECT_EQ(table.RemoveAccelKey(1), -13);
}

TEST(CVqAccelerators, RemovingFromAnEmptyTable)
{
    CVqAccelerators table;

    EXPECT_EQ(table.RemoveAccelKey(1), -13);
    EXPECT_EQ(table.RemoveAllAccelsTo(0), -13);
    EXPECT_EQ(table.RemoveAllAccels(), 0);
}

TEST(CVqAccelerators, RemoveAllAccelsEmptiesTheTable)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});

    EXPECT_EQ(table.RemoveAllAccels(), 0);

    EXPECT_EQ(table.GetAccelsCount(), 0u);
    EXPECT_EQ(fired(table, 0x41, 0), nothing);
}

TEST(CVqAccelerators, RemoveAllAccelsToTakesEveryRecordOfTheTarget)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 16, 0x41, 5);
    table.AddAccelKey(2, 16, 0x42, 0x100000005);
    table.AddAccelKey(3, 16, 0x43, 5);

    EXPECT_EQ(table.RemoveAllAccelsTo(5), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{2}));
    EXPECT_EQ(table.RemoveAllAccelsTo(5), -13);
}

TEST(CVqAccelerators, SecondCombinationFiresOnceTheFirstIsRemoved)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 10);
    table.AddAccelKey(2, 18, 0x41, 20);
    EXPECT_EQ(fired(table, 0x41, 2), (Fired{true, 1, 10}));

    table.RemoveAccelKey(1);

    EXPECT_EQ(fired(table, 0x41, 2), (Fired{true, 2, 20}));
}

// Translating ------------------------------------------------------------------------------------------

TEST(CVqAccelerators, TranslateOnAnEmptyTableFiresNothing)
{
    CVqAccelerators table;
    EXPECT_EQ(fired(table, 0x41, 2), nothing);

    table.EnableAccelTranslation(true);
    EXPECT_EQ(fired(table, 0x41, 2), nothing);
}

TEST(CVqAccelerators, TranslateFindsRecordsWithTheVirtualKeyMarkOnly)
{
    CVqAccelerators with_mark;
    CVqAccelerators without_mark;
    with_mark.AddAccelKey(1, 18, 0x41, 0);
    without_mark.AddAccelKey(1, 2, 0x41, 0);

    EXPECT_EQ(fired(with_mark, 0x41, 2), (Fired{true, 1, 0}));
    EXPECT_EQ(fired(with_mark, 0x41, 18), (Fired{true, 1, 0}));
    EXPECT_EQ(fired(without_mark, 0x41, 2), nothing);
}

TEST(CVqAccelerators, TranslateWantsTheExactModifiers)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 0);

    EXPECT_EQ(fired(table, 0x41, 0), nothing);
    EXPECT_EQ(fired(table, 0x41, 6), nothing);
    EXPECT_EQ(fired(table, 0x42, 2), nothing);
}

TEST(CVqAccelerators, OnlyTheFirstRecordOfACombinationFires)
{
    CVqAccelerators table;
    table.AddAccelKey(1, 18, 0x41, 10);
    table.AddAccelKey(2, 18, 0x41, 20);
    table.EnableAccelKey(1, false);

    EXPECT_EQ(fired(table, 0x41, 2), (Fired{true, 1, 10}));
}

TEST(CVqAccelerators, RecordWithIdentifierZeroFires)
{
    CVqAccelerators table;
    table.AddAccelKey(0, 16, 0x41, 5);

    EXPECT_EQ(fired(table, 0x41, 0), (Fired{true, 0, 5}));
}

// Two thousand random keys on one table, each answer held against a walk through GetAccelKeyByIndex().
TEST(CVqAccelerators, LargeTableAnswersAsAWalkWould)
{
    std::mt19937 random(20);
    const auto number
        = [&random](vq_uint32 end) { return std::uniform_int_distribution<vq_uint32>(0, end - 1)(random); };
    CVqAccelerators table;

    for (int step = 0; step < 2000; ++step) {
        table.AddAccelKey(number(500), number(8) | 16, static_cast<vq_wchar>(number(100)), 0);
        if (number(20) == 0)
            table.RemoveAccelKey(number(500));
        const vq_uint32 wanted_flags = number(8) | 16;
        const vq_wchar wanted_key = static_cast<vq_wchar>(number(100));
        Fired expected = nothing;
        vq_uint32 flags = 0;
        vq_wchar key = 0;
        for (vq_uint32 at = 0; !expected.found && table.GetAccelKeyByIndex(at, &flags, &key) == 0; ++at) {
            if (flags == wanted_flags && key == wanted_key)
                expected = {true, table.GetAccelIdByIndex(at), 0};
        }
        ASSERT_EQ(fired(table, wanted_key, wanted_flags), expected) << step;
    }
}
