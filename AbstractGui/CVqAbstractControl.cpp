#include "AbstractGui/CVqAbstractControl.h"

#include "AbstractGui/CVqAbstractBitmapPool.h"
#include "system/VqQtText.h"

#include <algorithm>
#include <utility>

namespace {

// Tells if it changed.
bool put_bits(vq_uint32& word, vq_uint32 mask, vq_uint32 bits)
{
    const vq_uint32 before = word;
    word = (before & ~mask) | (bits & mask);
    return word != before;
}

QString to_qstring(const vq_wchar* text)
{
    return to_qview(VqView(text)).toString();
}

}

CVqAbstractControl::CVqAbstractControl(int type)
    : m_pStates(std::make_unique<SVqControlState[]>(MaxStates)),
      m_iPickerImage(
          CVqAbstractBitmapPool::AddImage(VQ_TEXT("k7_tile_assets.dll"), VQ_TEXT("PICKER_BR"), nullptr)),
      m_iType(type)
{ }

CVqAbstractControl::~CVqAbstractControl() = default;

vq_uint32 CVqAbstractControl::used_states() const
{
    return std::min(m_uiStateCount, MaxStates);
}

SVqControlState* CVqAbstractControl::state_at(vq_int64 index) const
{
    const auto number = static_cast<vq_uint32>(index);
    return number < used_states() ? &m_pStates[number] : nullptr;
}

SVqControlState* CVqAbstractControl::current_state() const
{
    const auto number = static_cast<vq_uint32>(m_iState);
    return number < MaxStates ? &m_pStates[number] : nullptr;
}

int CVqAbstractControl::type() const
{
    return m_iType;
}

void CVqAbstractControl::setType(int type)
{
    if (std::exchange(m_iType, type) != type)
        Q_EMIT typeChanged();
}

int CVqAbstractControl::state() const
{
    return m_iState;
}

void CVqAbstractControl::setState(int state)
{
    if (std::exchange(m_iState, state) == state)
        return;
    Q_EMIT stateChanged();
    Q_EMIT bitmapChanged();
    Q_EMIT labelChanged();
}

int CVqAbstractControl::bitmap() const
{
    const SVqControlState* state = current_state();
    return state ? state->m_bitmap : -1;
}

void CVqAbstractControl::setBitmap(int bitmap)
{
    SVqControlState* state = current_state();
    if (state && std::exchange(state->m_bitmap, bitmap) != bitmap)
        Q_EMIT bitmapChanged();
}

QString CVqAbstractControl::label() const
{
    const SVqControlState* state = current_state();
    return state ? to_qstring(state->m_text) : QString();
}

void CVqAbstractControl::setLabel(const QString& label)
{
    SVqControlState* state = current_state();
    if (!state || to_qstring(state->m_text) == label)
        return;
    state->m_text = CVqStringW::FromQString(label).GetString(); // ends at the first zero
    Q_EMIT labelChanged();
}

IVqUIcontrol::handler_type CVqAbstractControl::SetHandler(handler_type handler)
{
    return std::exchange(m_pHandler, handler);
}

IVqUIcontrol::handler_type CVqAbstractControl::GetHandler()
{
    return m_pHandler;
}

vq_uint64 CVqAbstractControl::CreateUI(vq_uint64)
{
    return 0;
}

void CVqAbstractControl::DestroyUI() { }

void CVqAbstractControl::MarkToDeleteItself()
{
    delete this;
}

int CVqAbstractControl::Enable(bool enable)
{
    if (put_bits(m_uiFlags, Disabled, enable ? 0 : Disabled))
        Q_EMIT stateChanged();
    return 0;
}

bool CVqAbstractControl::IsEnabled()
{
    return (m_uiFlags & Disabled) == 0;
}

void CVqAbstractControl::SetFlatStyle(bool flat)
{
    put_bits(m_uiStyle, FlatStyle, flat ? FlatStyle : 0);
}

void CVqAbstractControl::SetBoldText(bool) { }

void CVqAbstractControl::SetUnderlineText(bool) { }

int CVqAbstractControl::SetTextAlign(unsigned align)
{
    put_bits(m_uiStyle, TextAlignMask, align);
    return 0;
}

int CVqAbstractControl::SetPaintCallback(paint_callback_type callback, void* data)
{
    m_pPaintCallback = callback;
    m_pPaintData = data;
    return 0;
}

int CVqAbstractControl::SetSizeCallback(size_callback_type callback, void* data)
{
    m_pSizeCallback = callback;
    m_pSizeData = data;
    return 0;
}

int CVqAbstractControl::GetControlSize(CVqSizeBase<int>& size, int)
{
    if (m_size.m_iWidth >= 1 && m_size.m_iHeight >= 1 && m_eOrientation == EOrientation::Vertical)
        size = m_size;
    else if (m_pSizeCallback)
        m_pSizeCallback(size, this, m_pSizeData);
    return 0;
}

int CVqAbstractControl::SetControlSize(const CVqSizeBase<int>& size)
{
    m_size = size;
    return 0;
}

int CVqAbstractControl::SetControlPos(const CVqRectBase<int>&)
{
    return 0;
}

void CVqAbstractControl::SetControlVisibility(bool visible)
{
    if (std::exchange(m_bVisible, visible) != visible)
        Q_EMIT stateChanged();
}

bool CVqAbstractControl::GetControlVisibility()
{
    return m_bVisible;
}

vq_uint64 CVqAbstractControl::GetWindowHandle()
{
    return 0;
}

void CVqAbstractControl::SetDesriptionText(CVqStringW& text)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): `text` may be one of those that are set.
    const CVqStringW tooltip(text);
    for (vq_uint32 i = 0; i < used_states(); ++i)
        m_pStates[i].m_tooltip = tooltip;
}

void CVqAbstractControl::GetDesriptionText(CVqStringW& text)
{
    text = m_pStates[0].m_tooltip;
}

int CVqAbstractControl::SetOrientation(EOrientation orientation)
{
    m_eOrientation = orientation;
    return 0;
}

vq_uint64 CVqAbstractControl::GetControlID()
{
    return reinterpret_cast<vq_uint64>(m_strName.GetString());
}
