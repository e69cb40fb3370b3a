#pragma once

#include "system/VqVariantStorage.h"

#include <QByteArray>

struct SVqLiteData;

// The JSON form. Not installed.
//
// The document is an array of three values: name, type and value of the root. A level's value is an array of
// the three values of each entry. The type is a word and, behind a blank, the run type if there is one:
// "bool", "int", "uint", "text", "level", and "empty" with null.

/// TooDeep leaves `bytes` in no particular state.
EVqStorageResult encode_json(const SVqLiteData& data, QByteArray& bytes);

/// Anything but Ok leaves `data` as it was. Its root is the one entry of the outermost level.
EVqStorageResult decode_json(const QByteArray& bytes, SVqLiteData& data);
