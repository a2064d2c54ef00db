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

// Grows or shrinks a block of request(); null (block untouched) when memory is out. Octets gained
// are not cleared.
void *resize(void *block, size_t size);

// Gives a block of request() or resize() back; also anything a client got from calloc().
void release(void *block);

// Zero-filled pages from the system, or null. size is a multiple of 4096.
void *map(size_t size);

void unmap(void *pages, size_t size);

}  // namespace inv::memory

#endif
