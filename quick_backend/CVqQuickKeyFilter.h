#pragma once

// QML: MenuKeys, with properties menu, window and opensBar, and signals barRequested() and
// mnemonicPressed(row). MenuBar.qml has one already. Signal fired(id, keyText, nanoseconds) tells of each
// command that a key ran.

#include "arbor_quick_backend_export.h"
#include "quick_backend/VqVirtualKeys.h"
#include "system/VqTypes.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQmlIntegration>

#include <optional>

class CVqQuickMenu;

/// Lets the keys of a window fire the commands of a menu.
///
/// Watches the window's key events before its items see them. A key that the menu translates is eaten and its
/// command dispatched, whatever has the focus, with one exception: a focused item that claims the key as text
/// editing keeps it, so a text field gets its plain characters, its Backspace and its Ctrl+C. While the menu
/// tracks, nothing is touched.
///
/// With `opensBar` it also tells when Alt and a mnemonic of the bar, Alt alone or F10 were pressed. A key of
/// the tables goes before a mnemonic.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickKeyFilter : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("quick_backend/CVqQuickMenu.h")
    QML_NAMED_ELEMENT(MenuKeys)
    Q_PROPERTY(CVqQuickMenu* menu READ Menu WRITE SetMenu NOTIFY menuChanged FINAL)
    Q_PROPERTY(QQuickWindow* window READ Window WRITE SetWindow NOTIFY windowChanged FINAL)
    Q_PROPERTY(bool opensBar READ OpensBar WRITE SetOpensBar NOTIFY opensBarChanged FINAL)

public:
    explicit CVqQuickKeyFilter(QObject* parent = nullptr);

    /// Both may be null, are not owned, and may die first.
    CVqQuickKeyFilter(CVqQuickMenu* menu, QQuickWindow* window, QObject* parent = nullptr);
    ~CVqQuickKeyFilter() override;

    CVqQuickMenu* Menu() const;
    void SetMenu(CVqQuickMenu* menu);

    QQuickWindow* Window() const { return m_window; }
    void SetWindow(QQuickWindow* window);

    bool OpensBar() const { return m_opens_bar; }
    void SetOpensBar(bool opens);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A key ran the command of `id`. `keyText` is the key as menus print it; the time is that of the menu's
    /// Translate() alone.
    void fired(uint id, const QString& keyText, qint64 nanoseconds);

    /// Alt and the mnemonic of that row of the bar.
    void mnemonicPressed(int row);

    /// Alt alone, pressed and released, or F10.
    void barRequested();

    void menuChanged();
    void windowChanged();
    void opensBarChanged();

private:
    struct SHit
    {
        vq_uint32 id;
        SVqKeyPress press;
        qint64 nanoseconds;
    };

    ARBOR_QUICK_BACKEND_NO_EXPORT std::optional<SHit> Translate(const QKeyEvent& event) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT bool IsForTheFocus(const QKeyEvent& event) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT int MnemonicRow(const QKeyEvent& event) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT bool Override(QKeyEvent& event);
    ARBOR_QUICK_BACKEND_NO_EXPORT bool Press(const QKeyEvent& event);
    ARBOR_QUICK_BACKEND_NO_EXPORT bool Release(const QKeyEvent& event);
    ARBOR_QUICK_BACKEND_NO_EXPORT void Fire(const SHit& hit);

    QPointer<CVqQuickMenu> m_menu;
    QPointer<QQuickWindow> m_window;
    bool m_opens_bar = false;
    bool m_alt_alone = false; // Alt went down and nothing else happened since
};
