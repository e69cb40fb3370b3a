#pragma once

#include "AbstractGui/CVqAbstractMenu.h"
#include "fuzz/MadeUpRecords.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <set>
#include <vector>

inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Keeps the pointers of all items that it was told of, as native menus do, and owns those that hang nowhere.
class KeepingMenuBase final : public IVqMenuBase
{
public:
    IVqMenuBase* Duplicate() override { return nullptr; }
    int EnterMenu(vq_wchar) override { return 0; }
    vq_uint64 CreateMenuHandle() override { return ++m_last_handle; }

    int InsertItem(CVqMenuItem* parent, CVqMenuItem*, CVqMenuItem* item) override
    {
        if (!parent || item->parentItem() != parent) {
            m_orphans.emplace_back(item);
            return -6;
        }
        m_items.insert(item);
        return 0;
    }

    void DestroyItem(CVqMenuItem* item) override { m_items.erase(item); }
    void UpdateItemText(CVqMenuItem* item) override { m_shown = item->text(); }
    void UpdateItemState(CVqMenuItem* item) override { m_status = item->status(); }

    const std::set<const CVqMenuItem*>& Items() const { return m_items; }

private:
    std::set<const CVqMenuItem*> m_items;
    std::vector<std::unique_ptr<CVqMenuItem>> m_orphans;
    CVqStringW m_shown;
    vq_uint32 m_status = 0;
    vq_uint64 m_last_handle = 0;
};

/// A menu that holds something before anything is loaded.
class FuzzedMenu : public CVqAbstractMenu
{
public:
    FuzzedMenu()
    {
        m_pRoot = CVqAbstractMenu::Manipulators().create_item_mainroot(0);
        m_pMenuBase = new KeepingMenuBase;
        AppendPopup(1, 0, VQ_TEXT("&Old"));
        AppendMenuItem(2, 1, VQ_TEXT("&One\aCtrl+A"), VQ_TEXT("one"), 0);
        AppendLonelyAccel(3, 16, 112, VQ_TEXT("help"));
    }

    /// What the back end keeps is alive: in the tree.
    void RequireThatNativeItemsLive()
    {
        const auto& kept = static_cast<KeepingMenuBase*>(m_pMenuBase)->Items();
        std::set<const CVqMenuItem*> alive;
        collect(m_pRoot, alive);
        require(std::includes(alive.begin(), alive.end(), kept.begin(), kept.end()));
    }

    /// Items with the same identifier are saved with all keys of it.
    bool IsSavedInShortTime() const
    {
        std::set<const CVqMenuItem*> items;
        collect(m_pRoot, items);
        collect(m_pLonelyAccels, items);
        return items.size() * m_accels.GetAccelsCount() < 100'000;
    }

    /// Deletes an item whose identifier no other item has: of several the menu would forget all but one.
    void DeleteIfUnique(vq_uint32 id)
    {
        std::set<const CVqMenuItem*> items;
        collect(m_pRoot, items);
        if (std::count_if(items.begin(), items.end(), [id](const auto* item) { return item->id() == id; })
            == 1)
            DeleteId(id);
    }

    vq_uint32 SomeId(std::size_t number) const
    {
        const CVqMenuItem* item = m_pRoot->subItem();
        for (; item && number > 0; --number)
            item = item->subItem() ? item->subItem() : item->nextItem();
        return item ? item->id() : 0;
    }

private:
    static void collect(const CVqMenuItem* item, std::set<const CVqMenuItem*>& items)
    {
        for (; item; item = item->nextItem()) {
            items.insert(item);
            collect(item->subItem(), items);
        }
    }
};

/// The menu goes on working, whatever was loaded.
inline void drive(FuzzedMenu& menu, vq_uint32 new_id, ByteSource bytes)
{
    vq_uint64 target = 0;
    vq_uint32 id = 0;
    CVqStringW text;
    menu.AppendPopup(new_id, 0, VQ_TEXT("&New"));
    menu.AppendMenuItem(new_id + 1, new_id, VQ_TEXT("&Two\aCtrl+Alt+F24"), VQ_TEXT("two"), 0);
    menu.Translate(135, 3, target, id);
    menu.Translate(vq_wchar(bytes.Byte()), bytes.Byte(), target, id);
    menu.GetIdMenuString(menu.SomeId(bytes.Byte()), text);
    menu.InsertMenuItemAfter(new_id + 2, new_id, new_id + 1, VQ_TEXT("Three"), VQ_TEXT("three"));
    menu.AppendIdAccelKey(menu.SomeId(bytes.Byte()), 18, vq_wchar('B'), false);
    menu.UpdateMnemonics(0, true);
    menu.DeleteIfUnique(menu.SomeId(bytes.Byte()));
    menu.RequireThatNativeItemsLive();
}

/// The bytes as a stored menu, or else as choices of fields that one may have.
template <class Records>
int load_fuzzed_menu(const unsigned char* data, std::size_t size)
{
    typename Records::Container stored;
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char*>(data), static_cast<int>(size));
    buffer.open(QIODevice::ReadOnly);
    if (VQ_ReadCbor(buffer, stored) != EVqStorageResult::Ok)
        stored = made_up_records<Records>(ByteSource(data, size));

    FuzzedMenu menu;
    menu.Load(stored);
    menu.RequireThatNativeItemsLive();
    drive(menu, 0x10000000, ByteSource(data, size));
    if (!menu.IsSavedInShortTime())
        return 0;
    typename Records::Container again;
    menu.Save(again);
    menu.Load(again);
    drive(menu, 0x20000000, ByteSource(data + size / 2, size - size / 2));
    return 0;
}
