#include "tests/AbstractGui/MenuTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Manipulators = CVqAbstractMenu::SVqManipulators;

// Notes the calls of check_seps that come through the virtual operation.
class SepsTools final : public Manipulators
{
public:
    void check_seps(CVqMenuItem* first, bool recursive) override
    {
        calls.push_back(std::to_string(first->id()) + (recursive ? " recursive" : " flat"));
    }

    std::vector<std::string> calls;
};

CVqMenuItem* NewWithText(MenuTree& tree, vq_uint32 id, const vq_wchar* text)
{
    CVqMenuItem* item = tree.New(id);
    item->setText(text);
    return item;
}

}

// append_item ------------------------------------------------------------------------------------------

TEST(SVqManipulatorsLinks, AppendingGoesBehindTheLastChild)
{
    MenuTree tree({{1}, {2}});
    CVqMenuItem* item = tree.New(3);

    Tools().append_item(tree.Root(), item);

    EXPECT_EQ(Shape(tree.Root()), "0(1 2 3)");
    EXPECT_EQ(item->parentItem(), tree.Root());
}

TEST(SVqManipulatorsLinks, AppendingToNothingOrNothingIsIgnored)
{
    MenuTree tree({{1}});
    CVqMenuItem* item = tree.New(2);

    Tools().append_item(nullptr, item);
    Tools().append_item(tree.Root(), nullptr);

    EXPECT_EQ(Shape(tree.Root()), "0(1)");
    EXPECT_EQ(item->parentItem(), nullptr);
}

TEST(SVqManipulatorsLinks, FirstChildRunsNoSeparatorCheck)
{
    MenuTree tree({});
    SepsTools tools;

    tools.append_item(tree.Root(), tree.New(1));
    EXPECT_THAT(tools.calls, IsEmpty());

    tools.append_item(tree.Root(), tree.New(2));
    EXPECT_THAT(tools.calls, ElementsAre("1 flat"));
}

TEST(SVqManipulatorsLinks, SeparatorAppendedFirstStaysVisibleUntilTheNextAppend)
{
    MenuTree tree({});
    CVqMenuItem* separator = tree.New(1);
    separator->setType(CVqAbstractMenu::SenseSeparator);

    Tools().append_item(tree.Root(), separator);
    EXPECT_FALSE(separator->removed());

    Tools().append_item(tree.Root(), tree.New(2));
    EXPECT_TRUE(separator->removed());
}

TEST(SVqManipulatorsLinks, AppendedItemTakesTheFreeMarkOfItsText)
{
    MenuTree tree({});
    CVqMenuItem* file = NewWithText(tree, 1, VQ_TEXT("&File"));
    CVqMenuItem* fit = NewWithText(tree, 2, VQ_TEXT("&fit &all"));
    CVqMenuItem* last = NewWithText(tree, 3, VQ_TEXT("&File"));

    Tools().append_item(tree.Root(), file);
    Tools().append_item(tree.Root(), fit);
    Tools().append_item(tree.Root(), last);

    EXPECT_EQ(file->mnemonic(), VQ_TEXT('F'));
    EXPECT_EQ(fit->mnemonic(), VQ_TEXT('a'));
    EXPECT_EQ(last->mnemonic(), 0);
}

TEST(SVqManipulatorsLinks, FormerMnemonicOfTheItemItselfCounts)
{
    MenuTree tree({{1}});
    CVqMenuItem* item = NewWithText(tree, 2, VQ_TEXT("&File"));
    item->setMnemonic(VQ_TEXT('F'));

    Tools().append_item(tree.Root(), item);

    EXPECT_EQ(item->mnemonic(), 0);
}

TEST(SVqManipulatorsLinks, AppendedItemBringsTheSiblingsThatFollowIt)
{
    MenuTree tree({{1}});
    CVqMenuItem* item = tree.New(2);
    item->setNextItem(tree.New(3));

    Tools().append_item(tree.Root(), item);
    Tools().append_item(tree.Root(), tree.New(4));

    EXPECT_EQ(Shape(tree.Root()), "0(1 2 3 4)");
}

// insert_item_before, insert_item_after ----------------------------------------------------------------

TEST(SVqManipulatorsLinks, InsertingBeforeGivesTheAnchor)
{
    MenuTree tree({{1}, {2}});
    CVqMenuItem* before_first = tree.New(3);
    CVqMenuItem* before_second = tree.New(4);

    EXPECT_EQ(Tools().insert_item_before(1, tree.Root(), before_first), tree[1]);
    EXPECT_EQ(Tools().insert_item_before(2, tree.Root(), before_second), tree[2]);

    EXPECT_EQ(Shape(tree.Root()), "0(3 1 4 2)");
    EXPECT_EQ(before_first->parentItem(), tree.Root());
    EXPECT_EQ(before_second->parentItem(), tree.Root());
}

TEST(SVqManipulatorsLinks, InsertingAfterGivesTheItem)
{
    MenuTree tree({{1}, {2}});
    CVqMenuItem* after_first = tree.New(3);
    CVqMenuItem* after_last = tree.New(4);

    EXPECT_EQ(Tools().insert_item_after(1, tree.Root(), after_first), after_first);
    EXPECT_EQ(Tools().insert_item_after(2, tree.Root(), after_last), after_last);

    EXPECT_EQ(Shape(tree.Root()), "0(1 3 2 4)");
    EXPECT_EQ(after_first->parentItem(), tree.Root());
    EXPECT_EQ(after_last->parentItem(), tree.Root());
}

TEST(SVqManipulatorsLinks, InsertingWithoutParentItemOrAnchorGivesNull)
{
    MenuTree tree({{1, {{2}}}});
    CVqMenuItem* item = tree.New(3);

    EXPECT_EQ(Tools().insert_item_before(1, nullptr, item), nullptr);
    EXPECT_EQ(Tools().insert_item_before(1, tree.Root(), nullptr), nullptr);
    EXPECT_EQ(Tools().insert_item_before(2, tree.Root(), item), nullptr);
    EXPECT_EQ(Tools().insert_item_before(1, tree[2], item), nullptr);
    EXPECT_EQ(Tools().insert_item_after(1, nullptr, item), nullptr);
    EXPECT_EQ(Tools().insert_item_after(1, tree.Root(), nullptr), nullptr);
    EXPECT_EQ(Tools().insert_item_after(2, tree.Root(), item), nullptr);
    EXPECT_EQ(Tools().insert_item_after(1, tree[2], item), nullptr);

    EXPECT_EQ(Shape(tree.Root()), "0(1(2))");
    EXPECT_EQ(item->parentItem(), nullptr);
}

TEST(SVqManipulatorsLinks, InsertedItemTakesTheFreeMarkOfItsText)
{
    MenuTree tree({{1}, {2}});
    tree[2]->setMnemonic(VQ_TEXT('O'));
    CVqMenuItem* before = NewWithText(tree, 3, VQ_TEXT("&Ope&n"));
    CVqMenuItem* after = NewWithText(tree, 4, VQ_TEXT("&New &All"));

    Tools().insert_item_before(1, tree.Root(), before);
    Tools().insert_item_after(1, tree.Root(), after);

    EXPECT_EQ(before->mnemonic(), VQ_TEXT('n'));
    EXPECT_EQ(after->mnemonic(), VQ_TEXT('A'));
}

TEST(SVqManipulatorsLinks, InsertedItemComesWithoutTheSiblingsThatFollowedIt)
{
    MenuTree tree({{1}, {2}});
    CVqMenuItem* before = tree.New(3);
    CVqMenuItem* after = tree.New(4);
    before->setNextItem(tree.New(5));
    after->setNextItem(tree.New(6));

    Tools().insert_item_before(1, tree.Root(), before);
    Tools().insert_item_after(2, tree.Root(), after);

    EXPECT_EQ(Shape(tree.Root()), "0(3 1 2 4)");
}

TEST(SVqManipulatorsLinks, AmongChildrenWithEqualIdsTheFirstIsTheAnchor)
{
    MenuTree tree({{1}, {7}, {7}});

    Tools().insert_item_before(7, tree.Root(), tree.New(2));
    Tools().insert_item_after(7, tree.Root(), tree.New(3));

    EXPECT_EQ(Shape(tree.Root()), "0(1 2 7 3 7)");
}

TEST(SVqManipulatorsLinks, InsertingRunsNoSeparatorCheck)
{
    MenuTree tree({{1}, {2}});
    SepsTools tools;

    tools.insert_item_before(2, tree.Root(), tree.New(3));
    tools.insert_item_after(2, tree.Root(), tree.New(4));

    EXPECT_THAT(tools.calls, IsEmpty());
}

// remove_item ------------------------------------------------------------------------------------------

TEST(SVqManipulatorsLinks, RemovingFromNullGivesNull)
{
    EXPECT_EQ(Tools().remove_item(1, nullptr), nullptr);
}

TEST(SVqManipulatorsLinks, RemovingAnUnknownIdLeavesTheTree)
{
    const MenuTree tree({{1, {{2}}}, {3}});

    EXPECT_EQ(Tools().remove_item(9, tree.Root()), nullptr);

    EXPECT_EQ(Shape(tree.Root()), "0(1(2) 3)");
}

TEST(SVqManipulatorsLinks, RemovedItemIsUnlinkedAndKeepsItsParentPointer)
{
    const MenuTree tree({{1}, {2}, {3}});

    EXPECT_EQ(Tools().remove_item(2, tree.Root()), tree[2]);

    EXPECT_EQ(Shape(tree.Root()), "0(1 3)");
    EXPECT_EQ(tree[2]->nextItem(), nullptr);
    EXPECT_EQ(tree[2]->parentItem(), tree.Root());
}

TEST(SVqManipulatorsLinks, FirstAndLastChildrenAreRemoved)
{
    const MenuTree tree({{1, {{4}, {5}}}, {2}, {3}});

    EXPECT_EQ(Tools().remove_item(4, tree.Root()), tree[4]);
    EXPECT_EQ(Tools().remove_item(3, tree.Root()), tree[3]);
    EXPECT_EQ(Shape(tree.Root()), "0(1(5) 2)");

    EXPECT_EQ(Tools().remove_item(5, tree.Root()), tree[5]);
    EXPECT_EQ(Tools().remove_item(1, tree.Root()), tree[1]);
    EXPECT_EQ(Shape(tree.Root()), "0(2)");
}

TEST(SVqManipulatorsLinks, RemovedItemTakesItsChildrenWithIt)
{
    const MenuTree tree({{1, {{2}, {3, {{4}}}}}, {5}});

    EXPECT_EQ(Tools().remove_item(1, tree.Root()), tree[1]);

    EXPECT_EQ(Shape(tree[1]), "1(2 3(4))");
    EXPECT_EQ(Shape(tree.Root()), "0(5)");
}

TEST(SVqManipulatorsLinks, RemovingTheStartGivesItWithoutItsSiblings)
{
    const MenuTree tree({{1}, {2}});

    EXPECT_EQ(Tools().remove_item(1, tree[1]), tree[1]);

    EXPECT_EQ(Shape(tree[1]), "1");
}

TEST(SVqManipulatorsLinks, AmongEqualIdsTheNearestComesBackAndAllAreUnlinked)
{
    const MenuTree tree({{1}, {7, {{2}}}, {3, {{7}, {4}}}, {7}});
    CVqMenuItem* nearest = tree[1]->nextItem();

    EXPECT_EQ(Tools().remove_item(7, tree.Root()), nearest);

    EXPECT_EQ(Shape(nearest), "7(2)");
    EXPECT_EQ(Shape(tree.Root()), "0(1 3(4))");
}

TEST(SVqManipulatorsLinks, AmongEqualIdsAChildComesBackBeforeALaterSibling)
{
    const MenuTree tree({{1, {{7}}}, {7}});
    CVqMenuItem* child = tree[1]->subItem();

    EXPECT_EQ(Tools().remove_item(7, tree.Root()), child);

    EXPECT_EQ(Shape(tree.Root()), "0(1)");
}

TEST(SVqManipulatorsLinks, EqualIdsBelowTheRemovedItemAreLostToo)
{
    const MenuTree tree({{7, {{7}, {2}}}, {3}});
    CVqMenuItem* outer = tree.First();

    EXPECT_EQ(Tools().remove_item(7, tree.Root()), outer);

    EXPECT_EQ(Shape(outer), "7(2)");
    EXPECT_EQ(Shape(tree.Root()), "0(3)");
}
