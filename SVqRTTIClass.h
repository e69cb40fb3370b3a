#pragma once

#include "arbor_qml_support_export.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

/// What a module tells about one of its classes. The library hands it on and reads nothing of it.
struct ARBOR_QML_SUPPORT_EXPORT SVqRTTIClass
{
    SVqRTTIClass();
    SVqRTTIClass(const SVqRTTIClass& other);
    SVqRTTIClass(SVqRTTIClass&& other) noexcept;
    SVqRTTIClass& operator=(const SVqRTTIClass& other);
    SVqRTTIClass& operator=(SVqRTTIClass&& other) noexcept;
    ~SVqRTTIClass();

    CVqStringW m_strName;
    CVqStringW m_strBase; ///< Name of the base class; empty: none.
    CVqVariant m_properties;
};
