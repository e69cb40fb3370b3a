#include "quick_backend/CVqQuickKeyFilter.h"

#include "AbstractGui/CVqAccelerators.h"
#include "quick_backend/CVqQuickMenu.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QQuickItem>

namespace {

constexpr auto TypingModifiers = Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
constexpr auto AltGr = Qt::ControlModifier | Qt::AltModifier; // as Windows reports it

// Plain characters, also those that take AltGr; never what Ctrl or Alt alone make of a key.
bool TypesText(const QKeyEvent& event)
{
    const QString text = event.text();
    const auto modifiers = event.modifiers() & ~TypingModifiers;
    return !text.isEmpty() && text[0].isPrint() && (modifiers == Qt::NoModifier || modifiers == AltGr);
}

QString KeyText(const SVqKeyPress& press)
{
    vq_wchar text[512] = {};
    CVqAccelerators::PrintAccel(press.flags, press.key, text);
    return CVqStringW(text).ToQString();
}

// What a mnemonic is compared with: the character, or the letter of the key where Alt left no character.
QString Letter(const QKeyEvent& event)
{
    if (!event.text().isEmpty() && event.text()[0].isPrint())
        return event.text();
    return event.key() > 0x20 && event.key() < 0x10000 ? QString(QChar(char16_t(event.key()))) : QString();
}

bool IsAltOnly(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Alt && !event.isAutoRepeat()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier | Qt::MetaModifier));
}

bool EndsAltAlone(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::Wheel || type == QEvent::TouchBegin
        || type == QEvent::FocusOut;
}

}

CVqQuickKeyFilter::CVqQuickKeyFilter(QObject* parent) : QObject(parent) { }

CVqQuickKeyFilter::CVqQuickKeyFilter(CVqQuickMenu* menu, QQuickWindow* window, QObject* parent)
    : QObject(parent), m_menu(menu)
{
    SetWindow(window);
}

CVqQuickKeyFilter::~CVqQuickKeyFilter() = default;

CVqQuickMenu* CVqQuickKeyFilter::Menu() const
{
    return m_menu.data();
}

void CVqQuickKeyFilter::SetMenu(CVqQuickMenu* menu)
{
    if (menu == m_menu)
        return;
    m_menu = menu;
    Q_EMIT menuChanged();
}

void CVqQuickKeyFilter::SetWindow(QQuickWindow* window)
{
    if (window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

void CVqQuickKeyFilter::SetOpensBar(bool opens)
{
    if (opens == m_opens_bar)
        return;
    m_opens_bar = opens;
    Q_EMIT opensBarChanged();
}

bool CVqQuickKeyFilter::eventFilter(QObject*, QEvent* event)
{
    if (EndsAltAlone(event->type()))
        m_alt_alone = false;
    if (!m_menu || Menu()->IsTracking())
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        return Override(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress:
        return Press(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        return Release(*static_cast<QKeyEvent*>(event));
    default:
        return false;
    }
}

// Claimed ahead of the shortcuts of others, so that the key comes back as a press.
bool CVqQuickKeyFilter::Override(QKeyEvent& event)
{
    if (IsForTheFocus(event) || (!Translate(event) && MnemonicRow(event) < 0))
        return false;
    event.accept();
    return true;
}

bool CVqQuickKeyFilter::Press(const QKeyEvent& event)
{
    m_alt_alone = IsAltOnly(event);
    if (m_alt_alone || IsForTheFocus(event))
        return false;
    if (const auto hit = Translate(event)) {
        Fire(*hit);
        return true;
    }
    if (m_opens_bar && event.key() == Qt::Key_F10 && event.modifiers() == Qt::NoModifier) {
        Q_EMIT barRequested();
        return true;
    }
    const int row = MnemonicRow(event);
    if (row >= 0)
        Q_EMIT mnemonicPressed(row);
    return row >= 0;
}

bool CVqQuickKeyFilter::Release(const QKeyEvent& event)
{
    if (event.key() != Qt::Key_Alt || event.isAutoRepeat() || !m_alt_alone)
        return false;
    m_alt_alone = false;
    if (m_opens_bar)
        Q_EMIT barRequested();
    return m_opens_bar;
}

void CVqQuickKeyFilter::Fire(const SHit& hit)
{
    const QPointer<CVqQuickKeyFilter> alive(this);
    const bool ran = Menu()->Dispatch(hit.id);
    if (ran && alive)
        Q_EMIT fired(hit.id, KeyText(hit.press), hit.nanoseconds);
}

std::optional<CVqQuickKeyFilter::SHit> CVqQuickKeyFilter::Translate(const QKeyEvent& event) const
{
    static const EVqKeyCodes codes = VqPlatformKeyCodes();
    const SVqKeyPress press = VqVirtualKey(event, codes);
    if (!press.key)
        return std::nullopt;
    SHit hit{0, press, 0};
    vq_uint64 target = 0;
    QElapsedTimer clock;
    clock.start();
    const bool found = Menu()->Translate(press.key, press.flags, target, hit.id);
    hit.nanoseconds = clock.nsecsElapsed();
    return found ? std::optional(hit) : std::nullopt;
}

// Whether the focused item claims the key as text editing, which it says by accepting the override.
bool CVqQuickKeyFilter::IsForTheFocus(const QKeyEvent& event) const
{
    QQuickItem* item = m_window->activeFocusItem();
    if (!item)
        return false;
    if ((item->flags() & QQuickItem::ItemAcceptsInputMethod) && TypesText(event))
        return true;
    QKeyEvent question(QEvent::ShortcutOverride, event.key(), event.modifiers(), event.nativeScanCode(),
                       event.nativeVirtualKey(), event.nativeModifiers(), event.text(), event.isAutoRepeat());
    question.ignore();
    QCoreApplication::sendEvent(item, &question);
    return question.isAccepted();
}

int CVqQuickKeyFilter::MnemonicRow(const QKeyEvent& event) const
{
    const auto modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (!m_opens_bar || modifiers != Qt::AltModifier)
        return -1;
    return Menu()->Rows()->byMnemonic(Letter(event), -1);
}
