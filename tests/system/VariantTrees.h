#pragma once

#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>
#include <QByteArray>

#include <array>
#include <random>
#include <string>
#include <utility>
#include <vector>

// Trees for the tests of the stored forms, and a way to compare them that does not lean on those.

/// Every node of a tree on a line of its own: depth, name, run type, type and value.
inline std::string described(const CVqVariant& root)
{
    std::string out;
    std::vector<std::pair<const CVqVariant*, int>> pending{{&root, 0}};
    while (!pending.empty()) {
        const auto [node, depth] = pending.back();
        pending.pop_back();
        out += std::to_string(depth) + '|' + node->GetRunType().GetString() + '|'
            + std::to_string(static_cast<int>(node->GetType())) + '|';
        for (const vq_wchar unit : node->GetName().View())
            out += std::to_string(unit) + ',';
        out += '|';
        const CVqStringW value = *node;
        for (const vq_wchar unit : value.View())
            out += std::to_string(unit) + ',';
        out += '\n';
        for (int i = node->GetCount() - 1; i >= 0; --i)
            pending.emplace_back(node->IndexPtr(i), depth + 1);
    }
    return out;
}

/// Makes trees of every kind of node from a seed.
class CRandomTrees
{
public:
    explicit CRandomTrees(unsigned seed) : m_random(seed) { }

    CVqVariant next(unsigned nodes)
    {
        CVqVariant root = scalar();
        root.EnableTypeChange(true);
        std::vector<CVqVariant*> levels{&root};
        for (unsigned i = 0; i < nodes; ++i) {
            CVqVariant& added = levels[pick(levels.size())]->Append(scalar());
            added.EnableTypeChange(true);
            if (pick(3) == 0)
                levels.push_back(&added);
        }
        return root;
    }

private:
    std::size_t pick(std::size_t count) { return m_random() % count; }

    vq_wchar unit()
    {
        constexpr std::array<unsigned, 5> ranges{0x80, 0x800, 0x10000, 0x10000, 0x80};
        return static_cast<vq_wchar>(pick(20) == 0 ? 0xD800 + pick(0x800) : pick(ranges[pick(5)]));
    }

    CVqStringW text(std::size_t most)
    {
        CVqStringW::string_type units;
        for (std::size_t i = pick(most + 1); i > 0; --i)
            units.push_back(unit());
        return CVqStringW(units);
    }

    CVqStringW name()
    {
        constexpr const vq_wchar* usual[] = {VQ_TEXT(""), VQ_TEXT("Id"), VQ_TEXT("Text"), VQ_TEXT("SubMenu")};
        return pick(5) == 0 ? text(6) : CVqStringW(usual[pick(4)]);
    }

    CVqVariant scalar_of(std::size_t kind)
    {
        const auto bits = static_cast<vq_uint32>(m_random()) >> pick(32);
        switch (kind) {
        case 0:
            return CVqVariant(bits % 2 == 0, name());
        case 1:
            return CVqVariant(bits, name());
        case 2:
            return CVqVariant(static_cast<int>(bits), name());
        case 3:
            return CVqVariant(text(pick(50) == 0 ? 3000 : 12), name());
        default:
            return CVqVariant();
        }
    }

    CVqVariant scalar()
    {
        CVqVariant node = scalar_of(pick(5));
        if (pick(6) == 0)
            node.SetRunType(CVqVariantRunType(CVqStringA(VQ_TEXT("CVqListVariant"), 0)));
        else if (pick(20) == 0)
            node.SetRunType(CVqVariantRunType(CVqStringA(u"Art \u65E5", 0)));
        return node;
    }

    std::mt19937 m_random;
};

/// `levels` levels, one in the other.
inline CVqVariant nested(int levels)
{
    CVqVariant root;
    CVqVariant* node = &root;
    for (int i = 1; i < levels; ++i)
        node = &node->Append(CVqVariant());
    node->Append(CVqVariant(1, VQ_TEXT("a")));
    return root;
}

template <typename Source>
QByteArray cbor_of(const Source& source)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    return VQ_WriteCbor(device, source) == EVqStorageResult::Ok ? device.data() : QByteArray("failed");
}

template <typename Source>
QByteArray json_of(const Source& source)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    return VQ_WriteJson(device, source) == EVqStorageResult::Ok ? device.data() : QByteArray("failed");
}

template <typename Target>
EVqStorageResult from_cbor(const QByteArray& bytes, Target& target)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return VQ_ReadCbor(device, target);
}

template <typename Target>
EVqStorageResult from_json(const QByteArray& bytes, Target& target)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return VQ_ReadJson(device, target);
}
