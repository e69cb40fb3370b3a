#pragma once

#include "arbor_system_export.h"
#include "system/VqTypes.h"

/// The low 32 bits of `number` without its fraction, as scripts turn numbers into 32-bit integers: what a
/// conversion to `vq_int32` or `vq_uint32` gives within their range goes on beyond it, modulo 2^32. 0 for an
/// infinite number and for what is no number. Any thread.
ARBOR_SYSTEM_EXPORT vq_uint32 VqLowBits(double number);
