#pragma once

#include "gallery/menu/MenuEntry.h"

namespace Gallery {

/// `text` with its English modifier names replaced by those of the installed translation, so that the
/// accelerator parser, which knows the modifiers in the user's language only, reads it whatever the
/// language is. Key names stay: they are English in every language.
QString LocalKeyText(const QString& text);

/// The key that an English key text such as "Ctrl+Shift+F5" names, none when it names no key. A text with
/// a comma is refused: it would be taken for a list.
std::optional<MenuKey> ParseKeyText(const QString& text);

/// The text that a menu shows for `key`, in the user's language.
QString PrintKey(const MenuKey& key);

}
