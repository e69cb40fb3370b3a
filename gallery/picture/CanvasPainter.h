#pragma once

#include "gallery/picture/CanvasGeometry.h"

#include <QColor>
#include <QImage>
#include <QPainter>

namespace Gallery {

/// Thickness of a ruler in logical pixels.
inline constexpr int RulerSize = 22;

/// Draws the parts of the image area. Each operation leaves the painter as it was.
class CanvasPainter
{
public:
    /// `painter` must outlive this; `bounds` is the whole image area.
    CanvasPainter(QPainter& painter, const CanvasGeometry& geometry, const QRectF& bounds)
        : m_painter(painter), m_geometry(geometry), m_bounds(bounds)
    { }

    /// The picture with a soft shadow, on a checkerboard where it is clear.
    void DrawPicture(const QImage& image);

    /// Lines each `step` pixels of the picture.
    void DrawGrid(int step);

    /// Lines through the thirds of the picture.
    void DrawGuides(const QColor& color);

    /// The edge of `selection`, which is in picture pixels.
    void DrawSelection(const QRect& selection);

    /// A ruler along the top and one along the left edge.
    void DrawRulers(const QColor& ground, const QColor& ink);

private:
    void draw_shadow(const QRectF& picture);
    void draw_ruler(Qt::Orientation orientation, const QColor& ink);
    void draw_mark(Qt::Orientation orientation, qreal at, int length);
    void draw_number(Qt::Orientation orientation, qreal at, int number);

    QPainter& m_painter;
    const CanvasGeometry& m_geometry;
    QRectF m_bounds;
};

}
