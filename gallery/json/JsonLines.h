#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace Gallery {

/// Tells on which line of a JSON text each of its values begins.
///
/// Qt's JSON values do not know where they came from; this walks the text once and keeps the lines.
/// The text has to be valid JSON: let QJsonDocument judge it first.
///
///     JsonLines lines(text);
///     lines.LineOf(u"menu/0/items/3"_s);
class JsonLines
{
public:
    explicit JsonLines(const QByteArray& json);

    /// Line of the value at `path`, counted from 1. The path joins member names and array indices with
    /// slashes; the empty path is the whole text. For a path without a value, the line of the innermost value
    /// on the way to it.
    int LineOf(QString path) const;

    /// Line of the byte at `offset`, counted from 1. An offset outside the text gives the nearest line.
    static int LineAt(const QByteArray& json, qsizetype offset);

private:
    QHash<QString, int> m_lines;
};

}
