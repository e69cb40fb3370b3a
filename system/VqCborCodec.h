#pragma once

#include "system/VqVariantStorage.h"

#include <QByteArray>

struct SVqLiteData;

// The CBOR form. Not installed.
//
// bool, null (an empty node), text and signed integers are what they are in CBOR. Tag 88 marks an unsigned
// integer; a text that is not UTF-16 is a byte string of its units, low byte first. A map key is a text, or
// the number of a pair of name and "unsigned or not", counted in the order in which such pairs come first; an
// integer behind such a number needs no tag. Tag 27 holds an array of a run type and the node that has it,
// tag 89 one of the name of the whole tree and the tree.

/// TooDeep leaves `bytes` in no particular state.
EVqStorageResult encode_cbor(const SVqLiteData& data, QByteArray& bytes);

/// Anything but Ok leaves `data` as it was. Its root is the one entry of the outermost level.
EVqStorageResult decode_cbor(const QByteArray& bytes, SVqLiteData& data);
