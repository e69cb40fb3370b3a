#include "quick_backend/CVqQuickPressGuard.h"

#include <QMouseEvent>
#include <QTouchEvent>

namespace {

bool is_press(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
        || type == QEvent::TouchBegin;
}

QPointF scene_position(const QEvent& event)
{
    const auto& pointer = static_cast<const QPointerEvent&>(event);
    return pointer.points().isEmpty() ? QPointF() : pointer.points().constFirst().scenePosition();
}

}

CVqQuickPressGuard::CVqQuickPressGuard(QObject* parent) : CVqQuickWindowGuard(parent) { }

CVqQuickPressGuard::~CVqQuickPressGuard() = default;

bool CVqQuickPressGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (!is_press(event->type()))
        return CVqQuickWindowGuard::eventFilter(watched, event);
    if (IsInside(scene_position(*event)))
        return false;
    Q_EMIT pressedOutside();
    return true;
}
