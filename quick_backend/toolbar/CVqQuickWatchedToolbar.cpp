#include "quick_backend/toolbar/CVqQuickWatchedToolbar.h"

#include "quick_backend/toolbar/CVqQuickControl.h"

#include <utility>

void CVqQuickWatchedToolbar::SetControlFunctions(ControlFunction came, ControlFunction gone)
{
    m_came = std::move(came);
    m_gone = std::move(gone);
}

int CVqQuickWatchedToolbar::tell(int result, IVqUIcontrol& control, const ControlFunction& function)
{
    auto* quick = dynamic_cast<CVqQuickControl*>(&control);
    if (result == 0 && quick && function)
        function(*quick);
    return result;
}

void CVqQuickWatchedToolbar::tell_all_gone()
{
    for (CVqList::CVqNode* node = GetFirstNode(); node;)
        if (IVqUIcontrol* control = GetNextControl(node))
            tell(0, *control, m_gone);
}

vq_uint64 CVqQuickWatchedToolbar::CreateUI(vq_uint64 parent, EToolbarType type, const vq_wchar* name)
{
    tell_all_gone(); // the base destroys what was there
    return CVqQuickToolbar::CreateUI(parent, type, name);
}

void CVqQuickWatchedToolbar::DestroyUI()
{
    tell_all_gone();
    CVqQuickToolbar::DestroyUI();
}

int CVqQuickWatchedToolbar::AddControl(IVqUIcontrol& control, vq_uint64& id)
{
    return tell(CVqQuickToolbar::AddControl(control, id), control, m_came);
}

int CVqQuickWatchedToolbar::InsertControlBefore(const IVqUIcontrol& anchor, IVqUIcontrol& control,
                                                vq_uint64& id)
{
    return tell(CVqQuickToolbar::InsertControlBefore(anchor, control, id), control, m_came);
}

int CVqQuickWatchedToolbar::InsertControlAfter(const IVqUIcontrol& anchor, IVqUIcontrol& control,
                                               vq_uint64& id)
{
    return tell(CVqQuickToolbar::InsertControlAfter(anchor, control, id), control, m_came);
}

int CVqQuickWatchedToolbar::RemoveControl(IVqUIcontrol& control)
{
    return tell(CVqQuickToolbar::RemoveControl(control), control, m_gone);
}

int CVqQuickWatchedToolbar::RemoveAllControls()
{
    tell_all_gone();
    return CVqQuickToolbar::RemoveAllControls();
}
