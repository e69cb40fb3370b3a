#pragma once

#include "system/VqTypes.h"

/// Along which axis a toolbar or control lies. To a toolbar everything but Horizontal is vertical; a control
/// has a size of its own in Vertical alone.
enum class EOrientation : vq_int32
{
    Horizontal = 0,
    Vertical = 1,
};
