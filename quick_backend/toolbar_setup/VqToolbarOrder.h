#pragma once

#include <QString>

#include <vector>

class CVqQuickButtonToolbar;
class CVqQuickControl;

// The order of the controls of a bar, changed without deleting any of them. Controls that Qt Quick does not
// draw are passed over.

/// The controls in order, those in the picker too, but not the picker.
std::vector<CVqQuickControl*> VqControlsOf(CVqQuickButtonToolbar& bar);

/// Whether the bar holds `control`, which may be null.
bool VqHolds(CVqQuickButtonToolbar& bar, const CVqQuickControl* control);

/// The control behind `control`, or null.
CVqQuickControl* VqNextOf(CVqQuickButtonToolbar& bar, const CVqQuickControl& control);

/// Takes `control` out; the caller owns it then. False when the bar does not hold it.
bool VqTakeOut(CVqQuickButtonToolbar& bar, CVqQuickControl& control);

/// Puts `control`, which no bar holds, in front of `before`, or at the end when that is null. The bar owns it
/// then. False, with the control still the caller's, when the bar refuses it or does not hold `before`.
bool VqPutIn(CVqQuickButtonToolbar& bar, CVqQuickControl& control, CVqQuickControl* before);

/// Renames a control that no bar holds.
void VqRename(CVqQuickControl& control, const QString& name);

/// `wanted`, or with a number behind it, so that no control of the bar has that name and no stored record
/// takes it for something else. Long names are cut.
QString VqFreeName(CVqQuickButtonToolbar& bar, const QString& wanted);
