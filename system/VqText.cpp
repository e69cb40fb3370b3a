#include "system/VqText.h"

#include <cwctype>
#include <string>

namespace {

bool is_surrogate(vq_wchar unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

vq_wchar mapped_by_c_library(vq_wchar unit, std::wint_t (*map)(std::wint_t))
{
    if (is_surrogate(unit))
        return unit;
    const std::wint_t mapped = map(unit);
    return mapped <= 0xFFFF ? static_cast<vq_wchar>(mapped) : unit;
}

}

int VqLength(const vq_wchar* text)
{
    return static_cast<int>(VqView(text).size());
}

std::basic_string_view<vq_wchar> VqView(const vq_wchar* text)
{
    return text ? std::basic_string_view<vq_wchar>(text) : std::basic_string_view<vq_wchar>();
}

bool VqEquals(const vq_wchar* left, const vq_wchar* right)
{
    return VqView(left) == VqView(right);
}

vq_wchar VqLower(vq_wchar unit)
{
    if (unit < 0x80)
        return unit >= VQ_TEXT('A') && unit <= VQ_TEXT('Z') ? static_cast<vq_wchar>(unit + 32) : unit;
    return mapped_by_c_library(unit, [](std::wint_t c) { return std::towlower(c); });
}

vq_wchar VqUpper(vq_wchar unit)
{
    if (unit < 0x80)
        return unit >= VQ_TEXT('a') && unit <= VQ_TEXT('z') ? static_cast<vq_wchar>(unit - 32) : unit;
    return mapped_by_c_library(unit, [](std::wint_t c) { return std::towupper(c); });
}
