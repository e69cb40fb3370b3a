#pragma once

#include "gallery/menu/MenuBuilder.h"

#include <QList>

namespace Gallery {

/// Keeps the marks and the enabled state of entries in step: the same command may stand in the menu bar and
/// in a context menu.
class MenuMarks
{
public:
    /// `menu` must outlive the marks.
    MenuMarks(CVqAbstractMenu& menu, const QHash<vq_uint32, MenuRole>& roles) : m_menu(menu), m_roles(roles)
    { }

    /// Sets the marks as choosing `id` does: a toggle flips, a member of a radio group becomes the marked
    /// one. Every entry with the same command follows. A key without an entry acts as the first entry with
    /// its command. Returns whether the entry is marked now.
    bool Choose(vq_uint32 id);

    /// Takes the mark from all of the radio groups that have a member with `command`.
    void ClearGroup(const QString& command);

    void Enable(const QString& command, bool enable);

    /// The entries with `command`, in the order of the tree.
    QList<vq_uint32> EntriesOf(const QString& command);

private:
    bool is_checked(vq_uint32 id);
    void mark(vq_uint32 id, bool checked);

    CVqAbstractMenu& m_menu;
    QHash<vq_uint32, MenuRole> m_roles;
};

}
