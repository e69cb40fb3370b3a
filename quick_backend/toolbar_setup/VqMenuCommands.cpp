#include "quick_backend/toolbar_setup/VqMenuCommands.h"

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "system/CVqStringW.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Ask = CVqAbstractButtonToolbar::setup_callback_type;

QString text_of(const CVqQuickMenuRows& rows, int row, int role)
{
    return rows.data(rows.index(row), role).toString();
}

// False when it is not to be offered.
bool ask_for_label(Ask ask, vq_uint32 id, QString& label)
{
    CVqStringW text = CVqStringW::FromQString(label);
    if (ask && !ask(id, nullptr, text))
        return false;
    label = text.ToQString();
    return !label.isEmpty();
}

class CVqCommandWalk
{
public:
    explicit CVqCommandWalk(Ask ask) : m_ask(ask) { }

    void Walk(const CVqQuickMenuRows& rows, const QString& path)
    {
        for (int row = 0; row < rows.Count(); ++row) {
            const CVqQuickMenuItem& item = *rows.ItemAt(row);
            const QString label = text_of(rows, row, CVqQuickMenuRows::LabelRole);
            if (item.deleted() || item.type() == CVqQuickMenuRows::Separator)
                continue;
            if (item.type() != CVqQuickMenuRows::Popup)
                Meet(rows, row, label, path);
            else if (item.submenu())
                Walk(*item.submenu(), label.isEmpty() ? path : path + label + u" > "_s);
        }
    }

    std::vector<SVqMenuCommand> m_found;

private:
    void Meet(const CVqQuickMenuRows& rows, int row, QString label, const QString& path)
    {
        const CVqQuickMenuItem& item = *rows.ItemAt(row);
        const QString command = item.command().ToQString();
        if (item.removed() || command.isEmpty() || m_known.contains(command)
            || !ask_for_label(m_ask, item.id(), label))
            return;
        m_known.insert(command);
        m_found.push_back({label, path + label, command, text_of(rows, row, CVqQuickMenuRows::KeyTextRole),
                           int(item.enaBmpIndex())});
    }

    const Ask m_ask;
    QSet<QString> m_known;
};

void collect_lists(const CVqQuickMenuRows& rows, std::vector<const CVqQuickMenuRows*>& lists)
{
    lists.push_back(&rows);
    for (int row = 0; row < rows.Count(); ++row)
        if (const CVqQuickMenuRows* below = rows.ItemAt(row)->submenu())
            collect_lists(*below, lists);
}

}

std::vector<SVqMenuCommand> VqMenuCommands(const CVqQuickMenu& menu, Ask ask)
{
    CVqCommandWalk walk(ask);
    walk.Walk(*menu.Rows(), {});
    return walk.m_found;
}

std::vector<const CVqQuickMenuRows*> VqMenuLists(const CVqQuickMenu& menu)
{
    std::vector<const CVqQuickMenuRows*> lists;
    collect_lists(*menu.Rows(), lists);
    return lists;
}
