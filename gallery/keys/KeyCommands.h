#pragma once

#include "gallery/menu/MenuEntry.h"

#include <QStringList>

class CVqQuickMenu;

namespace Gallery {

/// A command that can have keys, as people see it.
struct KeyCommand
{
    QString command; ///< Such as "ViewZoom(200)".
    QString label;   ///< As the menu shows it; the command where it has neither entry nor text.
    QString place;   ///< The popups that lead to its first entry, "File › Export"; empty without an entry.
    QList<vq_uint32> ids; ///< Its entries, then its keys without an entry. New keys go to the first one.
};

/// The commands of `menu`, which was built from `document`, each once, in the order of the document.
QList<KeyCommand> ListKeyCommands(CVqQuickMenu& menu, const MenuDocument& document);

}
