#pragma once

#include "arbor_quick_backend_export.h"
#include "system/VqText.h"

class QKeyEvent;

/// A key press as the accelerator tables know it.
struct SVqKeyPress
{
    vq_wchar key = 0;   ///< Virtual key, or 0 where the press names none (a modifier alone, a media key).
    unsigned flags = 0; ///< 1 Alt, 2 Ctrl, 4 Shift. The virtual-key mark 16 is the table's own business.

    friend bool operator==(const SVqKeyPress&, const SVqKeyPress&) = default;
};

/// What the native codes of a key event mean. Decides how a key is told by its position.
enum class EVqKeyCodes
{
    None,    ///< Nothing is known; only the character counts.
    Windows, ///< `nativeVirtualKey()` is the virtual key.
    Evdev,   ///< `nativeScanCode()` is the kernel's key code plus 8: X11, Wayland, eglfs.
    Mac,     ///< `nativeVirtualKey()` is a position code of macOS.
};

/// The kind of native codes that the running platform plugin sends. Asks the application object.
ARBOR_QUICK_BACKEND_EXPORT EVqKeyCodes VqPlatformKeyCodes();

/// Turns a key event into a virtual key and modifier flags.
///
/// Letters and digits go by the character that the key gives on the present layout; where that is no Latin
/// letter or digit, by position, so Ctrl+C works on a Cyrillic layout and Ctrl+1 on a French one. Function,
/// navigation and numeric-pad keys go by code; punctuation takes the codes 186 to 192 and 219 to 222.
///
/// A press with the Meta key held names no key: such combinations belong to the desktop.
ARBOR_QUICK_BACKEND_EXPORT SVqKeyPress VqVirtualKey(const QKeyEvent& event, EVqKeyCodes codes);
