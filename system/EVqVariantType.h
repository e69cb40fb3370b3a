#pragma once

#include "system/VqTypes.h"

/// What a node of a configuration tree holds.
enum class EVqVariantType : vq_uint8
{
    Empty, ///< Nothing.
    Bool,
    Int,  ///< 32 bits, signed.
    Uint, ///< 32 bits.
    Text,
    Level, ///< Children in order, named or not; there may be none.
};
