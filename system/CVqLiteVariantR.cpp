#include "system/CVqLiteVariantR.h"

#include "system/SVqLiteAccess.h"
#include "system/SVqLiteData.h"
#include "system/VqScalar.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr vq_uint32 nowhere = 0xFFFFFFFF;

SVqScalar scalar_of(const SVqLiteData& data, const SVqLiteData::SNode& node)
{
    const bool text = node.m_eType == EVqVariantType::Text;
    return {node.m_eType, text ? 0 : node.m_uiValue,
            text ? data.text_of(node) : std::basic_string_view<vq_wchar>()};
}

}

CVqLiteVariantR::CVqLiteVariantR() = default;
CVqLiteVariantR::CVqLiteVariantR(const CVqLiteVariantR& other) = default;
CVqLiteVariantR::CVqLiteVariantR(CVqLiteVariantR&& other) noexcept = default;
CVqLiteVariantR::~CVqLiteVariantR() = default;
CVqLiteVariantR& CVqLiteVariantR::operator=(const CVqLiteVariantR& other) = default;
CVqLiteVariantR& CVqLiteVariantR::operator=(CVqLiteVariantR&& other) noexcept = default;

bool CVqLiteVariantR::IsNextValue() const
{
    if (m_places.empty())
        return false;
    const SPlace& place = m_places.back();
    return place.m_uiCursor < m_pData->m_nodes[place.m_uiLevel].m_uiExtra;
}

int CVqLiteVariantR::NextValue()
{
    if (!IsNextValue())
        return -9;
    m_places.back().m_uiCursor = m_pData->behind(m_places.back().m_uiCursor);
    return 0;
}

int CVqLiteVariantR::LevelBegin(const vq_wchar* name, int* count)
{
    return enter(find(name), count);
}

int CVqLiteVariantR::CurrentLevelBegin(int* count)
{
    return enter(IsNextValue() ? m_places.back().m_uiCursor : nowhere, count);
}

int CVqLiteVariantR::LevelEnd()
{
    if (m_places.size() < 2)
        return -9;
    m_places.pop_back();
    return 0;
}

int CVqLiteVariantR::GetCurrentName(vq_wchar* buffer, int size) const
{
    if (!buffer || size <= 0)
        return -9;
    buffer[0] = 0;
    if (!IsNextValue())
        return -9;
    const auto name = m_pData->name_of(m_pData->m_nodes[m_places.back().m_uiCursor]);
    const std::size_t copied = name.copy(buffer, static_cast<std::size_t>(size) - 1);
    buffer[copied] = 0;
    return 0;
}

bool CVqLiteVariantR::IsValueSet(const vq_wchar* name) const
{
    const vq_uint32 index = find(name);
    return index != nowhere && m_pData->m_nodes[index].m_eType != EVqVariantType::Empty;
}

int CVqLiteVariantR::Get(const vq_wchar* name, int default_value) const
{
    const vq_uint32 index = find(name);
    if (index == nowhere)
        return default_value;
    const auto bits = scalar_to_bits(scalar_of(*m_pData, m_pData->m_nodes[index]));
    return static_cast<int>(bits.value_or(static_cast<vq_uint32>(default_value)));
}

bool CVqLiteVariantR::Get(const vq_wchar* name, bool default_value) const
{
    return Get(name, default_value ? 1 : 0) != 0;
}

CVqStringW& CVqLiteVariantR::GetCVqStringW(CVqStringW& out, const vq_wchar* name,
                                           const vq_wchar* default_value) const
{
    const vq_uint32 index = find(name);
    if (index == nowhere)
        return out = default_value;
    const SVqScalar scalar = scalar_of(*m_pData, m_pData->m_nodes[index]);
    if (scalar.m_eType == EVqVariantType::Text)
        return out.Assign(scalar.m_text);
    std::optional<CVqStringW> text = scalar_to_text(scalar);
    return text ? out = *std::move(text) : out = default_value;
}

void CVqLiteVariantR::start(std::shared_ptr<const SVqLiteData> data)
{
    m_pData = std::move(data);
    const vq_uint32 root = m_pData->m_uiRoot;
    m_places.assign(1, {root, root + 1, root + 1});
}

/// Starts where the last look-up succeeded and goes once around. Where a name may stand more than once it
/// starts at the front, so that the first is found.
vq_uint32 CVqLiteVariantR::find(const vq_wchar* name) const
{
    if (m_places.empty())
        return nowhere;
    const vq_uint32 number = m_pData->find_name(VqView(name));
    if (number == SVqLiteData::no_name)
        return nowhere;
    SPlace& place = m_places.back();
    const SVqLiteData::SNode& level = m_pData->m_nodes[place.m_uiLevel];
    vq_uint32 index = level.m_bRepeats ? place.m_uiLevel + 1 : place.m_uiHit;
    for (vq_uint32 left = level.m_uiValue; left > 0; --left, index = m_pData->behind(index)) {
        if (index == level.m_uiExtra)
            index = place.m_uiLevel + 1;
        if (m_pData->m_nodes[index].m_uiName == number)
            return place.m_uiHit = index;
    }
    return nowhere;
}

int CVqLiteVariantR::enter(vq_uint32 index, int* count)
{
    const bool found = index != nowhere && m_pData->m_nodes[index].m_eType == EVqVariantType::Level;
    if (count)
        *count = found ? static_cast<int>(m_pData->m_nodes[index].m_uiValue) : 0;
    if (!found)
        return -13;
    m_places.push_back({index, index + 1, index + 1});
    return 0;
}

void SVqLiteAccess::start(CVqLiteVariantR& reader, SVqLiteData&& data)
{
    reader.start(std::make_shared<const SVqLiteData>(std::move(data)));
}

const SVqLiteData* SVqLiteAccess::data_of(const CVqLiteVariantR& reader)
{
    return reader.m_pData.get();
}
