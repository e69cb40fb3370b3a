#include "AbstractGui/SVqMenuSearchCache.h"

constinit SVqMenuSearchCache g_menu_search_cache;

CVqMenuItem* SVqMenuSearchCache::Keep(const CVqMenuItem* first, CVqMenuItem* found)
{
    if (found) {
        root = first;
        item = found;
    }
    return found;
}

void SVqMenuSearchCache::Drop(const CVqMenuItem* gone)
{
    if (item == gone || root == gone)
        item = nullptr;
}
