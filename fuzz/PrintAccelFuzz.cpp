#include "AbstractGui/CVqAccelerators.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>

// Prints any keys, one by one and joined. The first two bytes are the length of a text that the area holds
// already; then each key is a byte of flags and two of its value.

namespace {

using Text = std::basic_string<vq_wchar>;

constexpr std::size_t area_size = 512;
constexpr vq_uint32 id = 1;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

Text printed(vq_uint32 flags, vq_wchar key)
{
    const auto area = std::make_unique<vq_wchar[]>(area_size);
    CVqAccelerators::PrintAccel(flags, key, area.get());
    return area.get();
}

void add_keys(CVqAccelerators& table, const unsigned char* data, std::size_t size)
{
    for (; size >= 3; data += 3, size -= 3)
        table.AddAccelKey(id, data[0], static_cast<vq_wchar>(data[1] | data[2] << 8), 0);
}

// What an area without a limit would hold behind `text`.
Text joined(const CVqAccelerators& table, Text text)
{
    Text last;
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    for (vq_uint32 index = 0; table.GetAccelKeyByIndex(index, &flags, &key) == 0; ++index) {
        const Text next = key == 0xFFFF ? Text() : printed(flags, key);
        if (next == last)
            continue;
        text += (text.empty() ? Text() : VQ_TEXT(", ")) + next;
        last = next;
    }
    return text;
}

void check_joined(const CVqAccelerators& table, std::size_t length_before)
{
    const Text before(std::min(length_before, area_size - 1), VQ_TEXT('x'));
    const auto area = std::make_unique<vq_wchar[]>(area_size);
    before.copy(area.get(), before.size());

    require(table.GetAllAccelKeys(id, area.get(), VQ_TEXT(", ")) == 0);

    require(std::find(area.get(), area.get() + area_size, vq_wchar(0)) != area.get() + area_size);
    const Text whole = joined(table, before);
    const Text held = area.get();
    require(whole.starts_with(held) && (whole.size() >= area_size || held == whole));
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 2)
        return 0;
    CVqAccelerators table;
    add_keys(table, data + 2, size - 2);
    check_joined(table, static_cast<std::size_t>(data[0] | data[1] << 8) % (area_size + 16));
    return 0;
}
