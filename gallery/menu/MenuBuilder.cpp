#include "gallery/menu/MenuBuilder.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "gallery/menu/KeyText.h"
#include "gallery/menu/MenuImage.h"

#include <QCoreApplication>

#include <map>
#include <utility>

namespace Gallery {

namespace {

constexpr QChar g_bel(7);

std::u16string wide(const QString& text)
{
    return text.toStdU16String();
}

/// Gives an item that its popup's mnemonics pass over the one of its own marks, as when it is appended.
void take_own_mnemonic(CVqMenuItem& item)
{
    const CVqMenuItem* parent = item.parentItem();
    if (!parent)
        return;
    item.setMnemonic(0);
    item.setMnemonic(_get_mnemonic(parent->subItem(), item.text()));
}

}

QString LocalLabel(const QString& label)
{
    return QCoreApplication::translate("Menu", label.toUtf8().constData());
}

void MenuBuilder::Build(const MenuDocument& document)
{
    append_all(document.menu, 0);
    append_all(document.context, 0);
    for (const MenuEntry& popup : document.context)
        remove_from_bar(popup.id);
    update_mnemonics(document.menu, 0);
    update_mnemonics(document.context, 0);
    add_keys(document.menu);
    add_keys(document.context);
    for (const LonelyKey& lonely : document.keys)
        m_menu.AppendLonelyAccel(lonely.id, lonely.key.flags, lonely.key.key, wide(lonely.command).c_str());
}

void MenuBuilder::Restore(const MenuDocument& document, bool relabel)
{
    restore_all(document.menu);
    restore_all(document.context);
    if (!relabel)
        return;
    relabel_all(document.menu);
    relabel_all(document.context);
    update_mnemonics(document.menu, 0);
    update_mnemonics(document.context, 0);
}

void MenuBuilder::restore_all(const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        restore_all(entry.items);
        set_state(entry);
    }
    set_radio_groups(entries);
}

void MenuBuilder::relabel_all(const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        if (!entry.text.isEmpty())
            m_menu.SetIdMenuString(entry.id, wide(LocalLabel(entry.text)).c_str());
        if (!entry.mnemonic)
            take_own_mnemonic(*m_menu.Manipulators().find_item(entry.id, m_menu.getRootMenuItem()));
        relabel_all(entry.items);
    }
}

void MenuBuilder::remove_from_bar(vq_uint32 popup)
{
    m_menu.Manipulators().find_item(popup, m_menu.getRootMenuItem())->setRemoved(true);
}

void MenuBuilder::append_all(const std::vector<MenuEntry>& entries, vq_uint32 parent)
{
    for (const MenuEntry& entry : entries) {
        append(entry, parent);
        set_image(entry);
        append_all(entry.items, entry.id);
        set_state(entry);
    }
    set_radio_groups(entries);
}

void MenuBuilder::append(const MenuEntry& entry, vq_uint32 parent)
{
    const std::u16string command = wide(entry.command);
    const std::u16string text = wide(LocalLabel(entry.text));
    switch (entry.type) {
    case MenuEntryType::Item:
        append_item(entry, parent);
        break;
    case MenuEntryType::Separator:
        m_menu.AppendSeparator(m_next_separator++, parent);
        break;
    case MenuEntryType::OneColor:
        m_menu.AppendOneColor(entry.id, parent, entry.color1, command.c_str());
        break;
    case MenuEntryType::TwoColor:
        m_menu.AppendTwoColor(entry.id, parent, entry.color1, entry.color2, command.c_str());
        break;
    case MenuEntryType::LineWidth:
        m_menu.AppendLineWidth(entry.id, parent, entry.width, text.c_str(), command.c_str());
        break;
    case MenuEntryType::Popup:
        m_menu.AppendPopup(entry.id, parent, text.c_str());
        break;
    }
}

void MenuBuilder::append_item(const MenuEntry& entry, vq_uint32 parent)
{
    QString text = LocalLabel(entry.text);
    if (entry.text_key)
        text += g_bel + LocalKeyText(entry.key_text);
    vq_uint32 status = CVqMenuItem::StatusEnabled;
    if (!entry.mnemonic)
        status |= CVqMenuItem::StatusNoMnemonic;
    m_menu.AppendMenuItem(entry.id, parent, wide(text).c_str(), wide(entry.command).c_str(), status);
}

void MenuBuilder::set_image(const MenuEntry& entry)
{
    const int index = entry.image.isEmpty() ? -1 : AddMenuImage(entry.image);
    if (index >= 0)
        m_menu.SetIdBitmap(entry.id, index);
}

void MenuBuilder::set_state(const MenuEntry& entry)
{
    if (entry.type != MenuEntryType::Separator)
        m_menu.EnableId(entry.id, entry.enabled);
    if (entry.checked && entry.radio.isEmpty()) {
        m_roles[entry.id].toggle = true;
        m_menu.CheckId(entry.id, *entry.checked);
    }
}

void MenuBuilder::set_radio_groups(const std::vector<MenuEntry>& entries)
{
    std::map<QString, std::pair<size_t, size_t>> groups;
    for (size_t i = 0; i < entries.size(); ++i)
        if (!entries[i].radio.isEmpty())
            groups.try_emplace(entries[i].radio, i, i).first->second.second = i;
    for (const auto& [name, range] : groups)
        set_radio_group(entries, range.first, range.second);
}

void MenuBuilder::set_radio_group(const std::vector<MenuEntry>& entries, size_t first, size_t last)
{
    vq_uint32 checked = 0;
    for (size_t i = first; i <= last; ++i) {
        if (entries[i].radio.isEmpty())
            continue;
        m_roles[entries[i].id] = {false, entries[first].id, entries[last].id};
        if (entries[i].checked.value_or(false))
            checked = entries[i].id;
    }
    m_menu.CheckRadioId(checked, entries[first].id, entries[last].id);
}

void MenuBuilder::update_mnemonics(const std::vector<MenuEntry>& entries, vq_uint32 parent)
{
    m_menu.UpdateMnemonics(parent, false);
    for (const MenuEntry& entry : entries)
        if (entry.type == MenuEntryType::Popup)
            update_mnemonics(entry.items, entry.id);
}

void MenuBuilder::add_keys(const std::vector<MenuEntry>& entries)
{
    for (const MenuEntry& entry : entries) {
        add_keys(entry);
        add_keys(entry.items);
    }
}

void MenuBuilder::add_keys(const MenuEntry& entry)
{
    if (entry.text_key && PrintKey(*entry.text_key) != entry.key_text)
        m_menu.SetIdAccelKey(entry.id, entry.text_key->flags, entry.text_key->key, false);
    for (const MenuKey& key : entry.keys)
        m_menu.AppendIdAccelKey(entry.id, key.flags, key.key, false);
}

}
