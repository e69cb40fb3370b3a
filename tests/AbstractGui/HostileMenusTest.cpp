#include "tests/AbstractGui/HostileMenusFixture.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

template <class Form>
class HostileMenus : public HostileMenusFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(HostileMenus, Forms, FormName);

}

TYPED_TEST(HostileMenus, TypesOutOfRangeAreKeptAndTheMenuWorks)
{
    const std::vector<unsigned> types{0, 1, 8, 9, 10, 255, 77, 0x7FFFFFFF, 0x80000000u, 0xFFFFFFFFu};
    Stored::Children items;
    for (const unsigned type : types)
        items.push_back(StoredRecord({{VQ_TEXT("Id"), type},
                                      {VQ_TEXT("Type"), type},
                                      {VQ_TEXT("Text"), VQ_TEXT("&Text")},
                                      {VQ_TEXT("AccelKey0"), ctrl_a},
                                      {VQ_TEXT("SubMenu"), items_of_ids({1000 + type % 100})}}));

    this->load(items);

    std::vector<unsigned> loaded;
    for (const CVqMenuItem* item = this->m_menu.Root()->subItem(); item; item = item->nextItem())
        loaded.push_back(item->type());
    EXPECT_EQ(loaded, types);
    this->expect_a_working_menu();
    this->expect_to_be_stored_again();
}

TYPED_TEST(HostileMenus, TypesOutOfRangeReachABackEnd)
{
    TestMenu menu;
    auto stored = TypeParam::MakeMenu(
        {StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("Type"), 8u}, {VQ_TEXT("SubMenu"), items_of_ids({2})}}),
         StoredRecord({{VQ_TEXT("Id"), 3u}, {VQ_TEXT("Type"), 0xFFFFFFFFu}})},
        {});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "1(2) 3");
    EXPECT_EQ(menu.TakeCalls(),
              (RecordingMenuBase::Lines{"DestroyItem 0", "InsertItem parent 0, position null, item 1 = 0",
                                        "InsertItem parent 0, position null, item 3 = 0"}));
}

TYPED_TEST(HostileMenus, IdentifiersZeroAndTheLargestLoadAndTheMenuWorks)
{
    this->load({item_with_key(0, ctrl_a), item_with_key(0xFFFFFFFF, ctrl_b), item_with_key(0, ctrl_b)},
               {item_with_key(0xFFFFFFFF, ctrl_a)});

    EXPECT_EQ(this->m_menu.Tree(), "0 4294967295 0");
    EXPECT_EQ(TestMenu::Keys(this->m_menu.MainTable()), "0:18+65 4294967295:18+66 0:18+66 4294967295:18+65");
    this->expect_a_working_menu();
    this->expect_to_be_stored_again();
}

TYPED_TEST(HostileMenus, ValuesOfOtherTypesReadAsWhatTheyTurnIntoAndTheMenuWorks)
{
    const Stored::Children level{{VQ_TEXT("Id"), 9u}};

    this->load({StoredRecord({{VQ_TEXT("Id"), VQ_TEXT("5")},
                              {VQ_TEXT("Type"), VQ_TEXT("two")},
                              {VQ_TEXT("Status"), level},
                              {VQ_TEXT("Text"), 12},
                              {VQ_TEXT("Command"), level},
                              {VQ_TEXT("Removed"), 2},
                              {VQ_TEXT("Deleted"), VQ_TEXT("0")},
                              {VQ_TEXT("AccelKey0"), level},
                              {VQ_TEXT("DisBmpFileName"), level},
                              {VQ_TEXT("DisBmpResName"), 3},
                              {VQ_TEXT("EnaBmpFileName"), level}})});

    const CVqMenuItem& item = *this->m_menu.Root()->subItem();
    EXPECT_EQ(this->m_menu.Tree(), "5-");
    EXPECT_EQ(item.type(), 0u);
    EXPECT_EQ(item.status(), 0u);
    EXPECT_TRUE(item.command().IsEmpty());
    EXPECT_EQ(item.enaBmpIndex(), -1);
    EXPECT_EQ(TestMenu::Keys(this->m_menu.MainTable()), "5:0+0");
    this->expect_a_working_menu();
}

TYPED_TEST(HostileMenus, SubMenuUnderASeparatorLeavesAMenuThatWorks)
{
    this->load({StoredRecord({{VQ_TEXT("Id"), 5u},
                              {VQ_TEXT("Type"), 6u},
                              {VQ_TEXT("SubMenu"), Stored::Children{item_with_key(6, ctrl_a)}}})});

    EXPECT_EQ(this->m_menu.Tree(), "5(6)");
    this->expect_a_working_menu();
    this->expect_to_be_stored_again();
}

TYPED_TEST(HostileMenus, SubMenuUnderASeparatorLoadsWithoutANativeRow)
{
    TestMenu menu;
    const Stored::Children sub_items{item_with_key(6, ctrl_a)};
    auto stored = TypeParam::MakeMenu(
        {StoredRecord({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("Type"), 6u}, {VQ_TEXT("SubMenu"), sub_items}})}, {});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "5(6)");
    EXPECT_EQ(menu.TakeCalls(),
              (RecordingMenuBase::Lines{"DestroyItem 0", "InsertItem parent 0, position null, item 5 = 0"}));
    EXPECT_EQ(saved<TypeParam>(menu).find("SubMenu") != std::string::npos, true);
    EXPECT_EQ(menu.DeleteId(5), 0);
    EXPECT_EQ(menu.Tree(), "");
}
