#include "arbor_identity_texts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>

// What the module tells about itself to tools that read the file: a section of slots of 512 bytes, each with
// an XML text in UTF-16, little endian, and zeros behind it. The program never reads them.

namespace {

using Slot = std::array<char16_t, 256>;

constexpr std::u16string_view g_before = uR"(<variant version="1.0"><)";
constexpr std::u16string_view g_elements[] = {
    uR"(VQ_GLOB_FILEVERSION_WCS value="7, 100, 2200, 4")",
    uR"(VQ_GLOB_PRODUCTVERSION_WCS value="0, 0, 0, 0")",
    (uR"(VQ_GLOB_COMPANYNAME value=")" ARBOR_COMPANY_NAME uR"(")"),
    (uR"(VQ_GLOB_COPYRIGHT value=")" ARBOR_COPYRIGHT uR"(")"),
    uR"(VQ_GLOB_TRADEMARKS value="")",
    uR"(VQ_LOCAL_COMMENTS value="comments...")",
    uR"(VQ_LOCAL_FILEDESCRIPTION value="QML support")",
    uR"(VQ_LOCAL_INTERNALNAME value="arbor_qml_support")",
    uR"(VQ_LOCAL_ORIGINALFILENAME value="k7_arbor_qml_support.dll")",
    uR"(VQ_LOCAL_PRODUCTNAME value="arbor_qml_support")",
    uR"(VQ_LOCAL_PRIVATEBUILD value="1")",
    uR"(VQ_LOCAL_SPECIALBUILD value="1")",
    // In a debug build too: the tools count thirteen slots.
    uR"(NDEBUG)",
};
constexpr std::u16string_view g_behind = uR"(/></variant>)";

// With a zero behind it.
constexpr bool fits(std::u16string_view element)
{
    return g_before.size() + element.size() + g_behind.size() < Slot().size();
}

static_assert(std::ranges::all_of(g_elements, fits), "ARBOR_COMPANY_NAME or ARBOR_COPYRIGHT is too long");

constexpr Slot slot(std::u16string_view element)
{
    Slot result{};
    auto end = std::ranges::copy(g_before, result.begin()).out;
    end = std::ranges::copy(element, end).out;
    std::ranges::copy(g_behind, end);
    return result;
}

constexpr auto slots()
{
    std::array<Slot, std::size(g_elements)> result{};
    std::ranges::transform(g_elements, result.begin(), slot);
    return result;
}

static_assert(sizeof(slots()) == 6656);
static_assert(std::endian::native == std::endian::little);

// Not const, since the section is writable. Nothing refers to it, so compiler and linker are told to keep it.
[[gnu::section("ver9ID"), gnu::used, gnu::retain]] constinit auto identity_records = slots();

}
