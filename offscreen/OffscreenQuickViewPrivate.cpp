#include "offscreen/OffscreenQuickViewPrivate.h"

#include <limits>

namespace {

// Toward zero; what no int holds becomes the nearest one, and not-a-number 0.
int whole_pixels(qreal length)
{
    if (qIsNaN(length))
        return 0;
    constexpr qreal lowest = std::numeric_limits<int>::lowest();
    constexpr qreal highest = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(lowest, length, highest));
}

}

OffscreenQuickViewPrivate::OffscreenQuickViewPrivate(OffscreenQuickView* view, QQmlEngine* given)
    : engine(given ? given : new QQmlEngine(view)), q(view)
{
    if (!engine->incubationController())
        engine->setIncubationController(q->incubationController());
}

void OffscreenQuickViewPrivate::setSource(const QUrl& url)
{
    source = url;
    clear();
    if (url.isEmpty() || !engine)
        return;
    component = new QQmlComponent(engine, this);
    connect(component, &QQmlComponent::statusChanged, this,
            &OffscreenQuickViewPrivate::componentStatusChanged);
    component->loadUrl(url);
}

void OffscreenQuickViewPrivate::clear()
{
    delete root;
    // The new source may be set by somebody who listens to the status. The component is still telling it
    // then.
    if (component && sender() == component) {
        component->disconnect(this);
        component->deleteLater();
    } else {
        delete component;
    }
    component = nullptr;
}

void OffscreenQuickViewPrivate::componentStatusChanged(QQmlComponent::Status status)
{
    if (status == QQmlComponent::Ready) {
        const QQmlComponent* const loaded = component;
        QObject* const object = component->create(rootContext);
        if (component != loaded) { // the new object itself set another source
            delete object;
            return;
        }
        if (object != root)
            setRoot(object);
    }
    Q_EMIT q->statusChanged(this->status());
}

void OffscreenQuickViewPrivate::setRoot(QObject* object)
{
    if (!object || !object->isQuickItemType()) {
        delete object;
        root = nullptr;
        return;
    }
    root = static_cast<QQuickItem*>(object);
    root->setObjectName(u"rootItem");
    root->setParentItem(q->contentItem());
    root->setParent(q);
    initialSize = rootSize();
    const bool has_size = q->width() > 1 && q->height() > 1;
    if (resizeMode == OffscreenQuickView::SizeViewToRootObject || !has_size)
        resizeView(initialSize);
}

OffscreenQuickView::Status OffscreenQuickViewPrivate::status() const
{
    if (!engine)
        return OffscreenQuickView::Error;
    if (!component)
        return OffscreenQuickView::Null;
    if (component->isReady() && !root)
        return OffscreenQuickView::Error;
    return static_cast<OffscreenQuickView::Status>(component->status());
}

QSize OffscreenQuickViewPrivate::rootSize() const
{
    if (!root)
        return {0, 0};
    return {qMax(0, whole_pixels(root->width())), qMax(0, whole_pixels(root->height()))};
}

void OffscreenQuickViewPrivate::updateSizes()
{
    if (resizeMode == OffscreenQuickView::SizeRootObjectToView)
        return resizeRoot();
    const QSize size(whole_pixels(root->width()), whole_pixels(root->height()));
    if (size.isValid())
        resizeView(size);
}

void OffscreenQuickViewPrivate::resizeView(const QSize& size) const
{
    if (size != q->size())
        q->resize(size);
}

void OffscreenQuickViewPrivate::resizeRoot() const
{
    if (!qFuzzyCompare(root->width(), qreal(q->width())))
        root->setWidth(q->width());
    // A handler of the new width may have deleted the item.
    if (root && !qFuzzyCompare(root->height(), qreal(q->height())))
        root->setHeight(q->height());
}
