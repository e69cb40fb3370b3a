#pragma once

#include "system/VqTypes.h"

/// What a toolbar is. Other values are a back end's own and count as a toolbar without a picker.
enum class EToolbarType : vq_int32
{
    Main = 0,     ///< Its last control is the picker, which takes what does not fit.
    Hosted = 2,   ///< Lies in a host window that its creator names, with borders on all sides.
    Fixed = 3,    ///< Is not dragged, unless whoever changes to this type says otherwise.
    InPicker = 5, ///< Shows what is in the picker of a main toolbar, and shares its controls.
};
