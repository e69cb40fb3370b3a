#include "AbstractGui/VqPackedAccel.h"

#include "AbstractGui/CVqAccelerators.h"

namespace {

constexpr vq_wchar name_of_keys[] = VQ_TEXT("AccelKey");

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

CVqStringW VqPackedAccelName(int number)
{
    return CVqStringW(name_of_keys).AddInt(number);
}

bool VqIsPackedAccelName(const CVqStringW& name)
{
    return name.View().starts_with(name_of_keys);
}
