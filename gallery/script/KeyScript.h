#pragma once

#include "gallery/script/ScriptStep.h"
#include "system/VqTypes.h"

#include <functional>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

namespace Gallery {

class Session;

/// Presses keys in the window, moves the mouse in it, and tells what each did.
class KeyScript
{
public:
    /// Both must outlive the script.
    KeyScript(Session& session, QQuickWindow& window) : m_session(session), m_window(window) { }

    /// Presses one key. The line is one of
    ///
    ///     Ctrl+Shift+S -> 1017 FileSaveAs
    ///     Alt+F -> opens popup File
    ///     Ctrl+F9 -> no command
    ///     Ctrl+K -> Blur has the key Ctrl+K now.
    QString Press(const KeyPress& press);

    /// The same with the mouse. What does not show is "nothing to see".
    QString Move(const MouseStep& step);

    /// Either of them.
    QString Do(const ScriptStep& step);

    /// Identifiers of the open popups of the window.
    QList<vq_uint32> OpenPopups() const;

    /// Presses Esc until no popup is open and the bar has let go of the keyboard.
    void CloseAll();

private:
    QString tell(const QString& name, const std::function<void()>& act);
    QString fire(const std::function<void()>& act);

    Session& m_session;
    QQuickWindow& m_window;
    QString m_told; // by the key editor, of the last key
};

}
