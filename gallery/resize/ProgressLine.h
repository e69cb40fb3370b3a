#pragma once

#include <QString>

namespace Gallery {

/// How far work is.
struct ProgressState
{
    unsigned int position = 0;
    unsigned int range = 0; ///< All steps; 0 for an unknown number.
    double elapsed = 0;     ///< Milliseconds since the work began.
    QString label;          ///< The step that runs.
};

/// `state` in one line of a terminal that is `columns` wide: a bar, the percentage, the count, from the first
/// second on an estimate of the time left, and the label. What has no room is left out, from the right; the
/// last column stays free, as some terminals begin a new line there.
QString ProgressLine(const ProgressState& state, int columns);

}
