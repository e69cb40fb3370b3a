#pragma once

#include "arbor_qml_support_export.h"

#include <QImage>
#include <QQuickWindow>

#include <memory>

class OffscreenQuickWindowPrivate;

/// A window of Qt Quick that is never shown: its scene is drawn into a framebuffer object, on the GUI thread.
///
/// The scene graph must run on OpenGL, and it is the application that chooses it, before its first window:
///
///     QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
///
/// Frames are drawn only as an answer to changes of the scene, 5 milliseconds after the first of them,
/// however many follow meanwhile. Drawing leaves the window's own OpenGL context current; whoever draws with
/// another one makes that current again.
///
/// Nothing reports a failure. Without a usable context no frame comes and grab() gives a null image. GUI
/// thread only.
class ARBOR_QML_SUPPORT_EXPORT OffscreenQuickWindow : public QQuickWindow
{
    Q_OBJECT

public:
    /// A window of no size, without a parent. Sizes below are in device pixels: the ratio is always 1.
    OffscreenQuickWindow();
    ~OffscreenQuickWindow() override;

    /// The scene as it is now, drawn for this call: as large as the window, 1 x 1 at least, right side up,
    /// Format_ARGB32_Premultiplied. Null where there is no usable context. A frame that is due after a change
    /// is drawn all the same.
    ///
    /// What no item covers has color(): Qt::transparent gives a picture that can be laid over others. Colours
    /// in between are not premultiplied, as Qt clears with them as they are.
    QImage grab() const;

    /// Sets the size and makes the framebuffer object anew, also when the size stays. The resize event that
    /// this sends has the sizes the other way round: its size() is the one before. No context is current
    /// afterwards.
    void resize(const QSize& size);
    void resize(int width, int height);

Q_SIGNALS:
    /// A frame has been drawn into the framebuffer object. The window's context is current.
    void sceneRendered();

protected:
    void resizeEvent(QResizeEvent* event) override;

    const OffscreenQuickWindowPrivate* d_func() const;
    OffscreenQuickWindowPrivate* d_func();

private:
    // The base class takes the private object's render control, so that one comes first.
    ARBOR_QML_SUPPORT_NO_EXPORT explicit OffscreenQuickWindow(std::unique_ptr<OffscreenQuickWindowPrivate> d);

    friend class OffscreenQuickView;
    friend class OffscreenQuickViewPrivate;

    std::unique_ptr<OffscreenQuickWindowPrivate> d_ptr;
};
