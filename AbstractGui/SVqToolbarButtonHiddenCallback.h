#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqText.h"

/// Is told of each change of the hidden toolbar buttons; see VQ_SetToolbarButtonAsHiddenCallback(). The
/// library never deletes an observer.
class ARBOR_QML_SUPPORT_EXPORT SVqToolbarButtonHiddenCallback
{
public:
    /// The four values are those of the call that changed the store; `button` is null where all stored
    /// buttons of `toolbar` were set. The result is not looked at. Must not throw.
    virtual int ButtonHiddenChanged(const vq_wchar* toolbar, const vq_wchar* button, bool hidden, bool system)
        = 0;

    /// Stands behind the operation, whose place in the table is the first.
    virtual ~SVqToolbarButtonHiddenCallback();
};
