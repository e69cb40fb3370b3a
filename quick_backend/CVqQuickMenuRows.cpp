#include "quick_backend/CVqQuickMenuRows.h"

#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/VqMenuRowData.h"

#include <QFontMetricsF>

#include <algorithm>
#include <iterator>

namespace {

constexpr std::size_t MeasuredRows = 64;

bool MovesTheShape(const QList<int>& roles)
{
    return roles.contains(CVqQuickMenuRows::ShownRole) || roles.contains(CVqQuickMenuRows::KeyTextRole)
        || roles.contains(CVqQuickMenuRows::LabelRole);
}

// The longest of the texts, most characters first; so few that measuring them costs nothing.
void KeepLongest(QStringList& texts)
{
    const auto longer = [](const QString& a, const QString& b) { return a.size() > b.size(); };
    const std::size_t kept = std::min(MeasuredRows, std::size_t(texts.size()));
    std::partial_sort(texts.begin(), texts.begin() + qsizetype(kept), texts.end(), longer);
    texts.resize(qsizetype(kept));
}

qreal Widest(QStringList texts, const QFontMetricsF& metrics)
{
    KeepLongest(texts);
    qreal width = 0;
    for (const QString& text : std::as_const(texts))
        width = std::max(width, metrics.horizontalAdvance(text));
    return width;
}

}

CVqQuickMenuRows::CVqQuickMenuRows(const IVqQuickMenuKeys* keys, QObject* parent)
    : QAbstractListModel(parent), m_keys(keys)
{ }

CVqQuickMenuRows::~CVqQuickMenuRows()
{
    for (CVqQuickMenuItem* item : m_items)
        item->m_pRows = nullptr;
}

// For views ----------------------------------------------------------------------------------------------

int CVqQuickMenuRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count();
}

QVariant CVqQuickMenuRows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.model() != this || index.row() >= Count())
        return {};
    return VqMenuRowData(*m_items[std::size_t(index.row())], role, m_keys);
}

QHash<int, QByteArray> CVqQuickMenuRows::roleNames() const
{
    return {
        {ItemIdRole, "itemId"},
        {KindRole, "kind"},
        {LabelRole, "label"},
        {StyledLabelRole, "styledLabel"},
        {MnemonicRole, "mnemonic"},
        {MnemonicPositionRole, "mnemonicPosition"},
        {KeyTextRole, "keyText"},
        {CheckedRole, "checked"},
        {RadioRole, "radio"},
        {GrayedRole, "grayed"},
        {ShownRole, "shown"},
        {Color1Role, "color1"},
        {Color2Role, "color2"},
        {LineWidthRole, "lineWidth"},
        {ImageIndexRole, "imageIndex"},
        {SubmenuRole, "submenu"},
        {AccessibleNameRole, "accessibleName"},
        {CommandRole, "command"},
    };
}

int CVqQuickMenuRows::SeparatorCount() const
{
    return int(std::count_if(m_items.begin(), m_items.end(), [](const CVqQuickMenuItem* item) {
        return VqIsShown(*item) && item->type() == Separator;
    }));
}

int CVqQuickMenuRows::CommandCount() const
{
    return int(std::count_if(m_items.begin(), m_items.end(), [](const CVqQuickMenuItem* item) {
        return VqIsShown(*item) && item->type() != Separator;
    }));
}

bool CVqQuickMenuRows::CanBePicked(int row) const
{
    const CVqQuickMenuItem* item = ItemAt(row);
    return item && VqIsShown(*item) && !VqIsGrayed(*item) && item->type() != Separator;
}

int CVqQuickMenuRows::next(int from, int step) const
{
    const int count = Count();
    int row = from;
    for (int tried = 0; tried < count; ++tried) {
        row += step < 0 ? -1 : 1;
        if (row < 0)
            row = count - 1;
        else if (row >= count)
            row = 0;
        if (CanBePicked(row))
            return row;
    }
    return -1;
}

int CVqQuickMenuRows::byMnemonic(const QString& text, int from) const
{
    if (text.isEmpty())
        return -1;
    const vq_wchar wanted = VqLower(vq_wchar(text[0].unicode()));
    const int first = next(from, 1);
    int row = first;
    while (row >= 0) {
        const vq_wchar mnemonic = ItemAt(row)->mnemonic();
        if (mnemonic && VqLower(mnemonic) == wanted)
            return row;
        row = next(row, 1);
        if (row == first)
            break;
    }
    return -1;
}

bool CVqQuickMenuRows::isUniqueMnemonic(const QString& text) const
{
    const int row = byMnemonic(text, -1);
    return row >= 0 && byMnemonic(text, row) == row;
}

CVqQuickMenuRows* CVqQuickMenuRows::submenuAt(int row) const
{
    const CVqQuickMenuItem* item = ItemAt(row);
    return item ? item->submenu() : nullptr;
}

uint CVqQuickMenuRows::idAt(int row) const
{
    const CVqQuickMenuItem* item = ItemAt(row);
    return item ? item->id() : 0;
}

QSizeF CVqQuickMenuRows::textColumns(const QFont& font) const
{
    QStringList labels;
    QStringList keys;
    for (const CVqQuickMenuItem* item : m_items) {
        if (!VqIsShown(*item))
            continue;
        labels += VqMenuRowLabel(*item);
        keys += VqMenuRowKeyText(*item, m_keys);
    }
    const QFontMetricsF metrics(font);
    return {Widest(labels, metrics), Widest(keys, metrics)};
}

// For the back end ---------------------------------------------------------------------------------------

const QList<int>& CVqQuickMenuRows::TextRoles()
{
    static const QList<int> roles = {
        Qt::DisplayRole,      LabelRole,   StyledLabelRole,    MnemonicRole,
        MnemonicPositionRole, KeyTextRole, AccessibleNameRole,
    };
    return roles;
}

const QList<int>& CVqQuickMenuRows::StateRoles()
{
    static const QList<int> roles = {CheckedRole, GrayedRole};
    return roles;
}

void CVqQuickMenuRows::Insert(CVqQuickMenuItem& item, const CVqQuickMenuItem* next)
{
    if (item.m_pRows)
        return;
    const int next_row = next ? RowOf(*next) : -1;
    const int row = next_row < 0 ? Count() : next_row;
    beginInsertRows({}, row, row);
    m_items.insert(m_items.begin() + row, &item);
    item.m_pRows = this;
    item.m_row = row;
    endInsertRows();
    Q_EMIT shapeChanged();
}

void CVqQuickMenuRows::Remove(CVqQuickMenuItem& item)
{
    const int row = RowOf(item);
    if (row < 0)
        return;
    beginRemoveRows({}, row, row);
    m_items.erase(m_items.begin() + row);
    item.m_pRows = nullptr;
    endRemoveRows();
    Q_EMIT shapeChanged();
}

void CVqQuickMenuRows::RemoveAll()
{
    beginResetModel();
    for (CVqQuickMenuItem* item : m_items)
        item->m_pRows = nullptr;
    m_items.clear();
    endResetModel();
    Q_EMIT shapeChanged();
}

void CVqQuickMenuRows::Changed(const CVqQuickMenuItem& item, const QList<int>& roles)
{
    const int row = RowOf(item);
    if (row < 0)
        return;
    Q_EMIT dataChanged(index(row), index(row), roles);
    if (MovesTheShape(roles))
        Q_EMIT shapeChanged();
}

void CVqQuickMenuRows::KeysChanged()
{
    if (m_items.empty())
        return;
    Q_EMIT dataChanged(index(0), index(Count() - 1), {KeyTextRole});
    Q_EMIT shapeChanged();
}

// An item remembers its row, which inserts and removals before it make stale; one pass over the list then
// sets all of them right, so that walking a popup stays linear.
int CVqQuickMenuRows::RowOf(const CVqQuickMenuItem& item) const
{
    if (item.m_pRows != this)
        return -1;
    if (item.m_row >= Count() || m_items[std::size_t(item.m_row)] != &item)
        Renumber();
    return item.m_row;
}

void CVqQuickMenuRows::Renumber() const
{
    int row = 0;
    for (CVqQuickMenuItem* item : m_items)
        item->m_row = row++;
}

const CVqQuickMenuItem* CVqQuickMenuRows::ItemAt(int row) const
{
    return row >= 0 && row < Count() ? m_items[std::size_t(row)] : nullptr;
}
