#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
class QOffscreenSurface;
class QOpenGLContext;
class QOpenGLFramebufferObject;
class QQuickRenderControl;
QT_END_NAMESPACE

class OffscreenQuickWindow;

/// What an OffscreenQuickWindow draws with. It exists before the window, whose base class asks for the render
/// control, and dies before that base class does.
class OffscreenQuickWindowPrivate : public QObject
{
    Q_OBJECT

public:
    OffscreenQuickWindowPrivate();
    ~OffscreenQuickWindowPrivate() override;

    /// Starts the scene graph of `window`, whose base class has taken the render control.
    void initialize(OffscreenQuickWindow* window);

    /// Makes the context current on the surface. False, without a word, where there is no usable context;
    /// then the current context stays as it is.
    bool makeCurrent() const;

    /// Draws a frame and says so, if the context can be made current; it then stays current.
    void renderScene();

    /// Draws the scene as it is now and reads it. Leaves sceneDirty as it is and the context current.
    QImage grab() const;

    /// Makes the framebuffer object anew in the size that the window has now. No context is current then.
    void rebuildTarget();

public Q_SLOTS:
    void sceneGraphInitialized();
    void sceneGraphInvalidated();
    void renderRequested();
    void sceneChanged();

private:
    void startSceneGraph() const;
    void startTimer();
    void beginFrame(bool changed) const;
    void endFrame() const;

public:
    std::unique_ptr<QOpenGLContext> context;
    std::unique_ptr<QOffscreenSurface> surface;
    std::unique_ptr<QQuickRenderControl> renderControl;
    std::unique_ptr<QOpenGLFramebufferObject> fbo;
    bool sceneDirty = false; ///< The scene needs polish and sync before the next frame.
    QTimer renderTimer;
    OffscreenQuickWindow* q = nullptr;
};
