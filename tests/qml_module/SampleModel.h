#pragma once

#include "qml/CVqQtAbstractListModel.h"

#include <QtQmlIntegration>

/// A list model with the roles "name" and "size" that takes a list of maps.
class SampleModel : public CVqQtAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    using CVqQtAbstractListModel::CVqQtAbstractListModel;

    QHash<int, QByteArray> roleNames() const override;
    void Update(QVariant qvarInput) override;
};
