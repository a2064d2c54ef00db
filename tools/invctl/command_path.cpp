#include "command_path.h"

#include <cstdio>
#include <vector>

#include <nlohmann/json.hpp>

#include "OrvelianInventorySchema.h"
#include "all_memory.h"
#include "document.h"
#include "eid_text.h"
#include "entity_records.h"
#include "entity_words.h"
#include "exit_codes.h"
#include "inv_parser/tree_internal.h"
#include "output.h"
#include "path_hops.h"
#include "path_walk.h"

namespace
{

using invctl::bus;
using invctl::document;
using invctl::path_hop;
using invctl::path_options;
using invctl::with_all_memory;
using json = nlohmann::ordered_json;
using node_list = std::vector<const eid_chain_node *>;

// The two buses as the library's functions and types have them.
struct i2c_calls {
    using sequence = sch_i2c_access_seq_type;
    using pair = sch_i2c_access_seq_pair_type;
    static constexpr auto by_xml_inst = inv_parser_get_i2c_access_sequence_by_xml_inst;
    static constexpr auto from_card = inv_parser_get_i2c_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_i2c_access_sequence;
    static constexpr bool joined_has_target = true;
};

struct pcie_calls {
    using sequence = sch_pcie_access_seq_type;
    using pair = sch_pcie_access_seq_pair_type;
    static constexpr auto by_xml_inst = inv_parser_get_pcie_access_sequence_by_xml_inst;
    static constexpr auto from_card = inv_parser_get_pcie_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_pcie_access_sequence;
    static constexpr bool joined_has_target = false;
};

const char *bus_word(bus over)
{
    return over == bus::i2c ? "i2c" : "pcie";
}

void complain(const std::string &text)
{
    fprintf(stderr, "invctl: %s\n", text.c_str());
}

std::string heading_of(const eid_chain_node *node)
{
    return invctl::eid_text(node) + "  \"" + invctl::printable(node->record->name) + "\"  xml " +
           std::to_string(node->record->xml_instance);
}

json json_of_entity(const eid_chain_node *node)
{
    json object;
    object["eid"] = invctl::eid_text(node);
    object["name"] = invctl::valid_utf8(node->record->name);
    object["xml_instance"] = node->record->xml_instance;
    return object;
}

std::string slot_text(const path_options &options)
{
    return std::string(
               invctl::schema_word(NodeInfoType_nodeType_ToString(options.node_type), "ORVL_NODE_TYPE_")) +
           " " + std::to_string(options.position);
}

// ---- Which entity is meant --------------------------------------------------------------------------

// By instance the one that the library's indexes hold; by EID or name all that have it.
node_list find_targets(const document &opened, const path_options &options)
{
    node_list found;
    std::optional<sch_eid_type> eid = invctl::parse_eid(options.target);
    const sch_base_entity_type *indexed =
        options.instance ? invctl::find_entity(opened, *options.instance) : nullptr;
    for (const eid_chain_node *node : invctl::all_entities(opened)) {
        bool is_meant = options.instance
                            ? node->record == indexed
                            : options.target == node->record->name || (eid && invctl::has_eid(node, *eid));
        if (is_meant)
            found.push_back(node);
    }
    return found;
}

// The one entity that is meant; null with *code set when there is none or several.
const eid_chain_node *find_target(const document &opened, const path_options &options, int *code)
{
    node_list found = find_targets(opened, options);
    if (found.size() == 1)
        return found.front();
    if (found.empty()) {
        complain(options.instance
                     ? invctl::why_no_path(opened, options.over, *options.instance)
                     : opened.path + " has no entity " + invctl::printable(options.target.c_str()));
        *code = invctl::exit_finding;
        return nullptr;
    }
    complain(std::to_string(found.size()) + " entities are called " +
             invctl::printable(options.target.c_str()) + ", choose by --instance or EID:");
    for (const eid_chain_node *each : found)
        fprintf(stderr, "  %s\n", heading_of(each).c_str());
    *code = invctl::exit_trouble;
    return nullptr;
}

// ---- Paths -------------------------------------------------------------------------------------------

// A path and what it is told with.
struct shown_path {
    std::vector<path_hop> hops;
    std::optional<uint32_t> slot;  // of the control card, if any
    size_t card_hops = 0;
};

// The first `card_hops` hops are of the control card. The last hop selects nothing only when it is the
// target's own.
template <class Sequence>
std::vector<path_hop> describe(const Sequence *sequence, const document *card, size_t card_hops,
                               const document &opened, uint16_t target)
{
    std::vector<path_hop> hops;
    for (size_t i = 0; i < sequence->hop_count; ++i) {
        const auto &hop = sequence->hops[i];
        bool is_target = i + 1 == sequence->hop_count && i >= card_hops && hop.xml_instance == target;
        hops.push_back(
            invctl::describe_hop(card != nullptr && i < card_hops ? *card : opened, hop, is_target));
    }
    return hops;
}

// The last hop is not the target's own: it selects the target.
bool ends_above(const shown_path &path, const eid_chain_node *target)
{
    return path.hops.empty() || path.hops.back().xml_instance != target->record->xml_instance ||
           !path.hops.back().link.empty();
}

void print_text(const path_options &options, const eid_chain_node *target,
                const std::vector<shown_path> &paths)
{
    for (const shown_path &path : paths) {
        std::string text = std::string(bus_word(options.over)) + " path to " + heading_of(target) + "\n";
        if (path.slot)
            text += "from slot " + std::to_string(*path.slot) + ", " +
                    invctl::printable(options.card_file.c_str()) + " to " + slot_text(options) + "\n";
        text += invctl::hops_text(path.hops, path.slot.has_value());
        if (ends_above(path, target))
            text += "  => \"" + invctl::printable(target->record->name) + "\"\n";
        invctl::write_out(text);
    }
}

json json_of_document(const document &opened, const path_options &options)
{
    json object;
    object["file"] = invctl::valid_utf8(opened.path.c_str());
    object["bus"] = bus_word(options.over);
    return object;
}

json json_of_paths(const path_options &options, const eid_chain_node *target,
                   const std::vector<shown_path> &paths)
{
    json object;
    object["target"] = json_of_entity(target);
    json list = json::array();
    for (const shown_path &path : paths) {
        json one;
        if (path.slot) {
            one["card"] = invctl::valid_utf8(options.card_file.c_str());
            one["slot"] = *path.slot;
            one["unit"] = slot_text(options);
        }
        one["hops"] = invctl::hops_json(path.hops);
        list.push_back(std::move(one));
    }
    object["paths"] = std::move(list);
    return object;
}

// A lone entity is a path only where it is a device of the bus.
bool is_no_device(const document &opened, const path_options &options, const eid_chain_node *target)
{
    const sch_xml_inst_node_type *node =
        invctl::find_index_node(opened, options.over, target->record->xml_instance);
    uint32_t bit = options.over == bus::i2c ? SCH_BASE_HAS_I2C_NODE : SCH_BASE_HAS_PCIE_NODE;
    return node != nullptr && node->parent_entity == nullptr && (target->record->field_present & bit) == 0;
}

// Null, with the reason told, when there is no path inside the document.
template <class Calls>
typename Calls::sequence *build_path(const document &opened, const path_options &options,
                                     const eid_chain_node *target)
{
    typename Calls::sequence *sequence = nullptr;
    uint16_t instance = target->record->xml_instance;
    if (std::string hidden_by = invctl::why_hidden(opened, *target->record); !hidden_by.empty()) {
        complain("no path: " + hidden_by);
        return nullptr;
    }
    with_all_memory([&] { return Calls::by_xml_inst(opened.handle, instance, &sequence); });
    if (sequence != nullptr && is_no_device(opened, options, target)) {
        Calls::release(sequence);
        sequence = nullptr;
    }
    if (sequence == nullptr && !options.all)
        complain("no path: " + invctl::why_no_path(opened, options.over, instance));
    return sequence;
}

template <class Calls>
int find_own_path(const document &opened, const path_options &options, const eid_chain_node *target,
                  std::vector<shown_path> *paths)
{
    auto *sequence = build_path<Calls>(opened, options, target);
    if (sequence == nullptr)
        return invctl::exit_finding;
    paths->push_back({describe(sequence, nullptr, 0, opened, target->record->xml_instance), {}, 0});
    Calls::release(sequence);
    return invctl::exit_ok;
}

bool has_path(const document &card, bus over, uint32_t parent)
{
    auto instance = static_cast<int32_t>(parent);
    sch_i2c_access_seq_type *i2c = nullptr;
    sch_pcie_access_seq_type *pcie = nullptr;
    uint32_t result = with_all_memory([&] {
        return over == bus::i2c ? i2c_calls::by_xml_inst(card.handle, instance, &i2c)
                                : pcie_calls::by_xml_inst(card.handle, instance, &pcie);
    });
    i2c_calls::release(i2c);
    pcie_calls::release(pcie);
    return result == 0;
}

// Why the library has no pair of paths although the target has one in its own file.
void explain_card(const document &card, const path_options &options, const eid_chain_node *target,
                  const sch_eid_type &eid, const document &opened)
{
    sch_base_entity_type *named = nullptr;
    if (inv_parser_get_eid_data(opened.handle, &named, eid) != 0 || named != target->record) {
        complain("no path: another entity has the EID of " + heading_of(target) + " as well");
        return;
    }
    auto *const *lists =
        options.over == bus::i2c ? card.handle->i2c_cc_slot_lists : card.handle->pcie_cc_slot_lists;
    const sch_cc_slot_xml_inst_type *element =
        options.node_type < INV_CC_SLOT_LIST_COUNT
            ? parser_verify_is_slot_xml_inst_available(lists[options.node_type], options.position, 0)
            : nullptr;
    if (element == nullptr)
        return;
    for (uint32_t parent : {element->slot0_parent_instance, element->slot1_parent_instance})
        if (parent != 0 && !has_path(card, options.over, parent))
            complain("no path by " + card.path + ": " +
                     invctl::why_no_path(card, options.over, static_cast<uint16_t>(parent)));
}

// The parts of a pair that were asked for; complains of those that are not there.
template <class Calls>
int describe_pair(const typename Calls::pair *pair, const document &card, const document &opened,
                  const path_options &options, const eid_chain_node *target, size_t own_hops,
                  std::vector<shown_path> *paths)
{
    int code = invctl::exit_ok;
    for (uint32_t slot : {0u, 1u}) {
        if (options.slot && *options.slot != slot)
            continue;
        const auto *sequence = slot == 0 ? pair->slot0 : pair->slot1;
        if (sequence == nullptr) {
            code = invctl::exit_finding;
            if (options.all)
                continue;
            complain("no path: no port of " + card.path + " leads to " + slot_text(options) +
                     " from control-card slot " + std::to_string(slot));
            continue;
        }
        size_t card_hops = sequence->hop_count - own_hops;
        paths->push_back(
            {describe(sequence, &card, card_hops, opened, target->record->xml_instance), slot, card_hops});
    }
    return code;
}

template <class Calls>
int find_card_paths(const document &card, const document &opened, const path_options &options,
                    const eid_chain_node *target, std::vector<shown_path> *paths)
{
    auto *own = build_path<Calls>(opened, options, target);
    if (own == nullptr)
        return invctl::exit_finding;
    size_t own_hops = own->hop_count - (Calls::joined_has_target ? 0u : 1u);
    Calls::release(own);
    sch_eid_type eid = {};
    parser_populate_parent_eid_data(const_cast<eid_chain_node *>(target), &eid);
    typename Calls::pair *pair = nullptr;
    sch_base_entity_type *named = nullptr;
    const bool has_pair = with_all_memory([&] {
        inv_parser_get_eid_data(opened.handle, &named, eid);
        return named == target->record && Calls::from_card(card.handle, opened.handle, options.node_type,
                                                           options.position, &eid, &pair) == 0;
    });
    if (!has_pair) {
        explain_card(card, options, target, eid, opened);
        return invctl::exit_finding;
    }
    int code = describe_pair<Calls>(pair, card, opened, options, target, own_hops, paths);
    inv_parser_free_remote_i2c_access_sequence(pair);
    return code;
}

template <class Calls>
int find_paths_by(const document &card, const document &opened, const path_options &options,
                  const eid_chain_node *target, std::vector<shown_path> *paths)
{
    return card.handle == nullptr ? find_own_path<Calls>(opened, options, target, paths)
                                  : find_card_paths<Calls>(card, opened, options, target, paths);
}

int find_paths(const document &card, const document &opened, const path_options &options,
               const eid_chain_node *target, std::vector<shown_path> *paths)
{
    return options.over == bus::i2c ? find_paths_by<i2c_calls>(card, opened, options, target, paths)
                                    : find_paths_by<pcie_calls>(card, opened, options, target, paths);
}

int show_paths(const document &card, const document &opened, const path_options &options,
               const eid_chain_node *target)
{
    std::vector<shown_path> paths;
    int code = find_paths(card, opened, options, target, &paths);
    if (paths.empty())
        return code;
    if (options.json) {
        json object = json_of_document(opened, options);
        object.update(json_of_paths(options, target, paths));
        invctl::write_out(object.dump(2) + "\n");
    } else {
        print_text(options, target, paths);
    }
    return code;
}

// A path in one line: xml instances with what is selected on them, the control card's part and a bar first.
std::string short_path(const shown_path &path)
{
    std::string text = path.slot ? "    slot " + std::to_string(*path.slot) + ":" : "   ";
    for (size_t i = 0; i < path.hops.size(); ++i) {
        const std::string &link = path.hops[i].link;
        text += (i == 0                ? " "
                 : i == path.card_hops ? " | "
                                       : " > ") +
                std::to_string(path.hops[i].xml_instance);
        if (!link.empty())
            text += " " + link.substr(link.find("0x"));
    }
    return text + "\n";
}

int show_all(const document &card, const document &opened, const path_options &options)
{
    json devices = json::array();
    bool found = false;
    for (const eid_chain_node *target : invctl::all_entities(opened)) {
        std::vector<shown_path> paths;
        if (invctl::find_entity(opened, target->record->xml_instance) == target->record)
            find_paths(card, opened, options, target, &paths);
        if (paths.empty())
            continue;
        found = true;
        if (options.json) {
            devices.push_back(json_of_paths(options, target, paths));
            continue;
        }
        std::string text = heading_of(target) + "\n";
        for (const shown_path &path : paths)
            text += short_path(path);
        invctl::write_out(text);
    }
    if (options.json) {
        json object = json_of_document(opened, options);
        object["devices"] = std::move(devices);
        invctl::write_out(object.dump(2) + "\n");
    }
    if (!found)
        complain("no device of " + opened.path + " has a path");
    return found ? invctl::exit_ok : invctl::exit_finding;
}

// ---- What is behind a device ---------------------------------------------------------------------------

std::string channel_text(bus over, uint32_t channel)
{
    char text[32];
    snprintf(text, sizeof text, "%s 0x%02x", over == bus::i2c ? "channel" : "port", channel);
    return text;
}

int show_behind(const document &opened, const path_options &options, const eid_chain_node *target)
{
    auto reached = invctl::find_behind(opened, options.over, target->record->xml_instance);
    json list = json::array();
    std::string text = std::string(bus_word(options.over)) + " devices behind " + heading_of(target) + "\n";
    for (const invctl::reached_entity &each : reached) {
        std::string channel = channel_text(options.over, each.channel);
        json object = json_of_entity(each.node);
        object["select"] = channel;
        object["hops"] = each.distance;
        list.push_back(std::move(object));
        text += "  " + channel +
                (each.distance == 1 ? "  " : "  +" + std::to_string(each.distance - 1) + " hops  ") +
                heading_of(each.node) + "\n";
    }
    if (reached.empty())
        text += "  nothing\n";
    if (options.json) {
        json object = json_of_document(opened, options);
        object["behind"] = json_of_entity(target);
        object["entities"] = std::move(list);
        text = object.dump(2) + "\n";
    }
    invctl::write_out(text);
    return invctl::exit_ok;
}

int answer(const document &card, const document &opened, const path_options &options)
{
    if (options.all)
        return show_all(card, opened, options);
    int code = invctl::exit_ok;
    const eid_chain_node *target = find_target(opened, options, &code);
    if (target == nullptr)
        return code;
    return options.behind ? show_behind(opened, options, target) : show_paths(card, opened, options, target);
}

}  // namespace

namespace invctl
{

int run_path(const path_options &options)
{
    document card;
    document opened;
    int code = options.card_file.empty() ? int{exit_ok} : open_document(options.card_file, &card);
    if (code == exit_ok)
        code = open_document(options.file, &opened);
    if (code == exit_ok)
        code = answer(card, opened, options);
    close_document(&opened);
    close_document(&card);
    return code;
}

std::optional<uint32_t> node_type_of_word(const std::string &word)
{
    for (uint32_t type = 0; type < INV_CC_SLOT_LIST_COUNT; ++type) {
        const char *token = NodeInfoType_nodeType_ToString(type);
        if (word == std::to_string(type) || word == token || word == schema_word(token, "ORVL_NODE_TYPE_"))
            return type;
    }
    return std::nullopt;
}

}  // namespace invctl
