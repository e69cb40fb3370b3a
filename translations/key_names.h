#pragma once

#include <QtGlobal>

// What VQ_GetTranslation() is asked for in our sources. Qt's extraction tool cannot read those calls, so this
// table stands for them; the tool reads literals only, so each row repeats the context. Nothing includes it
// but the test that holds it against the sources and the catalogues.

/// A text and the comment that tells it from equal ones, empty for none.
struct SVqTranslationSource
{
    const char* source;
    const char* comment;
};

// clang-format off
constexpr SVqTranslationSource vq_key_names[] = {
    // The modifiers as key texts are parsed: lower case in every language.
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "ctrl", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "alt", "keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "shift", "keyboard key"),
    // The modifiers and keys as they are shown.
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Ctrl", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Alt", "keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Shift", "keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Break", "Break keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Backspace", "Backspace keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Tab", "Tab keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num 5", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Enter", "Enter keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Pause", "Pause keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Esc", "Esc keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Space", "Space keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "PageUp", "PageUp keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "PageDown", "PageDown keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "End", "End keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Home", "Home keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Left", "Left keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Up", "Up keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Right", "Right keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Down", "Down keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Select", "Select keyboard key (not present on most keyboards)"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Print", "Print keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Exec", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "SnapShot", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Insert", "Insert keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Delete", "Delete keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num0", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num1", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num2", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num3", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num4", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num5", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num6", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num7", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num8", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num9", ""),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Num Lock", "NumLock keyboard key"),
    QT_TRANSLATE_NOOP3("AbstractGui\\CVqAbstractMenu", "Scroll Lock", "Scroll_key"),
};
// clang-format on
