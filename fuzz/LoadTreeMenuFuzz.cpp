#include "fuzz/StoredMenuFuzz.h"

// Any tree, loaded into a menu that lives.

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    return load_fuzzed_menu<TreeRecords>(data, size);
}
