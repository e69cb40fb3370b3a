#pragma once

#include "system/CVqStringW.h"
#include "system/VqVariantStorage.h"

#include <QString>

#include <ostream>

inline void PrintTo(const CVqStringW& text, std::ostream* out)
{
    *out << '"' << text.ToQString().toStdString() << '"';
}

inline void PrintTo(EVqStorageResult result, std::ostream* out)
{
    constexpr const char* names[]
        = {"Ok", "DeviceError", "CutShort", "BadBytes", "WrongType", "TooDeep", "TrailingBytes"};
    *out << names[static_cast<int>(result)];
}
