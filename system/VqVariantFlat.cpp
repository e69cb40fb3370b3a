#include "system/VqVariantFlat.h"

#include "system/CVqLiteBuilder.h"
#include "system/CVqVariant.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Makes nodes in place, where the public operations would copy them.
struct SVqVariantAccess
{
    using SNode = SVqLiteData::SNode;

    static void fill(CVqVariant& to, const SVqLiteData& data, const SNode& node)
    {
        to.m_strName.Assign(data.name_of(node));
        if (node.m_uiRunType)
            to.m_pRunType = run_type(data.run_type_of(node));
        to.m_eType = node.m_eType;
        if (node.m_eType == EVqVariantType::Text)
            to.m_strText.Assign(data.text_of(node));
        else if (node.m_eType == EVqVariantType::Level)
            to.m_children.reserve(node.m_uiValue);
        else
            to.m_uiBits = node.m_uiValue;
    }

    static std::unique_ptr<const CVqStringA> run_type(std::string_view name)
    {
        auto type = std::make_unique<CVqStringA>();
        *type = std::string(name).c_str();
        return type;
    }

    static CVqVariant& add_child(CVqVariant& parent)
    {
        parent.m_children.push_back(std::make_unique<CVqVariant>());
        return *parent.m_children.back();
    }

    static vq_uint32 bits_of(const CVqVariant& node) { return node.m_uiBits; }
    static std::basic_string_view<vq_wchar> text_of(const CVqVariant& node) { return node.m_strText.View(); }
};

namespace {

/// Opens a level, or adds a scalar.
void add(CVqLiteBuilder& builder, const CVqVariant& node)
{
    const vq_uint32 name = builder.name_number(node.GetName().View());
    vq_uint16 run_type = 0;
    builder.run_type_number(node.GetRunType().View(), run_type);
    if (node.GetType() == EVqVariantType::Level)
        builder.begin_level(name, run_type);
    else if (node.GetType() == EVqVariantType::Text)
        builder.add_text(SVqVariantAccess::text_of(node), name, run_type);
    else
        builder.add_bits(node.GetType(), SVqVariantAccess::bits_of(node), name, run_type);
}

}

SVqLiteData flatten(const CVqVariant& tree)
{
    CVqLiteBuilder builder;
    std::vector<std::pair<const CVqVariant*, int>> open; // levels and the child that comes next
    add(builder, tree);
    if (tree.GetType() == EVqVariantType::Level)
        open.emplace_back(&tree, 0);
    while (!open.empty()) {
        auto& [level, next] = open.back();
        const CVqVariant* child = level->IndexPtr(next++);
        if (!child) {
            builder.end_level();
            open.pop_back();
            continue;
        }
        add(builder, *child);
        if (child->GetType() == EVqVariantType::Level)
            open.emplace_back(child, 0);
    }
    SVqLiteData data = builder.take();
    data.m_uiRoot = 1;
    return data;
}

CVqVariant unflatten(const SVqLiteData& data)
{
    CVqVariant tree;
    std::vector<std::pair<CVqVariant*, vq_uint32>> open; // levels and their ends
    const vq_uint32 end = data.behind(data.m_uiRoot);
    for (vq_uint32 index = data.m_uiRoot; index < end; ++index) {
        while (!open.empty() && open.back().second == index)
            open.pop_back();
        CVqVariant& node = open.empty() ? tree : SVqVariantAccess::add_child(*open.back().first);
        SVqVariantAccess::fill(node, data, data.m_nodes[index]);
        if (node.GetType() == EVqVariantType::Level)
            open.emplace_back(&node, data.m_nodes[index].m_uiExtra);
    }
    return tree;
}
