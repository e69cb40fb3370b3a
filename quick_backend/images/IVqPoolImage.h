#pragma once

#include "quick_backend/images/SVqImageLook.h"

#include <QImage>
#include <QSize>

#include <memory>

/// One image of the pool. Safe in every thread.
class IVqPoolImage
{
public:
    virtual ~IVqPoolImage() = default;

    /// The natural size in pixels, never empty.
    virtual QSize Size() const = 0;

    /// The image, stretched to exactly `pixels`, in QImage::Format_ARGB32_Premultiplied. Null for an empty
    /// size and without memory for it.
    virtual QImage Draw(QSize pixels, const SVqImageLook& look) const = 0;
};

using VqPoolImagePtr = std::shared_ptr<const IVqPoolImage>;
