#pragma once

#include <QCursor>
#include <QGuiApplication>

#include <optional>

/// The cursor that is shown over all windows, or nothing while each shows its own.
inline std::optional<Qt::CursorShape> OverrideShape()
{
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor ? std::optional(cursor->shape()) : std::nullopt;
}
