#include "AbstractGui/CVqAbstractControl.h"
#include "AbstractGui/SVqControlStateInfo.h"
#include "AbstractGui/VqControlCodes.h"

#include <algorithm>

namespace {

constexpr int failed = -9;
constexpr int bad_index = -17;

template <class Value>
int give(void* data, const Value& value)
{
    if (!data)
        return failed;
    *static_cast<Value*>(data) = value;
    return 0;
}

template <class Value>
int give(void* data, const SVqControlState* state, Value SVqControlState::* field)
{
    return state ? give(data, state->*field) : bad_index;
}

template <class Value>
int take(const void* data, Value& target)
{
    if (!data)
        return failed;
    target = *static_cast<const Value*>(data);
    return 0;
}

template <class Value>
int take(const void* data, SVqControlState* state, Value SVqControlState::* field)
{
    return state ? take(data, state->*field) : 0;
}

template <class Use>
int take_number(const void* data, Use use)
{
    if (!data)
        return failed;
    use(*static_cast<const vq_int32*>(data));
    return 0;
}

int read_state(const SVqControlState* state, SVqControlStateInfo* info)
{
    if (!state || !info)
        return failed;
    const auto give_text = [](const CVqStringW& text, const vq_wchar*& target) {
        if (!text.IsEmpty())
            target = text;
    };
    if (state->m_bitmap > -1)
        info->bitmap = state->m_bitmap;
    give_text(state->m_text, info->text);
    give_text(state->m_command, info->command);
    give_text(state->m_tooltip, info->tooltip);
    return 0;
}

int write_state(SVqControlState* state, const SVqControlStateInfo* info)
{
    if (!state || !info)
        return failed;
    // Copied before any is stored: a text may be another one of this state, as reading gave it.
    const CVqStringW text(info->text);
    const CVqStringW command(info->command);
    const CVqStringW tooltip(info->tooltip);
    state->m_bitmap = info->bitmap;
    if (info->text)
        state->m_text = text;
    if (info->command)
        state->m_command = command;
    if (info->tooltip)
        state->m_tooltip = tooltip;
    return 0;
}

}

int CVqAbstractControl::Get(unsigned code, vq_int64 index, void* data)
{
    switch (code) {
    case vq_control_state:
        return give(data, m_iState);
    case vq_control_check:
        return give(data, m_uiFlags & Checked);
    case vq_control_value:
        return give(data, m_uiValue);
    case vq_control_command:
        return give(data, state_at(index), &SVqControlState::m_command);
    case vq_control_text:
        return give(data, state_at(index), &SVqControlState::m_text);
    case vq_control_tooltip:
        return give(data, state_at(index), &SVqControlState::m_tooltip);
    case vq_control_bitmap:
        return give(data, state_at(index), &SVqControlState::m_bitmap);
    case vq_control_name:
        return give(data, m_strName);
    case vq_control_separator:
        return give(data, 0);
    default:
        return failed;
    }
}

int CVqAbstractControl::Set(unsigned code, vq_int64 index, void* data)
{
    const auto told = [this](int result, auto signal) {
        if (result == 0)
            (this->*signal)();
        return result;
    };
    SVqControlState* state = state_at(index);
    switch (code) {
    case vq_control_state:
        return take_number(data, [this](vq_int32 number) { setState(number); });
    case vq_control_check:
        return take_number(
            data, [this](vq_int32 on) { m_uiFlags = on ? m_uiFlags | Checked : m_uiFlags & ~Checked; });
    case vq_control_value:
        return take(data, m_uiValue);
    case vq_control_command:
        return take(data, state, &SVqControlState::m_command);
    case vq_control_text:
        return told(take(data, state, &SVqControlState::m_text), &CVqAbstractControl::labelChanged);
    case vq_control_tooltip:
        return take(data, state, &SVqControlState::m_tooltip);
    case vq_control_bitmap:
        return told(take(data, state, &SVqControlState::m_bitmap), &CVqAbstractControl::bitmapChanged);
    case vq_control_name:
        return take(data, m_strName);
    case vq_control_translate_tooltip:
        return take_number(data, [this](vq_int32 on) { m_bTranslateTooltip = on > 0; });
    default:
        return failed;
    }
}

int CVqAbstractControl::Command(unsigned code, vq_int64 index, void* data)
{
    auto* info = static_cast<SVqControlStateInfo*>(data);
    switch (code) {
    case vq_control_read_state:
        return read_state(state_at(index), info);
    case vq_control_delete_state:
        return delete_state(index);
    case vq_control_write_state:
        if (write_state(state_at(index), info) != 0)
            return failed;
        Q_EMIT bitmapChanged();
        return 0;
    case vq_control_clear_states:
        m_uiStateCount = 0;
        return 0;
    default:
        return failed;
    }
}

int CVqAbstractControl::delete_state(vq_int64 index)
{
    SVqControlState* state = state_at(index);
    if (!state)
        return failed;
    // Copied, not moved: the place that falls out of use keeps its texts, which bitmap() and label() may
    // show.
    std::copy(state + 1, &m_pStates[0] + used_states(), state);
    m_uiStateCount = used_states() - 1;
    if (static_cast<vq_uint32>(m_iState) >= m_uiStateCount)
        m_iState = 0;
    return 0;
}
