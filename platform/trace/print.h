/* Lines of a channel for people: live on standard error and in the dump. */
#ifndef PLATFORM_TRACE_PRINT_H
#define PLATFORM_TRACE_PRINT_H

#include <stdio.h>

#include "trace/record.h"

namespace inv::trace
{

// Writes time (UTC), thread, id and text as one line. Control characters become dots: texts come
// from documents and must not steer a terminal or make up lines.
void print_record(FILE *to, const record &from);

}  // namespace inv::trace

#endif
