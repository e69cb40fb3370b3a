#pragma once

#include "arbor_system_export.h"

#include <cwchar>
#include <string_view>

/// One 16-bit unit of text. All text of the abstract GUI is a zero-terminated sequence of these (UTF-16, lone
/// surrogates allowed). Write literals as VQ_TEXT("File") and VQ_TEXT('F').
#if WCHAR_MAX == 0xFFFF
using vq_wchar = wchar_t;
#define VQ_TEXT(literal) L##literal
#else
using vq_wchar = char16_t;
#define VQ_TEXT(literal) u##literal
#endif

/// Units in front of the terminator; null has 0.
ARBOR_SYSTEM_EXPORT int VqLength(const vq_wchar* text);

/// The text without its terminator. Valid as long as `text` is; null gives an empty view.
ARBOR_SYSTEM_EXPORT std::basic_string_view<vq_wchar> VqView(const vq_wchar* text);

/// True when both hold the same units. Null reads as the empty text.
ARBOR_SYSTEM_EXPORT bool VqEquals(const vq_wchar* left, const vq_wchar* right);

/// The lower-case form of one unit. A to Z fold by themselves in every locale, so that key texts read the
/// same under a Turkish one; other units follow the C library's locale. A unit whose form needs more than one
/// unit, and every half of a surrogate pair, stays as it is.
ARBOR_SYSTEM_EXPORT vq_wchar VqLower(vq_wchar unit);

/// The upper-case form of one unit, with the rules of VqLower().
ARBOR_SYSTEM_EXPORT vq_wchar VqUpper(vq_wchar unit);
