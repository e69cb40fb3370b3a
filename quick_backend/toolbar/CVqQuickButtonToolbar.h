#pragma once

// QML: QuickToolbar, made in C++. Properties `area`, `name`, `customizing`; signals triggered(command),
// contextMenuRequested(control, x, y), dragRequested(control, x, y), setupRequested(request),
// contentChanged(). Give it to `Toolbar { toolbar: ... }`.

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/SVqToolbarButtonHiddenCallback.h"
#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"
#include "quick_backend/toolbar/SVqToolbarSetupRequest.h"

#include <QObject>
#include <QtQmlIntegration>

#include <memory>
#include <unordered_map>

class CVqQuickMenu;
class CVqQuickToolbar;
class CVqQuickToolbarCommands;

/// A complete toolbar of buttons that Qt Quick draws: what an application fills, and shows with the QML type
/// Toolbar.
///
/// The toolbar and its area are there from the start. Separators are tidied before each layout. A change in
/// the store of hidden buttons takes effect at once. With a menu, a button runs the menu's item of the same
/// command and shows what that item says: enabled, checked, its key, and hidden when the item is. The command
/// is that of the button's current state; of several items with it the first in reading order counts. A
/// button that loses its item is enabled, not checked and shown again.
///
/// What is picked goes to the control's handler, to the callback of the toolbar, to that of
/// SetCallbackFunc(), to the menu's item and at last to triggered(), until one takes it. An arrow opens the
/// popup of the menu that the control names.
///
///     CVqQuickButtonToolbar bar(VQ_TEXT("main"));
///     bar.SetMenu(&menu);
///     const vq_uint64 open = bar.AddButton(VQ_TEXT("open"));
///     bar.SetTextsOnButton(open, 0, VQ_TEXT("Open a picture"), VQ_TEXT("Open"), VQ_TEXT("FileOpen"));
///     bar.SetBitmapOnButton(open, 0, VQ_TEXT("OPEN"), VQ_TEXT("k7_tile_assets.dll"));
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickButtonToolbar : public QObject,
                                                         public CVqAbstractButtonToolbar,
                                                         private SVqToolbarButtonHiddenCallback
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickToolbar)
    QML_UNCREATABLE("Made in C++.")
    Q_PROPERTY(CVqQuickToolbarArea* area READ Area CONSTANT FINAL)
    Q_PROPERTY(QString name READ Name CONSTANT FINAL)
    Q_PROPERTY(bool customizing READ IsCustomizing NOTIFY customizingChanged FINAL)

public:
    /// A name is needed for hidden buttons and may be null. Shown, horizontal, with a picker for type Main.
    explicit CVqQuickButtonToolbar(const vq_wchar* name, EToolbarType type = EToolbarType::Main,
                                   EOrientation orientation = EOrientation::Horizontal,
                                   QObject* parent = nullptr);
    ~CVqQuickButtonToolbar() override;

    /// Owned by the toolbar, as long as it lives.
    CVqQuickToolbar& Toolbar() const;
    CVqQuickToolbarArea* Area() const;
    QString Name() const;

    /// Whose items the buttons run and show; null for none. Not owned; may go before the toolbar.
    void SetMenu(CVqQuickMenu* menu);
    CVqQuickMenu* Menu() const;

    /// Whether buttons are dragged instead of pressed.
    bool IsCustomizing() const { return Area()->IsCustomizing(); }

    // CVqAbstractButtonToolbar ---------------------------------------------------------------------------

    /// Emits setupRequested(); who listens shows the dialog, such as a CVqQuickToolbarSetup with its panel.
    /// `parent` is the address of the QQuickItem that wants it: the dialog opens in its window, and the
    /// keyboard goes back to it; 0 for the toolbar's own window and whoever has the keyboard. `factory` is
    /// the toolbar's record to which a reset goes back; an empty one stands for what the toolbar holds now.
    /// `button` is the identifier to begin at, or 0. `commands` says whether commands of the menu may be
    /// added. `callback`, or null, is asked for the text of each command, by its identifier, before it is
    /// offered; false leaves it out. Its window is null.
    void ShowToolbarSetup(vq_uint64 parent, CVqVariant& factory, vq_uint64 button, bool commands,
                          setup_callback_type callback) override;

    /// What the menu disables stays so.
    void EnableAll(bool enable) override;

    /// A note is seen to in the next layout, which it asks for. Buttons that are hidden with their command
    /// count as hidden.
    int UpdateSeparators(bool defer) override;
    void EnableToolbarDragDrop(bool enable) override;
    void ChangeToolbarType(EToolbarType type, bool keep) override;

    /// Lets every control have its own size again.
    void ResetAllControlSizesOnToolbar() override;
    CVqAbstractToolbar* CreateToolbar() override;
    IVqUIcontrol* CreateControlButton(bool flag) override;
    IVqUIcontrol* CreateTextButton() override;
    IVqUIcontrol* CreateSeparator() override;

Q_SIGNALS:
    /// A button that neither a handler nor a callback took, and for which the menu has no item.
    void triggered(const QString& command);

    /// Right button or key; `control` is null beside the controls. Places are logical pixels of the window.
    void contextMenuRequested(CVqQuickControl* control, qreal x, qreal y);

    /// A control was sent a Drag event; only while drag and drop is enabled. The looks here send none:
    /// dragging is the work of a CVqQuickToolbarSetup. Places as above.
    void dragRequested(CVqQuickControl* control, qreal x, qreal y);

    /// The toolbar is to be set up, see ShowToolbarSetup().
    void setupRequested(const SVqToolbarSetupRequest& request);

    /// The controls, their order, names, texts or tooltips changed. Told once for any number of changes, when
    /// the event loop is back.
    void contentChanged();
    void customizingChanged();

protected:
    /// Emits dragRequested() and gives true while drag and drop is enabled.
    bool StartDrag(SVqUiEvent& event) override;

private:
    /// What was known of a control when it changed last.
    struct SSeen
    {
        CVqStringW m_name;
        QString m_tooltip;
        bool m_shown = true;
    };

    int ButtonHiddenChanged(const vq_wchar* toolbar, const vq_wchar* button, bool hidden,
                            bool system) override;

    ARBOR_QUICK_BACKEND_NO_EXPORT void control_came(CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void control_gone(CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void look_changed(CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void read_store(CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void content_changed();
    ARBOR_QUICK_BACKEND_NO_EXPORT void tidy();
    ARBOR_QUICK_BACKEND_NO_EXPORT void handle(CVqQuickControl& control, SVqUiEvent& event);
    ARBOR_QUICK_BACKEND_NO_EXPORT void run(const CVqQuickControl& control, SVqUiEvent& event);
    ARBOR_QUICK_BACKEND_NO_EXPORT void open_drop_down(const CVqQuickControl& control,
                                                      const SVqUiEvent& event) const;

    const std::unique_ptr<CVqQuickToolbarCommands> m_commands;
    std::unordered_map<const CVqQuickControl*, SSeen> m_seen; // the controls that are there
    CVqQuickControl* m_dragged = nullptr;                     // while StartDrag() runs
    bool m_content_told = true;                               // else contentChanged() is on its way
};
