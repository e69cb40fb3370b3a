#pragma once

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "system/CVqVariant.h"

class CVqQuickControl;
class QQuickItem;

/// What a toolbar is to be set up with. Lives for the time of the signal that hands it on; owns nothing but
/// the record.
struct SVqToolbarSetupRequest
{
    QQuickItem* m_parent = nullptr;     ///< In whose window the dialog opens; null for the toolbar's own.
    CVqVariant m_factory;               ///< What a reset goes back to; empty for what the toolbar holds now.
    CVqQuickControl* m_first = nullptr; ///< The control to begin at, or null.
    bool m_commands = false;            ///< Whether commands of the menu may be added.

    /// Null, or asked for the text of each command, by its identifier and without a window, before it is
    /// offered; false leaves it out.
    CVqAbstractButtonToolbar::setup_callback_type m_callback = nullptr;
};
