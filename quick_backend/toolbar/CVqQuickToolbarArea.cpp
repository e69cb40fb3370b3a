#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include "quick_backend/toolbar/CVqQuickControlItem.h"

#include <QQmlEngine>

#include <utility>

CVqQuickToolbarArea::CVqQuickToolbarArea(LayoutFunction layout, ControlsFunction controls, bool in_picker)
    : m_layout(std::move(layout)), m_controls(std::move(controls)), m_in_picker(in_picker)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

CVqQuickToolbarArea::~CVqQuickToolbarArea() = default;

void CVqQuickToolbarArea::SetLooks(CVqQuickToolbarLooks* looks)
{
    if (looks == m_looks)
        return;
    if (m_looks)
        disconnect(m_looks, nullptr, this, nullptr);
    m_looks = looks;
    if (looks)
        connect(looks, &QObject::destroyed, this, &CVqQuickToolbarArea::refresh_looks);
    refresh_looks();
}

// Looks end with the components that they were made of.
void CVqQuickToolbarArea::refresh_looks()
{
    for (QQuickItem* child : childItems()) {
        if (auto* item = qobject_cast<CVqQuickControlItem*>(child)) {
            item->DropLook();
            item->EnsureLook();
        }
    }
    Q_EMIT looksChanged();
}

void CVqQuickToolbarArea::SetMirrored(bool mirrored)
{
    if (mirrored == m_mirrored)
        return;
    m_mirrored = mirrored;
    polish();
    Q_EMIT mirroredChanged();
}

void CVqQuickToolbarArea::SetAppearance(bool vertical, const QColor& background, bool customizing)
{
    if (vertical == m_vertical && background == m_background && customizing == m_customizing)
        return;
    m_vertical = vertical;
    m_background = background;
    m_customizing = customizing;
    Q_EMIT appearanceChanged();
}

// A customised bar is walked through whole, since disabled buttons are moved, too.
QList<CVqQuickControl*> CVqQuickToolbarArea::stops() const
{
    QList<CVqQuickControl*> controls = m_controls();
    controls.removeIf([this](const CVqQuickControl* control) {
        return !m_customizing
            && (control->GetKind() == CVqQuickControl::Separator || !control->IsEnabledNow());
    });
    return controls;
}

CVqQuickControl* CVqQuickToolbarArea::nextControl(CVqQuickControl* from, int step) const
{
    const QList<CVqQuickControl*> controls = stops();
    if (controls.isEmpty())
        return nullptr;
    const qsizetype place = controls.indexOf(from);
    if (place < 0)
        return step > 0 ? controls.first() : controls.last();
    return controls.at((place + step + controls.size()) % controls.size());
}

CVqQuickControl* CVqQuickToolbarArea::entryControl() const
{
    const QList<CVqQuickControl*> controls = stops();
    return controls.contains(m_entry) ? m_entry.data() : controls.value(0);
}

CVqQuickControl* CVqQuickToolbarArea::controlAt(qreal x, qreal y) const
{
    const auto* item = qobject_cast<CVqQuickControlItem*>(childAt(x, y));
    return item ? &item->Control() : nullptr;
}

CVqQuickControl* CVqQuickToolbarArea::controlOf(QQuickItem* item) const
{
    while (item && item->parentItem() != this)
        item = item->parentItem();
    const auto* frame = qobject_cast<CVqQuickControlItem*>(item);
    return frame ? &frame->Control() : nullptr;
}

void CVqQuickToolbarArea::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        polish();
}

void CVqQuickToolbarArea::updatePolish()
{
    m_layout();
}
