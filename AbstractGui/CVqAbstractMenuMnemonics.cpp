#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/CVqMnemonicSearch.h"

#include <algorithm>
#include <bitset>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace {

constexpr int missing = -9;

using Text = std::basic_string<vq_wchar>;
using View = std::basic_string_view<vq_wchar>;

/// A child that takes part. `label` is its text without the key; positions in `upper` hold in `plain`.
struct Entry
{
    CVqMenuItem* item = nullptr;
    vq_uint32 id = 0;
    Text label;
    Text plain;       // label without marks
    CVqStringW upper; // plain in capitals, cut at TAB
    Text candidates;  // letters that may serve, best first
};

using Entries = std::vector<Entry*>;

bool is_shown(const CVqMenuItem& item)
{
    return !item.deleted() && !item.removed();
}

bool takes_part(const CVqMenuItem& item)
{
    const bool is_command = item.type() == CVqAbstractMenu::SenseItem;
    const bool is_popup = item.type() == CVqAbstractMenu::SensePopup;
    return (is_command || is_popup) && !(item.status() & CVqMenuItem::StatusNoMnemonic) && is_shown(item);
}

/// `&&` is no mark and stays as it is.
Text without_marks(View label)
{
    Text plain;
    plain.reserve(label.size() + 1);
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == VQ_TEXT('&')) {
            if (i + 1 == label.size() || label[i + 1] != VQ_TEXT('&'))
                continue;
            plain += label[i++];
        }
        plain += label[i];
    }
    return plain;
}

CVqStringW upper_of(const Text& plain)
{
    CVqStringW upper(plain);
    upper.MakeUpper();
    const int tab = upper.Find(VQ_TEXT('\t'));
    return tab < 0 ? upper : upper.TruncateAt(tab);
}

bool is_digit(vq_wchar unit)
{
    return unit >= VQ_TEXT('0') && unit <= VQ_TEXT('9');
}

// Fixed ranges and not the classes of the locale: a menu gets the same mnemonics everywhere.
bool is_letter(vq_wchar unit)
{
    return (unit >= VQ_TEXT('a') && unit <= VQ_TEXT('z')) || (unit >= VQ_TEXT('A') && unit <= VQ_TEXT('Z'))
        || unit >= 192;
}

/// Each letter and digit once, the digits in front.
Text candidates_of(View upper)
{
    Text candidates;
    candidates.reserve(upper.size());
    std::size_t digits = 0;
    for (const vq_wchar unit : upper) {
        if ((!is_digit(unit) && !is_letter(unit)) || candidates.find(unit) != Text::npos)
            continue;
        candidates.insert(is_digit(unit) ? digits++ : candidates.size(), 1, unit);
    }
    return candidates;
}

void fill(Entry& entry, CVqMenuItem& item)
{
    const View text = item.text().View();
    entry.item = &item;
    entry.id = item.id();
    entry.label = text.substr(0, text.find(VQ_TEXT('\a')));
    entry.plain = without_marks(entry.label);
    entry.upper = upper_of(entry.plain);
    entry.candidates = candidates_of(entry.upper.View());
}

std::size_t count_siblings(const CVqMenuItem* first)
{
    std::size_t count = 0;
    for (; first; first = first->nextItem())
        ++count;
    return count;
}

/// Fills the table with the children that take part and gives them in the order of service: those with few
/// candidates first.
Entries fill_table(Entry* table, CVqMenuItem* first)
{
    Entries entries;
    for (CVqMenuItem* child = first; child; child = child->nextItem()) {
        if (!takes_part(*child))
            continue;
        fill(*table, *child);
        entries.push_back(table++);
    }
    std::sort(entries.begin(), entries.end(), [](const Entry* a, const Entry* b) {
        return std::tuple(a->candidates.size(), a->id, a) < std::tuple(b->candidates.size(), b->id, b);
    });
    return entries;
}

Text search_letters(const Entries& entries)
{
    std::vector<View> candidates;
    candidates.reserve(entries.size());
    for (const Entry* entry : entries)
        candidates.emplace_back(entry->candidates);
    return CVqMnemonicSearch(std::move(candidates)).Run();
}

/// One letter for each entry, 0 for none: what the search found, and for the rest whatever is still free.
Text choose_letters(const Entries& entries)
{
    Text letters = search_letters(entries);
    std::bitset<0x10000> taken;
    for (const vq_wchar letter : letters)
        taken.set(letter);
    for (std::size_t i = letters.size(); i < entries.size(); ++i) {
        const Text& candidates = entries[i]->candidates;
        const auto free = std::find_if(candidates.begin(), candidates.end(),
                                       [&](vq_wchar letter) { return !taken.test(letter); });
        letters += free == candidates.end() ? vq_wchar(0) : *free;
        taken.set(letters.back());
    }
    return letters;
}

/// Marks the first `letter` in the plain label and returns it as it is written there; 0 when it has none.
vq_wchar mark(Entry& entry, vq_wchar letter)
{
    const std::size_t position = letter == 0 ? Text::npos : entry.upper.View().find(letter);
    if (position == Text::npos)
        return 0;
    const vq_wchar mnemonic = entry.plain[position];
    entry.plain.insert(position, 1, VQ_TEXT('&'));
    return mnemonic;
}

/// The key text comes back from the table and not from the old text.
void show(CVqAbstractMenu& menu, CVqAccelerators& accels, IVqMenuBase* base, Entry& entry, vq_wchar letter)
{
    entry.item->setMnemonic(mark(entry, letter));
    if (entry.plain == entry.label)
        return;
    CVqStringW text(entry.plain);
    menu.Manipulators().set_accel(&accels, entry.item->id(), text);
    entry.item->setText(text);
    if (base)
        base->UpdateItemText(entry.item);
}

}

int CVqAbstractMenu::UpdateMnemonics(vq_uint32 id, bool recursive)
{
    CVqMenuItem* item = Manipulators().find_item(id, m_pRoot);
    return item ? UpdateMnemonicsEx(item, recursive) : missing;
}

int CVqAbstractMenu::UpdateMnemonicsEx(CVqMenuItem* popup, bool recursive)
{
    if (!popup || !popup->subItem())
        return missing;
    const std::unique_ptr<Entry[]> table(new (std::nothrow) Entry[count_siblings(popup->subItem())]);
    if (!table)
        return missing;
    const Entries entries = fill_table(table.get(), popup->subItem());
    if (entries.empty())
        return missing;

    const Text letters = choose_letters(entries);
    for (std::size_t i = 0; i < entries.size(); ++i)
        show(*this, m_accels, m_pMenuBase, *entries[i], letters[i]);

    // One level only: the popups below are left to whoever opens them.
    for (CVqMenuItem* child = popup->subItem(); recursive && child; child = child->nextItem())
        if (child->type() == SensePopup && is_shown(*child))
            UpdateMnemonicsEx(child, false);
    return 0;
}
