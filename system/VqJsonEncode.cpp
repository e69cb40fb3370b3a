#include "system/SVqLiteData.h"
#include "system/VqJsonCodec.h"
#include "system/VqJsonWords.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using SNode = SVqLiteData::SNode;

constexpr std::size_t max_indent = 40; // levels deeper than that are not moved further to the right

QByteArray quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    QByteArray result = array.sliced(1, array.size() - 2);
    return result.replace("\xEF\xBB\xBF", "\\ufeff"); // a reader may take it for a byte order mark
}

class CJsonEncoder
{
public:
    CJsonEncoder(const SVqLiteData& data, QByteArray& bytes) : m_data(data), m_bytes(bytes) { }

    EVqStorageResult run()
    {
        const vq_uint32 end = m_data.behind(m_data.m_uiRoot);
        m_bytes += '[';
        for (vq_uint32 index = m_data.m_uiRoot; index < end; ++index) {
            end_levels(index);
            begin_line(index);
            write(m_data.m_nodes[index]);
            if (m_ends.size() > json_max_levels)
                return EVqStorageResult::TooDeep;
        }
        end_levels(end);
        m_bytes += "]\n";
        return EVqStorageResult::Ok;
    }

private:
    void indent() { m_bytes.append(4 * static_cast<qsizetype>(std::min(m_ends.size(), max_indent)), ' '); }

    void begin_line(vq_uint32 index)
    {
        if (index == m_data.m_uiRoot)
            return;
        m_bytes += m_bFirst ? "\n" : ",\n";
        m_bFirst = false;
        indent();
    }

    void end_levels(vq_uint32 index)
    {
        while (!m_ends.empty() && m_ends.back() == index) {
            m_ends.pop_back();
            if (!m_bFirst) {
                m_bytes += '\n';
                indent();
            }
            m_bytes += ']';
            m_bFirst = false;
        }
    }

    void write(const SNode& node)
    {
        QString type = QLatin1StringView(json_type_words[static_cast<std::size_t>(node.m_eType)]);
        const std::string_view run_type = m_data.run_type_of(node);
        // Converted behind the blank, so that no mark at its start is taken for a byte order mark.
        if (!run_type.empty())
            type += QString::fromUtf8(" " + std::string(run_type));
        m_bytes += quoted(to_qview(m_data.name_of(node)).toString()) + ", " + quoted(type) + ", ";
        write_value(node);
    }

    void write_value(const SNode& node)
    {
        switch (node.m_eType) {
        case EVqVariantType::Bool:
            m_bytes += node.m_uiValue ? "true" : "false";
            break;
        case EVqVariantType::Int:
            m_bytes += QByteArray::number(static_cast<vq_int32>(node.m_uiValue));
            break;
        case EVqVariantType::Uint:
            m_bytes += QByteArray::number(node.m_uiValue);
            break;
        case EVqVariantType::Text:
            m_bytes += quoted(to_qview(m_data.text_of(node)).toString());
            break;
        case EVqVariantType::Level:
            m_bytes += '[';
            m_ends.push_back(node.m_uiExtra);
            m_bFirst = true;
            break;
        case EVqVariantType::Empty:
            m_bytes += "null";
        }
    }

    const SVqLiteData& m_data;
    QByteArray& m_bytes;
    std::vector<vq_uint32> m_ends; // of the levels that are open
    bool m_bFirst = false;         // nothing stands in the level that was opened last
};

}

EVqStorageResult encode_json(const SVqLiteData& data, QByteArray& bytes)
{
    return CJsonEncoder(data, bytes).run();
}
