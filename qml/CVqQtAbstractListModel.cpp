#include "qml/CVqQtAbstractListModel.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QString>

#include <algorithm>
#include <limits>

namespace {

using Guard = std::lock_guard<std::recursive_mutex>;

// As many rows as there are of those that were asked for: a slot of a signal before the change may have
// changed the rows itself.
qsizetype rows_left(const QList<QVariant>& rows, int row, int count)
{
    return std::clamp<qsizetype>(rows.size() - row, 0, count);
}

// What an entry of a row holds: a value, or a variant that was put into a variant as it is.
QVariant content_of(const QVariant& entry)
{
    if (entry.metaType() == QMetaType::fromType<QVariant>())
        return *static_cast<const QVariant*>(entry.constData());
    return entry;
}

QString role_name(const QAbstractItemModel& model, int role)
{
    return QString::fromUtf8(model.roleNames().value(role));
}

bool has_row(const QList<QVariant>& rows, int row)
{
    return row >= 0 && row < rows.size();
}

}

CVqQtAbstractListModel::CVqQtAbstractListModel(QObject* parent) : QAbstractListModel(parent) { }

CVqQtAbstractListModel::~CVqQtAbstractListModel() = default;

int CVqQtAbstractListModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    const Guard guard(mutex);
    return static_cast<int>(rows.size());
}

int CVqQtAbstractListModel::columnCount(const QModelIndex&) const
{
    const Guard guard(mutex);
    return 1;
}

QVariant CVqQtAbstractListModel::data(const QModelIndex& index, int role) const
{
    const Guard guard(mutex);
    if (!hasIndex(index.row(), index.column(), index.parent()))
        return QVariant();
    return rows.value(index.row()).toMap().value(role_name(*this, role));
}

bool CVqQtAbstractListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!value.isValid() || !hasIndex(index.row(), index.column(), index.parent()))
        return false;
    const Guard guard(mutex);
    const QVariantMap row = rows.value(index.row()).toMap();
    const auto entry = row.constFind(role_name(*this, role));
    if (entry == row.constEnd() || content_of(*entry) != value)
        Q_EMIT dataChanged(index, index, {role});
    return true;
}

bool CVqQtAbstractListModel::insertRows(int row, int count, const QModelIndex& parent)
{
    const Guard guard(mutex);
    if (!has_row(rows, row) || count < 1 || rows.size() + qint64(count) > std::numeric_limits<int>::max())
        return false;
    beginInsertRows(parent, row, row + count - 1);
    rows.insert(std::min<qsizetype>(row, rows.size()), count, QVariant());
    endInsertRows();
    return true;
}

bool CVqQtAbstractListModel::removeRows(int row, int count, const QModelIndex& parent)
{
    const Guard guard(mutex);
    if (!has_row(rows, row) || count < 1 || rows.size() <= qint64(row) + count + 1)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    rows.remove(std::min<qsizetype>(row, rows.size()), rows_left(rows, row, count));
    endRemoveRows();
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface.
int CVqQtAbstractListModel::TranslateRole(QString qstrRole)
{
    const Guard guard(mutex);
    const QHash<int, QByteArray> names = roleNames();
    const auto is_role
        = [&qstrRole](const QByteArray& name) { return QAnyStringView::equal(name, qstrRole); };
    const auto role = std::find_if(names.cbegin(), names.cend(), is_role);
    return role == names.cend() ? 0 : role.key();
}

bool CVqQtAbstractListModel::moveRow(int iSourceIndex, int iDestinationIndex)
{
    const Guard guard(mutex);
    return moveRow(QModelIndex(), iSourceIndex, QModelIndex(), iDestinationIndex);
}

bool CVqQtAbstractListModel::moveRow(const QModelIndex& sourceParent, int sourceRow,
                                     const QModelIndex& destinationParent, int destinationChild)
{
    if (sourceRow == destinationChild)
        return true;
    const Guard guard(mutex);
    if (!has_row(rows, sourceRow) || !has_row(rows, destinationChild))
        return false;
    // Views count the places before the row is taken out.
    const int place = destinationChild > sourceRow ? destinationChild + 1 : destinationChild;
    const bool announced = beginMoveRows(sourceParent, sourceRow, sourceRow, destinationParent, place);
    if (has_row(rows, sourceRow) && has_row(rows, destinationChild))
        rows.move(sourceRow, destinationChild);
    // Qt has nothing to end where it refused to begin, and would take it from an empty stack.
    if (announced)
        endMoveRows();
    return true;
}

void CVqQtAbstractListModel::Clear()
{
    const Guard guard(mutex);
    beginResetModel();
    rows.clear();
    endResetModel();
}
