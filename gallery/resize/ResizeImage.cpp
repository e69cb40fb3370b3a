#include "gallery/resize/ResizeImage.h"

#include "gallery/resize/ImageEnd.h"
#include "gallery/resize/ResizeWidth.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_quality = 90; // of formats that lose detail; 0 to 100
constexpr qint64 g_megabyte = 1024 * 1024;

QString cannot_open(const QString& why)
{
    return QCoreApplication::translate("Resize", "it cannot be opened: %1").arg(why);
}

QString cannot_write(const QString& why)
{
    return QCoreApplication::translate("Resize", "it cannot be written: %1").arg(why);
}

QString too_little_memory()
{
    return QCoreApplication::translate("Resize", "it takes more memory than there is");
}

/// The name of a format that has two.
QByteArray plain_format(const QByteArray& format)
{
    if (format == "jpg")
        return "jpeg";
    return format == "tif" ? QByteArray("tiff") : format;
}

/// `size` at the width `width`, or as it is where it is no wider.
QSize scaled_size(const QSize& size, int width)
{
    if (size.width() <= width)
        return size;
    const double height = double(size.height()) * width / size.width();
    return {width, std::max(qRound(height), 1)};
}

bool is_on_its_side(const QImageReader& reader)
{
    return reader.transformation() & QImageIOHandler::TransformationRotate90;
}

/// Whether the reader may take the memory that the whole image needs. It warns and says no more itself.
bool may_take_memory(const QImageReader& reader, const QSize& size)
{
    const qint64 limit = QImageReader::allocationLimit() * g_megabyte;
    const int depth = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return limit == 0 || qint64(size.width()) * size.height() * std::max(depth, 1) / 8 <= limit;
}

/// What is wrong before anything is decoded.
QString why_not_read(QFile& file, QImageReader& reader)
{
    if (!reader.canRead())
        return QCoreApplication::translate("Resize", "it is no image, whatever its name says");
    if (HasImageEnd(reader.format()) && !IsWholeImage(file.readAll(), reader.format()))
        return QCoreApplication::translate("Resize", "it is cut off");
    file.seek(0);
    const QSize size = reader.size();
    if (std::max(size.width(), size.height()) > g_longest_image_side)
        return QCoreApplication::translate("Resize",
                                           "its %1x%2 pixels are too many: each side has %3 at most")
            .arg(size.width())
            .arg(size.height())
            .arg(g_longest_image_side);
    return size.isValid() && !may_take_memory(reader, size) ? too_little_memory() : QString();
}

/// Reads the image upright and no wider than `width`; JPEG is decoded no larger than it takes.
QString read(QImageReader& reader, int width, QImage& image)
{
    const QSize size = reader.size();
    const bool on_side = is_on_its_side(reader);
    if (size.isValid()) {
        const QSize target = scaled_size(on_side ? size.transposed() : size, width);
        reader.setScaledSize(on_side ? target.transposed() : target);
    }
    reader.setAutoTransform(true);
    if (reader.read(&image))
        return {};
    if (size.isValid() && QImage(size, QImage::Format_ARGB32).isNull())
        return too_little_memory();
    return QCoreApplication::translate("Resize", "it cannot be read: %1").arg(reader.errorString());
}

QImage without_transparency(const QImage& image)
{
    QImage ground(image.size(), QImage::Format_RGB32);
    if (ground.isNull())
        return ground;
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(0, 0, image);
    ground.setColorSpace(image.colorSpace());
    return ground;
}

/// Writes to `to` with `write`, which tells what is wrong: all or nothing.
template <class Write>
QString save(const QString& to, const Write& write)
{
    QSaveFile file(to);
    if (!file.open(QIODevice::WriteOnly))
        return cannot_write(file.errorString());
    const QString error = write(file);
    if (!error.isEmpty())
        return cannot_write(error);
    return file.commit() ? QString() : cannot_write(file.errorString());
}

QString write_image(QImage image, const QString& to, const QByteArray& format)
{
    if (plain_format(format) == "jpeg" && image.hasAlphaChannel())
        image = without_transparency(image);
    if (image.isNull())
        return too_little_memory();
    return save(to, [&](QSaveFile& file) {
        QImageWriter writer(&file, format);
        if (plain_format(format) != "png") // whose quality is the time it takes
            writer.setQuality(g_quality);
        return writer.write(image) ? QString() : writer.errorString();
    });
}

QString copy(QFile& from, const QString& to)
{
    return save(to, [&](QSaveFile& file) {
        from.seek(0);
        while (!from.atEnd()) {
            const QByteArray bytes = from.read(g_megabyte);
            if (bytes.isEmpty())
                return from.errorString();
            if (file.write(bytes) != bytes.size())
                return file.errorString();
        }
        return QString();
    });
}

QString resize(const QString& from, const QString& to, const QByteArray& format, int width)
{
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly))
        return cannot_open(file.errorString());
    QImageReader reader(&file);
    QString error = why_not_read(file, reader);
    if (!error.isEmpty())
        return error;
    const QSize whole = reader.size();
    const int whole_width = is_on_its_side(reader) ? whole.height() : whole.width();
    const bool same_format = plain_format(reader.format()) == plain_format(format);
    QImage image;
    error = read(reader, width, image);
    if (!error.isEmpty())
        return error;
    if (whole.isValid() && whole_width <= width && same_format)
        return copy(file, to);
    if (image.width() > width) // its size was not known before
        image
            = image.scaled(scaled_size(image.size(), width), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return write_image(std::move(image), to, format);
}

}

QString ResizeImage(const QString& from, const QString& to, const QByteArray& format, int width)
{
    try {
        return resize(from, to, format, width);
    } catch (const std::bad_alloc&) {
        return too_little_memory();
    }
}

}
