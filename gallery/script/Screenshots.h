#pragma once

#include <QStringList>

QT_BEGIN_NAMESPACE
class QQuickWindow;
QT_END_NAMESPACE

namespace Gallery {

class Session;

/// Waits until `window` has drawn what it shows now, two seconds at most.
void WaitForFrame(QQuickWindow& window);

/// Writes pictures of the window into a folder, which is made when it is missing.
class Screenshots
{
public:
    /// Session and window must outlive this.
    Screenshots(Session& session, QQuickWindow& window, const QString& folder)
        : m_session(session), m_window(window), m_folder(folder)
    { }

    /// Writes main.png, popup.png, submenu.png, contextmenu.png, colours.png and dark.png. False: a file
    /// could not be written; Error() says which. The window is light and closed up afterwards.
    bool TakeAll();

    /// One sentence; empty after a success.
    const QString& Error() const { return m_error; }

private:
    bool take(const QString& name);
    bool take_main();
    void press(const QStringList& keys);
    bool take_with_popup(const QString& command, const QString& name);
    bool take_context_menu(const QString& command, const QString& name);
    bool take_dark();

    Session& m_session;
    QQuickWindow& m_window;
    QString m_folder;
    QString m_error;
};

}
