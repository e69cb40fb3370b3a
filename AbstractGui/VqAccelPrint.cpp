#include "AbstractGui/VqAccelPrint.h"

#include "AbstractGui/VqAccelTranslation.h"

#include <algorithm>
#include <array>

namespace {

using View = std::basic_string_view<vq_wchar>;

enum class Wording
{
    Translated,
    Literal,
};

constexpr auto literal = Wording::Literal;

struct Label
{
    constexpr Label() = default;

    constexpr Label(const vq_wchar* label, const vq_wchar* label_comment = nullptr)
        : text(label), comment(label_comment)
    { }

    constexpr Label(const vq_wchar* label, Wording label_wording) : text(label), wording(label_wording) { }

    const vq_wchar* text = nullptr; // null: the key is written as itself
    const vq_wchar* comment = nullptr;
    Wording wording = Wording::Translated;
};

struct Row
{
    template <class... Words>
    constexpr Row(std::size_t value, Words... words) : key(value), label(words...)
    { }

    std::size_t key;
    Label label;
};

constexpr Row rows[] = {
    Row{3, VQ_TEXT("Break"), VQ_TEXT("Break keyboard key")},
    Row{8, VQ_TEXT("Backspace"), VQ_TEXT("Backspace keyboard key")},
    Row{9, VQ_TEXT("Tab"), VQ_TEXT("Tab keyboard key")},
    Row{12, VQ_TEXT("Num 5")},
    Row{13, VQ_TEXT("Enter"), VQ_TEXT("Enter keyboard key")},
    Row{19, VQ_TEXT("Pause"), VQ_TEXT("Pause keyboard key")},
    Row{27, VQ_TEXT("Esc"), VQ_TEXT("Esc keyboard key")},
    Row{32, VQ_TEXT("Space"), VQ_TEXT("Space keyboard key")},
    Row{33, VQ_TEXT("PageUp"), VQ_TEXT("PageUp keyboard key")},
    Row{34, VQ_TEXT("PageDown"), VQ_TEXT("PageDown keyboard key")},
    Row{35, VQ_TEXT("End"), VQ_TEXT("End keyboard key")},
    Row{36, VQ_TEXT("Home"), VQ_TEXT("Home keyboard key")},
    Row{37, VQ_TEXT("Left"), VQ_TEXT("Left keyboard key")},
    Row{38, VQ_TEXT("Up"), VQ_TEXT("Up keyboard key")},
    Row{39, VQ_TEXT("Right"), VQ_TEXT("Right keyboard key")},
    Row{40, VQ_TEXT("Down"), VQ_TEXT("Down keyboard key")},
    Row{41, VQ_TEXT("Select"), VQ_TEXT("Select keyboard key (not present on most keyboards)")},
    Row{42, VQ_TEXT("Print"), VQ_TEXT("Print keyboard key")},
    Row{43, VQ_TEXT("Exec")},
    Row{44, VQ_TEXT("SnapShot")},
    Row{45, VQ_TEXT("Insert"), VQ_TEXT("Insert keyboard key")},
    Row{46, VQ_TEXT("Delete"), VQ_TEXT("Delete keyboard key")},
    Row{96, VQ_TEXT("Num0")},
    Row{97, VQ_TEXT("Num1")},
    Row{98, VQ_TEXT("Num2")},
    Row{99, VQ_TEXT("Num3")},
    Row{100, VQ_TEXT("Num4")},
    Row{101, VQ_TEXT("Num5")},
    Row{102, VQ_TEXT("Num6")},
    Row{103, VQ_TEXT("Num7")},
    Row{104, VQ_TEXT("Num8")},
    Row{105, VQ_TEXT("Num9")},
    Row{106, VQ_TEXT("*"), literal},
    Row{107, VQ_TEXT("+"), literal},
    Row{108, VQ_TEXT("|"), literal},
    Row{109, VQ_TEXT("-"), literal},
    Row{110, VQ_TEXT("."), literal},
    Row{111, VQ_TEXT("/"), literal},
    Row{112, VQ_TEXT("F1"), literal},
    Row{113, VQ_TEXT("F2"), literal},
    Row{114, VQ_TEXT("F3"), literal},
    Row{115, VQ_TEXT("F4"), literal},
    Row{116, VQ_TEXT("F5"), literal},
    Row{117, VQ_TEXT("F6"), literal},
    Row{118, VQ_TEXT("F7"), literal},
    Row{119, VQ_TEXT("F8"), literal},
    Row{120, VQ_TEXT("F9"), literal},
    Row{121, VQ_TEXT("F10"), literal},
    Row{122, VQ_TEXT("F11"), literal},
    Row{123, VQ_TEXT("F12"), literal},
    Row{124, VQ_TEXT("F13"), literal},
    Row{125, VQ_TEXT("F14"), literal},
    Row{126, VQ_TEXT("F15"), literal},
    Row{127, VQ_TEXT("F16"), literal},
    Row{128, VQ_TEXT("F17"), literal},
    Row{129, VQ_TEXT("F18"), literal},
    Row{130, VQ_TEXT("F19"), literal},
    Row{131, VQ_TEXT("F20"), literal},
    Row{132, VQ_TEXT("F21"), literal},
    Row{133, VQ_TEXT("F22"), literal},
    Row{134, VQ_TEXT("F23"), literal},
    Row{135, VQ_TEXT("F24"), literal},
    Row{144, VQ_TEXT("Num Lock"), VQ_TEXT("NumLock keyboard key")},
    Row{145, VQ_TEXT("Scroll Lock"), VQ_TEXT("Scroll_key")},
    Row{186, VQ_TEXT(";"), literal},
    Row{187, VQ_TEXT("+"), literal},
    Row{188, VQ_TEXT(","), literal},
    Row{189, VQ_TEXT("-"), literal},
    Row{190, VQ_TEXT("."), literal},
    Row{191, VQ_TEXT("/"), literal},
    Row{192, VQ_TEXT("`"), literal},
    Row{219, VQ_TEXT("["), literal},
    Row{220, VQ_TEXT("\\"), literal},
    Row{221, VQ_TEXT("]"), literal},
    Row{222, VQ_TEXT("'"), literal},
};

constexpr std::size_t last_labelled_key = 222;

constexpr auto labels = [] {
    std::array<Label, last_labelled_key + 1> by_key{};
    for (const Row& row : rows)
        by_key[row.key] = row.label;
    return by_key;
}();

const vq_wchar* wording_of(const Label& label)
{
    if (label.wording == Wording::Literal)
        return label.text;
    return label.comment ? VqAccelTranslation(label.text, label.comment) : VqAccelTranslation(label.text);
}

template <class Text>
void append_key(Text& out, vq_wchar key)
{
    if (key <= last_labelled_key && labels[key].text)
        out.append(wording_of(labels[key]));
    else if (key != 0)
        out.append(View(&key, 1));
}

template <class Text>
void append_modifier(Text& out, const vq_wchar* name)
{
    if (!out.empty())
        out.append(VQ_TEXT("+"));
    out.append(name);
}

template <class Text>
void print(Text& out, vq_uint32 flags, vq_wchar key)
{
    if (flags & vq_accel_ctrl)
        out.append(VqAccelTranslation(VQ_TEXT("Ctrl")));
    if (flags & vq_accel_alt)
        append_modifier(out, VqAccelTranslation(VQ_TEXT("Alt"), VQ_TEXT("keyboard key")));
    if (flags & vq_accel_shift)
        append_modifier(out, VqAccelTranslation(VQ_TEXT("Shift"), VQ_TEXT("keyboard key")));
    if (!out.empty())
        out.append(VQ_TEXT("+"));
    append_key(out, key);
}

// A text in an area that somebody else holds; it is terminated at any time.
class AreaText
{
public:
    AreaText(vq_wchar* area, std::size_t size) : m_area(area), m_room(size - 1) { *m_area = 0; }

    bool empty() const { return m_length == 0; }

    void append(View text)
    {
        const View fitting = text.substr(0, m_room - m_length);
        std::copy(fitting.begin(), fitting.end(), m_area + m_length);
        m_length += fitting.size();
        m_area[m_length] = 0;
    }

private:
    vq_wchar* m_area;
    std::size_t m_room;
    std::size_t m_length = 0;
};

}

void VqPrintAccel(std::basic_string<vq_wchar>& out, vq_uint32 flags, vq_wchar key)
{
    out.clear();
    print(out, flags, key);
}

void VqPrintAccel(vq_wchar* out, std::size_t size, vq_uint32 flags, vq_wchar key)
{
    AreaText text(out, size);
    print(text, flags, key);
}

CVqStringW VqAllAccelTexts(const CVqAccelerators& table, vq_uint32 id, const vq_wchar* separator)
{
    constexpr int most_keys = 256;
    std::basic_string<vq_wchar> all;
    const auto add = [&](View text) {
        if (!all.empty())
            all.append(VqView(separator));
        all.append(text);
        return true;
    };
    VqForEachAccelText(table, id, add, most_keys);
    return CVqStringW(std::move(all));
}
