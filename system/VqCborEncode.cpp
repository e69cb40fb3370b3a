#include "system/SVqLiteData.h"
#include "system/VqCborCodec.h"
#include "system/VqCborTags.h"

#include <QCborStreamWriter>
#include <QIODevice>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using SNode = SVqLiteData::SNode;
using view_type = std::basic_string_view<vq_wchar>;

/// Takes what the writer hands over piece by piece. A QBuffer takes several times as long for each.
class CByteSink final : public QIODevice
{
public:
    CByteSink() { open(WriteOnly | Unbuffered); }

    const std::string& Bytes() const { return m_bytes; }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char* data, qint64 size) override
    {
        m_bytes.append(data, static_cast<std::size_t>(size));
        return size;
    }

private:
    std::string m_bytes;
};

class CCborEncoder
{
public:
    explicit CCborEncoder(const SVqLiteData& data)
        : m_data(data), m_writer(&m_sink), m_keys(data.m_names.size() * 2)
    { }

    EVqStorageResult run(QByteArray& bytes)
    {
        const vq_uint32 root = m_data.m_uiRoot;
        const bool named = m_data.m_nodes[root].m_uiName != SVqLiteData::empty_name;
        if (named) {
            begin_tagged(cbor_named_tag);
            write_text(m_data.name_of(m_data.m_nodes[root]));
        }
        const EVqStorageResult result = write_nodes(root, m_data.behind(root));
        if (named)
            m_writer.endArray();
        bytes = QByteArray::fromStdString(m_sink.Bytes());
        return result;
    }

private:
    struct SLevel
    {
        vq_uint32 m_uiEnd;
        bool m_bArray;
        bool m_bWrapped;
    };

    EVqStorageResult write_nodes(vq_uint32 from, vq_uint32 end)
    {
        for (vq_uint32 index = from; index < end; ++index) {
            end_levels(index);
            const SNode& node = m_data.m_nodes[index];
            if (!m_levels.empty() && !m_levels.back().m_bArray)
                write_key(node);
            write_value(node);
            if (m_levels.size() > cbor_max_levels)
                return EVqStorageResult::TooDeep;
        }
        end_levels(end);
        return EVqStorageResult::Ok;
    }

    void end_levels(vq_uint32 index)
    {
        for (; !m_levels.empty() && m_levels.back().m_uiEnd == index; m_levels.pop_back()) {
            m_levels.back().m_bArray ? m_writer.endArray() : m_writer.endMap();
            if (m_levels.back().m_bWrapped)
                m_writer.endArray();
        }
    }

    void begin_tagged(QCborTag tag)
    {
        m_writer.append(tag);
        m_writer.startArray(2);
    }

    void write_key(const SNode& node)
    {
        vq_uint32& key = m_keys[cbor_key_kind(node.m_uiName, node.m_eType)];
        m_bKnownKey = key != 0;
        if (m_bKnownKey) {
            m_writer.append(quint64(key - 1));
            return;
        }
        key = ++m_uiKeys;
        write_text(m_data.name_of(node));
    }

    void write_value(const SNode& node)
    {
        const bool array = node.m_eType == EVqVariantType::Level && m_data.is_plain_list(node);
        const bool wrapped = node.m_uiRunType != 0 && !array;
        if (wrapped) {
            begin_tagged(cbor_object_tag);
            const std::string_view type = m_data.run_type_of(node);
            m_writer.appendTextString(type.data(), static_cast<qsizetype>(type.size()));
        }
        if (node.m_eType == EVqVariantType::Level)
            return begin_level(node, array, wrapped);
        write_scalar(node, !m_levels.empty() && !m_levels.back().m_bArray && m_bKnownKey);
        if (wrapped)
            m_writer.endArray();
    }

    void begin_level(const SNode& node, bool array, bool wrapped)
    {
        array ? m_writer.startArray(node.m_uiValue) : m_writer.startMap(node.m_uiValue);
        m_levels.push_back({node.m_uiExtra, array, wrapped});
    }

    void write_scalar(const SNode& node, bool known)
    {
        switch (node.m_eType) {
        case EVqVariantType::Bool:
            m_writer.append(node.m_uiValue != 0);
            break;
        case EVqVariantType::Int:
            m_writer.append(static_cast<vq_int32>(node.m_uiValue));
            break;
        case EVqVariantType::Uint:
            if (!known)
                m_writer.append(cbor_unsigned_tag);
            m_writer.append(node.m_uiValue);
            break;
        case EVqVariantType::Text:
            write_text(m_data.text_of(node));
            break;
        default:
            m_writer.append(nullptr);
        }
    }

    void write_text(view_type text)
    {
        if (std::all_of(text.begin(), text.end(), [](vq_wchar unit) { return unit < 0x80; })) {
            m_ascii.assign(text.begin(), text.end());
            m_writer.appendTextString(m_ascii.data(), static_cast<qsizetype>(m_ascii.size()));
        } else if (to_qview(text).isValidUtf16()) {
            const QByteArray utf8 = to_qview(text).toUtf8();
            m_writer.appendTextString(utf8.constData(), utf8.size());
        } else {
            write_units(text);
        }
    }

    void write_units(view_type text)
    {
        QByteArray units;
        for (const vq_wchar unit : text)
            units.append(static_cast<char>(unit & 0xFF)).append(static_cast<char>(unit >> 8));
        m_writer.appendByteString(units.constData(), units.size());
    }

    const SVqLiteData& m_data;
    CByteSink m_sink;
    QCborStreamWriter m_writer;
    std::vector<vq_uint32> m_keys; // for each pair of name and kind: its number + 1, or 0
    std::vector<SLevel> m_levels;
    std::string m_ascii;
    vq_uint32 m_uiKeys = 0;
    bool m_bKnownKey = false; // the key written last was a number
};

}

EVqStorageResult encode_cbor(const SVqLiteData& data, QByteArray& bytes)
{
    return CCborEncoder(data).run(bytes);
}
