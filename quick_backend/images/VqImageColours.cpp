#include "quick_backend/images/VqImageColours.h"

#include <algorithm>
#include <cstdlib>

namespace {

template <class Use>
void each_pixel(QImage& picture, Use use)
{
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::for_each(line, line + width, use);
    }
}

// False as soon as `test` is false for a pixel.
template <class Test>
bool all_pixels(const QImage& picture, Test test)
{
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        if (!std::all_of(line, line + width, test))
            return false;
    }
    return true;
}

int share(int channel, int alpha)
{
    return (channel * alpha + 127) / 255;
}

QRgb faded(QRgb colour, int alpha)
{
    return qRgba(share(qRed(colour), alpha), share(qGreen(colour), alpha), share(qBlue(colour), alpha),
                 share(qAlpha(colour), alpha));
}

// The one whose colour is known best.
QRgb most_opaque_pixel(const QImage& picture)
{
    QRgb found = 0;
    all_pixels(picture, [&found](QRgb pixel) {
        if (qAlpha(pixel) > qAlpha(found))
            found = pixel;
        return qAlpha(found) < 255;
    });
    return found;
}

// Two steps of 255 are lost by rounding where edges are smoothed.
bool is_near(int premultiplied, int channel, int alpha)
{
    constexpr int rounding = 2;
    return std::abs(255 * premultiplied - channel * alpha) <= 255 * rounding;
}

}

bool VqHasOneColour(const QImage& picture)
{
    const QRgb colour = qUnpremultiply(most_opaque_pixel(picture));
    return all_pixels(picture, [colour](QRgb pixel) {
        if (pixel == 0 || pixel == colour)
            return true;
        const int alpha = qAlpha(pixel);
        return is_near(qRed(pixel), qRed(colour), alpha) && is_near(qGreen(pixel), qGreen(colour), alpha)
            && is_near(qBlue(pixel), qBlue(colour), alpha);
    });
}

void VqApplyInk(QImage& picture, QRgb ink)
{
    const QRgb full = qPremultiply(ink);
    each_pixel(picture, [full](QRgb& pixel) {
        const int alpha = qAlpha(pixel);
        if (alpha > 0)
            pixel = alpha == 255 ? full : faded(full, alpha);
    });
}

void VqMakeDisabled(QImage& picture)
{
    each_pixel(picture, [](QRgb& pixel) {
        const int grey = qGray(pixel) / 2;
        pixel = qRgba(grey, grey, grey, qAlpha(pixel) / 2);
    });
}
