#pragma once

#include "system/CVqStringW.h"
#include "system/EVqVariantType.h"
#include "system/VqTypes.h"

#include <charconv>
#include <optional>
#include <string>

// The conversions between value types that trees and streams share. Not installed.

/// A scalar as both store it: 32 bits for bool, int and uint, units for a text.
struct SVqScalar
{
    EVqVariantType m_eType = EVqVariantType::Empty;
    vq_uint32 m_uiBits = 0;
    std::basic_string_view<vq_wchar> m_text{};
};

/// Decimal digits with an optional sign and nothing else, within -2^31 to 2^32 - 1, as 32 bits.
inline std::optional<vq_uint32> parse_number(std::basic_string_view<vq_wchar> text)
{
    if (text.empty() || text.size() > 32)
        return {};
    std::string digits;
    for (const vq_wchar unit : text)
        digits.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    if (digits.front() == '+' && digits.size() > 1 && digits[1] != '-')
        digits.erase(0, 1);
    vq_int64 value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool whole = error == std::errc() && end == digits.data() + digits.size();
    if (!whole || value < INT32_MIN || value > UINT32_MAX)
        return {};
    return static_cast<vq_uint32>(value);
}

inline std::optional<vq_uint32> scalar_to_bits(const SVqScalar& scalar)
{
    switch (scalar.m_eType) {
    case EVqVariantType::Bool:
    case EVqVariantType::Int:
    case EVqVariantType::Uint:
        return scalar.m_uiBits;
    case EVqVariantType::Text:
        return parse_number(scalar.m_text);
    default:
        return {};
    }
}

inline std::optional<CVqStringW> scalar_to_text(const SVqScalar& scalar)
{
    CVqStringW text;
    switch (scalar.m_eType) {
    case EVqVariantType::Bool:
    case EVqVariantType::Uint:
        return text.Format(VQ_TEXT("%u"), scalar.m_uiBits);
    case EVqVariantType::Int:
        return text.AddInt(static_cast<vq_int32>(scalar.m_uiBits));
    case EVqVariantType::Text:
        return CVqStringW(CVqStringW::string_type(scalar.m_text));
    default:
        return {};
    }
}
