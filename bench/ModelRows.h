#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QAbstractListModel>

#include <vector>

/// The rows of a folder of pictures, with five roles, for all sides of a benchmark.
struct PictureRow
{
    QString name;
    QString folder;
    QString kind;
    int size;
    QString changed;
};

/// `count` rows in random order, the same for each call.
std::vector<PictureRow> MakePictureRows(int count);

enum PictureRole
{
    NameRole = Qt::UserRole + 1,
    FolderRole,
    KindRole,
    SizeRole,
    ChangedRole,
    EndRole,
};

/// A source for proxies as an application writes it: rows of its own type, and a fixed table of names.
class PictureRows : public QAbstractListModel
{
public:
    explicit PictureRows(int count);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    const std::vector<PictureRow> m_rows;
};

/// The same rows as maps.
class PictureMaps : public CVqQtAbstractListModel
{
public:
    explicit PictureMaps(int count);

    QHash<int, QByteArray> roleNames() const override;
    void Update(QVariant qvarInput) override;
};
