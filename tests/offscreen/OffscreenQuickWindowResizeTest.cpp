#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/support/PictureCompare.h"

#include <QQuickRenderTarget>
#include <QResizeEvent>

#include <gtest/gtest.h>

namespace {

/// Keeps what the last resize event said, and the size that the window had then.
class ResizedWindow : public FramedWindow
{
public:
    QSize m_event_size, m_event_old_size, m_window_size;
    int m_events = 0;

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        ++m_events;
        m_event_size = event->size();
        m_event_old_size = event->oldSize();
        m_window_size = size();
        FramedWindow::resizeEvent(event);
    }
};

const OffscreenQuickWindowPrivate& privates(const FramedWindow& window)
{
    return *window.d_func();
}

QQuickRenderTarget target_of(const FramedWindow& window, QSize size)
{
    return QQuickRenderTarget::fromOpenGLTexture(privates(window).fbo->texture(), size, 1);
}

}

TEST(OffscreenQuickWindowResize, TheEventHasTheSizeBeforeAsItsSizeAndTheNewOneAsItsOldSize)
{
    ResizedWindow window;
    window.resize(QSize(40, 20));

    window.resize(QSize(30, 10));

    EXPECT_EQ(window.m_events, 2);
    EXPECT_EQ(window.m_event_size, QSize(40, 20));
    EXPECT_EQ(window.m_event_old_size, QSize(30, 10));
}

TEST(OffscreenQuickWindowResize, TheWindowHasTheNewSizeWhenTheEventComes)
{
    ResizedWindow window;

    window.resize(QSize(30, 10));

    EXPECT_EQ(window.m_window_size, QSize(30, 10));
}

TEST(OffscreenQuickWindowResize, WidthAndHeightDoTheSameAsASize)
{
    ResizedWindow window;

    window.resize(30, 10);

    EXPECT_EQ(window.size(), QSize(30, 10));
    EXPECT_EQ(window.m_events, 1);
    EXPECT_EQ(window.m_event_old_size, QSize(30, 10));
    EXPECT_EQ(privates(window).fbo->size(), QSize(30, 10));
}

TEST(OffscreenQuickWindowResize, ItMovesTheWindowToTheOrigin)
{
    OffscreenQuickWindow window;
    window.setPosition(7, 9);

    window.resize(QSize(30, 10));

    EXPECT_EQ(window.geometry(), QRect(0, 0, 30, 10));
}

// What the base class makes of the event's sizes.
TEST(OffscreenQuickWindowResize, TheContentItemTakesTheSizeBefore)
{
    OffscreenQuickWindow window;

    window.resize(40, 20);
    const QSizeF first = window.contentItem()->size();
    window.resize(30, 10);

    EXPECT_EQ(first, QSizeF(0, 0));
    EXPECT_EQ(window.contentItem()->size(), QSizeF(40, 20));
}

TEST(OffscreenQuickWindowResize, TheFramebufferObjectAndTheTargetTakeTheNewSize)
{
    FramedWindow window;

    window.resize(QSize(40, 20));

    EXPECT_EQ(privates(window).fbo->size(), QSize(40, 20));
    EXPECT_EQ(window.renderTarget(), target_of(window, {40, 20}));
}

TEST(OffscreenQuickWindowResize, AWindowOfNoSizeHasAFramebufferOfOnePixelWhileTheTargetIsEmpty)
{
    const FramedWindow window;

    EXPECT_EQ(privates(window).fbo->size(), QSize(1, 1));
    EXPECT_TRUE(window.renderTarget().isNull());
}

TEST(OffscreenQuickWindowResize, ASizeOfNoHeightHasAFramebufferOfOneRowWhileTheTargetIsEmpty)
{
    FramedWindow window;

    window.resize(40, 0);

    EXPECT_EQ(privates(window).fbo->size(), QSize(40, 1));
    EXPECT_TRUE(window.renderTarget().isNull());
}

TEST(OffscreenQuickWindowResize, BackToNoSizeDropsTheTarget)
{
    FramedWindow window({40, 20});

    window.resize(0, 0);

    EXPECT_EQ(privates(window).fbo->size(), QSize(1, 1));
    EXPECT_TRUE(window.renderTarget().isNull());
}

TEST(OffscreenQuickWindowResize, ANegativeSizeIsDrawnAsNone)
{
    FramedWindow window({40, 20});

    window.resize(-3, 20);

    EXPECT_EQ(privates(window).fbo->size(), QSize(1, 20));
    EXPECT_TRUE(window.renderTarget().isNull());
}

TEST(OffscreenQuickWindowResize, ThePresentSizeStillRebuildsTheFramebufferObject)
{
    FramedWindow window({40, 20});
    window.setColor(Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());
    ASSERT_EQ(window.Drawn().pixelColor(0, 0), QColor(Qt::red));

    window.resize(40, 20);

    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank({40, 20}, Qt::transparent)));
}

TEST(OffscreenQuickWindowResize, ThePresentSizeIsDrawnIntoTheNewFramebufferObject)
{
    FramedWindow window({40, 20});
    window.setColor(Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    window.resize(40, 20);

    EXPECT_TRUE(EqualPictures(window.grab(), PixelPainter::Blank({40, 20}, Qt::red)));
}

TEST(OffscreenQuickWindowResize, ASizeAloneAsksForNoFrame)
{
    FramedWindow window({40, 20});
    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    window.resize(40, 20); // the content item, too, has that size from here on
    ASSERT_TRUE(window.DrawDueFrames());
    const int frames = window.Frames();
    window.resize(40, 20);

    EXPECT_FALSE(privates(window).renderTimer.isActive());
    EXPECT_EQ(window.Frames(), frames);
}

TEST(OffscreenQuickWindowResize, ItLeavesNoContextCurrent)
{
    FramedWindow window({40, 20});
    window.grab();

    window.resize(30, 10);

    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}

TEST(OffscreenQuickWindowResize, WithoutAUsableContextTheFormerFramebufferObjectStays)
{
    FramedWindow window({40, 20});
    const QOpenGLFramebufferObject* const former = privates(window).fbo.get();

    privates(window).surface->destroy();
    window.resize(30, 10);

    EXPECT_EQ(window.size(), QSize(30, 10));
    EXPECT_EQ(privates(window).fbo.get(), former);
    EXPECT_EQ(former->size(), QSize(40, 20));
}

TEST(OffscreenQuickWindowResize, AfterManySizesThePictureIsThatOfTheLast)
{
    FramedWindow window;
    const ColourItem item(window.contentItem(), {10, 10}, Qt::blue);

    for (int size = 1; size <= 50; ++size) {
        window.resize(size, 51 - size);
        window.grab();
    }
    window.resize(12, 11);

    QImage expected = PixelPainter::Blank({12, 11}, Qt::white);
    PixelPainter::Cover(expected, {0, 0, 10, 10}, 0xff0000ff);
    EXPECT_TRUE(EqualPictures(window.grab(), expected));
}
