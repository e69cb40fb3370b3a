#include "gallery/menu/MenuMarks.h"

#include "AbstractGui/CVqAbstractMenu.h"

namespace Gallery {

namespace {

constexpr vq_uint32 g_checked = 2;
constexpr vq_uint32 g_any_type = 9;
constexpr vq_uint32 g_any_status = 0xFF00;
constexpr vq_uint32 g_most_entries = 16; // with one command

}

bool MenuMarks::Choose(vq_uint32 id)
{
    CVqStringW command;
    m_menu.GetIdCommand(id, command);
    const QList<vq_uint32> entries = EntriesOf(command.ToQString());
    const vq_uint32 entry = m_roles.contains(id) || entries.isEmpty() ? id : entries.front();
    const bool checked = m_roles.value(entry).radio_first != 0 || !is_checked(entry);
    for (const vq_uint32 same : entries)
        mark(same, checked);
    return is_checked(entry);
}

void MenuMarks::ClearGroup(const QString& command)
{
    for (const vq_uint32 id : EntriesOf(command))
        m_menu.CheckRadioId(0, m_roles.value(id).radio_first, m_roles.value(id).radio_last);
}

void MenuMarks::Enable(const QString& command, bool enable)
{
    for (const vq_uint32 id : EntriesOf(command))
        m_menu.EnableId(id, enable);
}

QList<vq_uint32> MenuMarks::EntriesOf(const QString& command)
{
    QList<vq_uint32> ids(g_most_entries);
    vq_uint32 count = g_most_entries;
    if (m_menu.FindItemsByCommand(command.toStdU16String().c_str(), g_any_type, g_any_status, ids.data(),
                                  count)
        != 0)
        return {};
    ids.resize(count);
    return ids;
}

bool MenuMarks::is_checked(vq_uint32 id)
{
    vq_uint32 status = 0;
    m_menu.GetIdStatus(id, status);
    return status & g_checked;
}

void MenuMarks::mark(vq_uint32 id, bool checked)
{
    const MenuRole role = m_roles.value(id);
    if (role.toggle)
        m_menu.CheckId(id, checked);
    if (role.radio_first != 0)
        m_menu.CheckRadioId(id, role.radio_first, role.radio_last);
}

}
