#pragma once

#include <QImage>
#include <QString>

namespace Gallery {

/// Width and height of the sample pictures in pixels.
inline constexpr QSize PictureSize{1200, 800};

/// Draws the sample `name`: "lake", "chart" or "rings"; any other name gives a white picture. The same name
/// always gives the same pixels. Format_ARGB32_Premultiplied, opaque.
QImage DrawSample(const QString& name);

/// The upper layer of every sample: warm light that falls in from the upper right, on a clear ground.
QImage DrawLight();

}
