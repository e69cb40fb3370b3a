#include "quick_backend/toolbar/CVqQuickToolbarCommands.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/VqMenuRowData.h"
#include "quick_backend/toolbar/CVqQuickControl.h"

#include <utility>

namespace {

using Rows = CVqQuickMenuRows;

// Nobody sees what lies in a popup that is deleted; one that is only removed may open as a context menu.
bool is_hidden(const CVqMenuItem& item)
{
    if (!VqIsShown(item))
        return true;
    const CVqMenuItem* popup = item.parentItem();
    while (popup && !popup->deleted())
        popup = popup->parentItem();
    return popup != nullptr;
}

bool is_checked(const CVqMenuItem& item)
{
    return (item.status() & CVqMenuItem::StatusChecked) != 0;
}

QString key_text(const CVqQuickMenuItem& item)
{
    const Rows& rows = *item.rows();
    return rows.index(rows.RowOf(item)).data(Rows::KeyTextRole).toString();
}

CVqStringW command_of(CVqQuickControl& control)
{
    CVqStringW command;
    control.Get(vq_control_command, control.state(), &command);
    return command;
}

}

CVqQuickToolbarCommands::CVqQuickToolbarCommands() = default;
CVqQuickToolbarCommands::~CVqQuickToolbarCommands() = default;

CVqQuickMenu* CVqQuickToolbarCommands::Menu() const
{
    return m_menu;
}

void CVqQuickToolbarCommands::SetMenu(CVqQuickMenu* menu)
{
    m_connections.reset();
    m_menu = menu;
    m_lost.clear();
    if (menu) {
        m_connections = std::make_unique<QObject>();
        QObject::connect(menu, &QObject::destroyed, m_connections.get(), [this] { SetMenu(nullptr); });
        follow(*menu->Rows());
    }
    find_all();
}

void CVqQuickToolbarCommands::SetAllEnabled(bool enabled)
{
    m_all_enabled = enabled;
    show_all();
}

std::optional<vq_uint32> CVqQuickToolbarCommands::ItemOf(const QString& command) const
{
    const auto found = m_bindings.find(CVqStringW::FromQString(command).View());
    if (found == m_bindings.end() || !found->second.m_item)
        return std::nullopt;
    return found->second.m_item->id();
}

// Controls ---------------------------------------------------------------------------------------------

void CVqQuickToolbarCommands::Add(CVqQuickControl& control)
{
    m_followed.insert(&control, {});
    Update(control);
}

void CVqQuickToolbarCommands::Update(CVqQuickControl& control)
{
    const auto followed = m_followed.find(&control);
    const CVqStringW command = command_of(control);
    if (followed == m_followed.end() || followed->m_command == command.View())
        return;
    leave_binding(control, std::exchange(followed->m_command, Text(command.View())));
    drop_checkable(control);
    if (command.IsEmpty())
        return show_none(control);
    const auto [place, is_new] = m_bindings.try_emplace(Text(command.View()));
    SBinding& binding = place->second;
    binding.m_controls.push_back(&control);
    if (is_new)
        binding.m_item = find(command.View());
    if (binding.m_item)
        show_item(control, *binding.m_item);
    else
        show_none(control);
}

void CVqQuickToolbarCommands::Remove(CVqQuickControl& control)
{
    if (!m_followed.contains(&control))
        return;
    leave_binding(control, m_followed[&control].m_command);
    drop_checkable(control);
    show_none(control);
    m_followed.remove(&control);
}

void CVqQuickToolbarCommands::leave_binding(CVqQuickControl& control, TextView command)
{
    const auto found = m_bindings.find(command);
    if (found == m_bindings.end())
        return;
    std::erase(found->second.m_controls, &control);
    if (found->second.m_controls.empty())
        m_bindings.erase(found);
}

CVqQuickToolbarCommands::SBinding* CVqQuickToolbarCommands::binding_of(TextView command)
{
    const auto found = m_bindings.find(command);
    return found == m_bindings.end() ? nullptr : &found->second;
}

// Of the command for which this item counts, or null.
CVqQuickToolbarCommands::SBinding* CVqQuickToolbarCommands::binding_of(const CVqQuickMenuItem& item)
{
    SBinding* binding = binding_of(item.command().View());
    return binding && binding->m_item == &item ? binding : nullptr;
}

// Showing ----------------------------------------------------------------------------------------------

void CVqQuickToolbarCommands::show_all()
{
    std::vector<Text> commands;
    commands.reserve(m_bindings.size());
    for (const auto& [command, binding] : m_bindings)
        commands.push_back(command);
    for (const Text& command : commands)
        show(command);
}

// Whoever hears of a change may change the menu and the toolbar.
void CVqQuickToolbarCommands::show(const Text& command)
{
    const SBinding* binding = binding_of(command);
    if (!binding)
        return;
    const std::vector<QPointer<CVqQuickControl>> controls(binding->m_controls.begin(),
                                                          binding->m_controls.end());
    for (const QPointer<CVqQuickControl>& control : controls) {
        binding = binding_of(command);
        if (!binding || !control)
            continue;
        if (binding->m_item)
            show_item(*control, *binding->m_item);
        else
            show_none(*control);
    }
}

void CVqQuickToolbarCommands::show_item(CVqQuickControl& control, const CVqQuickMenuItem& item)
{
    SFollowed& followed = m_followed[&control];
    const bool hidden = is_hidden(item);
    const bool enabled = m_all_enabled && VqCanFire(item);
    const QString key = key_text(item);
    const bool becomes_checkable = (is_checked(item) || item.radio()) && !control.IsCheckable();
    int checked = is_checked(item) ? 1 : 0;
    followed.m_shows_item = true;
    if (becomes_checkable) {
        followed.m_made_checkable = true;
        control.SetCheckable(true);
    }
    control.SetHiddenByCommand(hidden);
    control.Enable(enabled);
    control.SetKeyText(key);
    if (control.IsChecked() != (checked != 0))
        control.Set(vq_control_check, 0, &checked);
}

void CVqQuickToolbarCommands::show_none(CVqQuickControl& control)
{
    const auto followed = m_followed.find(&control);
    if (followed == m_followed.end() || !std::exchange(followed->m_shows_item, false))
        return;
    drop_checkable(control);
    control.SetHiddenByCommand(false);
    control.Enable(m_all_enabled);
    control.SetKeyText({});
    int unchecked = 0;
    if (control.IsChecked())
        control.Set(vq_control_check, 0, &unchecked);
}

void CVqQuickToolbarCommands::drop_checkable(CVqQuickControl& control)
{
    const auto followed = m_followed.find(&control);
    if (followed != m_followed.end() && std::exchange(followed->m_made_checkable, false))
        control.SetCheckable(false);
}
