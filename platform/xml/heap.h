// The context's heap: an arena that is given back as a whole.
#ifndef PLATFORM_XML_HEAP_H
#define PLATFORM_XML_HEAP_H

#include <cstddef>
#include <string_view>

namespace inv::xml
{

struct heap_chunk;

struct heap {
    heap_chunk *newest = nullptr;      // chunk that small requests are cut from
    heap_chunk *own_chunks = nullptr;  // big requests, one chunk each
    size_t next_chunk_size = 0;
    void *last = nullptr;  // newest allocation while it can still be taken back
};

// Aligned to 16, content undefined; null when memory is out.
void *heap_allocate(heap &from, size_t size);

// A NUL-terminated copy of text, or null.
char *heap_copy_text(heap &from, std::string_view text);

// Takes the newest allocation back; any other pointer is left alone.
void heap_take_back(heap &from, void *ptr);

void heap_release(heap &from);

}  // namespace inv::xml

#endif
