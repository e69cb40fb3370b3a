#include "qml/CVqSortFilterProxyModel.h"

#include "qml/CVqRowFilter.h"

#include <QHash>
#include <QJSEngine>
#include <QQmlEngine>
#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace {

// The number of the first role whose name fulfils `is_role`.
template <typename IsRole>
std::optional<int> first_role(const QHash<int, QByteArray>& names, IsRole is_role)
{
    const auto role = std::find_if(names.cbegin(), names.cend(), is_role);
    return role == names.cend() ? std::nullopt : std::optional(role.key());
}

}

CVqSortFilterProxyModel::CVqSortFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent), m_filter(std::make_unique<CVqRowFilter>(nullptr))
{
    connect(this, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SIGNAL(countChanged()));
    connect(this, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SIGNAL(countChanged()));
    // The base class connects to a new source after this, so the new filter hears of each change first.
    connect(this, &QAbstractProxyModel::sourceModelChanged, this,
            [this] { m_filter = std::make_unique<CVqRowFilter>(sourceModel()); });
    // invalidate() begins with it.
    connect(this, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] { m_filter->Forget(); });
}

CVqSortFilterProxyModel::~CVqSortFilterProxyModel() = default;

int CVqSortFilterProxyModel::count() const
{
    return rowCount(QModelIndex());
}

QObject* CVqSortFilterProxyModel::source() const
{
    return sourceModel();
}

void CVqSortFilterProxyModel::setSource(QObject* o)
{
    setSourceModel(qobject_cast<QAbstractItemModel*>(o));
}

QByteArray CVqSortFilterProxyModel::sortRole() const
{
    return m_sortRole;
}

void CVqSortFilterProxyModel::setSortRole(const QByteArray& role)
{
    if (role == m_sortRole)
        return;
    m_sortRole = role;
    if (m_complete)
        QSortFilterProxyModel::setSortRole(roleKey(role));
}

Qt::SortOrder CVqSortFilterProxyModel::sortOrder() const
{
    return QSortFilterProxyModel::sortOrder();
}

void CVqSortFilterProxyModel::setSortOrder(Qt::SortOrder order)
{
    sort(0, order);
}

QByteArray CVqSortFilterProxyModel::filterRole() const
{
    return m_filterRole;
}

void CVqSortFilterProxyModel::setFilterRole(const QByteArray& role)
{
    if (role == m_filterRole)
        return;
    m_filterRole = role;
    m_filter->Forget();
    if (m_complete)
        QSortFilterProxyModel::setFilterRole(roleKey(role));
}

QString CVqSortFilterProxyModel::filterString() const
{
    return m_filterString;
}

void CVqSortFilterProxyModel::setFilterString(const QString& text)
{
    if (text == m_filterString)
        return;
    m_filterString = text;
    updateFilter();
    Q_EMIT filterStringChanged();
}

CVqSortFilterProxyModel::FilterSyntax CVqSortFilterProxyModel::filterSyntax() const
{
    return m_filterSyntax;
}

void CVqSortFilterProxyModel::setFilterSyntax(FilterSyntax syntax)
{
    if (syntax == m_filterSyntax)
        return;
    m_filterSyntax = syntax;
    updateFilter();
}

QJSValue CVqSortFilterProxyModel::get(int index) const
{
    QQmlEngine* engine = qmlEngine(this);
    if (!engine)
        return QJSValue();
    QJSValue object = engine->newObject();
    if (index < 0 || index >= rowCount())
        return object;
    const QModelIndex row = this->index(index, 0);
    const QHash<int, QByteArray> names = roleNames();
    for (const auto& [role, name] : names.asKeyValueRange())
        object.setProperty(QString::fromUtf8(name), data(row, role).toString());
    return object;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is part of the interface.
QVariant CVqSortFilterProxyModel::get(int index, QString roleName) const
{
    const std::optional<int> role = first_role(
        roleNames(), [&roleName](const QByteArray& name) { return QAnyStringView::equal(name, roleName); });
    return role ? data(this->index(index, 0), *role) : QVariant();
}

void CVqSortFilterProxyModel::classBegin() { }

void CVqSortFilterProxyModel::componentComplete()
{
    m_complete = true;
    m_filter->Forget();
    if (!m_sortRole.isEmpty())
        QSortFilterProxyModel::setSortRole(roleKey(m_sortRole));
    if (!m_filterRole.isEmpty())
        QSortFilterProxyModel::setFilterRole(roleKey(m_filterRole));
}

bool CVqSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const QRegularExpression expression = filterRegularExpression();
    const bool ready = m_filter->IsReadyFor(expression);
    if (!ready && expression.pattern().isEmpty())
        return true;
    const QAbstractItemModel* model = sourceModel();
    const QModelIndex row = model ? model->index(sourceRow, 0, sourceParent) : QModelIndex();
    if (!m_filterRole.isEmpty() && !row.isValid())
        return true;
    if (!ready)
        m_filter->Prepare(expression,
                          m_filterRole.isEmpty() ? roleNames().keys() : QList{roleKey(m_filterRole)});
    return m_filter->Accepts(row);
}

QHash<int, QByteArray> CVqSortFilterProxyModel::roleNames() const
{
    const QAbstractItemModel* model = sourceModel();
    return model ? model->roleNames() : QHash<int, QByteArray>();
}

int CVqSortFilterProxyModel::roleKey(const QByteArray& role) const
{
    return first_role(roleNames(), [&role](const QByteArray& name) { return name == role; }).value_or(-1);
}

void CVqSortFilterProxyModel::updateFilter()
{
    m_filter->Forget();
    switch (m_filterSyntax) {
    case RegExp:
        setFilterRegularExpression(m_filterString);
        break;
    case Wildcard:
        setFilterWildcard(m_filterString);
        break;
    case FixedString:
        setFilterFixedString(m_filterString);
        break;
    }
}
