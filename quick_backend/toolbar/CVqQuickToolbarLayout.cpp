#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <limits>

// Lengths run along the main axis of the toolbar, breadths across it; in a size of axes the width is the
// length.

namespace {

constexpr int g_space = 1;         // between two controls; the same that the abstract toolbar reckons with
constexpr int g_line_length = 280; // of one line in a picker's popup

bool is_separator(IVqUIcontrol& control)
{
    vq_int32 value = 0;
    return control.Get(vq_control_separator, 0, &value) == 0 && value != 0;
}

}

/// Where something lies: from m_along and m_across on, with borders.
struct CVqQuickToolbar::SPlace
{
    int m_along;
    int m_across;
    int m_length;
    int m_breadth;
};

CVqSizeBase<int> CVqQuickToolbar::swapped(CVqSizeBase<int> size) const
{
    return IsHorizontal() ? size : CVqSizeBase<int>{size.m_iHeight, size.m_iWidth};
}

CVqRectBase<int> CVqQuickToolbar::axes_of_borders() const
{
    return IsHorizontal()
        ? m_borders
        : CVqRectBase<int>{m_borders.m_iTop, m_borders.m_iLeft, m_borders.m_iBottom, m_borders.m_iRight};
}

CVqSizeBase<int> CVqQuickToolbar::axes_of(IVqUIcontrol& control) const
{
    CVqSizeBase<int> size;
    control.GetControlSize(size, -1);
    return swapped({std::max(size.m_iWidth, 0), std::max(size.m_iHeight, 0)});
}

const CVqList::CVqNode* CVqQuickToolbar::picker_node() const
{
    return m_pControls && (m_picker || m_eType == EToolbarType::InPicker) ? m_pControls->GetLast() : nullptr;
}

// Measuring --------------------------------------------------------------------------------------------

// Each control is asked for its size once in a pass, since callbacks may answer.
CVqQuickToolbar::Slots CVqQuickToolbar::measure(CVqList::CVqNode* first) const
{
    Slots slots;
    slots.reserve(m_slots.size());
    const CVqList::CVqNode* end = picker_node();
    int edge = -g_space;
    for (CVqList::CVqNode* node = first; node && node != end; node = node->GetNext()) {
        IVqUIcontrol* control = control_of(node);
        if (!control)
            continue;
        auto* quick = dynamic_cast<CVqQuickControl*>(control);
        SSlot slot{node, control, quick, quick ? quick->IsShown() : control->GetControlVisibility(), {}};
        if (slot.m_shown) {
            slot.m_size = axes_of(*control);
            slot.m_separator = is_separator(*control);
            edge += g_space + slot.m_size.m_iWidth;
        }
        slot.m_far_edge = std::max(edge, 0);
        slots.push_back(slot);
    }
    return slots;
}

CVqSizeBase<int> CVqQuickToolbar::full_size(const Slots& slots) const
{
    const CVqRectBase<int> borders = axes_of_borders();
    CVqSizeBase<int> axes{slots.empty() ? 0 : slots.back().m_far_edge,
                          m_picker ? axes_of(*m_picker).m_iHeight : 0};
    for (const SSlot& slot : slots)
        axes.m_iHeight = std::max(axes.m_iHeight, slot.m_size.m_iHeight);
    return swapped({axes.m_iWidth + borders.m_iLeft + borders.m_iRight,
                    axes.m_iHeight + borders.m_iTop + borders.m_iBottom});
}

CVqSizeBase<int> CVqQuickToolbar::FullSize() const
{
    return full_size(m_pControls ? measure(m_pControls->GetFirst()) : Slots());
}

void CVqQuickToolbar::Layout()
{
    if (m_laying_out || !m_area || !m_pControls)
        return;
    const QScopedValueRollback laying_out(m_laying_out, true);
    if (m_tidy)
        m_tidy();
    const bool is_popup = m_eType == EToolbarType::InPicker;
    Slots slots = measure(is_popup ? m_pBoundary : m_pControls->GetFirst());
    const bool changed = m_bLayoutDirty || slots != m_slots;
    m_bLayoutDirty = false;
    m_slots = std::move(slots);
    if (is_popup)
        place_lines();
    else
        lay_out_bar(changed);
}

void CVqQuickToolbar::lay_out_bar(bool changed)
{
    m_area->SetFullSize(full_size(m_slots));
    const CVqSizeBase<int> axes = swapped({int(m_area->width()), int(m_area->height())});
    const CVqRectBase<int> borders = axes_of_borders();
    const std::size_t fitting = fit(axes.m_iWidth - borders.m_iLeft - borders.m_iRight);
    place_row(fitting, axes);
    if (!m_picker)
        return;
    place_picker(axes);
    if (changed || m_picker->Popup().m_bLayoutDirty)
        m_picker->Popup().Layout();
}

// What fits --------------------------------------------------------------------------------------------

void CVqQuickToolbar::take_all_out()
{
    int position = 0;
    MoveFromPicker(m_picker, position, std::numeric_limits<int>::max(), false);
}

// How many MoveToPicker() leaves on the toolbar when it begins at the end: all, or as many as leave room for
// the picker. Asked first, so that nothing moves where nothing is to change.
std::size_t CVqQuickToolbar::count_fitting(int limit) const
{
    if (m_slots.empty() || m_slots.back().m_far_edge <= limit)
        return m_slots.size();
    const vq_int64 room = vq_int64(limit) - axes_of(*m_picker).m_iWidth;
    const auto first = std::partition_point(m_slots.begin(), m_slots.end(),
                                            [room](const SSlot& slot) { return slot.m_far_edge <= room; });
    return std::size_t(first - m_slots.begin());
}

std::size_t CVqQuickToolbar::fit(int limit)
{
    if (!m_picker)
        return m_slots.size();
    const std::size_t fitting = count_fitting(limit);
    const auto first = m_slots.begin() + std::ptrdiff_t(fitting);
    if (m_pBoundary != (first == m_slots.end() ? picker_node() : first->m_node))
        move_boundary(fitting, limit);
    const bool holds = std::any_of(first, m_slots.end(), [](const SSlot& slot) { return slot.m_shown; });
    m_picker->SetControlVisibility(holds);
    if (!holds)
        m_picker->SetOpened(false);
    return fitting;
}

void CVqQuickToolbar::move_boundary(std::size_t fitting, int limit)
{
    const auto is_boundary = [this](const SSlot& slot) { return slot.m_node == m_pBoundary; };
    auto boundary = std::find_if(m_slots.begin(), m_slots.end(), is_boundary);
    const auto target = m_slots.begin() + std::ptrdiff_t(fitting);
    if (boundary < target) {
        take_all_out();
        boundary = m_slots.end();
    }
    while (boundary != target) {
        --boundary;
        MoveToPicker(m_picker, boundary->m_control, boundary->m_far_edge, limit);
        m_pBoundary = boundary->m_node;
    }
    m_picker->Set(vq_picker_boundary, 0, m_pBoundary);
}

// Places -----------------------------------------------------------------------------------------------

void CVqQuickToolbar::attach(const SSlot& slot)
{
    QQuickItem* item = slot.m_quick ? slot.m_quick->Item() : nullptr;
    if (!item)
        return;
    slot.m_quick->SetInPicker(m_area->IsInPicker());
    item->setParentItem(m_area);
    item->setVisible(slot.m_shown);
}

void CVqQuickToolbar::place(IVqUIcontrol& control, const SPlace& place, int whole_width)
{
    CVqRectBase<int> rect
        = {place.m_along, place.m_across, place.m_along + place.m_length, place.m_across + place.m_breadth};
    if (!IsHorizontal())
        rect = {rect.m_iTop, rect.m_iLeft, rect.m_iBottom, rect.m_iRight};
    if (m_area->IsMirrored())
        rect = {whole_width - rect.m_iRight, rect.m_iTop, whole_width - rect.m_iLeft, rect.m_iBottom};
    control.SetControlPos(rect);
}

// Separators reach over the whole breadth, all else stands in its middle.
void CVqQuickToolbar::place_slot(const SSlot& slot, const SPlace& room, int whole_width)
{
    const int breadth = slot.m_separator ? room.m_breadth : std::min(slot.m_size.m_iHeight, room.m_breadth);
    const int across = room.m_across + (room.m_breadth - breadth) / 2;
    place(*slot.m_control, {room.m_along, across, room.m_length, breadth}, whole_width);
}

void CVqQuickToolbar::place_row(std::size_t count, CVqSizeBase<int> axes)
{
    const CVqRectBase<int> borders = axes_of_borders();
    const int breadth = std::max(axes.m_iHeight - borders.m_iTop - borders.m_iBottom, 0);
    const int width = int(m_area->width());
    int along = borders.m_iLeft;
    for (std::size_t at = 0; at < count; ++at) {
        const SSlot& slot = m_slots[at];
        attach(slot);
        if (!slot.m_shown)
            continue;
        place_slot(slot, {along, borders.m_iTop, slot.m_size.m_iWidth, breadth}, width);
        along += slot.m_size.m_iWidth + g_space;
    }
}

void CVqQuickToolbar::place_picker(CVqSizeBase<int> axes)
{
    const CVqRectBase<int> borders = axes_of_borders();
    const int breadth = std::max(axes.m_iHeight - borders.m_iTop - borders.m_iBottom, 0);
    const CVqSizeBase<int> own = axes_of(*m_picker);
    const int along = std::max(borders.m_iLeft, axes.m_iWidth - borders.m_iRight - own.m_iWidth);
    const SSlot slot{nullptr, m_picker, m_picker, m_picker->IsShown(), own};
    attach(slot);
    place_slot(slot, {along, borders.m_iTop, own.m_iWidth, breadth}, int(m_area->width()));
}

void CVqQuickToolbar::place_lines()
{
    int breadth = 0;
    for (const SSlot& slot : m_slots)
        breadth = std::max(breadth, slot.m_size.m_iHeight);
    const CVqRectBase<int> borders = axes_of_borders();
    std::vector<SPlace> rooms;
    CVqSizeBase<int> all;
    int along = 0;
    int across = 0;
    for (const SSlot& slot : m_slots) {
        const int length = slot.m_size.m_iWidth;
        if (slot.m_shown && along > 0 && along + length > g_line_length) {
            along = 0;
            across += breadth + g_space;
        }
        rooms.push_back({borders.m_iLeft + along, borders.m_iTop + across, length, breadth});
        if (!slot.m_shown)
            continue;
        all = {std::max(all.m_iWidth, along + length), across + breadth};
        along += length + g_space;
    }
    const CVqSizeBase<int> size = swapped({all.m_iWidth + borders.m_iLeft + borders.m_iRight,
                                           all.m_iHeight + borders.m_iTop + borders.m_iBottom});
    m_area->SetFullSize(size);
    for (std::size_t at = 0; at < m_slots.size(); ++at) {
        attach(m_slots[at]);
        if (m_slots[at].m_shown)
            place_slot(m_slots[at], rooms[at], size.m_iWidth);
    }
}
