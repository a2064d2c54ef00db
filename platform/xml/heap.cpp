#include "heap.h"

#include "context.h"
#include "inv_platform/memory_guard.h"
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
// Chunks double up to this size.
constexpr size_t last_doubled_chunk = size_t{512} << 10;
// From here on chunks are pages of the system's.
constexpr size_t least_mapped_chunk = size_t{128} << 10;

// What fills so much of a large page is given it: the pages go back with the context.
constexpr size_t least_of_large_page = memory::large_page / 4;
constexpr size_t greatest_chunk = 16 * memory::large_page;
// With so much in use one more large page is little.
constexpr size_t least_of_unknown = 4 * memory::large_page;

constexpr size_t aligned(size_t size, size_t alignment)
{
    return (size + alignment - 1) & ~(alignment - 1);
}

char *octets_of(heap_chunk *chunk)
{
    return reinterpret_cast<char *>(chunk) + sizeof(heap_chunk);
}

bool is_within(const heap_chunk *chunk, const void *place)
{
    const auto begin = reinterpret_cast<uintptr_t>(chunk);
    const auto at = reinterpret_cast<uintptr_t>(place);
    return at > begin && at < begin + sizeof(heap_chunk) + chunk->used;
}

void release_chunk(heap_chunk *chunk)
{
    memory::permit(octets_of(chunk), chunk->capacity);
    if (chunk->mapped_size > 0)
        memory::unmap(chunk, chunk->mapped_size);
    else
        memory::release(chunk);
}

heap_chunk *new_chunk(size_t capacity, bool is_mapped)
{
    const size_t size = sizeof(heap_chunk) + capacity;
    void *block = is_mapped ? memory::map(size) : memory::request(size);
    if (block == nullptr)
        return nullptr;
    auto *chunk = new (block) heap_chunk{nullptr, capacity, 0, is_mapped ? size : 0};
    memory::forbid(octets_of(chunk), capacity);
    return chunk;
}

void push(heap_chunk *&list, heap_chunk *chunk)
{
    chunk->older = list;
    list = chunk;
}

void *allocate_own_chunk(heap &from, size_t size)
{
    heap_chunk *chunk = new_chunk(size, false);
    if (chunk == nullptr)
        return nullptr;
    push(from.own_chunks, chunk);
    memory::permit(octets_of(chunk), size);
    return octets_of(chunk);
}

// What the rest of the document will ask for; to begin with about what its text takes.
size_t expected_rest(const heap &of)
{
    if (of.document == nullptr || of.document->read >= of.document->size)
        return 0;
    const auto rest = static_cast<double>(of.document->size - of.document->read);
    const auto per_octet = static_cast<double>(of.reserved) / static_cast<double>(of.document->read + 1);
    const double expected = of.document->read < of.document->size / 8 ? rest : rest * per_octet;
    return static_cast<size_t>(std::min(expected, static_cast<double>(greatest_chunk)));
}

size_t next_chunk_size(const heap &of)
{
    const size_t doubled = std::clamp(std::bit_ceil(of.reserved + 1), first_chunk_size, last_doubled_chunk);
    const bool is_unknown = of.document == nullptr || of.document->size == 0;
    if (is_unknown && of.reserved >= least_of_unknown)
        return memory::large_page;
    return std::max(doubled, memory::large_pages_for(expected_rest(of), least_of_large_page));
}

bool add_chunk(heap &from, size_t size)
{
    heap_chunk *chunk = new_chunk(size - sizeof(heap_chunk), size >= least_mapped_chunk);
    if (chunk == nullptr)
        return false;
    push(from.newest, chunk);
    from.reserved += size;
    return true;
}

// Where large pages cannot be had all at once the request may still be met.
bool add_less(heap &from, size_t refused, size_t size)
{
    return refused >= memory::large_page &&
           add_chunk(from, std::max(first_chunk_size, std::bit_ceil(sizeof(heap_chunk) + size)));
}

void release_chunks(heap_chunk *&list)
{
    while (list != nullptr) {
        heap_chunk *chunk = list;
        list = chunk->older;
        release_chunk(chunk);
    }
}

// `alignment` is a power of two, the heap's own at most.
void *allocate(heap &from, size_t size, size_t alignment)
{
    if (size > static_cast<size_t>(PTRDIFF_MAX) - sizeof(heap_chunk) - greatest_alignment)
        return nullptr;
    size = std::max(size, size_t{1});
    alignment = std::max(alignment, memory::guard_alignment);
    size_t start = from.newest == nullptr ? 0 : aligned(from.newest->used, alignment);
    if (from.newest == nullptr || start > from.newest->capacity || size > from.newest->capacity - start) {
        const size_t chunk_size = next_chunk_size(from);
        // A quarter of a chunk at most is lost when a request does not fit its rest.
        if (size > chunk_size / 4) {
            void *own = allocate_own_chunk(from, size);
            if (own != nullptr)
                from.last = own;
            return own;
        }
        if (!add_chunk(from, chunk_size) && !add_less(from, chunk_size, size))
            return nullptr;
        start = 0;
    }
    from.last = octets_of(from.newest) + start;
    from.newest->used = std::min(start + size + memory::guard_size, from.newest->capacity);
    memory::permit(from.last, size);
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
    const auto start = static_cast<size_t>(static_cast<char *>(ptr) - octets_of(from.newest));
    memory::forbid(ptr, from.newest->used - start);
    from.newest->used = start;
}

const void *heap_forget(heap &of, const void *from, const void *to)
{
    // Most calls go on in the chunk of the one before; looking for it each time would grow with the heap.
    const heap_chunk *chunk = of.forgetting;
    if (chunk == nullptr || !is_within(chunk, from) || !is_within(chunk, to)) {
        chunk = of.newest;
        while (chunk != nullptr && !(is_within(chunk, from) && is_within(chunk, to)))
            chunk = chunk->older;
        of.forgetting = chunk;
    }
    if (chunk == nullptr || chunk->mapped_size == 0)
        return to;
    const size_t unit =
        chunk->mapped_size % memory::large_page == 0 ? memory::large_page : least_mapped_chunk;
    const uintptr_t begin = aligned(reinterpret_cast<uintptr_t>(from), unit);
    const uintptr_t end = reinterpret_cast<uintptr_t>(to) & ~(unit - 1);
    if (begin >= end)
        return from;
    auto *pages = reinterpret_cast<void *>(begin);
    memory::permit(pages, end - begin);
    memory::discard(pages, end - begin);
    memory::forbid(pages, end - begin);
    return reinterpret_cast<const void *>(end);
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

const void *rtxMemHeapForget(xb_context *ctx, const void *from, const void *to)
{
    return heap_forget(ctx->state->memory, from, to);
}

xb_data_node *rtxDListAppend(xb_context *ctx, xb_data_list *list, void *data)
{
    return heap_append(ctx->state->memory, *list, data);
}
