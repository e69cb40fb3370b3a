#include "quick_backend/toolbar_setup/CVqToolbarState.h"

#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include <algorithm>

CVqToolbarState::CVqToolbarState(CVqQuickButtonToolbar& bar) : m_bar(&bar)
{
    for (CVqQuickControl* control : VqControlsOf(bar))
        m_places.push_back({control, control->Name(), control->GetControlVisibility(), control->IsVertical(),
                            control->IsFlat()});
}

CVqQuickControl* CVqToolbarState::Named(const QString& name) const
{
    for (const SVqPlace& place : m_places)
        if (place.m_control && place.m_name == name)
            return place.m_control;
    return nullptr;
}

bool CVqToolbarState::Held(const CVqQuickControl& control) const
{
    return std::any_of(m_places.begin(), m_places.end(),
                       [&control](const SVqPlace& place) { return place.m_control == &control; });
}

bool CVqToolbarState::IsOrderKept() const
{
    const auto is_same = [](const SVqPlace& place, const CVqQuickControl* control) {
        return place.m_control == control && place.m_name == control->Name();
    };
    const auto now = VqControlsOf(*m_bar);
    return std::equal(m_places.begin(), m_places.end(), now.begin(), now.end(), is_same);
}

void CVqToolbarState::PutBack() const
{
    for (const SVqPlace& place : m_places) {
        if (!place.m_control)
            continue;
        VqRename(*place.m_control, place.m_name);
        VqPutIn(*m_bar, *place.m_control, nullptr);
    }
}

void CVqToolbarState::RestoreLooks() const
{
    for (const SVqPlace& place : m_places) {
        CVqQuickControl* control = place.m_control;
        if (!control)
            continue;
        control->SetOrientation(place.m_vertical ? EOrientation::Vertical : EOrientation::Horizontal);
        control->SetFlatStyle(place.m_flat);
        control->SetControlVisibility(place.m_visible);
    }
}
