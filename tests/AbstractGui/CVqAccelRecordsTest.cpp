#include "AbstractGui/CVqAccelRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

// What a plain walk over a plain array gives.
class PlainRecords
{
public:
    template <class Condition>
    int Find(int start, Condition condition) const
    {
        for (std::size_t at = static_cast<std::size_t>(start); at < records.size(); ++at) {
            if (condition(records[at]))
                return static_cast<int>(at);
        }
        return -1;
    }

    template <class Condition>
    bool Remove(Condition condition)
    {
        return std::erase_if(records, condition) > 0;
    }

    std::vector<SVqAccelRecord> records;
};

auto has_id(vq_uint32 id)
{
    return [id](const SVqAccelRecord& record) { return record.id == id; };
}

auto has_key(vq_uint32 flags, vq_wchar key)
{
    return [=](const SVqAccelRecord& record) { return record.flags == flags && record.key == key; };
}

auto has_target(vq_uint64 target)
{
    return [target](const SVqAccelRecord& record) { return record.target == target; };
}

bool equal(const SVqAccelRecord& left, const SVqAccelRecord& right)
{
    return left.id == right.id && left.target == right.target && left.key == right.key
        && left.flags == right.flags && left.enabled == right.enabled;
}

SVqAccelRecord record_of(vq_uint32 id, vq_uint32 flags = 16, vq_wchar key = 0x41, vq_uint64 target = 0)
{
    return {.id = id, .target = target, .key = key, .flags = flags};
}

// The same random operations on the array and on the plain one; whatever is asked has to agree.
class Pair
{
public:
    explicit Pair(unsigned seed) : m_random(seed) { }

    void Step()
    {
        const int dice = number(100);
        if (dice < 30)
            append();
        else if (dice < 33)
            remove();
        else if (dice < 35)
            append_all_or_swap();
        else if (dice < 40)
            enable();
        else
            find();
    }

    void ExpectEqual() const
    {
        ASSERT_EQ(m_records.GetCount(), static_cast<int>(m_plain.records.size()));
        for (int at = 0; at < m_records.GetCount(); ++at)
            ASSERT_TRUE(equal(m_records.At(at), m_plain.records[static_cast<std::size_t>(at)])) << at;
    }

private:
    int number(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }

    vq_uint32 id() { return static_cast<vq_uint32>(number(60)); }
    vq_uint32 flags() { return static_cast<vq_uint32>(number(8) | 16); }
    vq_wchar key() { return static_cast<vq_wchar>(0x41 + number(12)); }
    vq_uint64 target() { return static_cast<vq_uint64>(number(200)); }

    void append()
    {
        const SVqAccelRecord record = record_of(id(), flags(), key(), target());
        m_records.Append(record);
        m_plain.records.push_back(record);
    }

    void remove()
    {
        const vq_uint32 wanted_id = id();
        EXPECT_EQ(m_records.RemoveId(wanted_id), m_plain.Remove(has_id(wanted_id)));
        const vq_uint64 wanted_target = target();
        EXPECT_EQ(m_records.RemoveTarget(wanted_target), m_plain.Remove(has_target(wanted_target)));
    }

    void append_all_or_swap()
    {
        if (m_records.GetCount() > 400) {
            m_records.Clear();
            m_plain.records.clear();
        }
        CVqAccelRecords other;
        other.AppendAll(m_records);
        other.Append(record_of(id()));
        m_plain.records.push_back(other.At(other.GetCount() - 1));
        m_records.Swap(other);
    }

    void enable()
    {
        const vq_uint32 wanted = id();
        const bool on = number(2) == 1;
        m_records.Enable(wanted, on);
        for (SVqAccelRecord& record : m_plain.records) {
            if (record.id == wanted)
                record.enabled = on;
        }
    }

    void find()
    {
        const int start = number(2) * number(m_records.GetCount() + 1);
        const vq_uint32 wanted = id();
        EXPECT_EQ(m_records.FindId(wanted, start), m_plain.Find(start, has_id(wanted)));
        const vq_uint32 wanted_flags = flags();
        const vq_wchar wanted_key = key();
        EXPECT_EQ(m_records.FindKey(wanted_flags, wanted_key, start),
                  m_plain.Find(start, has_key(wanted_flags, wanted_key)));
    }

    std::mt19937 m_random;
    CVqAccelRecords m_records;
    PlainRecords m_plain;
};

class CVqAccelRecordsAgainstAWalk : public testing::TestWithParam<unsigned>
{ };

// A table large enough for an index, with both indexes built.
CVqAccelRecords indexed_records(int count)
{
    CVqAccelRecords records;
    for (int at = 0; at < count; ++at)
        records.Append(record_of(static_cast<vq_uint32>(at), 16, static_cast<vq_wchar>(at)));
    for (int walk = 0; walk < 20; ++walk) {
        records.FindId(0, 0);
        records.FindKey(16, 0, 0);
    }
    return records;
}

}

TEST_P(CVqAccelRecordsAgainstAWalk, GivesTheSameAfterAnyOperations)
{
    Pair pair(GetParam());

    for (int step = 0; step < 10000 && !testing::Test::HasFailure(); ++step) {
        SCOPED_TRACE(step);
        pair.Step();
        pair.ExpectEqual();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CVqAccelRecordsAgainstAWalk, testing::Range(1u, 9u));

TEST(CVqAccelRecords, AppendedRecordIsFoundInAnIndexedArray)
{
    CVqAccelRecords records = indexed_records(100);

    records.Append(record_of(1000, 18, 0x5A));
    records.Append(record_of(5));

    EXPECT_EQ(records.FindId(1000, 0), 100);
    EXPECT_EQ(records.FindKey(18, 0x5A, 0), 100);
    EXPECT_EQ(records.FindId(5, 0), 5);
    EXPECT_EQ(records.FindId(5, 6), 101);
}

TEST(CVqAccelRecords, RemovedRecordIsNotFoundAndLaterOnesMoveUp)
{
    CVqAccelRecords records = indexed_records(100);

    EXPECT_TRUE(records.RemoveId(10));

    EXPECT_EQ(records.FindId(10, 0), -1);
    EXPECT_EQ(records.FindKey(16, 10, 0), -1);
    EXPECT_EQ(records.FindId(11, 0), 10);
    EXPECT_EQ(records.FindKey(16, 99, 0), 98);
}

TEST(CVqAccelRecords, FirstOfEqualKeysWinsInAnIndexedArray)
{
    CVqAccelRecords records = indexed_records(100);

    records.Append(record_of(1000, 16, 50));

    EXPECT_EQ(records.FindKey(16, 50, 0), 50);
    EXPECT_EQ(records.FindKey(16, 50, 51), 100);
    EXPECT_EQ(records.FindKey(16, 50, 101), -1);
}

TEST(CVqAccelRecords, FlagsDoNotRunIntoTheKey)
{
    CVqAccelRecords records = indexed_records(100);
    records.Append(record_of(1000, 0x00010000, 7));
    records.Append(record_of(1001, 0xFFFFFFFF, 0xFFFF));

    EXPECT_EQ(records.FindKey(0x00010000, 7, 0), 100);
    EXPECT_EQ(records.FindKey(0, 7, 0), -1);
    EXPECT_EQ(records.FindKey(0xFFFFFFFF, 0xFFFF, 0), 101);
}

TEST(CVqAccelRecords, SwapTakesTheIndexesAlong)
{
    CVqAccelRecords records = indexed_records(100);
    CVqAccelRecords other;
    other.Append(record_of(7));

    records.Swap(other);

    EXPECT_EQ(records.GetCount(), 1);
    EXPECT_EQ(records.FindId(7, 0), 0);
    EXPECT_EQ(records.FindId(8, 0), -1);
    EXPECT_EQ(other.FindId(99, 0), 99);
}

TEST(CVqAccelRecords, SwapWithItselfChangesNothing)
{
    CVqAccelRecords records = indexed_records(100);

    records.Swap(records);

    EXPECT_EQ(records.GetCount(), 100);
    EXPECT_EQ(records.FindId(99, 0), 99);
}

TEST(CVqAccelRecords, AppendingItselfDoublesTheRecords)
{
    CVqAccelRecords records = indexed_records(100);

    records.AppendAll(records);

    EXPECT_EQ(records.GetCount(), 200);
    EXPECT_EQ(records.FindId(99, 100), 199);
}

TEST(CVqAccelRecords, ClearedArrayFindsNothing)
{
    CVqAccelRecords records = indexed_records(100);

    records.Clear();

    EXPECT_EQ(records.GetCount(), 0);
    EXPECT_EQ(records.FindId(5, 0), -1);
    EXPECT_EQ(records.FindKey(16, 5, 0), -1);
}

TEST(CVqAccelRecords, EnableReachesEveryRecordOfTheIdentifier)
{
    CVqAccelRecords records;
    records.Append(record_of(1));
    records.Append(record_of(2));
    records.Append(record_of(1));

    records.Enable(1, false);

    EXPECT_FALSE(records.At(0).enabled);
    EXPECT_TRUE(records.At(1).enabled);
    EXPECT_FALSE(records.At(2).enabled);
}
