#include "AbstractGui/VqPackedAccel.h"
#include "tests/AbstractGui/HostileMenusFixture.h"
#include "tests/support/SmallStack.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Text = std::basic_string<vq_wchar>;

constexpr int million = 1'000'000;
constexpr int many = 200'000;

template <class Form>
class HostileMenuSizes : public HostileMenusFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(HostileMenuSizes, Forms, FormName);

Stored record_of_keys(unsigned id, int first, int count)
{
    Stored::Children fields{{VQ_TEXT("Id"), id}, {VQ_TEXT("Type"), 2u}, {VQ_TEXT("Text"), VQ_TEXT("Open")}};
    for (int number = 0; number < count; ++number)
        fields.emplace_back(VqPackedAccelName(number), first + number);
    return StoredRecord(std::move(fields));
}

/// Popups in popups, put together without recursion.
template <class Form>
typename Form::Container deep_menu(int levels);

template <>
CVqLiteVariantR deep_menu<LiteForm>(int levels)
{
    return LiteForm::Filled([levels](CVqLiteVariantW& writer) {
        writer.LevelBegin(VQ_TEXT("Root"));
        for (int level = 1; level <= levels; ++level) {
            writer.LevelBegin(VQ_TEXT(""));
            writer.Set(unsigned(level), VQ_TEXT("Id"));
            writer.Set(7u, VQ_TEXT("Type"));
            writer.LevelBegin(VQ_TEXT("SubMenu"));
        }
    });
}

template <>
CVqVariant deep_menu<TreeForm>(int levels)
{
    CVqVariant menu;
    CVqVariant list;
    list.SetName(VQ_TEXT("Root"));
    CVqVariant* open = &menu.Append(list);
    list.SetName(VQ_TEXT("SubMenu"));
    for (int level = 1; level <= levels; ++level) {
        CVqVariant& record = open->Append(CVqVariant());
        record.Append(CVqVariant(unsigned(level), VQ_TEXT("Id")));
        record.Append(CVqVariant(7u, VQ_TEXT("Type")));
        open = &record.Append(list);
    }
    return menu;
}

}

TYPED_TEST(HostileMenuSizes, TenThousandLevelsAreCutAtAThousandPopups)
{
    auto stored = deep_menu<TypeParam>(10'000);

    run_in_small_stack([&] {
        this->m_menu.Load(stored);
        int levels = 0;
        for (const CVqMenuItem* item = this->m_menu.Root()->subItem(); item; item = item->subItem())
            ++levels;
        EXPECT_EQ(levels, 1'001);
        this->expect_a_working_menu();
        this->expect_to_be_stored_again();
    });
}

TYPED_TEST(HostileMenuSizes, MillionKeysOfOneItemLoadAndTheMenuWorks)
{
    this->load({record_of_keys(5, ctrl_a, million)});

    EXPECT_EQ(this->m_menu.MainTable().GetAccelsCount(), unsigned(million));
    EXPECT_LT(this->m_menu.Item(5)->text().GetLength(), 10'000);
    EXPECT_LT(this->m_growth, 300.0 * million);
    this->expect_a_working_menu();
    this->expect_an_ordinary_menu_to_load();
}

TYPED_TEST(HostileMenuSizes, EqualKeysBesideTheirOwnerLoadAndTheMenuWorks)
{
    Stored::Children fields{{VQ_TEXT("Id"), 5u}};
    for (int number = 0; number < many; ++number)
        fields.emplace_back(VqPackedAccelName(number), ctrl_a);
    Stored::Children items{item_with_key(1, ctrl_a), StoredRecord(std::move(fields))};
    for (int number = 0; number < 1'000; ++number)
        items.push_back(item_with_key(5, ctrl_a));

    this->load(std::move(items));

    EXPECT_EQ(this->m_menu.MainTable().GetAccelsCount(), unsigned(many) + 1'001u);
    this->expect_a_working_menu();
    this->expect_an_ordinary_menu_to_load();
}

TYPED_TEST(HostileMenuSizes, KeysInReverseOrderLoad)
{
    Stored::Children fields{{VQ_TEXT("Id"), 5u}, {VQ_TEXT("Id"), 5u}};
    for (int number = many - 1; number >= 0; --number)
        fields.emplace_back(VqPackedAccelName(number), ctrl_a + number);

    this->load({StoredRecord(std::move(fields))});

    EXPECT_EQ(this->m_menu.MainTable().GetAccelsCount(), unsigned(many));
    this->expect_a_working_menu();
}

// Each label shows the keys of its identifier, all records together. What is saved of such a menu has each of
// these keys with each of the items, so it is not saved here.
TYPED_TEST(HostileMenuSizes, ManyItemsOfOneIdentifierWithAKeyEachLoad)
{
    constexpr int count = 5'000;
    Stored::Children items;
    for (int number = 0; number < count; ++number)
        items.push_back(item_with_key(5, ctrl_a + number));

    this->load(std::move(items));

    EXPECT_EQ(this->m_menu.MainTable().GetAccelsCount(), unsigned(count));
    EXPECT_LT(this->m_growth, 20'000.0 * count);
    this->expect_a_working_menu();
    this->expect_an_ordinary_menu_to_load();
}

TYPED_TEST(HostileMenuSizes, KeysOfTheSameIdentifiersFarApartLoad)
{
    constexpr unsigned ids = 50'000;
    Stored::Children items;
    for (unsigned number = 0; number < 2 * ids; ++number)
        items.push_back(item_with_key(10'000 + number % ids, ctrl_a + int(number)));

    this->load(std::move(items));

    EXPECT_EQ(this->m_menu.MainTable().GetAccelsCount(), 2 * ids);
    this->expect_a_working_menu();
}

TYPED_TEST(HostileMenuSizes, ManyLonelyAcceleratorsWithoutKeysLoadOncePerIdentifier)
{
    constexpr unsigned ids = 50'000;
    Stored::Children lonely;
    for (unsigned number = 0; number < 2 * ids; ++number)
        lonely.push_back(StoredRecord({{VQ_TEXT("Id"), 1 + (number < ids ? number : 2 * ids - 1 - number)}}));

    this->load(items_of_ids({1}), std::move(lonely));

    unsigned count = 0;
    for (const CVqMenuItem* item = this->m_menu.LonelyAccels(); item; item = item->nextItem())
        EXPECT_EQ(item->id(), ++count);
    EXPECT_EQ(count, ids);
    this->expect_a_working_menu();
}

TYPED_TEST(HostileMenuSizes, TextsOfAMebibyteAreKeptWholeAndTheMenuWorks)
{
    Text marks;
    for (int i = 0; i < 1 << 18; ++i) {
        marks += VQ_TEXT('&');
        marks += static_cast<vq_wchar>(VQ_TEXT('a') + i % 26);
    }
    Text plain(1 << 19, VQ_TEXT('x'));
    Text bells(1 << 19, VQ_TEXT('\a'));
    Stored::Children items;
    for (Text* text : {&marks, &plain, &bells, &marks})
        items.push_back(StoredRecord({{VQ_TEXT("Id"), 5u},
                                      {VQ_TEXT("Type"), 2u},
                                      {VQ_TEXT("Text"), text->c_str()},
                                      {VQ_TEXT("Command"), plain.c_str()},
                                      {VQ_TEXT("EnaBmpFileName"), plain.c_str()},
                                      {VQ_TEXT("EnaBmpResName"), plain.c_str()}}));

    this->load(std::move(items));

    const CVqMenuItem* first = this->m_menu.Root()->subItem();
    EXPECT_EQ(first->text().View(), marks);
    EXPECT_EQ(first->mnemonic(), VQ_TEXT('a'));
    EXPECT_EQ(first->nextItem()->text().View(), plain);
    EXPECT_EQ(first->nextItem()->command().View(), plain);
    EXPECT_LT(this->m_growth, 32.0 * (1 << 20));
    this->expect_a_working_menu();
    this->expect_to_be_stored_again();
}
