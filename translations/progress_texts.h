#pragma once

#include <QtGlobal>

// What DelayedProgressWndBase asks VQ_GetTranslation() for, for the same tool and under the same rules as
// key_names.h. The texts are formats: a translation keeps their conversions, in their order.

// clang-format off
constexpr const char* vq_progress_texts[] = {
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Progress: %d%%"),
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Progress: %3.2f%%"),
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Time remaining: %d hour(s)"),
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Time remaining: %d minute(s)"),
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Time remaining: %d seconds"),
    QT_TRANSLATE_NOOP("DelayedProgressWndBase", "Finalizing..."),
};
// clang-format on
