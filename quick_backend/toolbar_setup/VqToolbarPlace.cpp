#include "quick_backend/toolbar_setup/VqToolbarPlace.h"

#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include <QQuickItem>

#include <algorithm>
#include <vector>

namespace {

constexpr qreal g_mark = 2; // its thickness

// A control in reading coordinates: x runs along a row from its beginning, y over the rows.
struct SVqSlot
{
    CVqQuickControl* m_control;
    QRectF m_rect;
};

// Between the area and reading coordinates. The area mirrors what stands in its columns, too.
class CVqReading
{
public:
    explicit CVqReading(const CVqQuickToolbarArea& area)
        : m_vertical(area.IsVertical()), m_mirrored(area.IsMirrored()), m_width(area.width())
    { }

    QRectF FromArea(const QRectF& rect) const { return Swap(Mirror(rect)); }
    QPointF FromArea(QPointF point) const { return FromArea(QRectF(point, QSizeF(0, 0))).topLeft(); }
    QRectF ToArea(const QRectF& rect) const { return Mirror(Swap(rect)); }

private:
    QRectF Mirror(const QRectF& rect) const
    {
        return m_mirrored ? QRectF(m_width - rect.right(), rect.y(), rect.width(), rect.height()) : rect;
    }

    QRectF Swap(const QRectF& rect) const
    {
        return m_vertical ? QRectF(rect.y(), rect.x(), rect.height(), rect.width()) : rect;
    }

    const bool m_vertical;
    const bool m_mirrored;
    const qreal m_width;
};

std::vector<SVqSlot> slots_of(CVqQuickToolbar& toolbar, const CVqQuickToolbarArea& area,
                              const CVqReading& reading)
{
    std::vector<SVqSlot> found;
    for (CVqList::CVqNode* node = toolbar.GetFirstNode(); node;) {
        auto* control = dynamic_cast<CVqQuickControl*>(toolbar.GetNextControl(node));
        if (!control || !control->IsShown() || !control->Item() || control->IsInPicker() != area.IsInPicker())
            continue;
        const QQuickItem& item = *control->Item();
        found.push_back({control, reading.FromArea(QRectF(item.position(), item.size()))});
    }
    return found;
}

bool lies_before(QPointF point, const SVqSlot& slot)
{
    return point.y() < slot.m_rect.top()
        || (point.y() < slot.m_rect.bottom() && point.x() < slot.m_rect.center().x());
}

// Rows overlap in y, whatever the breadth of their controls.
bool is_same_row(const SVqSlot& left, const SVqSlot& right)
{
    return left.m_rect.top() < right.m_rect.bottom() && right.m_rect.top() < left.m_rect.bottom();
}

QRectF mark_at(qreal x, const QRectF& row)
{
    return {std::max(0.0, x - g_mark / 2), row.top(), g_mark, row.height()};
}

// A single row counts as high as the area: a bar is hit above and below its buttons, too.
void widen_single_row(std::vector<SVqSlot>& slots, qreal breadth)
{
    const bool is_single = std::all_of(slots.begin(), slots.end(), [&slots](const SVqSlot& slot) {
        return is_same_row(slots.front(), slot);
    });
    for (SVqSlot& slot : slots)
        if (is_single)
            slot.m_rect = QRectF(slot.m_rect.left(), 0, slot.m_rect.width(), breadth);
}

}

SVqToolbarPlace VqToolbarPlace(CVqQuickToolbar& toolbar, const CVqQuickToolbarArea& area, QPointF point)
{
    const CVqReading reading(area);
    const QSizeF size = reading.FromArea(QRectF(QPointF(), area.size())).size();
    auto slots = slots_of(toolbar, area, reading);
    widen_single_row(slots, size.height());
    const QPointF at = reading.FromArea(point);
    const auto next = std::find_if(slots.begin(), slots.end(),
                                   [at](const SVqSlot& slot) { return lies_before(at, slot); });
    SVqToolbarPlace place;
    QRectF mark(0, 0, g_mark, size.height());
    const bool follows = next != slots.begin() && (next == slots.end() || !is_same_row(*(next - 1), *next));
    if (next != slots.begin())
        place.m_behind = (next - 1)->m_control;
    if (next != slots.end())
        place.m_before = next->m_control;
    if (follows)
        mark = mark_at((next - 1)->m_rect.right() + 0.5, (next - 1)->m_rect);
    else if (next != slots.end())
        mark = mark_at(next->m_rect.left() - 0.5, next->m_rect);
    place.m_mark = reading.ToArea(mark);
    return place;
}
