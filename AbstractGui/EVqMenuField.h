#pragma once

#include "system/VqText.h"

#include <string_view>

/// The fields of a stored menu item. What is not here is read over, as are the images of the disabled state,
/// which old writers left.
enum class EVqMenuField
{
    Unknown,
    Removed,
    Deleted,
    Id,
    Type,
    Status,
    Text,
    Command,
    LineWidth,
    Col1,
    Col2,
    EnaBmpFileName,
    EnaBmpResName,
    AccelKey, ///< Every name that begins as those of keys do.
    SubMenu,
};

EVqMenuField VqMenuFieldOf(std::basic_string_view<vq_wchar> name);
