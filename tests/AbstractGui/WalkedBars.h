#pragma once

#include "tests/support/TestToolbar.h"

/// "a b c", where a separator is `b`, and the picker in type Main.
struct WalkedBar
{
    explicit WalkedBar(EToolbarType type) : bar(type) { b.AnswerSeparator(1); }

    TestToolbar bar;
    RecordingControl& a = bar.Add("a");
    RecordingControl& b = bar.Add("b");
    RecordingControl& c = bar.Add("c");
};

/// The same seen from a toolbar that shows what is in the picker: from `b` on.
struct PickedBar
{
    WalkedBar main{EToolbarType::Main};
    TestToolbar bar = [this] {
        main.bar.SetBoundary(main.b);
        return TestToolbar::InPickerOf(main.bar);
    }();
};
