#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "tests/AbstractGui/StoredMenus.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>

/// Makes items with a past, and no item at all for chosen calls.
class OddAllocator final : public CVqAbstractMenu::SVqManipulators
{
public:
    CVqMenuItem* allocMenuItem() override
    {
        if (++m_calls == m_failing_call)
            return nullptr;
        CVqMenuItem* item = CVqAbstractMenu::SVqManipulators::allocMenuItem();
        item->setAccelerators(&m_other_table);
        item->setMenu(77);
        item->setSubItem(&m_other_item);
        item->setUserParam(this);
        item->setNextItem(&m_other_item);
        item->setText(VQ_TEXT("past"));
        item->setRemoved(true);
        item->setDeleted(true);
        item->setLineWidth(7);
        item->setCol1(8);
        item->setCol2(9);
        return item;
    }

    void freeMenuItem(CVqMenuItem* item) override
    {
        m_freed += item != nullptr;
        CVqAbstractMenu::SVqManipulators::freeMenuItem(item);
    }

    int m_failing_call = 0; // counted from 1
    int m_calls = 0;
    int m_freed = 0;
    CVqAccelerators m_other_table;
    CVqMenuItem m_other_item;
};

/// What every test of both forms needs: an item to save, a table, a parent to load into.
template <class Form>
class MenuRecordFixture : public testing::Test
{
protected:
    ~MenuRecordFixture() override
    {
        m_tools.free_all(m_parent.subItem());
        m_tools.free_all(m_head);
    }

    /// The first record that is saved of a single item.
    std::string saved(CVqAccelerators* table)
    {
        const auto container = Form::Filled([&](auto& out) { m_tools.save_to_variant(table, &m_item, out); });
        return Form::Show(container);
    }

    std::string saved() { return saved(&m_table); }

    std::string saved_accel()
    {
        const auto container
            = Form::Filled([&](auto& out) { m_tools.save_accels_to_variant(&m_table, &m_item, out); });
        return Form::Show(container);
    }

    int load_into(CVqMenuItem* parent, CVqAccelerators* table, const Stored::Children& records,
                  CVqAbstractMenu::SVqManipulators& tools = CVqAbstractMenu::SVqManipulators::Instance())
    {
        auto container = Form::Make(records);
        return tools.load_from_variant(table, parent, container);
    }

    /// Loads one record and gives its item.
    CVqMenuItem& loaded(Stored::Children fields)
    {
        load_into(&m_parent, &m_table, {StoredRecord(std::move(fields))});
        return *m_parent.subItem();
    }

    int load_accels(const Stored::Children& records, CVqAccelerators* table,
                    CVqAbstractMenu::SVqManipulators& tools = CVqAbstractMenu::SVqManipulators::Instance())
    {
        auto container = Form::Make(records);
        return tools.load_accels_from_variant(table, &m_head, container);
    }

    CVqAbstractMenu::SVqManipulators& m_tools = CVqAbstractMenu::SVqManipulators::Instance();
    CVqMenuItem m_item;
    CVqMenuItem m_parent;
    CVqAccelerators m_table;
    CVqMenuItem* m_head = nullptr; // of lonely accelerators
};

inline std::string text_of(const CVqMenuItem& item)
{
    return TestMenu::Plain(item.text());
}
