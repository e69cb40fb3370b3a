#pragma once

#include <QtTypes>

/// What this process holds, for tests that look for growth:
///
///     const qint64 objects = LiveQObjects();
///     MakeAndDeleteWindows();
///     EXPECT_EQ(LiveQObjects(), objects);

/// The QObjects made less those destroyed since the first call, on all threads. Only differences between two
/// calls mean something. The first call takes over Qt's hooks for the rest of the program.
qint64 LiveQObjects();

/// The memory of this process that is in use by the system's account, in bytes; 0 where that cannot be told.
/// Under a sanitizer it grows with what was freed as well.
qint64 ResidentBytes();
