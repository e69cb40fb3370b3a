#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqHiddenMenuCommands.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr vq_uint32 unknown = 999;

/// Popups 1 (2, separator 3, 4, popup 5 (6)) and 7, which is empty.
class CVqAbstractMenuPopups : public testing::Test
{
protected:
    CVqAbstractMenuPopups()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
        m_menu.AppendSeparator(3, 1);
        m_menu.AppendMenuItem(4, 1, VQ_TEXT("Save"), VQ_TEXT("save"), 0);
        m_menu.AppendPopup(5, 1, VQ_TEXT("Recent"));
        m_menu.AppendMenuItem(6, 5, VQ_TEXT("First"), VQ_TEXT("first"), 0);
        m_menu.AppendPopup(7, 0, VQ_TEXT("Edit"));
        m_menu.TakeCalls();
    }

    TestMenu m_menu;
};

/// Collects identifiers, and ends the walk when it has `m_limit` of them.
struct Collected
{
    static bool Take(CVqMenuItem* item, void* user)
    {
        auto& self = *static_cast<Collected*>(user);
        self.m_ids.push_back(item->id());
        return self.m_ids.size() < self.m_limit;
    }

    std::vector<vq_uint32> m_ids;
    std::size_t m_limit = 1000;
};

/// A menu that notes what UnrollPopup() enters.
class EnteredMenu : public TestMenu
{
public:
    int EnterMenu(vq_wchar character) override
    {
        m_entered.push_back(character);
        return -1;
    }

    std::vector<vq_wchar> m_entered;
};

}

// Counting ------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuPopups, CountIsThatOfTheDirectChildren)
{
    EXPECT_EQ(m_menu.GetCountInPopup(1), 4);
    EXPECT_EQ(m_menu.GetCountInPopup(0), 2);
    EXPECT_EQ(m_menu.GetCountInPopup(7), 0);
    EXPECT_EQ(m_menu.GetCountInPopup(2), 0);
}

TEST_F(CVqAbstractMenuPopups, VisibleCountLeavesOutRemovedAndDeleted)
{
    m_menu.Item(2)->setDeleted(true);
    m_menu.Item(3)->setRemoved(true);

    EXPECT_EQ(m_menu.GetVisibleCountInPopup(1), 2);
    EXPECT_EQ(m_menu.GetCountInPopup(1), 4);
}

TEST_F(CVqAbstractMenuPopups, CountsOfAnUnknownPopupAreNotFound)
{
    EXPECT_EQ(m_menu.GetCountInPopup(unknown), -13);
    EXPECT_EQ(m_menu.GetVisibleCountInPopup(unknown), -13);
}

// Index and identifier ------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuPopups, IdFromIndexCountsAllChildren)
{
    m_menu.Item(2)->setDeleted(true);
    m_menu.Item(3)->setRemoved(true);
    vq_uint32 id = 0;

    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(1, 0, id), 0);
    EXPECT_EQ(id, 2u);
    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(1, 3, id), 0);
    EXPECT_EQ(id, 5u);
}

TEST_F(CVqAbstractMenuPopups, IdFromAnIndexBeyondTheEndIsNotFound)
{
    vq_uint32 id = 77;

    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(1, 4, id), -13);
    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(1, 0xFFFFFFFF, id), -13);

    EXPECT_EQ(id, 77u);
}

TEST_F(CVqAbstractMenuPopups, IdFromIndexInAMissingOrEmptyPopupIsABadArgument)
{
    vq_uint32 id = 77;

    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(unknown, 0, id), -4);
    EXPECT_EQ(m_menu.GetIdInPopupFromIndex(7, 0, id), -4);
}

TEST_F(CVqAbstractMenuPopups, IndexFromIdCountsAllChildren)
{
    m_menu.Item(2)->setDeleted(true);
    vq_uint32 index = 77;

    EXPECT_EQ(m_menu.GetIndexInPopupFromId(1, 5, index), 0);

    EXPECT_EQ(index, 3u);
}

TEST_F(CVqAbstractMenuPopups, IndexFromTheIdOfNoDirectChildIsNotFound)
{
    vq_uint32 index = 77;

    EXPECT_EQ(m_menu.GetIndexInPopupFromId(1, unknown, index), -13);
    EXPECT_EQ(m_menu.GetIndexInPopupFromId(1, 6, index), -13);

    EXPECT_EQ(index, 77u);
}

TEST_F(CVqAbstractMenuPopups, IndexFromIdInAMissingOrEmptyPopupIsABadArgument)
{
    vq_uint32 index = 77;

    EXPECT_EQ(m_menu.GetIndexInPopupFromId(unknown, 2, index), -4);
    EXPECT_EQ(m_menu.GetIndexInPopupFromId(7, 2, index), -4);
}

TEST_F(CVqAbstractMenuPopups, FindItemByIdLooksAtDirectChildren)
{
    EXPECT_EQ(m_menu.FindItemInPopup(1, 4), 0);
    EXPECT_EQ(m_menu.FindItemInPopup(1, 6), -13);
    EXPECT_EQ(m_menu.FindItemInPopup(unknown, 4), -4);
    EXPECT_EQ(m_menu.FindItemInPopup(7, 4), -4);
}

TEST_F(CVqAbstractMenuPopups, PopupIndexIsThatAmongTheChildrenOfTheRoot)
{
    vq_uint32 index = 77;

    EXPECT_EQ(m_menu.GetPopupIndexFromId(7, index), 0);

    EXPECT_EQ(index, 1u);
}

TEST_F(CVqAbstractMenuPopups, PopupIndexOfADeeperOrUnknownPopupIsNotFound)
{
    vq_uint32 index = 77;

    EXPECT_EQ(m_menu.GetPopupIndexFromId(5, index), -13);
    EXPECT_EQ(m_menu.GetPopupIndexFromId(unknown, index), -13);

    EXPECT_EQ(index, 77u);
}

TEST(CVqAbstractMenuPopupsOfNothing, PopupIndexWithoutRootOrChildrenIsABadArgument)
{
    CVqAbstractMenu without_root;
    TestMenu without_children;
    vq_uint32 index = 0;

    EXPECT_EQ(without_root.GetPopupIndexFromId(1, index), -4);
    EXPECT_EQ(without_children.GetPopupIndexFromId(1, index), -4);
}

TEST(CVqAbstractMenuPopupsOfNothing, InspectionWithoutRootFindsNothing)
{
    CVqAbstractMenu menu;
    vq_uint32 out = 0;

    EXPECT_EQ(menu.GetCountInPopup(0), -13);
    EXPECT_EQ(menu.GetIdInPopupFromIndex(0, 0, out), -4);
    EXPECT_EQ(menu.FindItemInPopup(0, vq_uint32(1)), -4);
    EXPECT_EQ(menu.RecreatePopup(0), -13);
    EXPECT_EQ(menu.UnrollPopup(1), -13);
}

// EnumItems -----------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuPopups, EnumItemsGoesAlongTheSiblingsOfTheItem)
{
    Collected collected;

    EXPECT_EQ(m_menu.EnumItems(3, false, &Collected::Take, &collected), 0);

    EXPECT_THAT(collected.m_ids, ElementsAre(3, 4, 5));
}

TEST_F(CVqAbstractMenuPopups, EnumItemsRecursiveVisitsChildrenBeforeTheirParent)
{
    Collected collected;

    EXPECT_EQ(m_menu.EnumItems(1, true, &Collected::Take, &collected), 0);

    EXPECT_THAT(collected.m_ids, ElementsAre(2, 3, 4, 6, 5, 1, 7));
}

TEST_F(CVqAbstractMenuPopups, EnumItemsEndsWhenTheCallbackSaysFalse)
{
    Collected collected;
    collected.m_limit = 4;

    EXPECT_EQ(m_menu.EnumItems(1, true, &Collected::Take, &collected), 0);
    EXPECT_THAT(collected.m_ids, ElementsAre(2, 3, 4, 6));

    collected = {};
    collected.m_limit = 2;
    EXPECT_EQ(m_menu.EnumItems(2, false, &Collected::Take, &collected), 0);
    EXPECT_THAT(collected.m_ids, ElementsAre(2, 3));
}

TEST_F(CVqAbstractMenuPopups, EnumItemsOfAnUnknownIdIsABadArgument)
{
    Collected collected;

    EXPECT_EQ(m_menu.EnumItems(unknown, true, &Collected::Take, &collected), -4);
    EXPECT_EQ(m_menu.EnumItems(unknown, true, nullptr, nullptr), -4);

    EXPECT_THAT(collected.m_ids, IsEmpty());
}

TEST_F(CVqAbstractMenuPopups, EnumItemsWithANullCallbackGivesZero)
{
    EXPECT_EQ(m_menu.EnumItems(1, true, nullptr, nullptr), 0);
}

// Hidden commands -----------------------------------------------------------------------------------------

namespace {

/// Root with 100, popup 12300 (1, separator 2, 3, separator 4) and popup 200 (5).
class CVqAbstractMenuHiddenPopup : public testing::Test
{
protected:
    CVqAbstractMenuHiddenPopup()
    {
        m_menu.AppendMenuItem(100, 0, VQ_TEXT("Ahead"), VQ_TEXT("hide me"), 0);
        m_menu.AppendPopup(12300, 0, VQ_TEXT("Tools"));
        m_menu.AppendMenuItem(1, 12300, VQ_TEXT("A"), VQ_TEXT("hide me"), 0);
        m_menu.AppendSeparator(2, 12300);
        m_menu.AppendMenuItem(3, 12300, VQ_TEXT("B"), VQ_TEXT("stay"), 0);
        m_menu.AppendSeparator(4, 12300);
        m_menu.AppendPopup(200, 0, VQ_TEXT("More"));
        m_menu.AppendMenuItem(5, 200, VQ_TEXT("C"), VQ_TEXT("hide me"), 0);
        VQ_SetMenuCommandAsHidden(VQ_TEXT("HiddenPopup"), VQ_TEXT("hide me"), true);
    }

    TestMenu m_menu;
};

}

TEST_F(CVqAbstractMenuHiddenPopup, HidesInThePopupAndItsFollowingSiblings)
{
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, VQ_TEXT("HiddenPopup")), 0);

    EXPECT_EQ(m_menu.Tree(), "100 12300(1* 2- 3 4-) 200*(5*)");
}

TEST_F(CVqAbstractMenuHiddenPopup, IdArgumentPlaysNoPart)
{
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(unknown, VQ_TEXT("HiddenPopup")), 0);

    EXPECT_TRUE(m_menu.Item(1)->deleted());
}

TEST_F(CVqAbstractMenuHiddenPopup, SeparatorsAreTidiedEvenWhenNothingIsHidden)
{
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, VQ_TEXT("NobodysName")), 0);

    EXPECT_EQ(m_menu.Tree(), "100 12300(1 2 3 4-) 200(5)");
}

TEST_F(CVqAbstractMenuHiddenPopup, SeparatorsAreTidiedFromThePopupOnAmongItsSiblingsToo)
{
    m_menu.AppendSeparator(300, 0);
    m_menu.InsertSeparatorBefore(50, 0, 100);
    m_menu.Item(50)->setRemoved(false);

    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, VQ_TEXT("HiddenPopup")), 0);

    EXPECT_EQ(m_menu.Tree(), "50 100 12300(1* 2- 3 4-) 200*(5*) 300-");
}

TEST_F(CVqAbstractMenuHiddenPopup, NullNameHidesNothing)
{
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, nullptr), 0);

    EXPECT_EQ(m_menu.Tree(), "100 12300(1 2 3 4-) 200(5)");
}

TEST_F(CVqAbstractMenuHiddenPopup, EmptyPopupIsABadArgument)
{
    m_menu.DeleteAllIn(12300);

    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, VQ_TEXT("HiddenPopup")), -4);

    EXPECT_EQ(m_menu.Tree(), "100 12300 200(5)");
}

TEST_F(CVqAbstractMenuPopups, RemoveHiddenInATreeWithoutItem12300IsABadArgument)
{
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(1, VQ_TEXT("HiddenPopup")), -4);
    EXPECT_EQ(m_menu.RemoveHiddenInPopup(12300, VQ_TEXT("HiddenPopup")), -4);
}

// Unrolling and recreating --------------------------------------------------------------------------------

TEST(CVqAbstractMenuUnroll, EnabledChildOfTheRootIsEnteredThroughTheVirtualOperation)
{
    EnteredMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.UnrollPopup(1), 0);

    EXPECT_THAT(menu.m_entered, ElementsAre(0));
}

TEST_F(CVqAbstractMenuPopups, UnrollTellsTheBackEnd)
{
    EXPECT_EQ(m_menu.UnrollPopup(7), 0);

    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("EnterMenu 0"));
}

TEST(CVqAbstractMenuUnroll, WithoutBackEndGivesZeroAllTheSame)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendPopup(1, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.UnrollPopup(1), 0);
}

TEST_F(CVqAbstractMenuPopups, UnrollOfAPopupTwoLevelsDeepIsNotFound)
{
    EXPECT_EQ(m_menu.UnrollPopup(5), -13);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuPopups, UnrollOfADisabledPopupIsNotFound)
{
    m_menu.Item(1)->setStatus(2 | 4 | 16);

    EXPECT_EQ(m_menu.UnrollPopup(1), -13);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuPopups, UnrollOfAnUnknownPopupIsNotFound)
{
    EXPECT_EQ(m_menu.UnrollPopup(unknown), -13);
}

TEST_F(CVqAbstractMenuPopups, RecreateDestroysAndCreatesTheChildrenNatively)
{
    EXPECT_EQ(m_menu.RecreatePopup(1), 0);

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("DestroyItem 6", "DestroyItem 5", "DestroyItem 4", "DestroyItem 3",
                            "DestroyItem 2", "InsertItem parent 1, position null, item 2 = 0",
                            "InsertItem parent 1, position null, item 3 = 0",
                            "InsertItem parent 1, position null, item 4 = 0", "CreateMenuHandle = 4",
                            "InsertItem parent 1, position null, item 5 = 0",
                            "InsertItem parent 5, position null, item 6 = 0"));
    EXPECT_EQ(m_menu.Tree(), "1(2 3 4 5(6)) 7");
}

TEST_F(CVqAbstractMenuPopups, RecreateGivesWhatTheBackEndSays)
{
    m_menu.Recorder().FailInsertOf(3, -55);

    EXPECT_EQ(m_menu.RecreatePopup(1), -55);
}

TEST_F(CVqAbstractMenuPopups, RecreateOfAnUnknownIdIsNotFound)
{
    EXPECT_EQ(m_menu.RecreatePopup(unknown), -13);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuPopups, RecreateWithoutChildrenFails)
{
    EXPECT_EQ(m_menu.RecreatePopup(7), -9);
}

TEST(CVqAbstractMenuRecreate, WithoutBackEndFails)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);

    EXPECT_EQ(menu.RecreatePopup(1), -9);
}
