#pragma once

#include <QPointF>

/// What happened to a control, or what somebody asks it for. Lives for the time of the call that hands it on.
struct SVqUiEvent
{
    enum class EKind
    {
        Triggered,   ///< Clicked, or picked by Space or Enter.
        DropDown,    ///< The arrow of a drop-down button was pressed.
        ContextMenu, ///< The right button or the key for context menus.
        Drag,        ///< The control is to be dragged.
    };

    EKind m_kind = EKind::Triggered;

    /// Where it happened, in logical pixels of the window.
    QPointF m_place;
};
