#pragma once

#include <QString>

#include <optional>

QT_BEGIN_NAMESPACE
class QWindow;
QT_END_NAMESPACE

namespace Gallery {

/// A key to press, as Qt's key events tell it.
struct KeyPress
{
    QString name; ///< As it was written.
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    QString text; ///< What the key types; empty with Ctrl and for keys that type nothing.
};

/// Reads a key name: modifiers "Ctrl", "Alt", "Shift" and one key, joined by "+". The key is a single
/// character, "F1" to "F24", "Num0" to "Num9", or a word such as "Enter", "Left", "PageUp", "Comma", "Plus",
/// "BracketLeft"; data/README.md lists them. Case does not matter. None for a name that is no key.
std::optional<KeyPress> ParseKeyPress(const QString& name);

/// Sends press and release to `window`, as the platform does.
void SendKeyPress(const KeyPress& press, QWindow& window);

}
