// What the libraries hold of the system's memory: their calls of it are led here by the linker (--wrap).
#ifndef TESTS_HOSTILE_LIVE_MEMORY_H
#define TESTS_HOSTILE_LIVE_MEMORY_H

#include <cstdint>

namespace hostile
{

struct live_memory {
    int64_t blocks = 0;         // of the heap, that have not been given back
    int64_t mapped_octets = 0;  // likewise
};

live_memory live_now();

}  // namespace hostile

#endif
