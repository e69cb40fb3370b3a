#include "quick_backend/toolbar_setup/CVqQuickToolbarSetupRows.h"

#include "quick_backend/toolbar_setup/VqToolbarOrder.h"

#include <algorithm>

namespace {

bool is_separator(const CVqQuickControl& control)
{
    return control.GetKind() == CVqQuickControl::Separator;
}

QString label_of(const CVqQuickControl& control)
{
    if (is_separator(control))
        return {};
    const QString text = control.Text().isEmpty() ? control.Tooltip() : control.Text();
    return text.isEmpty() ? control.Name() : text;
}

}

CVqQuickToolbarSetupRows::CVqQuickToolbarSetupRows(QObject* parent) : QAbstractListModel(parent) { }

void CVqQuickToolbarSetupRows::SetSetup(CVqQuickToolbarSetup* setup)
{
    if (setup == m_setup)
        return;
    if (m_setup)
        disconnect(m_setup, nullptr, this, nullptr);
    m_setup = setup;
    if (setup)
        connect(setup, &CVqQuickToolbarSetup::changed, this, [this] {
            follow();
            tell_all();
        });
    tell_all();
    Q_EMIT setupChanged();
}

void CVqQuickToolbarSetupRows::SetToolbar(CVqQuickButtonToolbar* toolbar)
{
    if (toolbar == m_toolbar)
        return;
    if (m_toolbar)
        disconnect(m_toolbar, nullptr, this, nullptr);
    m_toolbar = toolbar;
    if (toolbar) {
        connect(toolbar, &CVqQuickButtonToolbar::contentChanged, this, &CVqQuickToolbarSetupRows::follow);
        connect(toolbar, &QObject::destroyed, this, &CVqQuickToolbarSetupRows::follow);
    }
    follow();
    Q_EMIT toolbarChanged();
}

int CVqQuickToolbarSetupRows::rowOf(CVqQuickControl* control) const
{
    const auto found = control ? std::find(m_controls.begin(), m_controls.end(), control) : m_controls.end();
    return found == m_controls.end() ? -1 : int(found - m_controls.begin());
}

CVqQuickControl* CVqQuickToolbarSetupRows::controlAt(int row) const
{
    return row >= 0 && row < Count() ? m_controls[std::size_t(row)].data() : nullptr;
}

int CVqQuickToolbarSetupRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Count();
}

QVariant CVqQuickToolbarSetupRows::data(const QModelIndex& index, int role) const
{
    CVqQuickControl* control = index.model() == this ? controlAt(index.row()) : nullptr;
    if (!control)
        return {};
    switch (role) {
    case NameRole:
        return control->Name();
    case Qt::DisplayRole:
    case LabelRole:
        return label_of(*control);
    case ImageIndexRole:
        return control->ImageIndex();
    case SeparatorRole:
        return is_separator(*control);
    case GeneralRole:
        return control->GetKind() == CVqQuickControl::General;
    case ShownRole:
        return m_setup ? m_setup->isShown(control) : control->IsShown();
    case LockedRole:
        return m_setup && m_setup->isLocked(control);
    case KeyTextRole:
        return control->KeyText();
    case ControlRole:
        return QVariant::fromValue(control);
    default:
        return {};
    }
}

QHash<int, QByteArray> CVqQuickToolbarSetupRows::roleNames() const
{
    return {
        {NameRole, "name"},           {LabelRole, "label"},     {ImageIndexRole, "imageIndex"},
        {SeparatorRole, "separator"}, {GeneralRole, "general"}, {ShownRole, "shown"},
        {LockedRole, "locked"},       {KeyTextRole, "keyText"}, {ControlRole, "control"},
    };
}

// Following the bar ----------------------------------------------------------------------------------------

void CVqQuickToolbarSetupRows::follow()
{
    const Controls wanted = m_toolbar ? VqControlsOf(*m_toolbar) : Controls();
    int first = 0;
    int end = Count();
    int wanted_end = int(wanted.size());
    while (first < std::min(end, wanted_end) && controlAt(first) == wanted[std::size_t(first)])
        ++first;
    while (first < std::min(end, wanted_end) && controlAt(end - 1) == wanted[std::size_t(wanted_end - 1)])
        --end, --wanted_end;
    if (first == end && first == wanted_end)
        return;
    if (end == wanted_end && (move_one(wanted, first, end, 1) || move_one(wanted, first, end, -1)))
        return;
    remove_rows(first, end);
    insert_rows(wanted, first, wanted_end);
    Q_EMIT countChanged();
}

// Whether the rows differ by one that went from the one end of the range to the other.
bool CVqQuickToolbarSetupRows::move_one(const Controls& wanted, int first, int end, int steps)
{
    auto rotated = m_controls;
    const auto from = rotated.begin() + first;
    const auto to = rotated.begin() + end;
    std::rotate(from, steps > 0 ? from + 1 : to - 1, to);
    if (!std::equal(from, to, wanted.begin() + first))
        return false;
    const int row = steps > 0 ? first : end - 1;
    beginMoveRows({}, row, row, {}, steps > 0 ? end : first);
    m_controls = std::move(rotated);
    endMoveRows();
    return true;
}

void CVqQuickToolbarSetupRows::remove_rows(int first, int end)
{
    if (first == end)
        return;
    beginRemoveRows({}, first, end - 1);
    for (int row = first; row < end; ++row)
        if (CVqQuickControl* control = controlAt(row))
            disconnect(control, nullptr, this, nullptr);
    m_controls.erase(m_controls.begin() + first, m_controls.begin() + end);
    endRemoveRows();
}

void CVqQuickToolbarSetupRows::insert_rows(const Controls& wanted, int first, int end)
{
    if (first == end)
        return;
    beginInsertRows({}, first, end - 1);
    m_controls.insert(m_controls.begin() + first, wanted.begin() + first, wanted.begin() + end);
    endInsertRows();
    for (int row = first; row < end; ++row) {
        CVqQuickControl* control = wanted[std::size_t(row)];
        connect(control, &CVqQuickControl::lookChanged, this, [this, control] {
            const QModelIndex changed = index(rowOf(control));
            Q_EMIT dataChanged(changed, changed);
        });
    }
}

void CVqQuickToolbarSetupRows::tell_all()
{
    if (Count() > 0)
        Q_EMIT dataChanged(index(0), index(Count() - 1), {ShownRole, LockedRole, NameRole, LabelRole});
}
