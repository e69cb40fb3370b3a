#pragma once

// QML: MenuPressGuard. Functions watch(item), unwatch(item); signal pressedOutside(). Used by MenuBar.qml and
// ContextMenu.qml.

#include "arbor_quick_backend_export.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

#include <vector>

/// Notices when the user turns away from an open menu: a press beside all of its parts, or the window losing
/// the focus or going away.
///
/// The press is eaten, so that a click which puts a menu away does not paint a dot. Watches only while it has
/// at least one item.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickPressGuard : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MenuPressGuard)

public:
    explicit CVqQuickPressGuard(QObject* parent = nullptr);
    ~CVqQuickPressGuard() override;

    /// A part of the menu; the window of the first one is watched. Not owned. Null and repetitions are
    /// ignored.
    Q_INVOKABLE void watch(QQuickItem* item);
    Q_INVOKABLE void unwatch(QQuickItem* item);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void pressedOutside();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT bool IsInside(const QPointF& scene_position) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void Forget(const QQuickItem* item);
    ARBOR_QUICK_BACKEND_NO_EXPORT void FollowWindow();

    std::vector<QPointer<QQuickItem>> m_items;
    QPointer<QQuickWindow> m_window;
};
