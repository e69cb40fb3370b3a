#include "gallery/picture/CanvasItem.h"

#include "gallery/picture/CanvasPainter.h"

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qreal g_wheel_zoom = 1.0015; // for each eighth of a degree
constexpr qreal g_percent = 100;
const QColor g_guide_color(0x2f, 0xb5, 0xc9);

}

CanvasItem::CanvasItem(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setOpaquePainting(true);
    setActiveFocusOnTab(true);
    connect(this, &CanvasItem::LookChanged, this, [this] { update(); });
}

void CanvasItem::SetDocument(Document* document)
{
    m_document = document;
    connect(document, &Document::Changed, this, &CanvasItem::refresh);
    Q_EMIT SourceChanged();
    refresh();
}

void CanvasItem::SetView(ViewState* view)
{
    m_view = view;
    connect(view, &ViewState::Changed, this, &CanvasItem::refresh);
    Q_EMIT SourceChanged();
    refresh();
}

void CanvasItem::SetDesk(const QColor& color)
{
    m_desk = color;
    setFillColor(color);
    Q_EMIT LookChanged();
}

CanvasGeometry CanvasItem::geometry() const
{
    const int ruler = m_view->rulers ? RulerSize : 0;
    return {m_document->Size(), boundingRect().adjusted(ruler, ruler, 0, 0), m_view->zoom, m_view->pan};
}

void CanvasItem::paint(QPainter* painter)
{
    if (!m_document || !m_view)
        return;
    const CanvasGeometry placed = geometry();
    CanvasPainter parts(*painter, placed, boundingRect());
    parts.DrawPicture(m_view->original ? m_document->Image() : m_document->Shown());
    if (m_view->grid)
        parts.DrawGrid(m_view->grid_size);
    if (m_view->guides)
        parts.DrawGuides(g_guide_color);
    if (m_view->edges && !m_document->Selection().isEmpty())
        parts.DrawSelection(m_document->Selection());
    if (draws() && m_drag.size() > 1) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(placed.Picture().topLeft());
        painter->scale(placed.Scale(), placed.Scale());
        painter->setPen(stroke_pen());
        painter->drawPolyline(m_drag);
        painter->restore();
    }
    if (m_view->rulers)
        parts.DrawRulers(m_ruler_color, m_ruler_ink);
}

void CanvasItem::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickPaintedItem::geometryChange(now, before);
    refresh();
}

void CanvasItem::refresh()
{
    if (!m_document || !m_view)
        return;
    // Compared with this canvas's own: another one, of another size, may show the same view.
    const qreal scale = geometry().Scale() * g_percent;
    if (!qFuzzyCompare(scale, m_scale)) {
        m_scale = scale;
        m_view->scale = scale;
        m_view->Tell();
    }
    update();
}

bool CanvasItem::draws() const
{
    return m_view->tool == u"brush"_s || m_view->tool == u"pencil"_s || m_view->tool == u"eraser"_s;
}

bool CanvasItem::selects() const
{
    return m_view->tool == u"rectselect"_s || m_view->tool == u"crop"_s;
}

QPen CanvasItem::stroke_pen() const
{
    const QColor color = m_view->tool == u"eraser"_s ? m_view->background : m_view->foreground;
    return QPen(color, m_view->brush_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

QRect CanvasItem::dragged_rectangle() const
{
    return QRectF(m_drag.first(), m_drag.last()).normalized().toRect();
}

void CanvasItem::mousePressEvent(QMouseEvent* event)
{
    m_drag = {geometry().ToPicture(event->position())};
    update();
}

void CanvasItem::mouseMoveEvent(QMouseEvent* event)
{
    m_drag << geometry().ToPicture(event->position());
    if (selects())
        m_document->SetSelection(dragged_rectangle());
    update();
}

void CanvasItem::mouseReleaseEvent(QMouseEvent*)
{
    if (draws()) {
        QImage image = m_document->Image();
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, m_view->tool != u"pencil"_s);
        painter.setPen(stroke_pen());
        m_drag << m_drag.last();
        painter.drawPolyline(m_drag);
        painter.end();
        m_document->Change(image);
    }
    m_drag.clear();
    update();
}

void CanvasItem::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier)
        m_view->zoom = m_view->scale * std::pow(g_wheel_zoom, event->angleDelta().y());
    else
        m_view->pan += QPointF(event->angleDelta()) / 4;
    m_view->Tell();
}

}
