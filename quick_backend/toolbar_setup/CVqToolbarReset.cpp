#include "quick_backend/toolbar_setup/CVqToolbarReset.h"

#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar_setup/SVqCustomisedBar.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include <algorithm>
#include <utility>

namespace {

// A record holds the name of its bar beside the controls.
int count_controls(const CVqVariant& record)
{
    int count = 0;
    for (int i = 0; i < record.GetCount(); ++i)
        count += record.IndexPtr(i)->GetName() != VQ_TEXT("ToolbarName");
    return count;
}

}

CVqToolbarReset::CVqToolbarReset(std::vector<SVqCustomisedBar*> bars, TouchFunction touch)
    : m_bars(std::move(bars)), m_touch(std::move(touch))
{ }

std::vector<CVqQuickButtonToolbar*> CVqToolbarReset::Run()
{
    std::vector<SVqCustomisedBar*> rebuilt;
    for (SVqCustomisedBar* bar : m_bars)
        if (count_controls(bar->m_factory) <= SVqCustomisedBar::MaxRecords)
            rebuilt.push_back(bar);
    for (const SVqCustomisedBar* bar : rebuilt)
        rebuild(*bar);
    for (const SVqCustomisedBar* bar : rebuilt)
        replace_made(*bar, true);
    for (const SVqCustomisedBar* bar : rebuilt)
        replace_made(*bar, false);
    std::vector<CVqQuickButtonToolbar*> bars;
    bars.reserve(rebuilt.size());
    for (const SVqCustomisedBar* bar : rebuilt)
        bars.push_back(bar->m_bar);
    if (!rebuilt.empty())
        put_general_back(*rebuilt.front());
    return bars;
}

bool CVqToolbarReset::is_held(CVqQuickControl& control) const
{
    return std::any_of(m_bars.begin(), m_bars.end(),
                       [&control](const SVqCustomisedBar* bar) { return VqHolds(*bar->m_bar, &control); });
}

bool CVqToolbarReset::is_made(const CVqQuickControl* control) const
{
    return std::find(m_made.begin(), m_made.end(), control) != m_made.end();
}

void CVqToolbarReset::rebuild(const SVqCustomisedBar& bar)
{
    for (CVqQuickControl* control : VqControlsOf(*bar.m_bar)) {
        m_touch(*control);
        VqTakeOut(*bar.m_bar, *control);
        m_taken_out.push_back(control);
    }
    CVqVariant record(bar.m_factory);
    bar.m_bar->Load(record, nullptr);
    for (CVqQuickControl* control : VqControlsOf(*bar.m_bar)) {
        m_touch(*control);
        m_made.push_back(control);
    }
}

// What stood on this very bar when the session began, wherever it is now.
CVqQuickControl* CVqToolbarReset::own(const SVqCustomisedBar& bar, const CVqQuickControl& made) const
{
    CVqQuickControl* control = bar.m_state->Named(made.Name());
    return control && !is_held(*control) ? control : nullptr;
}

// What an earlier session moved to another bar.
CVqQuickControl* CVqToolbarReset::moved_away(const CVqQuickControl& made) const
{
    for (CVqQuickControl* control : m_taken_out) {
        const bool is_meant
            = control->GetKind() == CVqQuickControl::General || control->CommandText() == made.CommandText();
        if (is_meant && control->Name() == made.Name() && !is_held(*control))
            return control;
    }
    return nullptr;
}

void CVqToolbarReset::replace_made(const SVqCustomisedBar& bar, bool by_its_own)
{
    for (CVqQuickControl* made : VqControlsOf(*bar.m_bar)) {
        if (!is_made(made) || made->GetKind() == CVqQuickControl::Separator)
            continue;
        CVqQuickControl* known = by_its_own ? own(bar, *made) : moved_away(*made);
        if (!known)
            continue;
        VqRename(*known, made->Name());
        known->SetControlVisibility(made->GetControlVisibility());
        VqPutIn(*bar.m_bar, *known, made);
        VqTakeOut(*bar.m_bar, *made);
    }
}

// General controls of which the records know nothing.
void CVqToolbarReset::put_general_back(const SVqCustomisedBar& fallback)
{
    for (CVqQuickControl* control : m_taken_out) {
        if (control->GetKind() != CVqQuickControl::General || is_held(*control))
            continue;
        const auto home = std::find_if(m_bars.begin(), m_bars.end(), [control](const SVqCustomisedBar* bar) {
            return bar->m_state->Held(*control);
        });
        const SVqCustomisedBar& target = home == m_bars.end() ? fallback : **home;
        VqPutIn(*target.m_bar, *control, nullptr);
    }
}
