#pragma once

#include <QByteArray>

namespace Gallery {

/// Whether there is a check for files of `format`.
bool HasImageEnd(const QByteArray& format);

/// Whether the image with these bytes, a "bmp", "gif", "jpeg" or "png", goes up to its end; of a "gif" its
/// first picture. The decoders fill what is missing and call it done; that of the last writes to standard
/// error.
bool IsWholeImage(QByteArrayView bytes, const QByteArray& format);

}
