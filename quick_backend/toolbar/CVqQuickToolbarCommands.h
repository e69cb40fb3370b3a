#pragma once

#include "system/CVqStringW.h"
#include "system/VqTypes.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class CVqQuickControl;
class CVqQuickMenu;
class CVqQuickMenuItem;
class CVqQuickMenuRows;

/// Lets the controls of one toolbar show what the menu says of their commands.
///
/// A control whose current state has the command of a menu item shows that item's state: enabled when the
/// item can fire, checked, its key, and hidden when the item is. Of several items with one command the first
/// in reading order counts. A control whose item or menu goes is enabled, unchecked and shown again, without
/// a key.
///
/// Each change of the menu is taken over at once, and reaches only the controls of the item's command; one of
/// a popup reaches all. Controls without a command, or with one that the menu does not have, are left alone.
class CVqQuickToolbarCommands
{
public:
    CVqQuickToolbarCommands();
    ~CVqQuickToolbarCommands();

    /// Not owned; may be null, and may go first.
    void SetMenu(CVqQuickMenu* menu);
    CVqQuickMenu* Menu() const;

    /// Whether controls may be enabled at all; true at first.
    void SetAllEnabled(bool enabled);

    /// `control` is followed from now on, until Remove(). Each needs Update() when its look changed.
    void Add(CVqQuickControl& control);
    void Update(CVqQuickControl& control);
    void Remove(CVqQuickControl& control);

    /// The identifier of the item that a followed control with this command stands for.
    std::optional<vq_uint32> ItemOf(const QString& command) const;

private:
    using Text = CVqStringW::string_type;
    using TextView = CVqStringW::view_type;

    struct SFollowed
    {
        Text m_command;
        bool m_shows_item = false;
        bool m_made_checkable = false; ///< By its item.
    };

    /// A command that followed controls have.
    struct SBinding
    {
        const CVqQuickMenuItem* m_item = nullptr; ///< Has a row in the menu; null without an item.
        std::vector<CVqQuickControl*> m_controls;
    };

    SBinding* binding_of(TextView command);
    SBinding* binding_of(const CVqQuickMenuItem& item);
    void leave_binding(CVqQuickControl& control, TextView command);

    void show_all();
    void show(const Text& command);
    void show_item(CVqQuickControl& control, const CVqQuickMenuItem& item);
    void show_none(CVqQuickControl& control);
    void drop_checkable(CVqQuickControl& control);

    void follow(CVqQuickMenuRows& rows);
    void item_came(const CVqQuickMenuItem& item);
    void items_go(const CVqQuickMenuRows& rows, int first, int last);
    void items_gone();
    void item_changed(const CVqQuickMenuItem& item, const QList<int>& roles);
    void command_changed(const CVqQuickMenuItem& item);
    void find_all();
    void find_again(const Text& command);
    const CVqQuickMenuItem* find(TextView command) const;

    QPointer<CVqQuickMenu> m_menu;
    std::unique_ptr<QObject> m_connections; ///< Of all connections with the menu.
    QHash<CVqQuickControl*, SFollowed> m_followed;
    std::map<Text, SBinding, std::less<>> m_bindings;
    std::vector<Text> m_lost; ///< Commands whose item is on its way out.
    bool m_all_enabled = true;
};
