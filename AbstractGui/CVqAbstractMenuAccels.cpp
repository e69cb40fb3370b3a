#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqAccelPrint.h"

#include <utility>

namespace {

constexpr int missing = -9;

/// The identifier that the first record of the combination has; false when there is none.
bool find_bound_id(const CVqAccelerators& table, vq_uint32 flags, vq_wchar key, vq_uint32& id)
{
    int index = 0;
    return table.FindId(flags, key, index, &id) == 0;
}

void link_behind_last(CVqMenuItem*& head, CVqMenuItem* item)
{
    if (!head) {
        head = item;
        return;
    }
    CVqMenuItem* last = head;
    while (CVqMenuItem* next = last->nextItem())
        last = next;
    last->setNextItem(item);
}

}

int CVqAbstractMenu::AppendIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second)
{
    CVqAccelerators& table = second ? m_accelsSecond : m_accels;
    const int result = table.AddAccelKey(id, flags, key, 0);
    if (CVqMenuItem* item = Manipulators().find_item(id, m_pRoot))
        Manipulators().update_menustring(item, VqAllAccelTexts(table, id, VQ_TEXT(", ")));
    return result;
}

int CVqAbstractMenu::SetIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second)
{
    CVqAccelerators& table = second ? m_accelsSecond : m_accels;
    table.RemoveAccelKey(id);
    vq_uint32 holder = 0;
    if (find_bound_id(table, flags, key, holder))
        table.RemoveAccelKey(holder);
    return CVqAbstractMenu::AppendIdAccelKey(id, flags, key, second);
}

int CVqAbstractMenu::AppendLonelyAccel(vq_uint32 id, vq_uint32 flags, vq_wchar key, const vq_wchar* command)
{
    vq_uint32 holder = 0;
    const bool is_listed = Manipulators().find_item(id, m_pLonelyAccels);
    if (is_listed && find_bound_id(m_accels, flags, key, holder) && holder == id)
        return 0;
    m_accels.AddAccelKey(id, flags, key, 0);
    if (!is_listed)
        link_behind_last(m_pLonelyAccels, Manipulators().create_item_accel(id, command, &m_accels));
    return 0;
}

/// The keys of the last item stay (held by the test DeleteAllLonelyAccelsLeavesTheKeysOfTheLast).
int CVqAbstractMenu::DeleteAllLonelyAccels()
{
    if (!m_pLonelyAccels)
        return missing;
    for (const CVqMenuItem* item = m_pLonelyAccels; item->nextItem(); item = item->nextItem())
        m_accels.RemoveAccelKey(item->id());
    Manipulators().free_all(m_pLonelyAccels);
    m_pLonelyAccels = nullptr;
    return 0;
}

int CVqAbstractMenu::SwapLonelyAccels(CVqMenuItem*& head)
{
    std::swap(m_pLonelyAccels, head);
    return 0;
}

int CVqAbstractMenu::EnableAccelTranslation(bool enable)
{
    m_accels.EnableAccelTranslation(enable);
    m_accelsSecond.EnableAccelTranslation(enable);
    return 0;
}

bool CVqAbstractMenu::Translate(vq_wchar key, vq_uint32 flags, vq_uint64& target, vq_uint32& id)
{
    return m_accelsSecond.Translate(key, flags, target, id) || m_accels.Translate(key, flags, target, id);
}

int CVqAbstractMenu::CopyAccelsTo(CVqAccelerators& to)
{
    to.AddAllFrom(m_accelsSecond);
    to.AddAllFrom(m_accels);
    return 0;
}

int CVqAbstractMenu::SwapAccels(CVqAccelerators& main, CVqAccelerators& second)
{
    const int result = m_accelsSecond.SwapAccels(second);
    return result != 0 ? result : m_accels.SwapAccels(main);
}
