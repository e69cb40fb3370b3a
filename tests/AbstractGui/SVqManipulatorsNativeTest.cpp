#include "tests/AbstractGui/MenuTree.h"
#include "tests/support/RecordingMenuBase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Notes the handle that each item has when it is inserted.
class HandleNotes final : public RecordingMenuBase
{
public:
    int InsertItem(CVqMenuItem*, CVqMenuItem*, CVqMenuItem* item) override
    {
        handles.push_back(item->menu());
        return 0;
    }

    std::vector<vq_uint64> handles;
};

}

// create_all -------------------------------------------------------------------------------------------

TEST(SVqManipulatorsNative, CreatingWithoutItemOrBaseGivesMinusNine)
{
    const MenuTree tree({{1}});
    RecordingMenuBase base;

    EXPECT_EQ(Tools().create_all(&base, nullptr), -9);
    EXPECT_EQ(Tools().create_all(nullptr, tree[1]), -9);

    EXPECT_THAT(*base.Calls(), IsEmpty());
}

TEST(SVqManipulatorsNative, CreatingEntersPopupsBeforeTheirSiblings)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5}});
    RecordingMenuBase base;

    EXPECT_EQ(Tools().create_all(&base, tree.First()), 0);

    EXPECT_THAT(*base.Calls(),
                ElementsAre("CreateMenuHandle = 1", "InsertItem parent 0, position null, item 1 = 0",
                            "CreateMenuHandle = 2", "InsertItem parent 1, position null, item 2 = 0",
                            "InsertItem parent 2, position null, item 3 = 0",
                            "InsertItem parent 1, position null, item 4 = 0",
                            "InsertItem parent 0, position null, item 5 = 0"));
    EXPECT_EQ(tree[1]->menu(), 1u);
    EXPECT_EQ(tree[2]->menu(), 2u);
    EXPECT_EQ(tree[5]->menu(), 0u);
}

TEST(SVqManipulatorsNative, PopupHasItsHandleBeforeItIsInserted)
{
    const MenuTree tree({{1, {{2}}}, {3, {{4}}}});
    HandleNotes base;

    EXPECT_EQ(Tools().create_all(&base, tree.First()), 0);

    EXPECT_THAT(base.handles, ElementsAre(1, 0, 2, 0));
}

TEST(SVqManipulatorsNative, PopupWithoutChildrenGetsAHandleToo)
{
    const MenuTree tree({{1}});
    tree[1]->setType(CVqAbstractMenu::SensePopup);
    RecordingMenuBase base;

    EXPECT_EQ(Tools().create_all(&base, tree.First()), 0);

    EXPECT_THAT(*base.Calls(),
                ElementsAre("CreateMenuHandle = 1", "InsertItem parent 0, position null, item 1 = 0"));
}

TEST(SVqManipulatorsNative, OnlyPopupsAreEntered)
{
    const MenuTree tree({{1, {{2}}}});
    tree[1]->setType(CVqAbstractMenu::SenseItem);
    RecordingMenuBase base;

    EXPECT_EQ(Tools().create_all(&base, tree.First()), 0);

    EXPECT_THAT(*base.Calls(), ElementsAre("InsertItem parent 0, position null, item 1 = 0"));
}

TEST(SVqManipulatorsNative, HiddenItemsAreCreatedLikeOthers)
{
    const MenuTree tree({{1}, {2}});
    tree[1]->setRemoved(true);
    tree[2]->setDeleted(true);
    RecordingMenuBase base;

    Tools().create_all(&base, tree.First());

    EXPECT_THAT(*base.Calls(),
                ElementsAre("InsertItem parent 0, position null, item 1 = 0",
                            "InsertItem parent 0, position null, item 2 = 0"));
}

TEST(SVqManipulatorsNative, FirstFailedInsertEndsTheCreation)
{
    const MenuTree tree({{1, {{2}, {3}}}, {4}});
    RecordingMenuBase base;
    base.FailInsertOf(2, -5);

    EXPECT_EQ(Tools().create_all(&base, tree.First()), -5);

    EXPECT_THAT(*base.Calls(),
                ElementsAre("CreateMenuHandle = 1", "InsertItem parent 0, position null, item 1 = 0",
                            "InsertItem parent 1, position null, item 2 = -5"));
}

// destroy_all ------------------------------------------------------------------------------------------

TEST(SVqManipulatorsNative, DestroyingTakesChildrenAndLaterSiblingsFirst)
{
    const MenuTree tree({{1, {{2, {{3}}}, {4}}}, {5, {{6}}}, {7}});
    RecordingMenuBase base;

    Tools().destroy_all(&base, tree.First());

    EXPECT_THAT(*base.Calls(),
                ElementsAre("DestroyItem 3", "DestroyItem 4", "DestroyItem 2", "DestroyItem 6",
                            "DestroyItem 7", "DestroyItem 5", "DestroyItem 1"));
}

TEST(SVqManipulatorsNative, DestroyingWithoutItemOrBaseDoesNothing)
{
    const MenuTree tree({{1, {{2}}}});
    RecordingMenuBase base;

    Tools().destroy_all(&base, nullptr);
    Tools().destroy_all(nullptr, tree.First());

    EXPECT_THAT(*base.Calls(), IsEmpty());
}
