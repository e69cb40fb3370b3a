#include "gallery/resize/TerminalText.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr char32_t g_first_wide = 0x1100;

int columns_of(char32_t character)
{
    return character < g_first_wide ? 1 : 2;
}

QList<uint> printable(const QString& text)
{
    QList<uint> characters = text.toUcs4();
    for (uint& character : characters)
        if (!QChar::isPrint(character))
            character = '?';
    return characters;
}

QString text_of(const QList<uint>& characters)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

int columns_of(const QList<uint>& characters)
{
    int columns = 0;
    for (const uint character : characters)
        columns += columns_of(char32_t(character));
    return columns;
}

}

QString PrintableText(const QString& text)
{
    return text_of(printable(text));
}

int TerminalColumns(const QString& text)
{
    return columns_of(text.toUcs4());
}

QString FitTerminal(const QString& text, int columns)
{
    QList<uint> characters = printable(text);
    const QString mark = u"..."_s;
    const bool fits = columns_of(characters) <= columns;
    const int room = fits ? columns : columns - int(mark.size());
    if (room < 0)
        return {};
    while (columns_of(characters) > room)
        characters.removeLast();
    return fits ? text_of(characters) : text_of(characters) + mark;
}

}
