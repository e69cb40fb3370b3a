#pragma once

#include "offscreen/OffscreenQuickWindow.h"
#include "offscreen/OffscreenQuickWindowPrivate.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QQuickRenderControl>
#include <QTest>

/// An OffscreenQuickWindow, or a class derived from it, whose frames a test counts, waits for and reads.
template <typename Window>
class Framed : public Window
{
public:
    using Window::d_func;
    using Window::Window;

    int Frames() const { return m_frames; }

    /// True once no frame is due any more; false when that takes too long.
    bool DrawDueFrames()
    {
        return QTest::qWaitFor([this] { return !d_func()->renderTimer.isActive(); }, 20'000);
    }

    /// Whether the window's context is current on the surface that it draws on.
    bool IsCurrent() const
    {
        return QOpenGLContext::currentContext() == d_func()->context.get()
            && d_func()->context->surface() == d_func()->surface.get();
    }

    /// What stands in the framebuffer object; makes the context current.
    QImage Drawn()
    {
        const OffscreenQuickWindowPrivate& d = *d_func();
        return d.context->makeCurrent(d.surface.get()) ? d.fbo->toImage() : QImage();
    }

private:
    int m_frames = 0;
    const QMetaObject::Connection m_counting
        = QObject::connect(this, &OffscreenQuickWindow::sceneRendered, this, [this] { ++m_frames; });
};
