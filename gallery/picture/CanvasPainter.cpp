#include "gallery/picture/CanvasPainter.h"

#include <QFont>

#include <cmath>

namespace Gallery {

namespace {

constexpr int g_parts = 10;  // short marks from one number to the next
constexpr int g_shadow = 10; // logical pixels
constexpr int g_font_size = 9;
constexpr qreal g_smooth_below = 2; // scale from which on single pixels show

QPen thin(const QColor& color)
{
    QPen pen(color);
    pen.setCosmetic(true);
    return pen;
}

QBrush checkerboard()
{
    QImage tile(16, 16, QImage::Format_RGB32);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    painter.fillRect(0, 0, 8, 8, QColor(0xd8, 0xd8, 0xdc));
    painter.fillRect(8, 8, 8, 8, QColor(0xd8, 0xd8, 0xdc));
    return tile;
}

}

void CanvasPainter::DrawPicture(const QImage& image)
{
    const QRectF picture = m_geometry.Picture();
    m_painter.save();
    draw_shadow(picture);
    m_painter.fillRect(picture, checkerboard());
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, m_geometry.Scale() < g_smooth_below);
    m_painter.drawImage(picture, image);
    m_painter.restore();
}

void CanvasPainter::draw_shadow(const QRectF& picture)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(0, 0, 0, 7));
    for (int i = g_shadow; i > 0; --i)
        m_painter.drawRoundedRect(picture.adjusted(-i, -i + 3, i, i + 3), i, i);
}

void CanvasPainter::DrawGrid(int step)
{
    const QRectF picture = m_geometry.Picture();
    const qreal space = step * m_geometry.Scale();
    if (space < 3)
        return;
    m_painter.save();
    m_painter.setPen(thin(QColor(255, 255, 255, 90)));
    for (qreal x = picture.left() + space; x < picture.right(); x += space)
        m_painter.drawLine(QPointF(x, picture.top()), QPointF(x, picture.bottom()));
    for (qreal y = picture.top() + space; y < picture.bottom(); y += space)
        m_painter.drawLine(QPointF(picture.left(), y), QPointF(picture.right(), y));
    m_painter.restore();
}

void CanvasPainter::DrawGuides(const QColor& color)
{
    const QRectF picture = m_geometry.Picture();
    m_painter.save();
    m_painter.setPen(thin(color));
    for (const qreal third : {1 / 3.0, 2 / 3.0}) {
        const qreal x = picture.left() + third * picture.width();
        const qreal y = picture.top() + third * picture.height();
        m_painter.drawLine(QPointF(x, m_bounds.top()), QPointF(x, m_bounds.bottom()));
        m_painter.drawLine(QPointF(m_bounds.left(), y), QPointF(m_bounds.right(), y));
    }
    m_painter.restore();
}

void CanvasPainter::DrawSelection(const QRect& selection)
{
    const QRectF edge(m_geometry.FromPicture(selection.topLeft()),
                      QSizeF(selection.size()) * m_geometry.Scale());
    QPen dashes = thin(Qt::black);
    dashes.setDashPattern({4, 4});
    m_painter.save();
    m_painter.setPen(thin(Qt::white));
    m_painter.drawRect(edge);
    m_painter.setPen(dashes);
    m_painter.drawRect(edge);
    m_painter.restore();
}

void CanvasPainter::DrawRulers(const QColor& ground, const QColor& ink)
{
    m_painter.save();
    QFont font = m_painter.font();
    font.setPixelSize(g_font_size);
    m_painter.setFont(font);
    m_painter.fillRect(QRectF(0, 0, m_bounds.width(), RulerSize), ground);
    m_painter.fillRect(QRectF(0, 0, RulerSize, m_bounds.height()), ground);
    draw_ruler(Qt::Horizontal, ink);
    draw_ruler(Qt::Vertical, ink);
    m_painter.fillRect(QRectF(0, 0, RulerSize, RulerSize), ground);
    m_painter.restore();
}

void CanvasPainter::draw_ruler(Qt::Orientation orientation, const QColor& ink)
{
    const bool across = orientation == Qt::Horizontal;
    const qreal origin = across ? m_geometry.Picture().left() : m_geometry.Picture().top();
    const qreal length = across ? m_bounds.width() : m_bounds.height();
    const int step = m_geometry.RulerStep();
    const qreal space = step * m_geometry.Scale() / g_parts;
    m_painter.setPen(thin(ink));
    for (int i = static_cast<int>(std::floor((RulerSize - origin) / space)); origin + i * space < length;
         ++i) {
        const int part = ((i % g_parts) + g_parts) % g_parts;
        draw_mark(orientation, origin + i * space, part == 0 ? RulerSize : part == g_parts / 2 ? 7 : 4);
        if (part == 0)
            draw_number(orientation, origin + i * space, i / g_parts * step);
    }
}

void CanvasPainter::draw_mark(Qt::Orientation orientation, qreal at, int length)
{
    const qreal place = std::floor(at) + 0.5;
    if (orientation == Qt::Horizontal)
        m_painter.drawLine(QPointF(place, RulerSize - length), QPointF(place, RulerSize));
    else
        m_painter.drawLine(QPointF(RulerSize - length, place), QPointF(RulerSize, place));
}

void CanvasPainter::draw_number(Qt::Orientation orientation, qreal at, int number)
{
    m_painter.save();
    if (orientation == Qt::Horizontal) {
        m_painter.drawText(QPointF(at + 4, g_font_size + 1), QString::number(number));
    } else {
        m_painter.translate(g_font_size + 1, at - 4);
        m_painter.rotate(-90);
        m_painter.drawText(QPointF(0, 0), QString::number(number));
    }
    m_painter.restore();
}

}
