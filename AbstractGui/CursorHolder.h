#pragma once

#include "arbor_qml_support_export.h"

#include <QtGlobal>
#include <qnamespace.h>

namespace Support {

/// Shows a cursor over all windows of the application for the time of a scope.
///
///     {
///         const Support::CursorHolder cross(Qt::CrossCursor);
///         PickColour();
///     }
///
/// Holders may be nested: the end of each brings back the cursor below it, so they end in reverse order, as
/// scopes do. GUI thread only.
class ARBOR_QML_SUPPORT_EXPORT CursorHolder
{
public:
    explicit CursorHolder(Qt::CursorShape shape);
    ~CursorHolder();
    Q_DISABLE_COPY_MOVE(CursorHolder)
};

}
