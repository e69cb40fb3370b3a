#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

#include <string_view>

/// What a key text names: modifier flags with the virtual-key mark, and a virtual-key value.
struct SVqParsedAccel
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
};

/// Units of the longest key text, its terminator included, that is read or written in one area.
constexpr std::size_t vq_accel_text_area = 512;

/// Reads the first word of `text`; false, and nothing stored, when it names no key or `text` has no room for
/// its terminator in one area.
bool VqParseAccel(std::basic_string_view<vq_wchar> text, SVqParsedAccel& parsed);

/// Looks for a lower-case key name anywhere in `text`; the first of the list wins.
bool VqFindKeyName(std::basic_string_view<vq_wchar> text, vq_wchar& key);
