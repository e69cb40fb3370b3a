#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqSiblingChain.h"

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

bool IsVisible(const CVqMenuItem* item)
{
    return !item->deleted() && !item->removed();
}

// A separator shows as the first of its run, unless nothing visible stands before it.
void TidySeparator(CVqMenuItem* item, SVqSeparatorRun& run)
{
    const bool is_first_of_run = !run.inRun;
    run.inRun = true;
    if (is_first_of_run && item->removed())
        item->setRemoved(false);
    if ((!run.anyVisible || !is_first_of_run) && !item->removed())
        item->setRemoved(true);
}

}

void Manipulators::check_seps(CVqMenuItem* first, bool recursive)
{
    // What is tidy already stays as it is, so a pass that does not descend goes on where the last one ended.
    CVqSiblingChain* chain = first && !recursive ? CVqSiblingChain::Find(first) : nullptr;
    CVqMenuItem* last = chain ? chain->TidyThrough() : nullptr;
    SVqSeparatorRun run = last ? chain->RunThere() : SVqSeparatorRun{};
    CVqMenuItem* last_separator = nullptr;

    for (CVqMenuItem* item = last ? last->nextItem() : first; item; item = item->nextItem()) {
        const bool is_separator = item->type() == SenseSeparator;
        if (is_separator)
            TidySeparator(item, run);
        else if (recursive && item->subItem())
            check_seps(item->subItem(), recursive);

        if (IsVisible(item)) {
            run.anyVisible = true;
            if (is_separator)
                last_separator = item;
            else
                run.inRun = false;
        }
        last = item;
    }

    if (chain)
        chain->SetTidyThrough(last, run);
    if (recursive && run.inRun && last_separator && !last_separator->removed())
        last_separator->setRemoved(true);
}
