#pragma once

#include "arbor_qml_support_export.h"

#include <QByteArray>
#include <QJSValue>
#include <QQmlParserStatus>
#include <QSortFilterProxyModel>
#include <QString>

#include <memory>

class CVqRowFilter;

/// A proxy model that QML can set up: roles are named by text, the filter is a text with a syntax, and rows
/// are read by their number.
///
///     SortFilterProxyModel {
///         source: layers
///         sortRole: "name"
///         sortOrder: Qt.AscendingOrder
///         filterRole: "name"
///         filterString: search.text
///         filterSyntax: SortFilterProxyModel.FixedString
///     }
///
/// Names of roles become numbers when the component is complete, and from then on each time that one is set.
/// Another source does not change the number to sort by: set the role to another name and back. The filter
/// finds its role by name and so follows. How it treats case, and all else, is told by the base class.
///
/// No failure is reported: nothing is found under an unknown role, and nothing matches an invalid regular
/// expression. GUI thread only.
class ARBOR_QML_SUPPORT_EXPORT CVqSortFilterProxyModel : public QSortFilterProxyModel, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(QObject* source READ source WRITE setSource)
    Q_PROPERTY(QByteArray sortRole READ sortRole WRITE setSortRole)
    Q_PROPERTY(Qt::SortOrder sortOrder READ sortOrder WRITE setSortOrder)
    Q_PROPERTY(QByteArray filterRole READ filterRole WRITE setFilterRole)
    Q_PROPERTY(QString filterString READ filterString WRITE setFilterString NOTIFY filterStringChanged)
    Q_PROPERTY(FilterSyntax filterSyntax READ filterSyntax WRITE setFilterSyntax)

public:
    /// How the filter's text is read. An int, since callers may set any number; one without a name leaves the
    /// filter as it was.
    enum FilterSyntax : int
    {
        RegExp,      ///< A regular expression, found anywhere in the value.
        Wildcard,    ///< `*`, `?` and `[...]`, found anywhere in the value.
        FixedString, ///< The text as it is, found anywhere in the value.
    };
    Q_ENUM(FilterSyntax)

    /// A proxy without a source. `parent` owns it where it is not null.
    explicit CVqSortFilterProxyModel(QObject* parent = nullptr);
    ~CVqSortFilterProxyModel() override;

    /// The number of rows that pass the filter.
    int count() const;

    /// The source model, not owned; null without one.
    QObject* source() const;
    /// An object that is no model, as null, leaves the proxy without a source.
    void setSource(QObject* o);

    /// The name of the role to sort by; empty stands for the base class's own, Qt::DisplayRole.
    QByteArray sortRole() const;
    /// Sorts nothing by itself before an order has been set.
    void setSortRole(const QByteArray& role);

    Qt::SortOrder sortOrder() const;
    /// Sorts by the first column, from now on.
    void setSortOrder(Qt::SortOrder order);

    /// The name of the role to filter by; empty stands for all: a row passes when one of them matches.
    QByteArray filterRole() const;
    void setFilterRole(const QByteArray& role);

    /// The filter's text; the empty one lets all rows pass, in each syntax.
    QString filterString() const;
    void setFilterString(const QString& text);

    FilterSyntax filterSyntax() const;
    /// Applies the present text anew, except where `syntax` is the present one.
    void setFilterSyntax(FilterSyntax syntax);

    /// The row `index` as a script object: each role's name with its value as a text. An object without
    /// properties where there is no such row. Undefined for a proxy that no QML engine knows.
    Q_INVOKABLE QJSValue get(int index) const;

    /// The value of the role `roleName` in the row `index`, with its type. Invalid where there is no such row
    /// or role.
    Q_INVOKABLE QVariant get(int index, QString roleName) const;

    /// Does nothing: roles wait for componentComplete().
    void classBegin() override;
    /// Makes numbers of the names of roles. QML calls it; C++ that has set all properties does so itself.
    void componentComplete() override;

Q_SIGNALS:
    /// Rows have come or gone. A reset, as with another source, does not emit it.
    void countChanged();
    void filterStringChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    /// Those of the source; none without one.
    QHash<int, QByteArray> roleNames() const override;

    /// The number of the role `role`; -1 where there is no such role.
    int roleKey(const QByteArray& role) const;
    /// Gives the base class the filter's text, read by the syntax.
    void updateFilter();

private:
    bool m_complete = false;
    QString m_filterString;
    FilterSyntax m_filterSyntax = RegExp;
    QByteArray m_sortRole;
    QByteArray m_filterRole;
    std::unique_ptr<CVqRowFilter> m_filter; ///< Never null; one for each source.
};
