#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqHiddenMenuCommands.h"

bool CVqAbstractMenu::SVqManipulators::remove_hidden(CVqMenuItem* item, const vq_wchar* name)
{
    if (VqLength(name) == 0)
        return false;
    bool stays = false;
    for (; item; item = item->nextItem()) {
        const bool is_kept = !item->subItem() || remove_hidden(item->subItem(), name);
        if (is_kept && !VQ_IsMenuCommandSetAsHidden(name, item->command()))
            stays = true;
        else
            item->setDeleted(true);
    }
    return stays;
}
