#include "tests/offscreen/CornerScene.h"

#include "tests/offscreen/PixelPainter.h"

namespace CornerScene {

QByteArray Item(QSize size, const QByteArray& content)
{
    const QByteArray sizes = size.isValid()
        ? "width: " + QByteArray::number(size.width()) + "; height: " + QByteArray::number(size.height())
        : QByteArray();
    return "Item { id: corners; " + sizes + "\n" + content + R"(
    Rectangle {
        color: "#ffff0000"
        width: Math.ceil(corners.width / 2); height: Math.ceil(corners.height / 2)
    }
    Rectangle {
        color: "#ff00ff00"; anchors.right: corners.right
        width: Math.floor(corners.width / 3); height: Math.floor(corners.height / 4)
    }
    Rectangle {
        color: "#800000ff"; anchors.bottom: corners.bottom
        width: Math.floor(corners.width / 5); height: Math.floor(corners.height / 2)
    }
    Rectangle {
        color: "#ffffff00"; anchors.right: corners.right; anchors.bottom: corners.bottom
        width: Math.floor(corners.width / 4); height: Math.floor(corners.height / 3)
    }
})";
}

QImage Picture(QSize window_size, QSize item_size, const QColor& window_colour)
{
    const int width = item_size.width();
    const int height = item_size.height();
    QImage image = PixelPainter::Blank(window_size, window_colour);
    PixelPainter::Cover(image, {0, 0, (width + 1) / 2, (height + 1) / 2}, 0xffff0000);
    PixelPainter::Cover(image, {width - width / 3, 0, width / 3, height / 4}, 0xff00ff00);
    PixelPainter::Cover(image, {0, height - height / 2, width / 5, height / 2}, 0x80000080);
    PixelPainter::Cover(image, {width - width / 4, height - height / 3, width / 4, height / 3}, 0xffffff00);
    return image;
}

}
