#include "SVqRTTIClass.h"

SVqRTTIClass::SVqRTTIClass() = default;
SVqRTTIClass::SVqRTTIClass(const SVqRTTIClass& other) = default;
SVqRTTIClass::SVqRTTIClass(SVqRTTIClass&& other) noexcept = default;
SVqRTTIClass& SVqRTTIClass::operator=(const SVqRTTIClass& other) = default;
SVqRTTIClass& SVqRTTIClass::operator=(SVqRTTIClass&& other) noexcept = default;
SVqRTTIClass::~SVqRTTIClass() = default;
