#include "gallery/script/Screenshots.h"

#include "gallery/Session.h"
#include "gallery/menu/MenuPath.h"
#include "gallery/script/KeyScript.h"

#include <QDir>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_longest_wait = 2000; // ms

}

void WaitForFrame(QQuickWindow& window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer::singleShot(g_longest_wait, &loop, &QEventLoop::quit);
    window.update();
    loop.exec();
}

bool Screenshots::TakeAll()
{
    return take_main() && take_with_popup(u"EditCopy"_s, u"popup.png"_s)
        && take_with_popup(u"ViewGridSize(50)"_s, u"submenu.png"_s)
        && take_context_menu(u"BrushWidth(8)"_s, u"contextmenu.png"_s)
        && take_context_menu(u"ColorPair(#12355b,#f2c14e)"_s, u"colours.png"_s) && take_dark();
}

bool Screenshots::take(const QString& name)
{
    WaitForFrame(m_window);
    const QString path = QDir(m_folder).filePath(name);
    if (QDir().mkpath(m_folder) && m_window.grabWindow().save(path))
        return true;
    m_error = u"%1 cannot be written."_s.arg(path);
    return false;
}

bool Screenshots::take_main()
{
    press({u"Ctrl+0"_s});
    return take(u"main.png"_s);
}

void Screenshots::press(const QStringList& keys)
{
    KeyScript script(m_session, m_window);
    for (const QString& name : keys)
        if (const std::optional<KeyPress> key = ParseKeyPress(name))
            script.Press(*key);
}

bool Screenshots::take_with_popup(const QString& command, const QString& name)
{
    press(PopupKeys(*m_session.Menu(), command));
    const bool taken = take(name);
    KeyScript(m_session, m_window).CloseAll();
    return taken;
}

bool Screenshots::take_context_menu(const QString& command, const QString& name)
{
    const QPoint place = m_window.mapToGlobal(QPoint(m_window.width() * 2 / 5, m_window.height() / 4));
    m_session.openContextMenu(place.x(), place.y());
    press(ContextKeys(*m_session.Menu(), command));
    const bool taken = take(name);
    KeyScript(m_session, m_window).CloseAll();
    return taken;
}

bool Screenshots::take_dark()
{
    press({u"F9"_s});
    m_session.View()->dark = true; // also with a menu that has other keys
    m_session.View()->Tell();
    const bool taken = take_with_popup(u"LayerBlend(screen)"_s, u"dark.png"_s);
    press({u"F8"_s});
    m_session.View()->dark = false;
    m_session.View()->Tell();
    return taken;
}

}
