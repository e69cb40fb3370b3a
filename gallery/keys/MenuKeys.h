#pragma once

#include "gallery/menu/MenuEntry.h"

#include <QHash>

class CVqAbstractMenu;

namespace Gallery {

/// Changes the keys of a menu with the care that it takes: no key goes through text, nobody loses a key that
/// was not asked for, and labels follow.
///
/// All keys live in the main table. It is the one that is stored with the menu, and the only one that a key
/// of the factory menu can be taken out of; the second table stays empty.
class MenuKeys
{
public:
    /// `menu` must outlive this.
    explicit MenuKeys(CVqAbstractMenu& menu) : m_menu(menu) { }

    /// The keys of each identifier that has any, in the order of the table. Entries and keys without an entry
    /// alike.
    QHash<vq_uint32, QList<MenuKey>> All() const;

    /// The identifier that `key` fires, 0 for none.
    vq_uint32 HolderOf(const MenuKey& key) const;

    /// Replaces the keys of `id`. Keys that others hold have to be taken from them before: of two holders the
    /// older one fires.
    void Set(vq_uint32 id, const QList<MenuKey>& keys);

    /// Takes `key` from all that hold it; their other keys stay.
    void Take(const MenuKey& key);

private:
    void refresh_label(vq_uint32 id);

    CVqAbstractMenu& m_menu;
};

}
