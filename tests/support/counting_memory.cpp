#include "support/counting_memory.h"

#include "inv_platform/system_memory.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <mutex>
#include <sys/mman.h>

namespace
{

std::atomic<uint64_t> request_count;
std::atomic<uint64_t> live_count;
std::atomic<uint64_t> heap;
std::atomic<uint64_t> mapped;
std::atomic<uint64_t> discarded;
std::atomic<uint64_t> fail_number;
std::atomic<bool> fail_all_after;
std::atomic<bool> has_failed;

std::mutex left_guard;
std::map<const void *, std::string> left;  // by block: the tag
std::atomic<bool> has_left;                // spares the releases of most tests the lock

void forget_left(const void *block)
{
    std::lock_guard<std::mutex> held(left_guard);
    left.erase(block);
}

// True when the request now made has to fail.
bool refuse()
{
    uint64_t number = ++request_count;
    uint64_t wanted = fail_number;
    if (wanted == 0 || number < wanted || (number > wanted && !fail_all_after))
        return false;
    has_failed = true;
    return true;
}

}  // namespace

namespace counting_memory
{

uint64_t requests()
{
    return request_count;
}

uint64_t live()
{
    return live_count;
}

uint64_t heap_octets()
{
    return heap;
}

uint64_t mapped_octets()
{
    return mapped;
}

uint64_t discarded_octets()
{
    return discarded;
}

void fail_at(uint64_t n, bool all_after)
{
    request_count = 0;
    has_failed = false;
    fail_all_after = all_after;
    fail_number = n;
}

bool failed()
{
    return has_failed;
}

void expect_left(const char *tag, const void *block)
{
    if (block == nullptr)
        return;
    std::lock_guard<std::mutex> held(left_guard);
    left.emplace(block, tag);
    has_left = true;
}

std::map<std::string, uint64_t> left_by_tag()
{
    std::lock_guard<std::mutex> held(left_guard);
    std::map<std::string, uint64_t> counts;
    for (const auto &[block, tag] : left)
        ++counts[tag];
    return counts;
}

void release_left()
{
    has_left = false;
    std::lock_guard<std::mutex> held(left_guard);
    for (const auto &[block, tag] : left)
        inv::memory::release(const_cast<void *>(block));
    left.clear();
}

void reset()
{
    fail_at(0);
    discarded = 0;
}

}  // namespace counting_memory

namespace inv::memory
{

void *request(size_t size)
{
    if (refuse())
        return nullptr;
    void *block = calloc(1, size);
    if (block != nullptr)
        ++live_count;
    heap += malloc_usable_size(block);
    return block;
}

void *resize(void *block, size_t size)
{
    if (refuse())
        return nullptr;
    size_t before = malloc_usable_size(block);
    void *grown = realloc(block, size);
    if (block == nullptr && grown != nullptr)
        ++live_count;
    if (grown != nullptr)
        heap += malloc_usable_size(grown) - before;
    return grown;
}

void release(void *block)
{
    if (block != nullptr)
        --live_count;
    if (has_left)
        forget_left(block);
    heap -= malloc_usable_size(block);
    free(block);
}

void *map(size_t size)
{
    if (refuse())
        return nullptr;
    void *pages = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        return nullptr;
    ++live_count;
    mapped += size;
    return pages;
}

void unmap(void *pages, size_t size)
{
    --live_count;
    mapped -= size;
    munmap(pages, size);
}

void discard(void *pages, size_t size)
{
    // Whoever still reads there shall notice.
    memset(pages, 0xDD, size);
    discarded += size;
}

}  // namespace inv::memory
