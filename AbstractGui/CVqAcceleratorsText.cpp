#include "AbstractGui/CVqAccelerators.h"
#include "AbstractGui/VqAccelFlags.h"
#include "AbstractGui/VqAccelParse.h"
#include "AbstractGui/VqAccelPrint.h"

#include <algorithm>
#include <cstdlib>

namespace {

using View = std::basic_string_view<vq_wchar>;

template <class Value>
void store(Value* target, Value value)
{
    if (target)
        *target = value;
}

// The first `length` units of the whole list, which is what each pass reads, wherever its own item stands.
View head_of_list(View list, std::size_t length)
{
    if (length >= vq_accel_text_area)
        std::abort();
    return list.substr(0, length);
}

// Length of the text in an area, or the area's size when no terminator is in it.
std::size_t length_in_area(const vq_wchar* area)
{
    return static_cast<std::size_t>(std::find(area, area + vq_accel_text_area, vq_wchar(0)) - area);
}

}

int CVqAccelerators::AddAccelKey(vq_uint32 id, const vq_wchar* text, vq_uint64 target)
{
    constexpr int end_of_list = -4;
    const View list = VqView(text);
    std::size_t start = 0;
    for (std::size_t end = 0;; ++end) {
        end = std::min(list.find(VQ_TEXT(','), end), list.size());
        SVqParsedAccel accel;
        if (VqParseAccel(head_of_list(list, end - start), accel)) {
            AddAccelKey(id, accel.flags, accel.key, target);
            start = end;
        }
        if (end == list.size())
            return end_of_list;
    }
}

int CVqAccelerators::GetAccelKey(vq_uint32 id, int& index, vq_wchar* text) const
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    const int result = GetAccelKey(id, index, &flags, &key);
    if (result == 0 && key != vq_accel_no_key)
        PrintAccel(flags, key, text);
    return result;
}

int CVqAccelerators::GetAllAccelKeys(vq_uint32 id, vq_wchar* out, const vq_wchar* separator) const
{
    if (!out)
        return 0;
    const View between = VqView(separator);
    std::size_t length = length_in_area(out);
    VqForEachAccelText(*this, id, [&](View text) {
        const View gap = length == 0 ? View() : between;
        if (length + gap.size() + text.size() >= vq_accel_text_area)
            return false;
        vq_wchar* end = std::copy(gap.begin(), gap.end(), out + length);
        end = std::copy(text.begin(), text.end(), end);
        *end = 0;
        length = static_cast<std::size_t>(end - out);
        return true;
    });
    return 0;
}

bool CVqAccelerators::ParseAccel(const vq_wchar* text, vq_uint32* flags, vq_wchar* key)
{
    SVqParsedAccel accel;
    if (!VqParseAccel(VqView(text), accel))
        return false;
    store(flags, accel.flags);
    store(key, accel.key);
    return true;
}

void CVqAccelerators::PrintAccel(vq_uint32 flags, vq_wchar key, vq_wchar* out)
{
    if (out)
        VqPrintAccel(out, vq_accel_text_area, flags, key);
}

bool CVqAccelerators::parse_special(const vq_wchar* text, vq_wchar* key)
{
    vq_wchar value = 0;
    if (!VqFindKeyName(VqView(text), value))
        return false;
    store(key, value);
    return true;
}
