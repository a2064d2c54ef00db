#include "frame/chunk_ranges.h"

#include "inv_platform/system_memory.h"

#include <stdint.h>
#include <string.h>

namespace inv::frame
{

namespace
{

struct range {
    uintptr_t start;
    uintptr_t end;
};

// Highest address first: the system hands mappings out downwards, so most new ranges go to the end.
range *ranges;
size_t range_count;
size_t range_capacity;

// Index of the first range that starts at or below the address; range_count when none does.
size_t find(uintptr_t address)
{
    size_t low = 0;
    size_t high = range_count;
    while (low < high) {
        size_t middle = low + (high - low) / 2;
        if (ranges[middle].start > address)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

bool grow()
{
    size_t capacity = range_capacity == 0 ? 16 : range_capacity * 2;
    void *grown = memory::resize(ranges, capacity * sizeof(range));
    if (grown == nullptr)
        return false;
    ranges = static_cast<range *>(grown);
    range_capacity = capacity;
    return true;
}

}  // namespace

bool add_chunk_range(const void *chunk, size_t size) noexcept
{
    if (range_count == range_capacity && !grow())
        return false;
    uintptr_t start = reinterpret_cast<uintptr_t>(chunk);
    size_t position = find(start);
    memmove(ranges + position + 1, ranges + position, (range_count - position) * sizeof(range));
    ranges[position] = {start, start + size};
    ++range_count;
    return true;
}

void remove_chunk_range(const void *chunk) noexcept
{
    size_t position = find(reinterpret_cast<uintptr_t>(chunk));
    if (position >= range_count)
        return;
    --range_count;
    memmove(ranges + position, ranges + position + 1, (range_count - position) * sizeof(range));
    if (range_count > 0)
        return;
    // With the last file everything goes back.
    memory::release(ranges);
    ranges = nullptr;
    range_capacity = 0;
}

bool is_in_chunk(const void *p) noexcept
{
    uintptr_t address = reinterpret_cast<uintptr_t>(p);
    size_t position = find(address);
    return position < range_count && address < ranges[position].end;
}

}  // namespace inv::frame
