#pragma once

#include "system/VqTypes.h"

/// Along which axis a toolbar or control lies. What is not Horizontal counts as vertical where sizes are
/// reckoned with.
enum class EOrientation : vq_int32
{
    Horizontal = 0,
    Vertical = 1,
};
