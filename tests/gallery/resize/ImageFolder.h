#pragma once

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// An image whose left half is red and whose right half is blue.
inline QImage RedAndBlue(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width() / 2; ++x)
            image.setPixel(x, y, qRgb(255, 0, 0));
    return image;
}

/// The file that `image` makes.
inline QByteArray ImageBytes(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(image.save(&buffer, format, 95));
    return bytes;
}

/// A folder "in" with images, and the name of a folder "out" that is not there yet; gone with the test.
class ImageFolder
{
public:
    ImageFolder() { EXPECT_TRUE(QDir().mkpath(In())); }

    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QString In() const { return Path(QStringLiteral("in")); }
    QString Out() const { return Path(QStringLiteral("out")); }
    QString In(const QString& name) const { return In() + u'/' + name; }
    QString Out(const QString& name) const { return Out() + u'/' + name; }

    void MakeOut() const { EXPECT_TRUE(QDir().mkpath(Out())); }

    /// Writes a file of the source folder; its path.
    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(In(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    /// Writes a red and blue image of the source folder in the format of its extension; its path.
    QString Image(const QString& name, const QSize& size) const
    {
        EXPECT_TRUE(RedAndBlue(size).save(In(name)));
        return In(name);
    }

    /// `count` images "000.png", "001.png" ..., all of the same content.
    void ManyImages(int count, const QSize& size) const
    {
        EXPECT_TRUE(RedAndBlue(size).save(Path(QStringLiteral("one.png"))));
        for (int i = 0; i < count; ++i)
            EXPECT_TRUE(QFile::link(Path(QStringLiteral("one.png")),
                                    In(QStringLiteral("%1.png").arg(i, 3, 10, QLatin1Char('0')))));
    }

    /// All that lies in the target folder, hidden files too.
    QStringList OutNames() const
    {
        return QDir(Out()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// Whether each file of the target folder is an image of that width.
    bool OutIsWhole(int width) const
    {
        for (const QString& name : OutNames())
            if (QImage(Out(name)).width() != width)
                return false;
        return true;
    }

    static QByteArray Bytes(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};
