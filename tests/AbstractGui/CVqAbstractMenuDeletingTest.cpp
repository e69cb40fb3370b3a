#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Popup 1 (2, separator 3, popup 4 (5)) and popup 6; lonely accelerators 7, 8, 9. Keys in both tables.
class CVqAbstractMenuDeleting : public testing::Test
{
protected:
    CVqAbstractMenuDeleting()
    {
        m_menu.AppendPopup(1, 0, VQ_TEXT("File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);
        m_menu.AppendSeparator(3, 1);
        m_menu.AppendPopup(4, 1, VQ_TEXT("Recent"));
        m_menu.AppendMenuItem(5, 4, VQ_TEXT("First\aF1"), VQ_TEXT("first"), 0);
        m_menu.AppendPopup(6, 0, VQ_TEXT("Edit"));
        for (vq_uint32 id = 7; id <= 9; ++id)
            m_menu.AppendLonelyAccel(id, 16, static_cast<vq_wchar>(0x40 + id), VQ_TEXT("lonely"));
        for (vq_uint32 id = 2; id <= 9; ++id)
            m_menu.SecondTable().AddAccelKey(id, 16, static_cast<vq_wchar>(0x50 + id), 0);
        m_menu.TakeCalls();
    }

    std::string main_keys() { return TestMenu::Keys(m_menu.MainTable()); }
    std::string second_keys() { return TestMenu::Keys(m_menu.SecondTable()); }
    std::string lonely() { return TestMenu::Chain(m_menu.LonelyAccels()); }

    TestMenu m_menu;
};

const char* const all_main_keys = "2:18+79 5:16+112 7:16+71 8:16+72 9:16+73";
const char* const all_second_keys = "2:16+82 3:16+83 4:16+84 5:16+85 6:16+86 7:16+87 8:16+88 9:16+89";

}

// DeleteId ------------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuDeleting, DeleteIdZeroIsRefused)
{
    EXPECT_EQ(m_menu.DeleteId(0), -13);

    EXPECT_EQ(m_menu.Tree(), "1(2 3 4(5)) 6");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfAnUnknownIdIsNotFound)
{
    EXPECT_EQ(m_menu.DeleteId(999), -13);

    EXPECT_EQ(m_menu.Tree(), "1(2 3 4(5)) 6");
    EXPECT_EQ(main_keys(), all_main_keys);
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfACommandRemovesItsKeysFromBothTables)
{
    EXPECT_EQ(m_menu.DeleteId(2), 0);

    EXPECT_EQ(m_menu.Tree(), "1(3 4(5)) 6");
    EXPECT_EQ(main_keys(), "5:16+112 7:16+71 8:16+72 9:16+73");
    EXPECT_EQ(second_keys(), "3:16+83 4:16+84 5:16+85 6:16+86 7:16+87 8:16+88 9:16+89");
    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("DestroyItem 2"));
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfAPopupTakesItsChildrenAndTheirKeys)
{
    EXPECT_EQ(m_menu.DeleteId(1), 0);

    EXPECT_EQ(m_menu.Tree(), "6");
    EXPECT_EQ(main_keys(), "7:16+71 8:16+72 9:16+73");
    EXPECT_EQ(second_keys(), "6:16+86 7:16+87 8:16+88 9:16+89");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdDestroysTheTreeNativelyChildrenAndLaterSiblingsFirst)
{
    m_menu.DeleteId(1);

    EXPECT_THAT(
        m_menu.TakeCalls(),
        ElementsAre("DestroyItem 5", "DestroyItem 4", "DestroyItem 3", "DestroyItem 2", "DestroyItem 1"));
}

TEST_F(CVqAbstractMenuDeleting, SiblingsBehindADeletedItemStay)
{
    m_menu.DeleteId(1);

    EXPECT_EQ(m_menu.Tree(), "6");
    EXPECT_NE(m_menu.Item(6), nullptr);
}

namespace {

/// Writes down what hangs in the tree and which keys there are when an item is destroyed natively.
class MomentWatcher : public RecordingMenuBase
{
public:
    void DestroyItem(CVqMenuItem*) override
    {
        m_moments.push_back(m_menu->Tree() + " with " + TestMenu::Keys(m_menu->MainTable()) + " and "
                            + TestMenu::Keys(m_menu->SecondTable()));
    }

    TestMenu* m_menu = nullptr;
    std::vector<std::string> m_moments;
};

class WatchedMenu : public TestMenu
{
public:
    WatchedMenu() : TestMenu(BackEnd::None)
    {
        m_watcher->m_menu = this;
        MenuBase() = m_watcher;
    }

    MomentWatcher* m_watcher = new MomentWatcher;
};

}

TEST(CVqAbstractMenuDeletingOrder, CommandIsUnlinkedAndThenDestroyedNatively)
{
    WatchedMenu menu;
    menu.AppendMenuItem(1, 0, VQ_TEXT("Open\aF1"), VQ_TEXT("open"), 0);
    menu.SecondTable().AddAccelKey(1, 16, 0x71, 0);

    menu.DeleteId(1);

    EXPECT_THAT(menu.m_watcher->m_moments, ElementsAre(" with 1:16+112 and 1:16+113"));
}

TEST(CVqAbstractMenuDeletingOrder, SeparatorIsDestroyedNativelyAndThenUnlinked)
{
    WatchedMenu menu;
    menu.AppendSeparator(1, 0);

    EXPECT_EQ(menu.DeleteId(1), 0);

    EXPECT_THAT(menu.m_watcher->m_moments, ElementsAre("1 with  and "));
    EXPECT_EQ(menu.Tree(), "");
}

TEST(CVqAbstractMenuDeletingOrder, ChildrenAreDestroyedNativelyWhileTheyAndTheirKeysAreThere)
{
    WatchedMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open\aF1"), VQ_TEXT("open"), 0);

    menu.DeleteAllIn(1);

    EXPECT_THAT(menu.m_watcher->m_moments, ElementsAre("1(2) with 2:16+112 and "));
}

TEST(CVqAbstractMenuDeletingOrder, WholeMenuIsDestroyedNativelyWhileItAndItsKeysAreThere)
{
    WatchedMenu menu;
    menu.AppendMenuItem(1, 0, VQ_TEXT("Open\aF1"), VQ_TEXT("open"), 0);
    menu.SecondTable().AddAccelKey(1, 16, 0x71, 0);

    menu.DeleteAll();

    const char* const whole = "1 with 1:16+112 and 1:16+113";
    EXPECT_THAT(menu.m_watcher->m_moments, ElementsAre(whole, whole));
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfASeparatorTellsTheBackEndOnce)
{
    EXPECT_EQ(m_menu.DeleteId(3), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2 4(5)) 6");
    EXPECT_THAT(m_menu.TakeCalls(), ElementsAre("DestroyItem 3"));
    EXPECT_EQ(second_keys(), "2:16+82 4:16+84 5:16+85 6:16+86 7:16+87 8:16+88 9:16+89");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfALonelyHeadDeletesItAndGivesMinusThirteen)
{
    EXPECT_EQ(m_menu.DeleteId(7), -13);

    EXPECT_EQ(lonely(), "8 9");
    EXPECT_EQ(main_keys(), "2:18+79 5:16+112 8:16+72 9:16+73");
    EXPECT_EQ(second_keys(), "2:16+82 3:16+83 4:16+84 5:16+85 6:16+86 8:16+88 9:16+89");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfALonelyOnlyIdGivesMinusThirteenAfterDeletingIt)
{
    EXPECT_EQ(m_menu.DeleteId(8), -13);

    EXPECT_EQ(lonely(), "7 9");
    EXPECT_EQ(main_keys(), "2:18+79 5:16+112 7:16+71 9:16+73");
    EXPECT_EQ(second_keys(), "2:16+82 3:16+83 4:16+84 5:16+85 6:16+86 7:16+87 9:16+89");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdOfTheLastLonelyAccelEmptiesTheList)
{
    m_menu.DeleteId(7);
    m_menu.DeleteId(8);
    m_menu.DeleteId(9);

    EXPECT_EQ(m_menu.LonelyAccels(), nullptr);
    EXPECT_EQ(main_keys(), "2:18+79 5:16+112");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdTakesALonelyAccelAndAnItemOfOneId)
{
    m_menu.AppendLonelyAccel(2, 16, 0x5A, VQ_TEXT("also"));

    EXPECT_EQ(m_menu.DeleteId(2), 0);

    EXPECT_EQ(m_menu.Tree(), "1(3 4(5)) 6");
    EXPECT_EQ(lonely(), "7 8 9");
    EXPECT_EQ(main_keys(), "5:16+112 7:16+71 8:16+72 9:16+73");
}

TEST_F(CVqAbstractMenuDeleting, DeleteIdTellsTheBackEndNothingOfLonelyAccels)
{
    m_menu.DeleteId(7);
    m_menu.DeleteId(8);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuDeleting, RepeatedLonelyHeadGoesWithAllItsRepetitions)
{
    auto& tools = m_menu.Manipulators();
    CVqMenuItem* list = tools.create_item_accel(7, VQ_TEXT("first"), nullptr);
    list->setNextItem(tools.create_item_accel(7, VQ_TEXT("second"), nullptr));
    list->nextItem()->setNextItem(tools.create_item_accel(8, VQ_TEXT("third"), nullptr));
    m_menu.SwapLonelyAccels(list);

    EXPECT_EQ(m_menu.DeleteId(7), -13);

    EXPECT_EQ(lonely(), "8");
    tools.free_all(list);
}

TEST_F(CVqAbstractMenuDeleting, RootWithAnIdOfItsOwnIsNotDeleted)
{
    m_menu.Root()->setId(100);

    EXPECT_EQ(m_menu.DeleteId(100), -13);

    EXPECT_EQ(m_menu.Tree(), "1(2 3 4(5)) 6");
}

TEST(CVqAbstractMenuDeletingWithoutBackEnd, DeletesAllTheSame)
{
    TestMenu menu(TestMenu::BackEnd::None);
    menu.AppendMenuItem(1, 0, VQ_TEXT("Open\aF1"), VQ_TEXT("open"), 0);
    menu.AppendSeparator(2, 0);
    menu.AppendPopup(3, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(4, 3, VQ_TEXT("Save"), VQ_TEXT("save"), 0);

    EXPECT_EQ(menu.DeleteId(1), 0);
    EXPECT_EQ(menu.DeleteId(2), 0);
    EXPECT_EQ(menu.DeleteAllIn(3), 0);
    EXPECT_EQ(menu.Tree(), "3");
    EXPECT_EQ(menu.DeleteAll(), 0);
    EXPECT_EQ(menu.Tree(), "");
}

TEST(CVqAbstractMenuDeletingWithoutRoot, FindsNothingAndDeletesNothing)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.DeleteId(1), -13);
    EXPECT_EQ(menu.DeleteAllIn(0), -13);
    EXPECT_EQ(menu.DeleteAll(), 0);
}

// DeleteAllIn ---------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuDeleting, DeleteAllInOfAnUnknownIdIsNotFound)
{
    EXPECT_EQ(m_menu.DeleteAllIn(999), -13);
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllInFreesTheChildrenAndTheirKeys)
{
    EXPECT_EQ(m_menu.DeleteAllIn(1), 0);

    EXPECT_EQ(m_menu.Tree(), "1 6");
    EXPECT_EQ(m_menu.Item(1)->subItem(), nullptr);
    EXPECT_EQ(main_keys(), "7:16+71 8:16+72 9:16+73");
    EXPECT_EQ(second_keys(), "6:16+86 7:16+87 8:16+88 9:16+89");
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllInDestroysTheChildrenNatively)
{
    m_menu.DeleteAllIn(1);

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("DestroyItem 5", "DestroyItem 4", "DestroyItem 3", "DestroyItem 2"));
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllInClearsRemovedAndNotDeleted)
{
    m_menu.Item(1)->setRemoved(true);
    m_menu.Item(1)->setDeleted(true);

    m_menu.DeleteAllIn(1);

    EXPECT_FALSE(m_menu.Item(1)->removed());
    EXPECT_TRUE(m_menu.Item(1)->deleted());
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllInOfAnItemWithoutChildrenGivesZero)
{
    EXPECT_EQ(m_menu.DeleteAllIn(6), 0);

    EXPECT_THAT(m_menu.TakeCalls(), IsEmpty());
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllInOfTheRootLeavesLonelyAccels)
{
    EXPECT_EQ(m_menu.DeleteAllIn(0), 0);

    EXPECT_EQ(m_menu.Tree(), "");
    EXPECT_EQ(lonely(), "7 8 9");
    EXPECT_EQ(main_keys(), "7:16+71 8:16+72 9:16+73");
}

TEST_F(CVqAbstractMenuDeleting, ItemsCanBeAppendedAgainAfterDeleteAllIn)
{
    m_menu.DeleteAllIn(1);
    m_menu.AppendMenuItem(2, 1, VQ_TEXT("Again"), VQ_TEXT("again"), 0);

    EXPECT_EQ(m_menu.Tree(), "1(2) 6");
}

// DeleteAll -----------------------------------------------------------------------------------------------

TEST_F(CVqAbstractMenuDeleting, DeleteAllEmptiesTreeTablesAndLonelyList)
{
    EXPECT_EQ(m_menu.DeleteAll(), 0);

    EXPECT_EQ(m_menu.Tree(), "");
    EXPECT_EQ(main_keys(), "");
    EXPECT_EQ(second_keys(), "");
    EXPECT_EQ(m_menu.LonelyAccels(), nullptr);
    EXPECT_NE(m_menu.getRootMenuItem(), nullptr);
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllDestroysTheRootNativelyToo)
{
    m_menu.DeleteAll();

    EXPECT_THAT(m_menu.TakeCalls(),
                ElementsAre("DestroyItem 5", "DestroyItem 4", "DestroyItem 3", "DestroyItem 2",
                            "DestroyItem 6", "DestroyItem 1", "DestroyItem 0"));
}

TEST_F(CVqAbstractMenuDeleting, DeleteAllFreesSiblingsOfTheRoot)
{
    m_menu.Root()->setNextItem(m_menu.Manipulators().create_item_separator(50));

    m_menu.DeleteAll();

    EXPECT_EQ(m_menu.Root()->nextItem(), nullptr);
    EXPECT_THAT(m_menu.TakeCalls(), testing::Contains("DestroyItem 50"));
}

TEST_F(CVqAbstractMenuDeleting, MenuCanBeFilledAgainAfterDeleteAll)
{
    m_menu.DeleteAll();
    m_menu.AppendPopup(1, 0, VQ_TEXT("Again"));
    m_menu.AppendLonelyAccel(7, 16, 0x41, VQ_TEXT("again"));

    EXPECT_EQ(m_menu.Tree(), "1");
    EXPECT_EQ(lonely(), "7");
}
