#include "quick_backend/VqVirtualKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iterator>

namespace {

struct KeyRow
{
    int from; // a Qt key or a native code
    vq_wchar key;
};

constexpr KeyRow NamedKeys[] = {
    {Qt::Key_Cancel, 3},   {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},   {Qt::Key_Return, 13},   {Qt::Key_Enter, 13},       {Qt::Key_Pause, 19},
    {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},    {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},     {Qt::Key_Home, 36},     {Qt::Key_Left, 37},        {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},   {Qt::Key_Down, 40},     {Qt::Key_Select, 41},      {Qt::Key_Printer, 42},
    {Qt::Key_Execute, 43}, {Qt::Key_Print, 44},    {Qt::Key_SysReq, 44},      {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},  {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145},
};

// On the numeric pad only; a decimal key that gives a comma is still the decimal key.
constexpr KeyRow PadKeys[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Bar, 108},   {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

constexpr KeyRow Punctuation[] = {
    {Qt::Key_Semicolon, 186}, {Qt::Key_Plus, 187},         {Qt::Key_Equal, 187},
    {Qt::Key_Comma, 188},     {Qt::Key_Minus, 189},        {Qt::Key_Period, 190},
    {Qt::Key_Slash, 191},     {Qt::Key_QuoteLeft, 192},    {Qt::Key_BracketLeft, 219},
    {Qt::Key_Backslash, 220}, {Qt::Key_BracketRight, 221}, {Qt::Key_Apostrophe, 222},
};

// What Shift makes of a key on the common Latin layout; asked only while Shift is held.
constexpr KeyRow ShiftedKeys[] = {
    {Qt::Key_Exclam, '1'},     {Qt::Key_At, '2'},        {Qt::Key_NumberSign, '3'},
    {Qt::Key_Dollar, '4'},     {Qt::Key_Percent, '5'},   {Qt::Key_AsciiCircum, '6'},
    {Qt::Key_Ampersand, '7'},  {Qt::Key_Asterisk, '8'},  {Qt::Key_ParenLeft, '9'},
    {Qt::Key_ParenRight, '0'}, {Qt::Key_Colon, 186},     {Qt::Key_Less, 188},
    {Qt::Key_Underscore, 189}, {Qt::Key_Greater, 190},   {Qt::Key_Question, 191},
    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BraceLeft, 219}, {Qt::Key_Bar, 220},
    {Qt::Key_BraceRight, 221}, {Qt::Key_QuoteDbl, 222},
};

constexpr KeyRow EvdevPositions[] = {
    {10, '1'}, {11, '2'}, {12, '3'}, {13, '4'}, {14, '5'}, {15, '6'}, {16, '7'}, {17, '8'},
    {18, '9'}, {19, '0'}, {20, 189}, {21, 187}, {24, 'Q'}, {25, 'W'}, {26, 'E'}, {27, 'R'},
    {28, 'T'}, {29, 'Y'}, {30, 'U'}, {31, 'I'}, {32, 'O'}, {33, 'P'}, {34, 219}, {35, 221},
    {38, 'A'}, {39, 'S'}, {40, 'D'}, {41, 'F'}, {42, 'G'}, {43, 'H'}, {44, 'J'}, {45, 'K'},
    {46, 'L'}, {47, 186}, {48, 222}, {49, 192}, {51, 220}, {52, 'Z'}, {53, 'X'}, {54, 'C'},
    {55, 'V'}, {56, 'B'}, {57, 'N'}, {58, 'M'}, {59, 188}, {60, 190}, {61, 191},
};

constexpr KeyRow MacPositions[] = {
    {0x00, 'A'}, {0x01, 'S'}, {0x02, 'D'}, {0x03, 'F'}, {0x04, 'H'}, {0x05, 'G'}, {0x06, 'Z'}, {0x07, 'X'},
    {0x08, 'C'}, {0x09, 'V'}, {0x0B, 'B'}, {0x0C, 'Q'}, {0x0D, 'W'}, {0x0E, 'E'}, {0x0F, 'R'}, {0x10, 'Y'},
    {0x11, 'T'}, {0x12, '1'}, {0x13, '2'}, {0x14, '3'}, {0x15, '4'}, {0x16, '6'}, {0x17, '5'}, {0x18, 187},
    {0x19, '9'}, {0x1A, '7'}, {0x1B, 189}, {0x1C, '8'}, {0x1D, '0'}, {0x1E, 221}, {0x1F, 'O'}, {0x20, 'U'},
    {0x21, 219}, {0x22, 'I'}, {0x23, 'P'}, {0x25, 'L'}, {0x26, 'J'}, {0x27, 222}, {0x28, 'K'}, {0x29, 186},
    {0x2A, 220}, {0x2B, 188}, {0x2C, 191}, {0x2D, 'N'}, {0x2E, 'M'}, {0x2F, 190}, {0x32, 192},
};

template <std::size_t Count>
vq_wchar LookUp(const KeyRow (&rows)[Count], quint32 code)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows),
                                  [&](const KeyRow& r) { return quint32(r.from) == code; });
    return row == std::end(rows) ? vq_wchar(0) : row->key;
}

bool IsLetter(int key)
{
    return key >= 'A' && key <= 'Z';
}

bool IsDigit(int key)
{
    return key >= '0' && key <= '9';
}

bool IsPunctuation(quint32 key)
{
    return (key >= 186 && key <= 192) || (key >= 219 && key <= 222);
}

vq_wchar ByPosition(const QKeyEvent& event, EVqKeyCodes codes)
{
    const quint32 native = event.nativeVirtualKey();
    switch (codes) {
    case EVqKeyCodes::None:
        return 0;
    case EVqKeyCodes::Windows:
        return IsLetter(int(native)) || IsDigit(int(native)) || IsPunctuation(native) ? vq_wchar(native) : 0;
    case EVqKeyCodes::Evdev:
        return LookUp(EvdevPositions, event.nativeScanCode());
    case EVqKeyCodes::Mac:
        // Code 0 is the A key, but also what an event without native codes carries.
        return event.nativeScanCode() || native ? LookUp(MacPositions, native) : 0;
    }
    return 0;
}

vq_wchar OnPad(int key)
{
    return IsDigit(key) ? vq_wchar(96 + key - '0') : LookUp(PadKeys, quint32(key));
}

vq_wchar ByCode(const QKeyEvent& event)
{
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const vq_wchar pad = OnPad(key))
            return pad;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return vq_wchar(112 + key - Qt::Key_F1);
    return LookUp(NamedKeys, quint32(key));
}

vq_wchar ByCharacter(const QKeyEvent& event, EVqKeyCodes codes)
{
    const int key = event.key();
    if (IsLetter(key) || IsDigit(key))
        return vq_wchar(key);
    const vq_wchar position = ByPosition(event, codes);
    if (IsDigit(position))
        return position;
    if (const vq_wchar plain = LookUp(Punctuation, quint32(key)))
        return plain;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        if (const vq_wchar shifted = LookUp(ShiftedKeys, quint32(key)))
            return shifted;
    }
    return position;
}

bool IsModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_CapsLock) || key == Qt::Key_AltGr
        || (key >= Qt::Key_Super_L && key <= Qt::Key_Hyper_R);
}

unsigned Flags(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::AltModifier) ? 1u : 0u)
        | (modifiers.testFlag(Qt::ControlModifier) ? 2u : 0u)
        | (modifiers.testFlag(Qt::ShiftModifier) ? 4u : 0u);
}

}

EVqKeyCodes VqPlatformKeyCodes()
{
    const QString name = QGuiApplication::platformName();
    if (name == QLatin1String("windows"))
        return EVqKeyCodes::Windows;
    if (name == QLatin1String("cocoa"))
        return EVqKeyCodes::Mac;
    if (name == QLatin1String("xcb") || name.startsWith(QLatin1String("wayland"))
        || name == QLatin1String("eglfs"))
        return EVqKeyCodes::Evdev;
    return EVqKeyCodes::None;
}

SVqKeyPress VqVirtualKey(const QKeyEvent& event, EVqKeyCodes codes)
{
    const unsigned flags = Flags(event.modifiers());
    if (event.modifiers().testFlag(Qt::MetaModifier) || IsModifier(event.key()))
        return {0, flags};
    const vq_wchar code = ByCode(event);
    return {code ? code : ByCharacter(event, codes), flags};
}
