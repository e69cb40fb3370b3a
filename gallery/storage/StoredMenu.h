#pragma once

#include "gallery/keys/OwnKeys.h"
#include "system/CVqVariant.h"

#include <optional>

namespace Gallery {

/// What is kept of the menus between two runs.
struct StoredMenu
{
    QString factory;         ///< MenuDocument::fingerprint of the factory menu that it came from.
    QString language;        ///< Of its labels, such as "de".
    CVqVariant menu;         ///< As CVqAbstractMenu::Save() writes it.
    QList<OwnKeys> own_keys; ///< They outlive a change of the factory menu.
};

/// The tree in which `stored` is written.
CVqVariant ToTree(const StoredMenu& stored);

/// None when `tree` holds no such thing, or one of another format.
std::optional<StoredMenu> FromTree(const CVqVariant& tree);

}
