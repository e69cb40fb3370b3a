#include "SVqRTTIClass.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

SVqRTTIClass sample()
{
    SVqRTTIClass record;
    record.m_strName = VQ_TEXT("first");
    record.m_strBase = VQ_TEXT("second");
    record.m_properties.Append(CVqVariant(7u, VQ_TEXT("Id")));
    return record;
}

void expect_sample(const SVqRTTIClass& record)
{
    EXPECT_EQ(record.m_strName, VQ_TEXT("first"));
    EXPECT_EQ(record.m_strBase, VQ_TEXT("second"));
    EXPECT_EQ(record.m_properties[VQ_TEXT("Id")].GetVq_uint32(nullptr), 7u);
}

}

TEST(SVqRTTIClass, NewOneIsEmpty)
{
    const SVqRTTIClass record;

    EXPECT_TRUE(record.m_strName.IsEmpty());
    EXPECT_TRUE(record.m_strBase.IsEmpty());
    EXPECT_TRUE(record.m_properties.IsEmpty());
}

TEST(SVqRTTIClass, CopyHoldsTheSame)
{
    const SVqRTTIClass from = sample();

    const SVqRTTIClass copy(from);

    expect_sample(copy);
}

TEST(SVqRTTIClass, CopyIsItsOwn)
{
    SVqRTTIClass from = sample();

    const SVqRTTIClass copy(from);
    from.m_strName = VQ_TEXT("changed");
    from.m_properties.Append(CVqVariant(8u, VQ_TEXT("More")));

    expect_sample(copy);
    EXPECT_EQ(copy.m_properties.GetCount(), 1);
}

TEST(SVqRTTIClass, MoveTakesTheContent)
{
    SVqRTTIClass from = sample();

    const SVqRTTIClass moved(std::move(from));

    expect_sample(moved);
}

TEST(SVqRTTIClass, AssignmentReplacesAll)
{
    const SVqRTTIClass from = sample();
    SVqRTTIClass to;
    to.m_strName = VQ_TEXT("old");
    to.m_properties.Append(CVqVariant(1u, VQ_TEXT("Old")));

    to = from;

    expect_sample(to);
    EXPECT_EQ(to.m_properties.GetCount(), 1);
    expect_sample(from);
}

TEST(SVqRTTIClass, AssignmentToItselfKeepsAll)
{
    SVqRTTIClass record = sample();
    const SVqRTTIClass& same = record;

    record = same;

    expect_sample(record);
}

TEST(SVqRTTIClass, MoveAssignmentTakesTheContent)
{
    SVqRTTIClass from = sample();
    SVqRTTIClass to;
    to.m_strName = VQ_TEXT("old");

    to = std::move(from);

    expect_sample(to);
}

TEST(SVqRTTIClass, CopyOutlivesItsSource)
{
    auto* const from = new SVqRTTIClass(sample());
    const SVqRTTIClass copy(*from);

    delete from;

    expect_sample(copy);
}
