#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QtQmlIntegration>

// [snippet]
class Layers : public CVqQtAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    QHash<int, QByteArray> roleNames() const override
    {
        return {{Qt::UserRole + 1, "name"}, {Qt::UserRole + 2, "opacity"}};
    }

    void Update(QVariant qvarInput) override
    {
        const std::lock_guard lock(mutex);
        beginResetModel();
        rows = qvarInput.toList(); // of maps
        endResetModel();
    }
};
// [end]
