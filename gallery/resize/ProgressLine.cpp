#include "gallery/resize/ProgressLine.h"

#include "gallery/resize/TerminalText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr int g_shortest_bar = 10; // columns
constexpr int g_longest_bar = 30;
constexpr int g_shortest_label = 8;
constexpr double g_first_estimate = 1000; // ms

double fraction(const ProgressState& state)
{
    return state.range ? std::min(double(state.position) / state.range, 1.0) : 0;
}

QString bar(double fraction, int columns)
{
    const int inside = columns - 2;
    const int full = int(inside * fraction);
    return u'[' + QString(full, u'=') + QString(inside - full, u' ') + u']';
}

/// The largest unit alone, rounded up.
QString time_text(double seconds)
{
    if (seconds <= 60)
        return QCoreApplication::translate("Resize", "%1 s").arg(int(std::ceil(seconds)));
    if (seconds <= 3600)
        return QCoreApplication::translate("Resize", "%1 min").arg(int(std::ceil(seconds / 60)));
    return QCoreApplication::translate("Resize", "%1 h").arg(std::ceil(seconds / 3600), 0, 'f', 0);
}

/// Empty while there is none.
QString estimate(const ProgressState& state)
{
    if (state.elapsed < g_first_estimate || state.position == 0 || state.position >= state.range)
        return {};
    const double seconds = state.elapsed / 1000 * (state.range - state.position) / state.position;
    return u"  "_s + QCoreApplication::translate("Resize", "about %1 left").arg(time_text(seconds));
}

}

QString ProgressLine(const ProgressState& state, int columns)
{
    const int room = columns - 1;
    const double part = fraction(state);
    const QString percent = u"%1%"_s.arg(int(part * 100), 3);
    const QString count = u"  %1/%2"_s.arg(state.position).arg(state.range);
    QString line = percent;
    for (const QString& more : {count, estimate(state)})
        if (TerminalColumns(line + more) <= room)
            line += more;
    const int bar_room = std::min({room - TerminalColumns(line) - 1, room / 3, g_longest_bar});
    if (bar_room >= g_shortest_bar)
        line = bar(part, bar_room) + u' ' + line;
    const int label_room = room - TerminalColumns(line) - 2;
    if (!state.label.isEmpty() && label_room >= g_shortest_label)
        line += u"  "_s + FitTerminal(state.label, label_room);
    return FitTerminal(line, room);
}

}
