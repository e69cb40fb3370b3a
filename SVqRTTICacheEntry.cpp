#include "SVqRTTICacheEntry.h"

SVqRTTICacheEntry::SVqRTTICacheEntry() = default;
SVqRTTICacheEntry::SVqRTTICacheEntry(const SVqRTTICacheEntry& other) = default;
SVqRTTICacheEntry::SVqRTTICacheEntry(SVqRTTICacheEntry&& other) noexcept = default;
SVqRTTICacheEntry& SVqRTTICacheEntry::operator=(const SVqRTTICacheEntry& other) = default;
SVqRTTICacheEntry& SVqRTTICacheEntry::operator=(SVqRTTICacheEntry&& other) noexcept = default;
SVqRTTICacheEntry::~SVqRTTICacheEntry() = default;
