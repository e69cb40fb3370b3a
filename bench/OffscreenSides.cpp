#include "bench/OffscreenSides.h"

#include "offscreen/OffscreenQuickView.h"

#include <QEventLoop>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickGraphicsDevice>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickView>
#include <QTest>

namespace {

constexpr int g_frame_milliseconds = 5;

void change(QQuickItem* root, int& step)
{
    root->setProperty("step", ++step);
}

}

OffscreenSide::OffscreenSide(const QSize& size) : m_size(size), m_view(std::make_unique<OffscreenQuickView>())
{
    m_view->setResizeMode(OffscreenQuickView::SizeRootObjectToView);
    m_view->resize(size);
}

OffscreenSide::~OffscreenSide() = default;

void OffscreenSide::Load(const QUrl& url)
{
    m_view->setSource(url);
    m_root = m_view->rootObject();
    m_root->setSize(m_size);
}

void OffscreenSide::Change()
{
    change(m_root, m_step);
}

QImage OffscreenSide::Grab()
{
    return m_view->grab();
}

void OffscreenSide::Frame()
{
    QEventLoop loop;
    QObject::connect(m_view.get(), &OffscreenQuickView::sceneRendered, &loop, &QEventLoop::quit);
    loop.exec();
}

QQmlEngine* OffscreenSide::Engine()
{
    return m_view->rootContext()->engine();
}

BareLoop::BareLoop(const QSize& size)
    : m_size(size),
      m_context(std::make_unique<QOpenGLContext>()),
      m_surface(std::make_unique<QOffscreenSurface>()),
      m_control(std::make_unique<QQuickRenderControl>()),
      m_window(std::make_unique<QQuickWindow>(m_control.get()))
{
    QSurfaceFormat format;
    format.setDepthBufferSize(16);
    format.setStencilBufferSize(8);
    m_context->setFormat(format);
    m_context->create();
    m_surface->setFormat(m_context->format());
    m_surface->create();
    m_context->makeCurrent(m_surface.get());
    m_window->setGraphicsDevice(QQuickGraphicsDevice::fromOpenGLContext(m_context.get()));
    m_control->initialize();
    MakeTarget();
    m_timer.setSingleShot(true);
    m_timer.setInterval(g_frame_milliseconds);
}

BareLoop::~BareLoop()
{
    m_context->makeCurrent(m_surface.get());
    m_root.reset();
    m_control.reset();
    m_target.reset();
}

void BareLoop::MakeTarget()
{
    m_window->setGeometry(QRect(QPoint(), m_size));
    m_target
        = std::make_unique<QOpenGLFramebufferObject>(m_size, QOpenGLFramebufferObject::CombinedDepthStencil);
    m_window->setRenderTarget(QQuickRenderTarget::fromOpenGLTexture(m_target->texture(), m_size));
}

void BareLoop::Load(const QUrl& url)
{
    m_root.reset();
    m_component = std::make_unique<QQmlComponent>(&m_engine, url);
    m_root.reset(qobject_cast<QQuickItem*>(m_component->create()));
    m_root->setParentItem(m_window->contentItem());
    m_root->setSize(m_size);
}

void BareLoop::Change()
{
    change(m_root.get(), m_step);
}

void BareLoop::Draw()
{
    m_context->makeCurrent(m_surface.get());
    m_control->polishItems();
    m_control->beginFrame();
    m_control->sync();
    m_control->render();
    m_control->endFrame();
}

QImage BareLoop::Grab()
{
    Draw();
    return m_target->toImage();
}

void BareLoop::Frame()
{
    QEventLoop loop;
    QObject::connect(&m_timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    m_timer.start();
    loop.exec();
    Draw();
    m_context->functions()->glFlush();
}

void BareLoop::ReadPixels()
{
    if (m_picture.isNull())
        m_picture = QImage(m_size, QImage::Format_ARGB32_Premultiplied);
    m_context->makeCurrent(m_surface.get());
    m_target->bind();
    m_context->functions()->glReadPixels(0, 0, m_size.width(), m_size.height(), GL_BGRA,
                                         GL_UNSIGNED_INT_8_8_8_8_REV, m_picture.bits());
}

QQmlEngine* BareLoop::Engine()
{
    return &m_engine;
}

ShownView::ShownView(const QSize& size) : m_view(std::make_unique<QQuickView>())
{
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(size);
}

ShownView::~ShownView() = default;

void ShownView::Load(const QUrl& url)
{
    m_view->setSource(url);
    m_view->show();
    if (!QTest::qWaitForWindowExposed(m_view.get()))
        qFatal("the view does not come to the display");
}

void ShownView::Change()
{
    change(m_view->rootObject(), m_step);
}

QImage ShownView::Grab()
{
    return m_view->grabWindow();
}
