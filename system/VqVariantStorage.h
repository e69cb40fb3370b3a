#pragma once

#include "arbor_system_export.h"

class CVqLiteVariantR;
class CVqVariant;
class QIODevice;

/// What reading or writing a stored form came to.
enum class EVqStorageResult
{
    Ok,
    DeviceError,   ///< The device is not open for it, or did not take all bytes.
    CutShort,      ///< The bytes end too early; also: there are none.
    BadBytes,      ///< Not CBOR, not JSON, or a text that is not UTF-8.
    WrongType,     ///< Well-formed, but no configuration: an unknown type, a number of over 32 bits, ...
    TooDeep,       ///< More than 4,000 levels in CBOR, 1,000 in JSON.
    TrailingBytes, ///< Something stands behind the end.
};

// Trees and streams have the same two stored forms, so that what one wrote the other reads. Both forms keep
// order, names (empty and repeated ones, too), value types, texts of any units and run types; a stream has no
// name and no run type of its own. Streams need a level at the top (WrongType).
//
// The device must be open and stays so. Reading takes all bytes that it has. The target changes only when the
// result is Ok; a stream then stands on its first entry. Writing starts where the device stands and writes
// nothing when a tree is too deep. No operation recurses with the depth of the data, and memory is bounded by
// the size of the bytes.

/// Compact bytes: a level is a map in the order of its entries, a list of unnamed elements is an array. A
/// name stands as text where it comes first, and later as the number of that place.
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_WriteCbor(QIODevice& device, const CVqVariant& tree);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_WriteCbor(QIODevice& device, const CVqLiteVariantR& stream);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_ReadCbor(QIODevice& device, CVqVariant& tree);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_ReadCbor(QIODevice& device, CVqLiteVariantR& stream);

/// For people: each entry is name, type and value on a line of its own; a level holds its entries in an
/// array.
///
///     ["", "level", [
///         "Id", "uint", 5,
///         "SubMenu", "level CVqListVariant", []
///     ]]
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_WriteJson(QIODevice& device, const CVqVariant& tree);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_WriteJson(QIODevice& device, const CVqLiteVariantR& stream);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_ReadJson(QIODevice& device, CVqVariant& tree);
ARBOR_SYSTEM_EXPORT EVqStorageResult VQ_ReadJson(QIODevice& device, CVqLiteVariantR& stream);
