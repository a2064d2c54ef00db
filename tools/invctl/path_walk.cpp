#include "path_walk.h"

#include <set>

#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "output.h"
#include "places.h"

namespace
{

using invctl::bus;
using invctl::document;

uint32_t max_hops(bus over)
{
    return over == bus::i2c ? INV_I2C_MAX_HOPS : INV_PCIE_MAX_HOPS;
}

void add_entities(const eid_chain_node *list, std::vector<const eid_chain_node *> *all)
{
    for (; list != nullptr; list = list->next_sibling) {
        all->push_back(list);
        add_entities(list->first_child, all);
    }
}

std::string told(const document &opened, const sch_base_entity_type &entity)
{
    return "\"" + invctl::printable(entity.name) + "\" (xml " + std::to_string(entity.xml_instance) + ", " +
           invctl::place_of_instance(opened.path, entity.xml_instance) + ")";
}

std::string xml_text(uint32_t xml_instance)
{
    return "xml instance " + std::to_string(xml_instance);
}

// What is wrong with one hop; empty when nothing is.
std::string fault_of_hop(const document &opened, const sch_xml_inst_node_type &node)
{
    if (node.entity == nullptr) {
        std::string text = "no entity has " + xml_text(node.xml_instance);
        if (node.parent_entity != nullptr)
            text += ", to which a port of " + told(opened, *node.parent_entity) + " leads";
        return text;
    }
    if (node.xml_instance > INV_MAX_HOP_XML_INSTANCE)
        return told(opened, *node.entity) + " is on the way, and instances above " +
               std::to_string(INV_MAX_HOP_XML_INSTANCE) + " are refused";
    return "";
}

}  // namespace

namespace invctl
{

const sch_xml_inst_node_type *find_index_node(const document &opened, bus over, uint32_t xml_instance)
{
    sch_xml_inst_node_type key = {};
    key.xml_instance = xml_instance;
    avl_root *index =
        over == bus::i2c ? &opened.handle->i2c_xml_inst_index : &opened.handle->pcie_xml_inst_index;
    return static_cast<const sch_xml_inst_node_type *>(avl_search(index, &key, parser_xml_inst_compare));
}

// Every entity is in both indexes.
const sch_base_entity_type *find_entity(const document &opened, uint32_t xml_instance)
{
    const sch_xml_inst_node_type *node = find_index_node(opened, bus::i2c, xml_instance);
    return node == nullptr ? nullptr : node->entity;
}

std::string why_no_path(const document &opened, bus over, uint16_t xml_instance)
{
    if (xml_instance == 0)
        return "xml instance 0 names no device";
    const sch_xml_inst_node_type *node = find_index_node(opened, over, xml_instance);
    if (node == nullptr)
        return opened.path + " has no " + xml_text(xml_instance);
    std::set<const sch_xml_inst_node_type *> seen;
    const sch_base_entity_type *first_too_many = nullptr;
    for (; node != nullptr; node = find_index_node(opened, over, node->parent_xml_instance)) {
        std::string fault = fault_of_hop(opened, *node);
        if (!fault.empty())
            return fault;
        if (!seen.insert(node).second)
            return "the ports form a loop at " + told(opened, *node->entity);
        if (seen.size() == max_hops(over) + 1u)
            first_too_many = node->entity;
        if (node->parent_entity == nullptr)
            break;
    }
    if (first_too_many != nullptr)
        return "the way has " + std::to_string(seen.size()) + " hops, " + std::to_string(max_hops(over)) +
               " are allowed: counted from the device, the first too many is " +
               told(opened, *first_too_many);
    const sch_base_entity_type *target = find_entity(opened, xml_instance);
    return told(opened, *target) + " has no device on this bus, and no port leads to it";
}

std::string why_hidden(const document &opened, const sch_base_entity_type &target)
{
    const sch_base_entity_type *indexed = find_entity(opened, target.xml_instance);
    if (indexed == nullptr || indexed == &target)
        return "";
    return told(opened, *indexed) + " has the " + xml_text(target.xml_instance) + " of \"" +
           printable(target.name) + "\" as well";
}

std::vector<reached_entity> find_behind(const document &opened, bus over, uint16_t xml_instance)
{
    std::vector<reached_entity> found;
    for (const eid_chain_node *each : all_entities(opened)) {
        const sch_xml_inst_node_type *node = find_index_node(opened, over, each->record->xml_instance);
        // A hostile document may have loops: no path is longer than what the bus allows.
        for (uint32_t distance = 1; distance < max_hops(over) && node != nullptr; ++distance) {
            if (node->entity == nullptr || node->parent_entity == nullptr ||
                (distance == 1 && node->entity != each->record))
                break;
            if (node->parent_xml_instance == xml_instance) {
                found.push_back({each, node->channel, distance});
                break;
            }
            node = find_index_node(opened, over, node->parent_xml_instance);
        }
    }
    return found;
}

std::vector<const eid_chain_node *> all_entities(const document &opened)
{
    std::vector<const eid_chain_node *> all;
    add_entities(opened.handle->root, &all);
    return all;
}

}  // namespace invctl
