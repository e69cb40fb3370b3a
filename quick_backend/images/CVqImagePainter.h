#pragma once

#include "quick_backend/images/CVqImageInks.h"
#include "quick_backend/images/CVqPixmapCache.h"
#include "quick_backend/images/CVqPoolImages.h"

#include <QPixmap>
#include <QRect>

class QPainter;

/// Draws images in the colours of the palette and keeps what it drew. GUI thread only.
class CVqImagePainter : public QObject
{
    Q_OBJECT

public:
    CVqImagePainter();

    const CVqImageInks& Inks() const { return m_inks; }
    CVqPixmapCache& Cache() { return m_cache; }

    /// The image, stretched to exactly `pixels`; null for an empty size.
    QPixmap Stretched(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode);

    /// A pixmap of exactly `pixels`, in the middle of which the image is, with its ratio kept.
    QPixmap Fitted(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode);

    /// Fills `place`, or fits the image into it. Draws with as many pixels as the painter's device has there.
    void Paint(QPainter& painter, const SVqPoolEntry& entry, const QRect& place, bool fits, QIcon::Mode mode);

private:
    QPixmap Drawn(const SVqPoolEntry& entry, QSize pixels, QIcon::Mode mode, bool fitted);

    CVqImageInks m_inks;
    CVqPixmapCache m_cache;
};
