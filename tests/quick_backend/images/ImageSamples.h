#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QString>

#include <gtest/gtest.h>

// Small images whose pixels all differ, so that none can stand for another, and SVGs whose edges lie on
// pixels.

inline QImage SampleImage(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(10 + 40 * x, 20 + 30 * y, 1 + 7 * (x + y)));
    }
    return image;
}

/// WebP without loss.
inline QByteArray Encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(image.save(&buffer, format, 100));
    return bytes;
}

inline void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

inline QByteArray Svg(int width, int height, const QByteArray& content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width=")"
        + QByteArray::number(width) + R"(" height=")" + QByteArray::number(height) + R"(">)" + content
        + "</svg>";
}

/// 4 x 2: the first column has one colour, the second one is empty, the others have a fifth of its
/// opacity.
inline QByteArray StencilSvg(const QByteArray& colour = "currentColor")
{
    return Svg(4, 2,
               R"(<rect width="1" height="2" fill=")" + colour
                   + R"("/><rect x="2" width="2" height="2" fill-opacity=".2" fill=")" + colour + R"("/>)");
}

/// 2 x 1: red, blue.
inline QByteArray TwoColourSvg()
{
    return Svg(2, 1,
               R"(<rect width="1" height="1" fill="#f00"/><rect x="1" width="1" height="1" fill="#00f"/>)");
}

/// Columns of pixels, each repeated `width` times, `height` pixels high.
inline QImage Columns(const std::vector<QRgb>& colours, int width, int height)
{
    QImage image(int(colours.size()) * width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor::fromRgba(colours[std::size_t(x / width)]));
    }
    return image;
}
