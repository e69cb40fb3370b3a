#include "gallery/lists/LayerListModel.h"

#include <QJSValue>

#include <algorithm>

namespace Gallery {

namespace {

// Script hands a list over as a value of its own.
QVariantList list_of(const QVariant& input)
{
    if (input.metaType() == QMetaType::fromType<QJSValue>())
        return input.value<QJSValue>().toVariant().toList();
    return input.toList();
}

}

QHash<int, QByteArray> LayerListModel::roleNames() const
{
    return {{NumberRole, "number"}, {NameRole, "name"}, {KindRole, "kind"}, {PercentRole, "percent"}};
}

QVariant LayerListModel::data(const QModelIndex& index, int role) const
{
    if (role != NumberRole)
        return CVqQtAbstractListModel::data(index, role);
    const std::lock_guard guard(mutex);
    return hasIndex(index.row(), index.column(), index.parent()) ? QVariant(index.row() + 1) : QVariant();
}

// The value is stored before the signal: a view reads it at once.
bool LayerListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const std::lock_guard guard(mutex);
    if (!value.isValid() || role == NumberRole || !roleNames().contains(role)
        || !hasIndex(index.row(), index.column(), index.parent()))
        return false;
    if (data(index, role) == value)
        return true;
    QVariantMap row = rows[index.row()].toMap();
    row.insert(QString::fromUtf8(roleNames().value(role)), value);
    rows[index.row()] = row;
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

bool LayerListModel::insertRows(int row, int count, const QModelIndex& parent)
{
    const std::lock_guard guard(mutex);
    if (parent.isValid() || row < 0 || row > rows.size() || count < 1)
        return false;
    beginInsertRows(parent, row, row + count - 1);
    rows.insert(row, count, QVariant());
    endInsertRows();
    number_anew(row + count, rowCount() - 1);
    return true;
}

bool LayerListModel::removeRows(int row, int count, const QModelIndex& parent)
{
    const std::lock_guard guard(mutex);
    if (parent.isValid() || row < 0 || count < 1 || count > rows.size() - row)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    rows.remove(row, count);
    endRemoveRows();
    number_anew(row, rowCount() - 1);
    return true;
}

bool LayerListModel::moveRow(const QModelIndex& sourceParent, int sourceRow,
                             const QModelIndex& destinationParent, int destinationChild)
{
    const std::lock_guard guard(mutex);
    if (!CVqQtAbstractListModel::moveRow(sourceParent, sourceRow, destinationParent, destinationChild))
        return false;
    if (sourceRow != destinationChild)
        number_anew(std::min(sourceRow, destinationChild), std::max(sourceRow, destinationChild));
    return true;
}

bool LayerListModel::insert(int row, const QVariantMap& layer)
{
    const std::lock_guard guard(mutex);
    if (!insertRows(row, 1))
        return false;
    for (const auto& [role, value] : layer.asKeyValueRange())
        change(row, role, value);
    return true;
}

bool LayerListModel::remove(int row)
{
    return removeRows(row, 1);
}

bool LayerListModel::change(int row, const QString& role, const QVariant& value)
{
    return setData(index(row), value, TranslateRole(role));
}

void LayerListModel::empty()
{
    Clear();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface.
void LayerListModel::Update(QVariant qvarInput)
{
    const std::lock_guard guard(mutex);
    beginResetModel();
    rows = list_of(qvarInput);
    endResetModel();
}

void LayerListModel::number_anew(int first, int last)
{
    if (first <= last)
        Q_EMIT dataChanged(index(first), index(last), {NumberRole});
}

}
