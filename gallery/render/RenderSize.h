#pragma once

#include <QSize>
#include <QString>

#include <optional>

namespace Gallery {

/// Why there can be no picture of `size` device pixels, in one sentence; empty when there can.
QString WhyNoRenderSize(const QSize& size);

/// Reads "800x600". Nothing: `error` says in one sentence what is wrong.
std::optional<QSize> ParseRenderSize(const QString& text, QString& error);

}
