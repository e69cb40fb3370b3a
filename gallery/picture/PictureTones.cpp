#include "gallery/picture/PictureTones.h"

#include <QColor>
#include <QHash>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_steps = 64;

using Tone = std::function<QRgb(QRgb, int)>;

int bound(int value)
{
    return std::clamp(value, 0, 255);
}

QRgb same(QRgb pixel, int red, int green, int blue)
{
    return qRgba(bound(red), bound(green), bound(blue), qAlpha(pixel));
}

QRgb gray(QRgb p, int)
{
    return same(p, qGray(p), qGray(p), qGray(p));
}

QRgb sepia(QRgb p, int)
{
    return same(p, qGray(p) * 107 / 100 + 12, qGray(p) * 94 / 100 + 4, qGray(p) * 74 / 100);
}

QRgb invert(QRgb p, int)
{
    return same(p, 255 - qRed(p), 255 - qGreen(p), 255 - qBlue(p));
}

QRgb threshold(QRgb p, int)
{
    const int value = qGray(p) < 128 ? 0 : 255;
    return same(p, value, value, value);
}

QRgb posterize(QRgb p, int)
{
    const auto step = [](int value) { return (value * 5 / 256) * 255 / 4; };
    return same(p, step(qRed(p)), step(qGreen(p)), step(qBlue(p)));
}

QRgb solarize(QRgb p, int)
{
    const auto fold = [](int value) { return value < 128 ? value : 255 - value; };
    return same(p, 2 * fold(qRed(p)), 2 * fold(qGreen(p)), 2 * fold(qBlue(p)));
}

QRgb brightness(QRgb p, int percent)
{
    const int more = 255 * percent / 100;
    return same(p, qRed(p) + more, qGreen(p) + more, qBlue(p) + more);
}

QRgb contrast(QRgb p, int percent)
{
    const auto spread = [percent](int value) { return 128 + (value - 128) * (100 + percent) / 100; };
    return same(p, spread(qRed(p)), spread(qGreen(p)), spread(qBlue(p)));
}

QRgb temperature(QRgb p, int percent)
{
    return same(p, qRed(p) + percent, qGreen(p), qBlue(p) - percent);
}

QRgb saturation(QRgb p, int percent)
{
    const auto away
        = [p, percent](int value) { return qGray(p) + (value - qGray(p)) * (100 + percent) / 100; };
    return same(p, away(qRed(p)), away(qGreen(p)), away(qBlue(p)));
}

const QHash<QString, Tone>& tones()
{
    static const QHash<QString, Tone> table = {
        {u"invert"_s, invert},         {u"gray"_s, gray},           {u"sepia"_s, sepia},
        {u"threshold"_s, threshold},   {u"posterize"_s, posterize}, {u"solarize"_s, solarize},
        {u"brightness"_s, brightness}, {u"contrast"_s, contrast},   {u"temperature"_s, temperature},
        {u"saturation"_s, saturation},
    };
    return table;
}

template <typename Map>
QImage map_pixels(const QImage& image, Map map)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        std::transform(line, line + result.width(), line, map);
    }
    return result.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QList<int> count_lightness(const QImage& image, int steps)
{
    QList<int> counts(steps);
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < pixels.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            ++counts[qGray(line[x]) * steps / 256];
    }
    return counts;
}

}

QImage AdjustTones(const QImage& image, const QString& name, int amount)
{
    const Tone tone = tones().value(name);
    if (!tone)
        return image;
    return map_pixels(image, [&](QRgb pixel) { return tone(pixel, amount); });
}

QImage AutoLevels(const QImage& image)
{
    const QList<int> counts = count_lightness(image, 256);
    const auto used = [](int count) { return count > 0; };
    const auto low = std::find_if(counts.begin(), counts.end(), used) - counts.begin();
    const auto high = 255 - (std::find_if(counts.rbegin(), counts.rend(), used) - counts.rbegin());
    if (high <= low)
        return image;
    const auto stretch = [low = int(low), range = int(high - low)](int v) { return (v - low) * 255 / range; };
    return map_pixels(
        image, [&](QRgb p) { return same(p, stretch(qRed(p)), stretch(qGreen(p)), stretch(qBlue(p))); });
}

QList<qreal> LightnessHistogram(const QImage& image)
{
    const QList<int> counts = count_lightness(image, g_steps);
    const int most = std::max(1, *std::max_element(counts.begin(), counts.end()));
    QList<qreal> shares;
    for (const int count : counts)
        shares << qreal(count) / most;
    return shares;
}

}
