#pragma once

// QML: MenuPressGuard, a WindowGuard with the signal pressedOutside(). Used by MenuBar.qml and
// ContextMenu.qml.

#include "quick_backend/CVqQuickWindowGuard.h"

/// Notices when the user turns away from an open menu: leaves its window, or presses beside all of its parts.
///
/// The press is eaten, so that a click which puts a menu away does not paint a dot.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickPressGuard : public CVqQuickWindowGuard
{
    Q_OBJECT
    QML_NAMED_ELEMENT(MenuPressGuard)

public:
    explicit CVqQuickPressGuard(QObject* parent = nullptr);
    ~CVqQuickPressGuard() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void pressedOutside();
};
