#pragma once

#include "arbor_quick_backend_export.h"
#include "system/VqText.h"

#include <QString>

/// A menu string taken apart for drawing.
struct SVqMenuLabel
{
    QString text;      ///< Plain: no marks, `&&` as `&`, cut at BEL and TAB.
    QString note;      ///< What stands between a TAB and the BEL or the end, without marks.
    int mnemonic = -1; ///< Place of the one mark in `text` in 16-bit units, or -1.

    /// `text` for Text.StyledText, with the mnemonic underlined.
    ARBOR_QUICK_BACKEND_EXPORT QString Styled() const;
};

/// Takes the menu string `text` apart. Of its marks only the first that names `mnemonic` counts, ignoring
/// case; 0 leaves the label without a mark. Null reads as the empty text.
ARBOR_QUICK_BACKEND_EXPORT SVqMenuLabel VqMenuLabel(const vq_wchar* text, vq_wchar mnemonic);
