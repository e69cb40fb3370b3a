#pragma once

#include <cstdint>

using vq_uint8 = std::uint8_t;
using vq_uint16 = std::uint16_t;
using vq_int32 = std::int32_t;
using vq_uint32 = std::uint32_t; ///< Menu identifiers, key flags, status words, colours.
using vq_int64 = std::int64_t;
using vq_uint64 = std::uint64_t; ///< Menu, control and window handles that are passed as plain numbers.

/// A native window. Never defined here and only ever passed by pointer.
struct __vq_hwnd; // NOLINT(bugprone-reserved-identifier): the name is part of the interface.
