#include "offscreen/OffscreenQuickWindowPrivate.h"

#include "offscreen/OffscreenQuickWindow.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QQuickGraphicsDevice>
#include <QQuickOpenGLUtils>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int g_frame_milliseconds = 5;

QSurfaceFormat surface_format()
{
    QSurfaceFormat format;
    format.setDepthBufferSize(16);
    format.setStencilBufferSize(8);
    return format;
}

void clear(QOpenGLFramebufferObject& fbo)
{
    QQuickOpenGLUtils::resetOpenGLState(); // no scissor, all channels, a transparent clear colour
    if (fbo.bind())
        QOpenGLContext::currentContext()->functions()->glClear(GL_COLOR_BUFFER_BIT);
    QOpenGLFramebufferObject::bindDefault();
}

// OpenGL's first row is the lowest.
void turn_upside_down(QImage& image)
{
    const qsizetype width = image.width();
    auto* top = reinterpret_cast<QRgb*>(image.bits());
    auto* bottom = top + width * (image.height() - 1);
    for (; top < bottom; top += width, bottom -= width)
        std::swap_ranges(top, top + width, bottom);
}

// A quarter faster than toImage(), which turns the rows in an image of its own.
QImage read(QOpenGLFramebufferObject& fbo)
{
    QOpenGLContext* const context = QOpenGLContext::currentContext();
    if (context->isOpenGLES()) // where blue first is no format that has to be there
        return fbo.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (!fbo.bind())
        return {};
    QImage image(fbo.size(), QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull()) {
        context->functions()->glReadPixels(0, 0, image.width(), image.height(), GL_BGRA,
                                           GL_UNSIGNED_INT_8_8_8_8_REV, image.bits());
        turn_upside_down(image);
    }
    QOpenGLFramebufferObject::bindDefault();
    return image;
}

}

OffscreenQuickWindowPrivate::OffscreenQuickWindowPrivate()
    : context(std::make_unique<QOpenGLContext>()),
      surface(std::make_unique<QOffscreenSurface>()),
      renderControl(std::make_unique<QQuickRenderControl>())
{
    renderTimer.setSingleShot(true);
    renderTimer.setInterval(g_frame_milliseconds);
    connect(&renderTimer, &QTimer::timeout, this, &OffscreenQuickWindowPrivate::renderScene);
    connect(renderControl.get(), &QQuickRenderControl::renderRequested, this,
            &OffscreenQuickWindowPrivate::renderRequested);
    connect(renderControl.get(), &QQuickRenderControl::sceneChanged, this,
            &OffscreenQuickWindowPrivate::sceneChanged);
    context->setFormat(surface_format());
    context->create();
    surface->setFormat(context->format());
    surface->create();
}

OffscreenQuickWindowPrivate::~OffscreenQuickWindowPrivate()
{
    makeCurrent();
    renderControl.reset(); // ends the scene graph, which drops the framebuffer object
    context->doneCurrent();
    surface.reset();
    context.reset();
}

void OffscreenQuickWindowPrivate::initialize(OffscreenQuickWindow* window)
{
    q = window;
    connect(q, &QQuickWindow::sceneGraphInitialized, this,
            &OffscreenQuickWindowPrivate::sceneGraphInitialized);
    connect(q, &QQuickWindow::sceneGraphInvalidated, this,
            &OffscreenQuickWindowPrivate::sceneGraphInvalidated);
    // The scene graph takes the colour when it syncs, yet for a new one it asks for a repaint only.
    connect(q, &QQuickWindow::colorChanged, this, &OffscreenQuickWindowPrivate::sceneChanged);
    if (makeCurrent() && q->rendererInterface()->graphicsApi() == QSGRendererInterface::OpenGL)
        startSceneGraph();
    context->doneCurrent();
}

void OffscreenQuickWindowPrivate::startSceneGraph() const
{
    // Otherwise the scene graph makes a context of its own, to which the framebuffer object is unknown.
    q->setGraphicsDevice(QQuickGraphicsDevice::fromOpenGLContext(context.get()));
    if (!renderControl->initialize())
        return;
    // A repaint without a change before it needs a scene graph that knows the window. Nothing has changed
    // yet.
    const QSignalBlocker quiet(renderControl.get());
    renderControl->beginFrame();
    renderControl->sync();
    renderControl->endFrame();
}

bool OffscreenQuickWindowPrivate::makeCurrent() const
{
    return context->isValid() && context->makeCurrent(surface.get());
}

void OffscreenQuickWindowPrivate::sceneGraphInitialized()
{
    const QSize size = q->size();
    fbo = std::make_unique<QOpenGLFramebufferObject>(
        QSize(1, 1).expandedTo(size), QOpenGLFramebufferObject::CombinedDepthStencil, GL_TEXTURE_2D, 0);
    clear(*fbo);
    // A new texture may get the name of the last one. At an unchanged size the scene graph would then go on
    // with what it built for the old texture, unless it sees another target in between.
    q->setRenderTarget(QQuickRenderTarget());
    if (!size.isEmpty() && fbo->isValid())
        q->setRenderTarget(QQuickRenderTarget::fromOpenGLTexture(fbo->texture(), size, 1));
}

void OffscreenQuickWindowPrivate::sceneGraphInvalidated()
{
    fbo.reset();
}

void OffscreenQuickWindowPrivate::renderRequested()
{
    startTimer();
}

void OffscreenQuickWindowPrivate::sceneChanged()
{
    sceneDirty = true;
    startTimer();
}

// A request while the timer runs does not put the frame off.
void OffscreenQuickWindowPrivate::startTimer()
{
    if (!renderTimer.isActive())
        renderTimer.start();
}

void OffscreenQuickWindowPrivate::renderScene()
{
    if (!fbo || !makeCurrent())
        return;
    const bool changed = sceneDirty;
    beginFrame(changed);
    if (changed)
        sceneDirty = false;
    endFrame();
    QQuickOpenGLUtils::resetOpenGLState();
    QOpenGLFramebufferObject::bindDefault();
    context->functions()->glFlush();
    Q_EMIT q->sceneRendered();
}

QImage OffscreenQuickWindowPrivate::grab() const
{
    if (!fbo || !makeCurrent())
        return {};
    beginFrame(sceneDirty);
    endFrame();
    return read(*fbo);
}

void OffscreenQuickWindowPrivate::rebuildTarget()
{
    if (!fbo || !makeCurrent())
        return;
    fbo.reset();
    sceneGraphInitialized();
    context->doneCurrent();
}

// Items are polished before the frame: what they do then must not meet an open one.
void OffscreenQuickWindowPrivate::beginFrame(bool changed) const
{
    if (changed)
        renderControl->polishItems();
    renderControl->beginFrame();
    if (changed)
        renderControl->sync();
}

void OffscreenQuickWindowPrivate::endFrame() const
{
    if (!q->renderTarget().isNull()) // a window without a size: nothing to draw on
        renderControl->render();
    renderControl->endFrame();
    if (QOpenGLContext::currentContext() != context.get() || context->surface() != surface.get())
        context->makeCurrent(surface.get());
}
