#include "system/CVqStringW.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <string>

namespace {

using string_type = CVqStringW::string_type;
using view_type = CVqStringW::view_type;

constexpr int max_size = 65536; // of a width or precision

enum class EArgument
{
    Int,
    Long,
    LongLong
};

/// What stands between '%' and the conversion letter.
struct SConversion
{
    bool m_bLeft = false;
    bool m_bZero = false;
    bool m_bPlus = false;
    bool m_bBlank = false;
    bool m_bAlternate = false;
    int m_iWidth = 0;
    int m_iPrecision = -1; // -1: none given
    EArgument m_eArgument = EArgument::Int;
};

/// The caller's arguments; a struct, since a va_list itself cannot be handed on by reference everywhere.
struct SArguments
{
    std::va_list m_list;
};

/// Walks a format text; stands on the terminator at its end and never behind it.
class CFormatCursor
{
public:
    explicit CFormatCursor(const vq_wchar* text) : m_pText(text ? text : VQ_TEXT("")) { }

    vq_wchar current() const { return *m_pText; }
    const vq_wchar* position() const { return m_pText; }
    void set_position(const vq_wchar* position) { m_pText = position; }
    void step() { m_pText += *m_pText ? 1 : 0; }

    bool take(vq_wchar unit)
    {
        const bool found = *m_pText == unit;
        m_pText += found ? 1 : 0;
        return found;
    }

private:
    const vq_wchar* m_pText;
};

bool read_flag(CFormatCursor& cursor, SConversion& conversion)
{
    if (cursor.take(VQ_TEXT('-')))
        return conversion.m_bLeft = true;
    if (cursor.take(VQ_TEXT('0')))
        return conversion.m_bZero = true;
    if (cursor.take(VQ_TEXT('+')))
        return conversion.m_bPlus = true;
    if (cursor.take(VQ_TEXT(' ')))
        return conversion.m_bBlank = true;
    return cursor.take(VQ_TEXT('#')) && (conversion.m_bAlternate = true);
}

int read_digits(CFormatCursor& cursor)
{
    int value = 0;
    for (; cursor.current() >= VQ_TEXT('0') && cursor.current() <= VQ_TEXT('9'); cursor.step())
        value = std::min(value * 10 + (cursor.current() - VQ_TEXT('0')), max_size);
    return value;
}

int read_size(CFormatCursor& cursor, SArguments& arguments)
{
    if (cursor.take(VQ_TEXT('*')))
        return std::clamp(va_arg(arguments.m_list, int), -max_size, max_size);
    return read_digits(cursor);
}

void read_width(CFormatCursor& cursor, SArguments& arguments, SConversion& conversion)
{
    const int width = read_size(cursor, arguments);
    conversion.m_bLeft |= width < 0;
    conversion.m_iWidth = std::abs(width);
}

EArgument read_argument_size(CFormatCursor& cursor)
{
    const vq_wchar* start = cursor.position();
    if (cursor.take(VQ_TEXT('I')) && cursor.take(VQ_TEXT('6')) && cursor.take(VQ_TEXT('4')))
        return EArgument::LongLong;
    cursor.set_position(start);
    if (!cursor.take(VQ_TEXT('l')))
        return EArgument::Int;
    return cursor.take(VQ_TEXT('l')) ? EArgument::LongLong : EArgument::Long;
}

SConversion read_conversion(CFormatCursor& cursor, SArguments& arguments)
{
    SConversion conversion;
    while (read_flag(cursor, conversion)) { }
    read_width(cursor, arguments, conversion);
    if (cursor.take(VQ_TEXT('.')))
        conversion.m_iPrecision = std::max(read_size(cursor, arguments), -1);
    conversion.m_eArgument = read_argument_size(cursor);
    return conversion;
}

long long next_signed(SArguments& arguments, EArgument size)
{
    if (size == EArgument::LongLong)
        return va_arg(arguments.m_list, long long);
    return size == EArgument::Long ? va_arg(arguments.m_list, long) : va_arg(arguments.m_list, int);
}

unsigned long long next_unsigned(SArguments& arguments, EArgument size)
{
    if (size == EArgument::LongLong)
        return va_arg(arguments.m_list, unsigned long long);
    return size == EArgument::Long ? va_arg(arguments.m_list, unsigned long)
                                   : va_arg(arguments.m_list, unsigned);
}

template <typename Text>
void append_padded(string_type& out, const Text& text, const SConversion& conversion)
{
    const auto width = static_cast<std::size_t>(conversion.m_iWidth);
    const std::size_t padding = width > text.size() ? width - text.size() : 0;
    out.append(conversion.m_bLeft ? 0 : padding, VQ_TEXT(' '));
    out.append(text.begin(), text.end());
    out.append(conversion.m_bLeft ? padding : 0, VQ_TEXT(' '));
}

/// Sign or base in front, zeros of the flag `0` between it and the digits, blanks outside.
void append_number(string_type& out, std::string prefix, const std::string& digits, bool zeros_allowed,
                   const SConversion& conversion)
{
    const auto width = static_cast<std::size_t>(conversion.m_iWidth);
    const std::size_t used = prefix.size() + digits.size();
    if (conversion.m_bZero && !conversion.m_bLeft && zeros_allowed && width > used)
        prefix.append(width - used, '0');
    append_padded(out, prefix + digits, conversion);
}

std::string sign_of(bool negative, const SConversion& conversion)
{
    if (negative)
        return "-";
    return conversion.m_bPlus ? "+" : conversion.m_bBlank ? " " : "";
}

std::string digits_of(unsigned long long value, int base, const SConversion& conversion)
{
    if (value == 0 && conversion.m_iPrecision == 0)
        return {};
    char buffer[32];
    const std::string digits(buffer, std::to_chars(std::begin(buffer), std::end(buffer), value, base).ptr);
    const auto wanted = static_cast<std::size_t>(std::max(conversion.m_iPrecision, 0));
    return digits.size() < wanted ? std::string(wanted - digits.size(), '0') + digits : digits;
}

std::string upper_case(std::string text)
{
    for (char& c : text)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
    return text;
}

void append_integer(string_type& out, SArguments& arguments, const SConversion& conversion)
{
    const long long value = next_signed(arguments, conversion.m_eArgument);
    const auto magnitude
        = value < 0 ? 0ULL - static_cast<unsigned long long>(value) : static_cast<unsigned long long>(value);
    append_number(out, sign_of(value < 0, conversion), digits_of(magnitude, 10, conversion),
                  conversion.m_iPrecision < 0, conversion);
}

void append_unsigned(string_type& out, SArguments& arguments, vq_wchar letter, const SConversion& conversion)
{
    const unsigned long long value = next_unsigned(arguments, conversion.m_eArgument);
    const int base = letter == VQ_TEXT('u') ? 10 : letter == VQ_TEXT('o') ? 8 : 16;
    std::string digits = digits_of(value, base, conversion);
    std::string prefix;
    if (conversion.m_bAlternate && base == 8 && !digits.starts_with('0'))
        digits.insert(0, 1, '0');
    if (conversion.m_bAlternate && base == 16 && value != 0)
        prefix = letter == VQ_TEXT('X') ? "0X" : "0x";
    append_number(out, prefix, letter == VQ_TEXT('X') ? upper_case(digits) : digits,
                  conversion.m_iPrecision < 0, conversion);
}

/// Digits of a number that is not negative, in the form that `letter` names in lower case.
std::string real_digits(double value, vq_wchar letter, int precision)
{
    const auto form = letter == VQ_TEXT('f') ? std::chars_format::fixed
        : letter == VQ_TEXT('e')             ? std::chars_format::scientific
                                             : std::chars_format::general;
    std::string buffer(static_cast<std::size_t>(precision) + 400, '\0'); // 309 digits, point, exponent
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, form, precision).ptr;
    buffer.resize(static_cast<std::size_t>(end - buffer.data()));
    return buffer;
}

void append_real(string_type& out, SArguments& arguments, vq_wchar letter, const SConversion& conversion)
{
    const double value = va_arg(arguments.m_list, double);
    const bool capital = letter < VQ_TEXT('a');
    const auto small = static_cast<vq_wchar>(capital ? letter + 32 : letter);
    const int precision = conversion.m_iPrecision < 0 ? 6 : conversion.m_iPrecision;
    const std::string digits = real_digits(std::fabs(value), small, precision);
    append_number(out, sign_of(std::signbit(value), conversion), capital ? upper_case(digits) : digits,
                  std::isfinite(value), conversion);
}

void append_text(string_type& out, SArguments& arguments, const SConversion& conversion)
{
    view_type text = VqView(va_arg(arguments.m_list, const vq_wchar*));
    if (conversion.m_iPrecision >= 0)
        text = text.substr(0, static_cast<std::size_t>(conversion.m_iPrecision));
    append_padded(out, text, conversion);
}

bool append_value(string_type& out, SArguments& arguments, vq_wchar letter, const SConversion& conversion)
{
    const auto is_one_of = [letter](view_type letters) { return letters.find(letter) != view_type::npos; };
    if (letter == VQ_TEXT('s'))
        append_text(out, arguments, conversion);
    else if (letter == VQ_TEXT('c'))
        append_padded(out, string_type(1, static_cast<vq_wchar>(va_arg(arguments.m_list, int))), conversion);
    else if (is_one_of(VQ_TEXT("di")))
        append_integer(out, arguments, conversion);
    else if (is_one_of(VQ_TEXT("uxXo")))
        append_unsigned(out, arguments, letter, conversion);
    else if (is_one_of(VQ_TEXT("fFeEgG")))
        append_real(out, arguments, letter, conversion);
    else if (letter == VQ_TEXT('%'))
        out.push_back(letter);
    else
        return false;
    return true;
}

string_type formatted(const vq_wchar* format, SArguments& arguments)
{
    string_type out;
    CFormatCursor cursor(format);
    while (cursor.current()) {
        const vq_wchar* start = cursor.position();
        if (!cursor.take(VQ_TEXT('%'))) {
            out.push_back(cursor.current());
            cursor.step();
            continue;
        }
        const SConversion conversion = read_conversion(cursor, arguments);
        const vq_wchar letter = cursor.current();
        cursor.step();
        if (!append_value(out, arguments, letter, conversion))
            out.append(start, cursor.position());
    }
    return out;
}

}

CVqStringW& CVqStringW::Format(const vq_wchar* format, ...)
{
    SArguments arguments;
    va_start(arguments.m_list, format);
    m_strText = formatted(format, arguments);
    va_end(arguments.m_list);
    return *this;
}

CVqStringW& CVqStringW::AppendFormat(const vq_wchar* format, ...)
{
    SArguments arguments;
    va_start(arguments.m_list, format);
    m_strText += formatted(format, arguments);
    va_end(arguments.m_list);
    return *this;
}
