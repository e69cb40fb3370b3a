#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QHash>
#include <QStringList>

#include <string>
#include <vector>

/// A concrete list model of rows with a name and a size, which opens what the base keeps to derived classes.
///
///     NamedRows model({u"sky"_s, u"sea"_s});
///     EXPECT_EQ(TextsOf(model, NamedRows::Name), Texts({"sky", "sea"}));
class NamedRows : public CVqQtAbstractListModel
{
public:
    enum Role
    {
        Name = Qt::UserRole + 1,
        Size,
    };

    /// A row for each name; the sizes count up from 1.
    explicit NamedRows(const QStringList& names = QStringList())
    {
        for (const QString& name : names)
            rows += Row(name, static_cast<int>(rows.size()) + 1);
    }

    static QVariant Row(const QString& name, int size)
    {
        return QVariantMap{{QStringLiteral("name"), name}, {QStringLiteral("size"), size}};
    }

    /// Puts a row behind the last one.
    void Append(const QString& name, int size)
    {
        const std::lock_guard guard(mutex);
        const int end = static_cast<int>(rows.size());
        beginInsertRows(QModelIndex(), end, end);
        rows += Row(name, size);
        endInsertRows();
    }

    /// Fills one row, as a concrete model does that stores what it is told.
    void Fill(int row, const QString& name, int size)
    {
        const std::lock_guard guard(mutex);
        rows[row] = Row(name, size);
        Q_EMIT dataChanged(index(row), index(row));
    }

    /// `qvarInput` is a list of rows.
    void Update(QVariant qvarInput) override
    {
        const std::lock_guard guard(mutex);
        beginResetModel();
        rows = qvarInput.toList();
        endResetModel();
    }

    /// The index of a place, without asking whether there is such a place.
    QModelIndex createdIndex(int row, int column = 0) const { return createIndex(row, column); }

    QHash<int, QByteArray> roleNames() const override { return m_roleNames; }
    /// Without a signal.
    void SetRoleNames(const QHash<int, QByteArray>& names) { m_roleNames = names; }

    using CVqQtAbstractListModel::mutex;
    using CVqQtAbstractListModel::rows;
    using QAbstractListModel::index;

private:
    QHash<int, QByteArray> m_roleNames{{Name, "name"}, {Size, "size"}};
};

using Texts = std::vector<std::string>;

/// The values of one role as texts, row by row.
inline Texts TextsOf(const QAbstractItemModel& model, int role)
{
    Texts texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts.push_back(model.index(row, 0).data(role).toString().toStdString());
    return texts;
}
