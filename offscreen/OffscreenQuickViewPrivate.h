#pragma once

#include "offscreen/OffscreenQuickView.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>

/// What an OffscreenQuickView knows of its source.
class OffscreenQuickViewPrivate : public QObject
{
    Q_OBJECT

public:
    /// Null makes an engine that `view` owns.
    OffscreenQuickViewPrivate(OffscreenQuickView* view, QQmlEngine* given);

    void setSource(const QUrl& url);
    OffscreenQuickView::Status status() const;
    /// The width and height of the root item in whole pixels; 0 where there is none.
    QSize rootSize() const;
    /// Brings the sizes of window and root item in step. There has to be a root item.
    void updateSizes();

public Q_SLOTS:
    void componentStatusChanged(QQmlComponent::Status status);

private:
    void clear();
    void setRoot(QObject* object);
    void resizeView(const QSize& size) const;
    void resizeRoot() const;

public:
    QPointer<QQmlEngine> engine;
    QQmlComponent* component = nullptr;
    QPointer<QQmlContext> rootContext;
    QPointer<QQuickItem> root; // an item may delete itself
    QUrl source;
    OffscreenQuickView::ResizeMode resizeMode = OffscreenQuickView::SizeViewToRootObject;
    QSize initialSize;
    OffscreenQuickView* q;
};
