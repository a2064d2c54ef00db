// Hand-made files for the tests of access sequences, and both families under one shape.
#ifndef TESTS_UNIT_ACCESS_SEQUENCE_WORLD_H
#define TESTS_UNIT_ACCESS_SEQUENCE_WORLD_H

#include "inv_parser/inv_parser.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "support/counting_memory.h"
#include "support/trace_recorder.h"
#include "unit/access_sequence_lines.h"

#include <cstdint>
#include <cstring>
#include <deque>
#include <gtest/gtest.h>
#include <vector>

namespace sequence_world
{

using id_list = std::vector<uint32_t>;

// Messages of the form for a device of another file.
struct card_ids {
    uint32_t no_memory, slot0_failed, slot1_failed, eid_unknown, slot0_no_memory, slot1_no_memory;
};

struct i2c {
    using sequence = sch_i2c_access_seq_type;
    using hop = sch_i2c_access_hop_type;
    using pair = sch_i2c_access_seq_pair_type;
    static constexpr int max_hops = 25;
    static constexpr uint32_t null_handle = 54, no_node = 55, no_entity = 56, no_parent = 57, no_memory = 58,
                              too_large = 59, hop_no_entity = 60, eid_unknown = 61;
    static constexpr card_ids card = {83, 84, 85, 86, 87, 88};
    static constexpr auto by_xml_inst = inv_parser_get_i2c_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_i2c_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_i2c_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_i2c_access_sequence;
    // Hops that the forms with an EID leave out at the end.
    static constexpr int dropped_by_eid = 0;

    static avl_root *index(inv_xml_handle &file)
    {
        return &file.i2c_xml_inst_index;
    }
    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle &file)
    {
        return file.i2c_cc_slot_lists;
    }
    static uint32_t link(const hop &of)
    {
        return of.channel;
    }
};

struct pcie {
    using sequence = sch_pcie_access_seq_type;
    using hop = sch_pcie_access_hop_type;
    using pair = sch_pcie_access_seq_pair_type;
    static constexpr int max_hops = 10;
    static constexpr uint32_t null_handle = 62, no_node = 63, no_entity = 64, no_parent = 65, no_memory = 66,
                              too_large = 67, hop_no_entity = 68, eid_unknown = 69;
    static constexpr card_ids card = {89, 90, 91, 92, 93, 94};
    static constexpr auto by_xml_inst = inv_parser_get_pcie_access_sequence_by_xml_inst;
    static constexpr auto by_eid = inv_parser_get_pcie_access_sequence_by_eid;
    static constexpr auto from_card = inv_parser_get_pcie_access_sequence_from_control_card;
    static constexpr auto release = inv_parser_free_pcie_access_sequence;
    static constexpr int dropped_by_eid = 1;

    static avl_root *index(inv_xml_handle &file)
    {
        return &file.pcie_xml_inst_index;
    }
    static sch_cc_slot_xml_inst_type **slot_lists(inv_xml_handle &file)
    {
        return file.pcie_cc_slot_lists;
    }
    static uint32_t link(const hop &of)
    {
        return of.link_port;
    }
};

using families = testing::Types<i2c, pcie>;

struct family_names {
    template <class Family>
    static std::string GetName(int)
    {
        return std::is_same_v<Family, i2c> ? "i2c" : "pcie";
    }
};

// A file without document. Entities hang in the tree as children of the first one.
struct hand_made_file {
    inv_xml_handle handle = {};
    std::deque<sch_base_entity_type> entities;
    std::deque<sch_xml_inst_node_type> nodes;
    std::deque<sch_cc_slot_xml_inst_type> slots;
    std::deque<eid_chain_node> tree;

    hand_made_file() = default;
    hand_made_file(const hand_made_file &) = delete;
    hand_made_file &operator=(const hand_made_file &) = delete;
    ~hand_made_file()
    {
        for (avl_root *index : {&handle.i2c_xml_inst_index, &handle.pcie_xml_inst_index})
            while (void *first = avl_get_first(index))
                avl_delete(index, first, parser_xml_inst_compare, 0);
    }

    // An entity that is in the tree and in no index; its devices tell its instance.
    sch_base_entity_type *entity(uint16_t instance)
    {
        sch_base_entity_type &made = entities.emplace_back();
        made.type = 9;
        made.instance = instance;
        made.xml_instance = instance;
        made.i2c_node.device_type = 1000u + instance;
        made.i2c_node.device_model = static_cast<uint8_t>(instance + 1);
        made.i2c_node.device_address = static_cast<uint8_t>(instance + 2);
        made.pcie_node.device_type = 2000u + instance;
        made.pcie_node.device_model = static_cast<uint8_t>(instance + 3);
        made.pcie_node.port_number = static_cast<uint16_t>(instance + 4);
        eid_chain_node &node = tree.emplace_back();
        node.record = &made;
        if (handle.root == nullptr) {
            handle.root = &node;
        } else {
            node.parent = handle.root;
            node.next_sibling = handle.root->first_child;
            handle.root->first_child = &node;
        }
        return &made;
    }

    template <class Family>
    sch_xml_inst_node_type *node(uint32_t instance, sch_base_entity_type *of)
    {
        sch_xml_inst_node_type &made = nodes.emplace_back();
        made.xml_instance = instance;
        made.entity = of;
        made.entity_present = of != nullptr;
        EXPECT_NE(avl_insert(Family::index(handle), &made, parser_xml_inst_compare, 0), nullptr);
        return &made;
    }

    // An entity and its index node.
    template <class Family>
    sch_xml_inst_node_type *device(uint16_t instance)
    {
        return node<Family>(instance, entity(instance));
    }

    // A port of `parent` leads to `child`.
    static void lead(sch_xml_inst_node_type *child, const sch_xml_inst_node_type *parent, uint32_t channel,
                     uint32_t device_id = 0)
    {
        child->parent_xml_instance = parent->xml_instance;
        child->parent_entity = parent->entity;
        child->channel = channel;
        child->pcie_dest = device_id;
    }

    // A chain of so many devices, first topmost; the port that leads to hop i has channel 10 + i and
    // device id 500 + i. Instances count up from `first`. Returns the lowest one's node.
    template <class Family>
    sch_xml_inst_node_type *chain(uint16_t first, int hops)
    {
        sch_xml_inst_node_type *above = nullptr;
        for (int i = 0; i < hops; ++i) {
            auto *below = device<Family>(static_cast<uint16_t>(first + i));
            below->channel = 777;  // of the topmost device: leads nowhere
            if (above != nullptr)
                lead(below, above, static_cast<uint32_t>(10 + i), static_cast<uint32_t>(500 + i));
            above = below;
        }
        return above;
    }

    template <class Family>
    sch_cc_slot_xml_inst_type *slot(uint32_t type, uint16_t key, uint32_t parent0, uint32_t channel0,
                                    uint32_t parent1, uint32_t channel1)
    {
        slots.push_back({key, parent0, channel0, parent1, channel1, nullptr});
        parser_insert_cc_slot_xml_inst(Family::slot_lists(handle), type, &slots.back());
        return &slots.back();
    }

    // The EID of the entity with this instance.
    sch_eid_type eid(uint16_t instance)
    {
        sch_eid_type made = {};
        root_eid = handle.root;
        for (eid_chain_node &each : tree)
            if (each.record->instance == instance)
                parser_populate_parent_eid_data(&each, &made);
        return made;
    }
};

// Every allocation has to be back when a test and its files are gone.
class SequenceTest : public testing::Test
{
protected:
    SequenceTest()
    {
        counting_memory::reset();
        trace_recorder::start();
        live_before = counting_memory::live();
    }
    ~SequenceTest() override
    {
        EXPECT_EQ(counting_memory::live(), live_before);
    }
    void TearDown() override
    {
        counting_memory::reset();
        root_eid = nullptr;
    }
    // Ids since the last call, whose lines have to be as listed.
    static id_list traced()
    {
        expect_lines_as_listed();
        id_list ids = trace_recorder::ids();
        trace_recorder::clear();
        return ids;
    }
    // Lets each request of memory fail once. A lookup does without the memory that it keeps for later; every
    // other request, in their order, fails the build with the lines expected. build() is true on success.
    template <class Build, class Release>
    static void fail_each_request(Build build, Release release, const std::vector<id_list> &expected)
    {
        for (int lookups = 0; lookups < 2; ++lookups) {  // what lookups keep is made now
            ASSERT_TRUE(build());
            release();
        }
        size_t failures = 0;
        uint64_t refused_request = 0;
        uint64_t live = counting_memory::live();
        for (bool is_refused = true; is_refused;) {
            static_cast<void>(traced());
            counting_memory::fail_at(++refused_request);
            bool is_built = build();
            is_refused = counting_memory::failed();
            counting_memory::reset();
            if (is_built) {
                release();
                EXPECT_EQ(traced(), id_list()) << refused_request;
            } else {
                ASSERT_TRUE(is_refused) << refused_request;
                ASSERT_LT(failures, expected.size()) << refused_request;
                EXPECT_EQ(traced(), expected[failures++]) << refused_request;
            }
            EXPECT_EQ(counting_memory::live(), live) << refused_request;
        }
        EXPECT_EQ(failures, expected.size());
    }
    // A pointer that no call stores: what an untouched output still holds.
    template <class Block>
    static Block *untouched()
    {
        return reinterpret_cast<Block *>(&mark);
    }

private:
    static inline uint64_t mark;
    uint64_t live_before = 0;
};

// The octets of a sequence, those beyond its count included.
template <class Family>
std::vector<unsigned char> octets_of(const typename Family::sequence *sequence, size_t hops)
{
    auto *from = reinterpret_cast<const unsigned char *>(sequence);
    return {from, from + sizeof(*sequence) + hops * sizeof(typename Family::hop)};
}

template <class Family>
id_list instances_of(const typename Family::sequence *sequence)
{
    id_list instances;
    for (int i = 0; i < sequence->hop_count; ++i)
        instances.push_back(sequence->hops[i].xml_instance);
    return instances;
}

template <class Family>
id_list links_of(const typename Family::sequence *sequence)
{
    id_list links;
    for (int i = 0; i < sequence->hop_count; ++i)
        links.push_back(Family::link(sequence->hops[i]));
    return links;
}

}  // namespace sequence_world

#endif
