#include "gallery/keys/KeyCommands.h"

#include "gallery/menu/MenuBuilder.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

class Lister
{
public:
    explicit Lister(CVqQuickMenu& menu) : m_menu(menu) { }

    void Add(const std::vector<MenuEntry>& entries, const QString& place)
    {
        for (const MenuEntry& entry : entries) {
            const QString name = name_of(entry.id);
            if (!entry.command.isEmpty())
                add({entry.command, name, place, {entry.id}});
            Add(entry.items, place.isEmpty() ? name : place + u" › "_s + name);
        }
    }

    void Add(const LonelyKey& lonely)
    {
        add({lonely.command,
             lonely.text.isEmpty() ? lonely.command : LocalLabel(lonely.text),
             {},
             {lonely.id}});
    }

    const QList<KeyCommand>& Commands() const { return m_commands; }

private:
    void add(const KeyCommand& command)
    {
        const auto known = m_rows.constFind(command.command);
        if (known != m_rows.constEnd()) {
            m_commands[*known].ids += command.ids;
            return;
        }
        m_rows.insert(command.command, m_commands.size());
        m_commands << command;
    }

    /// What screen readers say of the entry's row: colours have no label.
    QString name_of(vq_uint32 id)
    {
        auto* item
            = dynamic_cast<CVqQuickMenuItem*>(m_menu.Manipulators().find_item(id, m_menu.getRootMenuItem()));
        if (!item || !item->rows())
            return {};
        const QModelIndex row = item->rows()->index(item->rows()->RowOf(*item));
        return item->rows()->data(row, CVqQuickMenuRows::AccessibleNameRole).toString();
    }

    CVqQuickMenu& m_menu;
    QList<KeyCommand> m_commands;
    QHash<QString, qsizetype> m_rows;
};

}

QList<KeyCommand> ListKeyCommands(CVqQuickMenu& menu, const MenuDocument& document)
{
    Lister lister(menu);
    lister.Add(document.menu, {});
    lister.Add(document.context, {});
    for (const LonelyKey& lonely : document.keys)
        lister.Add(lonely);
    return lister.Commands();
}

}
