// Questions to an open document, and how else they would be answered. Each question and its counterpart are
// asked by turns; both give back what they were given, and both must answer the same.
#include "measure.h"
#include "our_open.h"
#include "peers.h"

#include "inv_parser/inventory_tokens.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <map>
#include <memory>
#include <random>
#include <span>
#include <unordered_map>

namespace inv_bench
{
namespace
{

constexpr unsigned hops_of_sequence = 4;
constexpr const char *sensors_xpath = "//*[@type='ORVL_ENTITY_TYPE_SENSOR']";

struct hash_eid {
    std::size_t operator()(const sch_eid_type &eid) const
    {
        return std::hash<std::string_view>{}({reinterpret_cast<const char *>(&eid), sizeof eid});
    }
};

struct equal_eid {
    bool operator()(const sch_eid_type &a, const sch_eid_type &b) const
    {
        return std::memcmp(&a, &b, sizeof a) == 0;
    }
};

struct index_entry {
    std::uint16_t parent = 0;
    sch_i2c_access_hop_type hop = {};
};

struct world {
    inv_xml_handle *card = nullptr;
    const peer_record *top = nullptr;
    xmlDoc *libxml2_tree = nullptr;
    std::vector<sch_eid_type> eids;  // of all entities, in no order
    std::unordered_map<sch_eid_type, const void *, hash_eid, equal_eid> by_eid;
    std::vector<std::uint16_t> devices;  // at the end of a way of four hops, in no order
    std::map<std::uint16_t, index_entry> by_instance;
};

/* --- All EIDs of a type --- */

std::size_t ask_sensors(const world &w)
{
    std::uint16_t count = 0;
    sch_eid_type *found = nullptr;
    inv_parser_get_eid_by_type(w.card, ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_TYPE_SENSOR, &count, &found);
    inv_parser_free_eid_tree(found);
    return count;
}

void collect(const peer_record *from, std::int64_t type, std::vector<const sch_eid_type *> &found)
{
    for (; from != nullptr; from = from->next_sibling) {
        if (from->type == type)
            found.push_back(&from->eid);
        collect(from->first_child, type, found);
    }
}

std::size_t walk_to_sensors(const world &w)
{
    std::vector<const sch_eid_type *> found;
    collect(w.top, ORVL_ENTITY_TYPE_SENSOR, found);
    auto *copies = static_cast<sch_eid_type *>(std::malloc(found.size() * sizeof(sch_eid_type)));
    if (copies == nullptr)
        return 0;
    for (std::size_t i = 0; i < found.size(); ++i)
        copies[i] = *found[i];
    // The copies are what the walk is for: they may not be optimised away.
    asm volatile("" : : "g"(copies) : "memory");
    std::free(copies);
    return found.size();
}

std::size_t pugixml_xpath_to_sensors(const world &)
{
    return pugixml_document().select_nodes(sensors_xpath).size();
}

std::size_t libxml2_xpath_to_sensors(const world &w)
{
    xmlXPathContext *context = xmlXPathNewContext(w.libxml2_tree);
    xmlXPathObject *found = xmlXPathEvalExpression(reinterpret_cast<const xmlChar *>(sensors_xpath), context);
    const std::size_t count = found != nullptr && found->nodesetval != nullptr
                                  ? static_cast<std::size_t>(found->nodesetval->nodeNr)
                                  : 0;
    xmlXPathFreeObject(found);
    xmlXPathFreeContext(context);
    return count;
}

/* --- One record by EID; all entities are asked for --- */

std::size_t ask_records(const world &w)
{
    std::size_t found = 0;
    for (const sch_eid_type &eid : w.eids) {
        sch_base_entity_type *record = nullptr;
        inv_parser_get_eid_data(w.card, &record, eid);
        found += record != nullptr ? 1 : 0;
    }
    return found;
}

std::size_t look_records_up(const world &w)
{
    std::size_t found = 0;
    for (const sch_eid_type &eid : w.eids) {
        const auto entry = w.by_eid.find(eid);
        found += entry != w.by_eid.end() && entry->second != nullptr ? 1 : 0;
    }
    return found;
}

/* --- I2C sequence by xml instance; all devices four hops away are asked for --- */

std::size_t ask_sequences(const world &w)
{
    std::size_t hops = 0;
    for (std::uint16_t device : w.devices) {
        sch_i2c_access_seq_type *sequence = nullptr;
        if (inv_parser_get_i2c_access_sequence_by_xml_inst(w.card, device, &sequence) == 0)
            hops += sequence->hop_count;
        inv_parser_free_i2c_access_sequence(sequence);
    }
    return hops;
}

std::size_t look_sequences_up(const world &w)
{
    std::size_t hops = 0;
    for (std::uint16_t device : w.devices) {
        const index_entry *way[hops_of_sequence] = {};
        std::uint16_t next = device;
        for (unsigned i = hops_of_sequence; i-- > 0;) {
            way[i] = &w.by_instance.find(next)->second;
            next = way[i]->parent;
        }
        auto *sequence = static_cast<sch_i2c_access_seq_type *>(std::calloc(
            1, sizeof(sch_i2c_access_seq_type) + hops_of_sequence * sizeof(sch_i2c_access_hop_type)));
        if (sequence == nullptr)
            return 0;
        sequence->hop_count = hops_of_sequence;
        for (unsigned i = 0; i < hops_of_sequence; ++i)
            sequence->hops[i] = way[i]->hop;
        asm volatile("" : : "g"(sequence) : "memory");
        hops += sequence->hop_count;
        std::free(sequence);
    }
    return hops;
}

/* --- Preparation --- */

bool learn_eids(world &w)
{
    std::uint32_t count = 0;
    sch_eid_type *found = nullptr;
    if (inv_parser_get_eid_tree(w.card, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &found, &count) != 0)
        return false;
    w.eids.assign(found, found + count);
    inv_parser_free_eid_tree(found);
    for (const sch_eid_type &eid : w.eids) {
        sch_base_entity_type *record = nullptr;
        if (inv_parser_get_eid_data(w.card, &record, eid) != 0)
            return false;
        w.by_eid.emplace(eid, record);
        w.by_instance[record->xml_instance];
    }
    return true;
}

void learn_sequences(world &w)
{
    for (auto &[instance, entry] : w.by_instance) {
        sch_i2c_access_seq_type *sequence = nullptr;
        if (inv_parser_get_i2c_access_sequence_by_xml_inst(w.card, instance, &sequence) != 0)
            continue;
        const unsigned hops = sequence->hop_count;
        // A device that answers to nothing is no hop: the last hop is then the mux above it.
        if (hops > 0 && sequence->hops[hops - 1].xml_instance == instance) {
            entry.hop = sequence->hops[hops - 1];
            entry.parent = hops > 1 ? sequence->hops[hops - 2].xml_instance : std::uint16_t{0};
            if (hops == hops_of_sequence)
                w.devices.push_back(instance);
        }
        inv_parser_free_i2c_access_sequence(sequence);
    }
}

bool prepare(world &w, const char *file)
{
    prepare_peer_tables();
    w.card = open_card(file);
    if (w.card == nullptr || !walk_with_pugixml(file) || !learn_eids(w))
        return false;
    w.top = pugixml_records();
    w.libxml2_tree = xmlReadFile(file, nullptr, XML_PARSE_HUGE);
    learn_sequences(w);
    std::mt19937 random(1);
    std::shuffle(w.eids.begin(), w.eids.end(), random);
    std::shuffle(w.devices.begin(), w.devices.end(), random);
    return w.libxml2_tree != nullptr && !w.devices.empty();
}

/* --- Measuring --- */

struct question {
    const char *name;
    std::size_t (*ask)(const world &);     // its answer
    std::size_t (*number)(const world &);  // of questions that one call asks
    unsigned every;                        // asked in one round of so many; slow ones are asked less
};

std::size_t one_question(const world &)
{
    return 1;
}

std::size_t question_per_entity(const world &w)
{
    return w.eids.size();
}

std::size_t question_per_device(const world &w)
{
    return w.devices.size();
}

constexpr question type_questions[] = {
    {"type/inv", ask_sensors, one_question, 1},
    {"type/walk", walk_to_sensors, one_question, 1},
    {"type/pugixml-xpath", pugixml_xpath_to_sensors, one_question, 40},
    {"type/libxml2-xpath", libxml2_xpath_to_sensors, one_question, 40},
};

constexpr question eid_questions[] = {
    {"eid/inv", ask_records, question_per_entity, 1},
    {"eid/unordered_map", look_records_up, question_per_entity, 1},
};

constexpr question i2c_questions[] = {
    {"i2c/inv", ask_sequences, question_per_device, 1},
    {"i2c/map", look_sequences_up, question_per_device, 1},
};

// Asks by turns; false when two answers differ.
bool ask_by_turns(const world &w, std::span<const question> asked, unsigned rounds, figures &all)
{
    std::vector<std::vector<double>> times(asked.size());
    std::size_t expected = 0;
    for (unsigned round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < asked.size(); ++i) {
            if (round % asked[i].every != 0)
                continue;
            const double begin = computing_time();
            const std::size_t answer = asked[i].ask(w);
            const double took = computing_time() - begin;
            times[i].push_back(took / static_cast<double>(asked[i].number(w)));
            expected = expected == 0 ? answer : expected;
            if (answer == 0 || answer != expected)
                return false;
        }
    }
    for (std::size_t i = 0; i < asked.size(); ++i)
        all.emplace_back(asked[i].name, median(times[i]));
    return true;
}

}  // namespace

figures measure_queries(const char *file, unsigned rounds)
{
    static world w;
    figures all;
    if (!prepare(w, file))
        return {};
    for (std::span<const question> asked :
         {std::span<const question>(type_questions), std::span<const question>(eid_questions),
          std::span<const question>(i2c_questions)})
        if (!ask_by_turns(w, asked, rounds, all))
            return {};
    return all;
}

}  // namespace inv_bench
