#include "gallery/render/PageRenderer.h"

#include "gallery/live/QmlErrorLines.h"
#include "gallery/render/PageAddress.h"
#include "gallery/render/PageMaker.h"
#include "gallery/render/RenderSize.h"
#include "gallery/render/RenderTarget.h"
#include "gallery/render/SceneWait.h"
#include "gallery/script/WaitFor.h"
#include "offscreen/OffscreenQuickView.h"

#include <QDeadlineTimer>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// Above 1, so that the view does not take the root's size before the page is complete.
constexpr QSize g_size_while_loading(2, 2);

std::chrono::milliseconds left_until(const QDeadlineTimer& end)
{
    return std::chrono::milliseconds(end.remainingTime());
}

}

QString WhyNoPages()
{
    OffscreenQuickWindow probe;
    probe.resize(1, 1);
    if (!probe.grab().isNull())
        return {};
    return u"Pages are drawn with OpenGL, and there is none: it takes a display, and no other back end in QT_QUICK_BACKEND."_s;
}

bool PageRenderer::Render(const RenderJob& job)
{
    m_errors.clear();
    QString error;
    const std::optional<QUrl> url = PageAddress(job.file, error);
    const QImage picture = url ? Draw(*url, job.size, job.values) : QImage();
    if (!picture.isNull())
        error = WriteRenderTarget(picture, job.out);
    if (!error.isEmpty())
        m_errors << error;
    return m_errors.isEmpty();
}

QImage PageRenderer::Draw(const QUrl& url, const QSize& size, const QList<RenderValue>& values)
{
    m_errors.clear();
    if (const QString why = WhyNoPages(); !why.isEmpty()) {
        m_errors << why;
        return {};
    }
    OffscreenQuickView view(&m_engine);
    view.setColor(Qt::transparent);
    view.setResizeMode(OffscreenQuickView::SizeRootObjectToView);
    view.resize(size.isValid() ? size : g_size_while_loading);
    if (values.isEmpty())
        return draw_page(view, load(view, url), size);
    // The view makes a root without values, and then a required property is missing.
    const std::unique_ptr<QQuickItem> page = MakePage(m_engine, url, values, m_errors);
    if (page)
        page->setParentItem(view.contentItem());
    return draw_page(view, page.get(), size);
}

QQuickItem* PageRenderer::load(OffscreenQuickView& view, const QUrl& url)
{
    view.setSource(url);
    if (view.status() == OffscreenQuickView::Loading)
        WaitFor(view, &OffscreenQuickView::statusChanged, g_longest_load);
    if (view.status() == OffscreenQuickView::Loading)
        m_errors << NotLoadedSentence(url);
    else if (!view.rootObject())
        m_errors = view.errors().isEmpty() ? QStringList{NoItemSentence(url)} : QmlErrorLines(view.errors());
    return view.rootObject();
}

QImage PageRenderer::draw_page(OffscreenQuickView& view, QQuickItem* page, const QSize& size)
{
    if (!page)
        return {};
    const QDeadlineTimer end(g_longest_load);
    if (size.isValid()) {
        view.resize(size);
        page->setSize(size);
    } else if (!take_own_size(view, *page, end)) {
        return {};
    }
    if (!WaitForScene(view, left_until(end)))
        qWarning("After %lld seconds a part of the page is still loading; it is drawn as it is.",
                 static_cast<long long>(g_longest_load.count()));
    const QImage picture = view.grab();
    if (picture.isNull())
        m_errors << u"OpenGL gave no picture of %1x%2 pixels."_s.arg(view.width()).arg(view.height());
    return picture;
}

bool PageRenderer::take_own_size(OffscreenQuickView& view, const QQuickItem& page, const QDeadlineTimer& end)
{
    WaitForScene(view, left_until(end)); // what is loaded may make the page larger
    const QSize own(static_cast<int>(page.width()), static_cast<int>(page.height()));
    const QString why
        = own.isEmpty() ? u"The page has no size of its own: --size gives one."_s : WhyNoRenderSize(own);
    if (!why.isEmpty()) {
        m_errors << why;
        return false;
    }
    view.setResizeMode(OffscreenQuickView::SizeViewToRootObject);
    view.resize(own);
    return true;
}

}
