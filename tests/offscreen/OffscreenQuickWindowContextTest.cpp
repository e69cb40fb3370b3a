#include "tests/offscreen/ColourItem.h"
#include "tests/offscreen/FramedWindow.h"
#include "tests/offscreen/PixelPainter.h"
#include "tests/support/PictureCompare.h"

#include <QOpenGLFunctions>

#include <gtest/gtest.h>

namespace {

constexpr QSize g_size(40, 20);

/// Somebody else's drawing: a context of its own with a framebuffer object, filled with one colour and left
/// bound.
class ForeignDrawing
{
public:
    ForeignDrawing()
    {
        m_context.create();
        m_surface.setFormat(m_context.format());
        m_surface.create();
        MakeCurrent();
        m_fbo.emplace(g_size);
        m_fbo->bind();
        Gl().glClearColor(1, 1, 0, 1);
        Gl().glClear(GL_COLOR_BUFFER_BIT);
        Gl().glEnable(GL_SCISSOR_TEST);
        Gl().glScissor(1, 2, 3, 4);
    }

    ~ForeignDrawing()
    {
        MakeCurrent();
        m_fbo.reset();
    }

    bool MakeCurrent() { return m_context.makeCurrent(&m_surface); }
    bool IsCurrent() const { return QOpenGLContext::currentContext() == &m_context; }
    QOpenGLFunctions& Gl() { return *m_context.functions(); }
    QOpenGLFramebufferObject& Fbo() { return *m_fbo; }

    bool IsBound()
    {
        GLint bound = 0;
        Gl().glGetIntegerv(GL_FRAMEBUFFER_BINDING, &bound);
        return GLuint(bound) == m_fbo->handle();
    }

    QRect Scissor()
    {
        GLint box[4] = {};
        Gl().glGetIntegerv(GL_SCISSOR_BOX, box);
        return {box[0], box[1], box[2], box[3]};
    }

private:
    QOpenGLContext m_context;
    QOffscreenSurface m_surface;
    std::optional<QOpenGLFramebufferObject> m_fbo;
};

GLint integer(GLenum name)
{
    GLint value = -1;
    QOpenGLContext::currentContext()->functions()->glGetIntegerv(name, &value);
    return value;
}

}

TEST(OffscreenQuickWindowContext, ItIsCurrentOnItsSurfaceWhenAFrameIsTold)
{
    FramedWindow window(g_size);
    bool current = false;
    QObject::connect(&window, &OffscreenQuickWindow::sceneRendered, &window,
                     [&] { current = window.IsCurrent(); });

    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(current);
}

TEST(OffscreenQuickWindowContext, ItStaysCurrentAfterATimedFrame)
{
    FramedWindow window(g_size);

    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_TRUE(window.IsCurrent());
}

TEST(OffscreenQuickWindowContext, ItStaysCurrentAfterGrab)
{
    const FramedWindow window(g_size);

    window.grab();

    EXPECT_TRUE(window.IsCurrent());
}

TEST(OffscreenQuickWindowContext, ItIsCurrentAgainWhenTheDrawingTookItAway)
{
    const FramedWindow window(g_size);
    QObject::connect(&window, &QQuickWindow::afterRendering, &window,
                     [] { QOpenGLContext::currentContext()->doneCurrent(); });

    const QImage picture = window.grab();

    EXPECT_TRUE(window.IsCurrent());
    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_size, Qt::white)));
}

TEST(OffscreenQuickWindowContext, ATimedFrameLeavesTheDefaultFramebufferBoundAndTheStateReset)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, QColor(1, 2, 3, 4));

    ASSERT_TRUE(window.DrawDueFrames());

    ASSERT_TRUE(window.IsCurrent());
    EXPECT_EQ(GLuint(integer(GL_FRAMEBUFFER_BINDING)),
              QOpenGLContext::currentContext()->defaultFramebufferObject());
    EXPECT_EQ(integer(GL_CURRENT_PROGRAM), 0);
    EXPECT_EQ(integer(GL_TEXTURE_BINDING_2D), 0);
    EXPECT_EQ(integer(GL_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(integer(GL_SCISSOR_TEST), 0);
    EXPECT_EQ(integer(GL_DEPTH_TEST), 0);
}

TEST(OffscreenQuickWindowContext, AForeignContextKeepsItsPixelsAndItsState)
{
    ForeignDrawing foreign;

    {
        FramedWindow window(g_size);
        foreign.MakeCurrent();
        const ColourItem item(window.contentItem(), g_size, Qt::red);
        window.grab();
        foreign.MakeCurrent();
        ASSERT_TRUE(window.DrawDueFrames());
        foreign.MakeCurrent();
        window.resize(30, 10);
        foreign.MakeCurrent();
    }

    ASSERT_TRUE(foreign.MakeCurrent());
    EXPECT_TRUE(foreign.IsBound());
    EXPECT_EQ(foreign.Scissor(), QRect(1, 2, 3, 4));
    EXPECT_TRUE(foreign.Gl().glIsEnabled(GL_SCISSOR_TEST));
    EXPECT_TRUE(EqualPictures(foreign.Fbo().toImage(), PixelPainter::Blank(g_size, Qt::yellow)));
}

TEST(OffscreenQuickWindowContext, AForeignContextDoesNotGetInTheWayOfAPicture)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    ForeignDrawing foreign;

    const QImage picture = window.grab();

    EXPECT_TRUE(EqualPictures(picture, PixelPainter::Blank(g_size, Qt::red)));
    EXPECT_FALSE(foreign.IsCurrent());
}

TEST(OffscreenQuickWindowContext, WithoutAUsableOneNothingIsDrawnOrToldAndTheSceneStaysDirty)
{
    FramedWindow window(g_size);

    window.d_func()->surface->destroy();
    ColourItem item(window.contentItem(), g_size, Qt::red);
    item.SetColour(Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_EQ(window.Frames(), 0);
    EXPECT_EQ(item.Polishes(), 0);
    EXPECT_EQ(item.Syncs(), 0);
    EXPECT_TRUE(window.d_func()->sceneDirty);
}

TEST(OffscreenQuickWindowContext, AFrameThatCouldNotBeDrawnComesWithTheNextRequestOnly)
{
    FramedWindow window(g_size);
    window.d_func()->surface->destroy();
    const ColourItem item(window.contentItem(), g_size, Qt::red);
    ASSERT_TRUE(window.DrawDueFrames());

    window.d_func()->surface->create();
    const bool retries = window.d_func()->renderTimer.isActive();
    window.update();
    ASSERT_TRUE(window.DrawDueFrames());

    EXPECT_FALSE(retries);
    EXPECT_EQ(window.Frames(), 1);
    EXPECT_TRUE(EqualPictures(window.Drawn(), PixelPainter::Blank(g_size, Qt::red)));
}

TEST(OffscreenQuickWindowContext, WithoutAUsableOneGrabGivesANullPictureAndTheSceneStaysDirty)
{
    FramedWindow window(g_size);
    const ColourItem item(window.contentItem(), g_size, Qt::red);

    window.d_func()->surface->destroy();

    EXPECT_TRUE(window.grab().isNull());
    EXPECT_EQ(item.Syncs(), 0);
    EXPECT_TRUE(window.d_func()->sceneDirty);
}

TEST(OffscreenQuickWindowContext, TwoWindowsHaveOneEachAndDrawTheirOwnScenes)
{
    const FramedWindow left(g_size), right(g_size);
    const ColourItem red(left.contentItem(), g_size, Qt::red), blue(right.contentItem(), g_size, Qt::blue);

    const QImage first = left.grab(), second = right.grab(), again = left.grab();

    EXPECT_NE(left.d_func()->context.get(), right.d_func()->context.get());
    EXPECT_TRUE(EqualPictures(first, PixelPainter::Blank(g_size, Qt::red)));
    EXPECT_TRUE(EqualPictures(second, PixelPainter::Blank(g_size, Qt::blue)));
    EXPECT_TRUE(EqualPictures(again, PixelPainter::Blank(g_size, Qt::red)));
}
