#include "gallery/OffscreenPicture.h"

#include "gallery/live/QmlErrorLines.h"

#include <QDebug>
#include <QPainter>
#include <QQmlEngine>
#include <QSGRendererInterface>

namespace Gallery {

namespace {

bool draws_with_opengl(const QQuickWindow& window)
{
    return window.rendererInterface()->graphicsApi() == QSGRendererInterface::OpenGL;
}

}

OffscreenPicture::~OffscreenPicture() = default;

void OffscreenPicture::SetSource(const QUrl& source)
{
    if (source == m_source)
        return;
    m_source = source;
    Q_EMIT SourceChanged();
    start();
}

void OffscreenPicture::SetSceneSize(const QSize& size)
{
    if (size == m_size)
        return;
    m_size = size;
    Q_EMIT SceneSizeChanged();
    if (!m_view)
        return;
    m_view->resize(m_size);
    take();
}

void OffscreenPicture::paint(QPainter* painter)
{
    const QPointF middle((width() - m_image.width()) / 2, (height() - m_image.height()) / 2);
    painter->drawImage(middle.toPoint(), m_image);
}

void OffscreenPicture::componentComplete()
{
    QQuickPaintedItem::componentComplete();
    start();
}

void OffscreenPicture::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemSceneChange && value.window)
        start();
}

void OffscreenPicture::start()
{
    if (!isComponentComplete() || !window())
        return;
    m_view.reset();
    m_image = {};
    m_frames = 0;
    if (!draws_with_opengl(*window())) {
        set_problem(tr("Scenes without a window are drawn with OpenGL, and this window is not."));
        qDebug().noquote() << m_problem;
        return;
    }
    m_view = std::make_unique<OffscreenQuickView>(qmlEngine(this));
    m_view->setResizeMode(OffscreenQuickView::SizeRootObjectToView);
    m_view->setColor(Qt::transparent);
    connect(m_view.get(), &OffscreenQuickView::sceneRendered, this, [this] {
        ++m_frames;
        take();
    });
    m_view->setSource(m_source);
    m_view->resize(m_size); // only now is there a root that takes it
    set_problem(QmlErrorLines(m_view->errors()).join(u'\n'));
    take();
}

void OffscreenPicture::take()
{
    m_image = m_view->rootObject() ? m_view->grab() : QImage();
    Q_EMIT FrameTaken();
    update();
}

void OffscreenPicture::set_problem(const QString& problem)
{
    if (problem == m_problem)
        return;
    m_problem = problem;
    Q_EMIT ProblemChanged();
}

}
