#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QUrl>

#include <memory>

QT_BEGIN_NAMESPACE
class QOffscreenSurface;
class QOpenGLContext;
class QOpenGLFramebufferObject;
class QQmlComponent;
class QQuickRenderControl;
class QQuickView;
QT_END_NAMESPACE

class OffscreenQuickView;

// The sides of OffscreenBench, each with the same operations as far as it can:
//
//     Side(size)     a window of this size, empty
//     Load(url)      its root item from a file, in place of the last one
//     Change()       the next step of the scene that is loaded
//     Grab()         the picture of the scene as it is now
//     Frame()        draws what changed, without reading it; ends when the frame has been drawn

/// Ours, through its public interface.
class OffscreenSide
{
public:
    explicit OffscreenSide(const QSize& size);
    ~OffscreenSide();

    void Load(const QUrl& url);
    void Change();
    QImage Grab();
    void Frame();
    QQmlEngine* Engine();

private:
    QSize m_size;
    std::unique_ptr<OffscreenQuickView> m_view;
    QQuickItem* m_root = nullptr;
    int m_step = 0;
};

/// The least that draws a scene without a window: a render control, an OpenGL context and a framebuffer
/// object.
class BareLoop
{
public:
    explicit BareLoop(const QSize& size);
    ~BareLoop();

    void Load(const QUrl& url);
    void Change();
    /// Reads with what Qt has for it, QOpenGLFramebufferObject::toImage().
    QImage Grab();
    /// Waits as long as ours does before it draws.
    void Frame();
    /// Reads the picture that is there, without drawing one and without turning it right side up.
    void ReadPixels();
    QQmlEngine* Engine();

private:
    void MakeTarget();
    void Draw();

    QSize m_size;
    std::unique_ptr<QOpenGLContext> m_context;
    std::unique_ptr<QOffscreenSurface> m_surface;
    std::unique_ptr<QQuickRenderControl> m_control;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<QOpenGLFramebufferObject> m_target;
    QQmlEngine m_engine;
    std::unique_ptr<QQmlComponent> m_component;
    std::unique_ptr<QQuickItem> m_root;
    QImage m_picture;
    QTimer m_timer;
    int m_step = 0;
};

/// Qt's own view, shown on the display.
class ShownView
{
public:
    explicit ShownView(const QSize& size);
    ~ShownView();

    void Load(const QUrl& url);
    void Change();
    QImage Grab();

private:
    std::unique_ptr<QQuickView> m_view;
    int m_step = 0;
};
