#pragma once

#include "arbor_qml_support_export.h"

#include <QAbstractListModel>
#include <QList>
#include <QVariant>

#include <mutex>

/// The base of list models for QML: one column, whose rows are maps from role name to value, behind a lock.
///
/// A concrete model supplies roleNames(), which ties role numbers to the names, and Update(), which takes in
/// data and so fills `rows`:
///
///     void Layers::Update(QVariant qvarInput)
///     {
///         const std::lock_guard lock(mutex);
///         beginResetModel();
///         rows = qvarInput.toList(); // a list of maps
///         endResetModel();
///     }
///
/// Any thread may call: each operation holds the lock from beginning to end, except where it says so. Signals
/// are emitted with the lock held, so a slot that waits for another thread must not wait for one that uses
/// the model. The lock is recursive: slots and derived classes may call the model. roleNames() is called
/// under it. A refused operation emits nothing.
class ARBOR_QML_SUPPORT_EXPORT CVqQtAbstractListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// A model without rows. `parent` owns it where it is not null.
    explicit CVqQtAbstractListModel(QObject* parent = nullptr);
    ~CVqQtAbstractListModel() override;

    /// The number of rows; 0, without the lock, for a valid `parent`.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Always 1, also for a valid `parent`.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /// What the row's map holds under the name of `role`. Invalid where the index is not one of the model's,
    /// or the map has no such entry. A number without a name reads the entry with the empty name.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Tells the views that a value has changed, but stores nothing: filling the rows is up to the concrete
    /// model, which overrides this to store as well. False, without the lock, for an index that is not one
    /// of the model's and for an invalid `value`. True without a signal where the row's map has `value`
    /// already; otherwise true with dataChanged() for this one role.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Puts `count` empty rows before `row`, which must be there already: so nothing can be put behind the
    /// last row or into an empty model. False where there is no such row, where `count` is below 1, and where
    /// there would be more rows than an int counts. `parent` only goes into the signals.
    bool insertRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// Takes `count` rows away, `row` the first. At least two rows must remain behind them: false for a range
    /// that reaches the last row or the one before it, as for one that does not fit. `parent` only goes into
    /// the signals.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    /// The number of the role `qstrRole`; 0 where there is no such role.
    Q_INVOKABLE virtual int TranslateRole(QString qstrRole);

    /// Moves one row: afterwards the row `iSourceIndex` stands at `iDestinationIndex`. False where there is
    /// no such row or no such place; true for two equal numbers, whatever they are.
    Q_INVOKABLE virtual bool moveRow(int iSourceIndex, int iDestinationIndex);

    /// As above; for two equal numbers without the lock. Not the operation of the same name in
    /// QAbstractItemModel: `destinationChild` is the row's place afterwards, and both parents only go into
    /// the signals. With parents between which no view could follow the move, such as the row itself for the
    /// second, the row moves without a signal.
    virtual bool moveRow(const QModelIndex& sourceParent, int sourceRow, const QModelIndex& destinationParent,
                         int destinationChild);

    /// Takes all rows away, as a reset of the model. Keeps the room that they had.
    virtual void Clear();

public Q_SLOTS:
    /// Takes in data. What `qvarInput` holds is between the concrete model and its QML.
    virtual void Update(QVariant qvarInput) = 0;

protected:
    QList<QVariant> rows;               ///< One QVariantMap of role name to value a row; empty until filled.
    mutable std::recursive_mutex mutex; ///< Guards `rows`.
};
