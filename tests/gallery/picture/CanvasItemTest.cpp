#include "gallery/picture/CanvasItem.h"

#include <QMouseEvent>
#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::CanvasItem;

namespace {

class Canvas : public CanvasItem
{
public:
    using CanvasItem::mouseMoveEvent;
    using CanvasItem::mousePressEvent;
    using CanvasItem::mouseReleaseEvent;
    using CanvasItem::wheelEvent;
};

/// A canvas of 1,256 by 856 without rulers, so that the picture of 1,200 by 800 fits at its own size.
class CanvasItemTest : public testing::Test
{
protected:
    CanvasItemTest()
    {
        m_view.rulers = false;
        m_canvas.SetDocument(&m_document);
        m_canvas.SetView(&m_view);
        m_canvas.setSize(QSizeF(1256, 856));
    }

    void drag(QPointF from, QPointF to)
    {
        m_canvas.mousePressEvent(mouse(QEvent::MouseButtonPress, from).get());
        m_canvas.mouseMoveEvent(mouse(QEvent::MouseMove, to).get());
        m_canvas.mouseReleaseEvent(mouse(QEvent::MouseButtonRelease, to).get());
    }

    QImage drawn()
    {
        QImage image(1256, 856, QImage::Format_RGB32);
        image.fill(Qt::gray);
        QPainter painter(&image);
        m_canvas.paint(&painter);
        return image;
    }

    static std::unique_ptr<QMouseEvent> mouse(QEvent::Type type, QPointF at)
    {
        return std::make_unique<QMouseEvent>(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    }

    static std::unique_ptr<QWheelEvent> wheel(Qt::KeyboardModifiers modifiers)
    {
        return std::make_unique<QWheelEvent>(QPointF(), QPointF(), QPoint(), QPoint(0, 120), Qt::NoButton,
                                             modifiers, Qt::NoScrollPhase, false);
    }

    Gallery::Document m_document;
    Gallery::ViewState m_view;
    Canvas m_canvas;
};

}

TEST_F(CanvasItemTest, FittingThePictureTellsTheScale)
{
    EXPECT_DOUBLE_EQ(m_view.scale, 100);

    m_canvas.setSize(QSizeF(656, 456));

    EXPECT_DOUBLE_EQ(m_view.scale, 50);
}

TEST_F(CanvasItemTest, TwoOfDifferentSizesShareAView)
{
    Canvas other;
    other.SetDocument(&m_document);
    other.SetView(&m_view);

    other.setSize(QSizeF(656, 456));
    EXPECT_DOUBLE_EQ(m_view.scale, 50);
    m_canvas.setSize(QSizeF(956, 656));

    EXPECT_DOUBLE_EQ(m_view.scale, 75);
}

TEST_F(CanvasItemTest, ThePictureIsDrawnWithItsLayer)
{
    m_document.SetLayerOpacity(100);

    EXPECT_EQ(drawn().pixel(28 + 900, 28 + 100), m_document.Shown().pixel(900, 100));
}

TEST_F(CanvasItemTest, TheOriginalIsDrawnWithoutItsLayer)
{
    m_view.original = true;

    EXPECT_EQ(drawn().pixel(28 + 900, 28 + 100), m_document.Image().pixel(900, 100));
}

TEST_F(CanvasItemTest, WithoutADocumentNothingIsDrawn)
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);

    CanvasItem().paint(&painter);

    EXPECT_EQ(image.pixel(5, 5), QColor(Qt::gray).rgb());
}

TEST_F(CanvasItemTest, TheBrushDrawsAStrokeInOneStep)
{
    m_view.foreground = Qt::green;

    drag(QPointF(128, 128), QPointF(328, 128));

    EXPECT_EQ(m_document.Image().pixel(200, 100), 0xff00ff00);
    EXPECT_TRUE(m_document.Undo());
    EXPECT_FALSE(m_document.CanUndo());
}

TEST_F(CanvasItemTest, TheEraserDrawsWithTheBackgroundColour)
{
    m_view.tool = u"eraser"_s;

    drag(QPointF(128, 128), QPointF(328, 128));

    EXPECT_EQ(m_document.Image().pixel(200, 100), 0xffffffff);
}

TEST_F(CanvasItemTest, TheRectangleToolSelects)
{
    m_view.tool = u"rectselect"_s;

    drag(QPointF(138, 148), QPointF(38, 48));

    EXPECT_EQ(m_document.Selection(), QRect(10, 20, 100, 100));
    EXPECT_FALSE(m_document.CanUndo());
}

TEST_F(CanvasItemTest, OtherToolsChangeNothing)
{
    m_view.tool = u"hand"_s;

    drag(QPointF(128, 128), QPointF(328, 128));

    EXPECT_FALSE(m_document.CanUndo());
    EXPECT_TRUE(m_document.Selection().isEmpty());
}

TEST_F(CanvasItemTest, AStrokeShowsWhileItIsDrawn)
{
    m_view.foreground = Qt::green;
    m_canvas.mousePressEvent(mouse(QEvent::MouseButtonPress, QPointF(128, 128)).get());
    m_canvas.mouseMoveEvent(mouse(QEvent::MouseMove, QPointF(328, 128)).get());

    EXPECT_EQ(drawn().pixel(228, 128), 0xff00ff00);
    EXPECT_FALSE(m_document.CanUndo());
}

TEST_F(CanvasItemTest, TheWheelPansAndZoomsWithCtrl)
{
    m_canvas.wheelEvent(wheel(Qt::NoModifier).get());
    EXPECT_EQ(m_view.pan, QPointF(0, 30));

    m_canvas.wheelEvent(wheel(Qt::ControlModifier).get());
    EXPECT_GT(m_view.zoom, 100);
}
