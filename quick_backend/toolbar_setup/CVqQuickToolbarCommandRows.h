#pragma once

// QML: ToolbarCommandRows { setup: theSetup; toolbar: theSetup.toolbar; filter: field.text }. Roles as in
// roleNames(); `count`; commandAt().

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"
#include "quick_backend/toolbar_setup/SVqMenuCommand.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQmlIntegration>

#include <vector>

/// The commands of a bar's menu that may be added to the bar, in the order of the menu, as far as they match
/// a filter. Without separators and popups, and each command once. Follows the menu. GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarCommandRows : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarCommandRows)
    Q_PROPERTY(CVqQuickToolbarSetup* setup READ Setup WRITE SetSetup NOTIFY setupChanged FINAL)
    Q_PROPERTY(CVqQuickButtonToolbar* toolbar READ Toolbar WRITE SetToolbar NOTIFY toolbarChanged FINAL)
    Q_PROPERTY(QString filter READ Filter WRITE SetFilter NOTIFY filterChanged FINAL)
    Q_PROPERTY(int count READ Count NOTIFY countChanged FINAL)

public:
    enum Role
    {
        LabelRole = Qt::UserRole + 1,
        PathRole, ///< With the popups above: "File > Open".
        ImageIndexRole,
        KeyTextRole,
        CommandRole,
    };
    Q_ENUM(Role)

    explicit CVqQuickToolbarCommandRows(QObject* parent = nullptr);

    /// Both not owned; may be null and may go at any time. What `setup` offers is asked for when a session of
    /// its begins.
    CVqQuickToolbarSetup* Setup() const { return m_setup; }
    void SetSetup(CVqQuickToolbarSetup* setup);
    CVqQuickButtonToolbar* Toolbar() const { return m_toolbar; }
    void SetToolbar(CVqQuickButtonToolbar* toolbar);

    /// Words that all have to occur in the path or the key, whatever their case; empty lets everything show.
    QString Filter() const { return m_filter; }
    void SetFilter(const QString& filter);

    int Count() const { return int(m_shown.size()); }

    /// Empty outside the range.
    Q_INVOKABLE QString commandAt(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void setupChanged();
    void toolbarChanged();
    void filterChanged();
    void countChanged();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void read_later();
    ARBOR_QUICK_BACKEND_NO_EXPORT void read();
    ARBOR_QUICK_BACKEND_NO_EXPORT void select();

    QPointer<CVqQuickToolbarSetup> m_setup;
    QPointer<CVqQuickButtonToolbar> m_toolbar;
    QString m_filter;
    std::vector<SVqMenuCommand> m_commands;
    std::vector<std::size_t> m_shown; // indices of m_commands
    bool m_is_due = false;
};
