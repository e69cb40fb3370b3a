#include "quick_backend/CVqQuickWindowGuard.h"

#include <QEvent>
#include <QQuickWindow>

#include <algorithm>

CVqQuickWindowGuard::CVqQuickWindowGuard(QObject* parent) : QObject(parent) { }

CVqQuickWindowGuard::~CVqQuickWindowGuard() = default;

void CVqQuickWindowGuard::watch(QQuickItem* item)
{
    if (!item || std::find(m_items.begin(), m_items.end(), item) != m_items.end())
        return;
    Forget(nullptr);
    m_items.emplace_back(item);
    FollowWindow();
}

void CVqQuickWindowGuard::unwatch(QQuickItem* item)
{
    Forget(item);
    FollowWindow();
}

// And those that died.
void CVqQuickWindowGuard::Forget(const QQuickItem* item)
{
    std::erase_if(m_items,
                  [item](const QPointer<QQuickItem>& watched) { return !watched || watched == item; });
}

void CVqQuickWindowGuard::FollowWindow()
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

bool CVqQuickWindowGuard::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide || event->type() == QEvent::Close)
        Q_EMIT windowLeft();
    return false;
}

bool CVqQuickWindowGuard::IsInside(const QPointF& scene_position) const
{
    return std::any_of(m_items.begin(), m_items.end(), [&](const QPointer<QQuickItem>& item) {
        return item && item->isVisible() && item->contains(item->mapFromScene(scene_position));
    });
}
