#include "gallery/picture/PictureFilters.h"

#include <QHash>
#include <QPainter>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

using Filter = std::function<QImage(const QImage&, int)>;
using Kernel = std::array<int, 9>;

const QRgb* row(const QImage& image, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(std::clamp(y, 0, image.height() - 1)));
}

QRgb at(const QImage& image, int x, int y)
{
    return row(image, y)[std::clamp(x, 0, image.width() - 1)];
}

template <typename Make>
QImage make_pixels(const QImage& like, Make make)
{
    QImage result(like.size(), QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            line[x] = make(x, y);
    }
    return result;
}

QRgb weigh(const QImage& image, int x, int y, const Kernel& kernel, int offset)
{
    int red = offset;
    int green = offset;
    int blue = offset;
    for (int i = 0; i < 9; ++i) {
        const QRgb pixel = at(image, x + i % 3 - 1, y + i / 3 - 1);
        red += kernel[size_t(i)] * qRed(pixel);
        green += kernel[size_t(i)] * qGreen(pixel);
        blue += kernel[size_t(i)] * qBlue(pixel);
    }
    return qRgb(std::clamp(red, 0, 255), std::clamp(green, 0, 255), std::clamp(blue, 0, 255));
}

QImage convolve(const QImage& image, const Kernel& kernel, int offset)
{
    return make_pixels(image, [&](int x, int y) { return weigh(image, x, y, kernel, offset); });
}

/// Down and up again, smoothly: close to a Gaussian and quick at any radius.
QImage blur(const QImage& image, int radius)
{
    const QSize small = (image.size() / std::max(1, radius)).expandedTo(QSize(1, 1));
    return image.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage pixelate(const QImage& image, int cell)
{
    const int size = std::max(1, cell);
    return make_pixels(image, [&](int x, int y) { return at(image, x / size * size, y / size * size); });
}

QImage sharpen(const QImage& image, int)
{
    return convolve(image, {0, -1, 0, -1, 5, -1, 0, -1, 0}, 0);
}

QImage edges(const QImage& image, int)
{
    return convolve(image, {-1, -1, -1, -1, 8, -1, -1, -1, -1}, 0);
}

QImage emboss(const QImage& image, int)
{
    return convolve(image, {-1, -1, 0, -1, 0, 1, 0, 1, 1}, 128);
}

QImage grain(const QImage& image, int)
{
    QRandomGenerator random(13);
    return make_pixels(image, [&](int x, int y) {
        const QRgb p = at(image, x, y);
        const int more = random.bounded(49) - 24;
        const auto noisy = [more](int value) { return std::clamp(value + more, 0, 255); };
        return qRgb(noisy(qRed(p)), noisy(qGreen(p)), noisy(qBlue(p)));
    });
}

QImage wave(const QImage& image, int)
{
    return make_pixels(image, [&](int x, int y) {
        const int right = static_cast<int>(9 * std::sin(y / 23.0));
        const int down = static_cast<int>(6 * std::sin(x / 31.0));
        return at(image, x + right, y + down);
    });
}

QImage vignette(const QImage& image, int)
{
    QImage result = image;
    QPainter painter(&result);
    QRadialGradient shade(QRectF(image.rect()).center(), std::hypot(image.width(), image.height()) / 2);
    shade.setColorAt(0.45, QColor(0, 0, 0, 0));
    shade.setColorAt(1.0, QColor(0, 0, 0, 190));
    painter.fillRect(image.rect(), shade);
    return result;
}

const QHash<QString, Filter>& filters()
{
    static const QHash<QString, Filter> table = {
        {u"blur"_s, blur},     {u"pixelate"_s, pixelate}, {u"sharpen"_s, sharpen}, {u"edges"_s, edges},
        {u"emboss"_s, emboss}, {u"grain"_s, grain},       {u"wave"_s, wave},       {u"vignette"_s, vignette},
    };
    return table;
}

}

QImage ApplyFilter(const QImage& image, const QString& name, int amount)
{
    const Filter filter = filters().value(name);
    if (!filter || image.isNull())
        return image;
    return filter(image.convertToFormat(QImage::Format_RGB32), amount)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}
