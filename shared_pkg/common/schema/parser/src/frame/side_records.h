// What the library keeps privately about a handle that its registry made. Found by the handle's address;
// a handle that a client put together itself has none. Callers hold the library lock, or the guard below.
#ifndef FRAME_SIDE_RECORDS_H
#define FRAME_SIDE_RECORDS_H

#include "inv_parser/handle.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// Tables that make queries on a handle fast; each subsystem owns its own.
enum class side_table : uint8_t { eid_lookup, instances, type_index, slots };
inline constexpr size_t side_table_count = 4;

using side_table_release = void (*)(void *table);

// True for a handle that the registry made and that has not been released.
bool has_side_record(const inv_xml_handle *handle) noexcept;

// The table kept for a handle; null when there is none.
void *get_side_table(const inv_xml_handle *handle, side_table which) noexcept;

// Keeps a table in place of the one before, which is released. It is released with the file's memory, or
// when replaced. False when the handle has no side record: the caller keeps the table.
bool set_side_table(const inv_xml_handle *handle, side_table which, void *table,
                    side_table_release release) noexcept;

// Keeps records from coming and going while it lives. For those who look for the record of an open file
// without the library lock, while other threads open and close other files. What was found stays as long as
// its file is open. Innermost of all locks: nothing that it surrounds takes one, and it does not nest.
class side_records_guard
{
public:
    side_records_guard() noexcept;
    ~side_records_guard();
    side_records_guard(const side_records_guard &) = delete;
    side_records_guard &operator=(const side_records_guard &) = delete;
};

enum loaded_document : uint8_t {
    loaded_chassis_document = 1,
    loaded_module_document,
    loaded_fan_tray_document,
    loaded_power_shelf_document,
    loaded_pem_document,
    loaded_optics_document,
    // The handle's tree begins with another entity's record than the unit's: no release may take that record
    // for the unit's.
    loaded_without_unit
};

// Which kind of document was loaded into the handle last, going by the record that its tree begins with now;
// 0: none that is known.
uint8_t loaded_kind(const inv_xml_handle *handle) noexcept;

// unit: the document's own record.
void remember_loaded_kind(const inv_xml_handle *handle, uint8_t kind, const void *unit) noexcept;

}  // namespace inv

namespace inv::frame
{

struct chunk {
    chunk *next;
    size_t size;  // octets, this header included
};

// Memory of one file. Chunks are filled one after the other; those behind `current` are zero and unused.
struct file_memory {
    chunk *first;
    chunk *current;    // the one being filled; null before the first
    chunk *single;     // chunks that hold one large request each
    char *free_begin;  // rest of `current`
    char *free_end;
    char *small_begin;  // rest of the block that small requests come from
    char *small_end;
    size_t mapped;      // octets of the chunks, without single ones
    size_t expected;    // what `mapped` will come to, as far as is known
    bool is_kept;       // a load succeeded: nothing in here may be cleared
    bool is_discarded;  // only loads that failed have built here
};

struct side_record {
    const inv_xml_handle *handle;
    file_memory memory;
    void *tables[side_table_count];
    side_table_release table_releases[side_table_count];
    uint8_t kind;
    const void *unit;
};

// Null when the handle has none, or is null.
side_record *find_side_record(const inv_xml_handle *handle) noexcept;

// Gives a new handle its side record; false, and nothing done, when memory is out. Takes the guard, as the
// next does.
bool add_side_record(const inv_xml_handle *handle) noexcept;

// Releases the record's tables.
void drop_tables(side_record *record) noexcept;

// Releases the record's tables and the record. Its file memory is already empty.
void remove_side_record(side_record *record) noexcept;

}  // namespace inv::frame

#endif
