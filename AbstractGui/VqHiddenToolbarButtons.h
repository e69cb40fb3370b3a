#pragma once

#include "AbstractGui/SVqToolbarButtonHiddenCallback.h"
#include "arbor_qml_support_export.h"
#include "system/VqText.h"

// The process-wide stores of hidden toolbar buttons, by name of toolbar and button, independent of any live
// toolbar: a setting may stand before the toolbar does. GUI thread only.
//
// There are two: the user's own (personal) and the one of the application or its administrator (system). A
// toolbar of which there are several instances carries a suffix such as "#2" in its name. The personal
// setting is looked up without it, so the instances share the setting that stands under the plain name; the
// system setting is looked up under the name as it is.

/// Hides `button` of `toolbar` in one of the stores, or shows it again, and tells the observers. An unknown
/// button is added to the store, with false too, and stays there.
///
/// With a null `button`, sets all buttons of this toolbar that the store already holds and adds none.
///
/// 0: done. -9: `toolbar` is null, and nobody is told.
ARBOR_QML_SUPPORT_EXPORT int VQ_SetToolbarButtonAsHidden(const vq_wchar* toolbar, const vq_wchar* button,
                                                         bool hidden, bool system);

/// True if the system store hides `button` of `toolbar`, or else if the personal store does, where `toolbar`
/// counts up to its first '#'. A null `toolbar` or `button` reads as the empty text.
ARBOR_QML_SUPPORT_EXPORT bool VQ_IsToolbarButtonSetAsHidden(const vq_wchar* toolbar, const vq_wchar* button);

/// Adds `observer` behind the others, unless it is there already. It is not owned: take it away before it
/// dies. A null pointer is kept and skipped. Not to be called from within an observer.
ARBOR_QML_SUPPORT_EXPORT void VQ_SetToolbarButtonAsHiddenCallback(SVqToolbarButtonHiddenCallback* observer);

/// Takes `observer` away; one that is not there is no error. Not to be called from within an observer.
ARBOR_QML_SUPPORT_EXPORT void VQ_RemoveToolbarButtonAsHiddenCallback(
    SVqToolbarButtonHiddenCallback* observer);
