#pragma once

#include "quick_backend/images/IVqPoolImage.h"

#include <QPoint>

/// Where an image of the size `image` stands in the middle of `box`, in whole pixels.
QPoint VqMiddlePlace(QSize image, QSize box);

/// A picture of exactly `box`, in the middle of which the image is, as large as its ratio lets it be. Null
/// for an empty box and without memory for it.
QImage VqDrawFitted(const IVqPoolImage& image, QSize box, const SVqImageLook& look);
