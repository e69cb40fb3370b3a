#include "AbstractGui/SVqMenuRecord.h"

#include "tests/AbstractGui/MenuRecordFixture.h"
#include "tests/AbstractGui/TestBitmapPool.h"

#include <gmock/gmock.h>

#include <string>

namespace {

template <class Form>
class SVqMenuRecordSaving : public MenuRecordFixture<Form>
{ };

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(SVqMenuRecordSaving, Forms, FormName);

}

// Writing -------------------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordSaving, CommandHasItsFieldsInOrder)
{
    this->m_item.setId(5);
    this->m_item.setType(2);
    this->m_item.setStatus(3);
    this->m_item.setText(VQ_TEXT("Open"));
    this->m_item.setCommand(VQ_TEXT("file.open()"));

    EXPECT_EQ(this->saved(), "(Id=5 Type=2 Status=3 Text=Open Command=file.open())");
}

TYPED_TEST(SVqMenuRecordSaving, EveryFieldStandsInItsPlace)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    pool.SetSource(1, VQ_TEXT("arbor-none.png"), VQ_TEXT("res"));
    CVqMenuItem child;
    child.setId(6);
    this->m_item.setId(5);
    this->m_item.setType(3);
    this->m_item.setRemoved(true);
    this->m_item.setDeleted(true);
    this->m_item.setText(VQ_TEXT("Both"));
    this->m_item.setCommand(VQ_TEXT("both"));
    this->m_item.setCol1(0xFF0000FF);
    this->m_item.setCol2(2);
    this->m_item.setEnaBmpIndex(1);
    this->m_item.setSubItem(&child);
    this->m_table.AddAccelKey(5, 18, 0x41, 0);

    EXPECT_EQ(this->saved(),
              "(Removed=1 Deleted=1 Id=5 Type=3 Status=1 Text=Both Command=both Col1=4278190335 Col2=2 "
              "EnaBmpFileName=arbor-none.png EnaBmpResName=res AccelKey0=4259858 "
              "SubMenu((Id=6 Type=0 Status=1 Text= Command=)))");
}

TYPED_TEST(SVqMenuRecordSaving, SeparatorHasNeitherTextNorCommand)
{
    this->m_item.setId(5);
    this->m_item.setType(6);
    this->m_item.setText(VQ_TEXT("Text"));
    this->m_item.setCommand(VQ_TEXT("Command"));

    EXPECT_EQ(this->saved(), "(Id=5 Type=6 Status=1)");
}

TYPED_TEST(SVqMenuRecordSaving, OneColourHasTheFirstColourOnly)
{
    this->m_item.setType(4);
    this->m_item.setLineWidth(3);
    this->m_item.setCol1(1);
    this->m_item.setCol2(2);

    EXPECT_EQ(this->saved(), "(Id=0 Type=4 Status=1 Text= Command= Col1=1)");
}

TYPED_TEST(SVqMenuRecordSaving, TwoColoursHasBoth)
{
    this->m_item.setType(3);
    this->m_item.setLineWidth(3);
    this->m_item.setCol1(1);
    this->m_item.setCol2(2);

    EXPECT_EQ(this->saved(), "(Id=0 Type=3 Status=1 Text= Command= Col1=1 Col2=2)");
}

TYPED_TEST(SVqMenuRecordSaving, LineWidthHasItsWidthOnly)
{
    this->m_item.setType(5);
    this->m_item.setLineWidth(3);
    this->m_item.setCol1(1);
    this->m_item.setCol2(2);

    EXPECT_EQ(this->saved(), "(Id=0 Type=5 Status=1 Text= Command= LineWidth=3)");
}

TYPED_TEST(SVqMenuRecordSaving, PopupHasNeitherWidthNorColours)
{
    this->m_item.setType(7);
    this->m_item.setLineWidth(3);
    this->m_item.setCol1(1);
    this->m_item.setCol2(2);

    EXPECT_EQ(this->saved(), "(Id=0 Type=7 Status=1 Text= Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, IdentifiersOf32BitsAreKept)
{
    this->m_item.setId(0xFFFFFFFF);
    this->m_item.setStatus(0x80000001);

    EXPECT_EQ(this->saved(), "(Id=4294967295 Type=0 Status=2147483649 Text= Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, SubItemsOfAnyTypeAreWritten)
{
    CVqMenuItem child;
    CVqMenuItem second;
    child.setId(6);
    child.setType(6);
    child.setNextItem(&second);
    second.setId(7);
    second.setType(6);
    this->m_item.setType(6);
    this->m_item.setSubItem(&child);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1 SubMenu((Id=6 Type=6 Status=1) (Id=7 Type=6 Status=1)))");
}

TYPED_TEST(SVqMenuRecordSaving, FollowingSiblingsAreWritten)
{
    CVqMenuItem second;
    second.setId(7);
    second.setType(6);
    this->m_item.setType(6);
    this->m_item.setNextItem(&second);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1) (Id=7 Type=6 Status=1)");
}

TYPED_TEST(SVqMenuRecordSaving, NullItemGivesMinus9AndWritesNothing)
{
    int result = 0;
    int accels_result = 0;

    const auto container = TypeParam::Filled([&](auto& out) {
        result = this->m_tools.save_to_variant(&this->m_table, nullptr, out);
        accels_result = this->m_tools.save_accels_to_variant(&this->m_table, nullptr, out);
    });

    EXPECT_EQ(result, -9);
    EXPECT_EQ(accels_result, -9);
    EXPECT_EQ(TypeParam::Show(container), "");
}

TYPED_TEST(SVqMenuRecordSaving, WritingGivesZero)
{
    CVqMenuItem child;
    this->m_item.setSubItem(&child);
    int result = -1;
    int accels_result = -1;

    TypeParam::Filled([&](auto& out) {
        result = this->m_tools.save_to_variant(nullptr, &this->m_item, out);
        accels_result = this->m_tools.save_accels_to_variant(nullptr, &this->m_item, out);
    });

    EXPECT_EQ(result, 0);
    EXPECT_EQ(accels_result, 0);
}

// Writing: text -------------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordSaving, StoredTextKeepsTheMarkOfTheMnemonicOnly)
{
    this->m_item.setType(2);
    this->m_item.setText(VQ_TEXT("&Save &As R&&D"));
    this->m_item.setMnemonic(VQ_TEXT('a'));

    EXPECT_EQ(this->saved(), "(Id=0 Type=2 Status=1 Text=Save &As R&&D Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, StoredTextOfAnItemWithoutMnemonicHasNoMark)
{
    this->m_item.setType(2);
    this->m_item.setText(VQ_TEXT("&Save"));

    EXPECT_EQ(this->saved(), "(Id=0 Type=2 Status=1 Text=Save Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, StoredTextEndsAtTheLastBell)
{
    this->m_item.setType(2);
    this->m_item.setText(VQ_TEXT("a\tb\ac\tc\ad\te"));

    EXPECT_EQ(this->saved(), "(Id=0 Type=2 Status=1 Text=a>b|c>c Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, StoredTextWithoutABellEndsAtTheLastTab)
{
    this->m_item.setType(2);
    this->m_item.setText(VQ_TEXT("a\tb\tc"));

    EXPECT_EQ(this->saved(), "(Id=0 Type=2 Status=1 Text=a>b Command=)");
}

TYPED_TEST(SVqMenuRecordSaving, LongTextIsStoredWhole)
{
    const std::basic_string<vq_wchar> text(5'000, VQ_TEXT('x'));
    this->m_item.setType(2);
    this->m_item.setText(text.c_str());

    EXPECT_EQ(this->saved(), "(Id=0 Type=2 Status=1 Text=" + std::string(5'000, 'x') + " Command=)");
}

// Writing: images -----------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordSaving, ImagesWithIndexZeroOrNoneHaveNoFields)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetSource(0, VQ_TEXT("/a.png"), VQ_TEXT("res"));
    CVqMenuItem second;
    this->m_item.setType(6);
    this->m_item.setEnaBmpIndex(0);
    this->m_item.setNextItem(&second);
    second.setType(6);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1) (Id=0 Type=6 Status=1)");
}

TYPED_TEST(SVqMenuRecordSaving, ImageFieldsAreWrittenForEveryType)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetSource(1, VQ_TEXT("arbor-none.png"), VQ_TEXT("res"));
    pool.SetModule(VQ_TEXT("/arbor-none/app.so"));
    this->m_item.setType(6);
    this->m_item.setEnaBmpIndex(1);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1 EnaBmpFileName=arbor-none.png EnaBmpResName=res)");
}

TYPED_TEST(SVqMenuRecordSaving, EmptyImageTextsAreNotWritten)
{
    TestBitmapPool& pool = TestBitmapPool::Fresh();
    pool.SetSource(1, VQ_TEXT(""), VQ_TEXT("res"));
    CVqMenuItem second;
    this->m_item.setType(6);
    this->m_item.setEnaBmpIndex(1);
    this->m_item.setNextItem(&second);
    second.setType(6);
    second.setEnaBmpIndex(2);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1 EnaBmpResName=res) (Id=0 Type=6 Status=1)");
}

// Writing: keys -------------------------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordSaving, KeysOfTheIdentifierAreNumberedInTableOrder)
{
    this->m_item.setId(5);
    this->m_item.setType(6);
    this->m_table.AddAccelKey(5, 18, 0x42, 0);
    this->m_table.AddAccelKey(6, 18, 0x43, 0);
    this->m_table.AddAccelKey(5, 18, 0x41, 99);
    this->m_table.AddAccelKey(5, 18, 0x42, 0);

    EXPECT_EQ(this->saved(), "(Id=5 Type=6 Status=1 AccelKey0=4325394 AccelKey1=4259858 AccelKey2=4325394)");
}

TYPED_TEST(SVqMenuRecordSaving, KeyValuesAreSigned)
{
    this->m_item.setType(6);
    this->m_table.AddAccelKey(0, 0, 0xFFFF, 0);

    EXPECT_EQ(this->saved(), "(Id=0 Type=6 Status=1 AccelKey0=-65536)");
}

TYPED_TEST(SVqMenuRecordSaving, WithoutATableNoKeysAreWritten)
{
    this->m_item.setType(6);
    this->m_item.setAccelerators(&this->m_table);
    this->m_table.AddAccelKey(0, 18, 0x41, 0);

    EXPECT_EQ(this->saved(nullptr), "(Id=0 Type=6 Status=1)");
}

// Writing: lonely accelerators ----------------------------------------------------------------------------

TYPED_TEST(SVqMenuRecordSaving, LonelyAcceleratorHasStateCommandAndKeys)
{
    TestBitmapPool::Fresh().SetSource(1, VQ_TEXT("/a.png"), VQ_TEXT("res"));
    CVqMenuItem child;
    this->m_item.setId(5);
    this->m_item.setRemoved(true);
    this->m_item.setDeleted(true);
    this->m_item.setText(VQ_TEXT("Text"));
    this->m_item.setCommand(VQ_TEXT("command"));
    this->m_item.setEnaBmpIndex(1);
    this->m_item.setSubItem(&child);
    this->m_table.AddAccelKey(5, 18, 0x41, 0);
    this->m_table.AddAccelKey(5, 18, 0x42, 0);

    EXPECT_EQ(this->saved_accel(),
              "(Removed=1 Deleted=1 Id=5 Type=0 Status=1 Command=command "
              "AccelKey0=4259858 AccelKey1=4325394)");
}

TYPED_TEST(SVqMenuRecordSaving, LonelyAcceleratorsOfAnyTypeHaveACommand)
{
    CVqMenuItem second;
    this->m_item.setType(6);
    this->m_item.setNextItem(&second);
    second.setId(7);
    second.setCommand(VQ_TEXT("c"));

    EXPECT_EQ(this->saved_accel(), "(Id=0 Type=6 Status=1 Command=) (Id=7 Type=0 Status=1 Command=c)");
}
