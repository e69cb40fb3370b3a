#pragma once

// QML: QuickMenu, made in C++ (or `QuickMenu {}`). Properties `rows` (the bar's), `tracking`; functions
// trigger(id), track(id, x, y); signals commandTriggered(id, command), contextMenuRequested(rows, x, y),
// entered(letter). Give it to `MenuBar { menu: ... }` and `ContextMenu { menu: ... }`.

#include "AbstractGui/CVqAbstractMenu.h"
#include "arbor_quick_backend_export.h"
#include "quick_backend/CVqQuickMenuRows.h"
#include "quick_backend/IVqQuickMenuKeys.h"
#include "quick_backend/SVqQuickManipulators.h"

#include <QObject>
#include <QtQmlIntegration>

#include <functional>

class CVqQuickMenuBackend;

/// A complete menu that Qt Quick draws: the model, its rows and the way to the application's commands.
///
/// Root and back end are there from the start. The application fills the menu through the operations of the
/// abstract class, sets a handler or connects to commandTriggered(), and shows it with the QML types MenuBar
/// and ContextMenu. A CVqQuickKeyFilter on the window lets keys fire commands.
///
///     CVqQuickMenu menu;
///     menu.SetCmdHandler([](vq_uint32 id) { Run(id); });
///     menu.AppendPopup(1, 0, VQ_TEXT("&File"));
///     menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickMenu : public QObject,
                                                public CVqAbstractMenu,
                                                private IVqQuickMenuKeys
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickMenu)
    Q_PROPERTY(CVqQuickMenuRows* rows READ Rows CONSTANT FINAL)
    Q_PROPERTY(bool tracking READ IsTracking WRITE SetTracking NOTIFY trackingChanged FINAL)

public:
    using CmdHandler = std::function<void(vq_uint32 id)>;

    explicit CVqQuickMenu(QObject* parent = nullptr);
    ~CVqQuickMenu() override;

    // Commands -----------------------------------------------------------------------------------------

    /// What CallCmdHandler() calls first; may be empty. It may change the menu, and even delete it.
    void SetCmdHandler(CmdHandler handler);

    /// Calls the handler, then emits commandTriggered(), without asking the item. Returns 0.
    int CallCmdHandler(vq_uint32 id) override;

    /// Whether a key or a click may run `id` now. An item that is disabled, grayed, removed or deleted says
    /// no, and so does one below a popup that is disabled, grayed or deleted: what cannot be reached in the
    /// menu cannot be reached by its key. A popup that is only removed lets its items fire: that is how a
    /// context menu is kept off the bar. An identifier without an item (a lonely accelerator) says yes, that
    /// of the main root no.
    bool CanFire(vq_uint32 id);

    /// CallCmdHandler() when CanFire() says yes. Whether it was called.
    bool Dispatch(vq_uint32 id);

    Q_INVOKABLE bool trigger(uint id) { return Dispatch(id); }

    // Showing ------------------------------------------------------------------------------------------

    /// The rows of the bar; owned by the menu and the same all its life.
    CVqQuickMenuRows* Rows() const;

    /// Whether the bar has the keyboard or a popup of this menu is open. Set by the QML types; meanwhile the
    /// key filter leaves all keys to them.
    bool IsTracking() const { return m_tracking; }
    void SetTracking(bool tracking);

    /// Asks the ContextMenu of this menu to open the popup `id` and returns 0 at once: what is picked goes
    /// the way of every command, and `resultId`, which may be null, receives 0. `x` and `y` are logical
    /// pixels of the desktop. The other arguments are not used.
    ///
    /// -4: no popup has that identifier, or it is deleted. -12: no ContextMenu listens.
    int TrackContextMenuEx(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                           const CVqRectBase<int>* rect, bool flag1, bool flag2) override;

    Q_INVOKABLE int track(uint id, int x, int y);

    // What the abstract class changes without a word to its back end --------------------------------------

    /// The items of the range are drawn with radio dots from then on.
    int CheckRadioId(vq_uint32 id, vq_uint32 firstId, vq_uint32 lastId) override;

    int AppendIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second) override;
    int SetIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second) override;
    int AppendLonelyAccel(vq_uint32 id, vq_uint32 flags, vq_wchar key, const vq_wchar* command) override;
    int DeleteAllLonelyAccels() override;
    int SwapAccels(CVqAccelerators& main, CVqAccelerators& second) override;

    // The rest of a concrete menu ------------------------------------------------------------------------

    /// A menu with a copy of the tree, radio dots included, rows of its own and the same handler; null when
    /// memory runs out. As in every copy, keys and lonely accelerators are left out.
    CVqAbstractMenu* Duplicate() override;

    SVqManipulators& Manipulators() override { return m_manipulators; }

Q_SIGNALS:
    /// A command runs. `command` is the item's command text.
    void commandTriggered(uint id, const QString& command);

    /// A popup is to open as a context menu at `x`, `y` of the desktop.
    void contextMenuRequested(CVqQuickMenuRows* rows, int x, int y);

    /// The menu was entered by keyboard: open what `letter` picks, or go to the bar when it is empty.
    void entered(const QString& letter);

    void trackingChanged();

private:
    QString KeyText(const CVqMenuItem& item) const override;

    ARBOR_QUICK_BACKEND_NO_EXPORT CVqMenuItem* Find(vq_uint32 id);
    ARBOR_QUICK_BACKEND_NO_EXPORT void KeyTextChanged(vq_uint32 id);

    SVqQuickManipulators m_manipulators;
    CVqQuickMenuBackend* m_backend; // owned by the abstract class
    CmdHandler m_handler;
    bool m_tracking = false;
};
