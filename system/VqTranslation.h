#pragma once

#include "arbor_system_export.h"
#include "system/VqText.h"

/// The translation of `text` by the translators that are installed on the application object, or `text`
/// itself where there is none (no application object, no entry). `file` is the translation context: the
/// source path of the caller's module as it stands, in UTF-8. Null reads as the empty text everywhere; the
/// empty text is never translated.
///
/// On the application's thread answers are kept, keyed by content, until a translator is installed or removed
/// or another application object appears; a repeated call costs some ten nanoseconds. The result is valid
/// until then. On any other thread each call asks the translators anew, and the result is valid until that
/// thread has made 16 further calls. Without an application object the result is `text`.
ARBOR_SYSTEM_EXPORT const vq_wchar* VQ_GetTranslation(const vq_wchar* text, const char* file);

/// As above; `comment` tells equal texts apart (the disambiguation of a translation entry). An entry without
/// a comment answers when there is none with it.
ARBOR_SYSTEM_EXPORT const vq_wchar* VQ_GetTranslation(const vq_wchar* text, const vq_wchar* comment,
                                                      const char* file);
