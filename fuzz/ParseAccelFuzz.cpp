#include "AbstractGui/CVqAccelerators.h"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>

// Reads any text as a key and as a list of keys. Seeds are plain text: a byte is a unit, and 0xFF stands in
// front of two bytes that make one.

namespace {

using Text = std::basic_string<vq_wchar>;

Text text_of(const unsigned char* data, std::size_t size)
{
    Text text;
    for (std::size_t at = 0; at < size; ++at) {
        const bool is_pair = data[at] == 0xFF && at + 2 < size;
        text += static_cast<vq_wchar>(is_pair ? data[at + 1] | data[at + 2] << 8 : data[at]);
        at += is_pair ? 2 : 0;
    }
    return text.substr(0, text.find(vq_wchar(0)));
}

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool is_key(vq_wchar key)
{
    return (key >= 8 && key <= 135) || key == 219 || key == 221;
}

void check_one_key(const vq_wchar* text, std::size_t length)
{
    vq_uint32 flags = 4711;
    vq_wchar key = 4711;
    const bool read = CVqAccelerators::ParseAccel(text, &flags, &key);
    require(read == CVqAccelerators::ParseAccel(text, nullptr, nullptr));
    require(!read || length < 512);
    require(read ? (flags & ~7u) == 16 && is_key(key) : flags == 4711 && key == 4711);
}

void check_list(const vq_wchar* text)
{
    CVqAccelerators table;
    require(table.AddAccelKey(1, text, 2) == -4);
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    for (vq_uint32 index = 0; table.GetAccelKeyByIndex(index, &flags, &key) == 0; ++index)
        require((flags & ~7u) == 16 && is_key(key));
}

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const Text text = text_of(data, size);
    // An area that ends right behind the terminator, so that a read over it shows.
    const auto area = std::make_unique<vq_wchar[]>(text.size() + 1);
    text.copy(area.get(), text.size());
    check_one_key(area.get(), text.size());
    // A longer list may hold a stretch that ends the process.
    if (text.size() < 512)
        check_list(area.get());
    return 0;
}
