#include "AbstractGui/CVqAbstractMenu.h"

#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

void CopyFields(CVqMenuItem& destination, const CVqMenuItem& source)
{
    destination.setRemoved(source.removed());
    destination.setDeleted(source.deleted());
    destination.setId(source.id());
    destination.setType(source.type());
    destination.setStatus(source.status());
    destination.setText(source.text());
    destination.setCommand(source.command());
    destination.setCol1(source.col1());
    destination.setCol2(source.col2());
    destination.setEnaBmpIndex(source.enaBmpIndex());
    destination.setMnemonic(source.mnemonic());
    destination.setUserParam(source.userParam());
    destination.setDrawCallback(source.drawCallback());
    destination.setMeasureCallback(source.measureCallback());
    destination.setMenu(0);
    destination.setAccelerators(nullptr);
    destination.setSubItem(nullptr);
}

void LinkBehind(CVqMenuItem* previous, CVqMenuItem* parent, CVqMenuItem* item)
{
    item->setParentItem(parent);
    if (previous)
        previous->setNextItem(item);
    else
        parent->setSubItem(item);
    item->setNextItem(nullptr);
}

}

void Manipulators::free_all(CVqMenuItem* item)
{
    std::vector<CVqMenuItem*> chain;
    for (; item; item = item->nextItem()) {
        chain.push_back(item);
        if (item->subItem())
            free_all(item->subItem());
    }
    for (auto last = chain.rbegin(); last != chain.rend(); ++last)
        freeMenuItem(*last);
}

int Manipulators::copy_items_tree(CVqMenuItem* destination, CVqMenuItem* source)
{
    if (!destination || !source)
        return -4;

    CopyFields(*destination, *source);
    CVqMenuItem* previous = nullptr;
    for (CVqMenuItem* child = source->subItem(); child; child = child->nextItem()) {
        CVqMenuItem* copy = allocMenuItem();
        if (!copy)
            return -3;
        if (const int result = copy_items_tree(copy, child))
            return result;
        LinkBehind(previous, destination, copy);
        previous = copy;
    }
    return 0;
}

void Manipulators::remove_accels(CVqMenuItem* item, CVqAccelerators* accelerators)
{
    if (!accelerators)
        return;
    for (; item; item = item->nextItem()) {
        accelerators->RemoveAccelKey(item->id());
        if (item->subItem())
            remove_accels(item->subItem(), accelerators);
    }
}
