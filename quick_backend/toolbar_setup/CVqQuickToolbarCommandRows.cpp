#include "quick_backend/toolbar_setup/CVqQuickToolbarCommandRows.h"

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar_setup/VqMenuCommands.h"

#include <algorithm>

namespace {

bool matches(const SVqMenuCommand& command, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(), [&command](const QString& word) {
        return command.m_path.contains(word, Qt::CaseInsensitive)
            || command.m_key.contains(word, Qt::CaseInsensitive);
    });
}

}

CVqQuickToolbarCommandRows::CVqQuickToolbarCommandRows(QObject* parent) : QAbstractListModel(parent) { }

void CVqQuickToolbarCommandRows::SetSetup(CVqQuickToolbarSetup* setup)
{
    if (setup == m_setup)
        return;
    if (m_setup)
        disconnect(m_setup, nullptr, this, nullptr);
    m_setup = setup;
    if (setup)
        connect(setup, &CVqQuickToolbarSetup::activeChanged, this, &CVqQuickToolbarCommandRows::read);
    read();
    Q_EMIT setupChanged();
}

void CVqQuickToolbarCommandRows::SetToolbar(CVqQuickButtonToolbar* toolbar)
{
    if (toolbar == m_toolbar)
        return;
    m_toolbar = toolbar;
    read();
    Q_EMIT toolbarChanged();
}

void CVqQuickToolbarCommandRows::SetFilter(const QString& filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    beginResetModel();
    select();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT filterChanged();
}

QString CVqQuickToolbarCommandRows::commandAt(int row) const
{
    return data(index(row), CommandRole).toString();
}

int CVqQuickToolbarCommandRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count();
}

QVariant CVqQuickToolbarCommandRows::data(const QModelIndex& index, int role) const
{
    if (index.model() != this || index.row() >= Count())
        return {};
    const SVqMenuCommand& command = m_commands[m_shown[std::size_t(index.row())]];
    switch (role) {
    case Qt::DisplayRole:
    case LabelRole:
        return command.m_label;
    case PathRole:
        return command.m_path;
    case ImageIndexRole:
        return command.m_image;
    case KeyTextRole:
        return command.m_key;
    case CommandRole:
        return command.m_command;
    default:
        return {};
    }
}

QHash<int, QByteArray> CVqQuickToolbarCommandRows::roleNames() const
{
    return {
        {LabelRole, "label"},     {PathRole, "path"},       {ImageIndexRole, "imageIndex"},
        {KeyTextRole, "keyText"}, {CommandRole, "command"},
    };
}

// A menu that is built tells of many changes; they are read once.
void CVqQuickToolbarCommandRows::read_later()
{
    if (m_is_due)
        return;
    m_is_due = true;
    QMetaObject::invokeMethod(this, &CVqQuickToolbarCommandRows::read, Qt::QueuedConnection);
}

void CVqQuickToolbarCommandRows::read()
{
    m_is_due = false;
    const CVqQuickMenu* menu = m_toolbar ? m_toolbar->Menu() : nullptr;
    beginResetModel();
    m_commands.clear();
    if (menu)
        m_commands = VqMenuCommands(*menu, m_setup ? m_setup->Ask() : nullptr);
    select();
    endResetModel();
    Q_EMIT countChanged();
    if (!menu)
        return;
    for (const CVqQuickMenuRows* rows : VqMenuLists(*menu))
        connect(rows, &CVqQuickMenuRows::shapeChanged, this, &CVqQuickToolbarCommandRows::read_later,
                Qt::UniqueConnection);
}

void CVqQuickToolbarCommandRows::select()
{
    const QStringList words = m_filter.split(u' ', Qt::SkipEmptyParts);
    m_shown.clear();
    for (std::size_t i = 0; i < m_commands.size(); ++i)
        if (matches(m_commands[i], words))
            m_shown.push_back(i);
}
