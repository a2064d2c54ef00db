#include "frame/side_records.h"

#include "inv_platform/system_memory.h"

#include <pthread.h>

namespace inv::frame
{

namespace
{

// Open addressing with linear probing; at most half full, so that a probe always meets an empty place.
side_record **places;
size_t place_count;  // a power of two, or 0
size_t record_count;

pthread_mutex_t guard_lock = PTHREAD_MUTEX_INITIALIZER;

size_t home_of(const inv_xml_handle *handle, size_t count)
{
    uint64_t mixed = (reinterpret_cast<uintptr_t>(handle) >> 4) * UINT64_C(0x9E3779B97F4A7C15);
    return static_cast<size_t>(mixed >> 32) & (count - 1);
}

void put(side_record **table, size_t count, side_record *record)
{
    size_t place = home_of(record->handle, count);
    while (table[place] != nullptr)
        place = (place + 1) & (count - 1);
    table[place] = record;
}

bool grow()
{
    size_t count = place_count == 0 ? 16 : place_count * 2;
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the table holds pointers
    auto **table = static_cast<side_record **>(memory::request(count * sizeof(side_record *)));
    if (table == nullptr)
        return false;
    for (size_t i = 0; i < place_count; ++i) {
        if (places[i] != nullptr)
            put(table, count, places[i]);
    }
    memory::release(places);
    places = table;
    place_count = count;
    return true;
}

size_t place_of(const inv_xml_handle *handle)
{
    size_t place = home_of(handle, place_count);
    while (places[place] != nullptr && places[place]->handle != handle)
        place = (place + 1) & (place_count - 1);
    return place;
}

// Empties a place and moves later records of the same run up, so that no probe ends too early.
void vacate(size_t hole)
{
    size_t mask = place_count - 1;
    for (size_t next = (hole + 1) & mask; places[next] != nullptr; next = (next + 1) & mask) {
        size_t home = home_of(places[next]->handle, place_count);
        if (((next - home) & mask) >= ((next - hole) & mask)) {
            places[hole] = places[next];
            hole = next;
        }
    }
    places[hole] = nullptr;
}

}  // namespace

side_record *find_side_record(const inv_xml_handle *handle) noexcept
{
    return handle == nullptr || record_count == 0 ? nullptr : places[place_of(handle)];
}

bool add_side_record(const inv_xml_handle *handle) noexcept
{
    const side_records_guard held;
    if (2 * (record_count + 1) > place_count && !grow())
        return false;
    auto *record = static_cast<side_record *>(memory::request(sizeof(side_record)));
    if (record == nullptr) {
        if (record_count == 0) {
            memory::release(places);
            places = nullptr;
            place_count = 0;
        }
        return false;
    }
    record->handle = handle;
    put(places, place_count, record);
    ++record_count;
    return true;
}

void drop_tables(side_record *record) noexcept
{
    for (size_t i = 0; i < side_table_count; ++i) {
        if (record->tables[i] != nullptr)
            record->table_releases[i](record->tables[i]);
        record->tables[i] = nullptr;
    }
}

void remove_side_record(side_record *record) noexcept
{
    drop_tables(record);
    const side_records_guard held;
    vacate(place_of(record->handle));
    memory::release(record);
    if (--record_count > 0)
        return;
    // With the last file everything goes back.
    memory::release(places);
    places = nullptr;
    place_count = 0;
}

}  // namespace inv::frame

namespace inv
{

side_records_guard::side_records_guard() noexcept
{
    pthread_mutex_lock(&frame::guard_lock);
}

side_records_guard::~side_records_guard()
{
    pthread_mutex_unlock(&frame::guard_lock);
}

bool has_side_record(const inv_xml_handle *handle) noexcept
{
    return frame::find_side_record(handle) != nullptr;
}

void *get_side_table(const inv_xml_handle *handle, side_table which) noexcept
{
    const frame::side_record *record = frame::find_side_record(handle);
    return record == nullptr ? nullptr : record->tables[static_cast<size_t>(which)];
}

bool set_side_table(const inv_xml_handle *handle, side_table which, void *table,
                    side_table_release release) noexcept
{
    frame::side_record *record = frame::find_side_record(handle);
    if (record == nullptr)
        return false;
    size_t slot = static_cast<size_t>(which);
    if (record->tables[slot] != nullptr)
        record->table_releases[slot](record->tables[slot]);
    record->tables[slot] = table;
    record->table_releases[slot] = release;
    return true;
}

uint8_t loaded_kind(const inv_xml_handle *handle) noexcept
{
    const frame::side_record *record = frame::find_side_record(handle);
    if (record == nullptr)
        return 0;
    // A module's release goes by the handle's module record, wherever its tree begins; that may be gone.
    const bool goes_by_root = record->kind != 0 && record->kind != loaded_module_document;
    const bool has_other_root =
        goes_by_root && handle->root != nullptr && handle->root->record != record->unit;
    return has_other_root ? uint8_t{loaded_without_unit} : record->kind;
}

void remember_loaded_kind(const inv_xml_handle *handle, uint8_t kind, const void *unit) noexcept
{
    frame::side_record *record = frame::find_side_record(handle);
    if (record == nullptr)
        return;
    record->kind = kind;
    record->unit = unit;
}

}  // namespace inv
