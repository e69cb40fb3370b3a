#pragma once

#include "tests/qml/NamedRows.h"

/// A list model that counts what a proxy asks it for. Each call of roleNames() makes a hash of its own, as
/// many models do.
class CountingRows : public NamedRows
{
public:
    using NamedRows::NamedRows;

    QHash<int, QByteArray> roleNames() const override
    {
        ++name_calls;
        QHash<int, QByteArray> names = NamedRows::roleNames();
        names.detach();
        return names;
    }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        roles_read.push_back(role);
        return NamedRows::data(index, role);
    }

    void Forget()
    {
        name_calls = 0;
        roles_read.clear();
    }

    mutable int name_calls = 0;
    mutable std::vector<int> roles_read;
};
