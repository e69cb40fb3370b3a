#pragma once

#include "offscreen/OffscreenQuickWindow.h"

#include <QList>
#include <QQmlError>
#include <QUrl>

QT_BEGIN_NAMESPACE
class QQmlContext;
class QQmlEngine;
class QQuickItem;
QT_END_NAMESPACE

class OffscreenQuickViewPrivate;

/// An offscreen window that shows a QML file, as QQuickView does in a window on the screen.
///
///     OffscreenQuickView view;
///     view.setResizeMode(OffscreenQuickView::SizeRootObjectToView);
///     view.resize(800, 600); // so that the view does not take the root's size
///     view.setSource(QUrl::fromLocalFile("page.qml"));
///     view.resize(800, 600); // the root takes the view's size with each resize
///     const QImage picture = view.grab();
///
/// Addresses are taken as they are; FindQmlResource() maps those of compiled resources. GUI thread only.
class ARBOR_QML_SUPPORT_EXPORT OffscreenQuickView : public OffscreenQuickWindow
{
    Q_OBJECT
    Q_PROPERTY(ResizeMode resizeMode READ resizeMode WRITE setResizeMode)
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)
    Q_PROPERTY(QUrl source READ source WRITE setSource)

public:
    enum ResizeMode
    {
        SizeViewToRootObject, ///< The window takes the size of a new root item; the mode of a new view.
        SizeRootObjectToView, ///< The root item takes the size of the window with each resize().
    };
    Q_ENUM(ResizeMode)

    /// The values are those of QQmlComponent::Status.
    enum Status
    {
        Null,    ///< There is no source.
        Ready,   ///< The root item is there.
        Loading, ///< The file is on its way.
        Error,   ///< The file cannot be used, or the engine is gone. errors() tells what is wrong with the
                 ///< file, except where its root is no item.
    };
    Q_ENUM(Status)

    /// A view with an engine of its own.
    OffscreenQuickView();
    /// A view that uses `engine`, which must outlive it and is not owned; null gives it one of its own.
    explicit OffscreenQuickView(QQmlEngine* engine);
    ~OffscreenQuickView() override;

    /// The address that setSource() got last; empty before the first one.
    QUrl source() const;

    Status status() const;
    /// What went wrong with the present source; empty without one.
    QList<QQmlError> errors() const;

    ResizeMode resizeMode() const;
    /// A mode other than the present one takes effect on the present root item at once.
    void setResizeMode(ResizeMode mode);

    /// The root item, which the view owns; null when there is none. Its object name is "rootItem".
    QQuickItem* rootObject() const;

    /// The context that was set, or the engine's root context; null when a given engine is gone. Not owned.
    QQmlContext* rootContext() const;
    /// The context in which the next source makes its objects; not owned. Null stands for the engine's own,
    /// as does a context that is gone by then. The present root item stays.
    void setRootContext(QQmlContext* context);

    /// The size of the root item when it was made, in whole pixels; invalid before the first one.
    QSize initialSize() const;
    /// The present size of the root item in whole pixels, or that of the window where the item has none or is
    /// not there.
    QSize sizeHint() const;

public Q_SLOTS:
    /// Throws away the present root item and loads `url`; the same one loads again. An empty one only throws
    /// away, without a signal. A local file is ready, or has failed, when this returns. Not for handlers of
    /// the present root item, which would be deleted under them; it may be called while statusChanged() is
    /// emitted.
    void setSource(const QUrl& url);

Q_SIGNALS:
    /// A source loads, is ready or cannot be used; not emitted for an empty one.
    void statusChanged(Status status);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<OffscreenQuickViewPrivate> d_ptr;
};
