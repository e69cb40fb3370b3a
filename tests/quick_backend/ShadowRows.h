#pragma once

#include "quick_backend/CVqQuickMenuRows.h"
#include "tests/contract/MenuModel.h"

#include <QPointer>
#include <QVariant>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// A view of a list of rows, and of all below it, that keeps what it once read and reads again only what the
/// list's signals name. What it holds is right if, and only if, the signals are.
class ShadowRows
{
public:
    explicit ShadowRows(CVqQuickMenuRows& rows) : m_rows(&rows)
    {
        QObject::connect(&rows, &QAbstractItemModel::rowsInserted, &m_context,
                         [this](const QModelIndex&, int first, int last) { Insert(first, last); });
        QObject::connect(&rows, &QAbstractItemModel::rowsRemoved, &m_context,
                         [this](const QModelIndex&, int first, int last) {
                             m_shadows.erase(m_shadows.begin() + first, m_shadows.begin() + last + 1);
                         });
        QObject::connect(&rows, &QAbstractItemModel::modelReset, &m_context, [this] {
            m_shadows.clear();
            Insert(0, m_rows->rowCount() - 1);
        });
        QObject::connect(&rows, &QAbstractItemModel::dataChanged, &m_context,
                         [this](const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) {
                             for (int row = first.row(); row <= last.row(); ++row)
                                 Read(row, roles);
                         });
        Insert(0, rows.rowCount() - 1);
    }

    /// The rows in the form of MenuModel.h, as the signals told.
    std::string Text(int level = 0) const
    {
        std::string text;
        for (const SRow& row : m_shadows) {
            text += row.Line(level);
            text += row.below ? row.below->Text(level + 1) : std::string();
        }
        return text;
    }

    /// Each row of this list and those below whose remembered values are not those of the model, by
    /// identifier.
    std::string Stale() const
    {
        std::string stale;
        for (int row = 0; row < int(m_shadows.size()); ++row) {
            const SRow& shadow = m_shadows[std::size_t(row)];
            for (const auto& [role, value] : shadow.values) {
                if (value != m_rows->index(row).data(role))
                    stale += std::to_string(m_rows->idAt(row)) + ":" + m_rows->roleNames()[role].toStdString()
                        + " ";
            }
            stale += shadow.below ? shadow.below->Stale() : std::string();
        }
        return stale;
    }

private:
    struct SRow
    {
        std::string Line(int level) const
        {
            QString label = values.at(CVqQuickMenuRows::LabelRole).toString();
            const int mnemonic = values.at(CVqQuickMenuRows::MnemonicPositionRole).toInt();
            if (mnemonic >= 0)
                label.insert(mnemonic, u'&');
            const SMenuRow row{values.at(CVqQuickMenuRows::ItemIdRole).toUInt(),
                               values.at(CVqQuickMenuRows::KindRole).toUInt(),
                               values.at(CVqQuickMenuRows::CheckedRole).toBool(),
                               values.at(CVqQuickMenuRows::GrayedRole).toBool(), label.toStdString()};
            return row.Line(level);
        }

        std::map<int, QVariant> values;
        std::unique_ptr<ShadowRows> below;
    };

    void Insert(int first, int last)
    {
        for (int row = first; row <= last; ++row) {
            m_shadows.insert(m_shadows.begin() + row, SRow());
            Read(row, m_rows->roleNames().keys());
        }
    }

    void Read(int row, const QList<int>& roles)
    {
        SRow& shadow = m_shadows[std::size_t(row)];
        for (const int role : roles) {
            if (m_rows->roleNames().contains(role))
                shadow.values[role] = m_rows->index(row).data(role);
        }
        CVqQuickMenuRows* below = m_rows->submenuAt(row);
        if (roles.contains(CVqQuickMenuRows::SubmenuRole))
            shadow.below = below ? std::make_unique<ShadowRows>(*below) : nullptr;
    }

    QPointer<CVqQuickMenuRows> m_rows;
    std::vector<SRow> m_shadows;
    QObject m_context; // ends the connections first
};
