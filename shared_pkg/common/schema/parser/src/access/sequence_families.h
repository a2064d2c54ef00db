// I2C and PCIe access sequences: where they differ.
#ifndef ACCESS_SEQUENCE_FAMILIES_H
#define ACCESS_SEQUENCE_FAMILIES_H

#include "access/hop_walk.h"

namespace inv
{

struct i2c_family {
    using sequence = sch_i2c_access_seq_type;
    using hop = sch_i2c_access_hop_type;
    using pair = sch_i2c_access_seq_pair_type;
    static constexpr bus over = bus::i2c;
    static constexpr size_t max_hops = INV_I2C_MAX_HOPS;

    using null_handle = msg::i2c_null_handle;
    using no_node = msg::i2c_no_avl_node;
    using target_no_entity = msg::i2c_target_no_entity;
    using no_parent_node = msg::i2c_no_parent_avl_node;
    using no_memory = msg::i2c_no_memory;
    using instance_too_large = msg::i2c_instance_too_large;
    using hop_no_entity = msg::i2c_hop_no_entity;

    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle *file)
    {
        return file->i2c_cc_slot_lists;
    }
    static hop describe(const found_hop &found)
    {
        const sch_i2c_node_type &device = found.entity->i2c_node;
        hop described = {};
        described.device_type = device.device_type;
        described.device_model = device.device_model;
        described.device_address = device.device_address;
        described.channel = found.channel;
        return described;
    }
    // Kept: the upper half of a channel is lost here.
    static void move_up(hop *to, const hop &next)
    {
        to->channel = static_cast<uint16_t>(next.channel);
    }
    // A target without I2C device of its own is the channel above it.
    static void trim(sequence *built)
    {
        const hop &target = built->hops[built->hop_count - 1];
        if (target.device_type == 0 && target.device_model == 0 && target.device_address == 0)
            --built->hop_count;
    }
    static void select(hop *on, uint8_t channel)
    {
        on->channel = channel;
    }
    // The last hop is the target itself.
    static void name_target(sequence *, uint16_t) {}
};

struct pcie_family {
    using sequence = sch_pcie_access_seq_type;
    using hop = sch_pcie_access_hop_type;
    using pair = sch_pcie_access_seq_pair_type;
    static constexpr bus over = bus::pcie;
    static constexpr size_t max_hops = INV_PCIE_MAX_HOPS;

    using null_handle = msg::pcie_null_handle;
    using no_node = msg::pcie_no_avl_node;
    using target_no_entity = msg::pcie_target_no_entity;
    using no_parent_node = msg::pcie_no_parent_avl_node;
    using no_memory = msg::pcie_no_memory;
    using instance_too_large = msg::pcie_instance_too_large;
    using hop_no_entity = msg::pcie_hop_no_entity;

    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle *file)
    {
        return file->pcie_cc_slot_lists;
    }
    static hop describe(const found_hop &found)
    {
        const sch_pcie_node_type &device = found.entity->pcie_node;
        hop described = {};
        described.device_type = device.device_type;
        described.device_model = device.device_model;
        described.port_number = device.port_number;
        described.link_port = static_cast<uint16_t>(found.channel);
        described.device_id = static_cast<uint16_t>(found.device_id);
        return described;
    }
    static void move_up(hop *to, const hop &next)
    {
        to->link_port = next.link_port;
        to->device_id = next.device_id;
    }
    static void trim(sequence *) {}
    static void select(hop *on, uint8_t port)
    {
        on->link_port = port;
    }
    // The header names the target, so its own hop goes: after the shift the last link port is 0.
    static void name_target(sequence *joined, uint16_t target)
    {
        joined->xml_instance = target;
        if (joined->hops[joined->hop_count - 1].link_port == 0)
            --joined->hop_count;
    }
};

}  // namespace inv

#endif
