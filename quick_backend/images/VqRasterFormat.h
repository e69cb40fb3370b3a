#pragma once

#include <QByteArray>

/// "png", "jpeg" or "webp", told by the first bytes; empty for anything else.
QByteArray VqRasterFormat(const QByteArray& bytes);

/// Whether bytes of that format reach to the end that the format marks. Decoders fill up what a cut JPEG
/// lacks and call it an image.
bool VqIsWholeRaster(const QByteArray& bytes, const QByteArray& format);
