#include "tests/AbstractGui/MenuTree.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

namespace {

using Manipulators = CVqAbstractMenu::SVqManipulators;

class NoMemory final : public Manipulators
{
public:
    CVqMenuItem* allocMenuItem() override { return nullptr; }
};

class DerivedItem final : public CVqMenuItem
{ };

class DerivedItems final : public Manipulators
{
public:
    CVqMenuItem* allocMenuItem() override { return new DerivedItem; }
};

class WatchedItem final : public CVqMenuItem
{
public:
    explicit WatchedItem(bool& gone) : m_gone(gone) { }

    ~WatchedItem() override { m_gone = true; }

private:
    bool& m_gone;
};

struct Made
{
    explicit Made(CVqMenuItem* made) : item(made) { }

    ~Made() { Tools().freeMenuItem(item); }

    Made(const Made&) = delete;
    Made& operator=(const Made&) = delete;

    CVqMenuItem* item;
};

std::string AsJson(const CVqMenuItem* item)
{
    CVqStringW out;
    item->getAsJSON(out);
    return std::string(out.View().begin(), out.View().end());
}

}

TEST(SVqManipulators, ThereIsOneProcessWideObject)
{
    EXPECT_EQ(&Manipulators::Instance(), &Manipulators::Instance());
}

TEST(SVqManipulators, NewItemIsAPlainOne)
{
    const Made made(Tools().allocMenuItem());

    EXPECT_EQ(typeid(*made.item), typeid(CVqMenuItem));
    EXPECT_EQ(AsJson(made.item), AsJson(std::make_unique<CVqMenuItem>().get()));
}

TEST(SVqManipulators, FreeingDestroysThroughTheVirtualDestructor)
{
    bool gone = false;

    Tools().freeMenuItem(new WatchedItem(gone));

    EXPECT_TRUE(gone);
}

TEST(SVqManipulators, FreeingNullIsIgnored)
{
    Tools().freeMenuItem(nullptr);
}

TEST(SVqManipulators, PopupHasIdTextAndHandle)
{
    const Made made(Tools().create_item_popup(7, 99, VQ_TEXT("&File")));

    EXPECT_EQ(AsJson(made.item),
              "{m_strText:&File,m_strCommand:,m_hMenu:99,m_uiId:7,m_uiType:7,m_uiStatus:1,m_uiLineWidth:0,"
              "m_uiCol1:0,m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
    EXPECT_EQ(made.item->accelerators(), nullptr);
}

TEST(SVqManipulators, ItemHasIdTextCommandAndTable)
{
    CVqAccelerators table;

    const Made made(Tools().create_item_item(7, VQ_TEXT("&Open"), VQ_TEXT("FileOpen"), &table));

    EXPECT_EQ(
        AsJson(made.item),
        "{m_strText:&Open,m_strCommand:FileOpen,m_hMenu:0,m_uiId:7,m_uiType:2,m_uiStatus:1,m_uiLineWidth:0,"
        "m_uiCol1:0,m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
    EXPECT_EQ(made.item->accelerators(), &table);
}

TEST(SVqManipulators, SeparatorHasAnId)
{
    const Made made(Tools().create_item_separator(7));

    EXPECT_EQ(
        AsJson(made.item),
        "{m_strText:,m_strCommand:,m_hMenu:0,m_uiId:7,m_uiType:6,m_uiStatus:1,m_uiLineWidth:0,m_uiCol1:0,"
        "m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(SVqManipulators, OneColorHasAColourAndACommandButNoText)
{
    const Made made(Tools().create_item_onecolor(7, 255, VQ_TEXT("Ink")));

    EXPECT_EQ(AsJson(made.item),
              "{m_strText:,m_strCommand:Ink,m_hMenu:0,m_uiId:7,m_uiType:4,m_uiStatus:1,m_uiLineWidth:0,"
              "m_uiCol1:255,m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(SVqManipulators, TwoColorHasTwoColoursAndACommandButNoText)
{
    const Made made(Tools().create_item_twocolor(7, 255, 128, VQ_TEXT("Ink")));

    EXPECT_EQ(AsJson(made.item),
              "{m_strText:,m_strCommand:Ink,m_hMenu:0,m_uiId:7,m_uiType:3,m_uiStatus:1,m_uiLineWidth:0,"
              "m_uiCol1:255,m_uiCol2:128,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(SVqManipulators, LineWidthHasWidthTextAndCommand)
{
    const Made made(Tools().create_item_linewidth(7, 3, VQ_TEXT("Thick"), VQ_TEXT("Line")));

    EXPECT_EQ(AsJson(made.item),
              "{m_strText:Thick,m_strCommand:Line,m_hMenu:0,m_uiId:7,m_uiType:5,m_uiStatus:1,m_uiLineWidth:3,"
              "m_uiCol1:0,m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(SVqManipulators, LonelyAcceleratorHasIdCommandAndTable)
{
    CVqAccelerators table;

    const Made made(Tools().create_item_accel(7, VQ_TEXT("Zoom"), &table));

    EXPECT_EQ(
        AsJson(made.item),
        "{m_strText:,m_strCommand:Zoom,m_hMenu:0,m_uiId:7,m_uiType:0,m_uiStatus:1,m_uiLineWidth:0,m_uiCol1:0,"
        "m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
    EXPECT_EQ(made.item->accelerators(), &table);
}

TEST(SVqManipulators, MainRootHasIdZeroAndAHandle)
{
    const Made made(Tools().create_item_mainroot(99));

    EXPECT_EQ(
        AsJson(made.item),
        "{m_strText:,m_strCommand:,m_hMenu:99,m_uiId:0,m_uiType:8,m_uiStatus:1,m_uiLineWidth:0,m_uiCol1:0,"
        "m_uiCol2:0,m_iEnaBmpIndex:-1,m_cMnemonic:0,m_bRemoved:0,m_bDeleted:0,}");
}

TEST(SVqManipulators, FactoriesGiveNullWithoutMemory)
{
    NoMemory tools;

    EXPECT_EQ(tools.create_item_popup(1, 2, VQ_TEXT("a")), nullptr);
    EXPECT_EQ(tools.create_item_item(1, VQ_TEXT("a"), VQ_TEXT("b"), nullptr), nullptr);
    EXPECT_EQ(tools.create_item_separator(1), nullptr);
    EXPECT_EQ(tools.create_item_onecolor(1, 2, VQ_TEXT("a")), nullptr);
    EXPECT_EQ(tools.create_item_twocolor(1, 2, 3, VQ_TEXT("a")), nullptr);
    EXPECT_EQ(tools.create_item_linewidth(1, 2, VQ_TEXT("a"), VQ_TEXT("b")), nullptr);
    EXPECT_EQ(tools.create_item_accel(1, VQ_TEXT("a"), nullptr), nullptr);
    EXPECT_EQ(tools.create_item_mainroot(1), nullptr);
}

TEST(SVqManipulators, FactoriesReadNullTextsAsEmpty)
{
    const Made popup(Tools().create_item_popup(1, 2, nullptr));
    const Made item(Tools().create_item_item(1, nullptr, nullptr, nullptr));
    const Made line_width(Tools().create_item_linewidth(1, 2, nullptr, nullptr));

    EXPECT_TRUE(popup.item->text().IsEmpty());
    EXPECT_TRUE(item.item->text().IsEmpty());
    EXPECT_TRUE(item.item->command().IsEmpty());
    EXPECT_TRUE(line_width.item->text().IsEmpty());
    EXPECT_TRUE(line_width.item->command().IsEmpty());
}

TEST(SVqManipulators, FactoriesMakeTheItemsOfADerivedObject)
{
    DerivedItems tools;

    const Made made(tools.create_item_separator(1));

    EXPECT_NE(dynamic_cast<DerivedItem*>(made.item), nullptr);
}

TEST(SVqManipulators, OperationsKeepTheirSlots)
{
    using Item = CVqMenuItem*;
    using M = Manipulators;
    const auto find_by_command = static_cast<Item (M::*)(CVqStringW, Item)>(&M::find_item);
    const auto find_by_id = static_cast<Item (M::*)(vq_uint32, Item)>(&M::find_item);
    using Table = CVqAccelerators*;
    const std::size_t slots[]
        = {VirtualSlot(&M::allocMenuItem),
           VirtualSlot(&M::freeMenuItem),
           VirtualSlot(find_by_command),
           VirtualSlot(find_by_id),
           VirtualSlot(&M::create_all),
           VirtualSlot(&M::destroy_all),
           VirtualSlot(&M::print_all),
           VirtualSlot(&M::visit_all),
           VirtualSlot(&M::visit_one),
           VirtualSlot(&M::check_seps),
           VirtualSlot(&M::remove_hidden),
           VirtualSlot(&M::create_item_popup),
           VirtualSlot(&M::create_item_item),
           VirtualSlot(&M::create_item_separator),
           VirtualSlot(&M::create_item_onecolor),
           VirtualSlot(&M::create_item_twocolor),
           VirtualSlot(&M::create_item_linewidth),
           VirtualSlot(&M::create_item_accel),
           VirtualSlot(&M::create_item_mainroot),
           VirtualSlot(&M::free_all),
           VirtualSlot(&M::copy_items_tree),
           VirtualSlot(&M::remove_item),
           VirtualSlot(&M::remove_accels),
           VirtualSlot(&M::set_accel),
           VirtualSlot(&M::insert_item_before),
           VirtualSlot(&M::insert_item_after),
           VirtualSlot(&M::append_item),
           VirtualSlot(&M::update_menustring),
           VirtualSlot(&M::handle_mnemonics_and_split),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqLiteVariantW&)>(&M::save_to_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqVariant&)>(&M::save_to_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqLiteVariantR&)>(&M::load_from_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqVariant&)>(&M::load_from_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqLiteVariantW&)>(&M::save_accels_to_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item, CVqVariant&)>(&M::save_accels_to_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item*, CVqLiteVariantR&)>(&M::load_accels_from_variant)),
           VirtualSlot(static_cast<int (M::*)(Table, Item*, CVqVariant&)>(&M::load_accels_from_variant))};

    for (std::size_t i = 0; i < std::size(slots); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(slots[i], i);
    }
}
