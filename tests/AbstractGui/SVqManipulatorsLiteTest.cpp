#include "AbstractGui/CVqAbstractMenu.h"
#include "system/VqVariantStorage.h"
#include "tests/AbstractGui/RefusingWriter.h"
#include "tests/AbstractGui/StoredMenus.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <QBuffer>

#include <gmock/gmock.h>

#include <string>

// What the lightweight form does in its own way; what both forms share is tested with SVqManipulatorsStoring
// and SVqMenuRecord.

using testing::ElementsAre;

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

class SVqManipulatorsLite : public testing::Test
{
protected:
    ~SVqManipulatorsLite() override { m_tools.free_all(m_parent.subItem()); }

    int load_into(CVqMenuItem* parent, const Stored::Children& records)
    {
        CVqLiteVariantR in = LiteForm::Make(records);
        return m_tools.load_from_variant(&m_table, parent, in);
    }

    /// What both passes write of an item and of one behind it, each pass in brackets.
    std::string saved_pair(CVqMenuItem& first)
    {
        CVqMenuItem second;
        first.setId(5);
        first.setType(6);
        first.setNextItem(&second);
        second.setId(6);
        second.setType(6);
        return LiteForm::Show(LiteForm::Filled([&](CVqLiteVariantW& out) {
            out.LevelBegin(VQ_TEXT("items"));
            EXPECT_EQ(m_tools.save_to_variant(nullptr, &first, out), 0);
            out.LevelEnd();
            out.LevelBegin(VQ_TEXT("accels"));
            EXPECT_EQ(m_tools.save_accels_to_variant(nullptr, &first, out), 0);
        }));
    }

    void load(Stored::Children fields) { load_into(&m_parent, {StoredRecord(std::move(fields))}); }

    Manipulators& m_tools = Manipulators::Instance();
    CVqMenuItem m_parent;
    CVqAccelerators m_table;
};

}

TEST_F(SVqManipulatorsLite, KeysStopAtTheFirstMissingNumber)
{
    load({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("AccelKey0"), ctrl_a}, {VQ_TEXT("AccelKey2"), ctrl_b}});

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65");
}

TEST_F(SVqManipulatorsLite, KeysWithoutNumberZeroAreNotRead)
{
    load({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("AccelKey1"), ctrl_a}});

    EXPECT_EQ(m_table.GetAccelsCount(), 0u);
}

TEST_F(SVqManipulatorsLite, NamesOfKeysAreExact)
{
    load({{VQ_TEXT("Id"), 5u},
          {VQ_TEXT("AccelKey"), ctrl_a},
          {VQ_TEXT("AccelKey00"), ctrl_a},
          {VQ_TEXT("AccelKeyOther"), ctrl_b}});

    EXPECT_EQ(m_table.GetAccelsCount(), 0u);
}

TEST_F(SVqManipulatorsLite, KeyWithoutAValueIsMissing)
{
    CVqVariant list;
    CVqVariant& record = list.Append(CVqVariant());
    record.Append(CVqVariant(5u, VQ_TEXT("Id")));
    record.Append(CVqVariant()).SetName(VQ_TEXT("AccelKey0"));
    record.Append(CVqVariant(ctrl_a, VQ_TEXT("AccelKey1")));
    QBuffer file; // writers have no such value, files may
    file.open(QBuffer::ReadWrite);
    VQ_WriteCbor(file, list);
    file.seek(0);
    CVqLiteVariantR in;
    ASSERT_EQ(VQ_ReadCbor(file, in), EVqStorageResult::Ok);

    m_tools.load_from_variant(&m_table, &m_parent, in);

    EXPECT_EQ(TestMenu::Chain(m_parent.subItem()), "5");
    EXPECT_EQ(TestMenu::Keys(m_table), "");
}

TEST_F(SVqManipulatorsLite, KeysAreReadInTheOrderOfTheirNumbers)
{
    load({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("AccelKey1"), ctrl_b}, {VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65 5:18+66");
}

TEST_F(SVqManipulatorsLite, IdentifierMayStandBehindTheKeys)
{
    load({{VQ_TEXT("AccelKey0"), ctrl_a}, {VQ_TEXT("Id"), 5u}});

    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65");
}

TEST_F(SVqManipulatorsLite, RepeatedFieldCountsWithItsFirstValue)
{
    load({{VQ_TEXT("Id"), 5u},
          {VQ_TEXT("AccelKey0"), ctrl_a},
          {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({{VQ_TEXT("Id"), 6u}})}},
          {VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({{VQ_TEXT("Id"), 7u}})}},
          {VQ_TEXT("AccelKey0"), ctrl_b},
          {VQ_TEXT("Id"), 8u}});

    EXPECT_EQ(TestMenu::Chain(m_parent.subItem()), "5(6)");
    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65");
}

TEST_F(SVqManipulatorsLite, RecordOfOneKeyHasOnePassForIt)
{
    load({{VQ_TEXT("AccelKey0"), ctrl_a}});

    EXPECT_EQ(TestMenu::Keys(m_table), "0:18+65");
}

TEST_F(SVqManipulatorsLite, WithoutAParentTheItemIsFreedAndItsSubItemsAreNotRead)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    const Stored::Children sub_items{StoredRecord({{VQ_TEXT("Id"), 6u}, {VQ_TEXT("AccelKey0"), ctrl_b}})};

    const int result = load_into(nullptr,
                                 {StoredRecord({{VQ_TEXT("Id"), 5u},
                                                {VQ_TEXT("AccelKey0"), ctrl_a},
                                                {VQ_TEXT("EnaBmpFileName"), VQ_TEXT("/a.png")},
                                                {VQ_TEXT("SubMenu"), sub_items}})});

    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestMenu::Keys(m_table), "5:18+65");
    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage /a.png, , null = 100"));
}

TEST_F(SVqManipulatorsLite, SubMenuThatIsAValueIsIgnored)
{
    load({{VQ_TEXT("Id"), 5u}, {VQ_TEXT("SubMenu"), VQ_TEXT("text")}});

    EXPECT_EQ(TestMenu::Chain(m_parent.subItem()), "5");
}

TEST_F(SVqManipulatorsLite, ReaderIsLeftInTheLevelWhereItWas)
{
    CVqLiteVariantR in = LiteForm::Make(
        {{VQ_TEXT("Outer"),
          Stored::Children{StoredRecord({}),
                           StoredRecord({{VQ_TEXT("SubMenu"), Stored::Children{StoredRecord({})}}})}},
         {VQ_TEXT("Other"), 1}});
    in.LevelBegin(VQ_TEXT("Outer"));

    m_tools.load_from_variant(&m_table, &m_parent, in);

    EXPECT_FALSE(in.IsValueSet(VQ_TEXT("Other")));
    EXPECT_EQ(in.LevelEnd(), 0);
    EXPECT_TRUE(in.IsValueSet(VQ_TEXT("Other")));
}

TEST_F(SVqManipulatorsLite, RecordsBeforeTheCursorAreNotRead)
{
    CVqLiteVariantR in
        = LiteForm::Make({StoredRecord({{VQ_TEXT("Id"), 5u}}), StoredRecord({{VQ_TEXT("Id"), 6u}})});
    in.NextValue();

    m_tools.load_from_variant(&m_table, &m_parent, in);

    EXPECT_EQ(TestMenu::Chain(m_parent.subItem()), "6");
}

TEST_F(SVqManipulatorsLite, RecordWhoseLevelCannotBeBegunIsSkippedAndThoseBehindItAreWritten)
{
    CVqMenuItem first;
    const RefusingWriter refusing(VQ_TEXT(""), 1);

    EXPECT_EQ(saved_pair(first),
              "items((Id=6 Type=6 Status=1)) "
              "accels((Id=5 Type=6 Status=1 Command=) (Id=6 Type=6 Status=1 Command=))");
}

TEST_F(SVqManipulatorsLite, NoRecordIsWrittenWhenNoneCanBeBegun)
{
    CVqMenuItem first;
    const RefusingWriter refusing(VQ_TEXT(""));

    EXPECT_EQ(saved_pair(first), "items() accels()");
}

TEST_F(SVqManipulatorsLite, SubMenuThatCannotBeBegunIsLeftOut)
{
    CVqMenuItem first;
    CVqMenuItem child;
    first.setSubItem(&child);
    const RefusingWriter refusing(VQ_TEXT("SubMenu"));

    EXPECT_EQ(saved_pair(first),
              "items((Id=5 Type=6 Status=1) (Id=6 Type=6 Status=1)) "
              "accels((Id=5 Type=6 Status=1 Command=) (Id=6 Type=6 Status=1 Command=))");
}

TEST_F(SVqManipulatorsLite, LonelyAcceleratorWhoseLevelCannotBeBegunIsSkippedAndThoseBehindItAreWritten)
{
    CVqMenuItem second;
    CVqMenuItem first;
    first.setNextItem(&second);
    second.setId(6);
    const RefusingWriter refusing(VQ_TEXT(""), 1);

    const CVqLiteVariantR stored = LiteForm::Filled(
        [&](CVqLiteVariantW& out) { EXPECT_EQ(m_tools.save_accels_to_variant(nullptr, &first, out), 0); });

    EXPECT_EQ(LiteForm::Show(stored), "(Id=6 Type=0 Status=1 Command=)");
}

TEST_F(SVqManipulatorsLite, ImageBelowTheModuleIsStoredWithItsWay)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    pool.SetSource(1, VQ_TEXT("/arbor-none/img/a.png"), VQ_TEXT(""));
    CVqMenuItem item;
    item.setType(6);
    item.setEnaBmpIndex(1);

    const CVqLiteVariantR stored
        = LiteForm::Filled([&](CVqLiteVariantW& out) { m_tools.save_to_variant(nullptr, &item, out); });

    EXPECT_EQ(LiteForm::Show(stored), "(Id=0 Type=6 Status=1 EnaBmpFileName=/arbor-none/img/a.pngimga.png)");
}
