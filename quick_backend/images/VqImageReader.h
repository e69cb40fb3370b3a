#pragma once

#include "quick_backend/images/IVqPoolImage.h"

#include <QByteArray>
#include <QPixmap>
#include <QString>

/// An image, or null and the code that tells why there is none.
struct SVqReadImage
{
    VqPoolImagePtr image;
    int code = 0;
};

/// The image of a file, or of a compiled resource: -13 when there is no such file or it cannot be opened, -9
/// when it is no image, of another kind, cut, or an SVG that is not self-contained, -3 when it is too large.
SVqReadImage VqReadImageFile(const QString& path);

/// The image of an SVG text: -9 and -3 as above.
SVqReadImage VqReadSvg(const QByteArray& text);

/// -9 for a null pixmap, -3 for one that is too large.
SVqReadImage VqReadPixmap(const QPixmap& pixmap);
