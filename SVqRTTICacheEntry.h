#pragma once

#include "arbor_qml_support_export.h"
#include "system/CVqStringW.h"
#include "system/CVqVariant.h"

/// What a module keeps of a class that it found in another module. The library hands it on and reads nothing
/// of it.
struct ARBOR_QML_SUPPORT_EXPORT SVqRTTICacheEntry
{
    SVqRTTICacheEntry();
    SVqRTTICacheEntry(const SVqRTTICacheEntry& other);
    SVqRTTICacheEntry(SVqRTTICacheEntry&& other) noexcept;
    SVqRTTICacheEntry& operator=(const SVqRTTICacheEntry& other);
    SVqRTTICacheEntry& operator=(SVqRTTICacheEntry&& other) noexcept;
    ~SVqRTTICacheEntry();

    CVqStringW m_strModule; ///< File name of the module.
    CVqStringW m_strClass;  ///< Name of the class in it.
    CVqVariant m_value;
};
