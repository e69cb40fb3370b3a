#include "system/CVqLiteIndex.h"

#include "system/CVqLiteBuilder.h"

#include <gtest/gtest.h>

namespace {

constexpr vq_uint32 outermost = 0;

}

TEST(CVqLiteIndex, GivesWhereANameStandsFirst)
{
    CVqLiteBuilder builder;
    const vq_uint32 one = builder.name_number(VQ_TEXT("One"));
    const vq_uint32 two = builder.name_number(VQ_TEXT("Two"));
    builder.add_bits(EVqVariantType::Int, 5, two);
    builder.add_bits(EVqVariantType::Int, 6, one);
    builder.add_bits(EVqVariantType::Int, 7, two);

    const SVqLiteData data = builder.take();
    const CVqLiteIndex index(data, outermost);

    EXPECT_EQ(index.Find(one), 2U);
    EXPECT_EQ(index.Find(two), 1U);
}

TEST(CVqLiteIndex, EntriesWithoutANameAreFoundToo)
{
    CVqLiteBuilder builder;
    builder.add_bits(EVqVariantType::Int, 5, builder.name_number(VQ_TEXT("One")));
    builder.add_bits(EVqVariantType::Int, 6, SVqLiteData::empty_name);

    const SVqLiteData data = builder.take();

    EXPECT_EQ(CVqLiteIndex(data, outermost).Find(SVqLiteData::empty_name), 2U);
}

TEST(CVqLiteIndex, WhatStandsInSublevelsIsNotFound)
{
    CVqLiteBuilder builder;
    const vq_uint32 name = builder.name_number(VQ_TEXT("Name"));
    const vq_uint32 last = builder.name_number(VQ_TEXT("Last"));
    builder.begin_level(builder.name_number(VQ_TEXT("Level")));
    builder.add_bits(EVqVariantType::Int, 5, name);
    builder.end_level();
    builder.add_bits(EVqVariantType::Int, 6, last);

    const SVqLiteData data = builder.take();
    const CVqLiteIndex index(data, outermost);

    EXPECT_EQ(index.Find(name), CVqLiteIndex::no_entry);
    EXPECT_EQ(index.Find(last), 3U);
}

TEST(CVqLiteIndex, EmptyLevelHasNoNames)
{
    const SVqLiteData data = CVqLiteBuilder().take();

    EXPECT_EQ(CVqLiteIndex(data, outermost).Find(SVqLiteData::empty_name), CVqLiteIndex::no_entry);
}
