#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/support/TestMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <utility>

using testing::ElementsAre;

// How a menu begins and ends, and what its copies share.

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

class CountedItem : public CVqMenuItem
{
public:
    explicit CountedItem(int& alive) : m_alive(alive) { ++m_alive; }
    ~CountedItem() override { --m_alive; }

private:
    int& m_alive;
};

/// Counts what is alive of counted items when it dies.
class MomentOfDeath : public RecordingMenuBase
{
public:
    MomentOfDeath(const int& alive, int& alive_at_death)
        : m_alive(alive), m_alive_at_death(alive_at_death) { }
    ~MomentOfDeath() override { m_alive_at_death = m_alive; }

private:
    const int& m_alive;
    int& m_alive_at_death;
};

/// The native value of a menu of any class.
struct Native : TestMenu
{
    static vq_uint64 Of(const CVqAbstractMenu& menu) { return menu.*&Native::m_hNative; }
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

}

// Life ----------------------------------------------------------------------------------------------------

TEST(CVqAbstractMenuLife, NewMenuIsEmpty)
{
    Undying<CVqAbstractMenu> menu;

    EXPECT_EQ(menu->getRootMenuItem(), nullptr);
    EXPECT_EQ(menu->EnterMenu(0), -12);
    EXPECT_EQ(menu->DeleteAllLonelyAccels(), -9);
    menu.Die();
}

TEST(CVqAbstractMenuLife, NewMenuHasEmptyTablesWithTranslationOn)
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

TEST(CVqAbstractMenuLife, NewMenuHasNativeValueZeroAndNoFixedLeftColumn)
{
    TestMenu menu;

    EXPECT_EQ(menu.Native(), 0u);
    EXPECT_FALSE(menu.HasFixedLeftColumnWidth());
}

TEST(CVqAbstractMenuLife, DestructorDeletesTheBackEndFirst)
{
    int alive = 0;
    int alive_at_death = 0;
    auto menu = std::make_unique<TestMenu>(TestMenu::BackEnd::None);
    menu->MenuBase() = new MomentOfDeath(alive, alive_at_death);
    menu->Root()->setSubItem(new CountedItem(alive));
    menu->LonelyAccels() = new CountedItem(alive);
    const auto calls = menu->Recorder().Calls();

    menu.reset();

    EXPECT_EQ(alive_at_death, 2);
    EXPECT_THAT(*calls, ElementsAre("Delete"));
}

TEST(CVqAbstractMenuLife, DestructorFreesTreeSiblingsOfTheRootAndLonelyAccels)
{
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

TEST(CVqAbstractMenuLife, DestructorFreesWithTheProcessWideManipulators)
{
    CountingManipulators counting;

    {
        TestMenu menu;
        menu.SetManipulators(&counting);
        menu.AppendPopup(1, 0, VQ_TEXT("File"));
    }

    EXPECT_EQ(counting.m_freed, 0);
}

TEST(CVqAbstractMenuLife, CopyConstructorSharesEverything)
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
    copy->SecondTable().AddAccelKey(6, 16, 0x43, 0);
    EXPECT_EQ(TestMenu::Keys(menu->SecondTable()), "6:16+67");
    copy.Die();
}

TEST(CVqAbstractMenuLife, AssignmentSharesEverything)
{
    Undying<TestMenu> menu;
    menu->AppendMenuItem(1, 0, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);
    menu->AppendLonelyAccel(9, 18, 0x4C, VQ_TEXT("lonely"));
    menu->SecondTable().AddAccelKey(1, 16, 0x70, 0);
    menu->Native() = 77;
    menu->EnableFixedLeftColumnWidth(true);
    Undying<TestMenu> target;
    Undying<TestMenu> former(*target);

    *target = *menu;

    EXPECT_EQ(target->Root(), menu->Root());
    EXPECT_EQ(target->MenuBase(), menu->MenuBase());
    EXPECT_EQ(target->LonelyAccels(), menu->LonelyAccels());
    EXPECT_EQ(target->Native(), 77u);
    EXPECT_TRUE(target->HasFixedLeftColumnWidth());
    CVqAccelerators all;
    target->CopyAccelsTo(all);
    EXPECT_EQ(TestMenu::Keys(all), "1:16+112 1:18+79 9:18+76");
    target.Die();
    former.Die();
}

// Duplicate -----------------------------------------------------------------------------------------------

TEST(CVqAbstractMenuLife, DuplicateOfAFreshAbstractMenuIsNull)
{
    CVqAbstractMenu menu;

    EXPECT_EQ(menu.Duplicate(), nullptr);
}

TEST(CVqAbstractMenuLife, DuplicateIsNullAlsoWithARootSinceTheCopyHasNone)
{
    TestMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("File"));

    EXPECT_EQ(menu.CVqAbstractMenu::Duplicate(), nullptr);
    EXPECT_THAT(menu.TakeCalls(), testing::Not(testing::Contains("Duplicate")));
}

TEST(CVqAbstractMenuLife, DuplicateTakesBackEndAndNativeValueOnceTheTreeIsCopied)
{
    CountingManipulators manipulators;
    manipulators.m_copies_succeed = true;
    TestMenu menu;
    menu.SetManipulators(&manipulators);
    menu.AppendMenuItem(1, 0, VQ_TEXT("Open\aCtrl+O"), VQ_TEXT("open"), 0);
    menu.SecondTable().AddAccelKey(1, 16, 0x70, 0);
    menu.Native() = 77;
    menu.TakeCalls();

    const std::unique_ptr<CVqAbstractMenu> copy(menu.Duplicate());

    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(Native::Of(*copy), 77u);
    EXPECT_THAT(menu.TakeCalls(), ElementsAre("Duplicate"));
    EXPECT_EQ(copy->EnterMenu(5), 0);
    EXPECT_THAT(menu.TakeCalls(), ElementsAre("EnterMenu 5"));
    EXPECT_EQ(copy->getRootMenuItem(), nullptr);
    CVqAccelerators all;
    copy->CopyAccelsTo(all);
    EXPECT_EQ(all.GetAccelsCount(), 0u);
}

TEST(CVqAbstractMenuLife, DuplicateWithoutBackEndGivesAMenuWithoutOne)
{
    CountingManipulators manipulators;
    manipulators.m_copies_succeed = true;
    TestMenu menu(TestMenu::BackEnd::None);
    menu.SetManipulators(&manipulators);

    const std::unique_ptr<CVqAbstractMenu> copy(menu.Duplicate());

    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->EnterMenu(5), -12);
}

TEST(CVqAbstractMenuLife, ConcreteOverrideOfDuplicateCopiesTheTreeAndNoKeys)
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
