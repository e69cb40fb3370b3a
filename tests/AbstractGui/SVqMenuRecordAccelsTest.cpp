#include "AbstractGui/SVqMenuRecord.h"
#include "tests/AbstractGui/MenuRecordFixture.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <gmock/gmock.h>

#include <string>

using testing::IsEmpty;

namespace {

template <class Form>
class SVqMenuRecordAccels : public MenuRecordFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(SVqMenuRecordAccels, Forms, FormName);

}

// Loading: keys -------------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordAccels, AllKeysOfTheIdentifierStandBehindTheLabel)
{
    this->m_table.AddAccelKey(5, 16, 112, 0);

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("Type"), 2u},
                                            {VQ_TEXT("Text"), VQ_TEXT("Open")},
                                            {VQ_TEXT("AccelKey0"), ctrl_a},
                                            {VQ_TEXT("AccelKey1"), ctrl_b}});

    EXPECT_EQ(text_of(item), "Open|F1, Ctrl+A, Ctrl+B");
    EXPECT_EQ(TestMenu::Keys(this->m_table), "5:16+112 5:18+65 5:18+66");
}

TYPED_TEST(SVqMenuRecordAccels, LabelWithManyKeysIsWhole)
{
    Stored::Children fields{{VQ_TEXT("Id"), 5u}, {VQ_TEXT("Type"), 2u}, {VQ_TEXT("Text"), VQ_TEXT("Open")}};
    std::string expected = "Open|";
    for (int i = 0; i < 24; ++i) {
        for (const auto& [flags, modifiers] : {std::pair(18, "Ctrl+"), std::pair(23, "Ctrl+Alt+Shift+")}) {
            const int number = 2 * i + (flags == 23 ? 1 : 0);
            fields.emplace_back(VqPackedAccelName(number), flags + (112 + i) * 65536);
            expected += (number == 0 ? "" : ", ") + std::string(modifiers) + "F" + std::to_string(i + 1);
        }
    }

    const CVqMenuItem& item = this->loaded(fields);

    EXPECT_GT(item.text().GetLength(), 512);
    EXPECT_EQ(text_of(item), expected);
}

TYPED_TEST(SVqMenuRecordAccels, KeyThatTheIdentifierHasIsNotDoubledAndTheTextNotRebuilt)
{
    this->m_table.AddAccelKey(5, 18, 0x41, 0);

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("Type"), 2u},
                                            {VQ_TEXT("Text"), VQ_TEXT("Open")},
                                            {VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_EQ(TestMenu::Keys(this->m_table), "5:18+65");
    EXPECT_EQ(text_of(item), "Open");
}

TYPED_TEST(SVqMenuRecordAccels, KeyOfAnotherIdentifierIsAddedASecondTime)
{
    this->m_table.AddAccelKey(1, 18, 0x41, 0);

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("Type"), 2u},
                                            {VQ_TEXT("Text"), VQ_TEXT("Open")},
                                            {VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_EQ(TestMenu::Keys(this->m_table), "1:18+65 5:18+65");
    EXPECT_EQ(text_of(item), "Open|Ctrl+A");
}

TYPED_TEST(SVqMenuRecordAccels, FlagsOfKeysAreExtendedByTheirSign)
{
    this->loaded({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("AccelKey0"), 0x00418012}});

    EXPECT_EQ(TestMenu::Keys(this->m_table), "5:4294934546+65");
}

TYPED_TEST(SVqMenuRecordAccels, KeysOfAPopupDoNotShowInItsText)
{
    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("Type"), 7u},
                                            {VQ_TEXT("Text"), VQ_TEXT("File")},
                                            {VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_EQ(TestMenu::Keys(this->m_table), "5:18+65");
    EXPECT_EQ(text_of(item), "File");
}

TYPED_TEST(SVqMenuRecordAccels, WithoutATableKeysAreNotRead)
{
    this->load_into(&this->m_parent, nullptr,
                    {StoredRecord({{VQ_TEXT("Id"), 5u},
                                   {VQ_TEXT("Type"), 2u},
                                   {VQ_TEXT("Text"), VQ_TEXT("Open\aOld")},
                                   {VQ_TEXT("AccelKey0"), ctrl_a}})});

    EXPECT_EQ(text_of(*this->m_parent.subItem()), "Open|Old");
    EXPECT_EQ(this->m_parent.subItem()->accelerators(), nullptr);
}

TYPED_TEST(SVqMenuRecordAccels, OnlyCommandsGetTheTable)
{
    Stored::Children records;
    for (vq_uint32 type = 0; type < 10; ++type)
        records.push_back(StoredRecord({{VQ_TEXT("Type"), type}}));

    this->load_into(&this->m_parent, &this->m_table, records);

    for (const CVqMenuItem* item = this->m_parent.subItem(); item; item = item->nextItem())
        EXPECT_EQ(item->accelerators() != nullptr, item->type() == 2) << "type " << item->type();
}

// Loading: lonely accelerators ----------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorIsRead)
{
    EXPECT_EQ(this->load_accels({StoredRecord({{VQ_TEXT("Removed"), true},
                                               {VQ_TEXT("Deleted"), true},
                                               {VQ_TEXT("Id"), 5u},
                                               {VQ_TEXT("Type"), 2u},
                                               {VQ_TEXT("Status"), 3u},
                                               {VQ_TEXT("Command"), VQ_TEXT("command")},
                                               {VQ_TEXT("AccelKey0"), ctrl_a},
                                               {VQ_TEXT("AccelKey1"), ctrl_b}})},
                                &this->m_table),
              0);

    EXPECT_TRUE(this->m_head->removed());
    EXPECT_TRUE(this->m_head->deleted());
    EXPECT_EQ(this->m_head->id(), 5u);
    EXPECT_EQ(this->m_head->type(), 2u);
    EXPECT_EQ(this->m_head->status(), 3u);
    EXPECT_EQ(this->m_head->command(), VQ_TEXT("command"));
    EXPECT_EQ(this->m_head->parentItem(), nullptr);
    EXPECT_EQ(this->m_head->accelerators(), nullptr);
    EXPECT_EQ(TestMenu::Keys(this->m_table), "5:18+65 5:18+66");
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorHasNoOtherFields)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    OddAllocator tools;

    this->load_accels(
        {StoredRecord({{VQ_TEXT("Id"), 5u},
                       {VQ_TEXT("Text"), VQ_TEXT("Text")},
                       {VQ_TEXT("LineWidth"), 3u},
                       {VQ_TEXT("Col1"), 4u},
                       {VQ_TEXT("Col2"), 5u},
                       {VQ_TEXT("EnaBmpFileName"), VQ_TEXT("/a.png")},
                       {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({{VQ_TEXT("Id"), 6u}})}},
                       {VQ_TEXT("AccelKey0"), ctrl_a}})},
        &this->m_table, tools);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "5");
    EXPECT_EQ(text_of(*this->m_head), "past");
    EXPECT_EQ(this->m_head->lineWidth(), 0u);
    EXPECT_EQ(this->m_head->col1(), 0u);
    EXPECT_EQ(this->m_head->col2(), 0u);
    EXPECT_EQ(this->m_head->enaBmpIndex(), -1);
    EXPECT_EQ(this->m_head->accelerators(), nullptr);
    EXPECT_EQ(this->m_head->menu(), 0u);
    EXPECT_EQ(this->m_head->userParam(), nullptr);
    EXPECT_THAT(pool.TakeCalls(), IsEmpty());
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorsAreAppendedToTheChain)
{
    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}}), StoredRecord({{VQ_TEXT("Id"), 2u}})},
                      &this->m_table);

    this->load_accels({StoredRecord({}), StoredRecord({{VQ_TEXT("Id"), 3u}}), {VQ_TEXT("Id"), 4u}},
                      &this->m_table);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "1 2 3");
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorOfAKnownIdentifierWithoutANewKeyIsFreed)
{
    OddAllocator tools;
    this->m_table.AddAccelKey(1, 18, 0x41, 0);

    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}}),
                       StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("AccelKey0"), ctrl_a}})},
                      &this->m_table, tools);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "1");
    EXPECT_EQ(tools.m_freed, 1);
    EXPECT_EQ(TestMenu::Keys(this->m_table), "1:18+65");
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorOfAnIdentifierThatTheChainHadBeforeIsFreed)
{
    OddAllocator tools;
    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}}), StoredRecord({{VQ_TEXT("Id"), 2u}})},
                      &this->m_table);

    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 2u}}), StoredRecord({{VQ_TEXT("Id"), 3u}})},
                      &this->m_table, tools);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "1 2 3");
    EXPECT_EQ(tools.m_freed, 1);
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorOfAKnownIdentifierWithANewKeyIsKept)
{
    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}}),
                       StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("AccelKey0"), ctrl_a}})},
                      &this->m_table);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "1 1");
}

TYPED_TEST(SVqMenuRecordAccels, WithoutATableLonelyAcceleratorsAreNotKept)
{
    OddAllocator tools;

    EXPECT_EQ(this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("AccelKey0"), ctrl_a}})},
                                nullptr, tools),
              0);

    EXPECT_EQ(this->m_head, nullptr);
    EXPECT_EQ(tools.m_freed, 1);
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorIsSkippedWhenNoItemCanBeMade)
{
    OddAllocator tools;
    tools.m_failing_call = 1;

    this->load_accels({StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("AccelKey0"), ctrl_a}}),
                       StoredRecord({{VQ_TEXT("Id"), 2u}})},
                      &this->m_table, tools);

    EXPECT_EQ(TestMenu::Chain(this->m_head), "2");
    EXPECT_EQ(this->m_table.GetAccelsCount(), 0u);
}

TYPED_TEST(SVqMenuRecordAccels, LonelyAcceleratorsWithoutAHeadAreNotRead)
{
    auto container = TypeParam::Make({StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("AccelKey0"), ctrl_a}})});

    EXPECT_EQ(this->m_tools.load_accels_from_variant(&this->m_table, nullptr, container), 0);

    EXPECT_EQ(this->m_table.GetAccelsCount(), 0u);
}
