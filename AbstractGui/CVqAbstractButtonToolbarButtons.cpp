#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"
#include "system/CVqStringW.h"

#include <algorithm>

namespace {

constexpr int g_failed = -9;
constexpr int g_no_toolbar = -12;

}

IVqUIcontrol* CVqAbstractButtonToolbar::ControlFromId(vq_uint64 id)
{
    if (!m_pToolbar)
        return nullptr;
    if (id == m_uiCachedId && m_pCachedControl)
        return m_pCachedControl;
    clear_cache();
    return m_pToolbar->GetControl(id);
}

int CVqAbstractButtonToolbar::GetButtonsCount()
{
    return m_pToolbar ? m_pToolbar->GetIdCount() : 0;
}

vq_uint64 CVqAbstractButtonToolbar::GetButtonID(unsigned index, bool skipSeparators)
{
    clear_cache();
    unsigned at = 0;
    for (CVqList::CVqNode* node = m_pToolbar ? m_pToolbar->GetFirstNode() : nullptr; node;) {
        IVqUIcontrol* control = m_pToolbar->GetNextControl(node);
        if (!control || (skipSeparators && VqIsSeparator(*control)))
            continue;
        if (at++ == index)
            return remember(control->GetControlID(), control);
    }
    return 0;
}

vq_uint64 CVqAbstractButtonToolbar::FindButton(const vq_wchar* name)
{
    clear_cache();
    IVqUIcontrol* control = m_pToolbar ? m_pToolbar->GetControlByName(name) : nullptr;
    return control ? remember(control->GetControlID(), control) : 0;
}

int CVqAbstractButtonToolbar::RemoveButton(vq_uint64 id)
{
    m_bSeparatorsDirty = true;
    IVqUIcontrol* control = ControlFromId(id);
    if (!control)
        return 0;
    m_pToolbar->RemoveControl(*control);
    control->MarkToDeleteItself();
    if (m_uiCachedId == id)
        clear_cache();
    return 0;
}

int CVqAbstractButtonToolbar::RemoveAllControls()
{
    if (!m_pToolbar)
        return g_no_toolbar;
    begin_change();
    return m_pToolbar->RemoveAllControls();
}

bool CVqAbstractButtonToolbar::IsIDSeparator(vq_uint64 id)
{
    int value = 0;
    return m_pToolbar && m_pToolbar->GetControlState(id, vq_control_separator, 0, &value) == 0 && value != 0;
}

int CVqAbstractButtonToolbar::GetButtonName(vq_uint64 id, CVqStringW& name)
{
    return Get(id, vq_control_name, 0, &name);
}

int CVqAbstractButtonToolbar::SetButtonName(vq_uint64 id, const vq_wchar* name)
{
    CVqStringW text(name);
    return Set(id, vq_control_name, 0, &text);
}

int CVqAbstractButtonToolbar::SetButtonSize(vq_uint64 id, int width, int height)
{
    IVqUIcontrol* control = ControlFromId(id);
    return control ? control->SetControlSize({width, height}) : g_failed;
}

int CVqAbstractButtonToolbar::GetButtonSize(vq_uint64 id, CVqSizeBase<int>& size, int value)
{
    IVqUIcontrol* control = ControlFromId(id);
    return control ? control->GetControlSize(size, value) : g_failed;
}

int CVqAbstractButtonToolbar::SetButtonOptimalSize(vq_uint64 id)
{
    IVqUIcontrol* control = ControlFromId(id);
    if (!control)
        return g_failed;
    CVqSizeBase<int> present;
    CVqSizeBase<int> optimal;
    EOrientation orientation = EOrientation::Horizontal;
    control->GetControlSize(present, -1);
    control->SetControlSize({0, 0});
    control->GetControlSize(optimal, -1);
    m_pToolbar->GetOrientation(orientation);
    optimal.m_iHeight = orientation == EOrientation::Horizontal
        ? present.m_iHeight
        : std::max(optimal.m_iHeight, present.m_iHeight);
    control->SetControlSize(optimal);
    return 0;
}
