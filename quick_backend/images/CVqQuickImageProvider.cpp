#include "quick_backend/images/CVqQuickImageProvider.h"

#include "quick_backend/images/CVqImagePainter.h"
#include "quick_backend/images/CVqPoolImages.h"
#include "quick_backend/images/VqImageAddress.h"
#include "quick_backend/images/VqImageSizes.h"

#include <utility>

CVqQuickImageProvider::CVqQuickImageProvider(std::shared_ptr<const CVqPoolImages> images,
                                             std::shared_ptr<const CVqImagePainter> painter)
    : QQuickImageProvider(Image), m_images(std::move(images)), m_painter(std::move(painter))
{ }

QImage CVqQuickImageProvider::requestImage(const QString& id, QSize* size, const QSize& requested_size)
{
    const auto address = VqParseImageAddress(id);
    if (!address)
        return {};
    const VqPoolImagePtr image = m_images->Find(address->index);
    if (!image)
        return {};
    if (size)
        *size = image->Size();
    const QSize box = VqRequestedSize(image->Size(), requested_size.width(), requested_size.height());
    if (box.isEmpty())
        return {};
    const QRgb ink = address->colour.value_or(m_painter->Inks().Ink(address->mode));
    return image->Draw(VqFittedSize(image->Size(), box), {address->mode, ink});
}
