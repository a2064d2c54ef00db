/* One trace record as the ring keeps it, and its making.
 *
 * A record is a header and its arguments without gaps, in the order of kinds: s a 16-bit length
 * and so many octets, d 32 bits, D 64 bits. Nothing is formatted before somebody looks.
 */
#ifndef PLATFORM_TRACE_RECORD_H
#define PLATFORM_TRACE_RECORD_H

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>

#include "inv_platform/trace.h"

namespace inv::trace
{

struct record_header {
    uint32_t size;  // of the whole record, a multiple of record_alignment
    uint32_t id;
    uint64_t time;         // nanoseconds since 1970, UTC
    const char *kinds;     // the caller's constant
    const char *format;    // the caller's constant
    uint32_t thread;       // the writer's thread id
    uint32_t values_size;  // octets of arguments behind this header
};

constexpr size_t record_alignment = 8;

// Length of a null text; a real one is never that long.
constexpr uint16_t null_text = 0xFFFF;

constexpr size_t max_values_size = QTRACE_MAX_ARGUMENTS * (sizeof(uint16_t) + QTRACE_MAX_TEXT);

struct record {
    record_header header;
    uint8_t values[(max_values_size + record_alignment - 1) / record_alignment * record_alignment];
};

static_assert(sizeof(record_header) % record_alignment == 0);
static_assert(offsetof(record, values) == sizeof(record_header), "the ring copies both in one go");

// Fills all of out but its padding. Returns 0, EINVAL for an unknown kind or E2BIG for too many
// arguments.
int32_t make_record(record &out, uint32_t id, const char *kinds, const char *format, va_list arguments);

}  // namespace inv::trace

#endif
