#include "offscreen/OffscreenQuickView.h"

#include "offscreen/OffscreenQuickViewPrivate.h"

OffscreenQuickView::OffscreenQuickView() : OffscreenQuickView(nullptr) { }

OffscreenQuickView::OffscreenQuickView(QQmlEngine* engine)
    : d_ptr(std::make_unique<OffscreenQuickViewPrivate>(this, engine))
{ }

OffscreenQuickView::~OffscreenQuickView() = default;

QUrl OffscreenQuickView::source() const
{
    return d_ptr->source;
}

void OffscreenQuickView::setSource(const QUrl& url)
{
    d_ptr->setSource(url);
}

OffscreenQuickView::Status OffscreenQuickView::status() const
{
    return d_ptr->status();
}

QList<QQmlError> OffscreenQuickView::errors() const
{
    return d_ptr->component ? d_ptr->component->errors() : QList<QQmlError>();
}

OffscreenQuickView::ResizeMode OffscreenQuickView::resizeMode() const
{
    return d_ptr->resizeMode;
}

void OffscreenQuickView::setResizeMode(ResizeMode mode)
{
    if (mode == d_ptr->resizeMode)
        return;
    d_ptr->resizeMode = mode;
    if (d_ptr->root)
        d_ptr->updateSizes();
}

QQuickItem* OffscreenQuickView::rootObject() const
{
    return d_ptr->root;
}

QQmlContext* OffscreenQuickView::rootContext() const
{
    if (d_ptr->rootContext)
        return d_ptr->rootContext;
    return d_ptr->engine ? d_ptr->engine->rootContext() : nullptr;
}

void OffscreenQuickView::setRootContext(QQmlContext* context)
{
    d_ptr->rootContext = context;
}

QSize OffscreenQuickView::initialSize() const
{
    return d_ptr->initialSize;
}

QSize OffscreenQuickView::sizeHint() const
{
    const QSize root_size = d_ptr->rootSize();
    return root_size.isEmpty() ? size() : root_size;
}

void OffscreenQuickView::resizeEvent(QResizeEvent* event)
{
    OffscreenQuickWindow::resizeEvent(event);
    if (d_ptr->root && d_ptr->resizeMode == SizeRootObjectToView)
        d_ptr->updateSizes();
}
