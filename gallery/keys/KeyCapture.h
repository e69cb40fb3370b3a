#pragma once

#include <QQuickItem>

namespace Gallery {

/// Takes the next key that is pressed while it has the focus, whatever that key does elsewhere.
///
/// Esc alone cancels. Tab and Shift+Tab lead on, as everywhere; with Ctrl or Alt they are keys like any
/// other.
class KeyCapture : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QString held READ Held NOTIFY HeldChanged)

public:
    explicit KeyCapture(QQuickItem* parent = nullptr);

    /// The modifiers that are down, as in "Ctrl+Shift+", in the user's language; empty for none.
    const QString& Held() const { return m_held; }

    bool event(QEvent* event) override;

Q_SIGNALS:
    /// A key with its modifiers, as VqVirtualKey() tells them.
    void pressed(uint flags, uint key);

    /// Esc, or the focus went elsewhere.
    void canceled();

    /// A key that menus do not know, such as one that turns the volume up.
    void unknownPressed();

    void HeldChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void set_held(Qt::KeyboardModifiers modifiers);

    QString m_held;
};

}
