/* From a record to its text. */
#ifndef PLATFORM_TRACE_FORMAT_H
#define PLATFORM_TRACE_FORMAT_H

#include <stddef.h>

#include "trace/record.h"

namespace inv::trace
{

// Longest text of a record with its NUL; what is longer is cut.
constexpr size_t max_line = 8192;

// Writes the record's text, NUL-terminated, and returns its length. The format decides how an
// argument looks, never what it is: where the two disagree the text has "<?>" instead.
size_t format_record(const record &from, char (&line)[max_line]);

}  // namespace inv::trace

#endif
