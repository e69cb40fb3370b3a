#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QVariantMap>

namespace Gallery {

/// A list of layers that people edit: "name", "kind" and "percent", the opacity, can be written, "number" is
/// the place of the row, from 1.
///
/// The base class leaves gaps for its heirs to fill, and this one fills them: values that are set are stored,
/// rows can be inserted behind the last one and into an empty list, and every row can be removed.
class LayerListModel : public CVqQtAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        NumberRole = Qt::UserRole + 1,
        NameRole,
        KindRole,
        PercentRole,
    };

    using CVqQtAbstractListModel::CVqQtAbstractListModel;

    QHash<int, QByteArray> roleNames() const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Stores the value. False for the number, which follows from the row, and for any other role that is
    /// none of the list's. True without a signal for the value that is there.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Puts empty rows before `row`, or behind the last one where `row` is the number of rows.
    bool insertRows(int row, int count, const QModelIndex& parent = {}) override;

    /// Takes any rows away.
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    using CVqQtAbstractListModel::moveRow;
    bool moveRow(const QModelIndex& sourceParent, int sourceRow, const QModelIndex& destinationParent,
                 int destinationChild) override;

    /// Puts a row with the entries of `layer` before `row`, or behind the last one.
    Q_INVOKABLE bool insert(int row, const QVariantMap& layer);

    /// Takes one row away.
    Q_INVOKABLE bool remove(int row);

    /// Changes the entry `role` of a row. False for a role that is none of the list's.
    Q_INVOKABLE bool change(int row, const QString& role, const QVariant& value);

    /// As Clear(), which script cannot call.
    Q_INVOKABLE void empty();

public Q_SLOTS:
    /// Takes a list of maps, each with the entries of one row.
    void Update(QVariant qvarInput) override;

private:
    void number_anew(int first, int last);
};

}
