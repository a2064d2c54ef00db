// A document on both roads that the reader can take: by way of expat and in place. The first octet says in
// how small pieces the second one reads and what is asked for on the way; the rest is the document.
#include "platform/xml_roads_walk.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace
{

constexpr size_t chunk_sizes[] = {0, 1, 2, 3, 7, 16, 64, 4096};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const std::span<const size_t> chunk_size(&chunk_sizes[data[0] % std::size(chunk_sizes)], 1);
    const uint64_t seed = data[0] / std::size(chunk_sizes);
    const std::string_view document(reinterpret_cast<const char *>(data + 1), size - 1);
    const std::string found = compare_roads(document, chunk_size, seed);
    if (!found.empty()) {
        fprintf(stderr, "%s\n", found.c_str());
        abort();
    }
    return 0;
}
