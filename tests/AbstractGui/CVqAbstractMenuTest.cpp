#include "AbstractGui/CVqAbstractMenu.h"

#include "tests/support/CaptureMessages.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>

using testing::ElementsAre;

namespace {

/// A place for a menu whose destructor does not run by itself, as one of two that share their content.
template <class Menu>
class Undying
{
public:
    template <class... Arguments>
    explicit Undying(Arguments&&... arguments)
        : m_menu(new(m_place) Menu(std::forward<Arguments>(arguments)...))
    { }

    Menu& operator*() { return *m_menu; }
    Menu* operator->() { return m_menu; }
    void Die() { m_menu->~Menu(); }

private:
    alignas(Menu) unsigned char m_place[sizeof(Menu)];
    Menu* m_menu;
};

/// Counts what it frees; says that every copy succeeded when told so.
class CountingManipulators final : public CVqAbstractMenu::SVqManipulators
{
public:
    void freeMenuItem(CVqMenuItem* item) override
    {
        ++m_freed;
        SVqManipulators::freeMenuItem(item);
    }

    int copy_items_tree(CVqMenuItem* destination, CVqMenuItem* source) override
    {
        return m_copies_succeed ? 0 : SVqManipulators::copy_items_tree(destination, source);
    }

    int m_freed = 0;
    bool m_copies_succeed = false;
};

/// What a concrete menu has to do for a copy: it brings the root.
class DuplicatingMenu : public TestMenu
{
public:
    using TestMenu::TestMenu;

    CVqAbstractMenu* Duplicate() override
    {
        auto copy = std::make_unique<DuplicatingMenu>(BackEnd::None);
        if (Manipulators().copy_items_tree(copy->Root(), Root()) != 0)
            return nullptr;
        copy->MenuBase() = MenuBase()->Duplicate();
        copy->Native() = Native();
        return copy.release();
    }
};

/// Remembers the arguments of TrackContextMenuEx().
class TrackingMenu : public TestMenu
{
public:
    int TrackContextMenuEx(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                           const CVqRectBase<int>* rect, bool flag1, bool flag2) override
    {
        m_id = id;
        m_x = x;
        m_y = y;
        m_window = window;
        m_result_id = resultId;
        m_rect = rect;
        m_flags = {flag1, flag2};
        return 17;
    }

    vq_uint32 m_id = 0;
    int m_x = 0;
    int m_y = 0;
    __vq_hwnd* m_window = nullptr;
    vq_uint32* m_result_id = nullptr;
    const CVqRectBase<int>* m_rect = reinterpret_cast<const CVqRectBase<int>*>(this);
    std::pair<bool, bool> m_flags;
};

}

// Life ----------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, NewMenuIsEmpty)
{
    Undying<CVqAbstractMenu> menu;

    EXPECT_EQ(menu->getRootMenuItem(), nullptr);
    EXPECT_EQ(menu->EnterMenu(0), -12);
    EXPECT_EQ(menu->DeleteAllLonelyAccels(), -9);
    menu.Die();
}

TEST(CVqAbstractMenu, NewMenuHasEmptyTablesWithTranslationOn)
{
    TestMenu menu;

    menu.MainTable().AddAccelKey(1, 18, 0x41, 0);
    menu.SecondTable().AddAccelKey(2, 18, 0x42, 0);

    vq_uint64 target = 0;
    vq_uint32 id = 0;
    EXPECT_EQ(menu.MainTable().GetAccelsCount(), 1u);
    EXPECT_EQ(menu.SecondTable().GetAccelsCount(), 1u);
    EXPECT_TRUE(menu.MainTable().Translate(0x41, 2, target, id));
    EXPECT_TRUE(menu.SecondTable().Translate(0x42, 2, target, id));
}

TEST(CVqAbstractMenu, NewMenuHasNativeValueZeroAndNoFixedLeftColumn)
{
    TestMenu menu;

    EXPECT_EQ(menu.Native(), 0u);
    EXPECT_FALSE(menu.HasFixedLeftColumnWidth());
}

TEST(CVqAbstractMenu, DestructorDeletesTheBackEndFirst)
{
    auto menu = std::make_unique<TestMenu>();
    const auto calls = menu->Recorder().Calls();
    menu->AppendPopup(1, 0, VQ_TEXT("File"));
    calls->clear();

    menu.reset();

    EXPECT_THAT(*calls, ElementsAre("Delete"));
}

TEST(CVqAbstractMenu, DestructorFreesTreeSiblingsOfTheRootAndLonelyAccels)
{
    class CountedItem : public CVqMenuItem
    {
    public:
        explicit CountedItem(int& alive) : m_alive(alive) { ++m_alive; }
        ~CountedItem() override { --m_alive; }

    private:
        int& m_alive;
    };
    int alive = 0;

    {
        TestMenu menu;
        menu.Root()->setSubItem(new CountedItem(alive));
        menu.Root()->setNextItem(new CountedItem(alive));
        menu.LonelyAccels() = new CountedItem(alive);
        menu.LonelyAccels()->setNextItem(new CountedItem(alive));
        EXPECT_EQ(alive, 4);
    }

    EXPECT_EQ(alive, 0);
}

TEST(CVqAbstractMenu, DestructorFreesWithTheProcessWideManipulators)
{
    CountingManipulators counting;

    {
        TestMenu menu;
        menu.SetManipulators(&counting);
        menu.AppendPopup(1, 0, VQ_TEXT("File"));
    }

    EXPECT_EQ(counting.m_freed, 0);
}

TEST(CVqAbstractMenu, CopyConstructorSharesEverything)
{
    Undying<TestMenu> menu;
    menu->AppendMenuItem(1, 0, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);
    menu->AppendLonelyAccel(9, 18, 0x4C, VQ_TEXT("lonely"));
    menu->Native() = 77;
    menu->EnableFixedLeftColumnWidth(true);

    Undying<TestMenu> copy(*menu);

    EXPECT_EQ(copy->Root(), menu->Root());
    EXPECT_EQ(copy->MenuBase(), menu->MenuBase());
    EXPECT_EQ(copy->LonelyAccels(), menu->LonelyAccels());
    EXPECT_EQ(copy->Native(), 77u);
    EXPECT_TRUE(copy->HasFixedLeftColumnWidth());
    copy->MainTable().AddAccelKey(5, 16, 0x42, 0);
    EXPECT_EQ(TestMenu::Keys(menu->MainTable()), "1:18+79 9:18+76 5:16+66");
    copy.Die();
}

TEST(CVqAbstractMenu, AssignmentSharesEverything)
{
    Undying<TestMenu> menu;
    menu->AppendMenuItem(1, 0, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);
    menu->SecondTable().AddAccelKey(1, 16, 0x70, 0);
    Undying<CVqAbstractMenu> target;
    Undying<CVqAbstractMenu> former(*target);

    *target = *menu;

    EXPECT_EQ(target->getRootMenuItem(), menu->Root());
    CVqAccelerators all;
    target->CopyAccelsTo(all);
    EXPECT_EQ(TestMenu::Keys(all), "1:16+112 1:18+79");
    target.Die();
    former.Die();
}

// Duplicate -----------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, DuplicateOfAFreshAbstractMenuIsNull)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.Duplicate(), nullptr);
}

TEST(CVqAbstractMenu, DuplicateIsNullAlsoWithARootSinceTheCopyHasNone)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.CVqAbstractMenu::Duplicate(), nullptr);
    EXPECT_THAT(menu.TakeCalls(), testing::Not(testing::Contains("Duplicate")));
}

TEST(CVqAbstractMenu, DuplicateTakesBackEndAndNativeValueOnceTheTreeIsCopied)
{
    CountingManipulators manipulators;
    manipulators.m_copies_succeed = true;
    TestMenu menu;
    menu.SetManipulators(&manipulators);
    menu.TakeCalls();

    const std::unique_ptr<CVqAbstractMenu> copy(menu.Duplicate());

    ASSERT_NE(copy, nullptr);
    EXPECT_THAT(menu.TakeCalls(), ElementsAre("Duplicate"));
    EXPECT_EQ(copy->EnterMenu(5), 0);
    EXPECT_THAT(menu.TakeCalls(), ElementsAre("EnterMenu 5"));
    EXPECT_EQ(copy->getRootMenuItem(), nullptr);
}

TEST(CVqAbstractMenu, DuplicateWithoutBackEndGivesAMenuWithoutOne)
{
    CountingManipulators manipulators;
    manipulators.m_copies_succeed = true;
    TestMenu menu(TestMenu::BackEnd::None);
    menu.SetManipulators(&manipulators);

    const std::unique_ptr<CVqAbstractMenu> copy(menu.Duplicate());

    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->EnterMenu(5), -12);
}

TEST(CVqAbstractMenu, ConcreteOverrideOfDuplicateCopiesTheTreeAndNoKeys)
{
    DuplicatingMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("open"), 0);
    menu.AppendLonelyAccel(9, 18, 0x4C, VQ_TEXT("lonely"));

    const std::unique_ptr<CVqAbstractMenu> copy(menu.Duplicate());

    ASSERT_NE(copy, nullptr);
    auto& duplicate = static_cast<DuplicatingMenu&>(*copy);
    EXPECT_EQ(duplicate.Tree(), "1(2)");
    EXPECT_EQ(duplicate.Text(2), "&Open|Ctrl+O");
    EXPECT_NE(duplicate.Item(2), menu.Item(2));
    EXPECT_EQ(TestMenu::Keys(duplicate.MainTable()), "");
    EXPECT_EQ(duplicate.LonelyAccels(), nullptr);
}

// Stubs ---------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, TrackContextMenuExIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.TrackContextMenuEx(1, 2, 3, nullptr, nullptr, nullptr, true, false), -2);
}

TEST(CVqAbstractMenu, TrackContextMenuIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.TrackContextMenu(1, 2, 3, nullptr, nullptr, true, false), -2);
}

TEST(CVqAbstractMenu, TrackContextMenuCallsTheVirtualExFormWithANullRectangle)
{
    TrackingMenu menu;
    vq_uint32 result = 0;
    auto* window = reinterpret_cast<__vq_hwnd*>(&menu);

    EXPECT_EQ(menu.TrackContextMenu(5, 6, 7, window, &result, true, false), 17);

    EXPECT_EQ(menu.m_id, 5u);
    EXPECT_EQ(menu.m_x, 6);
    EXPECT_EQ(menu.m_y, 7);
    EXPECT_EQ(menu.m_window, window);
    EXPECT_EQ(menu.m_result_id, &result);
    EXPECT_EQ(menu.m_rect, nullptr);
    EXPECT_EQ(menu.m_flags, std::pair(true, false));
}

TEST(CVqAbstractMenu, ShowDisabledMenuButtonsIsNotImplemented)
{
    TestMenu menu;
    int value = 0;

    EXPECT_EQ(menu.ShowDisabledMenuButtons(true, &value), -2);
}

TEST(CVqAbstractMenu, CallCmdHandlerIsNotImplemented)
{
    TestMenu menu;

    EXPECT_EQ(menu.CallCmdHandler(1), -2);
}

TEST(CVqAbstractMenu, NoMenuBreakIsRecommended)
{
    TestMenu menu;

    EXPECT_FALSE(menu.IsMenuBreakRecommended(1, 40));
}

// The whole menu ------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, EnterMenuWithoutBackEndGivesMinusTwelve)
{
    TestMenu menu(TestMenu::BackEnd::None);

    EXPECT_EQ(menu.EnterMenu(VQ_TEXT('f')), -12);
}

TEST(CVqAbstractMenu, EnterMenuForwardsTheCharacter)
{
    TestMenu menu;

    EXPECT_EQ(menu.EnterMenu(VQ_TEXT('f')), 0);

    EXPECT_THAT(menu.TakeCalls(), ElementsAre("EnterMenu 102"));
}

TEST(CVqAbstractMenu, EnableFixedLeftColumnWidthIsStored)
{
    TestMenu menu;

    EXPECT_EQ(menu.EnableFixedLeftColumnWidth(true), 0);
    EXPECT_TRUE(menu.HasFixedLeftColumnWidth());

    EXPECT_EQ(menu.EnableFixedLeftColumnWidth(false), 0);
    EXPECT_FALSE(menu.HasFixedLeftColumnWidth());
}

TEST(CVqAbstractMenu, GetSafeIdOfOneOnAnEmptyMenuIsOne)
{
    TestMenu menu;

    EXPECT_EQ(menu.GetSafeId(1), 1u);
}

TEST(CVqAbstractMenu, GetSafeIdIsAboveEveryIdentifierInTheTree)
{
    TestMenu menu;
    menu.AppendPopup(10, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(40, 10, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(20, 0, VQ_TEXT("Edit"));

    EXPECT_EQ(menu.GetSafeId(1), 41u);
    EXPECT_EQ(menu.GetSafeId(100), 100u);
}

TEST(CVqAbstractMenu, GetSafeIdLeavesLonelyAccelsOut)
{
    TestMenu menu;
    menu.AppendLonelyAccel(50, 18, 0x41, VQ_TEXT("lonely"));

    EXPECT_EQ(menu.GetSafeId(1), 1u);
}

TEST(CVqAbstractMenu, GetSafeIdWithoutRootIsTheSeed)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.GetSafeId(0), 0u);
    EXPECT_EQ(menu.GetSafeId(7), 7u);
}

TEST(CVqAbstractMenu, RootIsGiven)
{
    TestMenu menu;

    EXPECT_EQ(menu.getRootMenuItem(), menu.Root());
}

TEST(CVqAbstractMenu, IgnoringAdditionalZoomReachesTheWholeTree)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));

    menu.setIgnoreAdditionalBitmapZoomRecursive(true);

    EXPECT_TRUE(menu.Root()->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(1)->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(2)->ignoreAdditionalZoom());
    EXPECT_TRUE(menu.Item(3)->ignoreAdditionalZoom());
}

TEST(CVqAbstractMenu, IgnoringAdditionalZoomWithoutRootDoesNothing)
{
    CVqAbstractMenu menu;

    menu.setIgnoreAdditionalBitmapZoomRecursive(true);
}

TEST(CVqAbstractMenu, ManipulatorsAreTheProcessWideOnes)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(&menu.Manipulators(), &CVqAbstractMenu::SVqManipulators::Instance());
}

// Printing ------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenu, PrintAllInWritesTheItemAndItsSubtree)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("Open"), VQ_TEXT("open"), 0);
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(1), 0);

    ASSERT_EQ(debug.Texts().size(), 2);
    EXPECT_TRUE(debug.Texts().at(0).contains(QStringLiteral("m_strText:File")));
    EXPECT_TRUE(debug.Texts().at(1).contains(QStringLiteral("m_strText:Open")));
}

TEST(CVqAbstractMenu, PrintAllInWritesTheWholeTreeForAnUnknownId)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));
    menu.AppendPopup(3, 0, VQ_TEXT("Edit"));
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(99), 0);

    EXPECT_EQ(debug.Texts().size(), 3);
}

TEST(CVqAbstractMenu, PrintAllInWithoutRootWritesNothing)
{
    CVqAbstractMenu menu;
    const CaptureMessages debug(QtDebugMsg);

    EXPECT_EQ(menu.PrintAllIn(1), 0);

    EXPECT_TRUE(debug.Texts().isEmpty());
}
