#pragma once

#include <QString>

#include <functional>

namespace Gallery {

/// What a command of the command line talks to.
struct ResizeConsole
{
    std::function<void(const QString&)> out;
    std::function<void(const QString&)> err;
    std::function<int()> columns;     ///< Of the terminal that `out` is; empty when it is none.
    std::function<int()> interrupted; ///< The signal that asks for the end; 0 for none.
    std::function<double()> elapsed;  ///< Milliseconds since the beginning.
};

/// The streams of the program, without the signals. Standard output counts as a terminal when it can move its
/// cursor.
ResizeConsole StandardConsole();

}
