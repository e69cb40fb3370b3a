#include "system/CVqLiteIndex.h"

#include <algorithm>

CVqLiteIndex::CVqLiteIndex(const SVqLiteData& data, vq_uint32 level)
{
    const SVqLiteData::SNode& node = data.m_nodes[level];
    m_entries.reserve(node.m_uiValue);
    for (vq_uint32 index = level + 1; index != node.m_uiExtra; index = data.behind(index))
        m_entries.emplace_back(data.m_nodes[index].m_uiName, index);
    std::sort(m_entries.begin(), m_entries.end());
}

vq_uint32 CVqLiteIndex::Find(vq_uint32 name) const
{
    const auto first = std::lower_bound(m_entries.begin(), m_entries.end(), std::pair(name, vq_uint32(0)));
    return first != m_entries.end() && first->first == name ? first->second : no_entry;
}
