#include "AbstractGui/CVqAbstractToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"

namespace {

constexpr int g_failed = -9;

}

// The picker of a main toolbar; in one that has none, the last control stands in for it.
IVqUIcontrol* CVqAbstractToolbar::picker() const
{
    return m_pControls ? VqControlAt(*m_pControls, m_pControls->GetLast()) : nullptr;
}

CVqList::CVqNode* CVqAbstractToolbar::start() const
{
    if (!m_pControls)
        return nullptr;
    return m_eType == EToolbarType::InPicker ? m_pBoundary : m_pControls->GetFirst();
}

// True for the node of the picker, which walks don't show.
bool CVqAbstractToolbar::is_hidden_end(const CVqList::CVqNode* node) const
{
    const bool hides_last = m_eType == EToolbarType::Main || m_eType == EToolbarType::InPicker;
    return hides_last && node == m_pControls->GetLast();
}

CVqList::CVqNode* CVqAbstractToolbar::GetFirstNode()
{
    CVqList::CVqNode* node = start();
    return node && !is_hidden_end(node) ? node : nullptr;
}

IVqUIcontrol* CVqAbstractToolbar::GetNextControl(CVqList::CVqNode*& node)
{
    if (!node || !m_pControls)
        return nullptr;
    IVqUIcontrol* control = VqControlAt(*m_pControls, node);
    node = node->GetNext();
    if (is_hidden_end(node))
        node = nullptr;
    return control;
}

int CVqAbstractToolbar::SetOrientation(EOrientation orientation)
{
    m_eOrientation = orientation;
    if (!m_pControls)
        return g_failed;
    const bool in_picker = m_eType == EToolbarType::InPicker;
    bool is_shown = true;
    for (CVqList::CVqNode* node = start(); node; node = node->GetNext()) {
        if (node == m_pBoundary)
            is_shown = in_picker;
        if (is_hidden_end(node))
            is_shown = !in_picker;
        IVqUIcontrol* control = VqControlAt(*m_pControls, node);
        if (is_shown && control)
            control->SetOrientation(orientation);
    }
    return 0;
}

int CVqAbstractToolbar::ChangeToolbarOrientation(EOrientation orientation)
{
    m_eOrientation = orientation;
    if (!m_pControls)
        return g_failed;
    for (CVqList::CVqNode* node = start(); node; node = node->GetNext()) {
        IVqUIcontrol* control = VqControlAt(*m_pControls, node);
        int is_separator = 0;
        if (control)
            control->Get(vq_control_separator, 0, &is_separator);
        if (is_separator != 0)
            control->SetOrientation(orientation);
    }
    return 0;
}

void CVqAbstractToolbar::SetFlatStyle(bool flat)
{
    m_bFlatStyle = flat;
    if (m_eType == EToolbarType::InPicker || !m_pControls)
        return;
    for (CVqList::CVqNode* node = m_pControls->GetFirst(); node; node = node->GetNext())
        if (IVqUIcontrol* control = VqControlAt(*m_pControls, node))
            control->SetFlatStyle(flat);
}

int CVqAbstractToolbar::SetToolbarControlVisibility(const IVqUIcontrol& control, bool visible)
{
    CVqList::CVqNode* node = start();
    while (node && m_pControls->GetData(node) != &control)
        node = node->GetNext();
    if (!node)
        return g_failed;
    IVqUIcontrol* found = VqControlAt(*m_pControls, node);
    if (found->GetControlVisibility() != visible)
        m_bLayoutDirty = true;
    found->SetControlVisibility(visible);
    return 0;
}

IVqUIcontrol* CVqAbstractToolbar::GetControl(vq_uint64 id)
{
    if (!m_pControlIds)
        return nullptr;
    const auto found = m_pControlIds->find(id);
    if (found == m_pControlIds->end())
        return nullptr;
    if (m_pControls)
        VqCheckControl(*m_pControls, found->second);
    return found->second;
}

IVqUIcontrol* CVqAbstractToolbar::GetControlByName(const vq_wchar* name)
{
    if (VqLength(name) == 0)
        return nullptr;
    for (CVqList::CVqNode* node = start(); node && !is_hidden_end(node); node = node->GetNext()) {
        IVqUIcontrol* control = VqControlAt(*m_pControls, node);
        if (control && VqEquals(VqControlName(control->GetControlID()), name))
            return control;
    }
    return nullptr;
}

int CVqAbstractToolbar::SetControlState(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    IVqUIcontrol* control = GetControl(id);
    return control ? control->Set(code, index, data) : g_failed;
}

int CVqAbstractToolbar::GetControlState(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    IVqUIcontrol* control = GetControl(id);
    return control ? control->Get(code, index, data) : g_failed;
}

int CVqAbstractToolbar::ControlCommand(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    IVqUIcontrol* control = GetControl(id);
    return control ? control->Command(code, index, data) : g_failed;
}

int CVqAbstractToolbar::EnableControl(vq_uint64 id, bool enable)
{
    IVqUIcontrol* control = GetControl(id);
    return control ? control->Enable(enable) : g_failed;
}

bool CVqAbstractToolbar::IsControlEnabled(vq_uint64 id)
{
    IVqUIcontrol* control = GetControl(id);
    return control && control->IsEnabled();
}
