#include "quick_backend/CVqQuickPressGuard.h"

#include <QMouseEvent>
#include <QQuickWindow>
#include <QTouchEvent>

#include <algorithm>

namespace {

bool IsPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
        || type == QEvent::TouchBegin;
}

QPointF ScenePosition(const QEvent& event)
{
    const auto& pointer = static_cast<const QPointerEvent&>(event);
    return pointer.points().isEmpty() ? QPointF() : pointer.points().constFirst().scenePosition();
}

}

CVqQuickPressGuard::CVqQuickPressGuard(QObject* parent) : QObject(parent) { }

CVqQuickPressGuard::~CVqQuickPressGuard() = default;

void CVqQuickPressGuard::watch(QQuickItem* item)
{
    if (!item || std::find(m_items.begin(), m_items.end(), item) != m_items.end())
        return;
    Forget(nullptr);
    m_items.emplace_back(item);
    FollowWindow();
}

void CVqQuickPressGuard::unwatch(QQuickItem* item)
{
    Forget(item);
    FollowWindow();
}

// And those that died.
void CVqQuickPressGuard::Forget(const QQuickItem* item)
{
    std::erase_if(m_items,
                  [item](const QPointer<QQuickItem>& watched) { return !watched || watched == item; });
}

void CVqQuickPressGuard::FollowWindow()
{
    QQuickWindow* window = m_items.empty() ? nullptr : m_items.front()->window();
    if (window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
}

bool CVqQuickPressGuard::eventFilter(QObject*, QEvent* event)
{
    const bool leaves = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide
        || event->type() == QEvent::Close;
    const bool press = IsPress(event->type());
    if (!leaves && (!press || IsInside(ScenePosition(*event))))
        return false;
    Q_EMIT pressedOutside();
    return press;
}

bool CVqQuickPressGuard::IsInside(const QPointF& scene_position) const
{
    return std::any_of(m_items.begin(), m_items.end(), [&](const QPointer<QQuickItem>& item) {
        return item && item->isVisible() && item->contains(item->mapFromScene(scene_position));
    });
}
