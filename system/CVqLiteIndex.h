#pragma once

#include "system/SVqLiteData.h"

#include <utility>
#include <vector>

/// Where each name of a level stands first: for levels of many entries that are asked for out of order. Not
/// installed.
class CVqLiteIndex
{
public:
    static constexpr vq_uint32 no_entry = 0xFFFFFFFF;

    CVqLiteIndex(const SVqLiteData& data, vq_uint32 level);

    /// Index of the first entry of that name, or no_entry.
    vq_uint32 Find(vq_uint32 name) const;

private:
    std::vector<std::pair<vq_uint32, vq_uint32>> m_entries; // name and index, sorted
};
