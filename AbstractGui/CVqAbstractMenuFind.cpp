#include "AbstractGui/CVqAbstractMenu.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr int bad_argument = -4;
constexpr int not_found = -13;

using View = std::basic_string_view<vq_wchar>;

vq_wchar unit_at(View text, std::size_t position)
{
    return position < text.size() ? text[position] : vq_wchar(0);
}

bool is_label_end(vq_wchar unit)
{
    return unit == 0 || unit == VQ_TEXT('\a') || unit == VQ_TEXT('\t');
}

bool is_behind_blank(View text, std::size_t position)
{
    return position > 0 && text[position - 1] == VQ_TEXT(' ');
}

bool is_ignored(vq_wchar unit, bool behind_blank)
{
    return unit == VQ_TEXT('&') || unit == VQ_TEXT('.') || (unit == VQ_TEXT(' ') && behind_blank);
}

bool has_exact_label(View text, View wanted)
{
    const std::size_t shorter = std::min(text.size(), wanted.size());
    return text.substr(0, shorter) == wanted.substr(0, shorter) && is_label_end(unit_at(text, shorter))
        && is_label_end(unit_at(wanted, shorter));
}

/// Whether a blank in `wanted` is a repeated one is asked of the units of `text` up to there, so that a
/// search for "A  B" finds "A B" (held by the test DoubleBlankInSearchMatchesOneBlankInLabel).
bool has_similar_label(View text, View wanted)
{
    for (std::size_t t = 0, w = 0;; ++t, ++w) {
        while (unit_at(text, t) == VQ_TEXT('$') || is_ignored(unit_at(text, t), is_behind_blank(text, t)))
            ++t;
        while (is_ignored(unit_at(wanted, w), is_behind_blank(text, t)))
            ++w;
        const bool text_ends = is_label_end(unit_at(text, t));
        const bool wanted_ends = is_label_end(unit_at(wanted, w));
        if (text_ends || wanted_ends)
            return text_ends && wanted_ends;
        if (VqLower(text[t]) != VqLower(wanted[w]))
            return false;
    }
}

bool is_match(View text, View wanted, bool exact)
{
    return exact ? has_exact_label(text, wanted) : !text.empty() && has_similar_label(text, wanted);
}

template <class Find>
int find_in_tree(CVqAbstractMenu& menu, CVqMenuItem* root, Find find, vq_uint32& count)
{
    menu.Manipulators().visit_all(root, find);
    count = find.m_uiCount;
    return count > 0 ? 0 : not_found;
}

}

int CVqAbstractMenu::FindItemInPopup(vq_uint32 popup, const vq_wchar* text, vq_uint32* ids, vq_uint32& count,
                                     bool exact)
{
    CVqMenuItem* item = Manipulators().find_item(popup, m_pRoot);
    if (!item || !item->subItem() || !text)
        return bad_argument;
    const vq_uint32 capacity = ids ? count : 0;
    count = 0;
    for (CVqMenuItem* child = item->subItem(); child && count < capacity; child = child->nextItem())
        if (is_match(child->text().View(), VqView(text), exact))
            ids[count++] = child->id();
    return count > 0 ? 0 : not_found;
}

int CVqAbstractMenu::FindItems(const vq_wchar* text, vq_uint32 type, vq_uint32 status, vq_uint32* ids,
                               vq_uint32& count)
{
    return find_in_tree(*this, m_pRoot, SVqFindData(text, CVqStringW(), type, status, ids, ids ? count : 0),
                        count);
}

int CVqAbstractMenu::FindItemsByCommand(const vq_wchar* command, vq_uint32 type, vq_uint32 status,
                                        vq_uint32* ids, vq_uint32& count)
{
    return find_in_tree(*this, m_pRoot,
                        SVqFindDataByCommand(CVqStringW(), command, type, status, ids, ids ? count : 0),
                        count);
}
