#pragma once

#include "AbstractGui/VqAccelFlags.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

/// One key of one command, as CVqAccelerators keeps it.
struct SVqAccelRecord
{
    vq_uint32 id = 0;     ///< Command that the key fires; many records may hold the same.
    vq_uint64 target = 0; ///< Opaque value of the caller; 0 from every menu.
    vq_wchar key = 0;     ///< Virtual-key value, or vq_accel_no_key.
    vq_uint32 flags = 0;  ///< Bits of VqAccelFlags.h.
    bool enabled = true;  ///< Kept for readers of the table; translation does not look at it.
};
