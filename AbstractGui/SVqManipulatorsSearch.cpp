#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/SVqMenuSearchCache.h"

#include <QDebug>
#include <QString>

#include <utility>
#include <vector>

using Manipulators = CVqAbstractMenu::SVqManipulators;

namespace {

// A chain counts as a search from each of its items, so each is compared with the cached root: what the cache
// holds is found there even where a walk would find another item first (CacheOfAnInnerRootWinsOverTheWalk).
template <typename Matches>
CVqMenuItem* Match(CVqMenuItem* item, const Matches& matches)
{
    const SVqMenuSearchCache& cache = g_menu_search_cache;
    if (cache.root == item && cache.item && matches(cache.item))
        return cache.item;
    return matches(item) ? item : nullptr;
}

}

CVqMenuItem* Manipulators::find_item(CVqStringW command, CVqMenuItem* root)
{
    const auto matches = [&command](const CVqMenuItem* item) { return item->command() == command; };

    std::vector<CVqMenuItem*> parents;
    for (CVqMenuItem* item = root; item; item = item->nextItem()) {
        if (CVqMenuItem* found = Match(item, matches))
            return g_menu_search_cache.Keep(root, found);
        if (item->subItem())
            parents.push_back(item);
    }
    for (auto parent = parents.rbegin(); parent != parents.rend(); ++parent) {
        if (CVqMenuItem* found = find_item(command, (*parent)->subItem()))
            return g_menu_search_cache.Keep(root, found);
    }
    return nullptr;
}

CVqMenuItem* Manipulators::find_item(vq_uint32 id, CVqMenuItem* root)
{
    const auto matches = [id](const CVqMenuItem* item) { return item->id() == id; };

    for (CVqMenuItem* item = root; item; item = item->nextItem()) {
        CVqMenuItem* found = Match(item, matches);
        if (!found && item->subItem())
            found = find_item(id, item->subItem());
        if (found)
            return g_menu_search_cache.Keep(root, found);
    }
    return nullptr;
}

bool Manipulators::visit_all(CVqMenuItem* first, IVqVisitorData& visitor)
{
    for (CVqMenuItem* item = first; item; item = item->nextItem()) {
        if (item->subItem() && !visit_all(item->subItem(), visitor))
            return false;
        if (!visitor.Visit(item))
            return false;
    }
    return true;
}

bool Manipulators::visit_one(CVqMenuItem* first, IVqVisitorData& visitor)
{
    for (CVqMenuItem* item = first; item; item = item->nextItem()) {
        if (!visitor.Visit(item))
            return false;
    }
    return true;
}

void Manipulators::print_all(CVqMenuItem* item, int depth)
{
    for (; item; item = item->nextItem()) {
        CVqStringW line;
        for (int level = 0; level < depth; ++level)
            line.AddString(VQ_TEXT("    "));
        item->getAsJSON(line);
        qDebug() << "" << line.ToQString();

        print_all(item->subItem(), depth + 1);
        if (depth == 0)
            return;
    }
}
