#pragma once

#include "quick_backend/toolbar/CVqQuickTextButton.h"
#include "tests/quick_backend/toolbar/CoreBar.h"

#include <random>
#include <vector>

/// A toolbar with random controls, the same ones for the same seed: up to 14 of all kinds, one in five
/// hidden, lying or upright, mirrored or not, at zoom 1, 1.5 or 2, with and without borders.
class RandomBar : public CoreBar
{
public:
    /// A control with what it wants along and across the toolbar; nothing when it is not shown.
    struct SWanted
    {
        CVqQuickControl* control;
        int length;
        int breadth;
    };

    explicit RandomBar(std::mt19937::result_type seed) : m_random(seed)
    {
        const bool vertical = Below(3) == 0;
        toolbar.SetOrientation(vertical ? EOrientation::Vertical : EOrientation::Horizontal);
        area().SetMirrored(Below(3) == 0);
        toolbar.SetAdditionalToolbarGuiZoom(1 + Below(3) / 2.0);
        toolbar.EnableEnlargeToolbar(Below(4) != 0);
        if (Below(3) == 0)
            toolbar.SetBorders(Below(2) ? CVqRectBase<int>{Below(20), Below(9), Below(20), Below(9)}
                                        : CVqRectBase<int>{});
        for (int left = Below(15); left > 0; --left)
            Hide(AddAny(vertical));
        toolbar.GetBorders(m_borders);
        m_vertical = vertical;
    }

    bool IsVertical() const { return m_vertical; }
    int Begin() const { return m_vertical ? m_borders.m_iTop : m_borders.m_iLeft; }
    int End() const { return m_vertical ? m_borders.m_iBottom : m_borders.m_iRight; }

    SWanted WantedBy(CVqQuickControl& control) const
    {
        const QSize size = WantedSize(control);
        return m_vertical ? SWanted{&control, size.height(), size.width()}
                          : SWanted{&control, size.width(), size.height()};
    }

    const std::vector<CVqQuickControl*>& Controls() const { return m_controls; }

    int Below(int end) { return int(m_random() % std::mt19937::result_type(end)); }

private:
    CVqQuickControl& AddAny(bool vertical)
    {
        switch (Below(6)) {
        case 0:
            return Note(Take(new CVqQuickSeparator, "separator"));
        case 1: {
            CVqQuickControl& button = Note(Take(new CVqQuickTextButton, "text"));
            SetText(button, vq_control_text, Below(2) ? "Open" : "Rotate the layer");
            return button;
        }
        case 2: {
            CVqQuickControl& button = Note(AddButton("drop-down"));
            SetInt(button, vq_control_value, 7);
            return button;
        }
        case 3: {
            CVqQuickControl& button = Note(AddButton("sized"));
            if (vertical)
                button.SetControlSize({1 + Below(60), 1 + Below(120)});
            return button;
        }
        case 4: {
            CVqQuickControl& button = Note(AddButton("asked"));
            static constexpr CVqSizeBase<int> sizes[] = {{0, 0}, {1, 1}, {17, 60}, {140, 25}, {400, 400}};
            button.SetSizeCallback(
                [](CVqSizeBase<int>& size, IVqUIcontrol*, void* data) {
                    size = *static_cast<const CVqSizeBase<int>*>(data);
                    return 0;
                },
                const_cast<CVqSizeBase<int>*>(&sizes[Below(5)]));
            return button;
        }
        default:
            return Note(AddSized("general", Below(8) ? 1 + Below(150) : 300 + Below(400), 1 + Below(50)));
        }
    }

    CVqQuickControl& Note(CVqQuickControl& control)
    {
        m_controls.push_back(&control);
        return control;
    }

    void Hide(CVqQuickControl& control)
    {
        switch (Below(15)) {
        case 0:
            return control.SetControlVisibility(false);
        case 1:
            return control.SetListedAsHidden(true);
        case 2:
            return control.SetHiddenByCommand(true);
        default:
            return;
        }
    }

    std::mt19937 m_random;
    std::vector<CVqQuickControl*> m_controls;
    CVqRectBase<int> m_borders;
    bool m_vertical = false;
};
