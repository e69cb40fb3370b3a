#pragma once

#include "tests/AbstractGui/StoredMenus.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <utility>

// Records that no writer makes and that a damaged or made-up file may hold. Whatever they hold, the menu
// works afterwards, and memory stays within a multiple of what is stored. Time is bounded by the sizes: a
// step whose cost grew with their square would not end.

/// Heap in use; 0 where a sanitizer keeps the heap.
inline double heap_bytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/// Loads made-up records of either form and then uses the menu.
template <class Form>
class HostileMenusFixture : public testing::Test
{
protected:
    using Container = typename Form::Container;

    void load(Stored::Children items, Stored::Children lonely = {})
    {
        Container stored = Form::MakeMenu(std::move(items), std::move(lonely));
        const double before = heap_bytes();
        m_menu.Load(stored);
        m_growth = heap_bytes() - before;
    }

    /// Adds, finds, changes and fires, and deletes again.
    void expect_a_working_menu()
    {
        vq_uint64 target = 1;
        vq_uint32 id = 0;
        CVqStringW text;
        m_menu.AppendPopup(4711, 0, VQ_TEXT("&New"));
        m_menu.AppendMenuItem(4712, 4711, VQ_TEXT("One\aCtrl+Alt+F24"), VQ_TEXT("one"), 0);

        EXPECT_EQ(m_menu.GetIdMenuString(4712, text), 0);
        EXPECT_EQ(TestMenu::Plain(text), "One|Ctrl+Alt+F24");
        EXPECT_TRUE(m_menu.Translate(135, 3, target, id));
        EXPECT_EQ(id, 4712u);
        EXPECT_EQ(m_menu.GrayId(4712, true), 0);
        EXPECT_EQ(m_menu.DeleteId(4711), 0);
        EXPECT_EQ(m_menu.GetIdMenuString(4712, text), -13);
    }

    /// What is saved now comes back, and then an ordinary menu.
    void expect_to_be_stored_again()
    {
        Container stored;
        EXPECT_EQ(m_menu.Save(stored), 0);
        TestMenu other(TestMenu::BackEnd::None);
        other.Load(stored);
        EXPECT_EQ(TestMenu::Chain(other.Root()->subItem()), TestMenu::Chain(m_menu.Root()->subItem()));
        expect_an_ordinary_menu_to_load();
    }

    void expect_an_ordinary_menu_to_load()
    {
        Container ordinary = Form::MakeMenu(items_of_ids({1, 2}), {item_with_key(3, ctrl_a)});
        m_menu.Load(ordinary);
        EXPECT_EQ(m_menu.Tree(), "1 2");
        EXPECT_EQ(TestMenu::Chain(m_menu.LonelyAccels()), "3");
        EXPECT_EQ(TestMenu::Keys(m_menu.MainTable()), "3:18+65");
    }

    TestMenu m_menu{TestMenu::BackEnd::None};
    double m_growth = 0;
};
