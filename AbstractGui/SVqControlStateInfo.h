#pragma once

#include "system/VqText.h"

/// What the commands vq_control_read_state and vq_control_write_state of a control exchange. The texts are
/// not owned: after reading they belong to the control and hold until it changes or deletes the state.
struct SVqControlStateInfo
{
    int bitmap = -1;                   ///< Image index of the pool, -1 for none.
    const vq_wchar* text = nullptr;    ///< Label.
    const vq_wchar* command = nullptr; ///< What the control runs.
    const vq_wchar* tooltip = nullptr; ///< Tooltip.
};
