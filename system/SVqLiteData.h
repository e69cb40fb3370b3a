#pragma once

#include "system/EVqVariantType.h"
#include "system/VqQtText.h"
#include "system/VqTypes.h"

#include <QHashFunctions>

#include <string>
#include <string_view>
#include <vector>

/// What a CVqLiteVariantW wrote and a CVqLiteVariantR walks: all nodes of all levels in the order in which
/// they were written, in one array, with their texts in another. Not installed.
struct SVqLiteData
{
    static constexpr vq_uint32 no_name = 0xFFFFFFFF;
    static constexpr vq_uint32 empty_name = 0; ///< Number of the empty name in every data.
    static constexpr std::string_view list_type = "CVqListVariant";

    struct SNode
    {
        vq_uint32 m_uiName = empty_name;
        vq_uint32 m_uiValue = 0; ///< Bits; of a text its offset; of a level its number of entries.
        vq_uint32 m_uiExtra = 0; ///< Of a text its length; of a level the index behind its last entry.
        EVqVariantType m_eType = EVqVariantType::Empty;
        bool m_bNamed : 1 = false;   ///< Level: an entry has a name.
        bool m_bRepeats : 1 = false; ///< Level: a name may stand there more than once.
        vq_uint16 m_uiRunType = 0;   ///< 0: none, else index + 1 into m_runTypes.
    };

    struct SName
    {
        vq_uint32 m_uiOffset = 0;
        vq_uint32 m_uiLength = 0;
        std::size_t m_uiHash = 0;
    };

    std::vector<SNode> m_nodes; ///< The first is the level that all others stand in.
    std::vector<SName> m_names;
    std::vector<vq_uint32> m_slots; ///< Open hash table: 0 or number of a name + 1. Size a power of two.
    std::vector<std::string> m_runTypes;
    std::basic_string<vq_wchar> m_text; ///< Names and texts, without terminators.
    vq_uint32 m_uiRoot = 0;             ///< The node that is the data: the outermost level, or its one entry.
    std::size_t m_uiSeed = 0;           ///< Of the hash: names come from files, too.
    vq_uint64 m_uiBeginnings = 0;       ///< A bit for the first two units of each name; names may share one.

    std::basic_string_view<vq_wchar> text(vq_uint32 offset, vq_uint32 length) const
    {
        return {m_text.data() + offset, length};
    }

    std::basic_string_view<vq_wchar> text_of(const SNode& node) const
    {
        return text(node.m_uiValue, node.m_uiExtra);
    }

    std::basic_string_view<vq_wchar> name_of(vq_uint32 number) const
    {
        return text(m_names[number].m_uiOffset, m_names[number].m_uiLength);
    }

    std::basic_string_view<vq_wchar> name_of(const SNode& node) const { return name_of(node.m_uiName); }

    std::string_view run_type_of(const SNode& node) const
    {
        return node.m_uiRunType ? std::string_view(m_runTypes[node.m_uiRunType - 1u]) : std::string_view();
    }

    /// True for a list whose elements have no names.
    bool is_plain_list(const SNode& node) const { return !node.m_bNamed && run_type_of(node) == list_type; }

    /// Index of the entry behind this one in the same level, or the level's end.
    vq_uint32 behind(vq_uint32 index) const
    {
        const SNode& node = m_nodes[index];
        return node.m_eType == EVqVariantType::Level ? node.m_uiExtra : index + 1;
    }

    std::size_t hash(std::basic_string_view<vq_wchar> name) const { return qHash(to_qview(name), m_uiSeed); }

    /// The slot that holds the name, or the free one where it belongs. There is always a free one.
    std::size_t slot_of(std::basic_string_view<vq_wchar> name, std::size_t hash) const
    {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t slot = hash & mask;
        for (; m_slots[slot]; slot = (slot + 1) & mask) {
            const SName& candidate = m_names[m_slots[slot] - 1];
            if (candidate.m_uiHash == hash && text(candidate.m_uiOffset, candidate.m_uiLength) == name)
                break;
        }
        return slot;
    }

    /// Of a terminated text.
    static vq_uint64 beginning_of(const vq_wchar* name)
    {
        return *name ? vq_uint64(1) << ((name[0] + 3u * name[1]) % 64) : 0;
    }

    /// False for most of the names that stand nowhere. Of a terminated text.
    bool may_have(const vq_wchar* name) const { return *name == 0 || (m_uiBeginnings & beginning_of(name)); }

    vq_uint32 find_name(std::basic_string_view<vq_wchar> name) const
    {
        if (name.empty())
            return empty_name;
        const vq_uint32 found = m_slots[slot_of(name, hash(name))];
        return found ? found - 1 : no_name;
    }
};
