#pragma once

#include <QString>

namespace Gallery {

/// `text` with a "?" for each character that would move the cursor or change the terminal.
QString PrintableText(const QString& text);

/// The columns that `text` takes at most. Terminals disagree on wide characters, so all that may be wide are.
int TerminalColumns(const QString& text);

/// The printable text of `text` in at most `columns` columns, with "..." where it was cut.
QString FitTerminal(const QString& text, int columns);

}
