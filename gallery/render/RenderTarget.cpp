#include "gallery/render/RenderTarget.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QByteArray format_of(const QString& path)
{
    return QFileInfo(path).suffix().toLatin1().toLower();
}

QImage on_white(const QImage& image)
{
    QImage ground(image.size(), QImage::Format_RGB32);
    ground.fill(Qt::white);
    QPainter(&ground).drawImage(0, 0, image);
    return ground;
}

bool has_transparency(const QByteArray& format)
{
    return !QList<QByteArray>{"bmp", "jpeg", "jpg", "pbm", "pgm", "ppm", "xbm"}.contains(format);
}

QString cannot_write(const QString& path, const QString& reason)
{
    return u"%1 cannot be written: %2."_s.arg(path, reason);
}

}

QString WhyNoRenderTarget(const QString& path)
{
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    if (formats.contains(format_of(path)))
        return {};
    return u"%1 has no extension of a picture: there are %2."_s.arg(path,
                                                                    QString::fromLatin1(formats.join(", ")));
}

QString WriteRenderTarget(const QImage& image, const QString& path)
{
    const QByteArray format = format_of(path);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return cannot_write(path, file.errorString());
    QImageWriter writer(&file, format);
    if (!writer.write(has_transparency(format) ? image : on_white(image)))
        return cannot_write(path, writer.errorString());
    return file.commit() ? QString() : cannot_write(path, file.errorString());
}

}
