#pragma once

#include "tests/quick_backend/toolbar/CoreBar.h"
#include "tests/quick_backend/toolbar/LooksFixture.h"

/// A toolbar of 600 pixels with a, b and c, each of 100 by 20.
class ToolbarFixture : public LooksFixture
{
protected:
    ToolbarFixture() { bar.toolbar.Layout(); }

    CoreBar bar;
    CVqQuickItemControl& a = bar.AddSized("a", 100);
    CVqQuickItemControl& b = bar.AddSized("b", 100);
    CVqQuickItemControl& c = bar.AddSized("c", 100);
};
