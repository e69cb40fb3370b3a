#pragma once

#include <QQuickImageProvider>

#include <memory>

class CVqImagePainter;
class CVqPoolImages;

/// Serves the images of a pool to QML; see CVqQuickBitmapPool::AddImageProvider(). Draws anew for each
/// request, as Qt Quick keeps what it got.
class CVqQuickImageProvider : public QQuickImageProvider
{
public:
    CVqQuickImageProvider(std::shared_ptr<const CVqPoolImages> images,
                          std::shared_ptr<const CVqImagePainter> painter);

    /// Any thread. A null image for what is unknown or too large.
    QImage requestImage(const QString& id, QSize* size, const QSize& requested_size) override;

private:
    const std::shared_ptr<const CVqPoolImages> m_images;
    const std::shared_ptr<const CVqImagePainter> m_painter;
};
