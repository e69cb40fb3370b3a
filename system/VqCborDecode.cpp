#include "system/CVqLiteBuilder.h"
#include "system/VqCborCodec.h"
#include "system/VqCborTags.h"

#include <QCborStreamReader>
#include <QStringDecoder>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using string_type = std::basic_string<vq_wchar>;

EVqStorageResult result_of(QCborError::Code error)
{
    switch (error) {
    case QCborError::NoError:
        return EVqStorageResult::Ok;
    case QCborError::EndOfFile:
        return EVqStorageResult::CutShort;
    case QCborError::NestingTooDeep:
        return EVqStorageResult::TooDeep;
    default:
        return EVqStorageResult::BadBytes;
    }
}

class CCborDecoder
{
public:
    explicit CCborDecoder(const QByteArray& bytes) : m_size(bytes.size()), m_reader(bytes) { }

    EVqStorageResult run(SVqLiteData& data)
    {
        if (m_size == 0)
            return EVqStorageResult::CutShort;
        read_root();
        while (check() && !m_frames.empty())
            read_next();
        if (check() && m_reader.currentOffset() != m_size)
            m_result = EVqStorageResult::TrailingBytes;
        if (!good())
            return m_result;
        data = m_builder.take();
        data.m_uiRoot = 1;
        return EVqStorageResult::Ok;
    }

private:
    enum class EFrame
    {
        Map,
        Array,
        Wrapper
    };

    /// What is known of a node before its value is read.
    struct SEntry
    {
        vq_uint32 m_uiName = SVqLiteData::empty_name;
        vq_uint16 m_uiRunType = 0;
        bool m_bTextKey = false;
        bool m_bUnsigned = false;
    };

    /// Whether nothing has failed yet, as far as was noticed: an error of the reader shows at the latest in
    /// check(), and a reader with an error offers no more values of any type.
    bool good() const { return m_result == EVqStorageResult::Ok; }

    bool check()
    {
        if (good())
            m_result = result_of(static_cast<QCborError::Code>(m_reader.lastError().c));
        return good();
    }

    void fail(EVqStorageResult result)
    {
        if (check())
            m_result = result;
    }

    void read_root()
    {
        SEntry entry;
        if (m_reader.isTag() && m_reader.toTag() == cbor_named_tag)
            entry.m_uiName = m_builder.name_number(read_wrapper_text());
        if (good())
            read_value(entry);
    }

    void read_next()
    {
        if (!m_reader.hasNext())
            return leave();
        if (m_frames.back() == EFrame::Wrapper)
            return fail(EVqStorageResult::WrongType);
        SEntry entry;
        if (m_frames.back() == EFrame::Map)
            read_key(entry);
        if (good())
            read_value(entry);
    }

    void leave()
    {
        if (!check() || !m_reader.leaveContainer())
            return fail(EVqStorageResult::BadBytes);
        if (m_frames.back() != EFrame::Wrapper)
            m_builder.end_level();
        m_levels -= m_frames.back() != EFrame::Wrapper ? 1 : 0;
        m_frames.pop_back();
    }

    void read_key(SEntry& entry)
    {
        if (!m_reader.isUnsignedInteger()) {
            entry.m_uiName = m_builder.name_number(read_text());
            entry.m_bTextKey = true;
            return;
        }
        const quint64 number = m_reader.toUnsignedInteger();
        if (number >= m_keys.size())
            return fail(EVqStorageResult::WrongType);
        std::tie(entry.m_uiName, entry.m_bUnsigned) = m_keys[static_cast<std::size_t>(number)];
        m_reader.next();
    }

    void read_value(SEntry entry)
    {
        if (m_reader.isTag() && m_reader.toTag() == cbor_object_tag)
            read_run_type(entry);
        if (m_reader.isTag())
            read_unsigned_tag(entry);
        if (entry.m_bTextKey)
            note_key(entry);
        if (!good())
            return;
        if (m_reader.isMap() || m_reader.isArray())
            return enter(entry);
        read_scalar(entry);
    }

    void read_run_type(SEntry& entry)
    {
        const string_type type = read_wrapper_text();
        if (good()
            && m_builder.run_type_number(to_qview(type).toUtf8().toStdString(), entry.m_uiRunType) != 0)
            fail(EVqStorageResult::WrongType);
    }

    void read_unsigned_tag(SEntry& entry)
    {
        if (m_reader.toTag() != cbor_unsigned_tag || entry.m_bUnsigned)
            return fail(EVqStorageResult::WrongType);
        m_reader.next();
        if (good() && !m_reader.isUnsignedInteger())
            fail(EVqStorageResult::WrongType);
        entry.m_bUnsigned = true;
    }

    /// A tag is behind; then an array of a text and one more value, which the caller reads.
    string_type read_wrapper_text()
    {
        m_reader.next();
        if (good() && !m_reader.isArray())
            fail(EVqStorageResult::WrongType);
        if (!good() || !m_reader.enterContainer())
            return {};
        m_frames.push_back(EFrame::Wrapper);
        return read_text();
    }

    void note_key(const SEntry& entry)
    {
        if (entry.m_uiName == SVqLiteData::no_name)
            return fail(EVqStorageResult::WrongType);
        const auto type = entry.m_bUnsigned ? EVqVariantType::Uint : EVqVariantType::Empty;
        const std::size_t kind = cbor_key_kind(entry.m_uiName, type);
        if (kind >= m_known.size())
            m_known.resize(kind + 1);
        if (!m_known[kind])
            m_keys.emplace_back(entry.m_uiName, entry.m_bUnsigned);
        m_known[kind] = true;
    }

    void enter(SEntry& entry)
    {
        const bool array = m_reader.isArray();
        if (++m_levels > cbor_max_levels)
            return fail(EVqStorageResult::TooDeep);
        if (array && entry.m_uiRunType == 0)
            m_builder.run_type_number(SVqLiteData::list_type, entry.m_uiRunType);
        if (entry.m_bUnsigned || m_builder.begin_level(entry.m_uiName, entry.m_uiRunType) != 0)
            return fail(EVqStorageResult::WrongType);
        m_frames.push_back(array ? EFrame::Array : EFrame::Map);
        m_reader.enterContainer();
    }

    void read_scalar(const SEntry& entry)
    {
        if (m_reader.isString() || m_reader.isByteArray())
            return read_text_value(entry);
        if (m_reader.isInteger())
            return read_integer(entry);
        if (!m_reader.isBool() && !m_reader.isNull())
            return fail(EVqStorageResult::WrongType);
        const auto type = m_reader.isBool() ? EVqVariantType::Bool : EVqVariantType::Empty;
        add(entry, type, m_reader.isBool() && m_reader.toBool() ? 1 : 0);
    }

    void read_text_value(const SEntry& entry)
    {
        const string_type& text = read_text();
        if (good() && (entry.m_bUnsigned || m_builder.add_text(text, entry.m_uiName, entry.m_uiRunType) != 0))
            fail(EVqStorageResult::WrongType);
    }

    void read_integer(const SEntry& entry)
    {
        const bool positive = m_reader.isUnsignedInteger();
        const quint64 magnitude = positive ? m_reader.toUnsignedInteger()
                                           : quint64(m_reader.toNegativeInteger()) - 1; // -1 - value
        const quint64 limit = entry.m_bUnsigned ? 0xFFFFFFFF : 0x7FFFFFFF;
        if (magnitude > limit || (entry.m_bUnsigned && !positive))
            return fail(EVqStorageResult::WrongType);
        const auto bits = static_cast<vq_uint32>(magnitude);
        add(entry, entry.m_bUnsigned ? EVqVariantType::Uint : EVqVariantType::Int, positive ? bits : ~bits);
    }

    void add(const SEntry& entry, EVqVariantType type, vq_uint32 bits)
    {
        const bool wanted = !entry.m_bUnsigned || type == EVqVariantType::Uint;
        if (!wanted || m_builder.add_bits(type, bits, entry.m_uiName, entry.m_uiRunType) != 0)
            return fail(EVqStorageResult::WrongType);
        m_reader.next();
    }

    /// A text, or a byte string that holds the units of one. Never reserves what the bytes only announce.
    const string_type& read_text()
    {
        m_text.clear();
        const bool units = m_reader.isByteArray();
        if (!units && !m_reader.isString())
            fail(EVqStorageResult::WrongType);
        if (!good())
            return m_text;
        read_chunks();
        if (check())
            units ? decode_units() : decode_utf8();
        return m_text;
    }

    /// Qt drops what a chunk holds beyond the room given, so all of it is asked for, once it is known to be
    /// there.
    void read_chunks()
    {
        m_bytes.clear();
        for (;;) {
            const qsizetype size = m_reader.currentStringChunkSize();
            if (size > m_size - m_reader.currentOffset())
                return fail(EVqStorageResult::CutShort);
            const std::size_t start = m_bytes.size();
            m_bytes.resize(start + static_cast<std::size_t>(std::max<qsizetype>(size, 0)));
            if (m_reader.readStringChunk(m_bytes.data() + start, size).status != QCborStreamReader::Ok)
                return;
        }
    }

    void decode_utf8()
    {
        if (std::all_of(m_bytes.begin(), m_bytes.end(), [](char byte) { return byte >= 0; })) {
            m_text.assign(m_bytes.begin(), m_bytes.end());
            return;
        }
        const QUtf8StringView utf8(m_bytes.data(), static_cast<qsizetype>(m_bytes.size()));
        if (!utf8.isValidUtf8())
            return fail(EVqStorageResult::BadBytes);
        using Flag = QStringConverter::Flag;
        QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
        m_text.resize(static_cast<std::size_t>(decoder.requiredSpace(utf8.size())));
        auto* start = reinterpret_cast<QChar*>(m_text.data());
        const QByteArrayView bytes(m_bytes.data(), utf8.size());
        m_text.resize(static_cast<std::size_t>(decoder.appendToBuffer(start, bytes) - start));
    }

    void decode_units()
    {
        if (m_bytes.size() % 2 != 0)
            return fail(EVqStorageResult::WrongType);
        for (std::size_t i = 0; i < m_bytes.size(); i += 2)
            m_text.push_back(static_cast<vq_wchar>(static_cast<unsigned char>(m_bytes[i])
                                                   | static_cast<unsigned char>(m_bytes[i + 1]) << 8));
    }

    qsizetype m_size;
    QCborStreamReader m_reader;
    CVqLiteBuilder m_builder;
    std::vector<EFrame> m_frames;                   // the containers that are open
    std::vector<std::pair<vq_uint32, bool>> m_keys; // name and "unsigned" of each numbered key
    std::vector<bool> m_known;                      // for each pair of name and kind: it has a number
    std::string m_bytes;
    string_type m_text;
    std::size_t m_levels = 0;
    EVqStorageResult m_result = EVqStorageResult::Ok;
};

}

EVqStorageResult decode_cbor(const QByteArray& bytes, SVqLiteData& data)
{
    return CCborDecoder(bytes).run(data);
}
