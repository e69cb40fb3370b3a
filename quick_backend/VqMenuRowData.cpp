#include "quick_backend/VqMenuRowData.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/CVqQuickMenuRows.h"
#include "quick_backend/IVqQuickMenuKeys.h"
#include "quick_backend/VqMenuLabel.h"

#include <QColor>

namespace {

QColor ToColor(vq_uint32 colour)
{
    return QColor(int(colour & 255), int(colour >> 8 & 255), int(colour >> 16 & 255));
}

SVqMenuLabel LabelOf(const CVqMenuItem& item)
{
    return VqMenuLabel(item.text().GetString(), item.mnemonic());
}

QString MnemonicOf(const CVqMenuItem& item)
{
    return item.mnemonic() ? QString(QChar(char16_t(item.mnemonic()))) : QString();
}

QString AccessibleNameOf(const CVqMenuItem& item)
{
    const QString label = VqMenuRowLabel(item);
    if (!label.isEmpty())
        return label;
    switch (item.type()) {
    case CVqQuickMenuRows::OneColor:
        return ToColor(item.col1()).name();
    case CVqQuickMenuRows::TwoColor:
        return ToColor(item.col1()).name() + QStringLiteral(", ") + ToColor(item.col2()).name();
    case CVqQuickMenuRows::LineWidth:
        return QStringLiteral("%1 px").arg(item.lineWidth());
    default:
        return label;
    }
}

QVariant TextData(const CVqMenuItem& item, int role, const IVqQuickMenuKeys* keys)
{
    switch (role) {
    case Qt::DisplayRole:
    case CVqQuickMenuRows::LabelRole:
        return VqMenuRowLabel(item);
    case CVqQuickMenuRows::StyledLabelRole:
        return LabelOf(item).Styled();
    case CVqQuickMenuRows::MnemonicRole:
        return MnemonicOf(item);
    case CVqQuickMenuRows::MnemonicPositionRole:
        return LabelOf(item).mnemonic;
    case CVqQuickMenuRows::KeyTextRole:
        return VqMenuRowKeyText(item, keys);
    case CVqQuickMenuRows::AccessibleNameRole:
        return AccessibleNameOf(item);
    default:
        return {};
    }
}

QVariant FieldData(const CVqQuickMenuItem& item, int role)
{
    switch (role) {
    case CVqQuickMenuRows::ItemIdRole:
        return uint(item.id());
    case CVqQuickMenuRows::KindRole:
        return int(item.type());
    case CVqQuickMenuRows::CheckedRole:
        return bool(item.status() & CVqMenuItem::StatusChecked);
    case CVqQuickMenuRows::RadioRole:
        return item.radio();
    case CVqQuickMenuRows::GrayedRole:
        return VqIsGrayed(item);
    case CVqQuickMenuRows::ShownRole:
        return VqIsShown(item);
    case CVqQuickMenuRows::Color1Role:
        return ToColor(item.col1());
    case CVqQuickMenuRows::Color2Role:
        return ToColor(item.col2());
    case CVqQuickMenuRows::LineWidthRole:
        return uint(item.lineWidth());
    case CVqQuickMenuRows::ImageIndexRole:
        return int(item.enaBmpIndex());
    case CVqQuickMenuRows::CommandRole:
        return item.command().ToQString();
    case CVqQuickMenuRows::SubmenuRole:
        return QVariant::fromValue(item.submenu());
    default:
        return {};
    }
}

}

bool VqIsShown(const CVqMenuItem& item)
{
    return !item.removed() && !item.deleted();
}

bool VqIsGrayed(const CVqMenuItem& item)
{
    const vq_uint32 status = item.status();
    return !(status & CVqMenuItem::StatusEnabled) || (status & CVqMenuItem::StatusGrayed);
}

bool VqCanFire(const CVqMenuItem& item)
{
    if (item.type() == CVqAbstractMenu::SenseMainRoot || item.removed())
        return false;
    for (const CVqMenuItem* at = &item; at && at->type() != CVqAbstractMenu::SenseMainRoot;
         at = at->parentItem()) {
        if (at->deleted() || VqIsGrayed(*at))
            return false;
    }
    return true;
}

QString VqMenuRowLabel(const CVqMenuItem& item)
{
    return LabelOf(item).text;
}

QString VqMenuRowKeyText(const CVqMenuItem& item, const IVqQuickMenuKeys* keys)
{
    const QString text = keys ? keys->KeyText(item) : QString();
    return text.isEmpty() ? LabelOf(item).note : text;
}

QVariant VqMenuRowData(const CVqQuickMenuItem& item, int role, const IVqQuickMenuKeys* keys)
{
    const QVariant text = TextData(item, role, keys);
    return text.isValid() ? text : FieldData(item, role);
}
