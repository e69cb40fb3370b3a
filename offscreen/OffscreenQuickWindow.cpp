#include "offscreen/OffscreenQuickWindow.h"

#include "offscreen/OffscreenQuickWindowPrivate.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QQuickRenderControl>
#include <QResizeEvent>

OffscreenQuickWindow::OffscreenQuickWindow()
    : OffscreenQuickWindow(std::make_unique<OffscreenQuickWindowPrivate>())
{ }

OffscreenQuickWindow::OffscreenQuickWindow(std::unique_ptr<OffscreenQuickWindowPrivate> d)
    : QQuickWindow(d->renderControl.get()), d_ptr(std::move(d))
{
    d_ptr->initialize(this);
}

// The scene graph ends before the base class does, with the context current.
OffscreenQuickWindow::~OffscreenQuickWindow() = default;

QImage OffscreenQuickWindow::grab() const
{
    return d_func()->grab();
}

void OffscreenQuickWindow::resize(const QSize& size)
{
    QResizeEvent event(this->size(), size);
    setGeometry(0, 0, size.width(), size.height());
    resizeEvent(&event);
}

void OffscreenQuickWindow::resize(int width, int height)
{
    resize(QSize(width, height));
}

void OffscreenQuickWindow::resizeEvent(QResizeEvent* event)
{
    QQuickWindow::resizeEvent(event);
    d_func()->rebuildTarget();
}

const OffscreenQuickWindowPrivate* OffscreenQuickWindow::d_func() const
{
    return d_ptr.get();
}

OffscreenQuickWindowPrivate* OffscreenQuickWindow::d_func()
{
    return d_ptr.get();
}
