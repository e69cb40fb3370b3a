#include "quick_backend/VqProgressWindow.h"

#include "quick_backend/CVqQuickProgressView.h"

#include <QAccessible>
#include <QDebug>
#include <QEvent>
#include <QGuiApplication>
#include <QList>
#include <QPointer>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

/// Those that live, innermost last.
QList<QPointer<QQuickWindow>>& progress_windows()
{
    static QList<QPointer<QQuickWindow>> windows;
    return windows;
}

/// What a new progress window stands before; null where nothing shows. A popup would take it along when it
/// goes.
QWindow* window_below()
{
    if (QQuickWindow* const progress = VqTopProgressWindow())
        return progress;
    QWindow* window = QGuiApplication::focusWindow();
    while (window && (window->type() == Qt::Popup || window->type() == Qt::ToolTip))
        window = window->transientParent();
    return window;
}

/// Answers for a program that is asked to quit: all work is to end, and no window closes. Otherwise Qt would
/// close the others, the progress window would refuse, and the program would go on without a window.
class QuitGuard : public QObject
{
public:
    explicit QuitGuard(QQuickWindow& window) : QObject(&window)
    {
        QGuiApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Quit)
            return false;
        for (const QPointer<QQuickWindow>& window : QList(progress_windows()))
            if (window)
                window->close();
        event->ignore();
        return true;
    }
};

/// Has screen readers say the label. Before Qt 6.8 they have its accessible name only.
void announce(QQuickWindow& window, const CVqQuickProgressView& view)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    const auto say = [&window, &view] {
        QAccessibleAnnouncementEvent event(&window, view.Announcement());
        QAccessible::updateAccessibility(&event);
    };
    QObject::connect(&view, &CVqQuickProgressView::announcementChanged, &window, say);
    if (!view.Announcement().isEmpty())
        say();
#endif
}

void center(QQuickWindow& window, const QWindow* below)
{
    const QRect place = below ? below->geometry() : window.screen()->availableGeometry();
    window.setPosition(place.center() - QRect({}, window.size()).center());
}

}

std::unique_ptr<QQuickWindow> VqShowProgressWindow(QQmlEngine& engine, CVqQuickProgressView& view,
                                                   bool suppress_others)
{
    QQmlComponent component(&engine, "K7.Arbor.QuickBackend", "ProgressWindow");
    if (component.isError()) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    QObject* const object = component.createWithInitialProperties({{u"view"_s, QVariant::fromValue(&view)}});
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(object));
    QWindow* const below = window_below();
    const bool nested = VqTopProgressWindow();
    window->setTransientParent(below);
    if (suppress_others)
        window->setModality(Qt::ApplicationModal);
    else if (nested)
        window->setModality(Qt::WindowModal);
    center(*window, below);
    progress_windows().append(window.get());
    new QuitGuard(*window);
    window->show();
    announce(*window, view);
    return window;
}

QQuickWindow* VqTopProgressWindow()
{
    progress_windows().removeIf([](const QPointer<QQuickWindow>& window) { return !window; });
    return progress_windows().isEmpty() ? nullptr : progress_windows().constLast().data();
}
