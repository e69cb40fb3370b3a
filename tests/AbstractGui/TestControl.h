#pragma once

#include "AbstractGui/CVqAbstractControl.h"
#include "tests/support/TestMenu.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// A control for tests: notes its signals in order, shows what it holds, and opens what it keeps to itself.
///
///     TestControl control;
///     control.setState(1);
///     EXPECT_THAT(control.TakeSignals(), ElementsAre("state", "bitmap", "label"));
class TestControl : public CVqAbstractControl
{
public:
    using Lines = std::vector<std::string>;

    explicit TestControl(int type = 0) : CVqAbstractControl(type)
    {
        const auto note = [this](const char* name) { return [this, name] { m_signals.push_back(name); }; };
        connect(this, &CVqAbstractControl::typeChanged, this, note("type"));
        connect(this, &CVqAbstractControl::stateChanged, this, note("state"));
        connect(this, &CVqAbstractControl::bitmapChanged, this, note("bitmap"));
        connect(this, &CVqAbstractControl::labelChanged, this, note("label"));
    }

    /// The signals since the last time, without "Changed".
    Lines TakeSignals() { return std::exchange(m_signals, {}); }

    /// Makes `count` states, each with its number in every field: bitmap 10, text "text0", and so on.
    void FillStates(vq_uint32 count)
    {
        m_uiStateCount = count;
        for (vq_uint32 i = 0; i < std::min(count, MaxStates); ++i) {
            const int number = static_cast<int>(i);
            m_pStates[i] = {10 + number,
                            CVqStringW(VQ_TEXT("text")).AddInt(number),
                            CVqStringW(VQ_TEXT("command")).AddInt(number),
                            CVqStringW(VQ_TEXT("tooltip")).AddInt(number),
                            20 + i,
                            30 + i,
                            40 + i,
                            50 + i};
        }
    }

    SVqControlState& State(vq_uint32 number) { return m_pStates[number]; }

    /// One line a field, such as "state=2" and "1.text=Open"; of the states those below the count.
    Lines Shown() const
    {
        Lines lines{"type=" + std::to_string(m_iType),
                    "state=" + std::to_string(m_iState),
                    "count=" + std::to_string(m_uiStateCount),
                    "name=" + TestMenu::Plain(m_strName),
                    "width=" + std::to_string(m_size.m_iWidth),
                    "height=" + std::to_string(m_size.m_iHeight),
                    "orientation=" + std::to_string(static_cast<int>(m_eOrientation)),
                    "style=" + std::to_string(m_uiStyle),
                    "flags=" + std::to_string(m_uiFlags),
                    "value=" + std::to_string(m_uiValue),
                    "visible=" + std::to_string(m_bVisible),
                    "translate=" + std::to_string(m_bTranslateTooltip)};
        for (vq_uint32 i = 0; i < std::min(m_uiStateCount, MaxStates); ++i)
            for (std::string& field : ShownState(m_pStates[i]))
                lines.push_back(std::to_string(i) + "." + std::move(field));
        return lines;
    }

    static Lines ShownState(const SVqControlState& state)
    {
        return {"bitmap=" + std::to_string(state.m_bitmap),
                "text=" + TestMenu::Plain(state.m_text),
                "command=" + TestMenu::Plain(state.m_command),
                "tooltip=" + TestMenu::Plain(state.m_tooltip),
                "frgcolor=" + std::to_string(state.m_frgcolor),
                "bkgcolor=" + std::to_string(state.m_bkgcolor),
                "additionalcolor=" + std::to_string(state.m_additionalcolor),
                "userValue=" + std::to_string(state.m_userValue)};
    }

    /// What Shown() shows differently than `before`, its new lines only.
    Lines ChangesSince(const Lines& before) const
    {
        Lines changes = Shown();
        std::erase_if(changes, [&](const std::string& line) {
            return std::find(before.begin(), before.end(), line) != before.end();
        });
        return changes;
    }

    using CVqAbstractControl::Checked;
    using CVqAbstractControl::Disabled;
    using CVqAbstractControl::m_bTranslateTooltip;
    using CVqAbstractControl::m_bVisible;
    using CVqAbstractControl::m_dZoom;
    using CVqAbstractControl::m_eOrientation;
    using CVqAbstractControl::m_iPickerImage;
    using CVqAbstractControl::m_iState;
    using CVqAbstractControl::m_iType;
    using CVqAbstractControl::m_pHandler;
    using CVqAbstractControl::m_pPaintCallback;
    using CVqAbstractControl::m_pPaintData;
    using CVqAbstractControl::m_pSizeCallback;
    using CVqAbstractControl::m_pSizeData;
    using CVqAbstractControl::m_size;
    using CVqAbstractControl::m_strName;
    using CVqAbstractControl::m_uiFlags;
    using CVqAbstractControl::m_uiStateCount;
    using CVqAbstractControl::m_uiStyle;
    using CVqAbstractControl::m_uiValue;

private:
    Lines m_signals;
};
