#include "tests/offscreen/PixelPainter.h"

namespace {

uint channel_over(uint above, uint below, uint alpha_above)
{
    return above + (below * (255 - alpha_above) + 127) / 255;
}

QRgb over(QRgb above, QRgb below)
{
    const uint alpha = uint(qAlpha(above));
    QRgb out = 0;
    for (int shift = 0; shift < 32; shift += 8)
        out |= channel_over(above >> shift & 0xff, below >> shift & 0xff, alpha) << shift;
    return out;
}

}

namespace PixelPainter {

QImage Blank(QSize size, const QColor& colour)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(qPremultiply(colour.rgba()));
    return image;
}

void Cover(QImage& image, const QRect& area, QRgb colour)
{
    const QRect inside = area & image.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = inside.left(); x <= inside.right(); ++x)
            line[x] = over(colour, line[x]);
    }
}

}
