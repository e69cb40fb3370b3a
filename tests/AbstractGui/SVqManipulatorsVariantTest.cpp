#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <gmock/gmock.h>

#include <string>

// What the tree form does in its own way; what both forms share is tested with SVqManipulatorsStoring and
// SVqMenuRecord.

using testing::ElementsAre;

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

class SVqManipulatorsVariant : public testing::Test
{
protected:
    ~SVqManipulatorsVariant() override { m_tools.free_all(m_parent.subItem()); }

    const CVqMenuItem& loaded(Stored::Children fields)
    {
        CVqVariant in = TreeForm::Make({StoredRecord(std::move(fields))});
        m_tools.load_from_variant(&m_table, &m_parent, in);
        return *m_parent.subItem();
    }

    Manipulators& m_tools = Manipulators::Instance();
    CVqMenuItem m_parent;
    CVqAccelerators m_table;
};

}

TEST_F(SVqManipulatorsVariant, NumbersOfKeysPlayNoPart)
{
    loaded({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("AccelKey0"), ctrl_a}, {VQ_TEXT("AccelKey2"), ctrl_b}});

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65 5:18+66");
}

TEST_F(SVqManipulatorsVariant, EveryNameWithThePrefixIsAKey)
{
    loaded({{VQ_TEXT("Id"), 5u},
            {VQ_TEXT("AccelKeyOther"), ctrl_b},
            {VQ_TEXT("AccelKey"), ctrl_a},
            {VQ_TEXT("AccelKe"), ctrl_a + 1},
            {VQ_TEXT("MyAccelKey0"), ctrl_a + 1}});

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+66 5:18+65");
}

TEST_F(SVqManipulatorsVariant, KeysAheadOfTheIdentifierCountForZero)
{
    const CVqMenuItem& item = loaded({{VQ_TEXT("AccelKey0"), ctrl_a},
                                      {VQ_TEXT("Id"), 5u},
                                      {VQ_TEXT("AccelKey1"), ctrl_b},
                                      {VQ_TEXT("Type"), 2u},
                                      {VQ_TEXT("Text"), VQ_TEXT("Open")}});

    EXPECT_EQ(TestMenu::Keys(m_table), "0:18+65 5:18+66");
    EXPECT_EQ(TestMenu::Plain(item.text()), "Open|Ctrl+B");
}

TEST_F(SVqManipulatorsVariant, RepeatedFieldCountsWithItsLastValue)
{
    const CVqMenuItem& item
        = loaded({{VQ_TEXT("Id"), 5u},
                  {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({{VQ_TEXT("Id"), 6u}})}},
                  {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({{VQ_TEXT("Id"), 7u}})}},
                  {VQ_TEXT("Id"), 8u}});

    EXPECT_EQ(TestMenu::Chain(&item), "8(7)");
}

TEST_F(SVqManipulatorsVariant, WithoutAParentSubItemsAreReadAndAllIsFreed)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    const Stored::Children sub_items{StoredRecord({{VQ_TEXT("Id"), 6u}, {VQ_TEXT("AccelKey0"), ctrl_b}})};
    CVqVariant in = TreeForm::Make({StoredRecord({{VQ_TEXT("Id"), 5u},
                                                  {VQ_TEXT("AccelKey0"), ctrl_a},
                                                  {VQ_TEXT("EnaBmpFileName"), VQ_TEXT("/a.png")},
                                                  {VQ_TEXT("SubMenu"), sub_items}})});

    EXPECT_EQ(m_tools.load_from_variant(&m_table, nullptr, in), 0);

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65 6:18+66");
    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage /a.png, , null = 100"));
}

TEST_F(SVqManipulatorsVariant, LoadingLeavesTheTreeAsItIs)
{
    CVqVariant in = TreeForm::Make(
        {StoredRecord({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({})}}})});
    const std::string before = TreeForm::Show(in);

    m_tools.load_from_variant(&m_table, &m_parent, in);

    EXPECT_EQ(TreeForm::Show(in), before);
}

TEST_F(SVqManipulatorsVariant, FieldsHaveTheirTypes)
{
    CVqMenuItem item;
    item.setRemoved(true);
    item.setDeleted(true);
    item.setType(3);
    m_table.AddAccelKey(0, 18, 0x41, 0);
    CVqVariant out;

    m_tools.save_to_variant(&m_table, &item, out);

    const CVqVariant& record = out[0];
    EXPECT_EQ(record[VQ_TEXT("Removed")].GetType(), EVqVariantType::Bool);
    EXPECT_EQ(record[VQ_TEXT("Deleted")].GetType(), EVqVariantType::Bool);
    EXPECT_EQ(record[VQ_TEXT("Id")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(record[VQ_TEXT("Type")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(record[VQ_TEXT("Status")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(record[VQ_TEXT("Text")].GetType(), EVqVariantType::Text);
    EXPECT_EQ(record[VQ_TEXT("Command")].GetType(), EVqVariantType::Text);
    EXPECT_EQ(record[VQ_TEXT("Col1")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(record[VQ_TEXT("Col2")].GetType(), EVqVariantType::Uint);
    EXPECT_EQ(record[VQ_TEXT("AccelKey0")].GetType(), EVqVariantType::Int);
}

TEST_F(SVqManipulatorsVariant, RecordsHaveNoNameAndMayChangeTheirType)
{
    CVqMenuItem item;
    CVqVariant out;

    m_tools.save_to_variant(nullptr, &item, out);
    m_tools.save_accels_to_variant(nullptr, &item, out);

    ASSERT_EQ(out.GetCount(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(out[i].GetName().IsEmpty());
        EXPECT_TRUE(out[i].GetRunType().IsEmpty());
        EXPECT_TRUE(out[i].EnableTypeChange(true));
    }
}

TEST_F(SVqManipulatorsVariant, SubMenuIsAListThatMayChangeItsType)
{
    CVqMenuItem item;
    CVqMenuItem child;
    item.setSubItem(&child);
    CVqVariant out;

    m_tools.save_to_variant(nullptr, &item, out);

    CVqVariant& sub_menu = out[0][VQ_TEXT("SubMenu")];
    EXPECT_EQ(sub_menu.GetRunType().View(), "CVqListVariant");
    EXPECT_TRUE(sub_menu.EnableTypeChange(true));
    EXPECT_EQ(sub_menu.GetCount(), 1);
}

TEST_F(SVqManipulatorsVariant, ImageIsStoredWithFileNameAndExtensionOnly)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    pool.SetSource(1, VQ_TEXT("C:\\arbor-none/img\\a.png"), VQ_TEXT("res"));
    CVqMenuItem item;
    item.setType(6);
    item.setEnaBmpIndex(1);
    CVqVariant out;

    m_tools.save_to_variant(nullptr, &item, out);

    EXPECT_EQ(TreeForm::Show(out), "(Id=0 Type=6 Status=1 EnaBmpFileName=a.png EnaBmpResName=res)");
}

TEST_F(SVqManipulatorsVariant, StoredImageIsFoundThroughTheModulesFolder)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    pool.SetSource(1, VQ_TEXT("/arbor-none/img/a.png"), VQ_TEXT("res"));
    CVqMenuItem item;
    item.setEnaBmpIndex(1);
    CVqVariant stored;
    m_tools.save_to_variant(nullptr, &item, stored);

    m_tools.load_from_variant(nullptr, &m_parent, stored);

    EXPECT_THAT(pool.TakeCalls(),
                ElementsAre("ReplaceDebug /arbor-nonea.png", "AddImage /arbor-nonea.png, res, null = 100"));
    EXPECT_EQ(m_parent.subItem()->enaBmpIndex(), 100);
}
