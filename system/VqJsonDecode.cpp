#include "system/CVqLiteBuilder.h"
#include "system/VqJsonCodec.h"
#include "system/VqJsonWords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

EVqStorageResult result_of(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::NoError:
        return EVqStorageResult::Ok;
    case QJsonParseError::DeepNesting:
        return EVqStorageResult::TooDeep;
    case QJsonParseError::GarbageAtEnd:
        return EVqStorageResult::TrailingBytes;
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::UnterminatedString:
    case QJsonParseError::TerminationByNumber:
        return EVqStorageResult::CutShort;
    default:
        return EVqStorageResult::BadBytes;
    }
}

class CJsonDecoder
{
public:
    EVqStorageResult run(const QJsonArray& root, SVqLiteData& data)
    {
        if (root.size() != 3)
            return EVqStorageResult::WrongType;
        m_frames.push_back({root, 0});
        while (!m_frames.empty() && m_result == EVqStorageResult::Ok)
            read_next();
        if (m_result != EVqStorageResult::Ok)
            return m_result;
        data = m_builder.take();
        data.m_uiRoot = 1;
        return EVqStorageResult::Ok;
    }

private:
    struct SFrame
    {
        QJsonArray m_entries;
        qsizetype m_next;
    };

    struct SEntry
    {
        vq_uint32 m_uiName = SVqLiteData::empty_name;
        vq_uint16 m_uiRunType = 0;
        EVqVariantType m_eType = EVqVariantType::Empty;
    };

    void fail(EVqStorageResult result) { m_result = result; }

    void require(bool condition)
    {
        if (!condition)
            fail(EVqStorageResult::WrongType);
    }

    void read_next()
    {
        SFrame& frame = m_frames.back();
        if (frame.m_next == frame.m_entries.size()) {
            m_frames.pop_back();
            m_builder.end_level();
            return;
        }
        const QJsonValue name = frame.m_entries.at(frame.m_next);
        const QJsonValue type = frame.m_entries.at(frame.m_next + 1);
        const QJsonValue value = frame.m_entries.at(frame.m_next + 2);
        frame.m_next += 3;
        SEntry entry;
        require(name.isString() && type.isString() && read_type(type.toString(), entry));
        entry.m_uiName = m_builder.name_number(from_qview(name.toString()));
        if (m_result == EVqStorageResult::Ok)
            read_value(entry, value);
    }

    bool read_type(const QString& type, SEntry& entry)
    {
        const qsizetype blank = type.indexOf(QLatin1Char(' '));
        const QByteArray word = type.left(blank).toUtf8();
        const auto found = std::find(json_type_words.begin(), json_type_words.end(), std::string_view(word));
        if (found == json_type_words.end() || blank == type.size() - 1)
            return false;
        entry.m_eType = static_cast<EVqVariantType>(found - json_type_words.begin());
        const std::string run_type = blank < 0 ? std::string() : type.mid(blank + 1).toUtf8().toStdString();
        return m_builder.run_type_number(run_type, entry.m_uiRunType) == 0;
    }

    void read_value(const SEntry& entry, const QJsonValue& value)
    {
        switch (entry.m_eType) {
        case EVqVariantType::Empty:
            require(value.isNull());
            return add_bits(entry, 0);
        case EVqVariantType::Bool:
            require(value.isBool());
            return add_bits(entry, value.toBool() ? 1 : 0);
        case EVqVariantType::Int:
        case EVqVariantType::Uint:
            return read_integer(entry, value);
        case EVqVariantType::Text:
            require(value.isString());
            return require(m_builder.add_text(from_qview(value.toString()), entry.m_uiName, entry.m_uiRunType)
                           == 0);
        case EVqVariantType::Level:
            return enter(entry, value);
        }
    }

    void read_integer(const SEntry& entry, const QJsonValue& value)
    {
        const bool is_signed = entry.m_eType == EVqVariantType::Int;
        const vq_int64 least = is_signed ? std::numeric_limits<vq_int32>::min() : 0;
        const vq_int64 most = is_signed ? std::numeric_limits<vq_int32>::max() //
                                        : vq_int64(std::numeric_limits<vq_uint32>::max());
        const vq_int64 number = value.toInteger(std::numeric_limits<vq_int64>::min());
        require(number >= least && number <= most);
        add_bits(entry, static_cast<vq_uint32>(number));
    }

    void add_bits(const SEntry& entry, vq_uint32 bits)
    {
        require(m_builder.add_bits(entry.m_eType, bits, entry.m_uiName, entry.m_uiRunType) == 0);
    }

    void enter(const SEntry& entry, const QJsonValue& value)
    {
        const QJsonArray entries = value.toArray();
        require(value.isArray() && entries.size() % 3 == 0);
        if (m_frames.size() > json_max_levels)
            fail(EVqStorageResult::TooDeep);
        require(m_builder.begin_level(entry.m_uiName, entry.m_uiRunType) == 0);
        m_frames.push_back({entries, 0});
    }

    CVqLiteBuilder m_builder;
    std::vector<SFrame> m_frames;
    EVqStorageResult m_result = EVqStorageResult::Ok;
};

}

EVqStorageResult decode_json(const QByteArray& bytes, SVqLiteData& data)
{
    if (bytes.trimmed().isEmpty())
        return EVqStorageResult::CutShort;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        return result_of(error.error);
    return CJsonDecoder().run(document.array(), data);
}
