#pragma once

#include "offscreen/OffscreenQuickView.h"

#include <QImage>
#include <QQuickPaintedItem>
#include <QUrl>

#include <memory>

namespace Gallery {

/// Shows what an OffscreenQuickView draws: a QML scene without a window, taken as a picture after each frame.
///
/// Needs a window that draws with OpenGL; in another one it stays empty, and Problem() says so.
class OffscreenPicture : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QUrl source READ Source WRITE SetSource NOTIFY SourceChanged)
    Q_PROPERTY(QSize sceneSize READ SceneSize WRITE SetSceneSize NOTIFY SceneSizeChanged)
    Q_PROPERTY(int frames READ Frames NOTIFY FrameTaken)
    Q_PROPERTY(QString problem READ Problem NOTIFY ProblemChanged)

public:
    using QQuickPaintedItem::QQuickPaintedItem;
    ~OffscreenPicture() override;

    /// The QML file of the scene; its address is looked up as those of the item's engine are.
    const QUrl& Source() const { return m_source; }
    void SetSource(const QUrl& source);

    /// In pixels, whatever the size of the item; the picture lies in its middle.
    const QSize& SceneSize() const { return m_size; }
    void SetSceneSize(const QSize& size);

    /// The frames that the scene has drawn for changes in it; begins anew with another source.
    int Frames() const { return m_frames; }

    /// Why there is no picture, a sentence or a line for each error; empty when there is one.
    const QString& Problem() const { return m_problem; }

    /// The scene as it was drawn last; null when there is none.
    const QImage& Image() const { return m_image; }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void SourceChanged();
    void SceneSizeChanged();
    void FrameTaken();
    void ProblemChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void start();
    void take();
    void set_problem(const QString& problem);

    QUrl m_source;
    QSize m_size{480, 300};
    QImage m_image;
    int m_frames = 0;
    QString m_problem;
    std::unique_ptr<OffscreenQuickView> m_view;
};

}
