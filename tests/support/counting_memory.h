// The memory door of the test build: counts requests, makes the n-th one fail, finds leaks.
#ifndef TESTS_SUPPORT_COUNTING_MEMORY_H
#define TESTS_SUPPORT_COUNTING_MEMORY_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace counting_memory
{

// Requests (heap, resize and mapping alike) since the last reset().
uint64_t requests();

// Blocks and mappings that are out and not given back.
uint64_t live();

// Octets of live heap blocks, as the allocator rounded them.
uint64_t heap_octets();

// Octets of live mappings.
uint64_t mapped_octets();

// Octets of mappings that were given back while they stayed mapped, since the last reset().
uint64_t discarded_octets();

// The n-th request from now on fails (1: the next). With `all_after` every later one fails too.
// 0 takes the order back.
void fail_at(uint64_t n, bool all_after = false);

// True when a request has failed since fail_at().
bool failed();

// Blocks that the contract leaves behind. A test names each under a tag before the release that leaves it;
// from then on it is reachable from here, so that a leak checker reports everything else. Null is ignored.
void expect_left(const char *tag, const void *block);

// How many of the named blocks are still out, by tag; tags without any are left out.
std::map<std::string, uint64_t> left_by_tag();

// Gives the named blocks back.
void release_left();

// Forgets the count of requests and any order to fail. Live blocks stay counted.
void reset();

}  // namespace counting_memory

#endif
