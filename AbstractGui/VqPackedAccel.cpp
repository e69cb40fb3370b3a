#include "AbstractGui/VqPackedAccel.h"

#include "AbstractGui/CVqAccelerators.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>

namespace {

constexpr std::size_t most_digits = 10; // of an int
constexpr std::basic_string_view<vq_wchar> name_of_keys = VQ_TEXT("AccelKey");

}

vq_int32 VqPackAccel(vq_uint32 flags, vq_wchar key)
{
    return static_cast<vq_int32>(static_cast<vq_uint32>(key) << 16 | (flags & 0xFFFF));
}

SVqUnpackedAccel VqUnpackAccel(vq_int32 packed)
{
    const auto flags = static_cast<std::int16_t>(packed);
    return {static_cast<vq_uint32>(flags), static_cast<vq_wchar>(packed >> 16)};
}

bool VqAddPackedAccel(CVqAccelerators& table, vq_uint32 id, vq_int32 packed)
{
    const SVqUnpackedAccel accel = VqUnpackAccel(packed);
    int index = 0;
    vq_uint32 holder = 0;
    if (table.FindId(accel.flags, accel.key, index, &holder) == 0 && holder == id)
        return false;
    table.AddAccelKey(id, accel.flags, accel.key, 0);
    return true;
}

VqPackedAccelName::VqPackedAccelName(int number)
{
    char digits[16];
    const char* end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    const auto last = std::copy(std::cbegin(digits), end,
                                std::copy(name_of_keys.begin(), name_of_keys.end(), m_units.begin()));
    *last = 0;
}

int VqPackedAccelNumber(std::basic_string_view<vq_wchar> name)
{
    if (!VqIsPackedAccelName(name))
        return -1;
    int number = 0;
    name.remove_prefix(name_of_keys.size());
    std::string digits;
    for (const vq_wchar unit : name.substr(0, most_digits + 1))
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    const char* end = digits.data() + digits.size();
    const bool is_number = std::from_chars(digits.data(), end, number) == std::from_chars_result{end, {}};
    const bool is_written_so = digits == "0" || (digits[0] >= '1' && digits[0] <= '9');
    return is_number && is_written_so ? number : -1;
}

bool VqIsPackedAccelName(std::basic_string_view<vq_wchar> name)
{
    return name.starts_with(name_of_keys);
}
