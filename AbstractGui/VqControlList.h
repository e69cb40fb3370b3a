#pragma once

#include "system/CVqList.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class IVqUIcontrol;

// The controls in the list of a toolbar. A debug build remembers which living objects a list holds: a control
// that somebody else deleted meanwhile is then told by an assertion where the toolbar meets it, and not by a
// crash somewhere else. Only controls that are QObjects are remembered.

/// `list` holds `control` from now on.
void VqHoldControl(const CVqList& list, IVqUIcontrol& control);

/// `list` no longer holds `control`; null and one that is not held are no error.
void VqReleaseControl(const CVqList& list, const IVqUIcontrol* control);

/// Asserts that a control that `list` holds is still alive. Null and one that is not held are no error.
void VqCheckControl(const CVqList& list, const IVqUIcontrol* control);

/// The control of a node, checked as above; null for a null node and for one without a control.
IVqUIcontrol* VqControlAt(const CVqList& list, const CVqList::CVqNode* node);

/// The text that an identifier is the address of; null for 0.
const vq_wchar* VqControlName(vq_uint64 id);

/// True when the control says that it is a separator, without a failure.
bool VqIsSeparator(IVqUIcontrol& control);
