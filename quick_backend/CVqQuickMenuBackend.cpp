#include "quick_backend/CVqQuickMenuBackend.h"

#include "AbstractGui/CVqAbstractMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"
#include "quick_backend/CVqQuickMenuRows.h"

namespace {

CVqQuickMenuItem* AsQuickItem(CVqMenuItem* item)
{
    return dynamic_cast<CVqQuickMenuItem*>(item);
}

}

CVqQuickMenuBackend::CVqQuickMenuBackend(const IVqQuickMenuKeys* keys) : m_keys(keys) { }

CVqQuickMenuBackend::~CVqQuickMenuBackend()
{
    for (CVqQuickMenuItem* orphan : m_orphans)
        CVqAbstractMenu::SVqManipulators::Instance().freeMenuItem(orphan);
}

void CVqQuickMenuBackend::KeysChanged()
{
    for (CVqQuickMenuRows* rows : std::as_const(m_rows))
        rows->KeysChanged();
}

IVqMenuBase* CVqQuickMenuBackend::Duplicate()
{
    return new CVqQuickMenuBackend;
}

int CVqQuickMenuBackend::EnterMenu(vq_wchar character)
{
    Q_EMIT menuEntered(character ? QString(QChar(char16_t(character))) : QString());
    return 0;
}

vq_uint64 CVqQuickMenuBackend::CreateMenuHandle()
{
    m_rows.insert(++m_last_handle, new CVqQuickMenuRows(m_keys, this));
    return m_last_handle;
}

int CVqQuickMenuBackend::InsertItem(CVqMenuItem* parent, CVqMenuItem*, CVqMenuItem* item)
{
    CVqQuickMenuItem* quick_item = AsQuickItem(item);
    if (!quick_item)
        return -9;
    if (item->type() == CVqAbstractMenu::SenseMainRoot)
        return 0;
    if (!parent || item->parentItem() != parent) {
        Adopt(*quick_item);
        return -6;
    }
    quick_item->setSubmenu(item->type() == CVqAbstractMenu::SensePopup ? RowsOf(item->menu()) : nullptr);
    CVqQuickMenuRows* rows = RowsOf(parent->menu());
    if (!rows)
        return -6;
    rows->Insert(*quick_item, AsQuickItem(item->nextItem()));
    return 0;
}

void CVqQuickMenuBackend::Adopt(CVqQuickMenuItem& item)
{
    DropSubmenu(item);
    m_orphans.push_back(&item);
}

void CVqQuickMenuBackend::DropSubmenu(CVqQuickMenuItem& item)
{
    CVqQuickMenuRows* rows = m_rows.take(item.menu());
    item.setSubmenu(nullptr);
    if (!rows)
        return;
    rows->RemoveAll();
    rows->deleteLater(); // a view may be in the middle of it
}

void CVqQuickMenuBackend::DestroyItem(CVqMenuItem* item)
{
    CVqQuickMenuItem* quick_item = AsQuickItem(item);
    if (!quick_item || item->type() == CVqAbstractMenu::SenseMainRoot)
        return;
    if (quick_item->rows())
        quick_item->rows()->Remove(*quick_item);
    if (item->type() == CVqAbstractMenu::SensePopup)
        DropSubmenu(*quick_item);
}

void CVqQuickMenuBackend::UpdateItemText(CVqMenuItem* item)
{
    const CVqQuickMenuItem* quick_item = AsQuickItem(item);
    if (quick_item && quick_item->rows())
        quick_item->rows()->Changed(*quick_item, CVqQuickMenuRows::TextRoles());
}

void CVqQuickMenuBackend::UpdateItemState(CVqMenuItem* item)
{
    const CVqQuickMenuItem* quick_item = AsQuickItem(item);
    if (quick_item && quick_item->rows())
        quick_item->rows()->Changed(*quick_item, CVqQuickMenuRows::StateRoles());
}
