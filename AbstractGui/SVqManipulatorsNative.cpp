#include "AbstractGui/CVqAbstractMenu.h"

#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

int Manipulators::create_all(IVqMenuBase* base, CVqMenuItem* item)
{
    if (!base || !item)
        return -9;

    for (; item; item = item->nextItem()) {
        const bool is_popup = item->type() == SensePopup;
        if (is_popup)
            item->setMenu(base->CreateMenuHandle());
        if (const int result = base->InsertItem(item->parentItem(), nullptr, item))
            return result;
        if (!is_popup || !item->subItem())
            continue;
        if (const int result = create_all(base, item->subItem()))
            return result;
    }
    return 0;
}

void Manipulators::destroy_all(IVqMenuBase* base, CVqMenuItem* item)
{
    std::vector<CVqMenuItem*> chain;
    for (; item; item = item->nextItem()) {
        chain.push_back(item);
        if (item->subItem())
            destroy_all(base, item->subItem());
    }
    if (!base)
        return;
    for (auto last = chain.rbegin(); last != chain.rend(); ++last)
        base->DestroyItem(*last);
}
