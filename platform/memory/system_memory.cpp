#include "inv_platform/system_memory.h"

#include <stdint.h>
#include <stdlib.h>
#include <sys/mman.h>

namespace inv::memory
{

void *request(size_t size)
{
    return calloc(1, size);
}

void *resize(void *block, size_t size)
{
    return realloc(block, size);
}

void release(void *block)
{
    free(block);
}

namespace
{

void *map_pages(size_t size)
{
    void *pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : pages;
}

// Each page that is touched for the first time costs about as much as reading what fills it, so
// large blocks are aligned to large pages and ask for them.
void *map_large_pages(size_t size)
{
    char *pages = static_cast<char *>(map_pages(size + large_page));
    if (pages == nullptr)
        return nullptr;
    const size_t in_front = (large_page - reinterpret_cast<uintptr_t>(pages) % large_page) % large_page;
    if (in_front > 0)
        munmap(pages, in_front);
    munmap(pages + in_front + size, large_page - in_front);
    // Without large pages it is memory all the same.
    (void)madvise(pages + in_front, size, MADV_HUGEPAGE);
    return pages + in_front;
}

}  // namespace

void *map(size_t size)
{
    return size > 0 && size % large_page == 0 ? map_large_pages(size) : map_pages(size);
}

void unmap(void *pages, size_t size)
{
    munmap(pages, size);
}

void discard(void *pages, size_t size)
{
    // Where it cannot be had early it goes with the mapping.
    (void)madvise(pages, size, MADV_DONTNEED);
}

}  // namespace inv::memory
