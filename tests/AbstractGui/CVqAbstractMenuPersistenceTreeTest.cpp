#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <gtest/gtest.h>

#include <string>

TEST(CVqAbstractMenuSaveTree, RootIsWrittenEmptyWheneverItExists)
{
    TestMenu menu;

    EXPECT_EQ(saved<TreeForm>(menu), "Root()");
}

TEST(CVqAbstractMenuSaveTree, WithoutARootAndLonelyAcceleratorsNothingIsWritten)
{
    CVqAbstractMenu menu;
    CVqVariant stored;

    EXPECT_EQ(menu.Save(stored), 0);

    EXPECT_TRUE(stored.IsEmpty());
}

TEST(CVqAbstractMenuSaveTree, BothListsHaveTheListType)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant stored;

    menu.Save(stored);

    for (const vq_wchar* name : {VQ_TEXT("Root"), VQ_TEXT("LonelyAccels")}) {
        EXPECT_EQ(stored[name].GetRunType().View(), "CVqListVariant");
        EXPECT_TRUE(stored[name].EnableTypeChange(true));
    }
}

TEST(CVqAbstractMenuSaveTree, TypeChangeOfTheTargetIsPutBack)
{
    TestMenu menu;
    CVqVariant never;
    CVqVariant always;
    always.EnableTypeChange(true);

    menu.Save(never);
    menu.Save(always);

    EXPECT_FALSE(never.EnableTypeChange(false));
    EXPECT_TRUE(always.EnableTypeChange(false));
}

TEST(CVqAbstractMenuSaveTree, TargetThatHoldsAValueBecomesALevel)
{
    TestMenu menu;
    CVqVariant target(5, VQ_TEXT("Name"));

    menu.Save(target);

    EXPECT_EQ(TreeForm::Show(target), "Root()");
}

TEST(CVqAbstractMenuSaveTree, OtherChildrenOfTheTargetStay)
{
    TestMenu menu;
    CVqVariant target = TreeForm::Make({{VQ_TEXT("Other"), 1}});

    menu.Save(target);

    EXPECT_EQ(TreeForm::Show(target), "Other=1 Root()");
}

TEST(CVqAbstractMenuSaveTree, SavingTwiceIntoOneTreeFillsTheFirstRootTwice)
{
    TestMenu menu;
    menu.AppendSeparator(3, 0);
    CVqVariant target;

    menu.Save(target);
    menu.Save(target);

    EXPECT_EQ(TreeForm::Show(target), "Root((Id=3 Type=6 Status=1) (Id=3 Type=6 Status=1)) Root()");
}

TEST(CVqAbstractMenuLoadTree, OldFlatTreeIsTheListOfItems)
{
    TestMenu menu;
    CVqVariant stored = TreeForm::Make({item_with_key(1, ctrl_b), item_with_key(2, ctrl_a)});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "1 2");
    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "1:18+66 2:18+65");
}

TEST(CVqAbstractMenuLoadTree, OldFlatTreeKeepsLonelyAcceleratorsAndMainTable)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant stored = TreeForm::Make({item_with_key(2, ctrl_a)});

    menu.Load(stored);

    EXPECT_EQ(menu.Tree(), "2");
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "2:18+65 4:18+66");
    EXPECT_EQ(menu.Text(2), "");
}

TEST(CVqAbstractMenuLoadTree, EmptyTreeKeepsLonelyAcceleratorsAndMainTable)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant nothing;

    EXPECT_EQ(menu.Load(nothing), 0);

    EXPECT_EQ(menu.Tree(), "");
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
    EXPECT_EQ(TestMenu::Keys(menu.MainTable()), "2:18+65 4:18+66");
}

TEST(CVqAbstractMenuLoadTree, RootWithoutLonelyAcceleratorsFreesTheOldOnes)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant stored = TreeForm::MakeMenu(items_of_ids({7}), {});

    menu.Load(stored);

    EXPECT_EQ(menu.LonelyAccels(), nullptr);
    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 0u);
}

TEST(CVqAbstractMenuLoadTree, LonelyAcceleratorsBesideAnEmptyRootComeBack)
{
    TestMenu menu;
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));
    CVqVariant stored;
    menu.Save(stored);
    TestMenu other;

    EXPECT_EQ(other.Load(stored), 0);

    EXPECT_EQ(other.Tree(), "");
    EXPECT_EQ(TestMenu::Chain(other.LonelyAccels()), "4");
    EXPECT_EQ(TestMenu::Keys(other.MainTable()), "4:18+66");
}

TEST(CVqAbstractMenuLoadTree, EmptyRootReplacesLonelyAcceleratorsAndMainTable)
{
    TestMenu empty;
    CVqVariant stored;
    empty.Save(stored);
    TestMenu menu;
    fill_menu(menu);

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "");
    EXPECT_EQ(menu.LonelyAccels(), nullptr);
    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 0u);
}

TEST(CVqAbstractMenuLoadTree, RootWithoutAnyValueCountsAsAbsent)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant stored = TreeForm::Make({item_with_key(7, ctrl_a)});
    CVqVariant root;
    root.SetName(VQ_TEXT("Root"));
    stored.Append(root);

    menu.Load(stored);

    EXPECT_EQ(menu.Tree(), "7");
    EXPECT_EQ(TestMenu::Chain(menu.LonelyAccels()), "4");
}

TEST(CVqAbstractMenuLoadTree, ValueOfTheNameRootReplacesLonelyAcceleratorsAndMainTable)
{
    TestMenu menu;
    fill_menu(menu);
    CVqVariant stored = TreeForm::Make({{VQ_TEXT("Root"), 5}});

    EXPECT_EQ(menu.Load(stored), 0);

    EXPECT_EQ(menu.Tree(), "");
    EXPECT_EQ(menu.LonelyAccels(), nullptr);
    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 0u);
}

// Without a root nothing tells the tree from an old one, which was the list of items itself.
TEST(CVqAbstractMenuLoadTree, LonelyAcceleratorsWithoutARootAreTakenForAnItem)
{
    CVqAbstractMenu menu;
    menu.AppendLonelyAccel(4, 18, 0x42, VQ_TEXT("lonely"));
    CVqVariant stored;
    menu.Save(stored);
    TestMenu other;

    other.Load(stored);

    EXPECT_EQ(other.Tree(), "0");
    EXPECT_EQ(other.LonelyAccels(), nullptr);
}
