#include "stress/questions.h"

namespace stress
{

namespace
{

template <class Value>
void put(std::string &to, const Value &value)
{
    to.append(reinterpret_cast<const char *>(&value), sizeof value);
}

// Result, count and EIDs; releases them.
std::string eids_answered(uint32_t result, uint32_t count, sch_eid_type *eids)
{
    std::string octets;
    put(octets, result);
    put(octets, count);
    if (eids != nullptr)
        octets.append(reinterpret_cast<const char *>(eids), count * sizeof *eids);
    inv_parser_free_eid_tree(eids);
    return octets;
}

template <class Sequence>
void put_sequence(std::string &to, const Sequence *sequence)
{
    if (sequence == nullptr)
        return;
    put(to, *sequence);
    to.append(reinterpret_cast<const char *>(sequence->hops), sequence->hop_count * sizeof sequence->hops[0]);
}

template <class Sequence>
std::string sequence_answered(uint32_t result, Sequence *sequence, void (*release)(Sequence *))
{
    std::string octets;
    put(octets, result);
    put_sequence(octets, sequence);
    release(sequence);
    return octets;
}

template <class Pair>
std::string pair_answered(uint32_t result, Pair *pair)
{
    std::string octets;
    put(octets, result);
    if (pair != nullptr) {
        put(octets, pair->slot0 != nullptr);
        put_sequence(octets, pair->slot0);
        put_sequence(octets, pair->slot1);
    }
    inv_parser_free_remote_i2c_access_sequence(pair);
    return octets;
}

std::string ask_root_eid(const open_files &files, const question &)
{
    sch_eid_type *eid = nullptr;
    uint32_t result = inv_parser_get_root_eid(files.asked, &eid);
    return eids_answered(result, eid == nullptr ? 0 : 1, eid);
}

std::string ask_tree(const open_files &files, const question &asked)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    const sch_eid_type *start = asked.whole_tree ? nullptr : &asked.eid;
    uint32_t result = inv_parser_get_eid_tree(files.asked, asked.first, start, &eids, &count);
    return eids_answered(result, count, eids);
}

std::string ask_by_type(const open_files &files, const question &asked)
{
    sch_eid_type *eids = nullptr;
    uint16_t count = 0;
    uint32_t result = inv_parser_get_eid_by_type(files.asked, asked.first, static_cast<uint8_t>(asked.second),
                                                 &count, &eids);
    return eids_answered(result, count, eids);
}

std::string ask_by_subtype(const open_files &files, const question &asked)
{
    sch_eid_type *eids = nullptr;
    uint16_t count = 0;
    uint32_t result =
        inv_parser_get_eid_by_type_subtype(files.asked, asked.first, static_cast<uint8_t>(asked.second),
                                           static_cast<uint8_t>(asked.third), &count, &eids);
    return eids_answered(result, count, eids);
}

std::string ask_record(const open_files &files, const question &asked)
{
    sch_base_entity_type *entity = nullptr;
    std::string octets;
    put(octets, inv_parser_get_eid_data(files.asked, &entity, asked.eid));
    if (entity == nullptr)
        return octets;
    put(octets, entity->name);
    put(octets, entity->description);
    put(octets, entity->type);
    put(octets, entity->subtype);
    put(octets, entity->instance);
    put(octets, entity->xml_instance);
    put(octets, entity->owner);
    put(octets, entity->i2c_node.device_type);
    put(octets, entity->pcie_node.device_type);
    return octets;
}

std::string ask_i2c_by_instance(const open_files &files, const question &asked)
{
    sch_i2c_access_seq_type *sequence = nullptr;
    uint32_t result = inv_parser_get_i2c_access_sequence_by_xml_inst(
        files.asked, static_cast<int32_t>(asked.first), &sequence);
    return sequence_answered(result, sequence, inv_parser_free_i2c_access_sequence);
}

std::string ask_i2c_by_eid(const open_files &files, const question &asked)
{
    sch_i2c_access_seq_type *sequence = nullptr;
    uint32_t result = inv_parser_get_i2c_access_sequence_by_eid(files.asked, &asked.eid, &sequence);
    return sequence_answered(result, sequence, inv_parser_free_i2c_access_sequence);
}

std::string ask_pcie_by_instance(const open_files &files, const question &asked)
{
    sch_pcie_access_seq_type *sequence = nullptr;
    uint32_t result = inv_parser_get_pcie_access_sequence_by_xml_inst(
        files.asked, static_cast<int32_t>(asked.first), &sequence);
    return sequence_answered(result, sequence, inv_parser_free_pcie_access_sequence);
}

std::string ask_pcie_by_eid(const open_files &files, const question &asked)
{
    sch_pcie_access_seq_type *sequence = nullptr;
    uint32_t result = inv_parser_get_pcie_access_sequence_by_eid(files.asked, &asked.eid, &sequence);
    return sequence_answered(result, sequence, inv_parser_free_pcie_access_sequence);
}

// Of the commands that the top entity's hardware signals name.
std::string ask_sequence_info(const open_files &files, const question &)
{
    sch_i2c_access_seq_type *sequence = nullptr;
    uint32_t result =
        inv_parser_retrieve_i2c_sequence_info(&files.asked->root->record->hw_signals.i2c_path, &sequence);
    return sequence_answered(result, sequence, inv_parser_free_i2c_access_sequence);
}

std::string ask_container_type(const open_files &, const question &asked)
{
    std::string octets;
    put(octets, inv_parser_convert_node_type_to_container_type(asked.first));
    return octets;
}

std::string ask_file_name(const open_files &files, const question &)
{
    return inv_parser_get_file_name(files.asked);
}

std::string ask_i2c_from_card(const open_files &files, const question &asked)
{
    sch_i2c_access_seq_pair_type *pair = nullptr;
    uint32_t result = inv_parser_get_i2c_access_sequence_from_control_card(
        files.card, files.asked, asked.first, asked.second, &asked.eid, &pair);
    return pair_answered(result, pair);
}

std::string ask_pcie_from_card(const open_files &files, const question &asked)
{
    sch_pcie_access_seq_pair_type *pair = nullptr;
    uint32_t result = inv_parser_get_pcie_access_sequence_from_control_card(
        files.card, files.asked, asked.first, asked.second, &asked.eid, &pair);
    return pair_answered(result, pair);
}

std::string ask_idprom(const open_files &files, const question &asked)
{
    sch_i2c_access_seq_type *sequence = nullptr;
    uint32_t result =
        inv_parser_get_container_list_i2c_idprom_access_info(files.chassis, asked.first, &sequence);
    return sequence_answered(result, sequence, inv_parser_free_i2c_access_sequence);
}

std::string ask_remote_idprom(const open_files &files, const question &asked)
{
    sch_i2c_access_seq_pair_type *pair = nullptr;
    uint32_t result = inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
        files.card, files.chassis, asked.first, asked.second, &pair);
    return pair_answered(result, pair);
}

using ask_function = std::string (*)(const open_files &, const question &);

constexpr ask_function functions[] = {
    ask_root_eid,        ask_tree,       ask_by_type,          ask_by_subtype,     ask_record,
    ask_i2c_by_instance, ask_i2c_by_eid, ask_pcie_by_instance, ask_pcie_by_eid,    ask_sequence_info,
    ask_container_type,  ask_file_name,  ask_i2c_from_card,    ask_pcie_from_card, ask_idprom,
    ask_remote_idprom,
};
static_assert(sizeof functions / sizeof functions[0] == question_kinds);

std::vector<sch_eid_type> all_eids(inv_xml_handle *handle)
{
    std::vector<sch_eid_type> found;
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count) == 0)
        found.assign(eids, eids + count);
    inv_parser_free_eid_tree(eids);
    return found;
}

constexpr uint32_t owners[] = {ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_OWNER_TYPE_COMMON,
                               ORVL_ENTITY_OWNER_TYPE_SHELF};

void add_questions_about_types(std::vector<question> &to)
{
    for (uint32_t owner : owners)
        for (uint32_t type = 0; type <= ORVL_ENTITY_TYPE_CPU; ++type)
            for (about what : {about::by_type, about::by_subtype})
                to.push_back({what, false, owner, type, INV_ANY_SUBTYPE, {}});
}

// `number` spreads positions and owners over the entities.
void add_questions_about_entity(std::vector<question> &to, const sch_eid_type &eid, uint32_t instance,
                                uint32_t number)
{
    const sch_eid_level_type &own = eid.levels[eid.depth == 0 ? 0 : eid.depth - 1];
    uint32_t owner = owners[number % std::size(owners)];
    to.push_back({about::by_subtype, false, owner, own.type, own.subtype, {}});
    for (about what : {about::tree, about::record, about::i2c_by_eid, about::pcie_by_eid})
        to.push_back({what, false, owner, 0, 0, eid});
    for (about what : {about::i2c_by_instance, about::pcie_by_instance})
        to.push_back({what, false, instance, 0, 0, {}});
    for (about what : {about::i2c_from_card, about::pcie_from_card})
        to.push_back({what, false, ORVL_NODE_TYPE_LINECARD, number % 10, 0, eid});
}

uint32_t instance_of(inv_xml_handle *handle, const sch_eid_type &eid)
{
    sch_base_entity_type *entity = nullptr;
    return inv_parser_get_eid_data(handle, &entity, eid) == 0 ? entity->xml_instance : 0;
}

}  // namespace

bool needs_card(const question &asked)
{
    return asked.what >= about::i2c_from_card;
}

std::string answer(const open_files &files, const question &asked)
{
    return functions[static_cast<size_t>(asked.what)](files, asked);
}

std::vector<question> questions_about(const open_files &files)
{
    std::vector<question> all;
    for (about what : {about::root_eid, about::sequence_info, about::file_name})
        all.push_back({what, false, 0, 0, 0, {}});
    for (uint32_t owner : owners)
        all.push_back({about::tree, true, owner, 0, 0, {}});
    add_questions_about_types(all);
    for (uint32_t node_type = 0; node_type <= ORVL_NODE_TYPE_MAX; ++node_type)
        for (about what : {about::container_type, about::idprom, about::remote_idprom})
            all.push_back({what, false, node_type, node_type % 10, 0, {}});
    uint32_t number = 0;
    for (const sch_eid_type &eid : all_eids(files.asked))
        add_questions_about_entity(all, eid, instance_of(files.asked, eid), number++);
    sch_eid_type unknown = {};
    unknown.depth = 1;
    unknown.levels[0] = {ORVL_ENTITY_TYPE_UNKNOWN, 99, 9999};
    add_questions_about_entity(all, unknown, 9999, number);
    return all;
}

}  // namespace stress
