#include "fuzz/StoredFormFuzz.h"

#include <cstddef>

// Bytes as the CBOR form of a tree and of a stream.

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const auto read = [](QIODevice& device, auto& target) { return VQ_ReadCbor(device, target); };
    const auto write = [](QIODevice& device, const auto& source) { return VQ_WriteCbor(device, source); };
    fuzz_stored_form(data, size, read, write);
    return 0;
}
