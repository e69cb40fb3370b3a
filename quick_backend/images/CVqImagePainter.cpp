#include "quick_backend/images/CVqImagePainter.h"

#include "quick_backend/images/VqFittedDrawing.h"
#include "quick_backend/images/VqImageSizes.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// How many of the device's pixels a unit of the painter has in either direction.
QSizeF pixels_per_unit(const QPainter& painter)
{
    const QTransform transform = painter.deviceTransform();
    return {std::hypot(transform.m11(), transform.m12()), std::hypot(transform.m21(), transform.m22())};
}

int pixels_of(int units, double scale)
{
    return int(std::clamp(std::round(units * scale), 1.0, double(g_max_image_side)));
}

}

CVqImagePainter::CVqImagePainter()
{
    connect(&m_inks, &CVqImageInks::changed, this, [this] { m_cache.Clear(); });
}

QPixmap CVqImagePainter::Stretched(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode)
{
    return Drawn(entry, pixels, mode, false);
}

QPixmap CVqImagePainter::Fitted(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode)
{
    return Drawn(entry, pixels, mode, true);
}

QPixmap CVqImagePainter::Drawn(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode, bool fitted)
{
    const SVqPixmapKey key{entry.serial, pixels.width(), pixels.height(), int(mode), fitted};
    if (const QPixmap* kept = m_cache.Find(key))
        return *kept;
    const SVqImageLook look{mode, m_inks.Ink(mode)};
    const QPixmap drawn = QPixmap::fromImage(fitted ? VqDrawFitted(*entry.image, pixels, look)
                                                    : entry.image->Draw(pixels, look));
    if (!drawn.isNull())
        m_cache.Put(key, drawn);
    return drawn;
}

void CVqImagePainter::Paint(QPainter& painter, const SVqPoolEntry& entry, const QRect& place, bool fits,
                            QIcon::Mode mode)
{
    const QSizeF scale = pixels_per_unit(painter);
    if (place.isEmpty() || scale.isEmpty())
        return;
    const QSize box(pixels_of(place.width(), scale.width()), pixels_of(place.height(), scale.height()));
    const QSize size = fits ? VqFittedSize(entry.image->Size(), box) : box;
    const QPixmap image = Stretched(entry, size, mode);
    const QPointF inset = VqMiddlePlace(size, box);
    const QSizeF shown(size.width() / scale.width(), size.height() / scale.height());
    const QRectF target(place.topLeft() + QPointF(inset.x() / scale.width(), inset.y() / scale.height()),
                        shown);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, image, QRectF(image.rect()));
    painter.restore();
}
