#include "heap.h"

#include "context.h"
#include "inv_platform/system_memory.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <new>

namespace inv::xml
{

namespace
{

constexpr size_t greatest_alignment = 16;
constexpr size_t first_chunk_size = 4096;
constexpr size_t greatest_chunk_size = size_t{4} << 20;
// Chunks double up to this size; whoever needs more than those gets the greatest, which take far fewer
// page faults (system_memory.h).
constexpr size_t last_doubled_chunk = size_t{512} << 10;

// From here on chunks are whole pages of the system's.
constexpr size_t least_mapped_chunk = size_t{128} << 10;

constexpr size_t aligned(size_t size, size_t alignment)
{
    return (size + alignment - 1) & ~(alignment - 1);
}

char *octets_of(heap_chunk *chunk)
{
    return reinterpret_cast<char *>(chunk) + sizeof(heap_chunk);
}

// Chunks of the regular sizes only: what a single request has for itself goes back early at times.
bool is_mapped(size_t capacity)
{
    const size_t size = sizeof(heap_chunk) + capacity;
    return size >= least_mapped_chunk && size <= greatest_chunk_size && std::has_single_bit(size);
}

void release_chunk(heap_chunk *chunk)
{
    if (is_mapped(chunk->capacity))
        memory::unmap(chunk, sizeof(heap_chunk) + chunk->capacity);
    else
        memory::release(chunk);
}

heap_chunk *new_chunk(size_t capacity)
{
    const size_t size = sizeof(heap_chunk) + capacity;
    void *block = is_mapped(capacity) ? memory::map(size) : memory::request(size);
    if (block == nullptr)
        return nullptr;
    return new (block) heap_chunk{nullptr, capacity, 0};
}

void push(heap_chunk *&list, heap_chunk *chunk)
{
    chunk->older = list;
    list = chunk;
}

void *allocate_own_chunk(heap &from, size_t size)
{
    heap_chunk *chunk = new_chunk(size);
    if (chunk == nullptr)
        return nullptr;
    push(from.own_chunks, chunk);
    return octets_of(chunk);
}

bool add_chunk(heap &from)
{
    size_t size = std::max(from.next_chunk_size, first_chunk_size);
    heap_chunk *chunk = new_chunk(size - sizeof(heap_chunk));
    if (chunk == nullptr)
        return false;
    push(from.newest, chunk);
    from.next_chunk_size = size < last_doubled_chunk ? size * 2 : greatest_chunk_size;
    return true;
}

void release_chunks(heap_chunk *&list)
{
    while (list != nullptr) {
        heap_chunk *chunk = list;
        list = chunk->older;
        release_chunk(chunk);
    }
}

}  // namespace

namespace
{

// `alignment` is a power of two, the heap's own at most.
void *allocate(heap &from, size_t size, size_t alignment)
{
    if (size > static_cast<size_t>(PTRDIFF_MAX) - sizeof(heap_chunk) - greatest_alignment)
        return nullptr;
    size = std::max(size, size_t{1});
    // A quarter of a chunk at most is lost when a request does not fit its rest.
    if (size > std::max(from.next_chunk_size, first_chunk_size) / 4) {
        void *own = allocate_own_chunk(from, size);
        if (own != nullptr)
            from.last = own;
        return own;
    }
    size_t start = from.newest == nullptr ? 0 : aligned(from.newest->used, alignment);
    if (from.newest == nullptr || start > from.newest->capacity || size > from.newest->capacity - start) {
        if (!add_chunk(from))
            return nullptr;
        start = 0;
    }
    from.last = octets_of(from.newest) + start;
    from.newest->used = start + size;
    return from.last;
}

}  // namespace

void *heap_allocate(heap &from, size_t size)
{
    return allocate(from, size, greatest_alignment);
}

char *heap_copy_text(heap &from, std::string_view text)
{
    char *copy = static_cast<char *>(allocate(from, text.size() + 1, 1));
    if (copy == nullptr)
        return nullptr;
    if (!text.empty())
        memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

xb_data_node *heap_append(heap &from, xb_data_list &list, void *data)
{
    void *block = allocate(from, sizeof(xb_data_node), alignof(xb_data_node));
    if (block == nullptr)
        return nullptr;
    xb_data_node *node = new (block) xb_data_node{data, nullptr, list.tail};
    (list.tail != nullptr ? list.tail->next : list.head) = node;
    list.tail = node;
    ++list.count;
    return node;
}

void heap_take_back(heap &from, void *ptr)
{
    if (ptr == nullptr || ptr != from.last)
        return;
    from.last = nullptr;
    heap_chunk *own = from.own_chunks;
    if (own != nullptr && ptr == octets_of(own)) {
        from.own_chunks = own->older;
        release_chunk(own);
        return;
    }
    from.newest->used = static_cast<size_t>(static_cast<char *>(ptr) - octets_of(from.newest));
}

void heap_release(heap &from)
{
    release_chunks(from.newest);
    release_chunks(from.own_chunks);
    from = {};
}

}  // namespace inv::xml

using namespace inv::xml;

void *rtxMemHeapAlloc(xb_context *ctx, size_t size)
{
    return heap_allocate(ctx->state->memory, size);
}

void rtxMemHeapFreePtr(xb_context *ctx, void *ptr)
{
    heap_take_back(ctx->state->memory, ptr);
}

xb_data_node *rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data)
{
    return heap_append(ctx->state->memory, *list, data);
}
