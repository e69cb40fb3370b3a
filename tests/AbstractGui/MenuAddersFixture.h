#pragma once

#include "tests/support/TestMenu.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

/// Frees what no tree holds in the end, and makes no items when told so.
class KeepingManipulators final : public CVqAbstractMenu::SVqManipulators
{
public:
    ~KeepingManipulators()
    {
        for (CVqMenuItem* item : m_loose)
            delete item;
    }

    CVqMenuItem* allocMenuItem() override
    {
        return m_makes_items ? *m_loose.insert(SVqManipulators::allocMenuItem()).first : nullptr;
    }

    /// The items that are not below `menu`'s root; they stay with this object.
    std::vector<CVqMenuItem*> LooseItems(TestMenu& menu)
    {
        std::erase_if(m_loose, [&](CVqMenuItem* item) { return menu.Item(item->id()) == item; });
        return {m_loose.begin(), m_loose.end()};
    }

    bool m_makes_items = true;

private:
    std::set<CVqMenuItem*> m_loose;
};

/// Popup 1 with commands 2 and 3, and popup 9, which is empty.
class CVqAbstractMenuAdders : public testing::Test
{
protected:
    CVqAbstractMenuAdders()
    {
        m_menu.SetManipulators(&m_keeping);
        m_menu.AppendPopup(1, 0, VQ_TEXT("File"));
        m_menu.AppendMenuItem(2, 1, VQ_TEXT("Two"), VQ_TEXT("two"), 0);
        m_menu.AppendMenuItem(3, 1, VQ_TEXT("Three"), VQ_TEXT("three"), 0);
        m_menu.AppendPopup(9, 0, VQ_TEXT("Edit"));
        m_menu.TakeCalls();
    }

    ~CVqAbstractMenuAdders() override { m_keeping.LooseItems(m_menu); }

    /// What the back end was told, without the handles that it made for popups.
    std::vector<std::string> calls_without_handles()
    {
        std::vector<std::string> lines = m_menu.TakeCalls();
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("CreateMenuHandle"); });
        return lines;
    }

    KeepingManipulators m_keeping;
    TestMenu m_menu;
};
