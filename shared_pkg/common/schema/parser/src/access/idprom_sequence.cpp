// The ways to ID EEPROMs of plugged units, as the chassis describes them for its slots.
#include "access/control_card.h"
#include "access/sequence_families.h"
#include "frame/side_records.h"
#include "inv_parser/access_sequences.h"
#include "inv_parser/inventory_tokens.h"
#include "inv_parser/unit_records.h"

using namespace inv;

namespace
{

sch_i2c_access_hop_type hop_of_command(const sch_i2c_node_type &command)
{
    sch_i2c_access_hop_type hop = {};
    hop.device_type = command.device_type;
    hop.device_model = command.device_model;
    hop.device_address = command.device_address;
    hop.channel = command.control_register;
    hop.xml_instance = command.xml_instance;
    return hop;
}

// A command list as a sequence; *count holds all its hops, of which the sequence's own count may be
// the low octet only.
uint32_t convert_commands(const sch_i2c_sequence_type *from, sch_i2c_access_seq_type **out, size_t *count)
{
    size_t commands = 0;
    for (const sch_i2c_node_type *node = from->command_list; node != nullptr; node = node->next)
        ++commands;
    auto *sequence = request_sequence<i2c_family>(commands);
    if (sequence == nullptr) {
        trace<msg::i2c_command_list_no_memory>();
        return 1;
    }
    sch_i2c_access_hop_type *hop = sequence->hops;
    for (const sch_i2c_node_type *node = from->command_list; node != nullptr; node = node->next)
        *hop++ = hop_of_command(*node);
    sequence->hop_count = static_cast<uint8_t>(commands);
    *out = sequence;
    *count = commands;
    return 0;
}

// The first entity of type chassis.
uint32_t find_chassis_entity(inv_xml_handle *handle, sch_base_entity_type **out)
{
    uint16_t count = 0;
    sch_eid_type *eids = nullptr;
    uint32_t result = inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_TYPE_CHASSIS,
                                                 &count, &eids);
    if (result != 0 || count == 0) {
        trace<msg::idprom_no_chassis>();
        inv_parser_free_eid_tree(eids);
        return 1;
    }
    result = inv_parser_get_eid_data(handle, out, eids[0]);
    if (result != 0)
        trace<msg::idprom_no_chassis_data>();
    inv_parser_free_eid_tree(eids);
    if (result == 0 && *out == nullptr) {
        trace<msg::idprom_chassis_data_null>();
        return 1;
    }
    return result;
}

uint8_t loaded_kind_without_lock(const inv_xml_handle *handle)
{
    const side_records_guard held;
    return loaded_kind(handle);
}

// Any document may hold an entity that calls itself a chassis; only the top entity of a chassis document
// is the head of a chassis record.
const sch_container_list_type *container_lists_of(const inv_xml_handle *handle,
                                                  const sch_base_entity_type *entity)
{
    if (loaded_kind_without_lock(handle) != loaded_chassis_document || handle->root->record != entity)
        return nullptr;
    return reinterpret_cast<const sch_chassis_type *>(entity)->container_list_list;
}

uint32_t find_idprom_sequence(inv_xml_handle *handle, uint32_t node_type, sch_i2c_access_seq_type **out,
                              size_t *count)
{
    uint32_t container_type = inv_parser_convert_node_type_to_container_type(node_type);
    if (container_type == INV_NO_CONTAINER_TYPE) {
        trace<msg::idprom_no_container_type>();
        return 1;
    }
    sch_base_entity_type *entity = nullptr;
    uint32_t result = find_chassis_entity(handle, &entity);
    if (result != 0)
        return result;
    const sch_container_list_type *slots = container_lists_of(handle, entity);
    while (slots != nullptr && slots->container_type != container_type)
        slots = slots->next;
    if (slots == nullptr) {
        trace<msg::idprom_container_unknown>();
        return 1;
    }
    return convert_commands(&slots->i2c_idprom, out, count);
}

// One slot's part of the remote form; the sequence stays null where the card has no way to the slot.
template <class Failed, class NoMemory>
bool join_idprom(inv_xml_handle *card, const slot_way &way, const sch_i2c_access_seq_type *idprom,
                 size_t idprom_count, sch_i2c_access_seq_type **to_slot, sch_i2c_access_seq_type **out)
{
    if (!build_to_slot<i2c_family, Failed>(card, way, to_slot))
        return false;
    if (*to_slot == nullptr)
        return true;
    *out = join<i2c_family>(*to_slot, way.channel, idprom, idprom_count);
    if (*out == nullptr)
        trace<NoMemory>();
    return *out != nullptr;
}

}  // namespace

uint32_t inv_parser_retrieve_i2c_sequence_info(const sch_i2c_sequence_type *sequence,
                                               sch_i2c_access_seq_type **out)
{
    size_t count = 0;
    return sequence == nullptr || out == nullptr ? 1 : convert_commands(sequence, out, &count);
}

uint32_t inv_parser_get_container_list_i2c_idprom_access_info(inv_xml_handle *handle, uint32_t node_type,
                                                              sch_i2c_access_seq_type **out)
{
    size_t count = 0;
    return out == nullptr ? 1 : find_idprom_sequence(handle, node_type, out, &count);
}

uint32_t inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
    inv_xml_handle *cc, inv_xml_handle *chassis, uint32_t type, uint32_t position,
    sch_i2c_access_seq_pair_type **out)
{
    if (out == nullptr)
        return 1;
    join_parts<i2c_family> parts;
    if (parts.pair == nullptr) {
        trace<msg::remote_idprom_no_memory>();
        return 1;
    }
    size_t idprom_count = 0;
    uint32_t result = find_idprom_sequence(chassis, type, &parts.tail, &idprom_count);
    if (result != 0) {
        trace<msg::remote_idprom_failed>();
        return result;
    }
    if (cc == nullptr)
        return 1;
    slot_ways ways = find_slot_ways(cc, i2c_family::slot_lists(cc), type, position);
    if (!join_idprom<msg::remote_idprom_slot0_failed, msg::remote_idprom_slot0_no_memory>(
            cc, ways.slot0, parts.tail, idprom_count, &parts.slot0, &parts.pair->slot0) ||
        !join_idprom<msg::remote_idprom_slot1_failed, msg::remote_idprom_slot1_no_memory>(
            cc, ways.slot1, parts.tail, idprom_count, &parts.slot1, &parts.pair->slot1))
        return 1;
    *out = parts.hand_out();
    return 0;
}
