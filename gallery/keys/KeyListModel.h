#pragma once

#include "gallery/keys/KeyCommands.h"

#include <QAbstractListModel>
#include <QHash>

namespace Gallery {

/// The commands of a menu with their keys: those that have every word of a filter in their label, place,
/// command or keys, whatever the case.
class KeyListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString filter READ Filter WRITE SetFilter NOTIFY FilterChanged)
    Q_PROPERTY(int count READ Count NOTIFY FilterChanged)

public:
    enum Role
    {
        CommandRole = Qt::UserRole + 1,
        LabelRole,
        PlaceRole,
        KeysRole, ///< A list of texts.
        OwnRole,  ///< The keys are not those of the factory menu.
    };

    /// `menu`, which was built from `document`, must outlive the model.
    KeyListModel(CVqQuickMenu& menu, const MenuDocument& document, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int Count() const { return static_cast<int>(m_shown.size()); }
    const QString& Filter() const { return m_filter; }
    void SetFilter(const QString& filter);

    /// The command of a row, empty outside the range; the row of a command, -1 when it is not shown.
    Q_INVOKABLE QString commandAt(int row) const;
    Q_INVOKABLE int rowOf(const QString& command) const;

    /// The command with that text, or the one that has `id`; null when there is none, filtered out or not.
    const KeyCommand* Find(const QString& command) const;
    const KeyCommand* Find(vq_uint32 id) const;

    /// The keys of a command, those of its first entry first.
    QList<MenuKey> KeysOf(const KeyCommand& command) const;

    bool IsOwn(const KeyCommand& command) const;

    /// Commands whose keys are not those of the factory menu; filtered out or not.
    int OwnCount() const;

    /// Reads the keys of the menu again. The same rows stay, whether or not they still have the filter's
    /// words.
    void Refresh();

Q_SIGNALS:
    void FilterChanged();

private:
    QStringList key_texts(const KeyCommand& command) const;
    bool matches(const KeyCommand& command, const QStringList& words) const;
    QList<qsizetype> matching() const;
    void show(const QList<qsizetype>& places);

    CVqQuickMenu& m_menu;
    QList<KeyCommand> m_commands;
    QHash<vq_uint32, QList<MenuKey>> m_factory_keys;
    QHash<vq_uint32, QList<MenuKey>> m_keys;
    QList<qsizetype> m_shown; // places in m_commands, ascending
    QString m_filter;
};

}
