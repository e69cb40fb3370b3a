#pragma once

#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>

#include <cstddef>
#include <cstdlib>

/// What reads must write, and read back to the same bytes.
template <typename Target, typename Read, typename Write>
void read_and_write_back(const QByteArray& bytes, Read read, Write write)
{
    Target first;
    QBuffer in;
    in.setData(bytes);
    in.open(QIODevice::ReadOnly);
    if (read(in, first) != EVqStorageResult::Ok)
        return;
    QBuffer once;
    QBuffer twice;
    Target second;
    once.open(QIODevice::ReadWrite);
    twice.open(QIODevice::ReadWrite);
    bool same = write(once, first) == EVqStorageResult::Ok && once.seek(0);
    same = same && read(once, second) == EVqStorageResult::Ok;
    same = same && write(twice, second) == EVqStorageResult::Ok && once.data() == twice.data();
    if (!same)
        std::abort();
}

/// The bytes as a stored tree and as a stored stream.
template <typename Read, typename Write>
void fuzz_stored_form(const unsigned char* data, std::size_t size, Read read, Write write)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    read_and_write_back<CVqVariant>(bytes, read, write);
    read_and_write_back<CVqLiteVariantR>(bytes, read, write);
}
