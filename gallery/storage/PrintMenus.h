#pragma once

#include "gallery/menu/MenuEntry.h"
#include "gallery/storage/MenuHome.h"

#include <QString>
#include <QStringList>

namespace Gallery {

/// What became of printing.
struct PrintedMenus
{
    QString text;  ///< Readable JSON; empty when there is none.
    QString error; ///< One sentence; empty after a success.
};

/// The stored menus, or toolbars, in the file `name` as readable JSON. A menu or toolbar that an application
/// stored by itself is taken too, in either form.
PrintedMenus PrintMenus(const QString& name);

/// A line for each command that has keys, as its row of the menu shows them: "1016 FileSaveAs: Ctrl+Shift+S".
/// The menu is that of `home`, which stays as it is, or else `document`; `notice` says why, where that is the
/// folder's fault. Needs an application object.
QStringList PrintKeys(const MenuDocument& document, MenuHome home, QString& notice);

}
