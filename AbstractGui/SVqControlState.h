#pragma once

#include "system/CVqStringW.h"
#include "system/VqTypes.h"

/// One state of a control: an image, three texts and its colours. Copied field by field.
struct SVqControlState
{
    int m_bitmap = -1;                        ///< Image index of the pool, -1 for none.
    CVqStringW m_text;                        ///< Label.
    CVqStringW m_command;                     ///< What the control runs.
    CVqStringW m_tooltip;                     ///< Tooltip.
    vq_uint32 m_frgcolor = 0xFFFFFFFF;        ///< Foreground.
    vq_uint32 m_bkgcolor = 0xFFFFFFFF;        ///< Background.
    vq_uint32 m_additionalcolor = 0xFFFFFFFF; ///< For the concrete control; not stored.
    vq_uint64 m_userValue = 0;                ///< For the concrete control; not stored.
};
