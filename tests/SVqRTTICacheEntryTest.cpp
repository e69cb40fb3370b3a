#include "SVqRTTICacheEntry.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

SVqRTTICacheEntry sample()
{
    SVqRTTICacheEntry record;
    record.m_strModule = VQ_TEXT("first");
    record.m_strClass = VQ_TEXT("second");
    record.m_value.Append(CVqVariant(7u, VQ_TEXT("Id")));
    return record;
}

void expect_sample(const SVqRTTICacheEntry& record)
{
    EXPECT_EQ(record.m_strModule, VQ_TEXT("first"));
    EXPECT_EQ(record.m_strClass, VQ_TEXT("second"));
    EXPECT_EQ(record.m_value[VQ_TEXT("Id")].GetVq_uint32(nullptr), 7u);
}

}

TEST(SVqRTTICacheEntry, NewOneIsEmpty)
{
    const SVqRTTICacheEntry record;

    EXPECT_TRUE(record.m_strModule.IsEmpty());
    EXPECT_TRUE(record.m_strClass.IsEmpty());
    EXPECT_TRUE(record.m_value.IsEmpty());
}

TEST(SVqRTTICacheEntry, CopyHoldsTheSame)
{
    const SVqRTTICacheEntry from = sample();

    const SVqRTTICacheEntry copy(from);

    expect_sample(copy);
}

TEST(SVqRTTICacheEntry, CopyIsItsOwn)
{
    SVqRTTICacheEntry from = sample();

    const SVqRTTICacheEntry copy(from);
    from.m_strModule = VQ_TEXT("changed");
    from.m_value.Append(CVqVariant(8u, VQ_TEXT("More")));

    expect_sample(copy);
    EXPECT_EQ(copy.m_value.GetCount(), 1);
}

TEST(SVqRTTICacheEntry, MoveTakesTheContent)
{
    SVqRTTICacheEntry from = sample();

    const SVqRTTICacheEntry moved(std::move(from));

    expect_sample(moved);
}

TEST(SVqRTTICacheEntry, AssignmentReplacesAll)
{
    const SVqRTTICacheEntry from = sample();
    SVqRTTICacheEntry to;
    to.m_strModule = VQ_TEXT("old");
    to.m_value.Append(CVqVariant(1u, VQ_TEXT("Old")));

    to = from;

    expect_sample(to);
    EXPECT_EQ(to.m_value.GetCount(), 1);
    expect_sample(from);
}

TEST(SVqRTTICacheEntry, AssignmentToItselfKeepsAll)
{
    SVqRTTICacheEntry record = sample();
    const SVqRTTICacheEntry& same = record;

    record = same;

    expect_sample(record);
}

TEST(SVqRTTICacheEntry, MoveAssignmentTakesTheContent)
{
    SVqRTTICacheEntry from = sample();
    SVqRTTICacheEntry to;
    to.m_strModule = VQ_TEXT("old");

    to = std::move(from);

    expect_sample(to);
}

TEST(SVqRTTICacheEntry, CopyOutlivesItsSource)
{
    auto* const from = new SVqRTTICacheEntry(sample());
    const SVqRTTICacheEntry copy(*from);

    delete from;

    expect_sample(copy);
}
