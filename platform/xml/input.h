// Where a document's octets come from: an open file or the caller's memory.
#ifndef PLATFORM_XML_INPUT_H
#define PLATFORM_XML_INPUT_H

#include "heap.h"

#include <cstddef>

namespace inv::xml
{

struct input {
    bool open = false;
    int descriptor = -1;  // -1: octets in memory
    const char *octets = nullptr;
    document_progress progress;
};

// Reads up to size octets; 0 at the end, -1 on failure with the system's error in *error.
ptrdiff_t input_read(input &from, void *buffer, size_t size, int *error);

// Whether the octets can be read once more from the first one on.
bool input_can_rewind(const input &from);
bool input_rewind(input &from);

void input_close(input &which);

}  // namespace inv::xml

#endif
