#include "AbstractGui/CVqAccelIndex.h"

#include <gtest/gtest.h>

namespace {

void expect_span(const CVqAccelIndex& index, vq_uint64 number, int first, int last)
{
    SCOPED_TRACE(number);
    EXPECT_EQ(index.Find(number).first, first);
    EXPECT_EQ(index.Find(number).last, last);
}

}

TEST(CVqAccelIndex, NewIndexIsNotInUse)
{
    EXPECT_FALSE(CVqAccelIndex().IsInUse());
}

TEST(CVqAccelIndex, BegunIndexIsEmpty)
{
    CVqAccelIndex index;
    index.Begin(0);

    EXPECT_TRUE(index.IsInUse());
    EXPECT_LT(index.Find(0).last, index.Find(0).first);
}

TEST(CVqAccelIndex, SpanRunsFromTheFirstToTheLastPosition)
{
    CVqAccelIndex index;
    index.Begin(4);
    index.Add(7, 0);
    index.Add(8, 1);
    index.Add(7, 2);
    index.Add(7, 5);

    expect_span(index, 7, 0, 5);
    expect_span(index, 8, 1, 1);
}

TEST(CVqAccelIndex, NumberZeroAndTheLargestAreOrdinary)
{
    CVqAccelIndex index;
    index.Begin(2);
    index.Add(0, 0);
    index.Add(~vq_uint64(0), 1);

    expect_span(index, 0, 0, 0);
    expect_span(index, ~vq_uint64(0), 1, 1);
}

TEST(CVqAccelIndex, GrowsFarOverItsFirstSize)
{
    CVqAccelIndex index;
    index.Begin(0);
    for (int position = 0; position < 5000; ++position)
        index.Add(vq_uint64(position) * 3, position);

    for (int position = 0; position < 5000; ++position)
        expect_span(index, vq_uint64(position) * 3, position, position);
    EXPECT_LT(index.Find(1).last, index.Find(1).first);
}

TEST(CVqAccelIndex, NumbersThatCollideAreKeptApart)
{
    CVqAccelIndex index;
    index.Begin(12);
    for (int position = 0; position < 12; ++position)
        index.Add(vq_uint64(position) << 60, position);

    for (int position = 0; position < 12; ++position)
        expect_span(index, vq_uint64(position) << 60, position, position);
}

TEST(CVqAccelIndex, EachPositionLeadsToTheNextOfItsNumber)
{
    CVqAccelIndex index;
    index.Begin(4);
    index.Add(7, 0);
    index.Add(8, 1);
    index.Add(7, 2);
    index.Add(7, 5);

    EXPECT_EQ(index.Next(0), 2);
    EXPECT_EQ(index.Next(2), 5);
    EXPECT_EQ(index.Next(5), -1);
    EXPECT_EQ(index.Next(1), -1);
}

TEST(CVqAccelIndex, PositionsOfAnEarlierUseLeadNowhere)
{
    CVqAccelIndex index;
    index.Begin(2);
    index.Add(7, 0);
    index.Add(7, 1);

    index.Drop();
    index.Begin(2);
    index.Add(7, 0);
    index.Add(8, 1);

    EXPECT_EQ(index.Next(0), -1);
}

TEST(CVqAccelIndex, DroppedIndexBeginsEmpty)
{
    CVqAccelIndex index;
    index.Begin(1);
    index.Add(7, 0);

    index.Drop();
    EXPECT_FALSE(index.IsInUse());

    index.Begin(1);
    EXPECT_LT(index.Find(7).last, index.Find(7).first);
}

TEST(CVqAccelIndex, NinthWalkPaysForTheIndexAndDropCountsAnew)
{
    CVqAccelIndex index;
    for (int walk = 1; walk <= 8; ++walk)
        EXPECT_FALSE(index.CountWalk());
    EXPECT_TRUE(index.CountWalk());

    index.Drop();

    EXPECT_FALSE(index.CountWalk());
}
