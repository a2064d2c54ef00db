#include "trace/ring.h"

#include <string.h>

namespace inv::trace
{

namespace
{

// Set in the size word of a gap, which has nothing but that word.
constexpr uint32_t gap_mark = 0x80000000u;

uint8_t *at(const ring &in, uint64_t position)
{
    return in.octets + position % in.capacity;
}

uint32_t size_word(const ring &in, uint64_t position)
{
    uint32_t word;
    memcpy(&word, at(in, position), sizeof word);
    return word;
}

void drop_oldest(ring &from)
{
    uint32_t word = size_word(from, from.begin);
    if ((word & gap_mark) == 0)
        ++from.dropped;
    from.begin += word & ~gap_mark;
}

}  // namespace

bool put(ring &to, const record &from)
{
    size_t size = from.header.size;
    if (size > to.capacity)
        return false;
    size_t run = to.capacity - to.end % to.capacity;
    size_t gap = size > run ? run : 0;
    while (to.begin != to.end && to.end - to.begin + gap + size > to.capacity)
        drop_oldest(to);
    if (gap != 0) {
        auto word = static_cast<uint32_t>(gap) | gap_mark;
        memcpy(at(to, to.end), &word, sizeof word);
        if (to.begin == to.end)
            to.begin += gap;
        to.end += gap;
    }
    memcpy(at(to, to.end), &from, size);
    to.end += size;
    return true;
}

bool next(const ring &from, uint64_t &position, uint64_t limit, record &out)
{
    if (position < from.begin)
        position = from.begin;
    while (position < limit) {
        uint32_t word = size_word(from, position);
        if ((word & gap_mark) == 0) {
            memcpy(&out, at(from, position), word);
            position += word;
            return true;
        }
        position += word & ~gap_mark;
    }
    return false;
}

}  // namespace inv::trace
