#pragma once

#include <QPointF>
#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

namespace Gallery {

class Session;

/// Something to do with the mouse, on what is named.
///
/// A name is that of a toolbar and a control, "main/EditUndo", or the object name of an item. Behind it may
/// stand how far to the right, in hundredths of the width: "tools/Tool(crop):90"; without it the middle.
struct MouseStep
{
    enum class Kind
    {
        Click,
        RightClick,
        Drag,
    };

    QString name; ///< As it was written.
    Kind kind = Kind::Click;
    QString from;
    QString to; ///< Of a drag.
};

/// Reads "@click NAME", "@right NAME" or "@drag NAME NAME". None for anything else.
std::optional<MouseStep> ParseMouseStep(const QString& text);

/// Where `name` lies in `window`, in logical pixels; none for what does not show.
std::optional<QPointF> PlaceOf(const Session& session, const QQuickWindow& window, const QString& name);

/// Sends the events of `step` to `window`, as the platform does. False: what it names does not show.
bool SendMouseStep(const MouseStep& step, const Session& session, QQuickWindow& window);

}
