#include "gallery/script/MouseStep.h"

#include "gallery/Session.h"
#include "gallery/script/Screenshots.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_drag_moves = 8; // events on the way

std::optional<MouseStep::Kind> kind_of(const QString& word)
{
    if (word == u"@click"_s)
        return MouseStep::Kind::Click;
    if (word == u"@right"_s)
        return MouseStep::Kind::RightClick;
    return word == u"@drag"_s ? std::optional(MouseStep::Kind::Drag) : std::nullopt;
}

QQuickItem* control_item(const Session& session, const QString& bar_name, const QString& control_name)
{
    const CVqQuickButtonToolbar* bar = session.GetToolbars()->bar(bar_name);
    auto* control = bar ? dynamic_cast<CVqQuickControl*>(
                              bar->Toolbar().GetControlByName(control_name.toStdU16String().c_str()))
                        : nullptr;
    return control ? control->Item() : nullptr;
}

QQuickItem* named_item(const QQuickWindow& window, const QString& name)
{
    QList<QQuickItem*> open{window.contentItem()};
    while (!open.isEmpty()) {
        QQuickItem* item = open.takeFirst();
        if (item->objectName() == name && item->isVisible())
            return item;
        open << item->childItems();
    }
    return nullptr;
}

void send(QEvent::Type type, const QPointF& place, Qt::MouseButton button, Qt::MouseButtons buttons,
          QQuickWindow& window)
{
    QMouseEvent event(type, place, window.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
    QCoreApplication::processEvents();
}

void press_and_release(const QPointF& place, Qt::MouseButton button, QQuickWindow& window)
{
    send(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, window);
    send(QEvent::MouseButtonPress, place, button, button, window);
    send(QEvent::MouseButtonRelease, place, button, Qt::NoButton, window);
}

void drag(const QPointF& from, const QPointF& to, QQuickWindow& window)
{
    send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton, window);
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, window);
    for (int i = 1; i <= g_drag_moves; ++i)
        send(QEvent::MouseMove, from + (to - from) * i / g_drag_moves, Qt::NoButton, Qt::LeftButton, window);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton, window);
}

}

std::optional<MouseStep> ParseMouseStep(const QString& text)
{
    const QStringList words = text.simplified().split(u' ');
    const std::optional<MouseStep::Kind> kind = kind_of(words.front());
    if (!kind || words.size() != (*kind == MouseStep::Kind::Drag ? 3 : 2))
        return std::nullopt;
    return MouseStep{text, *kind, words[1], words.value(2)};
}

std::optional<QPointF> PlaceOf(const Session& session, const QQuickWindow& window, const QString& name)
{
    const qsizetype colon = name.lastIndexOf(u':');
    const QString whose = colon < 0 ? name : name.left(colon);
    const double share = colon < 0 ? 0.5 : name.mid(colon + 1).toDouble() / 100;
    const QString bar = whose.section(u'/', 0, 0);
    const QQuickItem* item = whose.contains(u'/') ? control_item(session, bar, whose.section(u'/', 1))
                                                  : named_item(window, whose);
    if (!item || !item->isVisible() || item->window() != &window)
        return std::nullopt;
    return item->mapToScene({item->width() * share, item->height() / 2});
}

bool SendMouseStep(const MouseStep& step, const Session& session, QQuickWindow& window)
{
    WaitForFrame(window); // what has just opened has no place before
    const std::optional<QPointF> from = PlaceOf(session, window, step.from);
    const std::optional<QPointF> to
        = step.kind == MouseStep::Kind::Drag ? PlaceOf(session, window, step.to) : from;
    if (!from || !to)
        return false;
    if (step.kind == MouseStep::Kind::Drag)
        drag(*from, *to, window);
    else
        press_and_release(*from, step.kind == MouseStep::Kind::Click ? Qt::LeftButton : Qt::RightButton,
                          window);
    return true;
}

}
