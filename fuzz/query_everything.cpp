#include "query_everything.h"

#include "inv_platform/lookup.h"

#include <cstdlib>
#include <initializer_list>

std::string file_to_open;

const char *platform_get_inv_xml_file_name(uint32_t, uint32_t, const char *)
{
    return file_to_open.c_str();
}

const char *platform_get_inv_xml_file_name_v2(const fru_xml_loc_info *)
{
    return file_to_open.c_str();
}

namespace
{

constexpr uint32_t single_entities = 48;
constexpr uint32_t owners[] = {ORVL_ENTITY_OWNER_TYPE_ALL, 1};
constexpr uint32_t node_types = INV_CC_SLOT_LIST_COUNT + 1;
volatile uint8_t octet_sink;

void require(bool holds)
{
    if (!holds)
        abort();
}

template <class Sequence>
void read_sequence(const Sequence *sequence)
{
    if (sequence != nullptr)
        read_octets(sequence, sizeof *sequence + sequence->hop_count * sizeof sequence->hops[0]);
}

template <class Pair, class Sequence>
void read_and_release_pair(Pair *pair, void (*read)(const Sequence *))
{
    if (pair == nullptr)
        return;
    read(pair->slot0);
    read(pair->slot1);
    inv_parser_free_remote_i2c_access_sequence(pair);
}

void ask_by_instance(inv_xml_handle *handle, int32_t instance)
{
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    inv_parser_get_i2c_access_sequence_by_xml_inst(handle, instance, &i2c);
    inv_parser_get_pcie_access_sequence_by_xml_inst(handle, instance, &pcie);
    take_sequence(i2c);
    take_sequence(pcie);
}

void ask_for_sequences(inv_xml_handle *handle, const sch_eid_type *eid)
{
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    inv_parser_get_i2c_access_sequence_by_eid(handle, eid, &i2c);
    inv_parser_get_pcie_access_sequence_by_eid(handle, eid, &pcie);
    take_sequence(i2c);
    take_sequence(pcie);
}

void ask_about_record(inv_xml_handle *handle, const sch_base_entity_type *record)
{
    read_octets(record, sizeof *record);
    ask_by_instance(handle, record->xml_instance);
    sch_i2c_access_seq_type *commands = nullptr;
    inv_parser_retrieve_i2c_sequence_info(&record->hw_signals.i2c_path, &commands);
    take_sequence(commands);
}

void ask_about_entity(inv_xml_handle *handle, uint32_t owner, const sch_eid_type *eid)
{
    sch_base_entity_type *record = nullptr;
    require((inv_parser_get_eid_data(handle, &record, *eid) == 0) == (record != nullptr));
    if (record != nullptr)
        ask_about_record(handle, record);
    sch_eid_type *below = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, owner, eid, &below, &count) == 0)
        read_octets(below, below == nullptr ? 0 : count * sizeof *below);
    inv_parser_free_eid_tree(below);
    ask_for_sequences(handle, eid);
}

void ask_about_types(inv_xml_handle *handle, uint32_t owner)
{
    for (unsigned type = 0; type <= 13; ++type) {
        for (unsigned subtype : {0u, 1u, INV_ANY_SUBTYPE}) {
            sch_eid_type *found = nullptr;
            uint16_t count = 0;
            inv_parser_get_eid_by_type_subtype(handle, owner, static_cast<uint8_t>(type),
                                               static_cast<uint8_t>(subtype), &count, &found);
            read_octets(found, found == nullptr ? 0 : count * sizeof *found);
            inv_parser_free_eid_tree(found);
        }
        sch_eid_type *found = nullptr;
        uint16_t count = 0;
        inv_parser_get_eid_by_type(handle, owner, static_cast<uint8_t>(type), &count, &found);
        inv_parser_free_eid_tree(found);
    }
}

// The file as control card, as chassis and as the card that is looked for.
void ask_across_files(inv_xml_handle *handle, const sch_eid_type *eid)
{
    for (uint32_t type = 0; type <= node_types; ++type) {
        sch_i2c_access_seq_type *idprom = nullptr;
        inv_parser_get_container_list_i2c_idprom_access_info(handle, type, &idprom);
        take_sequence(idprom);
        for (uint32_t position : {0u, 1u, 5u}) {
            sch_i2c_access_seq_pair_type *i2c = nullptr;
            sch_i2c_access_seq_pair_type *remote = nullptr;
            sch_pcie_access_seq_pair_type *pcie = nullptr;
            inv_parser_get_i2c_access_sequence_from_control_card(handle, handle, type, position, eid, &i2c);
            inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(handle, handle, type, position,
                                                                               &remote);
            inv_parser_get_pcie_access_sequence_from_control_card(handle, handle, type, position, eid, &pcie);
            take_pair(i2c);
            take_pair(remote);
            take_pair(pcie);
        }
    }
}

}  // namespace

void read_octets(const void *octets, size_t size)
{
    const auto *each = static_cast<const uint8_t *>(octets);
    uint8_t sum = 0;
    for (size_t i = 0; i < size; ++i)
        sum = static_cast<uint8_t>(sum ^ each[i]);
    octet_sink = sum;
}

void take_sequence(sch_i2c_access_seq_type *sequence)
{
    read_sequence(sequence);
    inv_parser_free_i2c_access_sequence(sequence);
}

void take_sequence(sch_pcie_access_seq_type *sequence)
{
    read_sequence(sequence);
    inv_parser_free_pcie_access_sequence(sequence);
}

void take_pair(sch_i2c_access_seq_pair_type *pair)
{
    read_and_release_pair(pair, read_sequence<sch_i2c_access_seq_type>);
}

void take_pair(sch_pcie_access_seq_pair_type *pair)
{
    read_and_release_pair(pair, read_sequence<sch_pcie_access_seq_type>);
}

void query_everything(inv_xml_handle *handle)
{
    sch_eid_type *root = nullptr;
    inv_parser_get_root_eid(handle, &root);
    inv_parser_free_eid_tree(root);
    for (uint32_t owner : owners) {
        ask_about_types(handle, owner);
        sch_eid_type *all = nullptr;
        uint32_t count = 0;
        if (inv_parser_get_eid_tree(handle, owner, nullptr, &all, &count) == 0 && all != nullptr) {
            read_octets(all, count * sizeof *all);
            for (uint32_t i = 0; i < count && i < single_entities; ++i)
                ask_about_entity(handle, owner, &all[i]);
            if (owner == owners[0] && count > 0)
                ask_across_files(handle, &all[count - 1]);
        }
        inv_parser_free_eid_tree(all);
    }
    for (int32_t instance = -1; instance <= 3; ++instance)
        ask_by_instance(handle, instance);
}
