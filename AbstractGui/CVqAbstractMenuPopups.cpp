#include "AbstractGui/CVqAbstractMenu.h"

namespace {

constexpr int bad_argument = -4;
constexpr int not_found = -13;

constexpr vq_uint32 popup_with_hidden_commands = 12300;

CVqMenuItem* first_child(CVqMenuItem* popup)
{
    return popup ? popup->subItem() : nullptr;
}

template <class Condition>
int count_children(CVqMenuItem* popup, Condition condition)
{
    if (!popup)
        return not_found;
    int count = 0;
    for (CVqMenuItem* child = popup->subItem(); child; child = child->nextItem())
        count += condition(*child);
    return count;
}

/// Stores the index of the sibling with `id`. The codes are those of all inspections of a popup's children.
int index_among(CVqMenuItem* first, vq_uint32 id, vq_uint32& index)
{
    if (!first)
        return bad_argument;
    vq_uint32 position = 0;
    for (CVqMenuItem* child = first; child; child = child->nextItem(), ++position) {
        if (child->id() != id)
            continue;
        index = position;
        return 0;
    }
    return not_found;
}

struct CallbackVisitor final : CVqAbstractMenu::IVqVisitorData
{
    CallbackVisitor(CVqAbstractMenu::EnumCallback callback, void* user) : m_callback(callback), m_user(user)
    { }

    bool Visit(CVqMenuItem* item) override { return m_callback(item, m_user); }

    CVqAbstractMenu::EnumCallback m_callback;
    void* m_user;
};

}

int CVqAbstractMenu::FindItemInPopup(vq_uint32 popup, vq_uint32 id)
{
    vq_uint32 index = 0;
    return index_among(first_child(Manipulators().find_item(popup, m_pRoot)), id, index);
}

int CVqAbstractMenu::GetCountInPopup(vq_uint32 popup)
{
    return count_children(Manipulators().find_item(popup, m_pRoot), [](const CVqMenuItem&) { return true; });
}

int CVqAbstractMenu::GetVisibleCountInPopup(vq_uint32 popup)
{
    return count_children(Manipulators().find_item(popup, m_pRoot),
                          [](const CVqMenuItem& child) { return !child.deleted() && !child.removed(); });
}

int CVqAbstractMenu::GetIdInPopupFromIndex(vq_uint32 popup, vq_uint32 index, vq_uint32& id)
{
    CVqMenuItem* child = first_child(Manipulators().find_item(popup, m_pRoot));
    if (!child)
        return bad_argument;
    for (; child && index > 0; --index)
        child = child->nextItem();
    if (!child)
        return not_found;
    id = child->id();
    return 0;
}

int CVqAbstractMenu::GetIndexInPopupFromId(vq_uint32 popup, vq_uint32 id, vq_uint32& index)
{
    return index_among(first_child(Manipulators().find_item(popup, m_pRoot)), id, index);
}

int CVqAbstractMenu::GetPopupIndexFromId(vq_uint32 id, vq_uint32& index)
{
    return index_among(first_child(m_pRoot), id, index);
}

int CVqAbstractMenu::EnumItems(vq_uint32 id, bool recursive, EnumCallback callback, void* user)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (!item)
        return bad_argument;
    if (!callback)
        return 0;
    CallbackVisitor visitor(callback, user);
    if (recursive)
        Manipulators().visit_all(item, visitor);
    else
        Manipulators().visit_one(item, visitor);
    return 0;
}

int CVqAbstractMenu::RemoveHiddenInPopup(vq_uint32, const vq_wchar* name)
{
    CVqMenuItem* popup = Manipulators().find_item(popup_with_hidden_commands, m_pRoot);
    if (!first_child(popup))
        return bad_argument;
    Manipulators().remove_hidden(popup, name);
    Manipulators().check_seps(popup, true);
    return 0;
}

int CVqAbstractMenu::RecreatePopup(vq_uint32 id)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (!item)
        return not_found;
    Manipulators().destroy_all(m_pMenuBase, item->subItem());
    return Manipulators().create_all(m_pMenuBase, item->subItem());
}

int CVqAbstractMenu::UnrollPopup(vq_uint32 id)
{
    const CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    vq_uint32 index = 0;
    if (!item || !(item->status() & CVqMenuItem::StatusEnabled) || GetPopupIndexFromId(id, index) != 0)
        return not_found;
    EnterMenu(0);
    return 0;
}
