#pragma once

#include "gallery/menu/MenuEntry.h"

#include <QHash>

class CVqAbstractMenu;

namespace Gallery {

/// The keys of one entry, where they are not those of the factory menu.
struct OwnKeys
{
    vq_uint32 id = 0;
    QString command;     ///< What the entry is found by in a factory menu with other identifiers.
    QList<MenuKey> keys; ///< All keys of the entry; none when the user took the last one away.

    bool operator==(const OwnKeys&) const = default;
};

/// The keys that `document` gives to each entry, and to each command without one.
QHash<vq_uint32, QList<MenuKey>> FactoryKeys(const MenuDocument& document);

/// Whether both lists hold the same keys, in any order.
bool HasSameKeys(const QList<MenuKey>& left, const QList<MenuKey>& right);

/// What `menu`, which was built from `document`, has in other keys; in the order of the document.
QList<OwnKeys> OwnKeysOf(CVqAbstractMenu& menu, const MenuDocument& document);

/// Gives `own` to `menu`, which was built from `document`, a newer factory menu perhaps: a command that is
/// gone is passed over, and of two commands with one key the user's own has it.
void GiveOwnKeys(CVqAbstractMenu& menu, const MenuDocument& document, const QList<OwnKeys>& own);

}
