// The memory door of the test build: counts requests, makes the n-th one fail, finds leaks.
#ifndef TESTS_SUPPORT_COUNTING_MEMORY_H
#define TESTS_SUPPORT_COUNTING_MEMORY_H

#include <cstddef>
#include <cstdint>

namespace counting_memory {

// Requests (heap, resize and mapping alike) since the last reset().
uint64_t requests();

// Blocks and mappings that are out and not given back.
uint64_t live();

// Octets of live mappings.
uint64_t mapped_octets();

// The n-th request from now on fails (1: the next). With `all_after` every later one fails too.
// 0 takes the order back.
void fail_at(uint64_t n, bool all_after = false);

// True when a request has failed since fail_at().
bool failed();

// Forgets the count of requests and any order to fail. Live blocks stay counted.
void reset();

}  // namespace counting_memory

#endif
