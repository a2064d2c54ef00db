#include "frame/file_memory.h"

#include "frame/chunk_ranges.h"
#include "inv_platform/memory_guard.h"
#include "inv_platform/system_memory.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <stdint.h>
#include <string.h>

namespace inv::frame
{

namespace
{

constexpr size_t first_chunk_size = size_t{64} * 1024;
constexpr size_t last_doubled_chunk = size_t{1024} * 1024;

// What is kept as long as the file takes a large page only when it fills half of it.
constexpr size_t least_of_large_page = memory::large_page / 2;
constexpr size_t greatest_chunk = 16 * memory::large_page;
// With so much in use one more large page is little.
constexpr size_t least_beyond_expected = 8 * memory::large_page;

// A request above this part of the next chunk gets a chunk of its own, so that no rest of a chunk that is
// left behind is larger.
constexpr size_t single_chunk_part = 4;

// Nodes of trees and indexes lie close together: between the records, ten times as large, each would be on a
// page of its own.
constexpr size_t largest_small_size = 64;
constexpr size_t small_block_size = 4096;

static_assert(record_alignment % memory::guard_alignment == 0 && memory::guard_size % record_alignment == 0);
static_assert(sizeof(chunk) % record_alignment == 0, "records follow the header directly");

// True once any record came from the process heap: from then on one may hang below any file's records.
// Builders run without the lock.
std::atomic<bool> heap_records_were_made;

// Memory of the file being loaded; null outside a load and for handles without side record.
file_memory *loading;

char *contents(chunk *of)
{
    return reinterpret_cast<char *>(of + 1);
}

size_t capacity_of(const chunk *of)
{
    return of->size - sizeof(chunk);
}

chunk *map_chunk(size_t size)
{
    void *pages = memory::map(size);
    if (pages == nullptr)
        return nullptr;
    if (!add_chunk_range(pages, size)) {
        memory::unmap(pages, size);
        return nullptr;
    }
    auto *made = static_cast<chunk *>(pages);
    made->size = size;
    memory::forbid(contents(made), capacity_of(made));
    return made;
}

bool is_in(const chunk *list, const void *place)
{
    const auto at = reinterpret_cast<uintptr_t>(place);
    while (list != nullptr && at - reinterpret_cast<uintptr_t>(list) >= list->size)
        list = list->next;
    return list != nullptr;
}

void unmap_chunks(chunk *list)
{
    while (list != nullptr) {
        chunk *next = list->next;
        remove_chunk_range(list);
        memory::permit(contents(list), capacity_of(list));
        memory::unmap(list, list->size);
        list = next;
    }
}

void *take_single_chunk(file_memory *memory, size_t size)
{
    size_t whole = (size + sizeof(chunk) + memory::small_page - 1) & ~(memory::small_page - 1);
    chunk *made = map_chunk(whole);
    if (made == nullptr)
        return nullptr;
    made->next = memory->single;
    memory->single = made;
    return contents(made);
}

// Large pages, or where they cannot be had all at once what the request needs.
chunk *new_chunk(size_t size, size_t needed)
{
    chunk *made = map_chunk(size);
    if (made == nullptr && size >= memory::large_page)
        made = map_chunk(std::max(first_chunk_size, std::bit_ceil(sizeof(chunk) + needed)));
    return made;
}

// Goes on to the chunk behind the current one, which a failed load may have left.
bool next_chunk(file_memory *memory, chunk *next, size_t planned, size_t needed)
{
    if (next == nullptr) {
        next = new_chunk(planned, needed);
        if (next == nullptr)
            return false;
        (memory->current == nullptr ? memory->first : memory->current->next) = next;
        memory->mapped += next->size;
    }
    memory->current = next;
    memory->free_begin = contents(next);
    memory->free_end = reinterpret_cast<char *>(next) + next->size;
    return true;
}

// What is still expected takes large pages, and so does what goes far beyond it.
size_t next_chunk_size(const file_memory *memory)
{
    const size_t expected = memory->expected - std::min(memory->expected, memory->mapped);
    const size_t in_large_pages =
        memory::large_pages_for(std::min(expected, greatest_chunk), least_of_large_page);
    if (in_large_pages > 0)
        return in_large_pages;
    if (memory->mapped >= least_beyond_expected)
        return memory::large_page;
    return std::clamp(std::bit_ceil(memory->mapped + 1), first_chunk_size, last_doubled_chunk);
}

// The first octets of the free ones, which hold as many.
void *cut(char **free_begin, const char *free_end, size_t size)
{
    char *taken = *free_begin;
    *free_begin += std::min(size + memory::guard_size, static_cast<size_t>(free_end - taken));
    return taken;
}

// size is a multiple of the alignment.
void *take_aligned(file_memory *memory, size_t size)
{
    if (size > static_cast<size_t>(memory->free_end - memory->free_begin)) {
        chunk *next = memory->current == nullptr ? memory->first : memory->current->next;
        const size_t planned = next == nullptr ? next_chunk_size(memory) : next->size;
        if (size > planned / single_chunk_part)
            return take_single_chunk(memory, size);
        if (!next_chunk(memory, next, planned, size))
            return nullptr;
    }
    return cut(&memory->free_begin, memory->free_end, size);
}

// size is a multiple of the alignment.
void *take_rounded(file_memory *memory, size_t size)
{
    if (size > largest_small_size)
        return take_aligned(memory, size);
    if (size > static_cast<size_t>(memory->small_end - memory->small_begin)) {
        auto *block = static_cast<char *>(take_aligned(memory, small_block_size));
        if (block == nullptr)
            return nullptr;
        memory->small_begin = block;
        memory->small_end = block + small_block_size;
    }
    return cut(&memory->small_begin, memory->small_end, size);
}

void *take(file_memory *memory, size_t size)
{
    if (size > SIZE_MAX / 2)
        return nullptr;
    size = std::max(size, size_t{1});
    void *taken = take_rounded(memory, (size + record_alignment - 1) & ~(record_alignment - 1));
    if (taken != nullptr)
        memory::permit(taken, size);
    return taken;
}

// Makes everything zero and unused again.
void clear(file_memory *memory)
{
    unmap_chunks(memory->single);
    memory->single = nullptr;
    for (chunk *each = memory->first; memory->current != nullptr; each = each->next) {
        memory::permit(contents(each), capacity_of(each));
        bool is_last = each == memory->current;
        char *end = is_last ? memory->free_begin : reinterpret_cast<char *>(each) + each->size;
        memset(contents(each), 0, static_cast<size_t>(end - contents(each)));
        memory::forbid(contents(each), capacity_of(each));
        if (is_last)
            memory->current = nullptr;
    }
    memory->free_begin = memory->free_end = nullptr;
    memory->small_begin = memory->small_end = nullptr;
}

}  // namespace

}  // namespace inv::frame

namespace inv
{

void *record_request(size_t size) noexcept
{
    if (frame::loading != nullptr)
        return frame::take(frame::loading, size);
    frame::heap_records_were_made.store(true, std::memory_order_relaxed);
    return memory::request(size);
}

bool holds_all_records(const inv_xml_handle *handle) noexcept
{
    return !frame::heap_records_were_made.load(std::memory_order_relaxed) && has_side_record(handle);
}

bool may_keep_tables_of(const inv_xml_handle *handle, const void *root) noexcept
{
    const frame::side_record *side = frame::find_side_record(handle);
    if (side == nullptr || !frame::is_in_chunk(root))
        return side != nullptr;
    return frame::is_in(side->memory.first, root) || frame::is_in(side->memory.single, root);
}

void record_free(void *record) noexcept
{
    if (record != nullptr && !frame::is_in_chunk(record))
        memory::release(record);
}

void begin_load(inv_xml_handle *handle) noexcept
{
    frame::side_record *side = frame::find_side_record(handle);
    frame::loading = side == nullptr ? nullptr : &side->memory;
    if (frame::loading == nullptr || !frame::loading->is_discarded)
        return;
    // The one pointer that a failed load leaves in the handle; the next load may be of another kind.
    handle->module_record = nullptr;
    // Tables may know what was built; the next load builds at the same places.
    frame::drop_tables(side);
    frame::clear(frame::loading);
}

void expect_records(size_t octets) noexcept
{
    if (frame::loading == nullptr)
        return;
    const bool is_unused = frame::loading->current == nullptr;
    frame::loading->expected = (is_unused ? 0 : frame::loading->mapped) + octets;
}

void end_load(bool failed) noexcept
{
    if (frame::loading != nullptr) {
        // What an earlier load built for good stays, whatever becomes of later ones.
        frame::loading->is_kept = frame::loading->is_kept || !failed;
        frame::loading->is_discarded = !frame::loading->is_kept;
    }
    frame::loading = nullptr;
}

void release_file_memory(const inv_xml_handle *handle) noexcept
{
    frame::side_record *side = frame::find_side_record(handle);
    if (side == nullptr)
        return;
    if (frame::loading == &side->memory)
        frame::loading = nullptr;
    // The tables go first: they may look at what they index.
    frame::file_memory memory = side->memory;
    frame::remove_side_record(side);
    frame::unmap_chunks(memory.first);
    frame::unmap_chunks(memory.single);
}

void handle_forget(inv_xml_handle *handle) noexcept
{
    release_file_memory(handle);
    record_free(handle);
}

}  // namespace inv
