#pragma once

#include <QColor>
#include <QImage>

/// Draws expected pictures by loops over pixels, premultiplied.
namespace PixelPainter {

/// A picture of one colour, Format_ARGB32_Premultiplied.
QImage Blank(QSize size, const QColor& colour);

/// Lays a premultiplied colour over the pixels of `area`; what lies outside the picture is left out.
void Cover(QImage& image, const QRect& area, QRgb colour);

}
