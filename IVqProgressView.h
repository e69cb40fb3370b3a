#pragma once

#include "arbor_qml_support_export.h"

class CVqStringW;

/// What displays a progress: a QmlSupport::CVqDelayedProgressWndBase owns it, and calls it on the thread on
/// which its own operations are called.
class ARBOR_QML_SUPPORT_EXPORT IVqProgressView
{
public:
    /// Steps done. May go back, and may pass the range, of which the view is not told.
    virtual void SetPos(unsigned int position) = 0;

    /// Replaces the text beside the bar; the empty text clears it.
    virtual void SetLabel(const CVqStringW& label) = 0;

    /// Replaces the title of the window.
    virtual void SetTitle(const CVqStringW& title) = 0;

    /// Lets the window live while the work keeps the thread.
    virtual void ProcessEvents() = 0;

    virtual ~IVqProgressView();
};
