// The xml-instance indexes of an open document, as a path goes through them.
#ifndef INVCTL_PATH_WALK_H
#define INVCTL_PATH_WALK_H

#include <optional>
#include <string>
#include <vector>

#include "command_path.h"
#include "document.h"

namespace invctl
{

const sch_xml_inst_node_type *find_index_node(const document &opened, bus over, uint32_t xml_instance);

// The entity with this xml instance, or null.
const sch_base_entity_type *find_entity(const document &opened, uint32_t xml_instance);

// Why there is no path to an xml instance, with places in the file. Asked only when the library gave
// none.
std::string why_no_path(const document &opened, bus over, uint16_t xml_instance);

// Of entities with one xml instance only the last is in the indexes: who hides `target`, with its place.
// Empty when nobody does.
std::string why_hidden(const document &opened, const sch_base_entity_type &target);

// An entity that is reached through another one.
struct reached_entity {
    const eid_chain_node *node;
    uint32_t channel;   // to select on the other one: I2C channel or PCIe port
    uint32_t distance;  // hops from there
};

// In the order of the tree.
std::vector<reached_entity> find_behind(const document &opened, bus over, uint16_t xml_instance);

// All entities of the tree, in its order.
std::vector<const eid_chain_node *> all_entities(const document &opened);

}  // namespace invctl

#endif
