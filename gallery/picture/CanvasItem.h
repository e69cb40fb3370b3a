#pragma once

#include "gallery/ViewState.h"
#include "gallery/picture/CanvasGeometry.h"
#include "gallery/picture/Document.h"

#include <QColor>
#include <QPolygonF>
#include <QQuickPaintedItem>

namespace Gallery {

/// The image area: draws the picture with grid, guides, selection and rulers, and takes strokes of the brush.
///
/// The right button is left to the window, which opens the context menu.
class CanvasItem : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(Gallery::Document* document MEMBER m_document WRITE SetDocument NOTIFY SourceChanged)
    Q_PROPERTY(Gallery::ViewState* view MEMBER m_view WRITE SetView NOTIFY SourceChanged)
    Q_PROPERTY(QColor desk MEMBER m_desk WRITE SetDesk NOTIFY LookChanged)
    Q_PROPERTY(QColor rulerColor MEMBER m_ruler_color NOTIFY LookChanged)
    Q_PROPERTY(QColor rulerInk MEMBER m_ruler_ink NOTIFY LookChanged)
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY LookChanged)

public:
    explicit CanvasItem(QQuickItem* parent = nullptr);

    void SetDocument(Document* document);
    void SetView(ViewState* view);
    void SetDesk(const QColor& color);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void SourceChanged();
    void LookChanged();

protected:
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    CanvasGeometry geometry() const;
    void refresh();
    QPen stroke_pen() const;
    bool draws() const;
    bool selects() const;
    QRect dragged_rectangle() const;

    Document* m_document = nullptr; // not owned
    ViewState* m_view = nullptr;    // not owned
    qreal m_scale = 0;              // percent, as told to the view last
    QColor m_desk = Qt::gray;
    QColor m_ruler_color = Qt::white;
    QColor m_ruler_ink = Qt::black;
    QColor m_accent = Qt::blue;
    QPolygonF m_drag; // in picture pixels, from the press on
};

}
