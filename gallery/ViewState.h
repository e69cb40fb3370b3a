#pragma once

#include <QColor>
#include <QObject>
#include <QPointF>

namespace Gallery {

/// How the window shows the picture, and what the next stroke draws. The QML reads and draws it; the commands
/// of the menu change it and then call Tell().
class ViewState : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal zoom MEMBER zoom NOTIFY Changed)
    Q_PROPERTY(qreal scale MEMBER scale NOTIFY Changed)
    Q_PROPERTY(QPointF pan MEMBER pan NOTIFY Changed)
    Q_PROPERTY(bool grid MEMBER grid NOTIFY Changed)
    Q_PROPERTY(int gridSize MEMBER grid_size NOTIFY Changed)
    Q_PROPERTY(bool guides MEMBER guides NOTIFY Changed)
    Q_PROPERTY(bool rulers MEMBER rulers NOTIFY Changed)
    Q_PROPERTY(bool edges MEMBER edges NOTIFY Changed)
    Q_PROPERTY(bool original MEMBER original NOTIFY Changed)
    Q_PROPERTY(bool dark MEMBER dark NOTIFY Changed)
    Q_PROPERTY(bool mainBar MEMBER main_bar NOTIFY Changed)
    Q_PROPERTY(bool textBar MEMBER text_bar NOTIFY Changed)
    Q_PROPERTY(bool toolStrip MEMBER tool_strip NOTIFY Changed)
    Q_PROPERTY(bool sidePanel MEMBER side_panel NOTIFY Changed)
    Q_PROPERTY(bool statusLine MEMBER status_line NOTIFY Changed)
    Q_PROPERTY(bool histogram MEMBER histogram NOTIFY Changed)
    Q_PROPERTY(bool layerPanel MEMBER layer_panel NOTIFY Changed)
    Q_PROPERTY(bool colorPanel MEMBER color_panel NOTIFY Changed)
    Q_PROPERTY(bool fullScreen MEMBER full_screen NOTIFY Changed)
    Q_PROPERTY(QString tool MEMBER tool NOTIFY Changed)
    Q_PROPERTY(int brushWidth MEMBER brush_width NOTIFY Changed)
    Q_PROPERTY(QColor foreground MEMBER foreground NOTIFY Changed)
    Q_PROPERTY(QColor background MEMBER background NOTIFY Changed)

public:
    using QObject::QObject;

    /// Tells the QML that members changed.
    void Tell() { Q_EMIT Changed(); }

    qreal zoom = 0;    ///< Percent; 0 fits the picture into the window.
    qreal scale = 100; ///< Percent at which the picture shows now; written by the canvas.
    QPointF pan;       ///< Logical pixels that the picture lies off the centre.
    bool grid = false;
    int grid_size = 50; ///< Picture pixels.
    bool guides = false;
    bool rulers = true;
    bool edges = true;     ///< The edge of the selection shows.
    bool original = false; ///< The picture without its layer shows.
    bool dark = false;
    bool main_bar = true;
    bool text_bar = true;
    bool tool_strip = true;
    bool side_panel = true;
    bool status_line = true;
    bool histogram = true;
    bool layer_panel = true;
    bool color_panel = true;
    bool full_screen = false;
    QString tool = QStringLiteral("brush");
    int brush_width = 5; ///< Picture pixels, 1 to 200.
    QColor foreground = QColor(0x1b, 0x1b, 0x1f);
    QColor background = Qt::white;

Q_SIGNALS:
    void Changed();
};

}
