#include "system/VqVariantStorage.h"

#include "system/CVqLiteBuilder.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "system/SVqLiteAccess.h"
#include "system/VqCborCodec.h"
#include "system/VqJsonCodec.h"
#include "system/VqVariantFlat.h"

#include <QIODevice>

#include <utility>

namespace {

using Encode = EVqStorageResult (*)(const SVqLiteData&, QByteArray&);
using Decode = EVqStorageResult (*)(const QByteArray&, SVqLiteData&);

EVqStorageResult write(QIODevice& device, const SVqLiteData& data, Encode encode)
{
    QByteArray bytes;
    const EVqStorageResult result = encode(data, bytes);
    if (result != EVqStorageResult::Ok)
        return result;
    const bool taken = device.isWritable() && device.write(bytes) == bytes.size();
    return taken ? EVqStorageResult::Ok : EVqStorageResult::DeviceError;
}

EVqStorageResult write(QIODevice& device, const CVqLiteVariantR& stream, Encode encode)
{
    const SVqLiteData* data = SVqLiteAccess::data_of(stream);
    return data ? write(device, *data, encode) : write(device, CVqLiteBuilder().take(), encode);
}

EVqStorageResult read(QIODevice& device, SVqLiteData& data, Decode decode)
{
    return device.isReadable() ? decode(device.readAll(), data) : EVqStorageResult::DeviceError;
}

EVqStorageResult read(QIODevice& device, CVqVariant& tree, Decode decode)
{
    SVqLiteData data;
    const EVqStorageResult result = read(device, data, decode);
    if (result == EVqStorageResult::Ok)
        tree = unflatten(data);
    return result;
}

EVqStorageResult read(QIODevice& device, CVqLiteVariantR& stream, Decode decode)
{
    SVqLiteData data;
    const EVqStorageResult result = read(device, data, decode);
    if (result != EVqStorageResult::Ok)
        return result;
    if (data.m_nodes[data.m_uiRoot].m_eType != EVqVariantType::Level)
        return EVqStorageResult::WrongType;
    SVqLiteAccess::start(stream, std::move(data));
    return EVqStorageResult::Ok;
}

}

EVqStorageResult VQ_WriteCbor(QIODevice& device, const CVqVariant& tree)
{
    return write(device, flatten(tree), encode_cbor);
}

EVqStorageResult VQ_WriteCbor(QIODevice& device, const CVqLiteVariantR& stream)
{
    return write(device, stream, encode_cbor);
}

EVqStorageResult VQ_ReadCbor(QIODevice& device, CVqVariant& tree)
{
    return read(device, tree, decode_cbor);
}

EVqStorageResult VQ_ReadCbor(QIODevice& device, CVqLiteVariantR& stream)
{
    return read(device, stream, decode_cbor);
}

EVqStorageResult VQ_WriteJson(QIODevice& device, const CVqVariant& tree)
{
    return write(device, flatten(tree), encode_json);
}

EVqStorageResult VQ_WriteJson(QIODevice& device, const CVqLiteVariantR& stream)
{
    return write(device, stream, encode_json);
}

EVqStorageResult VQ_ReadJson(QIODevice& device, CVqVariant& tree)
{
    return read(device, tree, decode_json);
}

EVqStorageResult VQ_ReadJson(QIODevice& device, CVqLiteVariantR& stream)
{
    return read(device, stream, decode_json);
}
