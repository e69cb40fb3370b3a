#include "quick_backend/images/VqRasterReader.h"

#include "quick_backend/images/VqImageSizes.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace {

qint64 bits_per_pixel(QImage::Format format)
{
    return format == QImage::Format_Invalid ? 32 : QImage::toPixelFormat(format).bitsPerPixel();
}

}

int VqCheckRasterSize(const QByteArray& bytes, const QByteArray& format)
{
    constexpr int no_image = -9;
    constexpr int too_large = -3;
    constexpr qint64 bits_of_mebibyte = qint64(8) * 1024 * 1024;

    QBuffer buffer;
    buffer.setData(bytes);
    const QImageReader reader(&buffer, format);
    const QSize size = reader.size();
    if (size.isEmpty())
        return no_image;
    if (std::max(size.width(), size.height()) > g_max_image_side)
        return too_large;
    const qint64 bits = qint64(size.width()) * size.height() * bits_per_pixel(reader.imageFormat());
    const qint64 limit = QImageReader::allocationLimit() * bits_of_mebibyte;
    return limit == 0 || bits <= limit ? 0 : too_large;
}

QImage VqReadRaster(const QByteArray& bytes, const QByteArray& format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(true);
    return reader.read();
}
