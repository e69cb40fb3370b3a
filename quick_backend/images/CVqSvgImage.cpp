#include "quick_backend/images/CVqSvgImage.h"

#include "quick_backend/images/VqImageColours.h"

#include <QPainter>

#include <utility>

namespace {

// The same for each image, whatever size it is drawn in first.
QSize stencil_test_size(QSize natural)
{
    constexpr QSize largest(64, 64);
    const bool is_small = natural.width() <= largest.width() && natural.height() <= largest.height();
    return is_small ? natural : natural.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1});
}

std::unique_ptr<QSvgRenderer> parsed(const QByteArray& text)
{
    auto renderer = std::make_unique<QSvgRenderer>();
    renderer->setFramesPerSecond(0); // an image does not move
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    renderer->setOptions(QtSvg::NoOption); // whatever the host trusts
    renderer->setAnimationEnabled(false);
#endif
    renderer->load(text);
    return renderer;
}

QImage draw(QSvgRenderer& renderer, QSize pixels)
{
    QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(picture.rect()));
    return picture;
}

}

CVqSvgImage::CVqSvgImage(const QByteArray& text) : m_text(text), m_renderer(parsed(text))
{
    if (m_renderer->isValid())
        m_size = m_renderer->defaultSize();
}

QImage CVqSvgImage::Draw(QSize pixels, const SVqImageLook& look) const
{
    const std::lock_guard lock(m_lock);
    const auto renderer = m_renderer ? std::move(m_renderer) : parsed(m_text);
    QImage picture = draw(*renderer, pixels);
    if (picture.isNull())
        return picture;
    if (!IsStencil(picture, *renderer)) {
        if (look.mode == QIcon::Disabled)
            VqMakeDisabled(picture);
    } else if (look.ink) {
        VqApplyInk(picture, *look.ink);
    }
    return picture;
}

bool CVqSvgImage::IsStencil(const QImage& drawn, QSvgRenderer& renderer) const
{
    if (!m_is_stencil) {
        const QSize size = stencil_test_size(m_size);
        m_is_stencil = VqHasOneColour(drawn.size() == size ? drawn : draw(renderer, size));
    }
    return *m_is_stencil;
}
