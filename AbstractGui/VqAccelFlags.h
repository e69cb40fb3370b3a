#pragma once

#include "system/VqText.h"
#include "system/VqTypes.h"

/// The modifier flags of a key. Every record that came from a text carries vq_accel_virtual_key, and a
/// pressed key finds only records that do.
constexpr vq_uint32 vq_accel_alt = 1;
constexpr vq_uint32 vq_accel_ctrl = 2;
constexpr vq_uint32 vq_accel_shift = 4;
constexpr vq_uint32 vq_accel_virtual_key = 16;

/// The key of a record without one.
constexpr vq_wchar vq_accel_no_key = 0xFFFF;
