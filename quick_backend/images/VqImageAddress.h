#pragma once

#include "quick_backend/images/SVqImageLook.h"

#include <QString>

/// What QML asks the image provider for.
struct SVqImageAddress
{
    quint32 index = 0;
    QIcon::Mode mode = QIcon::Normal;
    std::optional<QRgb> colour;
};

/// Reads "INDEX?state=...&color=...&revision=...", see CVqQuickBitmapPool::AddImageProvider(). Nothing for a
/// text that has anything else.
std::optional<SVqImageAddress> VqParseImageAddress(const QString& text);
