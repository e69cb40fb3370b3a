#pragma once

#include "tests/support/TestToolbar.h"

inline constexpr EOrientation g_lying = EOrientation::Horizontal;
inline constexpr EOrientation g_upright = EOrientation::Vertical;

/// Across the main axis everything is this long, so that a mix-up of the axes shows.
inline constexpr int g_across = 500;

/// Gives the control this length along the main axis.
inline void set_length(RecordingControl& control, EOrientation orientation, int length)
{
    if (orientation == g_lying)
        control.Sized(length, g_across);
    else
        control.Sized(g_across, length);
}
