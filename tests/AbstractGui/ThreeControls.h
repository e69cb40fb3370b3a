#pragma once

#include "tests/support/TestToolbar.h"

/// A toolbar of "a b c", and of the picker in type Main.
struct ThreeControls
{
    explicit ThreeControls(EToolbarType type) : bar(type) { }

    TestToolbar bar;
    RecordingControl& a = bar.Add("a");
    RecordingControl& b = bar.Add("b");
    RecordingControl& c = bar.Add("c");
};
