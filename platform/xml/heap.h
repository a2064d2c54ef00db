// The context's heap: an arena that is given back as a whole.
#ifndef PLATFORM_XML_HEAP_H
#define PLATFORM_XML_HEAP_H

#include "inv_platform/memory_guard.h"
#include "inv_platform/xml_runtime.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace inv::xml
{

struct alignas(16) heap_chunk {
    heap_chunk *older;
    size_t capacity;
    size_t used;
    size_t mapped_size;  // 0: from the process heap
};

// How far a document has been read; chunks are chosen by what its rest will ask for.
struct document_progress {
    uint64_t size = 0;  // 0: not known
    uint64_t read = 0;
};

struct heap {
    heap_chunk *newest = nullptr;      // chunk that small requests are cut from
    heap_chunk *own_chunks = nullptr;  // big requests, one chunk each
    size_t reserved = 0;               // octets of the regular chunks
    const document_progress *document = nullptr;
    void *last = nullptr;                    // newest allocation while it can still be taken back
    const heap_chunk *forgetting = nullptr;  // where something was forgotten last
};

// Aligned to 16, content undefined; null when memory is out.
void *heap_allocate(heap &from, size_t size);

// A NUL-terminated copy of text, or null. Texts lie closely packed.
char *heap_copy_text(heap &from, std::string_view text);

constexpr size_t heap_text_padding = 16;

// The same for a text behind which heap_text_padding octets may be looked at: copied in whole pieces of
// so many where there is room, since most texts are short.
inline char *heap_copy_padded_text(heap &from, std::string_view text)
{
    heap_chunk *chunk = from.newest;
    constexpr size_t slack = memory::guard_alignment - 1;
    const size_t room = text.size() + heap_text_padding;
    if (chunk == nullptr || room + slack > chunk->capacity - chunk->used)
        return heap_copy_text(from, text);
    const size_t start = (chunk->used + slack) & ~slack;
    char *copy = reinterpret_cast<char *>(chunk + 1) + start;
    memory::permit(copy, room);
    for (size_t i = 0; i < text.size(); i += heap_text_padding)
        memcpy(copy + i, text.data() + i, heap_text_padding);
    copy[text.size()] = '\0';
    memory::forbid(copy, room);
    memory::permit(copy, text.size() + 1);
    chunk->used = std::min(start + text.size() + 1 + memory::guard_size, chunk->capacity);
    from.last = copy;
    return copy;
}

// Appends a node to a list; null when memory is out.
xb_data_node *heap_append(heap &from, xb_data_list &list, void *data);

// Takes the newest allocation back; any other pointer is left alone.
void heap_take_back(heap &from, void *ptr);

// Gives whole pages between the two back when both lie in one chunk; returns where what is left begins.
const void *heap_forget(heap &of, const void *from, const void *to);

void heap_release(heap &from);

}  // namespace inv::xml

#endif
