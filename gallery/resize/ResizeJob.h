#pragma once

#include <QString>

namespace Gallery {

/// A folder of images that is to be scaled into another folder.
struct ResizeJob
{
    QString in; ///< Empty for none.
    QString out;
    int width = 0; ///< Pixels, 1 to 16384.
};

}
