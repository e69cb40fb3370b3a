#pragma once

#include <QString>
#include <QVariant>

class CVqMenuItem;
class CVqQuickMenuItem;
class IVqQuickMenuKeys;

/// Neither removed nor deleted.
bool VqIsShown(const CVqMenuItem& item);

/// Disabled or grayed.
bool VqIsGrayed(const CVqMenuItem& item);

/// Whether a key or a click may run the item, see CVqQuickMenu::CanFire().
bool VqCanFire(const CVqMenuItem& item);

/// The text of the item without marks and key text.
QString VqMenuRowLabel(const CVqMenuItem& item);

/// All keys of the item; failing these, what stands behind a TAB in its text. `keys` may be null.
QString VqMenuRowKeyText(const CVqMenuItem& item, const IVqQuickMenuKeys* keys);

/// What a row shows of `item` under `role`, one of CVqQuickMenuRows::Role or Qt::DisplayRole; invalid for
/// others. `keys` tells the key texts and may be null.
QVariant VqMenuRowData(const CVqQuickMenuItem& item, int role, const IVqQuickMenuKeys* keys);
