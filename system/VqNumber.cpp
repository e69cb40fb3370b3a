#include "system/VqNumber.h"

#include <cmath>

vq_uint32 VqLowBits(double number)
{
    const double rest = std::fmod(number, 0x1p32);
    return std::isnan(rest) ? 0 : static_cast<vq_uint32>(static_cast<vq_int64>(rest));
}
