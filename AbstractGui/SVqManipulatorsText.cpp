#include "AbstractGui/CVqAbstractMenu.h"
#include "AbstractGui/VqAccelFlags.h"
#include "AbstractGui/VqAccelPrint.h"

#include <string>
#include <string_view>
#include <utility>

namespace {

using Text = std::basic_string<vq_wchar>;
using View = std::basic_string_view<vq_wchar>;

constexpr vq_wchar bell = VQ_TEXT('\a'); // parts label and key text

View label_of(View text)
{
    return text.substr(0, text.find(bell));
}

CVqStringW label_with_key(View label, View key_text)
{
    Text text;
    text.reserve(label.size() + 1 + key_text.size());
    text += label;
    text += bell;
    text += key_text;
    return CVqStringW(std::move(text));
}

/// Whether the `&` at `position` stays: before the mnemonic, ignoring case, and before another `&`. One at
/// the end of the text marks nothing.
bool is_mark_kept(View text, std::size_t position, vq_wchar mnemonic)
{
    if (position + 1 == text.size())
        return false;
    const vq_wchar next = text[position + 1];
    return next == VQ_TEXT('&') || VqLower(next) == VqLower(mnemonic);
}

/// Returns the end of the copy. Never writes ahead of what it reads, so both may be one buffer.
vq_wchar* copy_with_one_mark(vq_wchar* destination, View source, vq_wchar mnemonic)
{
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] == VQ_TEXT('&')) {
            if (!is_mark_kept(source, i, mnemonic))
                continue;
            *destination++ = source[i++];
        }
        *destination++ = source[i];
    }
    *destination = 0;
    return destination;
}

}

void CVqAbstractMenu::SVqManipulators::set_accel(CVqAccelerators* accelerators, vq_uint32 id,
                                                 CVqStringW& text)
{
    if (!accelerators)
        return;
    const int position = text.Find(bell);
    if (position >= 0) {
        accelerators->RemoveAccelKey(id);
        accelerators->AddAccelKey(id, text.GetString() + position + 1, 0);
        return;
    }
    int index = 0;
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    if (accelerators->GetAccelKey(id, index, &flags, &key) != 0)
        return;
    Text key_text;
    if (key != vq_accel_no_key)
        VqPrintAccel(key_text, flags, key);
    text = label_with_key(text.View(), key_text);
}

void CVqAbstractMenu::SVqManipulators::update_menustring(CVqMenuItem* item, const vq_wchar* accelText)
{
    if (!item)
        return;
    const View label = label_of(item->text().View());
    const View key_text = VqView(accelText);
    const bool shows_keys = item->type() != SensePopup && item->type() != SenseMainRoot;
    if (shows_keys && !key_text.empty())
        item->setText(label_with_key(label, key_text));
    else
        item->setText(CVqStringW(Text(label)));
}

const vq_wchar* CVqAbstractMenu::SVqManipulators::handle_mnemonics_and_split(vq_wchar* destination,
                                                                             const vq_wchar* source,
                                                                             vq_wchar mnemonic,
                                                                             const vq_wchar* delimiters)
{
    static constexpr vq_wchar no_delimiters[] = {0, 0};
    if (!destination)
        return nullptr;
    if (!delimiters)
        delimiters = no_delimiters;

    const vq_wchar* end = copy_with_one_mark(destination, VqView(source), mnemonic);
    const View text(destination, static_cast<std::size_t>(end - destination));
    // An empty list of delimiters counts as found at its own end.
    if (*delimiters == 0)
        return delimiters + 1;
    for (const vq_wchar delimiter : VqView(delimiters)) {
        const std::size_t last = text.rfind(delimiter);
        if (last == View::npos)
            continue;
        destination[last] = 0;
        return destination + last + 1;
    }
    return nullptr;
}
