#include "quick_backend/images/CVqPoolIconEngine.h"

#include "quick_backend/images/CVqImagePainter.h"
#include "quick_backend/images/VqImageSizes.h"

#include <utility>

CVqPoolIconEngine::CVqPoolIconEngine(const SVqPoolEntry& entry, std::shared_ptr<CVqImagePainter> painter)
    : m_entry(entry), m_painter(std::move(painter))
{ }

void CVqPoolIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    m_painter->Paint(*painter, m_entry, rect, true, mode);
}

QPixmap CVqPoolIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return m_painter->Stretched(m_entry, actualSize(size, mode, state), mode);
}

QSize CVqPoolIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State)
{
    if (size.isEmpty())
        return {};
    return VqFittedSize(m_entry.image->Size(), size.boundedTo({g_max_image_side, g_max_image_side}));
}

QList<QSize> CVqPoolIconEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    return {m_entry.image->Size()};
}

QIconEngine* CVqPoolIconEngine::clone() const
{
    return new CVqPoolIconEngine(m_entry, m_painter);
}
