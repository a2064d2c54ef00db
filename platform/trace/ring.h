/* Ring of whole records in one block of memory. Not locked; the channel serialises.
 *
 * Positions only ever grow; the octet of a position is position % capacity. A record never spans
 * the end of the block: what is left there is filled with a gap, or was empty anyway.
 */
#ifndef PLATFORM_TRACE_RING_H
#define PLATFORM_TRACE_RING_H

#include <stddef.h>
#include <stdint.h>

#include "trace/record.h"

namespace inv::trace
{

struct ring {
    uint8_t *octets;
    size_t capacity;  // a multiple of record_alignment
    uint64_t begin;   // position of the oldest record
    uint64_t end;     // position behind the newest one
    uint64_t dropped;
};

// Appends a record, dropping the oldest ones while room is short. False when it is larger than
// the whole ring.
bool put(ring &to, const record &from);

// Copies the record at `position`, or the oldest one still there behind it, and moves position
// behind it. False when none is left before `limit`.
bool next(const ring &from, uint64_t &position, uint64_t limit, record &out);

}  // namespace inv::trace

#endif
