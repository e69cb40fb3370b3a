#include "quick_backend/images/VqFittedDrawing.h"

#include "quick_backend/images/VqImageSizes.h"

#include <QPainter>

QPoint VqMiddlePlace(QSize image, QSize box)
{
    return {(box.width() - image.width()) / 2, (box.height() - image.height()) / 2};
}

QImage VqDrawFitted(const IVqPoolImage& image, QSize box, const SVqImageLook& look)
{
    if (box.isEmpty())
        return {};
    const QImage drawn = image.Draw(VqFittedSize(image.Size(), box), look);
    if (drawn.isNull() || drawn.size() == box)
        return drawn;
    QImage picture(box, QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::transparent);
    QPainter(&picture).drawImage(VqMiddlePlace(drawn.size(), box), drawn);
    return picture;
}
