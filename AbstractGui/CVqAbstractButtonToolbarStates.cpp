#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "AbstractGui/VqControlCodes.h"
#include "system/CVqStringW.h"

namespace {

constexpr int g_failed = -9;
constexpr int g_no_image = -1;

constinit VqAskForBitmapCallback g_ask_for_bitmap = nullptr;

// Null is no error, and the control's result is not looked at: always 0.
int send_text(IVqUIcontrol* control, unsigned code, unsigned state, const vq_wchar* text)
{
    CVqStringW value(text);
    if (control)
        control->Set(code, state, &value);
    return 0;
}

}

void VQ_SetAskForBitmapCallback(VqAskForBitmapCallback callback)
{
    g_ask_for_bitmap = callback;
}

VqAskForBitmapCallback VQ_GetAskForBitmapCallback()
{
    return g_ask_for_bitmap;
}

int CVqAbstractButtonToolbar::SetStatesCountOnButton(vq_uint64 id, unsigned count)
{
    return Set(id, vq_control_state_count, 0, &count);
}

int CVqAbstractButtonToolbar::GetStatesCountOnButton(vq_uint64 id, unsigned& count)
{
    return Get(id, vq_control_state_count, 0, &count);
}

int CVqAbstractButtonToolbar::SetTextsOnButton(vq_uint64 id, unsigned state, const vq_wchar* tooltip,
                                               const vq_wchar* text, const vq_wchar* command)
{
    IVqUIcontrol* control = ControlFromId(id);
    send_text(control, vq_control_tooltip, state, tooltip);
    send_text(control, vq_control_text, state, text);
    return send_text(control, vq_control_command, state, command);
}

int CVqAbstractButtonToolbar::SetTooltipOnButton(vq_uint64 id, unsigned state, const vq_wchar* tooltip)
{
    return send_text(ControlFromId(id), vq_control_tooltip, state, tooltip);
}

int CVqAbstractButtonToolbar::SetCommandOnButton(vq_uint64 id, unsigned state, const vq_wchar* command)
{
    return send_text(ControlFromId(id), vq_control_command, state, command);
}

int CVqAbstractButtonToolbar::GetTextOnButton(vq_uint64 id, unsigned state, CVqStringW& text)
{
    return m_pToolbar ? Get(id, vq_control_text, state, &text) : g_failed;
}

int CVqAbstractButtonToolbar::GetTooltipOnButton(vq_uint64 id, unsigned state, CVqStringW& tooltip)
{
    return m_pToolbar ? Get(id, vq_control_tooltip, state, &tooltip) : g_failed;
}

int CVqAbstractButtonToolbar::GetCommandOnButton(vq_uint64 id, unsigned state, CVqStringW& command)
{
    return m_pToolbar ? Get(id, vq_control_command, state, &command) : g_failed;
}

int CVqAbstractButtonToolbar::SetButtonTextAlign(vq_uint64 id, unsigned align)
{
    if (!m_pToolbar)
        return g_failed;
    IVqUIcontrol* control = ControlFromId(id);
    return control ? control->SetTextAlign(align) : 0;
}

int CVqAbstractButtonToolbar::SetBitmapOnButton(vq_uint64 id, unsigned state, unsigned index)
{
    if (m_pToolbar)
        Set(id, vq_control_bitmap, state, &index);
    return 0;
}

int CVqAbstractButtonToolbar::SetBitmapOnButton(vq_uint64 id, unsigned state, const vq_wchar* file)
{
    const int index = CVqAbstractBitmapPool::AddImage(file, nullptr, nullptr);
    return SetBitmapOnButton(id, state, static_cast<unsigned>(index));
}

int CVqAbstractButtonToolbar::SetBitmapOnButton(vq_uint64 id, unsigned state, const vq_wchar* file,
                                                const vq_wchar* module)
{
    return SetBitmapOnButton(id, state, static_cast<unsigned>(GetBitmapIndex(file, module)));
}

int CVqAbstractButtonToolbar::GetBitmap(vq_uint64 id, unsigned state)
{
    int index = g_no_image;
    if (m_pToolbar)
        Get(id, vq_control_bitmap, state, &index);
    return index;
}

int CVqAbstractButtonToolbar::GetBitmapIndex(const vq_wchar* file, const vq_wchar* module)
{
    const int asked = g_ask_for_bitmap ? g_ask_for_bitmap(this, file, module) : g_no_image;
    return asked >= 0 ? asked : CVqAbstractBitmapPool::AddImage(file, module, nullptr);
}
