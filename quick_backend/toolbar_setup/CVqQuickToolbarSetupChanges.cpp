#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar_setup/CVqHiddenButtonEdits.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"
#include "quick_backend/toolbar_setup/CVqToolbarReset.h"
#include "quick_backend/toolbar_setup/SVqCustomisedBar.h"
#include "quick_backend/toolbar_setup/VqMenuCommands.h"
#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include <algorithm>

namespace {

bool is_separator(const CVqQuickControl& control)
{
    return control.GetKind() == CVqQuickControl::Separator;
}

void set_text(IVqUIcontrol& button, unsigned code, const QString& text)
{
    CVqStringW value = CVqStringW::FromQString(text);
    button.Set(code, 0, &value);
}

void fill(IVqUIcontrol& button, const SVqMenuCommand& command, const QString& name)
{
    int image = command.m_image;
    set_text(button, vq_control_name, name);
    set_text(button, vq_control_tooltip, command.m_label);
    set_text(button, vq_control_text, command.m_label);
    set_text(button, vq_control_command, command.m_command);
    button.Set(vq_control_bitmap, 0, &image);
}

}

// Showing ------------------------------------------------------------------------------------------------

bool CVqQuickToolbarSetup::isShown(CVqQuickControl* control) const
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    if (!bar || is_separator(*control))
        return bar != nullptr;
    return control->GetControlVisibility() && !CVqHiddenButtonEdits::IsHidden(*bar, *control);
}

bool CVqQuickToolbarSetup::isLocked(CVqQuickControl* control) const
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    return bar && (control->IsHiddenByCommand() || CVqHiddenButtonEdits::IsLocked(*bar, *control));
}

// A button that was hidden by itself shows again, too.
void CVqQuickToolbarSetup::show(CVqQuickButtonToolbar& bar, CVqQuickControl& control, bool shown)
{
    if (!bar.Name().isEmpty())
        m_hidden->Set(bar, control, !shown);
    if (shown || bar.Name().isEmpty())
        control.SetControlVisibility(shown);
    bar.UpdateSeparators(true);
}

bool CVqQuickToolbarSetup::setShown(CVqQuickControl* control, bool shown)
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    if (!bar || is_separator(*control) || isShown(control) == shown)
        return false;
    show(*bar, *control, shown);
    tell();
    return true;
}

bool CVqQuickToolbarSetup::hidesAny(CVqQuickButtonToolbar* bar) const
{
    const auto controls = find(bar) ? VqControlsOf(*bar) : std::vector<CVqQuickControl*>();
    return std::any_of(controls.begin(), controls.end(),
                       [this](CVqQuickControl* control) { return !isShown(control); });
}

bool CVqQuickToolbarSetup::showAll(CVqQuickButtonToolbar* bar)
{
    if (!hidesAny(bar))
        return false;
    for (CVqQuickControl* control : VqControlsOf(*bar))
        if (!isShown(control))
            show(*bar, *control, true);
    tell();
    return true;
}

// Places -------------------------------------------------------------------------------------------------

bool CVqQuickToolbarSetup::move(CVqQuickControl* control, CVqQuickButtonToolbar* bar, CVqQuickControl* before)
{
    CVqQuickButtonToolbar* source = toolbarOf(control);
    if (!source || !find(bar) || (before && !VqHolds(*bar, before)))
        return false;
    if (before == control || (source == bar && VqNextOf(*bar, *control) == before))
        return false;
    const bool was_shown = isShown(control);
    take_out(*source, *control);
    if (source != bar && !is_separator(*control))
        VqRename(*control, VqFreeName(*bar, control->Name()));
    VqPutIn(*bar, *control, before);
    if (source != bar && !is_separator(*control))
        show(*bar, *control, was_shown);
    tell();
    return true;
}

bool CVqQuickToolbarSetup::step(CVqQuickControl* control, int step, bool shown_only)
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    if (!bar)
        return false;
    auto controls = VqControlsOf(*bar);
    if (shown_only)
        std::erase_if(controls, [control](const CVqQuickControl* other) {
            return other != control && !other->IsShown();
        });
    const auto place = std::find(controls.begin(), controls.end(), control) - controls.begin();
    const auto target = place + (step < 0 ? -1 : 1);
    if (target < 0 || target >= std::ssize(controls))
        return false;
    CVqQuickControl* neighbour = controls[std::size_t(target)];
    return move(control, bar, step < 0 ? neighbour : VqNextOf(*bar, *neighbour));
}

// Coming and going ---------------------------------------------------------------------------------------

CVqQuickControl* CVqQuickToolbarSetup::put_new(IVqUIcontrol* made, CVqQuickButtonToolbar& bar,
                                               CVqQuickControl* before)
{
    auto* control = dynamic_cast<CVqQuickControl*>(made);
    if (!control) {
        if (made)
            made->MarkToDeleteItself();
        return nullptr;
    }
    touch(*control);
    VqPutIn(bar, *control, before);
    if (!is_separator(*control))
        show(bar, *control, true);
    tell();
    return control;
}

CVqQuickControl* CVqQuickToolbarSetup::addCommand(const QString& command, CVqQuickButtonToolbar* bar,
                                                  CVqQuickControl* before)
{
    if (!find(bar) || !bar->Menu() || !m_commands_offered || (before && !VqHolds(*bar, before)))
        return nullptr;
    const auto offered = VqMenuCommands(*bar->Menu(), m_ask);
    const auto found = std::find_if(offered.begin(), offered.end(), [&command](const SVqMenuCommand& known) {
        return known.m_command == command;
    });
    IVqUIcontrol* button = found == offered.end() ? nullptr : bar->CreateControlButton(true);
    if (!button)
        return nullptr;
    fill(*button, *found, VqFreeName(*bar, command));
    return put_new(button, *bar, before);
}

CVqQuickControl* CVqQuickToolbarSetup::addSeparator(CVqQuickButtonToolbar* bar, CVqQuickControl* before)
{
    if (!find(bar) || (before && !VqHolds(*bar, before)))
        return nullptr;
    return put_new(bar->CreateSeparator(), *bar, before);
}

bool CVqQuickToolbarSetup::remove(CVqQuickControl* control)
{
    CVqQuickButtonToolbar* bar = toolbarOf(control);
    if (!bar)
        return false;
    if (control->GetKind() == CVqQuickControl::General)
        return setShown(control, false);
    take_out(*bar, *control);
    tell();
    return true;
}

// Back to the factory's state ----------------------------------------------------------------------------

void CVqQuickToolbarSetup::reset()
{
    if (!m_active)
        return;
    std::vector<SVqCustomisedBar*> bars;
    bars.reserve(m_bars.size());
    for (const auto& bar : m_bars)
        bars.push_back(bar.get());
    const auto rebuilt = CVqToolbarReset(bars, [this](CVqQuickControl& control) { touch(control); }).Run();
    for (CVqQuickButtonToolbar* bar : rebuilt) {
        for (CVqQuickControl* control : VqControlsOf(*bar))
            if (!isShown(control))
                show(*bar, *control, true);
        if (m_rebuilt)
            m_rebuilt(*bar);
    }
    tell();
}
