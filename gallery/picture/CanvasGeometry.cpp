#include "gallery/picture/CanvasGeometry.h"

#include <algorithm>

namespace Gallery {

namespace {

constexpr qreal g_margin = 28;     // between the picture and the edge, logical pixels
constexpr qreal g_mark_space = 60; // between numbered marks, logical pixels
constexpr qreal g_percent = 100;
constexpr int g_longest_step = 1000000;

qreal fit_scale(QSize picture, QSizeF area)
{
    const QSizeF room = area - QSizeF(2 * g_margin, 2 * g_margin);
    if (picture.isEmpty() || room.isEmpty())
        return 1;
    return std::min(room.width() / picture.width(), room.height() / picture.height());
}

}

CanvasGeometry::CanvasGeometry(QSize picture, const QRectF& area, qreal zoom, QPointF pan)
    : m_scale(zoom > 0 ? zoom / g_percent : fit_scale(picture, area.size()))
{
    m_picture.setSize(QSizeF(picture) * m_scale);
    m_picture.moveCenter(area.center() + pan);
}

int CanvasGeometry::RulerStep() const
{
    for (int decade = 1; decade < g_longest_step; decade *= 10)
        for (const int factor : {1, 2, 5})
            if (factor * decade * m_scale >= g_mark_space)
                return factor * decade;
    return g_longest_step;
}

}
