#pragma once

#include <QImage>

namespace Gallery {

/// Why no picture can be written under a name such as `path`, in one sentence; empty when its extension is
/// that of a format.
QString WhyNoRenderTarget(const QString& path);

/// Writes `image` to `path`, whose extension chooses the format, and replaces what is there: all or nothing.
/// Where the format has no transparency the ground is white. Empty: done; otherwise one sentence says what is
/// wrong.
QString WriteRenderTarget(const QImage& image, const QString& path);

}
