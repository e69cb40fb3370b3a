#pragma once

#include <QIcon>
#include <QRgb>

#include <optional>

/// How an image is to be drawn.
struct SVqImageLook
{
    QIcon::Mode mode = QIcon::Normal;

    /// What a stencil is drawn in; without it in its own colour.
    std::optional<QRgb> ink;
};
