#pragma once

#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

#include <gtest/gtest.h>

#include <utility>

/// What a record of two texts and a tree has: its type and its members.
template <typename Type, CVqStringW Type::* First, CVqStringW Type::* Second, CVqVariant Type::* Tree>
struct PlainRecordFields
{
    using Record = Type;
    static constexpr CVqStringW Type::* first = First;
    static constexpr CVqStringW Type::* second = Second;
    static constexpr CVqVariant Type::* tree = Tree;
};

/// Records that only hold: whoever copies or moves one has the same, and each is its own.
template <typename Fields>
class PlainRecord : public testing::Test
{
public:
    using Record = typename Fields::Record;

    static Record Sample()
    {
        Record record;
        record.*Fields::first = VQ_TEXT("first");
        record.*Fields::second = VQ_TEXT("second");
        (record.*Fields::tree).Append(CVqVariant(7u, VQ_TEXT("Id")));
        return record;
    }

    static void ExpectSample(const Record& record)
    {
        EXPECT_EQ(record.*Fields::first, VQ_TEXT("first"));
        EXPECT_EQ(record.*Fields::second, VQ_TEXT("second"));
        EXPECT_EQ((record.*Fields::tree)[VQ_TEXT("Id")].GetVq_uint32(nullptr), 7u);
    }
};

TYPED_TEST_SUITE_P(PlainRecord);

TYPED_TEST_P(PlainRecord, NewOneIsEmpty)
{
    using Record = typename TypeParam::Record;
    const Record record;

    EXPECT_TRUE((record.*TypeParam::first).IsEmpty());
    EXPECT_TRUE((record.*TypeParam::second).IsEmpty());
    EXPECT_TRUE((record.*TypeParam::tree).IsEmpty());
}

TYPED_TEST_P(PlainRecord, CopyHoldsTheSame)
{
    using Record = typename TypeParam::Record;
    const Record from = TestFixture::Sample();

    const Record copy(from);

    TestFixture::ExpectSample(copy);
}

TYPED_TEST_P(PlainRecord, CopyIsItsOwn)
{
    using Record = typename TypeParam::Record;
    Record from = TestFixture::Sample();

    const Record copy(from);
    from.*TypeParam::first = VQ_TEXT("changed");
    (from.*TypeParam::tree).Append(CVqVariant(8u, VQ_TEXT("More")));

    TestFixture::ExpectSample(copy);
    EXPECT_EQ((copy.*TypeParam::tree).GetCount(), 1);
}

TYPED_TEST_P(PlainRecord, MoveTakesTheContent)
{
    using Record = typename TypeParam::Record;
    Record from = TestFixture::Sample();

    const Record moved(std::move(from));

    TestFixture::ExpectSample(moved);
}

TYPED_TEST_P(PlainRecord, AssignmentReplacesAll)
{
    using Record = typename TypeParam::Record;
    const Record from = TestFixture::Sample();
    Record to;
    to.*TypeParam::first = VQ_TEXT("old");
    (to.*TypeParam::tree).Append(CVqVariant(1u, VQ_TEXT("Old")));

    to = from;

    TestFixture::ExpectSample(to);
    EXPECT_EQ((to.*TypeParam::tree).GetCount(), 1);
    TestFixture::ExpectSample(from);
}

TYPED_TEST_P(PlainRecord, AssignmentToItselfKeepsAll)
{
    using Record = typename TypeParam::Record;
    Record record = TestFixture::Sample();
    const Record& same = record;

    record = same;

    TestFixture::ExpectSample(record);
}

TYPED_TEST_P(PlainRecord, MoveAssignmentTakesTheContent)
{
    using Record = typename TypeParam::Record;
    Record from = TestFixture::Sample();
    Record to;
    to.*TypeParam::first = VQ_TEXT("old");

    to = std::move(from);

    TestFixture::ExpectSample(to);
}

TYPED_TEST_P(PlainRecord, CopyOutlivesItsSource)
{
    using Record = typename TypeParam::Record;
    auto* const from = new Record(TestFixture::Sample());
    const Record copy(*from);

    delete from;

    TestFixture::ExpectSample(copy);
}

REGISTER_TYPED_TEST_SUITE_P(PlainRecord, NewOneIsEmpty, CopyHoldsTheSame, CopyIsItsOwn, MoveTakesTheContent,
                            AssignmentReplacesAll, AssignmentToItselfKeepsAll, MoveAssignmentTakesTheContent,
                            CopyOutlivesItsSource);
