#include "AbstractGui/CVqAbstractButtonToolbar.h"

#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqControlList.h"
#include "AbstractGui/VqHiddenToolbarButtons.h"

namespace {

constexpr int g_failed = -9;

}

CVqAbstractButtonToolbar::CVqAbstractButtonToolbar() = default;
CVqAbstractButtonToolbar::CVqAbstractButtonToolbar(const CVqAbstractButtonToolbar& other) = default;
CVqAbstractButtonToolbar& CVqAbstractButtonToolbar::operator=(const CVqAbstractButtonToolbar& other)
    = default;

CVqAbstractButtonToolbar::~CVqAbstractButtonToolbar()
{
    delete m_pToolbar;
    m_pToolbar = nullptr;
}

bool CVqAbstractButtonToolbar::Init(bool orientation, EToolbarType type)
{
    if (!m_pToolbar)
        return false;
    m_eOrientation = orientation ? EOrientation::Vertical : EOrientation::Horizontal;
    m_eType = type;
    return true;
}

void CVqAbstractButtonToolbar::SetCallbackFunc(callback_type callback, void* data)
{
    m_pCallback = callback;
    m_pCallbackData = data;
}

CVqAbstractButtonToolbar::callback_type CVqAbstractButtonToolbar::GetCallbackFunc()
{
    return m_pCallback;
}

int CVqAbstractButtonToolbar::Set(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    return m_pToolbar ? m_pToolbar->SetControlState(id, code, index, data) : g_failed;
}

int CVqAbstractButtonToolbar::Get(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    return m_pToolbar ? m_pToolbar->GetControlState(id, code, index, data) : g_failed;
}

int CVqAbstractButtonToolbar::Command(vq_uint64 id, unsigned code, vq_int64 index, void* data)
{
    return m_pToolbar ? m_pToolbar->ControlCommand(id, code, index, data) : g_failed;
}

void CVqAbstractButtonToolbar::SetCheck(vq_uint64 id, bool check)
{
    int value = check ? 1 : 0;
    if (m_pToolbar)
        m_pToolbar->SetControlState(id, vq_control_check, 0, &value);
}

bool CVqAbstractButtonToolbar::GetCheck(vq_uint64 id)
{
    int value = 0;
    if (m_pToolbar)
        m_pToolbar->GetControlState(id, vq_control_check, 0, &value);
    return value != 0;
}

void CVqAbstractButtonToolbar::Enable(vq_uint64 id, bool enable)
{
    if (m_pToolbar)
        m_pToolbar->EnableControl(id, enable);
}

void CVqAbstractButtonToolbar::EnableAll(bool enable)
{
    m_bEnabledAll = enable;
    if (!m_pToolbar)
        return;
    for (CVqList::CVqNode* node = m_pToolbar->GetFirstNode(); node;)
        if (IVqUIcontrol* control = m_pToolbar->GetNextControl(node))
            control->Enable(enable);
}

bool CVqAbstractButtonToolbar::IsEnabled(vq_uint64 id)
{
    return m_pToolbar && m_pToolbar->IsControlEnabled(id);
}

bool CVqAbstractButtonToolbar::IsEnabledAll()
{
    return m_bEnabledAll;
}

void CVqAbstractButtonToolbar::SetButtonVisibility(vq_uint64 id, bool visible)
{
    m_bSeparatorsDirty = true;
    if (const IVqUIcontrol* control = ControlFromId(id))
        m_pToolbar->SetToolbarControlVisibility(*control, visible);
}

bool CVqAbstractButtonToolbar::GetButtonVisibility(vq_uint64 id)
{
    IVqUIcontrol* control = ControlFromId(id);
    return control && control->GetControlVisibility() && !is_listed_as_hidden(*control);
}

bool CVqAbstractButtonToolbar::is_listed_as_hidden(IVqUIcontrol& control) const
{
    return VQ_IsToolbarButtonSetAsHidden(m_pToolbar->GetName(), VqControlName(control.GetControlID()));
}

EToolbarType CVqAbstractButtonToolbar::GetToolbarType()
{
    return m_eType;
}

vq_uint64 CVqAbstractButtonToolbar::GetToolbarHandle()
{
    return m_hToolbar;
}

void CVqAbstractButtonToolbar::ShowToolbarSetup(vq_uint64, CVqVariant&, vq_uint64, bool, setup_callback_type)
{ }

void CVqAbstractButtonToolbar::ResetAllControlSizesOnToolbar() { }

CVqAbstractToolbar* CVqAbstractButtonToolbar::CreateToolbar()
{
    return nullptr;
}

IVqUIcontrol* CVqAbstractButtonToolbar::CreateControlButton(bool)
{
    return nullptr;
}

IVqUIcontrol* CVqAbstractButtonToolbar::CreateTextButton()
{
    return nullptr;
}

IVqUIcontrol* CVqAbstractButtonToolbar::CreateSeparator()
{
    return nullptr;
}

bool CVqAbstractButtonToolbar::StartDrag(SVqUiEvent&)
{
    return false;
}
