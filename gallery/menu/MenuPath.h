#pragma once

#include "system/VqTypes.h"

#include <QString>
#include <QStringList>

class CVqAbstractMenu;

namespace Gallery {

/// The keys that reach the first entry with `command` from the menu bar by mnemonics alone: "Alt+F" opens the
/// first popup, then a letter for each step. Empty when there is no such entry in the bar, or a step on the
/// way has no mnemonic.
QStringList MnemonicKeys(CVqAbstractMenu& menu, const QString& command);

/// The keys that open the popup of the first entry with `command`, whether or not the entry has a mnemonic.
QStringList PopupKeys(CVqAbstractMenu& menu, const QString& command);

/// The letters that open the popup of the first entry with `command` in a context menu, once that menu is
/// open. Empty when it stands in the context menu itself.
QStringList ContextKeys(CVqAbstractMenu& menu, const QString& command);

/// The label of `id` as people read it: without marks and without key. Empty for an unknown entry.
QString PlainLabel(CVqAbstractMenu& menu, vq_uint32 id);

}
