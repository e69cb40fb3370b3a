#pragma once

#include <cstdint>
#include <cstring>

/// The slot of a virtual operation in its class's table, counted from 0. A virtual destructor takes two.
///
/// Back ends that were built against an older header rely on the order. Reads the layout that the Itanium C++
/// ABI gives to a pointer to a virtual member function on x86: one more than the offset in the table.
template <typename Operation>
std::size_t VirtualSlot(Operation operation)
{
    std::uintptr_t offset = 0;
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / sizeof(void*);
}
