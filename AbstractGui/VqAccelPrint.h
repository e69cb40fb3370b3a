#pragma once

#include "AbstractGui/CVqAccelerators.h"
#include "AbstractGui/VqAccelFlags.h"
#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

#include <limits>
#include <string>
#include <string_view>

/// Overwrites `out` with the text of a key, whole.
void VqPrintAccel(std::basic_string<vq_wchar>& out, vq_uint32 flags, vq_wchar key);

/// Overwrites an area of `size` units, at least 1: what does not fit is left out, the terminator never.
void VqPrintAccel(vq_wchar* out, std::size_t size, vq_uint32 flags, vq_wchar key);

/// Calls `take` with the text of each key of `id` that differs from the text before it, until `take` returns
/// false. A record without a key has the empty text. No more than `most` records are looked at.
template <class Take>
void VqForEachAccelText(const CVqAccelerators& table, vq_uint32 id, Take take,
                        int most = std::numeric_limits<int>::max())
{
    std::basic_string<vq_wchar> text;
    std::basic_string<vq_wchar> last;
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    for (int index = 0; most > 0 && table.GetAccelKey(id, index, &flags, &key) == 0; text.clear(), --most) {
        if (key != vq_accel_no_key)
            VqPrintAccel(text, flags, key);
        if (text == last)
            continue;
        if (!take(std::basic_string_view<vq_wchar>(text)))
            return;
        last.swap(text);
    }
}

/// The texts of all keys of `id`, as CVqAccelerators::GetAllAccelKeys() joins them into an empty area, as far
/// as the first 256 go, which are more than such an area takes. Those behind are left out: a file may give a
/// key again and again, and the label is made anew each time.
CVqStringW VqAllAccelTexts(const CVqAccelerators& table, vq_uint32 id, const vq_wchar* separator);
