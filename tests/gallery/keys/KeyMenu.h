#pragma once

#include "gallery/menu/MenuBuilder.h"
#include "gallery/menu/MenuFile.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/CVqQuickMenuItem.h"

#include <gtest/gtest.h>

/// File: Save (2, Ctrl+S and F12), Print (3, Ctrl+P), colour (4) / context menu: Save (11) / keys without an
/// entry: Pan Left (90, Left), Save (91, Shift+F12).
inline Gallery::MenuDocument KeyDocument()
{
    Gallery::MenuFile file;
    EXPECT_TRUE(file.Parse(R"({ "format": 1,
        "menu": [ { "type": "popup", "id": 1, "text": "&File", "items": [
            { "id": 2, "text": "&Save", "command": "Save", "key": "Ctrl+S", "keys": [{ "flags": [], "key": 123 }] },
            { "id": 3, "text": "&Print...", "command": "Print", "key": "Ctrl+P" },
            { "type": "onecolor", "id": 4, "command": "Red", "color": "#ff0000" } ] } ],
        "context": [ { "type": "popup", "id": 10, "text": "Area", "items": [
            { "id": 11, "text": "Sa&ve", "command": "Save" } ] } ],
        "keys": [ { "id": 90, "text": "Pan Left", "command": "Pan", "key": "Left" },
                  { "id": 91, "command": "Save", "key": "Shift+F12" } ] })",
                           QStringLiteral("m.json")))
        << file.Error().toStdString();
    return file.Document();
}

namespace KeyOf {

inline const Gallery::MenuKey CtrlS{18, 'S'};
inline const Gallery::MenuKey CtrlP{18, 'P'};
inline const Gallery::MenuKey CtrlK{18, 'K'};
inline const Gallery::MenuKey F12{16, 123};
inline const Gallery::MenuKey ShiftF12{20, 123};
inline const Gallery::MenuKey Left{16, 37};

}

/// A menu that was built from a document.
class KeyMenu
{
public:
    explicit KeyMenu(const Gallery::MenuDocument& document) { Gallery::MenuBuilder(m_menu).Build(document); }

    CVqQuickMenu& Menu() { return m_menu; }

    /// The identifier that a key fires, 0 for none.
    vq_uint32 Fires(const Gallery::MenuKey& key)
    {
        vq_uint64 target = 0;
        vq_uint32 id = 0;
        m_menu.Translate(key.key, key.flags & 7, target, id);
        return id;
    }

    /// The key text of an entry's row.
    QString Shown(vq_uint32 id)
    {
        auto* item
            = dynamic_cast<CVqQuickMenuItem*>(m_menu.Manipulators().find_item(id, m_menu.getRootMenuItem()));
        const QModelIndex row = item->rows()->index(item->rows()->RowOf(*item));
        return item->rows()->data(row, CVqQuickMenuRows::KeyTextRole).toString();
    }

    /// The menu string of an entry.
    QString Text(vq_uint32 id)
    {
        CVqStringW text;
        m_menu.GetIdMenuString(id, text);
        return text.ToQString();
    }

private:
    CVqQuickMenu m_menu;
};
