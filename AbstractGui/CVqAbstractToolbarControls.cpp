#include "AbstractGui/CVqAbstractToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"

namespace {

constexpr int g_failed = -9;

}

int CVqAbstractToolbar::AddControl(IVqUIcontrol& control, vq_uint64& id)
{
    if (!m_pControls || m_pControls->Find(&control) || !prepare_control(control))
        return g_failed;
    link_control(m_eType == EToolbarType::Main ? m_pControls->GetLast() : nullptr, control, id);
    m_bLayoutDirty = true;
    return 0;
}

int CVqAbstractToolbar::AddControlNoCreate(IVqUIcontrol& control, int&)
{
    if (m_eType != EToolbarType::InPicker || !m_pControls || !m_pControls->Find(&control))
        return g_failed;
    pass_settings(control);
    return 0;
}

int CVqAbstractToolbar::InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id)
{
    return insert_control(anchor, control, id, false);
}

int CVqAbstractToolbar::InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id)
{
    return insert_control(anchor, control, id, true);
}

int CVqAbstractToolbar::insert_control(const IVqUIcontrol& anchor, IVqUIcontrol& control, vq_uint64& id,
                                       bool after)
{
    if (!m_pControls || m_pControls->Find(&control))
        return g_failed;
    CVqList::CVqNode* place = m_pControls->Find(&anchor);
    if (!place)
        return g_failed;
    IVqUIcontrol* taker = lies_in_picker(place, after) ? picker() : nullptr;
    if (!prepare_control(control))
        return g_failed;
    link_control(after ? place->GetNext() : place, control, id);
    if (taker)
        taker->Command(vq_picker_take, 0, &control);
    m_bLayoutDirty = true;
    return 0;
}

void CVqAbstractToolbar::pass_settings(IVqUIcontrol& control) const
{
    int enlarge = m_bEnlargeEnabled ? 1 : 0;
    double zoom = m_dZoom;
    control.Set(vq_control_enlarge, 0, &enlarge);
    control.Set(vq_control_zoom, 0, &zoom);
}

// False when the control's widget could not be made; what the control was told until then stands.
bool CVqAbstractToolbar::prepare_control(IVqUIcontrol& control)
{
    pass_settings(control);
    if (m_hWindow != 0 && control.CreateUI(m_hWindow) == 0)
        return false;
    control.SetOrientation(m_eOrientation);
    control.SetFlatStyle(m_bFlatStyle);
    return true;
}

// In front of `next`, or at the end.
void CVqAbstractToolbar::link_control(CVqList::CVqNode* next, IVqUIcontrol& control, vq_uint64& id)
{
    if (next)
        m_pControls->Insert(next, &control);
    else
        m_pControls->Append(&control);
    VqHoldControl(*m_pControls, control);
    id = control.GetControlID();
    if (m_pControlIds)
        m_pControlIds->insert_or_assign(id, &control);
}

bool CVqAbstractToolbar::lies_in_picker(const CVqList::CVqNode* anchor, bool after) const
{
    if (m_eType != EToolbarType::Main)
        return false;
    for (const CVqList::CVqNode* node = m_pControls->GetFirst(); node != anchor; node = node->GetNext())
        if (node == m_pBoundary)
            return true;
    return after && anchor == m_pBoundary;
}

int CVqAbstractToolbar::RemoveControl(IVqUIcontrol& control)
{
    if (m_eType == EToolbarType::InPicker)
        return 0;
    if (m_pControlIds)
        m_pControlIds->erase(control.GetControlID());
    CVqList::CVqNode* node = m_pControls ? m_pControls->Find(&control) : nullptr;
    if (!node)
        return g_failed;
    // A renamed control is in the map under its old identifier, which would outlive it.
    if (m_pControlIds)
        std::erase_if(*m_pControlIds, [&control](const auto& entry) { return entry.second == &control; });
    if (node == m_pBoundary) {
        m_pBoundary = node->GetNext();
        if (m_eType == EToolbarType::Main)
            tell_boundary(picker());
    }
    control.DestroyUI();
    VqReleaseControl(*m_pControls, &control);
    m_pControls->DeleteNode(node);
    m_bLayoutDirty = true;
    return 0;
}

int CVqAbstractToolbar::RemoveAllControls()
{
    if (!m_pControls || m_eType == EToolbarType::InPicker)
        return 0;
    IVqUIcontrol* kept = m_eType == EToolbarType::Main ? picker() : nullptr;
    if (kept)
        m_pControls->DeleteNode(m_pControls->GetLast());
    m_pBoundary = nullptr;
    delete_controls();
    if (m_pControlIds)
        m_pControlIds->clear();
    if (kept) {
        m_pBoundary = m_pControls->Append(kept);
        tell_boundary(kept);
    }
    return 0;
}
