#include "system/CVqLiteBuilder.h"

#include <QHashSeed>

#include <algorithm>
#include <utility>

CVqLiteBuilder::CVqLiteBuilder(ELists lists) : m_eLists(lists)
{
    m_data.m_uiSeed = QHashSeed::globalSeed();
    m_data.m_slots.resize(32);
    m_data.m_names.emplace_back();
    m_lastLevel.push_back(0);
    m_next.push_back(SVqLiteData::empty_name);
    m_data.m_nodes.emplace_back().m_eType = EVqVariantType::Level;
    m_open.push_back(0);
}

// Records of a list have the same names in the same order, so the name that followed last time comes first.
vq_uint32 CVqLiteBuilder::name_number(std::basic_string_view<vq_wchar> name)
{
    if (name.empty())
        return SVqLiteData::empty_name;
    const vq_uint32 likely = m_next[m_uiLastName];
    if (m_data.name_of(likely) == name)
        return m_uiLastName = likely;
    const vq_uint32 number = look_up(name);
    if (number != SVqLiteData::no_name)
        m_uiLastName = m_next[m_uiLastName] = number;
    return number;
}

vq_uint32 CVqLiteBuilder::look_up(std::basic_string_view<vq_wchar> name)
{
    const std::size_t hash = m_data.hash(name);
    vq_uint32& slot = m_data.m_slots[m_data.slot_of(name, hash)];
    if (slot)
        return slot - 1;
    if (!fits(name.size()))
        return SVqLiteData::no_name;
    const auto number = static_cast<vq_uint32>(m_data.m_names.size());
    slot = number + 1;
    m_data.m_uiBeginnings
        |= SVqLiteData::beginning_of(std::basic_string<vq_wchar>(name.substr(0, 2)).c_str());
    m_data.m_names.push_back(
        {static_cast<vq_uint32>(m_data.m_text.size()), static_cast<vq_uint32>(name.size()), hash});
    m_data.m_text += name;
    m_lastLevel.push_back(0);
    m_next.push_back(SVqLiteData::empty_name);
    grow_slots();
    return number;
}

int CVqLiteBuilder::run_type_number(std::string_view name, vq_uint16& number)
{
    number = 0;
    if (name.empty())
        return 0;
    auto& names = m_data.m_runTypes;
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end() && names.size() == 0xFFFF)
        return -3;
    number = static_cast<vq_uint16>(found - names.begin() + 1);
    if (found == names.end())
        names.emplace_back(name);
    return 0;
}

int CVqLiteBuilder::add_bits(EVqVariantType type, vq_uint32 bits, vq_uint32 name, vq_uint16 run_type)
{
    if (name == SVqLiteData::no_name || !fits(0))
        return -3;
    add_node(type, name, run_type).m_uiValue = bits;
    return 0;
}

int CVqLiteBuilder::add_text(std::basic_string_view<vq_wchar> text, vq_uint32 name, vq_uint16 run_type)
{
    if (name == SVqLiteData::no_name || !fits(text.size()))
        return -3;
    SVqLiteData::SNode& node = add_node(EVqVariantType::Text, name, run_type);
    node.m_uiValue = static_cast<vq_uint32>(m_data.m_text.size());
    node.m_uiExtra = static_cast<vq_uint32>(text.size());
    m_data.m_text += text;
    return 0;
}

int CVqLiteBuilder::begin_level(vq_uint32 name, vq_uint16 run_type)
{
    if (name == SVqLiteData::no_name || !fits(0))
        return -3;
    const auto index = static_cast<vq_uint32>(m_data.m_nodes.size());
    add_node(EVqVariantType::Level, name, run_type);
    m_open.push_back(index);
    return 0;
}

bool CVqLiteBuilder::end_level()
{
    if (m_open.size() < 2)
        return false;
    finish_level();
    m_open.pop_back();
    return true;
}

SVqLiteData CVqLiteBuilder::take()
{
    while (end_level()) { }
    finish_level();
    return std::exchange(*this, CVqLiteBuilder(m_eLists)).m_data;
}

bool CVqLiteBuilder::fits(std::size_t units) const
{
    constexpr std::size_t limit = 0xFFFFFFF0;
    return m_data.m_nodes.size() < limit && units < limit && m_data.m_text.size() + units < limit;
}

SVqLiteData::SNode& CVqLiteBuilder::add_node(EVqVariantType type, vq_uint32 name, vq_uint16 run_type)
{
    SVqLiteData::SNode& level = open_level();
    ++level.m_uiValue;
    note_name(level, name);
    SVqLiteData::SNode& node = m_data.m_nodes.emplace_back();
    node.m_uiName = name;
    node.m_eType = type;
    node.m_uiRunType = run_type;
    return node;
}

/// A name that a later level got last may have stood in this one before: then it counts as repeated, too.
void CVqLiteBuilder::note_name(SVqLiteData::SNode& level, vq_uint32 name)
{
    const vq_uint32 mark = m_open.back() + 1;
    level.m_bNamed |= name != SVqLiteData::empty_name;
    level.m_bRepeats |= m_lastLevel[name] >= mark;
    m_lastLevel[name] = mark;
}

void CVqLiteBuilder::grow_slots()
{
    if (m_data.m_names.size() * 2 < m_data.m_slots.size())
        return;
    m_data.m_slots.assign(m_data.m_slots.size() * 2, 0);
    const std::size_t mask = m_data.m_slots.size() - 1;
    for (vq_uint32 number = 1; number < m_data.m_names.size(); ++number) {
        std::size_t slot = m_data.m_names[number].m_uiHash & mask;
        while (m_data.m_slots[slot])
            slot = (slot + 1) & mask;
        m_data.m_slots[slot] = number + 1;
    }
}

void CVqLiteBuilder::finish_level()
{
    SVqLiteData::SNode& level = open_level();
    level.m_uiExtra = static_cast<vq_uint32>(m_data.m_nodes.size());
    if (m_eLists == ELists::Find && level.m_uiValue > 0 && !level.m_bNamed)
        run_type_number(SVqLiteData::list_type, level.m_uiRunType);
}
