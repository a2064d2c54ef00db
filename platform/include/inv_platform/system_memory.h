/* The one door through which both libraries ask the system for memory.
 *
 * Each library compiles its own hidden copy of platform/memory/system_memory.cpp. Tests link
 * another file in its place that counts the requests, makes the n-th one fail and finds leaks.
 */
#ifndef INV_PLATFORM_SYSTEM_MEMORY_H
#define INV_PLATFORM_SYSTEM_MEMORY_H

#include <stddef.h>

namespace inv::memory
{

// Zero-filled memory from the process heap, or null. Free with release().
void *request(size_t size);

// Grows or shrinks a block of request(), or asks for one when block is null; null (block untouched) when
// memory is out. Octets gained are not cleared. size must not be 0.
void *resize(void *block, size_t size);

// Gives a block of request() or resize() back; also anything a client got from calloc().
void release(void *block);

inline constexpr size_t small_page = 4096;
// What the system's larger pages hold, where it has them; elsewhere aligning to it does no harm. Touching
// one for the first time costs about as much as touching sixty small ones.
inline constexpr size_t large_page = size_t{2} << 20;

// Whole large pages for what will be used, the last of them when it is filled to `least_of_last` at least. In
// octets; 0: none.
constexpr size_t large_pages_for(size_t expected, size_t least_of_last)
{
    const size_t rest = expected % large_page;
    return expected - rest + (rest >= least_of_last ? large_page : 0);
}

// Zero-filled pages from the system, or null. size is a multiple of small_page; a multiple of large_page
// asks for large pages. What is not touched takes no memory.
void *map(size_t size);

void unmap(void *pages, size_t size);

// Gives the memory of pages of map() back and leaves them mapped: they are zero when they are touched again.
// Both pages and size are multiples of small_page; pages may begin anywhere within what was mapped.
void discard(void *pages, size_t size);

}  // namespace inv::memory

#endif
