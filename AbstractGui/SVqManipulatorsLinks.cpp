#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqSiblingChain.h"
#include "AbstractGui/SVqMenuSearchCache.h"

#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

// Gives `item` the mnemonic of its own marks. The item is linked already, so its former mnemonic counts too.
void TakeMnemonic(CVqMenuItem* item)
{
    const CVqMenuItem* parent = item->parentItem();
    if (parent && parent->subItem())
        item->setMnemonic(_get_mnemonic(parent->subItem(), item->text()));
}

struct Place
{
    CVqMenuItem* previous = nullptr;
    CVqMenuItem* item = nullptr; // null when there is no such child
};

Place FindChild(const CVqMenuItem* parent, vq_uint32 id)
{
    Place place{nullptr, parent->subItem()};
    while (place.item && place.item->id() != id) {
        place.previous = place.item;
        place.item = place.item->nextItem();
    }
    return place;
}

// Unlinks the items with an identifier, from the end of the chain to its start and each after its children.
class Remover
{
public:
    explicit Remover(vq_uint32 id) : m_uiId(id) { }

    CVqMenuItem* Removed() const { return m_pRemoved; }

    // Gives what is left of the chain.
    CVqMenuItem* Process(CVqMenuItem* first)
    {
        std::vector<CVqMenuItem*> chain;
        for (CVqMenuItem* item = first; item; item = item->nextItem())
            chain.push_back(item);

        CVqMenuItem* rest = nullptr;
        for (auto item = chain.rbegin(); item != chain.rend(); ++item)
            rest = ProcessItem(*item, rest);
        return rest;
    }

private:
    CVqMenuItem* ProcessItem(CVqMenuItem* item, CVqMenuItem* next)
    {
        item->setNextItem(next);
        item->setSubItem(Process(item->subItem()));
        if (item->id() != m_uiId) {
            g_menu_search_cache.item = nullptr;
            return item;
        }
        m_pRemoved = item;
        return item->nextItem();
    }

    vq_uint32 m_uiId;
    CVqMenuItem* m_pRemoved = nullptr;
};

}

CVqMenuItem* Manipulators::remove_item(vq_uint32 id, CVqMenuItem* root)
{
    Remover remover(id);
    remover.Process(root);
    if (remover.Removed())
        remover.Removed()->setNextItem(nullptr);
    return remover.Removed();
}

CVqMenuItem* Manipulators::insert_item_before(vq_uint32 id, CVqMenuItem* parent, CVqMenuItem* item)
{
    if (!parent || !item)
        return nullptr;
    const Place anchor = FindChild(parent, id);
    if (!anchor.item)
        return nullptr;

    item->setParentItem(parent);
    item->setNextItem(anchor.item);
    if (anchor.previous)
        anchor.previous->setNextItem(item);
    else
        parent->setSubItem(item);
    TakeMnemonic(item);
    return item->nextItem();
}

CVqMenuItem* Manipulators::insert_item_after(vq_uint32 id, CVqMenuItem* parent, CVqMenuItem* item)
{
    if (!parent || !item)
        return nullptr;
    CVqMenuItem* anchor = FindChild(parent, id).item;
    if (!anchor)
        return nullptr;

    item->setParentItem(parent);
    item->setNextItem(anchor->nextItem());
    anchor->setNextItem(item);
    TakeMnemonic(item);
    return anchor->nextItem();
}

void Manipulators::append_item(CVqMenuItem* parent, CVqMenuItem* item)
{
    if (!parent || !item)
        return;

    item->setParentItem(parent);
    if (CVqMenuItem* first = parent->subItem()) {
        CVqSiblingChain::Append(first, item);
        check_seps(parent->subItem(), false);
    } else {
        parent->setSubItem(item);
    }
    TakeMnemonic(item);
}
