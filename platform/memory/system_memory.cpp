#include "inv_platform/system_memory.h"

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

void *map(size_t size)
{
    void *pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : pages;
}

void unmap(void *pages, size_t size)
{
    munmap(pages, size);
}

}  // namespace inv::memory
