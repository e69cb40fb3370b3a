#include "quick_backend/toolbar_setup/CVqQuickToolbarDrag.h"

#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"
#include "quick_backend/toolbar_setup/VqToolbarPlace.h"

#include <QQmlEngine>
#include <QQuickItem>

#include <algorithm>

namespace {

CVqQuickToolbarArea* picker_area(CVqQuickButtonToolbar& bar)
{
    const CVqQuickPicker* picker = bar.Toolbar().Picker();
    return picker ? picker->Area() : nullptr;
}

CVqQuickControl* before_of(CVqQuickButtonToolbar& bar, const SVqToolbarPlace& place)
{
    return place.m_before || !place.m_behind ? place.m_before : VqNextOf(bar, *place.m_behind);
}

}

CVqQuickToolbarDrag::CVqQuickToolbarDrag(QObject* parent) : QObject(parent) { }

void CVqQuickToolbarDrag::SetSetup(CVqQuickToolbarSetup* setup)
{
    if (setup == m_setup)
        return;
    cancel();
    if (m_setup)
        disconnect(m_setup, nullptr, this, nullptr);
    m_setup = setup;
    if (setup) {
        connect(setup, &CVqQuickToolbarSetup::activeChanged, this, &CVqQuickToolbarDrag::cancel);
        connect(setup, &CVqQuickToolbarSetup::activeChanged, this, &CVqQuickToolbarDrag::areasChanged);
        connect(setup, &CVqQuickToolbarSetup::toolbarsChanged, this, &CVqQuickToolbarDrag::areasChanged);
    }
    Q_EMIT setupChanged();
    Q_EMIT areasChanged();
}

QList<CVqQuickToolbarArea*> CVqQuickToolbarDrag::Areas() const
{
    QList<CVqQuickToolbarArea*> areas;
    if (!m_setup || !m_setup->IsActive())
        return areas;
    for (CVqQuickButtonToolbar* bar : m_setup->Toolbars()) {
        areas << bar->Area();
        if (CVqQuickToolbarArea* area = picker_area(*bar))
            areas << area;
    }
    return areas;
}

QVariantList CVqQuickToolbarDrag::AreaValues() const
{
    QVariantList areas;
    for (CVqQuickToolbarArea* area : Areas())
        areas << QVariant::fromValue(area);
    return areas;
}

CVqQuickButtonToolbar* CVqQuickToolbarDrag::toolbarOf(CVqQuickToolbarArea* area) const
{
    for (CVqQuickButtonToolbar* bar : m_setup ? m_setup->Toolbars() : QList<CVqQuickButtonToolbar*>())
        if (area && (bar->Area() == area || picker_area(*bar) == area))
            return bar;
    return nullptr;
}

QQuickItem* CVqQuickToolbarDrag::picturedItem(CVqQuickControl* control) const
{
    const auto* general = qobject_cast<CVqQuickItemControl*>(control);
    QQuickItem* item = general ? general->Content() : nullptr;
    if (!general && control && control->Item())
        item = control->Item()->childItems().value(0);
    return item && qmlEngine(item) ? item : nullptr;
}

// An open picker lies over the bars.
CVqQuickToolbarArea* CVqQuickToolbarDrag::area_at(QPointF place) const
{
    auto areas = Areas();
    std::stable_partition(areas.begin(), areas.end(),
                          [](const CVqQuickToolbarArea* area) { return area->IsInPicker(); });
    for (CVqQuickToolbarArea* area : std::as_const(areas))
        if (area->window() && area->isVisible() && area->contains(area->mapFromScene(place)))
            return area;
    return nullptr;
}

bool CVqQuickToolbarDrag::begin(CVqQuickControl* control, const QString& command, QPointF place)
{
    cancel();
    m_control = control;
    m_command = command;
    Q_EMIT liftedChanged();
    moveTo(place);
    return true;
}

bool CVqQuickToolbarDrag::lift(CVqQuickControl* control, QPointF place)
{
    return m_setup && m_setup->IsActive() && m_setup->toolbarOf(control) && begin(control, {}, place);
}

bool CVqQuickToolbarDrag::liftCommand(const QString& command, QPointF place)
{
    return m_setup && m_setup->IsActive() && !command.isEmpty() && begin(nullptr, command, place);
}

void CVqQuickToolbarDrag::moveTo(QPointF place)
{
    if (!IsLifted())
        return;
    m_place = place;
    m_mark = {};
    CVqQuickToolbarArea* area = area_at(place);
    m_target = toolbarOf(area);
    if (m_target) {
        const SVqToolbarPlace found = VqToolbarPlace(m_target->Toolbar(), *area, area->mapFromScene(place));
        m_before = before_of(*m_target, found);
        m_mark = area->mapRectToScene(found.m_mark);
    }
    Q_EMIT placeChanged();
}

bool CVqQuickToolbarDrag::drop()
{
    if (!IsLifted() || !m_setup)
        return false;
    const QPointer<CVqQuickControl> control = m_control;
    const QString command = m_command;
    end();
    if (!control)
        return m_target && m_setup->addCommand(command, m_target, m_before);
    return m_target ? m_setup->move(control, m_target, m_before) : m_setup->remove(control);
}

void CVqQuickToolbarDrag::cancel()
{
    if (IsLifted())
        end();
}

void CVqQuickToolbarDrag::end()
{
    m_control = nullptr;
    m_command.clear();
    m_mark = {};
    Q_EMIT placeChanged();
    Q_EMIT liftedChanged();
}
