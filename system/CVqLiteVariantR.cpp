#include "system/CVqLiteVariantR.h"

#include "system/CVqLiteIndex.h"
#include "system/SVqLiteAccess.h"
#include "system/SVqLiteData.h"
#include "system/VqScalar.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr vq_uint32 nowhere = CVqLiteIndex::no_entry;

SVqScalar scalar_of(const SVqLiteData& data, const SVqLiteData::SNode& node)
{
    const bool text = node.m_eType == EVqVariantType::Text;
    return {node.m_eType, text ? 0 : node.m_uiValue,
            text ? data.text_of(node) : std::basic_string_view<vq_wchar>()};
}

/// True when the units are those of a terminated text. Units may have a zero among them, which no such text
/// has.
bool is_text(std::basic_string_view<vq_wchar> units, const vq_wchar* text)
{
    for (const vq_wchar unit : units) {
        if (unit == 0 || unit != *text++)
            return false;
    }
    return *text == 0;
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
    return enter(current(), count);
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
    const auto name = CurrentName();
    const std::size_t copied = name.copy(buffer, static_cast<std::size_t>(size) - 1);
    buffer[copied] = 0;
    return 0;
}

std::basic_string_view<vq_wchar> CVqLiteVariantR::CurrentName() const
{
    const vq_uint32 index = current();
    return index == nowhere ? std::basic_string_view<vq_wchar>() : m_pData->name_of(m_pData->m_nodes[index]);
}

bool CVqLiteVariantR::IsCurrentValueSet() const
{
    return is_set_at(current());
}

int CVqLiteVariantR::GetCurrent(int default_value) const
{
    return number_at(current(), default_value);
}

bool CVqLiteVariantR::GetCurrent(bool default_value) const
{
    return number_at(current(), default_value ? 1 : 0) != 0;
}

CVqStringW& CVqLiteVariantR::GetCurrent(CVqStringW& out, const vq_wchar* default_value) const
{
    return text_at(current(), out, default_value);
}

bool CVqLiteVariantR::IsValueSet(const vq_wchar* name) const
{
    return is_set_at(find(name));
}

int CVqLiteVariantR::Get(const vq_wchar* name, int default_value) const
{
    return number_at(find(name), default_value);
}

bool CVqLiteVariantR::Get(const vq_wchar* name, bool default_value) const
{
    return Get(name, default_value ? 1 : 0) != 0;
}

CVqStringW& CVqLiteVariantR::GetCVqStringW(CVqStringW& out, const vq_wchar* name,
                                           const vq_wchar* default_value) const
{
    return text_at(find(name), out, default_value);
}

vq_uint32 CVqLiteVariantR::current() const
{
    return IsNextValue() ? m_places.back().m_uiCursor : nowhere;
}

bool CVqLiteVariantR::is_set_at(vq_uint32 index) const
{
    return index != nowhere && m_pData->m_nodes[index].m_eType != EVqVariantType::Empty;
}

int CVqLiteVariantR::number_at(vq_uint32 index, int default_value) const
{
    if (index == nowhere)
        return default_value;
    const auto bits = scalar_to_bits(scalar_of(*m_pData, m_pData->m_nodes[index]));
    return static_cast<int>(bits.value_or(static_cast<vq_uint32>(default_value)));
}

CVqStringW& CVqLiteVariantR::text_at(vq_uint32 index, CVqStringW& out, const vq_wchar* default_value) const
{
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

// Names are mostly asked for in their written order, so the entry behind the one found last, and that one,
// are compared before anything is hashed.
vq_uint32 CVqLiteVariantR::find(const vq_wchar* name) const
{
    if (m_places.empty())
        return nowhere;
    if (!name)
        name = VQ_TEXT("");
    if (!m_pData->may_have(name))
        return nowhere;
    SPlace& place = m_places.back();
    const SVqLiteData::SNode& level = m_pData->m_nodes[place.m_uiLevel];
    if (!level.m_bRepeats && place.m_uiHit != level.m_uiExtra) {
        const vq_uint32 next = m_pData->behind(place.m_uiHit);
        if (next != level.m_uiExtra && is_text(m_pData->name_of(m_pData->m_nodes[next]), name))
            return place.m_uiHit = next;
        if (is_text(m_pData->name_of(m_pData->m_nodes[place.m_uiHit]), name))
            return place.m_uiHit;
    }
    const vq_uint32 number = m_pData->find_name(name);
    return number == SVqLiteData::no_name ? nowhere : search(place, number);
}

// Walks, until the walks have cost as much as an index of the level.
vq_uint32 CVqLiteVariantR::search(SPlace& place, vq_uint32 name) const
{
    constexpr vq_uint64 always_free = 1024;
    const vq_uint64 free = always_free + 8 * vq_uint64(m_pData->m_nodes[place.m_uiLevel].m_uiValue);
    if (!place.m_pIndex && place.m_uiWalked > free)
        place.m_pIndex = std::make_shared<const CVqLiteIndex>(*m_pData, place.m_uiLevel);
    const vq_uint32 found = place.m_pIndex ? place.m_pIndex->Find(name) : walk(place, name);
    if (found != nowhere)
        place.m_uiHit = found;
    return found;
}

/// Starts where the last look-up succeeded and goes once around. Where a name may stand more than once it
/// starts at the front, so that the first is found.
vq_uint32 CVqLiteVariantR::walk(SPlace& place, vq_uint32 name) const
{
    const SVqLiteData::SNode& level = m_pData->m_nodes[place.m_uiLevel];
    vq_uint32 index = level.m_bRepeats ? place.m_uiLevel + 1 : place.m_uiHit;
    for (vq_uint32 left = level.m_uiValue; left > 0; --left, index = m_pData->behind(index)) {
        if (index == level.m_uiExtra)
            index = place.m_uiLevel + 1;
        ++place.m_uiWalked;
        if (m_pData->m_nodes[index].m_uiName == name)
            return index;
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
