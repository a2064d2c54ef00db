// Building the access sequence of one xml instance: what I2C and PCIe share.
#ifndef ACCESS_HOP_WALK_H
#define ACCESS_HOP_WALK_H

#include "access/xml_instance_index.h"
#include "frame/trace.h"
#include "inv_parser/access_sequences.h"
#include "inv_parser/base_entity.h"
#include "inv_platform/system_memory.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// A Family names what differs: sequence, hop and pair (the public types), max_hops, the messages,
// over (the bus), slot_lists(), describe() for a hop, move_up() for the shift and trim() for the last hop.

// One hop as the index has it. Channel and device id are those of the port that leads here.
struct found_hop {
    uint32_t xml_instance;
    const sch_base_entity_type *entity;
    uint32_t channel;
    uint32_t device_id;
};

// The hops of a chain, target first.
template <size_t MaxHops>
struct hop_chain {
    size_t count;
    found_hop hops[MaxHops];

    void add(const sch_xml_inst_node_type *node)
    {
        hops[count++] = {node->xml_instance, node->entity, node->channel, node->pcie_dest};
    }
};

// Zeroed, with room for so many hops; the count is the caller's to write. Null when memory is out.
template <class Family>
typename Family::sequence *request_sequence(size_t hop_count)
{
    size_t size = sizeof(typename Family::sequence) + hop_count * sizeof(typename Family::hop);
    return static_cast<typename Family::sequence *>(memory::request(size));
}

// Climbs from the target to the topmost entity. False: no chain, or one of more hops than fit, as
// every loop of parents has.
template <class Family>
bool collect_hops(const xml_instance_index &index, uint16_t instance, hop_chain<Family::max_hops> *chain)
{
    const sch_xml_inst_node_type *node = find_index_node(index, instance);
    if (node == nullptr) {
        trace<typename Family::no_node>();
        return false;
    }
    chain->add(node);
    if (node->entity == nullptr) {
        trace<typename Family::target_no_entity>();
        return false;
    }
    while (node->parent_entity != nullptr && node->entity != nullptr) {
        node = find_index_node(index, node->parent_xml_instance);
        if (node == nullptr) {
            // Kept: a chain with a gap is answered with its lower part.
            trace<typename Family::no_parent_node>();
            return true;
        }
        if (chain->count == Family::max_hops)
            return false;
        chain->add(node);
    }
    return true;
}

// Writes the hops, topmost first. False when one of them cannot be told.
template <class Family>
bool fill_hops(const hop_chain<Family::max_hops> &chain, typename Family::hop *to)
{
    for (size_t i = chain.count; i-- > 0; ++to) {
        const found_hop &found = chain.hops[i];
        if (found.xml_instance > INV_MAX_HOP_XML_INSTANCE) {
            trace<typename Family::instance_too_large>();
            return false;
        }
        if (found.entity == nullptr) {
            trace<typename Family::hop_no_entity>();
            return false;
        }
        *to = Family::describe(found);
        to->xml_instance = static_cast<uint16_t>(found.xml_instance);
    }
    return true;
}

// Each hop was found with what leads to it; from here on it says what leads on from it.
template <class Family>
void shift_up(typename Family::hop *hops, size_t count)
{
    static constexpr typename Family::hop behind_the_last = {};
    for (size_t i = 0; i < count; ++i)
        Family::move_up(&hops[i], i + 1 < count ? hops[i + 1] : behind_the_last);
}

template <class Family>
uint32_t build_sequence(inv_xml_handle *handle, int32_t xml_instance, typename Family::sequence **out)
{
    auto instance = static_cast<uint16_t>(xml_instance);
    if (instance == 0 || out == nullptr)
        return 1;
    if (handle == nullptr) {
        trace<typename Family::null_handle>();
        return 1;
    }
    hop_chain<Family::max_hops> chain = {};
    if (!collect_hops<Family>(index_without_lock(handle, Family::over), instance, &chain))
        return 1;
    auto *sequence = request_sequence<Family>(chain.count);
    if (sequence == nullptr) {
        trace<typename Family::no_memory>();
        return 1;
    }
    if (!fill_hops<Family>(chain, sequence->hops)) {
        // Kept: these failures alone clear the caller's pointer.
        *out = nullptr;
        memory::release(sequence);
        return 1;
    }
    shift_up<Family>(sequence->hops, chain.count);
    sequence->hop_count = static_cast<uint8_t>(chain.count);
    Family::trim(sequence);
    *out = sequence;
    return 0;
}

}  // namespace inv

#endif
