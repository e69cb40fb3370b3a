#pragma once

#include "AbstractGui/CVqAccelerators.h"

#include <array>
#include <ostream>
#include <string>

/// What ParseAccel() gave; flags and key hold `untouched` when nothing was stored.
struct Parsed
{
    static constexpr int untouched = 0x5555;

    bool read = false;
    int flags = untouched;
    int key = untouched;

    friend bool operator==(const Parsed&, const Parsed&) = default;

    friend std::ostream& operator<<(std::ostream& out, const Parsed& parsed)
    {
        return out << (parsed.read ? "read" : "not read") << ", flags " << parsed.flags << ", key "
                   << parsed.key;
    }
};

inline Parsed parsed(const vq_wchar* text)
{
    vq_uint32 flags = Parsed::untouched;
    vq_wchar key = Parsed::untouched;
    const bool read = CVqAccelerators::ParseAccel(text, &flags, &key);
    return {read, static_cast<int>(flags), key};
}

inline Parsed read_as(int flags, int key)
{
    return {true, flags, key};
}

inline Parsed not_read()
{
    return {};
}

inline std::basic_string<vq_wchar> printed(vq_uint32 flags, vq_wchar key)
{
    std::array<vq_wchar, 512> area;
    area.fill(VQ_TEXT('#'));
    CVqAccelerators::PrintAccel(flags, key, area.data());
    return area.data();
}
