#pragma once

#include <QStringList>

class CVqAbstractMenu;

namespace Gallery {

/// The keys that the demonstration presses: keys of commands, keys that no text carries, a key without an
/// entry, one without a command, and mnemonics on one, two and three levels.
QStringList TourKeys(CVqAbstractMenu& menu);

}
