#pragma once

#include "system/VqText.h"

#include <QString>

#include <string_view>

// Between our texts and Qt's, both of 16-bit units. Not installed.

inline QStringView to_qview(std::basic_string_view<vq_wchar> text)
{
    return QStringView(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

/// Valid as long as `text` is, and unchanged.
inline std::basic_string_view<vq_wchar> from_qview(QStringView text)
{
    return {reinterpret_cast<const vq_wchar*>(text.utf16()), static_cast<std::size_t>(text.size())};
}
