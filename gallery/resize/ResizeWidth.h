#pragma once

#include <QString>

#include <optional>

namespace Gallery {

/// The longest side of an image that is read, in pixels; so the largest width too.
inline constexpr int g_longest_image_side = 16384;

/// Why images cannot get the width `width`, in one sentence; empty when they can.
QString WhyNoResizeWidth(int width);

/// The width that people write as `text`. Nothing: `error` says in one sentence what is wrong.
std::optional<int> ParseResizeWidth(const QString& text, QString& error);

}
