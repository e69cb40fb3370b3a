#include "quick_backend/images/CVqRasterImage.h"

#include "quick_backend/images/VqImageColours.h"
#include "quick_backend/images/VqImageSizes.h"
#include "quick_backend/images/VqRasterReader.h"

#include <utility>

CVqRasterImage::CVqRasterImage(std::vector<SVqVariant> variants) : m_variants(std::move(variants))
{
    for (const SVqVariant& variant : m_variants)
        m_sizes.push_back(variant.size);
}

QImage CVqRasterImage::Draw(QSize pixels, const SVqImageLook& look) const
{
    if (pixels.isEmpty())
        return {};
    const SVqVariant& variant = m_variants[VqLeastScaled(m_sizes, pixels)];
    QImage picture = variant.picture.isNull() ? VqReadRaster(variant.bytes, variant.format) : variant.picture;
    picture = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (picture.size() != pixels)
        picture = picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (look.mode == QIcon::Disabled)
        VqMakeDisabled(picture);
    return picture;
}
