#pragma once

#include "system/SVqLiteData.h"

/// Fills an SVqLiteData from front to back. Not installed.
///
/// Operations give 0, or -3 when 32 bits no longer number the nodes or texts; then nothing is stored.
class CVqLiteBuilder
{
public:
    enum class ELists
    {
        AsTold,
        Find, ///< A level that holds entries, and none with a name, gets the run type of a list when it ends.
    };

    explicit CVqLiteBuilder(ELists lists = ELists::AsTold);

    /// The number of a name; the same for equal names, counted in the order of first appearance.
    vq_uint32 name_number(std::basic_string_view<vq_wchar> name);

    /// 0 for the empty name, else its number; -3 after 65,535 names.
    int run_type_number(std::string_view name, vq_uint16& number);

    int add_bits(EVqVariantType type, vq_uint32 bits, vq_uint32 name, vq_uint16 run_type = 0);
    int add_text(std::basic_string_view<vq_wchar> text, vq_uint32 name, vq_uint16 run_type = 0);
    int begin_level(vq_uint32 name, vq_uint16 run_type = 0);

    /// False when only the outermost level is open.
    bool end_level();

    /// Ends all levels and hands over what was built; the builder starts anew.
    SVqLiteData take();

private:
    vq_uint32 look_up(std::basic_string_view<vq_wchar> name);
    SVqLiteData::SNode& open_level() { return m_data.m_nodes[m_open.back()]; }
    bool fits(std::size_t units) const;
    SVqLiteData::SNode& add_node(EVqVariantType type, vq_uint32 name, vq_uint16 run_type);
    void note_name(SVqLiteData::SNode& level, vq_uint32 name);
    void grow_slots();
    void finish_level();

    ELists m_eLists;
    SVqLiteData m_data;
    std::vector<vq_uint32> m_open;      // indices of the levels that are open, outermost first
    std::vector<vq_uint32> m_lastLevel; // for each name: index + 1 of the level that got it last
    std::vector<vq_uint32> m_next;      // for each name: the one that was asked for behind it
    vq_uint32 m_uiLastName = SVqLiteData::empty_name;
};
