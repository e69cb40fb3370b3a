#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqText.h"

// The process-wide store of hidden menu commands. It says which commands do not show in the menus of which
// owner; menus built later read it (CVqAbstractMenu::SVqManipulators::remove_hidden). GUI thread only.
//
// Commands that differ only in their arguments are one: what counts is the text up to the first '(' or
// ';', without a '_' in first position. In what is left, and in the owner's name, a blank counts as '_'.

/// Hides `command` for the owner `name`, or shows it again. An unknown command is added to the store, with
/// false too, and stays there.
///
/// With a null `command`, sets all commands of this owner that the store already holds and adds none. A
/// name with a blank reaches none of them: the stored keys have '_' in its place (held by the test
/// NullCommandDoesNotReachAnOwnerWithABlank).
///
/// 0: done. -9: `name` is null.
ARBOR_QML_SUPPORT_EXPORT int VQ_SetMenuCommandAsHidden(const vq_wchar* name, const vq_wchar* command,
                                                       bool hidden);

/// Tells if `command` is hidden for the owner `name`; false for what the store does not hold. A null name
/// or command reads as the empty text.
ARBOR_QML_SUPPORT_EXPORT bool VQ_IsMenuCommandSetAsHidden(const vq_wchar* name, const vq_wchar* command);
