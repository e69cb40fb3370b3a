#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QSet>

namespace Gallery {

/// The files of a folder as rows of a list, in no particular order: a proxy sorts them. Its roles are the
/// entries of ReadFolder().
class FolderModel : public CVqQtAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        NameRole = Qt::UserRole + 1,
        PathRole,
        FolderRole,
        SizeRole,
        SizeTextRole,
        StampRole,
        ChangedRole,
        OrderRole,
    };

    using CVqQtAbstractListModel::CVqQtAbstractListModel;

    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    /// Takes a list as ReadFolder() gives it. A path that is there already keeps its row, so that a view
    /// keeps its place: only what is gone, new or different is told.
    void Update(QVariant qvarInput) override;

private:
    void remove_gone(const QSet<QString>& paths);
    void change(int row, const QVariantMap& wanted);
    void append(const QVariantList& wanted);
};

}
