#pragma once

#include "system/EVqVariantType.h"

#include <array>
#include <cstddef>
#include <string_view>

// What both directions of the JSON form share. Not installed.

constexpr std::size_t json_max_levels = 1000; // each is one nesting level, of which Qt's parser takes 1,024

/// In the order of EVqVariantType.
constexpr std::array<std::string_view, 6> json_type_words{"empty", "bool", "int", "uint", "text", "level"};
