#include "faults/fault_world.h"

#include "faults/record_octets.h"
#include "frame/side_records.h"
#include "load/document_kind.h"
#include "support/fake_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>

namespace
{

using namespace fault_world;

struct sample {
    const char *name;
    uint32_t pi_hw_type;
};

constexpr sample samples[] = {{"chassis", 1},          {"line_card_48", 3},    {"line_card_12", 6},
                              {"line_card_small", 14}, {"route_processor", 4}, {"fabric_card", 5},
                              {"fan_tray", 7},         {"power_shelf", 8},     {"pem", 9},
                              {"cxp_optics", 12}};

constexpr uint32_t owners[] = {ORVL_ENTITY_OWNER_TYPE_ALL, 0, 1, ORVL_ENTITY_OWNER_TYPE_COMMON};

std::string sample_path(const std::string &name)
{
    return std::string(INV_SOURCE_DIR) + "/inventories/" + name + ".xml";
}

// By way of expat: its document type is declared.
unit with_document_type(const unit &plain)
{
    std::string text = load_world::text_of(plain.path);
    size_t root = text.find('<', text.starts_with("<?xml") ? 1 : 0);
    text.insert(root, "<!DOCTYPE unit>");
    return {plain.name + "_by_expat", load_world::scratch_file("expat_" + plain.name + ".xml", text),
            plain.pi_hw_type};
}

// Texts and octets beyond what one block of the decoded document holds.
unit with_long_values()
{
    std::string text = load_world::text_of(load_world::path_of(load_world::module_document()));
    const auto lengthen = [&text](const std::string &value, char by) {
        const size_t at = text.find(value);
        EXPECT_NE(at, std::string::npos) << value;
        text.insert(at, 40000, by);
    };
    lengthen("board sensor", 'x');
    lengthen("01</channelNumber>", '0');
    return {"long_values", load_world::scratch_file("long_values.xml", text), 3};
}

std::string octets_of(const void *from, size_t size)
{
    return from == nullptr ? std::string() : std::string(static_cast<const char *>(from), size);
}

// ---- The entry points --------------------------------------------------------------------------------

// An array of EIDs that a query has made; released here.
answer eids_answered(uint32_t status, sch_eid_type *eids, size_t count)
{
    answer given = {status != 0, octets_of(eids, status == 0 ? count * sizeof *eids : 0), 0, sizeof *eids};
    if (status == 0)
        inv_parser_free_eid_tree(eids);
    return given;
}

answer ask_root(const files &about)
{
    sch_eid_type *eid = nullptr;
    uint32_t status = inv_parser_get_root_eid(about.handle, &eid);
    return eids_answered(status, eid, 1);
}

answer ask_type(const files &about, uint32_t owner, uint8_t type)
{
    sch_eid_type *eids = nullptr;
    uint16_t count = 0;
    uint32_t status = inv_parser_get_eid_by_type(about.handle, owner, type, &count, &eids);
    return eids_answered(status, eids, count);
}

answer ask_subtype(const files &about, uint32_t owner, uint8_t type, uint8_t subtype)
{
    sch_eid_type *eids = nullptr;
    uint16_t count = 0;
    uint32_t status = inv_parser_get_eid_by_type_subtype(about.handle, owner, type, subtype, &count, &eids);
    return eids_answered(status, eids, count);
}

answer ask_tree(const files &about, uint32_t owner, const sch_eid_type *eid)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    uint32_t status = inv_parser_get_eid_tree(about.handle, owner, eid, &eids, &count);
    return eids_answered(status, eids, count);
}

answer ask_data(const files &about, const sch_eid_type &eid)
{
    sch_base_entity_type *entity = nullptr;
    uint32_t status = inv_parser_get_eid_data(about.handle, &entity, eid);
    if (status != 0 || entity == nullptr)
        return {};
    return {false, record_octets(*entity), 0, record_item_size};
}

// No call gives the unit's record as a whole: clients reach it through the handle.
answer ask_unit(const files &about)
{
    if (!has_unit(*about.handle))
        return {};
    return {false, unit_octets(*about.handle), 0, record_item_size};
}

template <class Sequence>
std::string head_of(const Sequence *sequence)
{
    return sequence == nullptr ? std::string(sizeof *sequence, '\xFF')
                               : octets_of(sequence, sizeof *sequence);
}

template <class Sequence>
std::string hops_of(const Sequence *sequence)
{
    return sequence == nullptr ? ""
                               : octets_of(sequence->hops, sequence->hop_count * sizeof sequence->hops[0]);
}

template <class Sequence>
answer sequence_answered(uint32_t status, Sequence *sequence, void (*release)(Sequence *))
{
    if (sequence == nullptr)
        return {status != 0, ""};
    answer given = {status != 0, head_of(sequence) + hops_of(sequence), sizeof *sequence,
                    sizeof sequence->hops[0]};
    release(sequence);
    return given;
}

template <class Pair>
answer pair_answered(uint32_t status, Pair *pair)
{
    if (pair == nullptr)
        return {status != 0, ""};
    const std::string heads = head_of(pair->slot0) + head_of(pair->slot1);
    answer given = {status != 0, heads + hops_of(pair->slot0) + hops_of(pair->slot1), heads.size(),
                    sizeof pair->slot0->hops[0]};
    inv_parser_free_remote_i2c_access_sequence(pair);
    return given;
}

// Both families under one shape.
struct i2c {
    using sequence = sch_i2c_access_seq_type;
    using pair = sch_i2c_access_seq_pair_type;
    static constexpr const char *family = "i2c";
    static constexpr auto by_xml_inst = inv_parser_get_i2c_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_i2c_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_i2c_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_i2c_access_sequence;
    static constexpr bool by_eid_tells = false;  // kept: it succeeds without a sequence
};

struct pcie {
    using sequence = sch_pcie_access_seq_type;
    using pair = sch_pcie_access_seq_pair_type;
    static constexpr const char *family = "pcie";
    static constexpr auto by_xml_inst = inv_parser_get_pcie_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_pcie_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_pcie_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_pcie_access_sequence;
    static constexpr bool by_eid_tells = true;
};

template <class Family>
void add_sequences(std::vector<question> &all, const sch_eid_type &eid, uint16_t xml_instance)
{
    const std::string name = std::string("inv_parser_get_") + Family::family + "_access_sequence_";
    all.push_back({name + "by_xml_inst", [=](const files &about) {
                       typename Family::sequence *made = nullptr;
                       uint32_t status = Family::by_xml_inst(about.handle, xml_instance, &made);
                       return sequence_answered(status, made, Family::release);
                   }});
    all.push_back({name + "by_eid", [=](const files &about) {
                       typename Family::sequence *made = nullptr;
                       uint32_t status = Family::by_eid(about.handle, &eid, &made);
                       if (made == nullptr && !Family::by_eid_tells)
                           status = 1;
                       return sequence_answered(status, made, Family::release);
                   }});
    all.push_back({name + "from_control_card", [=](const files &about) {
                       typename Family::pair *made = nullptr;
                       uint32_t status = Family::from_card(about.card, about.handle, ORVL_NODE_TYPE_LINECARD,
                                                           3, &eid, &made);
                       return pair_answered(status, made);
                   }});
}

void add_queries(std::vector<question> &all, const std::set<std::pair<uint8_t, uint8_t>> &kinds)
{
    all.push_back({"inv_parser_get_root_eid", ask_root});
    all.push_back({"inv_parser_open_xml_file", ask_unit});
    for (uint32_t owner : owners) {
        all.push_back(
            {"inv_parser_get_eid_tree", [=](const files &about) { return ask_tree(about, owner, nullptr); }});
        for (const auto &kind : kinds) {
            const uint8_t type = kind.first;
            all.push_back({"inv_parser_get_eid_by_type",
                           [=](const files &about) { return ask_type(about, owner, type); }});
            for (uint8_t asked : {kind.second, uint8_t{INV_ANY_SUBTYPE}})
                all.push_back({"inv_parser_get_eid_by_type_subtype",
                               [=](const files &about) { return ask_subtype(about, owner, type, asked); }});
        }
    }
}

void add_idproms(std::vector<question> &all)
{
    for (uint32_t node_type = 0; node_type < INV_CC_SLOT_LIST_COUNT; ++node_type) {
        all.push_back({"inv_parser_get_container_list_i2c_idprom_access_info", [=](const files &about) {
                           sch_i2c_access_seq_type *made = nullptr;
                           uint32_t status = inv_parser_get_container_list_i2c_idprom_access_info(
                               about.chassis, node_type, &made);
                           return sequence_answered(status, made, inv_parser_free_i2c_access_sequence);
                       }});
        all.push_back(
            {"inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card", [=](const files &about) {
                 sch_i2c_access_seq_pair_type *made = nullptr;
                 uint32_t status = inv_parser_get_remote_idprom_i2c_access_sequence_from_control_card(
                     about.card, about.chassis, node_type, 1, &made);
                 return pair_answered(status, made);
             }});
    }
}

// The commands of an entity's own sequence.
answer ask_commands(const files &about, const sch_eid_type &eid)
{
    sch_base_entity_type *entity = nullptr;
    if (inv_parser_get_eid_data(about.handle, &entity, eid) != 0)
        return {};
    sch_i2c_access_seq_type *made = nullptr;
    uint32_t status = inv_parser_retrieve_i2c_sequence_info(&entity->hw_signals.i2c_path, &made);
    return sequence_answered(status, made, inv_parser_free_i2c_access_sequence);
}

std::vector<sch_eid_type> eids_of(const files &about)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    EXPECT_EQ(inv_parser_get_eid_tree(about.handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count), 0u);
    std::vector<sch_eid_type> all(eids, eids + count);
    inv_parser_free_eid_tree(eids);
    return all;
}

}  // namespace

namespace fault_world
{

bool unit::is_module() const
{
    return pi_hw_type == 3 || pi_hw_type == 4 || pi_hw_type == 5 || pi_hw_type == 6 || pi_hw_type == 14;
}

void PrintTo(const unit &which, std::ostream *out)
{
    *out << which.name;
}

std::vector<unit> small_units()
{
    std::vector<unit> all;
    for (const load_world::document_case &each : load_world::documents()) {
        all.push_back({std::string("small_") + each.name, load_world::path_of(each), each.pi_hw_type});
        all.push_back(with_document_type(all.back()));
    }
    return all;
}

bool has_unit(const inv_xml_handle &handle)
{
    if (handle.root == nullptr)
        return false;
    if (handle.module_record != nullptr)
        return handle.root->record == &handle.module_record->base;
    return inv::loaded_kind(&handle) != static_cast<uint8_t>(inv::load::document_kind::without_unit);
}

bool is_part_of(const answer &given, const answer &whole)
{
    if (whole.part == 0 || given.octets.size() > whole.octets.size())
        return false;
    std::set<std::string_view> parts;
    for (size_t at = whole.head; at < whole.octets.size(); at += whole.part)
        parts.insert(std::string_view(whole.octets).substr(at, whole.part));
    for (size_t at = given.head; at < given.octets.size(); at += given.part)
        if (!parts.contains(std::string_view(given.octets).substr(at, given.part)))
            return false;
    return true;
}

const std::vector<unit> &units()
{
    static const std::vector<unit> all = [] {
        std::vector<unit> made = small_units();
        made.push_back(with_long_values());
        made.push_back(with_document_type(made.back()));
        for (const sample &each : samples)
            made.push_back({each.name, sample_path(each.name), each.pi_hw_type});
        return made;
    }();
    return all;
}

inv_xml_handle *open_unit(const unit &which, size_t generation)
{
    return load_world::open_file(load_world::generations()[generation], which.path, which.pi_hw_type);
}

std::vector<question> all_questions(const files &about)
{
    std::vector<question> all;
    std::set<std::pair<uint8_t, uint8_t>> kinds;
    const std::vector<sch_eid_type> eids = eids_of(about);
    for (const sch_eid_type &eid : eids)
        kinds.emplace(eid.levels[eid.depth - 1].type, eid.levels[eid.depth - 1].subtype);
    add_queries(all, kinds);
    add_idproms(all);
    for (const sch_eid_type &eid : eids) {
        sch_base_entity_type *entity = nullptr;
        if (inv_parser_get_eid_data(about.handle, &entity, eid) != 0)
            continue;
        all.push_back({"inv_parser_get_eid_data", [=](const files &of) { return ask_data(of, eid); }});
        all.push_back(
            {"inv_parser_get_eid_tree", [=](const files &of) { return ask_tree(of, owners[0], &eid); }});
        if (entity->hw_signals.i2c_path.command_list != nullptr)
            all.push_back({"inv_parser_retrieve_i2c_sequence_info",
                           [=](const files &of) { return ask_commands(of, eid); }});
        add_sequences<i2c>(all, eid, entity->xml_instance);
        add_sequences<pcie>(all, eid, entity->xml_instance);
    }
    return all;
}

std::vector<question> one_of_each(const std::vector<question> &all, const files &about)
{
    std::vector<question> chosen;
    std::set<std::string> known;
    for (const question &each : all)
        if (!known.contains(each.entry_point) && !each.ask(about).failed) {
            known.insert(each.entry_point);
            chosen.push_back(each);
        }
    return chosen;
}

std::vector<answer> ask_all(const std::vector<question> &questions, const files &about)
{
    std::vector<answer> answers;
    for (const question &each : questions)
        answers.push_back(each.ask(about));
    return answers;
}

namespace
{

inv_xml_handle *open_copy(const sample &of)
{
    const std::string name = std::string("beside_") + of.name + ".xml";
    unit copy = {of.name, load_world::scratch_file(name, load_world::text_of(sample_path(of.name))),
                 of.pi_hw_type};
    inv_xml_handle *handle = open_unit(copy);
    EXPECT_NE(handle, nullptr);
    return handle;
}

}  // namespace

bystanders::bystanders()
    : card(open_copy({"route_processor", 4})), chassis(open_copy({"chassis", 1})), pem(open_copy({"pem", 9}))
{
    questions = all_questions(beside(pem));
    answers = ask_all(questions, beside(pem));
    answers = ask_all(questions, beside(pem));  // what lookups keep is made now
}

bystanders::~bystanders()
{
    for (inv_xml_handle *each : {pem, chassis, card})
        inv_parser_close_xml_file(each);
}

bool bystanders::are_whole() const
{
    return ask_all(questions, beside(pem)) == answers;
}

size_t descriptors()
{
    namespace fs = std::filesystem;
    return static_cast<size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

}  // namespace fault_world
