#pragma once

#include <QByteArray>

/// Whether an SVG text may be drawn: nothing in it leads out of it, neither a link, an image, a style sheet,
/// a font nor an entity, and its references are bounded, see CVqSvgExpansion. A fragment of itself
/// ("#gradient", "url(#gradient)"), a whole PNG, JPEG or WebP picture in a data address and the public
/// document types of SVG are fine. What cannot be told for sure counts as leading out: compressed text, a
/// style with backslashes, a picture in another format, a text that refers to anything and is not well
/// formed.
///
/// Looks at what Qt Svg draws, which takes image and style elements whatever their namespace.
bool VqIsSelfContainedSvg(const QByteArray& text);
