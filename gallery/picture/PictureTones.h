#pragma once

#include <QImage>
#include <QString>

namespace Gallery {

/// Changes each pixel of `image` by itself, as the adjustment `name` says: "invert", "gray", "sepia",
/// "threshold", "posterize", "solarize" take no amount; "brightness", "contrast", "temperature" and
/// "saturation" take percent, -100 to 100. Alpha stays. An unknown name gives `image` as it is.
QImage AdjustTones(const QImage& image, const QString& name, int amount);

/// Stretches the lightness of `image` so that it fills the whole range.
QImage AutoLevels(const QImage& image);

/// Share of the pixels in each of 64 steps of lightness, dark first; the fullest step is 1.
QList<qreal> LightnessHistogram(const QImage& image);

}
