// Counting and filling, wide: what the queries use. The exported walks are the same on the 16-bit globals.
#ifndef TREE_EID_WALKS_H
#define TREE_EID_WALKS_H

#include "inv_parser/eid.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// Which entities a walk takes.
struct entity_filter {
    bool any_type;
    bool any_subtype;
    uint32_t type;
    uint32_t subtype;  // compared with all 16 bits of the record's
};

constexpr entity_filter every_entity()
{
    return {true, true, 0, 0};
}

constexpr entity_filter entities_of_type(uint32_t type)
{
    return {false, true, type, 0};
}

constexpr entity_filter entities_of_subtype(uint32_t type, uint32_t subtype)
{
    return {false, false, type, subtype & 0xFF};
}

size_t count_entities(eid_chain_node *list, const entity_filter &filter) noexcept;

// Writes the full EIDs of the entities counted by count_entities(). Returns their number.
size_t fill_eids(eid_chain_node *list, const entity_filter &filter, sch_eid_type *array) noexcept;

// The same for all entities below the node.
size_t fill_eids_below(eid_chain_node *node, sch_eid_type *array) noexcept;

}  // namespace inv

#endif
