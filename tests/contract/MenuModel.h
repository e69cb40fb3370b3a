#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <QString>

#include <algorithm>
#include <string>

/// What any back end shows of an item: kind, marks, and the label as people read it.
///
/// As text it is one line, with two blanks a level in front:
///
///     1 popup "&File"
///       2 item checked grayed "Open"
struct SMenuRow
{
    vq_uint32 id = 0;
    vq_uint32 type = 0;
    bool checked = false;
    bool grayed = false;
    std::string label; ///< UTF-8, up to BEL or TAB, `&&` as `&`, with the one mark that the mnemonic names.

    static SMenuRow Of(const CVqMenuItem& item)
    {
        SMenuRow row{item.id(), item.type(), false, false, std::string()};
        row.SetState(item.status());
        row.SetText(item.text(), item.mnemonic());
        return row;
    }

    void SetState(vq_uint32 status)
    {
        checked = status & CVqMenuItem::StatusChecked;
        grayed = !(status & CVqMenuItem::StatusEnabled) || (status & CVqMenuItem::StatusGrayed);
    }

    void SetText(const CVqStringW& text, vq_wchar mnemonic)
    {
        const std::u16string whole = text.ToQString().toStdU16String();
        const std::size_t end = std::min(whole.find_first_of(u"\a\t"), whole.size());
        std::u16string shown;
        bool marked = mnemonic == 0;
        for (std::size_t i = 0; i < end; ++i) {
            const bool is_mark = whole[i] == u'&' && i + 1 < end;
            if (whole[i] != u'&') {
                shown += whole[i];
            } else if (is_mark && whole[i + 1] == u'&') {
                shown += whole[i++];
            } else if (is_mark && !marked && VqLower(vq_wchar(whole[i + 1])) == VqLower(mnemonic)) {
                shown += u'&';
                marked = true;
            }
        }
        label = QString::fromStdU16String(shown).toStdString();
    }

    std::string Line(int level) const
    {
        static const char* const kinds[]
            = {"accel", "1", "item", "twocolor", "onecolor", "linewidth", "separator", "popup", "mainroot"};
        return std::string(std::size_t(2 * level), ' ') + std::to_string(id) + ' ' + kinds[std::min(type, 8u)]
            + (checked ? " checked" : "") + (grayed ? " grayed" : "") + " \"" + label + "\"\n";
    }
};

inline void AddModelRows(const CVqMenuItem* first, int level, std::string& rows)
{
    for (const CVqMenuItem* item = first; item; item = item->nextItem()) {
        rows += SMenuRow::Of(*item).Line(level);
        if (item->type() == CVqAbstractMenu::SensePopup)
            AddModelRows(item->subItem(), level + 1, rows);
    }
}

/// The rows that a back end has to show for a menu: one for each item below the root, hidden ones too, and
/// those below popups indented. What hangs below a command has no row.
inline std::string ModelRows(CVqAbstractMenu& menu)
{
    std::string rows;
    AddModelRows(menu.getRootMenuItem()->subItem(), 0, rows);
    return rows;
}
