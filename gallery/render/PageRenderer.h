#pragma once

#include "gallery/render/RenderJob.h"

#include <QImage>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QDeadlineTimer;
class QQmlEngine;
class QQuickItem;
class QUrl;
QT_END_NAMESPACE

class OffscreenQuickView;

namespace Gallery {

/// Draws QML files into pictures, without a window on the screen.
///
/// Needs OpenGL below the scene graph, see WhyNoPages(). What QML code warns about goes to Qt's messages. GUI
/// thread; the event loop runs while a page loads.
class PageRenderer
{
public:
    /// `engine` must outlive this.
    explicit PageRenderer(QQmlEngine& engine) : m_engine(engine) { }

    /// Draws what `job` asks for and writes the picture. False: Errors() says why, and the picture is as it
    /// was.
    bool Render(const RenderJob& job);

    /// The page of `url`, complete with images, fonts and loaders. What has not come ten seconds after the
    /// file itself is left out with a warning; the file has ten seconds too. Transparent where nothing covers
    /// it. `size` is in device pixels; invalid: that of the root. `values` are given to the root before it is
    /// complete. Null: Errors() says why.
    QImage Draw(const QUrl& url, const QSize& size, const QList<RenderValue>& values = {});

    /// What the last call ran into: "FILE:LINE: text" of QML errors, otherwise one sentence; empty after a
    /// success.
    const QStringList& Errors() const { return m_errors; }

private:
    QImage draw_page(OffscreenQuickView& view, QQuickItem* page, const QSize& size);
    QQuickItem* load(OffscreenQuickView& view, const QUrl& url);
    bool take_own_size(OffscreenQuickView& view, const QQuickItem& page, const QDeadlineTimer& end);

    QQmlEngine& m_engine;
    QStringList m_errors;
};

/// Why no page can be drawn at all, in one sentence; empty where OpenGL is there.
QString WhyNoPages();

}
