#pragma once

#include "system/VqTranslation.h"

/// The translation context of all key names.
constexpr char vq_accel_context[] = "AbstractGui\\CVqAbstractMenu";

inline const vq_wchar* VqAccelTranslation(const vq_wchar* name)
{
    return VQ_GetTranslation(name, vq_accel_context);
}

inline const vq_wchar* VqAccelTranslation(const vq_wchar* name, const vq_wchar* comment)
{
    return VQ_GetTranslation(name, comment, vq_accel_context);
}
