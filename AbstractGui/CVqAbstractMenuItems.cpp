#include "AbstractGui/CVqAbstractMenu.h"

namespace {

constexpr int bad_argument = -4;
constexpr int not_found = -13;

template <class Use>
int with(CVqMenuItem* item, Use use)
{
    if (!item)
        return not_found;
    use(*item);
    return 0;
}

template <class NewStatus>
int change_status(IVqMenuBase* base, CVqMenuItem* item, NewStatus new_status)
{
    if (!item)
        return not_found;
    item->setStatus(new_status(item->status()));
    if (base)
        base->UpdateItemState(item);
    return 0;
}

vq_uint32 with_bit(vq_uint32 status, vq_uint32 bit, bool on)
{
    return on ? status | bit : status & ~bit;
}

CVqMenuItem* find_in_two(CVqAbstractMenu& menu, vq_uint32 id, CVqMenuItem* first, CVqMenuItem* second)
{
    CVqMenuItem* item = menu.Manipulators().find_item(id, first);
    return item ? item : menu.Manipulators().find_item(id, second);
}

CVqMenuItem* parent_of(CVqMenuItem* item)
{
    return item ? item->parentItem() : nullptr;
}

}

int CVqAbstractMenu::GetIdSense(vq_uint32 id, enMenuIdSense& sense)
{
    return with(find_in_two(*this, id, m_pLonelyAccels, m_pRoot),
                [&](CVqMenuItem& item) { sense = static_cast<enMenuIdSense>(item.type()); });
}

int CVqAbstractMenu::GetIdParentPopup(vq_uint32 id, vq_uint32& parentId)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (item && !item->parentItem())
        return bad_argument;
    return with(parent_of(item), [&](CVqMenuItem& parent) { parentId = parent.id(); });
}

int CVqAbstractMenu::GetIdCommand(vq_uint32 id, CVqStringW& command)
{
    return with(find_in_two(*this, id, m_pLonelyAccels, m_pRoot),
                [&](CVqMenuItem& item) { command = item.command(); });
}

int CVqAbstractMenu::GetIdCommandFromRoot(vq_uint32 id, CVqStringW& command)
{
    return with(find_in_two(*this, id, m_pRoot, m_pLonelyAccels),
                [&](CVqMenuItem& item) { command = item.command(); });
}

int CVqAbstractMenu::GetIdBitmap(vq_uint32 id, vq_int32& index)
{
    return with(Manipulators().find_item(id, m_pRoot),
                [&](CVqMenuItem& item) { index = item.enaBmpIndex(); });
}

int CVqAbstractMenu::GetIdStatus(vq_uint32 id, vq_uint32& status)
{
    return with(Manipulators().find_item(id, m_pRoot), [&](CVqMenuItem& item) { status = item.status(); });
}

int CVqAbstractMenu::GetIdMenuString(vq_uint32 id, CVqStringW& text)
{
    return with(Manipulators().find_item(id, m_pRoot), [&](CVqMenuItem& item) { text = item.text(); });
}

int CVqAbstractMenu::GetIdParentMenuString(vq_uint32 id, CVqStringW& text)
{
    return with(parent_of(Manipulators().find_item(id, m_pRoot)),
                [&](CVqMenuItem& parent) { text = parent.text(); });
}

int CVqAbstractMenu::SetIdBitmap(vq_uint32 id, vq_int32 index)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (!item || index == -1)
        return bad_argument;
    item->setEnaBmpIndex(index);
    return 0;
}

int CVqAbstractMenu::SetIdCommand(vq_uint32 id, const vq_wchar* command)
{
    return with(find_in_two(*this, id, m_pLonelyAccels, m_pRoot),
                [&](CVqMenuItem& item) { item.setCommand(command); });
}

int CVqAbstractMenu::SetIdMenuString(vq_uint32 id, const vq_wchar* text)
{
    return with(Manipulators().find_item(id, m_pRoot), [&](CVqMenuItem& item) {
        CVqStringW with_key(text);
        Manipulators().set_accel(&m_accels, id, with_key);
        item.setText(with_key);
        if (m_pMenuBase)
            m_pMenuBase->UpdateItemText(&item);
    });
}

int CVqAbstractMenu::SetIdStatus(vq_uint32 id, vq_uint32 status)
{
    const vq_uint32 kept = status >> 8;
    return change_status(m_pMenuBase, Manipulators().find_item(id, m_pRoot),
                         [&](vq_uint32 old) { return (old & kept) | (status & ~kept & 0xFF); });
}

int CVqAbstractMenu::SetIdDrawCallback(vq_uint32 id, void* callback)
{
    return with(Manipulators().find_item(id, m_pRoot),
                [&](CVqMenuItem& item) { item.setDrawCallback(callback); });
}

int CVqAbstractMenu::SetIdMeasureCallback(vq_uint32 id, void* callback)
{
    return with(Manipulators().find_item(id, m_pRoot),
                [&](CVqMenuItem& item) { item.setMeasureCallback(callback); });
}

int CVqAbstractMenu::EnableId(vq_uint32 id, bool enable)
{
    m_accels.EnableAccelKey(id, enable);
    m_accelsSecond.EnableAccelKey(id, enable);
    return change_status(m_pMenuBase, Manipulators().find_item(id, m_pRoot), [&](vq_uint32 old) {
        return with_bit(with_bit(old, CVqMenuItem::StatusGrayed, !enable), CVqMenuItem::StatusEnabled,
                        enable);
    });
}

int CVqAbstractMenu::CheckId(vq_uint32 id, bool check)
{
    return change_status(m_pMenuBase, Manipulators().find_item(id, m_pRoot),
                         [&](vq_uint32 old) { return with_bit(old, CVqMenuItem::StatusChecked, check); });
}

int CVqAbstractMenu::CheckRadioId(vq_uint32 id, vq_uint32 firstId, vq_uint32 lastId)
{
    CVqMenuItem* item = Manipulators().find_item(firstId, m_pRoot);
    while (item) {
        const bool chosen = item->id() == id;
        change_status(m_pMenuBase, item,
                      [&](vq_uint32 old) { return with_bit(old, CVqMenuItem::StatusChecked, chosen); });
        item = item->id() == lastId ? nullptr : item->nextItem();
    }
    return 0;
}

int CVqAbstractMenu::GrayId(vq_uint32 id, bool gray)
{
    return change_status(m_pMenuBase, Manipulators().find_item(id, m_pRoot),
                         [&](vq_uint32 old) { return with_bit(old, CVqMenuItem::StatusGrayed, gray); });
}

int CVqAbstractMenu::SetUserParam(vq_uint32 id, void* param)
{
    return with(find_in_two(*this, id, m_pLonelyAccels, m_pRoot),
                [&](CVqMenuItem& item) { item.setUserParam(param); });
}

int CVqAbstractMenu::GetUserParam(vq_uint32 id, void** param)
{
    return with(find_in_two(*this, id, m_pLonelyAccels, m_pRoot), [&](CVqMenuItem& item) {
        if (param)
            *param = item.userParam();
    });
}
