#include "AbstractGui/VqAccelParse.h"

#include "AbstractGui/VqAccelFlags.h"
#include "AbstractGui/VqAccelTranslation.h"

#include <algorithm>
#include <array>

namespace {

using View = std::basic_string_view<vq_wchar>;

// Which letters, digits and other units a text holds, one bit each; units may share a bit.
constexpr vq_uint64 units_of(View text)
{
    vq_uint64 units = 0;
    for (const vq_wchar unit : text)
        units |= vq_uint64(1) << (unit % 64);
    return units;
}

struct KeyName
{
    constexpr KeyName(View text, int value)
        : name(text), units(units_of(text)), key(static_cast<vq_wchar>(value))
    { }

    View name;
    vq_uint64 units;
    vq_wchar key;
};

// The order counts: a name is looked for anywhere in the text, so "backspace" stands ahead of "space" and
// "f10" ahead of "f1".
constexpr std::array key_names{
    KeyName(VQ_TEXT("backspace"), 8), KeyName(VQ_TEXT("tab"), 9),       KeyName(VQ_TEXT("enter"), 13),
    KeyName(VQ_TEXT("clear"), 12),    KeyName(VQ_TEXT("esc"), 27),      KeyName(VQ_TEXT("space"), 32),
    KeyName(VQ_TEXT("pageup"), 33),   KeyName(VQ_TEXT("pagedown"), 34), KeyName(VQ_TEXT("end"), 35),
    KeyName(VQ_TEXT("home"), 36),     KeyName(VQ_TEXT("left"), 37),     KeyName(VQ_TEXT("up"), 38),
    KeyName(VQ_TEXT("right"), 39),    KeyName(VQ_TEXT("down"), 40),     KeyName(VQ_TEXT("select"), 41),
    KeyName(VQ_TEXT("print"), 42),    KeyName(VQ_TEXT("exec"), 43),     KeyName(VQ_TEXT("snapshot"), 44),
    KeyName(VQ_TEXT("insert"), 45),   KeyName(VQ_TEXT("delete"), 46),   KeyName(VQ_TEXT("num0"), 96),
    KeyName(VQ_TEXT("num1"), 97),     KeyName(VQ_TEXT("num2"), 98),     KeyName(VQ_TEXT("num3"), 99),
    KeyName(VQ_TEXT("num4"), 100),    KeyName(VQ_TEXT("num5"), 101),    KeyName(VQ_TEXT("num6"), 102),
    KeyName(VQ_TEXT("num7"), 103),    KeyName(VQ_TEXT("num8"), 104),    KeyName(VQ_TEXT("num9"), 105),
    KeyName(VQ_TEXT("*"), 106),       KeyName(VQ_TEXT("+"), 107),       KeyName(VQ_TEXT("|"), 108),
    KeyName(VQ_TEXT("-"), 109),       KeyName(VQ_TEXT("."), 110),       KeyName(VQ_TEXT("/"), 111),
    KeyName(VQ_TEXT("f10"), 121),     KeyName(VQ_TEXT("f11"), 122),     KeyName(VQ_TEXT("f12"), 123),
    KeyName(VQ_TEXT("f13"), 124),     KeyName(VQ_TEXT("f14"), 125),     KeyName(VQ_TEXT("f15"), 126),
    KeyName(VQ_TEXT("f16"), 127),     KeyName(VQ_TEXT("f17"), 128),     KeyName(VQ_TEXT("f18"), 129),
    KeyName(VQ_TEXT("f19"), 130),     KeyName(VQ_TEXT("f20"), 131),     KeyName(VQ_TEXT("f21"), 132),
    KeyName(VQ_TEXT("f22"), 133),     KeyName(VQ_TEXT("f23"), 134),     KeyName(VQ_TEXT("f24"), 135),
    KeyName(VQ_TEXT("f1"), 112),      KeyName(VQ_TEXT("f2"), 113),      KeyName(VQ_TEXT("f3"), 114),
    KeyName(VQ_TEXT("f4"), 115),      KeyName(VQ_TEXT("f5"), 116),      KeyName(VQ_TEXT("f6"), 117),
    KeyName(VQ_TEXT("f7"), 118),      KeyName(VQ_TEXT("f8"), 119),      KeyName(VQ_TEXT("f9"), 120),
};
static_assert(key_names.size() == 60);

// Cuts the next token off `text`; empty when there is none.
View take_token(View& text, View delimiters)
{
    text.remove_prefix(std::min(text.find_first_not_of(delimiters), text.size()));
    const View token = text.substr(0, text.find_first_of(delimiters));
    text.remove_prefix(token.size());
    return token;
}

// Three words stand for a key as they are, without any modifier.
bool parse_lone_symbol(View word, vq_wchar& key)
{
    constexpr View symbols = VQ_TEXT("+[]");
    constexpr vq_wchar keys[] = {107, 219, 221};
    const std::size_t symbol = word.size() == 1 ? symbols.find(word.front()) : View::npos;
    if (symbol == View::npos)
        return false;
    key = keys[symbol];
    return true;
}

bool begins_with(View token, const vq_wchar* name)
{
    return token.starts_with(View(name));
}

// Flag of the modifier that the token begins with, in the language of the session, or 0.
vq_uint32 modifier_of(View token)
{
    if (begins_with(token, VqAccelTranslation(VQ_TEXT("ctrl"))))
        return vq_accel_ctrl;
    if (begins_with(token, VqAccelTranslation(VQ_TEXT("alt"), VQ_TEXT("keyboard key"))))
        return vq_accel_alt;
    if (begins_with(token, VqAccelTranslation(VQ_TEXT("shift"), VQ_TEXT("keyboard key"))))
        return vq_accel_shift;
    return 0;
}

bool parse_key(View token, vq_wchar& key)
{
    if (VqFindKeyName(token, key))
        return true;
    const vq_wchar first = token.front();
    if (first >= VQ_TEXT('a') && first <= VQ_TEXT('z'))
        key = static_cast<vq_wchar>(first - VQ_TEXT('a') + 0x41);
    else if (first >= VQ_TEXT('0') && first <= VQ_TEXT('9'))
        key = first;
    else
        return false;
    return true;
}

bool parse_combination(View word, SVqParsedAccel& parsed)
{
    vq_uint32 flags = vq_accel_virtual_key;
    for (View token = take_token(word, VQ_TEXT(" +")); !token.empty();
         token = take_token(word, VQ_TEXT(" +"))) {
        const vq_uint32 modifier = modifier_of(token);
        if (modifier == 0) {
            parsed.flags = flags;
            return parse_key(token, parsed.key);
        }
        flags |= modifier;
    }
    return false;
}

}

bool VqParseAccel(View text, SVqParsedAccel& parsed)
{
    if (text.size() >= vq_accel_text_area)
        return false;
    const View word = take_token(text, VQ_TEXT(" "));
    std::array<vq_wchar, vq_accel_text_area> lower;
    std::transform(word.begin(), word.end(), lower.begin(), VqLower);
    const View lower_word(lower.data(), word.size());
    SVqParsedAccel result{vq_accel_virtual_key, 0};
    if (!parse_lone_symbol(lower_word, result.key) && !parse_combination(lower_word, result))
        return false;
    parsed = result;
    return true;
}

// A name can only be there when all its units are, which rules most names out at once.
bool VqFindKeyName(View text, vq_wchar& key)
{
    const vq_uint64 units = units_of(text);
    for (const KeyName& name : key_names) {
        if ((name.units & ~units) == 0 && text.find(name.name) != View::npos) {
            key = name.key;
            return true;
        }
    }
    return false;
}
