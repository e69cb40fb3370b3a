#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

#include <array>
#include <string_view>

class CVqAccelerators;

// How stored menus hold the keys of an item: as numbers under the names "AccelKey0", "AccelKey1", ...

struct SVqUnpackedAccel
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
};

/// The key in the high half, the low 16 bits of `flags` in the low half.
vq_int32 VqPackAccel(vq_uint32 flags, vq_wchar key);

/// The other way round. The flags are extended by their sign, so that bit 15 comes back as bits 15 to 31.
SVqUnpackedAccel VqUnpackAccel(vq_int32 packed);

/// Gives `id` a stored key, with target 0, and returns true. Returns false when the first record of that
/// combination is of `id` already. One under another identifier hinders nothing: the combination is then
/// there twice, and the older record answers.
bool VqAddPackedAccel(CVqAccelerators& table, vq_uint32 id, vq_int32 packed);

/// The name of a key; `number` counts from 0.
class VqPackedAccelName
{
public:
    explicit VqPackedAccelName(int number);

    operator const vq_wchar*() const { return m_units.data(); }

private:
    std::array<vq_wchar, 24> m_units; // the prefix, up to 11 digits with their sign, the terminator
};

/// The number of a name that VqPackedAccelName makes; of every other one, such as "AccelKey01", -1.
int VqPackedAccelNumber(std::basic_string_view<vq_wchar> name);

/// True for every name that begins as those of keys do, whatever follows.
bool VqIsPackedAccelName(std::basic_string_view<vq_wchar> name);
