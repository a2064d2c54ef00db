// Memory that belongs to a file.
//
// What a load builds lives in chunks of the file and goes with it in one step; what a client builds by
// calling a builder itself lives in the process heap and goes by its release function. record_new() and
// record_free() hide the difference.
#ifndef FRAME_FILE_MEMORY_H
#define FRAME_FILE_MEMORY_H

#include "frame/side_records.h"
#include "inv_parser/handle.h"

#include <stddef.h>
#include <type_traits>

namespace inv
{

// Alignment of everything that record_request() hands out.
inline constexpr size_t record_alignment = 16;

// Zero-filled memory: from the file whose load is in progress, else from the process heap. Null when
// memory is out.
void *record_request(size_t size) noexcept;

template <class Record>
Record *record_new() noexcept
{
    static_assert(std::is_trivially_default_constructible_v<Record> && alignof(Record) <= record_alignment);
    return static_cast<Record *>(record_request(sizeof(Record)));
}

// Gives heap memory back; leaves a file's memory to its file. Null is ignored.
void record_free(void *record) noexcept;

// True when everything that hangs below the handle's records, tree and indexes lies in the file's memory:
// the process has never made a record outside a load. Nothing has to be looked for record by record then.
bool holds_all_records(const inv_xml_handle *handle) noexcept;

// A load is in progress from begin_load() to end_load(); loads never nest. What earlier failed loads of the
// handle had built is cleared, the handle's module record included, and their chunks serve again: a load
// that ends as failed leaves nothing behind that may be used once the next one begins. For a handle
// without side record the load takes from the process heap.
void begin_load(inv_xml_handle *handle) noexcept;
void end_load(bool failed) noexcept;

// Says how much memory the load in progress will take, as far as is known: chunks are chosen by that.
void expect_records(size_t octets) noexcept;

// The same as a scope. Ends as a success unless told otherwise.
struct load_scope {
    bool has_failed = false;

    explicit load_scope(inv_xml_handle *handle) noexcept
    {
        begin_load(handle);
    }
    ~load_scope()
    {
        end_load(has_failed);
    }
    void mark_failed() noexcept
    {
        has_failed = true;
    }
    load_scope(const load_scope &) = delete;
    load_scope &operator=(const load_scope &) = delete;
};

// True when the handle's tables may keep what they know of a tree with this root: it is in the file's memory,
// so that the tables go with it, or in the process heap, where releases are told of. The tree of another file
// may go unnoticed.
bool may_keep_tables_of(const inv_xml_handle *handle, const void *root) noexcept;

// Gives all memory of the file back at once and forgets what was kept privately about the handle. The
// handle stays allocated; whatever pointers it holds into its file's memory are the caller's to clear.
void release_file_memory(const inv_xml_handle *handle) noexcept;

// Ends a handle: the file's memory and what was kept about it, then the handle. Null is ignored.
void handle_forget(inv_xml_handle *handle) noexcept;

}  // namespace inv

#endif
