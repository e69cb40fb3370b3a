#include "tests/qml_module/SampleModel.h"

QHash<int, QByteArray> SampleModel::roleNames() const
{
    return {{Qt::UserRole + 1, "name"}, {Qt::UserRole + 2, "size"}};
}

void SampleModel::Update(QVariant qvarInput)
{
    const std::lock_guard lock(mutex);
    beginResetModel();
    rows = qvarInput.toList();
    endResetModel();
}
