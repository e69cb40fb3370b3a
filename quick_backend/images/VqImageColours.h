#pragma once

#include <QImage>

// Colours of pictures in QImage::Format_ARGB32_Premultiplied.

/// Whether all that is to be seen has one colour, at whatever opacity. True for an empty picture.
bool VqHasOneColour(const QImage& picture);

/// Gives every pixel the colour `ink` and leaves its opacity; where `ink` is not opaque, both count.
void VqApplyInk(QImage& picture, QRgb ink);

/// Makes the picture grey and half as opaque.
void VqMakeDisabled(QImage& picture);
