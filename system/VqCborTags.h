#pragma once

#include "system/EVqVariantType.h"

#include <QCborStreamWriter>

#include <cstddef>

// What both directions of the CBOR form share. Not installed.

constexpr std::size_t cbor_max_levels = 4000;
constexpr auto cbor_object_tag = static_cast<QCborTag>(27); // registered: type name and content
constexpr auto cbor_unsigned_tag = static_cast<QCborTag>(88);
constexpr auto cbor_named_tag = static_cast<QCborTag>(89);

/// Keys are numbered by name and by whether an integer behind them is unsigned.
constexpr std::size_t cbor_key_kind(vq_uint32 name, EVqVariantType type)
{
    return std::size_t(name) * 2 + (type == EVqVariantType::Uint ? 1 : 0);
}
