#pragma once

#include <QByteArray>
#include <QString>

namespace Gallery {

/// Scales the image `from` to `width` pixels, its height in proportion, and writes it to `to` as `format`.
///
/// It is turned as its camera tells. An image that is no wider is never enlarged: it is copied byte for byte,
/// unless the format changes. Of several images in a file the first is taken. What is at `to` is replaced
/// when all has gone well and stays as it was otherwise. Empty: done; otherwise the reason, to be read behind
/// the name of the image. Any thread.
QString ResizeImage(const QString& from, const QString& to, const QByteArray& format, int width);

}
