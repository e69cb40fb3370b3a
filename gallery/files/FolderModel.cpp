#include "gallery/files/FolderModel.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString path_of(const QVariant& row)
{
    return row.toMap().value(u"path"_s).toString();
}

}

QHash<int, QByteArray> FolderModel::roleNames() const
{
    return {{NameRole, "name"},         {PathRole, "path"},   {FolderRole, "folder"},   {SizeRole, "size"},
            {SizeTextRole, "sizeText"}, {StampRole, "stamp"}, {ChangedRole, "changed"}, {OrderRole, "order"}};
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface.
void FolderModel::Update(QVariant qvarInput)
{
    const std::lock_guard guard(mutex);
    const QVariantList wanted = qvarInput.toList();
    QSet<QString> paths;
    for (const QVariant& row : wanted)
        paths << path_of(row);
    remove_gone(paths);
    QHash<QString, int> places;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row)
        places.insert(path_of(rows[row]), row);
    QVariantList added;
    for (const QVariant& row : wanted) {
        const int place = places.value(path_of(row), -1);
        if (place >= 0)
            change(place, row.toMap());
        else
            added << row;
    }
    append(added);
}

// Backwards and by runs, so that going to another folder is one change.
void FolderModel::remove_gone(const QSet<QString>& paths)
{
    const auto is_gone = [this, &paths](int row) { return row >= 0 && !paths.contains(path_of(rows[row])); };
    for (int last = static_cast<int>(rows.size()) - 1; last >= 0; --last) {
        if (!is_gone(last))
            continue;
        int first = last;
        while (is_gone(first - 1))
            --first;
        beginRemoveRows({}, first, last);
        rows.remove(first, last - first + 1);
        endRemoveRows();
        last = first;
    }
}

void FolderModel::change(int row, const QVariantMap& wanted)
{
    const QVariantMap present = rows[row].toMap();
    if (present == wanted)
        return;
    rows[row] = wanted;
    Q_EMIT dataChanged(index(row), index(row));
}

void FolderModel::append(const QVariantList& wanted)
{
    if (wanted.isEmpty())
        return;
    const int first = static_cast<int>(rows.size());
    beginInsertRows({}, first, first + static_cast<int>(wanted.size()) - 1);
    rows += wanted;
    endInsertRows();
}

}
