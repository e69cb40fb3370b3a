#pragma once

// QML: WindowGuard. Functions watch(item), unwatch(item); signal windowLeft(). Used by ToolbarSession.qml and
// ToolbarMenu.qml, and through MenuPressGuard by MenuBar.qml and ContextMenu.qml.

#include "arbor_quick_backend_export.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

#include <vector>

/// Notices when the user leaves the window over which a menu, a popup or a tooltip is open: it loses the
/// focus or goes away. Tells it before the window gives its own focus up, so that what closes can still give
/// the keyboard back.
///
/// Watches only while it has at least one item. GUI thread only.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickWindowGuard : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(WindowGuard)

public:
    explicit CVqQuickWindowGuard(QObject* parent = nullptr);
    ~CVqQuickWindowGuard() override;

    /// A part of what is open; the window of the first one is watched. Not owned. Null and repetitions are
    /// ignored.
    Q_INVOKABLE void watch(QQuickItem* item);
    Q_INVOKABLE void unwatch(QQuickItem* item);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void windowLeft();

protected:
    /// Whether a place of the window lies in one of the items that show.
    ARBOR_QUICK_BACKEND_NO_EXPORT bool IsInside(const QPointF& scene_position) const;

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void Forget(const QQuickItem* item);
    ARBOR_QUICK_BACKEND_NO_EXPORT void FollowWindow();

    std::vector<QPointer<QQuickItem>> m_items;
    QPointer<QQuickWindow> m_window;
};
