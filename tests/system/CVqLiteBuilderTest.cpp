#include "system/CVqLiteBuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::u16string numbered(vq_uint32 number)
{
    return u"name" + std::u16string(1, static_cast<char16_t>(0x4E00 + number));
}

}

TEST(CVqLiteBuilder, NamesAreNumberedInTheOrderOfFirstAppearance)
{
    CVqLiteBuilder builder;

    for (vq_uint32 number = 1; number <= 1000; ++number)
        ASSERT_EQ(builder.name_number(numbered(number)), number);
    for (vq_uint32 number = 1; number <= 1000; ++number)
        ASSERT_EQ(builder.name_number(numbered(number)), number);

    EXPECT_EQ(builder.name_number(u""), SVqLiteData::empty_name);
    EXPECT_EQ(builder.take().find_name(numbered(1001)), SVqLiteData::no_name);
}

TEST(CVqLiteBuilder, NodesStandInTheOrderOfWriting)
{
    CVqLiteBuilder builder;
    builder.add_bits(EVqVariantType::Int, 5, builder.name_number(u"a"));
    builder.begin_level(builder.name_number(u"level"));
    builder.add_text(u"text", builder.name_number(u"a"));
    builder.end_level();
    builder.add_bits(EVqVariantType::Bool, 1, SVqLiteData::empty_name);

    const SVqLiteData data = builder.take();

    ASSERT_EQ(data.m_nodes.size(), 5u);
    EXPECT_EQ(data.m_nodes[0].m_uiValue, 3u);
    EXPECT_EQ(data.m_nodes[0].m_uiExtra, 5u);
    EXPECT_EQ(data.behind(2), 4u);
    EXPECT_EQ(data.text_of(data.m_nodes[3]), u"text");
    EXPECT_EQ(data.name_of(data.m_nodes[3]), u"a");
}

TEST(CVqLiteBuilder, OnlyARepeatedNameIsNoted)
{
    CVqLiteBuilder builder;
    const vq_uint32 a = builder.name_number(u"a");
    for (int i = 0; i < 2; ++i) {
        builder.begin_level(builder.name_number(numbered(static_cast<vq_uint32>(i))));
        builder.add_bits(EVqVariantType::Int, 0, a);
        builder.end_level();
    }
    builder.begin_level(builder.name_number(u"twice"));
    builder.add_bits(EVqVariantType::Int, 0, a);
    builder.add_bits(EVqVariantType::Int, 0, a);

    const SVqLiteData data = builder.take();

    EXPECT_FALSE(data.m_nodes[0].m_bRepeats);
    EXPECT_FALSE(data.m_nodes[1].m_bRepeats);
    EXPECT_FALSE(data.m_nodes[3].m_bRepeats);
    EXPECT_TRUE(data.m_nodes[5].m_bRepeats);
}

TEST(CVqLiteBuilder, ListsAreFoundWhenAsked)
{
    CVqLiteBuilder told;
    CVqLiteBuilder finding(CVqLiteBuilder::ELists::Find);
    for (CVqLiteBuilder* builder : {&told, &finding}) {
        builder->begin_level(builder->name_number(u"list"));
        builder->begin_level(SVqLiteData::empty_name);
        builder->end_level();
        builder->end_level();
    }

    const SVqLiteData found = finding.take();

    const SVqLiteData as_told = told.take();
    EXPECT_FALSE(as_told.is_plain_list(as_told.m_nodes[1]));
    EXPECT_TRUE(found.is_plain_list(found.m_nodes[1]));
    EXPECT_FALSE(found.is_plain_list(found.m_nodes[0]));
    EXPECT_FALSE(found.is_plain_list(found.m_nodes[2]));
}

TEST(CVqLiteBuilder, RunTypesAreNumbered)
{
    CVqLiteBuilder builder;
    vq_uint16 number = 9;

    EXPECT_EQ(builder.run_type_number("", number), 0);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(builder.run_type_number("a", number), 0);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(builder.run_type_number("b", number), 0);
    EXPECT_EQ(builder.run_type_number("a", number), 0);
    EXPECT_EQ(number, 1);
}

TEST(CVqLiteBuilder, TakeStartsAnew)
{
    CVqLiteBuilder builder;
    builder.begin_level(builder.name_number(u"a"));
    builder.take();

    const SVqLiteData data = builder.take();

    EXPECT_EQ(data.m_nodes.size(), 1u);
    EXPECT_EQ(data.find_name(u"a"), SVqLiteData::no_name);
}
