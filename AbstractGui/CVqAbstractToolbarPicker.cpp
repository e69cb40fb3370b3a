#include "AbstractGui/CVqAbstractToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"

#include <algorithm>

int CVqAbstractToolbar::length_of(IVqUIcontrol& control) const
{
    CVqSizeBase<int> size;
    control.GetControlSize(size, -1);
    return m_eOrientation == EOrientation::Horizontal ? size.m_iWidth : size.m_iHeight;
}

void CVqAbstractToolbar::tell_boundary(IVqUIcontrol* picker) const
{
    if (picker)
        picker->Set(vq_picker_boundary, 0, m_pBoundary);
}

bool CVqAbstractToolbar::is_behind_boundary(const IVqUIcontrol* control) const
{
    for (const CVqList::CVqNode* node = m_pBoundary; m_pControls && node; node = node->GetNext())
        if (m_pControls->GetData(node) == control)
            return true;
    return false;
}

bool CVqAbstractToolbar::MoveToPicker(IVqUIcontrol* picker, IVqUIcontrol* control, int extent, int limit)
{
    if (m_eType == EToolbarType::InPicker || !m_pControls || !picker || !control || picker == control)
        return false;
    vq_int64 room = limit;
    if (m_pControls->GetData(m_pBoundary) != picker)
        room -= length_of(*picker);
    if (extent <= room)
        return false;
    picker->Command(vq_picker_take, 0, control);
    return true;
}

// How far the control at the boundary may reach, and in `step` how far it would. Upright toolbars look at the
// next visible control only; lying ones keep room for the whole picker when two are to follow.
vq_int64 CVqAbstractToolbar::edge_limit(const IVqUIcontrol* picker, int picker_length, int limit,
                                        vq_int64& step) const
{
    const bool is_horizontal = m_eOrientation == EOrientation::Horizontal;
    const int counted = is_horizontal ? 2 : 1;
    int following = 0;
    vq_int64 reserve = 0;
    for (CVqList::CVqNode* node = m_pBoundary->GetNext(); node && following < counted;
         node = node->GetNext()) {
        IVqUIcontrol* control = VqControlAt(*m_pControls, node);
        if (control == picker)
            break;
        if (!control || !control->GetControlVisibility())
            continue;
        reserve = ++following == 1 ? std::min(length_of(*control), picker_length) : picker_length;
    }
    step += following > 0 ? 1 : 0;
    return limit - reserve;
}

bool CVqAbstractToolbar::MoveFromPicker(IVqUIcontrol* picker, int& position, int limit, bool)
{
    if (m_eType == EToolbarType::InPicker || !picker || !is_behind_boundary(picker))
        return false;
    const int picker_length = length_of(*picker);
    IVqUIcontrol* control = VqControlAt(*m_pControls, m_pBoundary);
    for (; control != picker; control = VqControlAt(*m_pControls, m_pBoundary)) {
        vq_int64 step = control ? length_of(*control) : 0;
        const vq_int64 farthest = edge_limit(picker, picker_length, limit, step);
        const vq_int64 edge = position + step;
        const bool is_visible = control && control->GetControlVisibility();
        if (is_visible && edge > farthest) {
            picker->SetControlVisibility(true);
            return true;
        }
        m_pBoundary = m_pBoundary->GetNext();
        tell_boundary(picker);
        if (is_visible)
            position = static_cast<int>(edge);
    }
    picker->SetControlVisibility(false);
    return true;
}
