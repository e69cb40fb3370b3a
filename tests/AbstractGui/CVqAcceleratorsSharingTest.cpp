#include "AbstractGui/CVqAccelerators.h"
#include "tests/AbstractGui/AccelTables.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <vector>

// Swapping tables, and tables that share one array of records after a copy.

namespace {

// A table whose destructor never runs, as one of two that share their records must not.
class UndestroyedTable
{
public:
    template <class... Arguments>
    explicit UndestroyedTable(const Arguments&... arguments)
        : m_table(new(m_storage) CVqAccelerators(arguments...))
    { }

    CVqAccelerators& operator*() { return *m_table; }
    CVqAccelerators* operator->() { return m_table; }

private:
    alignas(CVqAccelerators) std::byte m_storage[sizeof(CVqAccelerators)];
    CVqAccelerators* m_table;
};

}

TEST(CVqAccelerators, SwapAccelsExchangesRecordsAndLeavesTranslation)
{
    CVqAccelerators table;
    CVqAccelerators other;
    add_ids(table, {1, 2});
    add_ids(other, {3});
    table.EnableAccelTranslation(false);

    EXPECT_EQ(table.SwapAccels(other), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{3}));
    EXPECT_EQ(ids_of(other), (std::vector<vq_uint32>{1, 2}));
    EXPECT_EQ(fired(table, 0x43, 0), nothing);
    EXPECT_EQ(fired(other, 0x41, 0), (Fired{true, 1, 100}));
}

TEST(CVqAccelerators, SwapAccelsWithItselfChangesNothing)
{
    CVqAccelerators table;
    add_ids(table, {1, 2});

    EXPECT_EQ(table.SwapAccels(table), 0);

    EXPECT_EQ(ids_of(table), (std::vector<vq_uint32>{1, 2}));
}

TEST(CVqAccelerators, SwapAccelsExchangesContentsNotArrays)
{
    CVqAccelerators table;
    CVqAccelerators other;
    add_ids(table, {1});
    add_ids(other, {2});
    UndestroyedTable sharing(table);

    table.SwapAccels(other);

    EXPECT_EQ(ids_of(*sharing), (std::vector<vq_uint32>{2}));
}

TEST(CVqAccelerators, ShallowCopySharesTheRecords)
{
    CVqAccelerators owner_of_the_old_records;
    CVqAccelerators right;
    add_ids(owner_of_the_old_records, {9});
    add_ids(right, {1});
    UndestroyedTable left(owner_of_the_old_records);

    *left = right;
    left->AddAccelKey(2, 16, 0x42, 0);
    right.AddAccelKey(3, 16, 0x43, 0);

    EXPECT_EQ(ids_of(*left), (std::vector<vq_uint32>{1, 2, 3}));
    EXPECT_EQ(ids_of(right), (std::vector<vq_uint32>{1, 2, 3}));
    EXPECT_EQ(ids_of(owner_of_the_old_records), (std::vector<vq_uint32>{9}));
}

TEST(CVqAccelerators, ShallowCopyTakesTranslationAndThenKeepsItsOwn)
{
    CVqAccelerators right;
    add_ids(right, {1});
    right.EnableAccelTranslation(false);
    UndestroyedTable left(right);

    *left = right;
    EXPECT_EQ(fired(*left, 0x41, 0), nothing);

    right.EnableAccelTranslation(true);
    EXPECT_EQ(fired(*left, 0x41, 0), nothing);
    EXPECT_EQ(fired(right, 0x41, 0), (Fired{true, 1, 100}));
}

TEST(CVqAccelerators, SharedRecordsAreFoundByBothTablesInALargeTable)
{
    CVqAccelerators owner;
    UndestroyedTable sharing(owner);
    for (vq_uint32 id = 0; id < 200; ++id)
        owner.AddAccelKey(id, 16, static_cast<vq_wchar>(id), 0);
    for (int count = 0; count < 20; ++count)
        EXPECT_TRUE(fired(*sharing, 100, 0).found);

    owner.RemoveAccelKey(100);
    owner.AddAccelKey(300, 16, 500, 3);

    EXPECT_EQ(fired(*sharing, 100, 0), nothing);
    EXPECT_EQ(fired(*sharing, 500, 0), (Fired{true, 300, 3}));
}

TEST(CVqAccelerators, SwappingTablesThatShareChangesNothing)
{
    CVqAccelerators owner;
    add_ids(owner, {1, 2});
    UndestroyedTable sharing(owner);

    EXPECT_EQ(owner.SwapAccels(*sharing), 0);

    EXPECT_EQ(ids_of(owner), (std::vector<vq_uint32>{1, 2}));
}
