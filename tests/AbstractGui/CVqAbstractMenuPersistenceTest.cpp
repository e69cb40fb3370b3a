#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/NotingManipulators.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* filled_lists
    = "Root((Id=1 Type=7 Status=1 Text=&File Command= SubMenu("
      "(Id=2 Type=2 Status=1 Text=&Open Command=open AccelKey0=4259858) (Id=3 Type=6 Status=1)))) "
      "LonelyAccels((Id=4 Type=0 Status=1 Command=lonely AccelKey0=4325394))";

template <class Form>
class CVqAbstractMenuPersistence : public testing::Test
{
protected:
    TestMenu m_menu;
};

/// What either form shows of a stored menu.
template <class Form>
std::string whole(const std::string& lists);

template <>
std::string whole<LiteForm>(const std::string& lists)
{
    return "CVqMenu(" + lists + ")";
}

template <>
std::string whole<TreeForm>(const std::string& lists)
{
    return lists;
}

using Forms = testing::Types<LiteForm, TreeForm>;
TYPED_TEST_SUITE(CVqAbstractMenuPersistence, Forms, FormName);

}

TYPED_TEST(CVqAbstractMenuPersistence, SaveWritesItemsAndLonelyAccelerators)
{
    fill_menu(this->m_menu);

    EXPECT_EQ(saved<TypeParam>(this->m_menu), whole<TypeParam>(filled_lists));
}

TYPED_TEST(CVqAbstractMenuPersistence, SaveLeavesTheMenuAndItsBackEndAlone)
{
    fill_menu(this->m_menu);
    this->m_menu.TakeCalls();

    saved<TypeParam>(this->m_menu);

    EXPECT_EQ(this->m_menu.Tree(), "1(2 3)");
    EXPECT_THAT(this->m_menu.TakeCalls(), IsEmpty());
    EXPECT_EQ(TestMenu::Keys(this->m_menu.MainTable()), "2:18+65 4:18+66");
}

TYPED_TEST(CVqAbstractMenuPersistence, WithoutLonelyAcceleratorsTheirListIsNotWritten)
{
    this->m_menu.AppendSeparator(3, 0);

    EXPECT_EQ(saved<TypeParam>(this->m_menu), whole<TypeParam>("Root((Id=3 Type=6 Status=1))"));
}

TYPED_TEST(CVqAbstractMenuPersistence, SecondTableIsNotStored)
{
    this->m_menu.AppendMenuItem(2, 0, VQ_TEXT("Open"), VQ_TEXT(""), 0);
    this->m_menu.AppendIdAccelKey(2, 18, 0x41, true);

    EXPECT_EQ(saved<TypeParam>(this->m_menu),
              whole<TypeParam>("Root((Id=2 Type=2 Status=1 Text=Open Command=))"));
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadBringsBackWhatWasSaved)
{
    fill_menu(this->m_menu);
    typename TypeParam::Container stored;
    this->m_menu.Save(stored);
    TestMenu menu;

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "1(2 3)");
    EXPECT_EQ(menu.Text(2), "&Open|Ctrl+A");
    EXPECT_EQ(menu.Item(1)->mnemonic(), VQ_TEXT('F'));
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "2:18+65 4:18+66");
    EXPECT_EQ(saved<TypeParam>(menu), whole<TypeParam>(filled_lists));
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadReplacesTheNativeMenu)
{
    this->m_menu.AppendPopup(7, 0, VQ_TEXT("Old"));
    this->m_menu.AppendSeparator(8, 7);
    this->m_menu.TakeCalls();
    auto stored = TypeParam::MakeMenu(
        {StoredRecord(
             {{VQ_TEXT("Id"), 1u}, {VQ_TEXT("Type"), 7u}, {VQ_TEXT("SubMenu"), items_of_ids({2, 3})}}),
         StoredRecord({{VQ_TEXT("Id"), 4u}, {VQ_TEXT("Type"), 6u}})},
        {});

    EXPECT_EQ(this->m_menu.Load(stored), 0);

    EXPECT_THAT(this->m_menu.TakeCalls(),
                ElementsAre("DestroyItem 8", "DestroyItem 7", "DestroyItem 0", "CreateMenuHandle = 2",
                            "InsertItem parent 0, position null, item 1 = 0",
                            "InsertItem parent 1, position null, item 2 = 0",
                            "InsertItem parent 1, position null, item 3 = 0",
                            "InsertItem parent 0, position null, item 4 = 0"));
    EXPECT_EQ(this->m_menu.Item(1)->menu(), 2u);
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadGivesWhatTheBackEndSays)
{
    auto stored = TypeParam::MakeMenu(items_of_ids({1, 2}), {});
    this->m_menu.Recorder().FailInsertOf(2, -5);

    EXPECT_EQ(this->m_menu.Load(stored), -5);

    EXPECT_EQ(this->m_menu.Tree(), "1 2");
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadWithoutABackEndGivesMinus9AndTheMenu)
{
    TestMenu menu(TestMenu::BackEnd::None);
    auto stored = TypeParam::MakeMenu(items_of_ids({1}), {});

    EXPECT_EQ(menu.Load(stored), -9);

    EXPECT_EQ(menu.Tree(), "1");
}

TYPED_TEST(CVqAbstractMenuPersistence, EmptyContainerLeavesAnEmptyMenuAndGivesZero)
{
    fill_menu(this->m_menu);
    typename TypeParam::Container nothing;

    EXPECT_EQ(this->m_menu.Load(nothing), 0);

    EXPECT_EQ(this->m_menu.Tree(), "");
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadFreesTheSiblingsOfTheRoot)
{
    this->m_menu.Root()->setNextItem(CVqAbstractMenu::SVqManipulators::Instance().create_item_separator(9));
    auto stored = TypeParam::MakeMenu(items_of_ids({1}), {});

    this->m_menu.Load(stored);

    EXPECT_EQ(this->m_menu.Root()->nextItem(), nullptr);
    EXPECT_THAT(this->m_menu.TakeCalls(), testing::Contains("DestroyItem 9"));
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadWithoutARootReadsKeysAndGivesZero)
{
    class RootlessMenu : public CVqAbstractMenu
    {
    public:
        CVqAccelerators& MainTable() { return m_accels; }
    };
    RootlessMenu menu;
    auto stored = TypeParam::MakeMenu({item_with_key(1, ctrl_a)}, {item_with_key(2, ctrl_b)});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "1:18+65 2:18+66");
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadReplacesLonelyAcceleratorsAndMainTable)
{
    fill_menu(this->m_menu);
    this->m_menu.SecondTable().AddAccelKey(7, 18, 0x43, 0);
    auto stored = TypeParam::MakeMenu({item_with_key(1, ctrl_a)}, {item_with_key(5, ctrl_b)});

    this->m_menu.Load(stored);

    EXPECT_EQ(TestMenu::Chain(this->m_menu.LonelyAccels()), "5");
    EXPECT_EQ(TestMenu::Keys(this->m_menu.MainTable()), "1:18+65 5:18+66");
    EXPECT_EQ(TestMenu::Keys(this->m_menu.SecondTable()), "7:18+67");
}

TYPED_TEST(CVqAbstractMenuPersistence, KeyOfALonelyAcceleratorThatAnItemHasIsThereTwice)
{
    auto stored = TypeParam::MakeMenu({item_with_key(1, ctrl_a)}, {item_with_key(5, ctrl_a)});
    this->m_menu.Load(stored);
    vq_uint64 target = 0;
    vq_uint32 id = 0;

    EXPECT_TRUE(this->m_menu.Translate(0x41, 2, target, id));

    EXPECT_EQ(id, 1u);
    EXPECT_EQ(TestMenu::Keys(this->m_menu.MainTable()), "1:18+65 5:18+65");
}

TYPED_TEST(CVqAbstractMenuPersistence, AllPassesGoThroughTheMenusOwnTools)
{
    class OwnItem final : public CVqMenuItem
    { };
    class OwnTools final : public CVqAbstractMenu::SVqManipulators
    {
    public:
        CVqMenuItem* allocMenuItem() override { return new OwnItem; }
    };
    OwnTools tools;
    this->m_menu.SetManipulators(&tools);
    auto stored = TypeParam::MakeMenu(
        {StoredRecord({{VQ_TEXT("Id"), 1u}, {VQ_TEXT("SubMenu"), items_of_ids({2})}})}, items_of_ids({3}));

    this->m_menu.Load(stored);

    EXPECT_NE(dynamic_cast<OwnItem*>(this->m_menu.Item(1)), nullptr);
    EXPECT_NE(dynamic_cast<OwnItem*>(this->m_menu.Item(2)), nullptr);
    EXPECT_NE(dynamic_cast<OwnItem*>(this->m_menu.LonelyAccels()), nullptr);
    this->m_menu.SetManipulators(nullptr);
}

TYPED_TEST(CVqAbstractMenuPersistence, SavingPassesMayBeReplacedAndTheirResultsDoNotMatter)
{
    NotingManipulators tools;
    fill_menu(this->m_menu);
    this->m_menu.SetManipulators(&tools);
    typename TypeParam::Container out;

    EXPECT_EQ(this->m_menu.Save(out), 0);

    EXPECT_EQ(TypeParam::Show(out), whole<TypeParam>(filled_lists));
    EXPECT_THAT(tools.m_calls,
                ElementsAre("save_to_variant 1", "save_to_variant 2", "save_accels_to_variant"));
    this->m_menu.SetManipulators(nullptr);
}

TYPED_TEST(CVqAbstractMenuPersistence, LoadingPassesMayBeReplacedAndTheCodeOfCreatingCounts)
{
    NotingManipulators tools;
    this->m_menu.SetManipulators(&tools);
    auto stored = TypeParam::MakeMenu(
        {StoredRecord(
            {{VQ_TEXT("Id"), 1u}, {VQ_TEXT("SubMenu"), Stored::Children{item_with_key(2, ctrl_a)}}})},
        items_of_ids({3}));

    EXPECT_EQ(this->m_menu.Load(stored), NotingManipulators::code);

    EXPECT_THAT(tools.m_calls,
                ElementsAre("destroy_all", "load_from_variant 0", "append_item 1", "load_from_variant 1",
                            "update_menustring 2 Ctrl+A", "append_item 2", "load_accels_from_variant",
                            "create_all"));
    EXPECT_EQ(tools.m_frees, 3); // items, neighbours of the root, lonely accelerators
    this->m_menu.SetManipulators(nullptr);
}
