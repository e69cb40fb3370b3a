#pragma once

#include "gallery/menu/MenuEntry.h"

#include <QHash>

class CVqAbstractMenu;

namespace Gallery {

/// What choosing an entry does to its check mark.
struct MenuRole
{
    bool toggle = false;       ///< Choosing the entry flips its mark.
    vq_uint32 radio_first = 0; ///< First and last member of its radio group; 0 outside one.
    vq_uint32 radio_last = 0;
};

/// Fills a menu from a menu file, through the public operations of the menu.
///
/// Keys that the file has as text go in behind BEL, in the user's language; the others are added with flags
/// and value once the mnemonics stand, because settling a mnemonic writes a label anew with the first key
/// only.
class MenuBuilder
{
public:
    /// Separators take identifiers from here on; those of a menu file are lower.
    static constexpr vq_uint32 FirstSeparatorId = 1000000;

    /// `menu` must have a root and outlive the builder.
    explicit MenuBuilder(CVqAbstractMenu& menu) : m_menu(menu) { }

    /// Appends all of `document`, then settles the mnemonics of every popup. Context menus are popups of the
    /// root too, but removed, so that the bar does not show them.
    void Build(const MenuDocument& document);

    /// Makes a menu that was built from `document` in an earlier run, stored and loaded, one of this run:
    /// marks, radio dots and enabled states begin as the document has them. `relabel`: the labels are in
    /// another language and are set anew, with their mnemonics.
    void Restore(const MenuDocument& document, bool relabel);

    /// Entries with a mark, by identifier.
    const QHash<vq_uint32, MenuRole>& Roles() const { return m_roles; }

private:
    void remove_from_bar(vq_uint32 popup);
    void append_all(const std::vector<MenuEntry>& entries, vq_uint32 parent);
    void append(const MenuEntry& entry, vq_uint32 parent);
    void restore_all(const std::vector<MenuEntry>& entries);
    void relabel_all(const std::vector<MenuEntry>& entries);
    void append_item(const MenuEntry& entry, vq_uint32 parent);
    void set_image(const MenuEntry& entry);
    void set_state(const MenuEntry& entry);
    void set_radio_groups(const std::vector<MenuEntry>& entries);
    void set_radio_group(const std::vector<MenuEntry>& entries, size_t first, size_t last);
    void update_mnemonics(const std::vector<MenuEntry>& entries, vq_uint32 parent);
    void add_keys(const std::vector<MenuEntry>& entries);
    void add_keys(const MenuEntry& entry);

    CVqAbstractMenu& m_menu;
    QHash<vq_uint32, MenuRole> m_roles;
    vq_uint32 m_next_separator = FirstSeparatorId;
};

/// `label` in the user's language.
QString LocalLabel(const QString& label);

}
