#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/toolbar/CVqQuickControl.h"
#include "quick_backend/toolbar/CVqQuickToolbarCommands.h"

#include <utility>

// How the menu is followed, and which of its items counts for a command.

namespace {

using Rows = CVqQuickMenuRows;

bool is_command(const CVqQuickMenuItem& item)
{
    return item.type() != Rows::Popup && item.type() != Rows::Separator && !item.command().IsEmpty();
}

const CVqQuickMenuItem* find_below(const Rows& rows, CVqStringW::view_type command)
{
    for (int row = 0; row < rows.Count(); ++row) {
        const CVqQuickMenuItem& item = *rows.ItemAt(row);
        if (is_command(item) && item.command().View() == command)
            return &item;
        const CVqQuickMenuItem* found = item.submenu() ? find_below(*item.submenu(), command) : nullptr;
        if (found)
            return found;
    }
    return nullptr;
}

}

void CVqQuickToolbarCommands::follow(CVqQuickMenuRows& rows)
{
    QObject* const context = m_connections.get();
    Rows* const from = &rows;
    const auto changed
        = [this, from](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
              for (int row = first.row(); row <= last.row() && row < from->Count(); ++row)
                  item_changed(*from->ItemAt(row), roles);
          };
    const auto inserted = [this, from](const QModelIndex&, int first, int last) {
        for (int row = first; row <= last && row < from->Count(); ++row)
            item_came(*from->ItemAt(row));
    };
    const auto removing
        = [this, from](const QModelIndex&, int first, int last) { items_go(*from, first, last); };
    QObject::connect(from, &Rows::dataChanged, context, changed);
    QObject::connect(from, &Rows::rowsInserted, context, inserted);
    QObject::connect(from, &Rows::rowsAboutToBeRemoved, context, removing);
    QObject::connect(from, &Rows::rowsRemoved, context, [this] { items_gone(); });
    QObject::connect(from, &Rows::modelAboutToBeReset, context,
                     [this, from] { items_go(*from, 0, from->Count() - 1); });
    QObject::connect(from, &Rows::modelReset, context, [this] { items_gone(); });
    for (int row = 0; row < rows.Count(); ++row)
        if (CVqQuickMenuRows* submenu = rows.ItemAt(row)->submenu())
            follow(*submenu);
}

void CVqQuickToolbarCommands::item_came(const CVqQuickMenuItem& item)
{
    if (item.submenu()) {
        follow(*item.submenu());
        if (item.submenu()->Count() > 0)
            find_all();
    }
    SBinding* binding = is_command(item) ? binding_of(item.command().View()) : nullptr;
    if (!binding)
        return;
    binding->m_item = binding->m_item ? find(item.command().View()) : &item;
    show(Text(item.command().View()));
}

void CVqQuickToolbarCommands::items_go(const CVqQuickMenuRows& rows, int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const CVqQuickMenuItem& item = *rows.ItemAt(row);
        if (SBinding* binding = binding_of(item)) {
            binding->m_item = nullptr;
            m_lost.emplace_back(item.command().View());
        }
    }
}

void CVqQuickToolbarCommands::items_gone()
{
    for (const Text& command : std::exchange(m_lost, {}))
        find_again(command);
}

void CVqQuickToolbarCommands::item_changed(const CVqQuickMenuItem& item, const QList<int>& roles)
{
    if (roles.contains(Rows::CommandRole))
        command_changed(item);
    else if (roles.contains(Rows::SubmenuRole))
        item_came(item);
    else if (item.type() != Rows::Popup && binding_of(item))
        show(Text(item.command().View()));
    else if (item.type() == Rows::Popup
             && (roles.contains(Rows::GrayedRole) || roles.contains(Rows::ShownRole)))
        show_all();
}

void CVqQuickToolbarCommands::command_changed(const CVqQuickMenuItem& item)
{
    Text former;
    for (const auto& [command, binding] : m_bindings)
        if (binding.m_item == &item)
            former = command;
    find_again(former);
    find_again(Text(item.command().View()));
}

void CVqQuickToolbarCommands::find_all()
{
    for (auto& [command, binding] : m_bindings)
        binding.m_item = find(command);
    show_all();
}

void CVqQuickToolbarCommands::find_again(const Text& command)
{
    if (SBinding* binding = binding_of(TextView(command))) {
        binding->m_item = find(command);
        show(command);
    }
}

const CVqQuickMenuItem* CVqQuickToolbarCommands::find(TextView command) const
{
    return m_menu ? find_below(*m_menu->Rows(), command) : nullptr;
}
