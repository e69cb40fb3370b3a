#pragma once

#include "gallery/menu/MenuFile.h"

#include <functional>

/// The menu that the gallery ships, read once.
inline const Gallery::MenuDocument& RealMenu()
{
    static const Gallery::MenuDocument document = [] {
        Gallery::MenuFile file;
        file.Load(QStringLiteral(":/gallery/menus.json"));
        return file.Document();
    }();
    return document;
}

/// Calls `visit` for each of `entries` and all below them, with its level; the first level is 1.
inline void VisitEntries(const std::vector<Gallery::MenuEntry>& entries,
                         const std::function<void(const Gallery::MenuEntry&, int)>& visit, int level = 1)
{
    for (const Gallery::MenuEntry& entry : entries) {
        visit(entry, level);
        VisitEntries(entry.items, visit, level + 1);
    }
}
