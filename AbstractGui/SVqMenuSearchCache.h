#pragma once

class CVqMenuItem;

/// What the last search from a root found, shared by the searches by identifier and by command. GUI thread.
struct SVqMenuSearchCache
{
    const CVqMenuItem* root = nullptr; ///< Only ever compared: it may be gone.
    CVqMenuItem* item = nullptr;       ///< Alive, or null.

    /// Keeps `found` as the result of a search from `first`, unless it is null, and gives it back.
    CVqMenuItem* Keep(const CVqMenuItem* first, CVqMenuItem* found);

    /// `gone` is about to be destroyed, in whatever way.
    void Drop(const CVqMenuItem* gone);
};

extern SVqMenuSearchCache g_menu_search_cache;
