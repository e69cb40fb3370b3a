#include "AbstractGui/CVqAbstractMenu.h"

namespace {

constexpr int not_found = -13;

template <class RemoveKeys>
void delete_lonely(CVqAbstractMenu& menu, CVqMenuItem*& head, vq_uint32 id, RemoveKeys remove_keys)
{
    // remove_item() cannot tell of a new head, so the head goes first, again while the list begins with id.
    while (head && head->id() == id) {
        remove_keys();
        CVqMenuItem* item = head;
        head = item->nextItem();
        menu.Manipulators().freeMenuItem(item);
    }
    if (CVqMenuItem* item = menu.Manipulators().remove_item(id, head)) {
        remove_keys();
        menu.Manipulators().free_all(item);
    }
}

}

int CVqAbstractMenu::DeleteId(vq_uint32 id)
{
    if (id == 0)
        return not_found;
    delete_lonely(*this, m_pLonelyAccels, id, [&] {
        m_accels.RemoveAccelKey(id);
        m_accelsSecond.RemoveAccelKey(id);
    });
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (!item || item == m_pRoot)
        return not_found;
    if (item->type() == SenseSeparator) {
        if (m_pMenuBase)
            m_pMenuBase->DestroyItem(item);
        item = Manipulators().remove_item(id, m_pRoot);
    } else {
        item = Manipulators().remove_item(id, m_pRoot);
        Manipulators().destroy_all(m_pMenuBase, item);
    }
    Manipulators().remove_accels(item, &m_accels);
    Manipulators().remove_accels(item, &m_accelsSecond);
    Manipulators().free_all(item);
    return 0;
}

int CVqAbstractMenu::DeleteAllIn(vq_uint32 id)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    if (!item)
        return not_found;
    CVqMenuItem* first = item->subItem();
    Manipulators().destroy_all(m_pMenuBase, first);
    Manipulators().remove_accels(first, &m_accels);
    Manipulators().remove_accels(first, &m_accelsSecond);
    Manipulators().free_all(first);
    item->setRemoved(false);
    item->setSubItem(nullptr);
    return 0;
}

int CVqAbstractMenu::DeleteAll()
{
    Manipulators().destroy_all(m_pMenuBase, m_pRoot);
    if (m_pRoot) {
        Manipulators().free_all(m_pRoot->subItem());
        m_pRoot->setSubItem(nullptr);
        Manipulators().free_all(m_pRoot->nextItem());
        m_pRoot->setNextItem(nullptr);
    }
    m_accels.RemoveAllAccels();
    m_accelsSecond.RemoveAllAccels();
    Manipulators().free_all(m_pLonelyAccels);
    m_pLonelyAccels = nullptr;
    return 0;
}
