#include "AbstractGui/SVqMenuRecord.h"
#include "tests/AbstractGui/MenuRecordFixture.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

template <class Form>
class SVqMenuRecordLoading : public MenuRecordFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(SVqMenuRecordLoading, Forms, FormName);

}

// Loading -------------------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordLoading, EveryFieldIsRead)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    CVqMenuItem& item = this->loaded({{VQ_TEXT("Removed"), true},
                                      {VQ_TEXT("Deleted"), true},
                                      {VQ_TEXT("Id"), 0xFFFFFFFFu},
                                      {VQ_TEXT("Type"), 2u},
                                      {VQ_TEXT("Status"), 0x80000003u},
                                      {VQ_TEXT("Text"), VQ_TEXT("Open")},
                                      {VQ_TEXT("Command"), VQ_TEXT("open")},
                                      {VQ_TEXT("LineWidth"), 3u},
                                      {VQ_TEXT("Col1"), 0xFF000001u},
                                      {VQ_TEXT("Col2"), 5u},
                                      {VQ_TEXT("EnaBmpFileName"), VQ_TEXT("/a.png")},
                                      {VQ_TEXT("EnaBmpResName"), VQ_TEXT("res")},
                                      {VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_TRUE(item.removed());
    EXPECT_TRUE(item.deleted());
    EXPECT_EQ(item.id(), 0xFFFFFFFF);
    EXPECT_EQ(item.type(), 2u);
    EXPECT_EQ(item.status(), 0x80000003);
    EXPECT_EQ(text_of(item), "Open|Ctrl+A");
    EXPECT_EQ(item.command(), VQ_TEXT("open"));
    EXPECT_EQ(item.lineWidth(), 3u);
    EXPECT_EQ(item.col1(), 0xFF000001);
    EXPECT_EQ(item.col2(), 5u);
    EXPECT_EQ(item.enaBmpIndex(), 100);
    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage /a.png, res, null = 100"));
    EXPECT_EQ(TestMenu::Keys(this->m_table), "4294967295:18+65");
}

TYPED_TEST(SVqMenuRecordLoading, MissingFieldsReadAsTheirDefaults)
{
    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Other"), 1}});

    EXPECT_FALSE(item.removed());
    EXPECT_FALSE(item.deleted());
    EXPECT_EQ(item.id(), 0u);
    EXPECT_EQ(item.type(), 0u);
    EXPECT_EQ(item.status(), 0u);
    EXPECT_TRUE(item.text().IsEmpty());
    EXPECT_TRUE(item.command().IsEmpty());
    EXPECT_EQ(item.lineWidth(), 0u);
    EXPECT_EQ(item.col1(), 0u);
    EXPECT_EQ(item.col2(), 0u);
    EXPECT_EQ(item.enaBmpIndex(), -1);
    EXPECT_EQ(item.mnemonic(), 0);
}

TYPED_TEST(SVqMenuRecordLoading, MissingFieldsReplaceWhatANewItemHolds)
{
    OddAllocator tools;

    this->load_into(&this->m_parent, nullptr, {StoredRecord({{VQ_TEXT("Other"), 1}})}, tools);

    const CVqMenuItem& item = *this->m_parent.subItem();
    EXPECT_TRUE(item.text().IsEmpty());
    EXPECT_FALSE(item.removed());
    EXPECT_FALSE(item.deleted());
    EXPECT_EQ(item.lineWidth(), 0u);
    EXPECT_EQ(item.col1(), 0u);
    EXPECT_EQ(item.col2(), 0u);
}

TYPED_TEST(SVqMenuRecordLoading, RemovedAndDeletedAreAbsentForANormalItemAndReadBackAsFalse)
{
    auto container = TypeParam::Filled(
        [this](auto& out) { this->m_tools.save_to_variant(nullptr, &this->m_item, out); });
    const std::string stored = TypeParam::Show(container);
    OddAllocator tools;

    tools.load_from_variant(nullptr, &this->m_parent, container);

    EXPECT_EQ(stored, "(Id=0 Type=0 Status=1 Text= Command=)");
    EXPECT_FALSE(this->m_parent.subItem()->removed());
    EXPECT_FALSE(this->m_parent.subItem()->deleted());
}

TYPED_TEST(SVqMenuRecordLoading, NewItemsLoseTableHandleParameterAndNeighbours)
{
    OddAllocator tools;

    this->load_into(&this->m_parent, nullptr, {StoredRecord({{VQ_TEXT("Id"), 5u}})}, tools);

    const CVqMenuItem& item = *this->m_parent.subItem();
    EXPECT_EQ(item.accelerators(), nullptr);
    EXPECT_EQ(item.menu(), 0u);
    EXPECT_EQ(item.subItem(), nullptr);
    EXPECT_EQ(item.userParam(), nullptr);
    EXPECT_EQ(item.nextItem(), nullptr);
    EXPECT_EQ(item.parentItem(), &this->m_parent);
}

TYPED_TEST(SVqMenuRecordLoading, OrderOfFieldsIsFreeBehindTheIdentifier)
{
    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("AccelKey0"), ctrl_a},
                                            {VQ_TEXT("Status"), 1u},
                                            {VQ_TEXT("Text"), VQ_TEXT("Open")},
                                            {VQ_TEXT("Type"), 2u}});

    EXPECT_EQ(text_of(item), "Open|Ctrl+A");
    EXPECT_EQ(item.accelerators(), &this->m_table);
}

TYPED_TEST(SVqMenuRecordLoading, UnknownFieldsAreIgnored)
{
    const CVqMenuItem& item = this->loaded({{VQ_TEXT("id"), 9u},
                                            {VQ_TEXT(""), 8u},
                                            {VQ_TEXT("Ids"), 7u},
                                            {VQ_TEXT("Unknown"), Stored::Children{{VQ_TEXT("Id"), 6u}}},
                                            {VQ_TEXT("Id"), 5u}});

    EXPECT_EQ(item.id(), 5u);
    EXPECT_EQ(TestMenu::Chain(&item), "5");
}

TYPED_TEST(SVqMenuRecordLoading, ImagesOfTheDisabledStateAreAcceptedAndDropped)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("DisBmpFileName"), VQ_TEXT("/a.png")},
                                            {VQ_TEXT("DisBmpResName"), VQ_TEXT("res")}});

    EXPECT_EQ(item.id(), 5u);
    EXPECT_EQ(item.enaBmpIndex(), -1);
    EXPECT_THAT(pool.TakeCalls(), IsEmpty());
}

TYPED_TEST(SVqMenuRecordLoading, EntriesThatAreNoRecordsAreSkipped)
{
    const int result = this->load_into(&this->m_parent, nullptr,
                                       {{VQ_TEXT("Id"), 1u},
                                        StoredRecord({}),
                                        StoredRecord({{VQ_TEXT("Id"), 2u}}),
                                        {VQ_TEXT(""), VQ_TEXT("text")},
                                        {VQ_TEXT("Named"), Stored::Children{{VQ_TEXT("Id"), 3u}}}});

    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestMenu::Chain(this->m_parent.subItem()), "2 3");
}

TYPED_TEST(SVqMenuRecordLoading, EmptyContainerLoadsNothingAndGivesZero)
{
    EXPECT_EQ(this->load_into(&this->m_parent, &this->m_table, {}), 0);

    EXPECT_EQ(this->m_parent.subItem(), nullptr);
}

TYPED_TEST(SVqMenuRecordLoading, RecordIsSkippedWhenNoItemCanBeMade)
{
    OddAllocator tools;
    tools.m_failing_call = 2;

    const int result = this->load_into(&this->m_parent, &this->m_table,
                                       {StoredRecord({{VQ_TEXT("Id"), 1u}}),
                                        StoredRecord({{VQ_TEXT("Id"), 2u}, {VQ_TEXT("AccelKey0"), ctrl_a}}),
                                        StoredRecord({{VQ_TEXT("Id"), 3u}})},
                                       tools);

    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestMenu::Chain(this->m_parent.subItem()), "1 3");
    EXPECT_EQ(this->m_table.GetAccelsCount(), 0u);
}

TYPED_TEST(SVqMenuRecordLoading, SubItemsHangBelowTheirRecord)
{
    this->load_into(&this->m_parent, nullptr,
                    {StoredRecord({{VQ_TEXT("Id"), 1u},
                                   {VQ_TEXT("SubMenu"),
                                    Stored::Children{StoredRecord({{VQ_TEXT("Id"), 2u}}),
                                                     StoredRecord({{VQ_TEXT("Id"), 3u}})}},
                                   {VQ_TEXT("Type"), 7u}}),
                     StoredRecord({{VQ_TEXT("Id"), 4u}})});

    EXPECT_EQ(TestMenu::Chain(this->m_parent.subItem()), "1(2 3) 4");
    EXPECT_EQ(this->m_parent.subItem()->type(), 7u);
}

TYPED_TEST(SVqMenuRecordLoading, LoadedItemsAreAppendedBehindThoseThatAreThere)
{
    this->loaded({{VQ_TEXT("Id"), 1u}});

    this->loaded({{VQ_TEXT("Id"), 2u}});

    EXPECT_EQ(TestMenu::Chain(this->m_parent.subItem()), "1 2");
}

TYPED_TEST(SVqMenuRecordLoading, LoadedItemsTakeTheirMnemonicsAndTidyTheirSeparators)
{
    this->load_into(
        &this->m_parent, nullptr,
        {StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("Type"), 2u}, {VQ_TEXT("Text"), VQ_TEXT("&a")}}),
         StoredRecord({{VQ_TEXT("Id"), 2u}, {VQ_TEXT("Type"), 6u}}),
         StoredRecord({{VQ_TEXT("Id"), 3u}, {VQ_TEXT("Type"), 6u}}),
         StoredRecord({{VQ_TEXT("Id"), 4u}, {VQ_TEXT("Type"), 2u}, {VQ_TEXT("Text"), VQ_TEXT("&a&b")}})});

    EXPECT_EQ(TestMenu::Chain(this->m_parent.subItem()), "1 2 3- 4");
    EXPECT_EQ(this->m_parent.subItem()->mnemonic(), VQ_TEXT('a'));
    EXPECT_EQ(this->m_parent.subItem()->nextItem()->nextItem()->nextItem()->mnemonic(), VQ_TEXT('b'));
}

// Loading: images -----------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordLoading, ResourceWithoutAFileIsNoImage)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    const CVqMenuItem& item = this->loaded(
        {{VQ_TEXT("EnaBmpFileName"), VQ_TEXT("")}, {VQ_TEXT("EnaBmpResName"), VQ_TEXT("res")}});

    EXPECT_EQ(item.enaBmpIndex(), -1);
    EXPECT_THAT(pool.TakeCalls(), IsEmpty());
}

TYPED_TEST(SVqMenuRecordLoading, NullAsAFileReachesThePoolUnchanged)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("EnaBmpFileName"), VQ_TEXT("NULL")}});

    EXPECT_EQ(item.enaBmpIndex(), 100);
    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage NULL, , null = 100"));
}

TYPED_TEST(SVqMenuRecordLoading, CodeOfThePoolBecomesTheIndex)
{
    TestBitmapPool::Fresh().SetNextIndex(-9);

    EXPECT_EQ(this->loaded({{VQ_TEXT("EnaBmpFileName"), VQ_TEXT("/a.png")}}).enaBmpIndex(), -9);
}

TYPED_TEST(SVqMenuRecordLoading, RestOfARecordLoadsBesideARefusedImageName)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    const std::string name(5'000, 'a');

    const CVqMenuItem& item = this->loaded({{VQ_TEXT("EnaBmpFileName"), CVqStringW(name.c_str())},
                                            {VQ_TEXT("Id"), 5u},
                                            {VQ_TEXT("Text"), VQ_TEXT("Open")}});

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage " + name + ", , null = 100"));
    EXPECT_EQ(item.id(), 5u);
    EXPECT_EQ(text_of(item), "Open");
}
