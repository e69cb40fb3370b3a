#include "quick_backend/CVqQuickMenuItem.h"

#include "quick_backend/CVqQuickMenuRows.h"

namespace {

using Rows = CVqQuickMenuRows;

void Tell(const CVqQuickMenuItem& item, bool changed, const QList<int>& roles)
{
    if (changed && item.rows())
        item.rows()->Changed(item, roles);
}

}

CVqQuickMenuItem::CVqQuickMenuItem() : CVqMenuItem(FieldsStayHere{}) { }

CVqQuickMenuItem::~CVqQuickMenuItem()
{
    if (m_pRows)
        m_pRows->Remove(*this);
}

void CVqQuickMenuItem::setRadio(bool radio)
{
    const bool changed = radio != m_bRadio;
    m_bRadio = radio;
    Tell(*this, changed, {Rows::RadioRole});
}

void CVqQuickMenuItem::setSubmenu(CVqQuickMenuRows* rows)
{
    const bool changed = rows != m_pSubmenu;
    m_pSubmenu = rows;
    Tell(*this, changed, {Rows::SubmenuRole});
}

void CVqQuickMenuItem::setCommand(const vq_wchar* command)
{
    const bool changed = rows() && !VqEquals(this->command(), command);
    CVqMenuItem::setCommand(command);
    Tell(*this, changed, {Rows::CommandRole});
}

void CVqQuickMenuItem::setId(vq_uint32 id)
{
    const bool changed = id != this->id();
    CVqMenuItem::setId(id);
    Tell(*this, changed, {Rows::ItemIdRole, Rows::KeyTextRole});
}

void CVqQuickMenuItem::setLineWidth(vq_uint32 width)
{
    const bool changed = width != lineWidth();
    CVqMenuItem::setLineWidth(width);
    Tell(*this, changed, {Rows::LineWidthRole, Rows::AccessibleNameRole});
}

void CVqQuickMenuItem::setCol1(vq_uint32 colour)
{
    const bool changed = colour != col1();
    CVqMenuItem::setCol1(colour);
    Tell(*this, changed, {Rows::Color1Role, Rows::AccessibleNameRole});
}

void CVqQuickMenuItem::setCol2(vq_uint32 colour)
{
    const bool changed = colour != col2();
    CVqMenuItem::setCol2(colour);
    Tell(*this, changed, {Rows::Color2Role, Rows::AccessibleNameRole});
}

void CVqQuickMenuItem::setEnaBmpIndex(vq_int32 index)
{
    const bool changed = index != enaBmpIndex();
    CVqMenuItem::setEnaBmpIndex(index);
    Tell(*this, changed, {Rows::ImageIndexRole});
}

void CVqQuickMenuItem::setMnemonic(vq_wchar mnemonic)
{
    const bool changed = mnemonic != this->mnemonic();
    CVqMenuItem::setMnemonic(mnemonic);
    Tell(*this, changed, Rows::TextRoles());
}

void CVqQuickMenuItem::setRemoved(bool removed)
{
    const bool changed = removed != this->removed();
    CVqMenuItem::setRemoved(removed);
    Tell(*this, changed, {Rows::ShownRole});
}

void CVqQuickMenuItem::setDeleted(bool deleted)
{
    const bool changed = deleted != this->deleted();
    CVqMenuItem::setDeleted(deleted);
    Tell(*this, changed, {Rows::ShownRole});
}
