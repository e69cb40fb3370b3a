#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

/// A scene that no flip, turn, shift or scale leaves as it is: corners of different colours and sizes, the
/// one below on the left half transparent, with nothing between them. Its top left corner is there at any
/// size.
namespace CornerScene {

/// The QML text of the item, of the size that is given, with `content` inside it behind the corners.
QByteArray Item(QSize size = {}, const QByteArray& content = {});

/// The premultiplied picture of an item of `item_size` in a window of `window_size`, drawn by loops over
/// pixels. The window's colour has to be opaque or transparent altogether.
QImage Picture(QSize window_size, QSize item_size, const QColor& window_colour);

/// The same where the item fills the window.
inline QImage Picture(QSize size, const QColor& window_colour)
{
    return Picture(size, size, window_colour);
}

}
