#include "gallery/keys/KeyCapture.h"

#include "gallery/menu/KeyText.h"
#include "quick_backend/VqVirtualKeys.h"

#include <QKeyEvent>

namespace Gallery {

namespace {

constexpr auto g_commanding = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

Qt::KeyboardModifier modifier_of(int key)
{
    switch (key) {
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

/// A key that only changes what others mean.
bool is_modifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr
        || (key >= Qt::Key_Super_L && key <= Qt::Key_Hyper_R);
}

bool leads_on(const QKeyEvent& event)
{
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        && !(event.modifiers() & g_commanding);
}

bool cancels(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Escape && event.modifiers() == Qt::NoModifier;
}

/// The modifiers in front of a key, taken from how a letter behind them is printed.
QString text_of(Qt::KeyboardModifiers modifiers)
{
    const vq_uint32 flags = (modifiers & Qt::AltModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0)
        | (modifiers & Qt::ShiftModifier ? 4 : 0);
    return PrintKey({flags, 'X'}).chopped(1);
}

}

KeyCapture::KeyCapture(QQuickItem* parent) : QQuickItem(parent)
{
    setActiveFocusOnTab(true); // or Tab would not lead on
}

bool KeyCapture::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QQuickItem::event(event);
    event->accept(); // menus and shortcuts stay out of it
    return true;
}

void KeyCapture::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(!leads_on(*event));
    if (!event->isAccepted() || event->isAutoRepeat())
        return;
    set_held(event->modifiers() | modifier_of(event->key()));
    if (cancels(*event)) {
        Q_EMIT canceled();
        return;
    }
    const SVqKeyPress press = VqVirtualKey(*event, VqPlatformKeyCodes());
    if (press.key != 0)
        Q_EMIT pressed(press.flags, press.key);
    else if (!is_modifier(event->key()))
        Q_EMIT unknownPressed();
}

void KeyCapture::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
    set_held(event->modifiers() & ~Qt::KeyboardModifiers(modifier_of(event->key())));
}

void KeyCapture::focusOutEvent(QFocusEvent* event)
{
    QQuickItem::focusOutEvent(event);
    set_held(Qt::NoModifier);
    Q_EMIT canceled();
}

void KeyCapture::set_held(Qt::KeyboardModifiers modifiers)
{
    const QString held = text_of(modifiers);
    if (held == m_held)
        return;
    m_held = held;
    Q_EMIT HeldChanged();
}

}
