/* Records as a program would fill them by hand from a DOM tree: about as many octets as ours, a field for
 * everything that the benchmark's documents carry. */
#ifndef INV_BENCH_PEER_RECORD_H
#define INV_BENCH_PEER_RECORD_H

#include "inv_parser/eid.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace inv_bench
{

struct peer_destination {
    std::int64_t applicable, node_type, node_position;
    peer_destination *next;
};

struct peer_port {
    std::int64_t port_type, channel;
    peer_destination *destinations;
    peer_port *next;
};

struct peer_led {
    std::int64_t color, control;
    peer_led *next;
};

// What only some kinds of entity have shares its places.
struct peer_record {
    peer_record *parent, *first_child, *last_child, *next_sibling;
    peer_port *ports;
    peer_led *leds;
    std::int64_t type, subtype, instance, xml_instance, owner, selection, admin_state, oper_state;
    std::int64_t power_admin_state, power_oper_state, dual_router, rep_scope, rep_state_scope, fruable, oir;
    std::int64_t snmp_entity, is_primary, is_prefix_needed, is_hidden, resets[3];
    std::int64_t hw_model, obfl_data, driver_registered, driver_required, driver_id;
    std::int64_t device_type, device_address, control_register;
    std::int64_t own[10];
    sch_eid_type eid;
    char name[65], description[129], oid[129];
    char hardware_version[65], software_version[65], firmware_version[65];
    char own_texts[4][33];
};
static_assert(sizeof(peer_record) >= 1050 && sizeof(peer_record) <= 1150);

/* What an element or attribute is: a structure of its own, a bracket around others, or a value. */
enum class item_kind : std::uint8_t {
    entity,
    port,
    destination,
    led,
    group,
    text,
    number,
    hex,
    flag,
    token,
    ignored
};

/* The structure that a value belongs to. */
enum class item_home : std::uint8_t { record, port, destination, led };

struct item {
    std::string_view name;
    item_kind kind;
    item_home home;
    std::uint16_t offset;
    std::uint16_t size;  // of a text's array
};

/* Null when the schema has no such element or attribute. */
const item *find_element(std::string_view name);
const item *find_attribute(std::string_view name);

/* Stores a text in the form that its item has; false when it is none. `home` is the structure. */
bool store_value(void *home, const item &field, std::string_view text);

/* Zero-filled memory that stays until forget_records(). */
void *new_record(std::size_t size);

template <class Record>
Record *new_record()
{
    return static_cast<Record *>(new_record(sizeof(Record)));
}

void forget_records();

/* Makes the tables of names and tokens, as a program does when it starts. */
void prepare_peer_tables();

}  // namespace inv_bench

#endif
