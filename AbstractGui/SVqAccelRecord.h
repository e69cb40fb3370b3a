#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

/// Bits of SVqAccelRecord::flags.
constexpr vq_uint32 vq_accel_alt = 1;
constexpr vq_uint32 vq_accel_ctrl = 2;
constexpr vq_uint32 vq_accel_shift = 4;
constexpr vq_uint32 vq_accel_virtual_key = 16;

/// The key of a record without one.
constexpr vq_wchar vq_accel_no_key = 0xFFFF;

/// One key of one command, as CVqAccelerators keeps it.
struct SVqAccelRecord
{
    vq_uint32 id = 0;     ///< Command that the key fires; many records may hold the same.
    vq_uint64 target = 0; ///< Opaque value of the caller; 0 from every menu.
    vq_wchar key = 0;     ///< Virtual-key value; 0xFFFF means no key.
    vq_uint32 flags = 0;  ///< 1 Alt, 2 Ctrl, 4 Shift, 16 the key is a virtual key.
    bool enabled = true;  ///< Kept for readers of the table; translation does not look at it.
};
