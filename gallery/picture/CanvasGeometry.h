#pragma once

#include <QRectF>
#include <QSize>

namespace Gallery {

/// Where the picture lies in the canvas. Lengths are logical pixels unless they are the picture's own.
class CanvasGeometry
{
public:
    /// `zoom` in percent, 0 fits `picture` into `area` with a margin. An empty picture or area gives a scale
    /// of 1.
    CanvasGeometry(QSize picture, const QRectF& area, qreal zoom, QPointF pan);

    /// Logical pixels for one pixel of the picture.
    qreal Scale() const { return m_scale; }

    /// The rectangle that the picture covers.
    QRectF Picture() const { return m_picture; }

    /// The pixel of the picture under `point`; may lie outside the picture.
    QPointF ToPicture(QPointF point) const { return (point - m_picture.topLeft()) / m_scale; }
    QPointF FromPicture(QPointF pixel) const { return pixel * m_scale + m_picture.topLeft(); }

    /// Picture pixels from one numbered mark of a ruler to the next: 1, 2 or 5 times a power of ten, at least
    /// 60 logical pixels apart.
    int RulerStep() const;

private:
    qreal m_scale = 1;
    QRectF m_picture;
};

}
