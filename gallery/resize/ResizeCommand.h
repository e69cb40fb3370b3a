#pragma once

#include "gallery/resize/ResizeJob.h"

namespace Gallery {

struct ResizeConsole;

/// Does `job` with a progress bar in the terminal of `console`, or a line for each image where there is no
/// terminal, and then tells how many are done; what failed goes to the errors, each with its reason.
///
/// Gives the exit code: 0 all done, 1 some failed, 2 the job cannot be done, 128 and the number of a signal
/// when one ended it. All images that are in the target folder then are whole.
int RunResizeCommand(const ResizeJob& job, const ResizeConsole& console);

}
