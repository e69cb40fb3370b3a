#pragma once

// QML: ToolbarSetup, made in C++ or QML. Properties `active`, `toolbars`, `titles`, `current`, `toolbar`,
// `control`, `opener`, `window`, `commandsOffered`; functions begin(), beginAt(), accept(), cancel(), reset()
// and the changes below; signals changed(), accepted(), cancelled(). Give it to ToolbarSetupPanel,
// ToolbarDragLayer and ToolbarMenu.

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickControl.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QtQmlIntegration>

#include <functional>
#include <memory>
#include <vector>

class CVqHiddenButtonEdits;
struct SVqCustomisedBar;

/// Lets the user customise the bars of a window.
///
/// A session lasts from begin() to accept() or cancel(). Each change shows on the bars at once, and nowhere
/// else: all state lives in the bars and in the personal store of hidden buttons. cancel() gives back
/// everything as begin() found it, the very control objects in their order. What is taken off a bar lives
/// until the session ends. A change outside of a session is accepted at once.
///
/// Which buttons the user hides stands in the personal store, under the bar's name up to a '#'; the controls
/// of a bar without a name are hidden themselves. A general control is only moved and hidden, never deleted:
/// there would be no way to get it back.
///
/// Knows of controls that Qt Quick draws; others in a bar come to stand in front of them when it is put back.
/// A reset loads the bars anew, which deletes those others for good. GUI thread only.
///
///     CVqQuickToolbarSetup setup;
///     setup.AddToolbar(bar, factory, tr("Main"));
///     connect(&setup, &CVqQuickToolbarSetup::accepted, this, &Window::SaveToolbars);
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarSetup : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarSetup)
    Q_PROPERTY(bool active READ IsActive NOTIFY activeChanged FINAL)
    Q_PROPERTY(QVariantList toolbars READ ToolbarValues NOTIFY toolbarsChanged FINAL)
    Q_PROPERTY(QStringList titles READ Titles NOTIFY toolbarsChanged FINAL)
    Q_PROPERTY(int current READ Current WRITE SetCurrent NOTIFY currentChanged FINAL)
    Q_PROPERTY(CVqQuickButtonToolbar* toolbar READ CurrentToolbar NOTIFY currentChanged FINAL)
    Q_PROPERTY(CVqQuickControl* control READ Control WRITE SetControl NOTIFY controlChanged FINAL)
    Q_PROPERTY(QQuickItem* opener READ Opener NOTIFY activeChanged FINAL)
    Q_PROPERTY(QQuickWindow* window READ Window NOTIFY activeChanged FINAL)
    Q_PROPERTY(bool commandsOffered READ AreCommandsOffered NOTIFY activeChanged FINAL)

public:
    using AskFunction = CVqAbstractButtonToolbar::setup_callback_type;
    using RebuiltFunction = std::function<void(CVqQuickButtonToolbar& bar)>;

    explicit CVqQuickToolbarSetup(QObject* parent = nullptr);

    /// Cancels a session.
    ~CVqQuickToolbarSetup() override;

    /// Lets `bar` be customised, and begins when it is asked for its dialog. Not owned; may go at any time. A
    /// reset goes back to `factory`, the record that the bar's Save() wrote into a tree; an empty one stands
    /// for what the bar holds now. `title` is what people call the bar; by itself its name.
    void AddToolbar(CVqQuickButtonToolbar& bar, const CVqVariant& factory, const QString& title = {});

    /// Called for each bar that a reset rebuilt: texts in the user's language, drop-downs and the like of
    /// buttons that were made anew are the application's to set.
    void SetRebuiltFunction(RebuiltFunction function) { m_rebuilt = std::move(function); }

    /// What is offered: asked for the text of each command; may be null.
    AskFunction Ask() const { return m_ask; }
    bool AreCommandsOffered() const { return m_commands_offered; }

    // The session ------------------------------------------------------------------------------------------

    bool IsActive() const { return m_active; }

    /// The parent that ShowToolbarSetup() was given, to which the keyboard goes back at the end; null outside
    /// of a session, and in one that was begun otherwise.
    QQuickItem* Opener() const { return m_opener; }

    /// Where the dialog is to open: the window of the opener, or without one that of the bar at which the
    /// session began. Null outside of a session, and when that bar shows nowhere.
    QQuickWindow* Window() const { return m_window; }

    /// Nothing happens in a session, or without a bar.
    Q_INVOKABLE void begin();

    /// The same, at a bar and a control of it; either may be null.
    Q_INVOKABLE void beginAt(CVqQuickButtonToolbar* bar, CVqQuickControl* control);

    /// These three do nothing outside of a session.
    Q_INVOKABLE void accept();
    Q_INVOKABLE void cancel();

    /// Puts the factory record back on all bars and shows all their buttons. Controls that are still there
    /// come back as they are; buttons that are not are made from the record. A record of more than 100
    /// controls does not come back whole and leaves its bar as it is.
    Q_INVOKABLE void reset();

    // What is chosen ---------------------------------------------------------------------------------------

    QList<CVqQuickButtonToolbar*> Toolbars() const;
    QVariantList ToolbarValues() const;
    QStringList Titles() const;

    /// The index of the bar that is shown in a panel; -1 without a bar.
    int Current() const { return m_current; }
    void SetCurrent(int index);
    CVqQuickButtonToolbar* CurrentToolbar() const;

    /// The chosen control, or null. Its bar becomes the current one.
    CVqQuickControl* Control() const { return m_control; }
    void SetControl(CVqQuickControl* control);

    // Changes: false, or null, when nothing was done --------------------------------------------------------

    /// The bar that holds `control`, or null; the picker of a bar is held by none.
    Q_INVOKABLE CVqQuickButtonToolbar* toolbarOf(CVqQuickControl* control) const;

    /// Whether the user lets `control` show; and whether the application hides it all the same.
    Q_INVOKABLE bool isShown(CVqQuickControl* control) const;
    Q_INVOKABLE bool isLocked(CVqQuickControl* control) const;

    Q_INVOKABLE bool setShown(CVqQuickControl* control, bool shown);

    /// Whether the user hides anything on `bar`, and showing all of it.
    Q_INVOKABLE bool hidesAny(CVqQuickButtonToolbar* bar) const;
    Q_INVOKABLE bool showAll(CVqQuickButtonToolbar* bar);

    /// Moves `control` in front of `before` on `bar`, or to the end for null. On another bar its name gets a
    /// number when it is taken there.
    Q_INVOKABLE bool move(CVqQuickControl* control, CVqQuickButtonToolbar* bar, CVqQuickControl* before);

    /// Moves `control` over its next neighbour in direction `step` (1 or -1); with `shown_only` over hidden
    /// ones too, to the next one that shows.
    Q_INVOKABLE bool step(CVqQuickControl* control, int step, bool shown_only);

    /// Adds a button for a command of the bar's menu. Null when the menu does not offer it.
    Q_INVOKABLE CVqQuickControl* addCommand(const QString& command, CVqQuickButtonToolbar* bar,
                                            CVqQuickControl* before);

    Q_INVOKABLE CVqQuickControl* addSeparator(CVqQuickButtonToolbar* bar, CVqQuickControl* before);

    /// Takes `control` off its bar; a general one is hidden instead.
    Q_INVOKABLE bool remove(CVqQuickControl* control);

Q_SIGNALS:
    void activeChanged();
    void toolbarsChanged();
    void currentChanged();
    void controlChanged();

    /// A bar, or what is shown of it, changed.
    void changed();

    /// What the bars hold now is to be kept: the time to save them.
    void accepted();
    void cancelled();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT SVqCustomisedBar* find(const CVqQuickButtonToolbar* bar) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void forget_lost_bars();
    ARBOR_QUICK_BACKEND_NO_EXPORT void note_state(SVqCustomisedBar& bar);
    ARBOR_QUICK_BACKEND_NO_EXPORT void enter(CVqQuickButtonToolbar* bar,
                                             const SVqToolbarSetupRequest& request);
    ARBOR_QUICK_BACKEND_NO_EXPORT void choose(CVqQuickButtonToolbar* bar, CVqQuickControl* control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void answer(CVqQuickButtonToolbar& bar,
                                              const SVqToolbarSetupRequest& request);
    ARBOR_QUICK_BACKEND_NO_EXPORT void restore();
    ARBOR_QUICK_BACKEND_NO_EXPORT void leave();
    ARBOR_QUICK_BACKEND_NO_EXPORT void sweep();
    ARBOR_QUICK_BACKEND_NO_EXPORT void tell();
    ARBOR_QUICK_BACKEND_NO_EXPORT void touch(CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void take_out(CVqQuickButtonToolbar& bar, CVqQuickControl& control);
    ARBOR_QUICK_BACKEND_NO_EXPORT void show(CVqQuickButtonToolbar& bar, CVqQuickControl& control, bool shown);
    ARBOR_QUICK_BACKEND_NO_EXPORT CVqQuickControl* put_new(IVqUIcontrol* made, CVqQuickButtonToolbar& bar,
                                                           CVqQuickControl* before);
    std::vector<std::unique_ptr<SVqCustomisedBar>> m_bars;
    std::vector<QPointer<CVqQuickControl>> m_touched; // made or taken out; owned while no bar holds them
    const std::unique_ptr<CVqHiddenButtonEdits> m_hidden;
    RebuiltFunction m_rebuilt;
    AskFunction m_ask = nullptr;
    QPointer<CVqQuickControl> m_control;
    QPointer<QQuickItem> m_opener;
    QPointer<QQuickWindow> m_window;
    int m_current = -1;
    bool m_commands_offered = true;
    bool m_active = false;
};
