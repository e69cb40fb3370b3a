#pragma once

#include "system/VqTypes.h"

#include <cstdint>

class QQuickItem;

/// The item that the handle of a control's or a toolbar's parent is the address of; null for 0.
inline QQuickItem* VqItemOf(vq_uint64 handle)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is the address of an item.
    return reinterpret_cast<QQuickItem*>(static_cast<std::uintptr_t>(handle));
}
