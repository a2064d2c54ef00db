#include "hostile/live_memory.h"

#include <cstdlib>
#include <sys/mman.h>

namespace
{

hostile::live_memory live;

}  // namespace

hostile::live_memory hostile::live_now()
{
    return live;
}

extern "C" {

void *__real_calloc(size_t count, size_t size);
void *__real_realloc(void *block, size_t size);
void __real_free(void *block);
void *__real_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset);
int __real_munmap(void *address, size_t size);
void *__wrap_calloc(size_t count, size_t size);
void *__wrap_realloc(void *block, size_t size);
void __wrap_free(void *block);
void *__wrap_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset);
int __wrap_munmap(void *address, size_t size);

void *__wrap_calloc(size_t count, size_t size)
{
    void *block = __real_calloc(count, size);
    live.blocks += block != nullptr;
    return block;
}

void *__wrap_realloc(void *block, size_t size)
{
    void *grown = __real_realloc(block, size);
    live.blocks += block == nullptr && grown != nullptr;
    return grown;
}

void __wrap_free(void *block)
{
    live.blocks -= block != nullptr;
    __real_free(block);
}

void *__wrap_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset)
{
    void *pages = __real_mmap(address, size, protection, flags, file, offset);
    if (pages != MAP_FAILED)
        live.mapped_octets += static_cast<int64_t>(size);
    return pages;
}

int __wrap_munmap(void *address, size_t size)
{
    const int result = __real_munmap(address, size);
    if (result == 0)
        live.mapped_octets -= static_cast<int64_t>(size);
    return result;
}
}
