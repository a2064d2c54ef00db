// EIDs, types, positions and unit names that no document gave, put to every entry point that takes one, on
// open sample inventories. The input is a list of calls: 4 octets that say which (kind of call, sample,
// entity, owner), 70 octets that are laid over the EID of that entity by exclusive or, and 8 octets of
// further arguments.
#include "query_everything.h"

#include "inv_parser/frame.h"
#include "inv_parser/tree_internal.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace
{

struct sample {
    const char *file;
    uint32_t pi_hw_type;
    inv_xml_handle *handle;
    sch_eid_type *eids;
    uint32_t count;
};

sample samples[] = {
    {"chassis.xml", 1, nullptr, nullptr, 0},
    {"line_card_small.xml", 3, nullptr, nullptr, 0},
    {"fan_tray.xml", 7, nullptr, nullptr, 0},
    {"power_shelf.xml", 8, nullptr, nullptr, 0},
    {"pem.xml", 9, nullptr, nullptr, 0},
    {"cxp_optics.xml", 12, nullptr, nullptr, 0},
    {"route_processor.xml", 4, nullptr, nullptr, 0},
};
constexpr size_t sample_count = std::size(samples);

struct call {
    uint8_t kind, sample, entity, owner;
    uint8_t eid[sizeof(sch_eid_type)];
    uint32_t first, second;
};
static_assert(sizeof(call) == 84);

struct arguments {
    inv_xml_handle *handle;
    inv_xml_handle *other;
    sch_eid_type *eid;  // of its own size on the heap: what lies behind it is no memory
    uint32_t owner, first, second;
};

void data_of(const arguments &a)
{
    sch_base_entity_type *record = nullptr;
    if (inv_parser_get_eid_data(a.handle, &record, *a.eid) == 0)
        read_octets(record, sizeof *record);
}

void tree_of(const arguments &a)
{
    sch_eid_type *below = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(a.handle, a.owner, a.eid, &below, &count) == 0)
        read_octets(below, below == nullptr ? 0 : count * sizeof *below);
    inv_parser_free_eid_tree(below);
}

void sequences_of(const arguments &a)
{
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    inv_parser_get_i2c_access_sequence_by_eid(a.handle, a.eid, &i2c);
    inv_parser_get_pcie_access_sequence_by_eid(a.handle, a.eid, &pcie);
    take_sequence(i2c);
    take_sequence(pcie);
}

void sequences_from_card(const arguments &a)
{
    sch_i2c_access_seq_pair_type *i2c = nullptr;
    sch_i2c_access_seq_pair_type *idprom = nullptr;
    sch_pcie_access_seq_pair_type *pcie = nullptr;
    inv_parser_get_i2c_access_sequence_from_control_card(a.other, a.handle, a.first, a.second, a.eid, &i2c);
    inv_parser_get_pcie_access_sequence_from_control_card(a.other, a.handle, a.first, a.second, a.eid, &pcie);
    inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(a.other, a.handle, a.first, a.second,
                                                                       &idprom);
    take_pair(i2c);
    take_pair(pcie);
    take_pair(idprom);
}

void sequences_of_instance(const arguments &a)
{
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_i2c_access_seq_type *idprom = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    inv_parser_get_i2c_access_sequence_by_xml_inst(a.handle, static_cast<int32_t>(a.first), &i2c);
    inv_parser_get_pcie_access_sequence_by_xml_inst(a.handle, static_cast<int32_t>(a.first), &pcie);
    inv_parser_get_container_list_i2c_idprom_access_info(a.handle, a.second, &idprom);
    inv_parser_convert_node_type_to_container_type(a.first);
    take_sequence(i2c);
    take_sequence(idprom);
    take_sequence(pcie);
}

void by_type(const arguments &a)
{
    for (bool narrowed : {false, true}) {
        sch_eid_type *found = nullptr;
        uint16_t count = 0;
        auto type = static_cast<uint8_t>(a.first);
        auto subtype = static_cast<uint8_t>(a.second);
        if (narrowed)
            inv_parser_get_eid_by_type_subtype(a.handle, a.owner, type, subtype, &count, &found);
        else
            inv_parser_get_eid_by_type(a.handle, a.owner, type, &count, &found);
        read_octets(found, found == nullptr ? 0 : count * sizeof *found);
        inv_parser_free_eid_tree(found);
    }
}

// The tree's own functions, which the exported names hold as well.
void walks(const arguments &a)
{
    parser_get_root_eid_internal(a.handle);
    eid_chain_node *found = parser_find_entity(root_eid, a.eid);
    parser_verify_eid_match(found == nullptr ? root_eid : found, a.eid);
    parser_reverse_populate_eid_data(a.eid);
    parser_find_entity(root_eid, a.eid);
    if (parser_get_eid_count_by_owner(a.eid, 1, a.owner) > 1)
        abort();
    sch_eid_type *narrowed = nullptr;
    uint32_t count = 0;
    parser_filter_eid_by_owner(a.eid, 1, &narrowed, &count, a.owner);
    inv_parser_free_eid_tree(narrowed);
    parser_populate_parent_eid_data(found, a.eid);
}

// A unit's name that fills its field to the end, and a null where one may stand.
void unit_names(const arguments &a)
{
    auto loc = std::make_unique<fru_xml_loc_info>();
    memcpy(static_cast<void *>(loc.get()), a.eid, sizeof *a.eid);
    memset(loc->pid, 'p', a.first % 2 == 0 ? sizeof loc->pid : 1);
    loc->pi_hw_type = a.second;
    file_to_open = samples[0].handle->file_name;
    inv_parser_get_xml_handle_v2(0, loc.get());
    inv_parser_close_xml_file(inv_parser_open_xml_file_v2(0, loc.get()));
    inv_parser_get_xml_handle(0, a.first, a.second, nullptr);
    inv_parser_get_xml_handle_v2(0, nullptr);
    inv_parser_open_xml_file_v2(0, nullptr);
}

void null_pointers(const arguments &a)
{
    sch_base_entity_type *record = nullptr;
    sch_eid_type *found = nullptr;
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    uint32_t count = 0;
    uint16_t short_count = 0;
    inv_parser_get_eid_data(nullptr, &record, *a.eid);
    inv_parser_get_eid_data(a.handle, nullptr, *a.eid);
    inv_parser_get_eid_tree(nullptr, a.owner, a.eid, &found, &count);
    inv_parser_get_eid_tree(a.handle, a.owner, a.eid, nullptr, &count);
    inv_parser_get_eid_tree(a.handle, a.owner, a.eid, &found, nullptr);
    inv_parser_get_eid_by_type(a.handle, a.owner, 8, nullptr, &found);
    inv_parser_get_eid_by_type(a.handle, a.owner, 8, &short_count, nullptr);
    inv_parser_get_i2c_access_sequence_by_eid(nullptr, a.eid, &i2c);
    inv_parser_get_i2c_access_sequence_by_eid(a.handle, nullptr, &i2c);
    inv_parser_get_i2c_access_sequence_by_eid(a.handle, a.eid, nullptr);
    inv_parser_get_pcie_access_sequence_by_eid(nullptr, a.eid, &pcie);
    inv_parser_get_pcie_access_sequence_by_eid(a.handle, nullptr, &pcie);
    inv_parser_get_pcie_access_sequence_by_eid(a.handle, a.eid, nullptr);
    sch_i2c_access_seq_pair_type *pair = nullptr;
    inv_parser_get_i2c_access_sequence_from_control_card(nullptr, a.handle, 1, 1, a.eid, &pair);
    inv_parser_get_i2c_access_sequence_from_control_card(a.handle, nullptr, 1, 1, a.eid, &pair);
    inv_parser_get_i2c_access_sequence_from_control_card(a.handle, a.handle, 1, 1, nullptr, &pair);
    inv_parser_get_i2c_access_sequence_from_control_card(a.handle, a.handle, 1, 1, a.eid, nullptr);
    if (found != nullptr || i2c != nullptr || pcie != nullptr || pair != nullptr || record != nullptr)
        abort();
}

constexpr void (*calls[])(const arguments &) = {
    data_of, tree_of, sequences_of, sequences_from_card, sequences_of_instance,
    by_type, walks,   unit_names,   null_pointers};

bool open_samples()
{
    for (sample &each : samples) {
        file_to_open = std::string(FUZZ_INVENTORIES "/") + each.file;
        each.handle = inv_parser_open_xml_file(0, each.pi_hw_type, 0, "");
        if (each.handle == nullptr || inv_parser_get_eid_tree(each.handle, ORVL_ENTITY_OWNER_TYPE_ALL,
                                                              nullptr, &each.eids, &each.count) != 0)
            abort();
    }
    return true;
}

void make_call(const call &c)
{
    sample &asked = samples[c.sample % sample_count];
    auto eid = std::make_unique<sch_eid_type>(asked.eids[(c.entity | (c.owner & 0xc0u) << 2) % asked.count]);
    auto *octets = reinterpret_cast<uint8_t *>(eid.get());
    for (size_t i = 0; i < sizeof *eid; ++i)
        octets[i] = static_cast<uint8_t>(octets[i] ^ c.eid[i]);
    inv_xml_handle *other = samples[c.sample / sample_count % sample_count].handle;
    const uint32_t owner = (c.owner & 0x3f) == 0x3f ? 0xffffffffu : c.owner & 0x3fu;
    calls[c.kind % std::size(calls)]({asked.handle, other, eid.get(), owner, c.first, c.second});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool opened = open_samples();
    (void)opened;
    for (; size >= sizeof(call); data += sizeof(call), size -= sizeof(call)) {
        call next;
        memcpy(&next, data, sizeof next);
        make_call(next);
    }
    return 0;
}
