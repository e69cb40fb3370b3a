#include "gallery/keys/MenuKeys.h"

#include "AbstractGui/CVqAbstractMenu.h"

namespace Gallery {

namespace {

constexpr vq_wchar g_bel = 7;

/// The tables of a menu, taken out of it while this lives.
class TablesInHand
{
public:
    explicit TablesInHand(CVqAbstractMenu& menu) : m_menu(menu) { m_menu.SwapAccels(m_main, m_second); }
    ~TablesInHand() { m_menu.SwapAccels(m_main, m_second); }

    TablesInHand(const TablesInHand&) = delete;
    TablesInHand& operator=(const TablesInHand&) = delete;

    CVqAccelerators& Main() { return m_main; }

private:
    CVqAbstractMenu& m_menu;
    CVqAccelerators m_main;
    CVqAccelerators m_second;
};

}

QHash<vq_uint32, QList<MenuKey>> MenuKeys::All() const
{
    CVqAccelerators table;
    m_menu.CopyAccelsTo(table);
    QHash<vq_uint32, QList<MenuKey>> all;
    for (vq_uint32 i = 0; i < table.GetAccelsCount(); ++i) {
        MenuKey key;
        table.GetAccelKeyByIndex(i, &key.flags, &key.key);
        all[table.GetAccelIdByIndex(i)] << key;
    }
    return all;
}

vq_uint32 MenuKeys::HolderOf(const MenuKey& key) const
{
    vq_uint64 target = 0;
    vq_uint32 id = 0;
    m_menu.Translate(key.key, key.flags & ~vq_accel_virtual_key, target, id);
    return id;
}

void MenuKeys::Set(vq_uint32 id, const QList<MenuKey>& keys)
{
    {
        TablesInHand tables(m_menu);
        tables.Main().RemoveAccelKey(id);
        for (const MenuKey& key : keys)
            tables.Main().AddAccelKey(id, key.flags | vq_accel_virtual_key, key.key, 0);
    }
    refresh_label(id);
}

void MenuKeys::Take(const MenuKey& key)
{
    const QHash<vq_uint32, QList<MenuKey>> all = All();
    for (auto holder = all.begin(); holder != all.end(); ++holder) {
        QList<MenuKey> left = holder.value();
        if (left.removeAll(key) > 0)
            Set(holder.key(), left);
    }
}

// A text without a BEL gets the first key of the table.
void MenuKeys::refresh_label(vq_uint32 id)
{
    CVqStringW label;
    if (m_menu.GetIdMenuString(id, label) != 0)
        return;
    const int bel = label.Find(g_bel);
    if (bel >= 0)
        label.TruncateAt(bel);
    m_menu.SetIdMenuString(id, label);
}

}
