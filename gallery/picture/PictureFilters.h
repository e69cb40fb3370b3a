#pragma once

#include <QImage>
#include <QString>

namespace Gallery {

/// Applies the filter `name` to `image`: "blur" and "pixelate" take a radius or a cell in pixels as `amount`;
/// "sharpen", "edges", "emboss", "grain", "wave" and "vignette" take none. The size stays. An unknown name
/// gives `image` as it is. The same input always gives the same pixels.
QImage ApplyFilter(const QImage& image, const QString& name, int amount);

}
