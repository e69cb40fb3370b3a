#pragma once

// QML: ToolbarSetupRows { setup: theSetup; toolbar: theSetup.toolbar }. Roles as in roleNames(); `count`;
// rowOf(), controlAt().

#include "arbor_quick_backend_export.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQmlIntegration>

#include <vector>

/// The controls of one bar in order, hidden ones and those in the picker too, but not the picker.
///
/// Follows the bar: a control that moves moves its row. Holds nothing but the order; what a row shows is read
/// from the control and the setup. GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickToolbarSetupRows : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(ToolbarSetupRows)
    Q_PROPERTY(CVqQuickToolbarSetup* setup READ Setup WRITE SetSetup NOTIFY setupChanged FINAL)
    Q_PROPERTY(CVqQuickButtonToolbar* toolbar READ Toolbar WRITE SetToolbar NOTIFY toolbarChanged FINAL)
    Q_PROPERTY(int count READ Count NOTIFY countChanged FINAL)

public:
    enum Role
    {
        NameRole = Qt::UserRole + 1,
        LabelRole, ///< Text, else tooltip, else name; empty for a separator.
        ImageIndexRole,
        SeparatorRole,
        GeneralRole, ///< Hosts an item of the application's; it can't be taken off.
        ShownRole,   ///< The user lets it show.
        LockedRole,  ///< The application hides it, whatever the user says.
        KeyTextRole,
        ControlRole,
    };
    Q_ENUM(Role)

    explicit CVqQuickToolbarSetupRows(QObject* parent = nullptr);

    /// Both not owned; may be null and may go at any time.
    CVqQuickToolbarSetup* Setup() const { return m_setup; }
    void SetSetup(CVqQuickToolbarSetup* setup);
    CVqQuickButtonToolbar* Toolbar() const { return m_toolbar; }
    void SetToolbar(CVqQuickButtonToolbar* toolbar);

    int Count() const { return int(m_controls.size()); }

    /// -1 for a control that has no row, and for null.
    Q_INVOKABLE int rowOf(CVqQuickControl* control) const;

    /// Null outside the range.
    Q_INVOKABLE CVqQuickControl* controlAt(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void setupChanged();
    void toolbarChanged();
    void countChanged();

private:
    using Controls = std::vector<CVqQuickControl*>;

    ARBOR_QUICK_BACKEND_NO_EXPORT void follow();
    ARBOR_QUICK_BACKEND_NO_EXPORT bool move_one(const Controls& wanted, int first, int end, int steps);
    ARBOR_QUICK_BACKEND_NO_EXPORT void remove_rows(int first, int end);
    ARBOR_QUICK_BACKEND_NO_EXPORT void insert_rows(const Controls& wanted, int first, int end);
    ARBOR_QUICK_BACKEND_NO_EXPORT void tell_all();

    QPointer<CVqQuickToolbarSetup> m_setup;
    QPointer<CVqQuickButtonToolbar> m_toolbar;
    std::vector<QPointer<CVqQuickControl>> m_controls;
};
