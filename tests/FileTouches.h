#pragma once

/// How often the program has asked the system about a file since it began, by the calls that Qt makes for it.
/// Stands in front of the system's own calls in each program that this source is built into.
int file_touches();
