#pragma once

#include <QByteArray>
#include <QImage>

/// Whether the pixels may be read as far as their size goes: 0, or -9 for bytes whose size cannot be told and
/// -3 for an image of more than g_max_image_side a side or more memory than QImageReader::allocationLimit().
/// Nothing is allocated for that.
int VqCheckRasterSize(const QByteArray& bytes, const QByteArray& format);

/// The picture, turned upright as the camera noted; null for bad bytes.
QImage VqReadRaster(const QByteArray& bytes, const QByteArray& format);
