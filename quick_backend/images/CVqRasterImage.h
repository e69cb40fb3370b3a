#pragma once

#include "quick_backend/images/IVqPoolImage.h"

#include <QByteArray>

#include <vector>

/// A picture of pixels, in one or several sizes. Drawn from the one that has to be scaled least.
class CVqRasterImage final : public IVqPoolImage
{
public:
    /// Either the bytes of a file, that are read again for each drawing, or a picture.
    struct SVqVariant
    {
        QSize size;
        QByteArray bytes;
        QByteArray format;
        QImage picture;
    };

    /// At least one variant; the first one has the natural size.
    explicit CVqRasterImage(std::vector<SVqVariant> variants);

    QSize Size() const override { return m_sizes.front(); }
    QImage Draw(QSize pixels, const SVqImageLook& look) const override;

private:
    const std::vector<SVqVariant> m_variants;
    std::vector<QSize> m_sizes;
};
