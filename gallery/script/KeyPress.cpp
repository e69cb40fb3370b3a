#include "gallery/script/KeyPress.h"

#include <QCoreApplication>
#include <QHash>
#include <QKeyEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

const QHash<QString, Qt::Key>& words()
{
    static const QHash<QString, Qt::Key> table = {
        {u"backspace"_s, Qt::Key_Backspace},
        {u"tab"_s, Qt::Key_Tab},
        {u"enter"_s, Qt::Key_Return},
        {u"esc"_s, Qt::Key_Escape},
        {u"space"_s, Qt::Key_Space},
        {u"pageup"_s, Qt::Key_PageUp},
        {u"pagedown"_s, Qt::Key_PageDown},
        {u"end"_s, Qt::Key_End},
        {u"home"_s, Qt::Key_Home},
        {u"left"_s, Qt::Key_Left},
        {u"up"_s, Qt::Key_Up},
        {u"right"_s, Qt::Key_Right},
        {u"down"_s, Qt::Key_Down},
        {u"insert"_s, Qt::Key_Insert},
        {u"delete"_s, Qt::Key_Delete},
        {u"menu"_s, Qt::Key_Menu},
        {u"comma"_s, Qt::Key_Comma},
        {u"plus"_s, Qt::Key_Plus},
        {u"minus"_s, Qt::Key_Minus},
        {u"period"_s, Qt::Key_Period},
        {u"slash"_s, Qt::Key_Slash},
        {u"backslash"_s, Qt::Key_Backslash},
        {u"semicolon"_s, Qt::Key_Semicolon},
        {u"apostrophe"_s, Qt::Key_Apostrophe},
        {u"grave"_s, Qt::Key_QuoteLeft},
        {u"equal"_s, Qt::Key_Equal},
        {u"bracketleft"_s, Qt::Key_BracketLeft},
        {u"bracketright"_s, Qt::Key_BracketRight},
        {u"alt"_s, Qt::Key_Alt},
    };
    return table;
}

Qt::KeyboardModifier modifier_of(const QString& word)
{
    static const QHash<QString, Qt::KeyboardModifier> table
        = {{u"ctrl"_s, Qt::ControlModifier}, {u"alt"_s, Qt::AltModifier}, {u"shift"_s, Qt::ShiftModifier}};
    return table.value(word, Qt::NoModifier);
}

/// The number behind `prefix`, -1 if `word` has another shape or the number lies outside `low` to `high`.
int number_behind(const QString& prefix, const QString& word, int low, int high)
{
    bool number = false;
    const int value = word.mid(prefix.size()).toInt(&number);
    return word.startsWith(prefix) && number && value >= low && value <= high ? value : -1;
}

bool set_key(KeyPress& press, const QString& word)
{
    const int function = number_behind(u"f"_s, word, 1, 24);
    const int pad = number_behind(u"num"_s, word, 0, 9);
    if (function > 0) {
        press.key = Qt::Key(Qt::Key_F1 + function - 1);
    } else if (pad >= 0) {
        press.key = Qt::Key(Qt::Key_0 + pad);
        press.modifiers |= Qt::KeypadModifier;
    } else if (word.size() == 1 && word.front() > u' ') {
        press.key = Qt::Key(word.front().toUpper().unicode());
    } else {
        press.key = words().value(word, Qt::Key_unknown);
    }
    return press.key != Qt::Key_unknown;
}

void set_text(KeyPress& press)
{
    if (press.key < Qt::Key_Space || press.key > Qt::Key_ydiaeresis || press.modifiers & Qt::ControlModifier)
        return;
    const QChar character(static_cast<char16_t>(press.key));
    press.text = press.modifiers & Qt::ShiftModifier ? character : character.toLower();
}

}

std::optional<KeyPress> ParseKeyPress(const QString& name)
{
    KeyPress press;
    press.name = name;
    QString rest = name.toLower();
    for (qsizetype plus = rest.indexOf(u'+', 1); plus > 0; plus = rest.indexOf(u'+', 1)) {
        const Qt::KeyboardModifier modifier = modifier_of(rest.left(plus));
        if (modifier == Qt::NoModifier)
            return std::nullopt;
        press.modifiers |= modifier;
        rest = rest.mid(plus + 1);
    }
    if (!set_key(press, rest))
        return std::nullopt;
    set_text(press);
    return press;
}

void SendKeyPress(const KeyPress& press, QWindow& window)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, press.key, press.modifiers, press.text);
        QCoreApplication::sendEvent(&window, &event);
    }
}

}
