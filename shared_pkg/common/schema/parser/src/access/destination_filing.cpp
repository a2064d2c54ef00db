#include "access/destination_filing.h"

#include "access/slot_lookup.h"
#include "access/xml_instance_index.h"
#include "tree/current_file.h"

namespace inv
{

namespace
{

struct i2c_filing {
    static constexpr bus over = bus::i2c;
    using index_no_memory = msg::i2c_dest_index_no_memory;
    using insert_failed = msg::i2c_dest_avl_insert_failed;
    using slot_no_memory = msg::i2c_dest_slot_no_memory;
    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle *file)
    {
        return file->i2c_cc_slot_lists;
    }
    static void complete(sch_xml_inst_node_type *, const destination &) {}
};

struct pcie_filing {
    static constexpr bus over = bus::pcie;
    using index_no_memory = msg::pcie_dest_index_no_memory;
    using insert_failed = msg::pcie_dest_avl_insert_failed;
    using slot_no_memory = msg::pcie_dest_slot_no_memory;
    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle *file)
    {
        return file->pcie_cc_slot_lists;
    }
    static void complete(sch_xml_inst_node_type *node, const destination &found)
    {
        node->pcie_dest = found.device_id;
    }
};

uint32_t instance_of(const sch_base_entity_type *owner)
{
    return owner == nullptr ? 0 : owner->xml_instance;
}

// The destination lies in a slot: how it is reached from the control card in slot 0, 1 or both.
template <class Filing>
uint32_t file_in_slot_list(inv_xml_handle *file, const destination &found)
{
    sch_cc_slot_xml_inst_type **heads = Filing::slot_lists(file);
    sch_cc_slot_xml_inst_type *element = find_slot_element(heads, found.node_type, found.node_position);
    if (element == nullptr) {
        element = record_new<sch_cc_slot_xml_inst_type>();
        if (element == nullptr) {
            trace<typename Filing::slot_no_memory>();
            return 1;
        }
        element->key = static_cast<uint16_t>(found.node_position);
        add_slot_element(heads, found.node_type, element);
    }
    if (found.applicable != SCH_CTRL_SLOT_1) {
        element->slot0_parent_instance = instance_of(found.owner);
        element->slot0_channel = found.channel;
    }
    if (found.applicable != SCH_CTRL_SLOT_0) {
        element->slot1_parent_instance = instance_of(found.owner);
        element->slot1_channel = found.channel;
    }
    return 0;
}

// The destination is an entity of this file. Of several ports that name it the last one wins.
template <class Filing>
uint32_t file_in_index(inv_xml_handle *file, const destination &found)
{
    auto *node = obtain_index_node<typename Filing::index_no_memory, typename Filing::insert_failed>(
        index_of(file, Filing::over), found.node_position);
    if (node == nullptr)
        return 1;
    node->channel = found.channel;
    node->parent_xml_instance = instance_of(found.owner);
    node->parent_entity = found.owner;
    Filing::complete(node, found);
    return 0;
}

template <class Filing>
uint32_t file_destination(const destination &found)
{
    inv_xml_handle *file = current_file();
    if (file == nullptr)
        return 0;
    if (found.node_type == SCH_NODE_TYPE_ENTITY)
        return file_in_index<Filing>(file, found);
    if (found.node_type >= INV_CC_SLOT_LIST_COUNT)
        return 0;
    return file_in_slot_list<Filing>(file, found);
}

}  // namespace

uint32_t file_i2c_destination(const destination &found)
{
    return file_destination<i2c_filing>(found);
}

uint32_t file_pcie_destination(const destination &found)
{
    return file_destination<pcie_filing>(found);
}

}  // namespace inv
