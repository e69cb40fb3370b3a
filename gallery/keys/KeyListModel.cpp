#include "gallery/keys/KeyListModel.h"

#include "gallery/keys/MenuKeys.h"
#include "gallery/keys/OwnKeys.h"
#include "gallery/menu/KeyText.h"
#include "quick_backend/CVqQuickMenu.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

KeyListModel::KeyListModel(CVqQuickMenu& menu, const MenuDocument& document, QObject* parent)
    : QAbstractListModel(parent),
      m_menu(menu),
      m_commands(ListKeyCommands(menu, document)),
      m_factory_keys(FactoryKeys(document)),
      m_keys(MenuKeys(menu).All())
{
    m_shown = matching();
}

int KeyListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count();
}

QVariant KeyListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.model() != this || index.row() >= Count())
        return {};
    const KeyCommand& command = m_commands[m_shown[index.row()]];
    switch (role) {
    case CommandRole:
        return command.command;
    case Qt::DisplayRole:
    case LabelRole:
        return command.label;
    case PlaceRole:
        return command.place;
    case KeysRole:
        return key_texts(command);
    case OwnRole:
        return IsOwn(command);
    default:
        return {};
    }
}

QHash<int, QByteArray> KeyListModel::roleNames() const
{
    return {{CommandRole, "command"},
            {LabelRole, "label"},
            {PlaceRole, "place"},
            {KeysRole, "keys"},
            {OwnRole, "own"}};
}

void KeyListModel::SetFilter(const QString& filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    show(matching());
    Q_EMIT FilterChanged();
}

QString KeyListModel::commandAt(int row) const
{
    return row >= 0 && row < Count() ? m_commands[m_shown[row]].command : QString();
}

int KeyListModel::rowOf(const QString& command) const
{
    const auto shown = std::find_if(m_shown.begin(), m_shown.end(), [this, &command](qsizetype place) {
        return m_commands[place].command == command;
    });
    return shown == m_shown.end() ? -1 : static_cast<int>(shown - m_shown.begin());
}

const KeyCommand* KeyListModel::Find(const QString& command) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&command](const KeyCommand& one) { return one.command == command; });
    return found == m_commands.end() ? nullptr : &*found;
}

const KeyCommand* KeyListModel::Find(vq_uint32 id) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [id](const KeyCommand& one) { return one.ids.contains(id); });
    return found == m_commands.end() ? nullptr : &*found;
}

QList<MenuKey> KeyListModel::KeysOf(const KeyCommand& command) const
{
    QList<MenuKey> keys;
    for (const vq_uint32 id : command.ids)
        keys += m_keys.value(id);
    return keys;
}

bool KeyListModel::IsOwn(const KeyCommand& command) const
{
    return !std::all_of(command.ids.begin(), command.ids.end(), [this](vq_uint32 id) {
        return HasSameKeys(m_keys.value(id), m_factory_keys.value(id));
    });
}

int KeyListModel::OwnCount() const
{
    return static_cast<int>(std::count_if(m_commands.begin(), m_commands.end(),
                                          [this](const KeyCommand& command) { return IsOwn(command); }));
}

void KeyListModel::Refresh()
{
    m_keys = MenuKeys(m_menu).All();
    if (Count() > 0)
        Q_EMIT dataChanged(index(0), index(Count() - 1), {KeysRole, OwnRole});
}

QStringList KeyListModel::key_texts(const KeyCommand& command) const
{
    QStringList texts;
    for (const MenuKey& key : KeysOf(command))
        texts << PrintKey(key);
    return texts;
}

bool KeyListModel::matches(const KeyCommand& command, const QStringList& words) const
{
    const QStringList texts = QStringList{command.label, command.place, command.command} + key_texts(command);
    return std::all_of(words.begin(), words.end(), [&texts](const QString& word) {
        return std::any_of(texts.begin(), texts.end(),
                           [&word](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}

QList<qsizetype> KeyListModel::matching() const
{
    const QStringList words = m_filter.simplified().split(u' ', Qt::SkipEmptyParts);
    QList<qsizetype> places;
    for (qsizetype place = 0; place < m_commands.size(); ++place)
        if (matches(m_commands[place], words))
            places << place;
    return places;
}

// Row by row, so that a view keeps its place. Both lists are in the order of the commands.
void KeyListModel::show(const QList<qsizetype>& places)
{
    for (int row = Count() - 1; row >= 0; --row) {
        if (std::binary_search(places.begin(), places.end(), m_shown[row]))
            continue;
        beginRemoveRows({}, row, row);
        m_shown.removeAt(row);
        endRemoveRows();
    }
    for (int row = 0; row < static_cast<int>(places.size()); ++row) {
        if (row < Count() && m_shown[row] == places[row])
            continue;
        beginInsertRows({}, row, row);
        m_shown.insert(row, places[row]);
        endInsertRows();
    }
}

}
