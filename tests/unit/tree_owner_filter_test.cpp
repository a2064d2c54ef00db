#include "inv_parser/queries.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "tree/path_table.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <ctime>

using namespace tree_samples;

namespace
{

// Which oddities a random tree may have. Triples are few, so that duplicates abound.
struct tree_shape {
    bool has_wide_subtypes;
    bool is_deep;
    bool has_zero_triples;
    bool has_second_root;
};

triple draw_triple(std::mt19937 &random, const tree_shape &shape)
{
    if (shape.has_zero_triples && draw(random, 3) == 0)
        return {};
    auto subtype = static_cast<uint16_t>(draw(random, 2));
    if (shape.has_wide_subtypes && draw(random, 4) == 0)
        subtype = static_cast<uint16_t>(subtype + 256);
    return {static_cast<uint8_t>(8 + draw(random, 2)), subtype, static_cast<uint16_t>(draw(random, 2))};
}

void grow_random(sample &tree, std::mt19937 &random, const tree_shape &shape)
{
    uint32_t size = 1 + draw(random, shape.is_deep ? 60 : 40);
    for (uint32_t i = 0; i < size; ++i) {
        eid_chain_node *parent = nullptr;
        if (i > 0) {
            uint32_t at = shape.is_deep && draw(random, 8) != 0 ? i - 1 : draw(random, i);
            parent = &tree.nodes[at];
        }
        if (shape.has_second_root && draw(random, 20) == 0)
            parent = nullptr;
        tree.add(parent, draw_triple(random, shape), draw(random, 7));
    }
}

sch_eid_type draw_eid(sample &tree, std::mt19937 &random, const tree_shape &shape)
{
    sch_eid_type eid = {};
    if (draw(random, 3) != 0) {
        parser_populate_parent_eid_data(&tree.nodes[draw(random, static_cast<uint32_t>(tree.nodes.size()))],
                                        &eid);
        if (draw(random, 3) == 0)
            eid.depth = static_cast<uint8_t>(draw(random, 19));
        return eid;
    }
    eid.depth = static_cast<uint8_t>(draw(random, 19));
    for (int i = 0; i < INV_EID_MAX_DEPTH; ++i) {
        triple level = draw_triple(random, shape);
        eid.levels[i] = {level.type, static_cast<uint8_t>(level.subtype), level.instance};
    }
    return eid;
}

class OwnerFilter : public testing::Test
{
protected:
    void SetUp() override
    {
        counting_memory::reset();
        live_before = counting_memory::live();
    }

    void TearDown() override
    {
        root_eid = nullptr;
        counting_memory::reset();
        EXPECT_EQ(live_before, counting_memory::live());
    }

    uint64_t live_before = 0;
};

TEST_F(OwnerFilter, the_table_answers_as_the_plain_search_does)
{
    std::mt19937 random(42);
    int found = 0;
    for (int round = 0; round < 6000; ++round) {
        SCOPED_TRACE(round);
        tree_shape shape = {round % 2 == 0 && round % 3 == 0, round % 5 == 0, round % 4 < 2, round % 7 == 0};
        sample tree;
        grow_random(tree, random, shape);
        root_eid = tree.handle.root;
        if (round % 11 == 0)
            root_eid->parent = reinterpret_cast<eid_chain_node *>(uintptr_t{0x10});
        // A parent link that is not the way down.
        if (round % 13 == 0)
            tree.nodes.back().parent = round % 2 == 0 ? nullptr : &tree.nodes.front();
        inv::path_table table;
        ASSERT_TRUE(table.build());
        for (int i = 0; i < 40; ++i) {
            sch_eid_type eid = draw_eid(tree, random, shape);
            eid_chain_node *expected = parser_find_entity(root_eid, &eid);
            ASSERT_EQ(expected, table.find(eid)) << i;
            found += expected != nullptr ? 1 : 0;
        }
    }
    EXPECT_GT(found, 50000);
}

TEST_F(OwnerFilter, the_table_needs_nothing_but_memory)
{
    sample tree;
    root_eid = tree.add(nullptr, {3, 0, 0});
    inv::path_table refused;
    counting_memory::fail_at(1);
    EXPECT_FALSE(refused.build());
    counting_memory::reset();
    root_eid = nullptr;
    inv::path_table empty;
    EXPECT_TRUE(empty.build());
    for (int depth : {0, 1, 17, 255}) {
        sch_eid_type eid = {};
        eid.depth = static_cast<uint8_t>(depth);
        EXPECT_EQ(nullptr, empty.find(eid)) << depth;
    }
}

// The whole filter against its definition, odd trees and memory failures included.
TEST_F(OwnerFilter, keeps_what_the_plain_search_would_keep_in_order)
{
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        SCOPED_TRACE(round);
        tree_shape shape = {round % 3 == 0, round % 4 == 0, round % 2 == 0, false};
        sample tree;
        grow_random(tree, random, shape);
        root_eid = tree.handle.root;
        uint32_t owner = draw(random, 8);
        std::vector<sch_eid_type> asked;
        for (uint32_t i = draw(random, 30); i > 0; --i)
            asked.push_back(draw_eid(tree, random, shape));
        std::vector<sch_eid_type> expected;
        for (sch_eid_type &each : asked) {
            const eid_chain_node *node = parser_find_entity(root_eid, &each);
            if (node != nullptr && (node->record->owner == owner || node->record->owner == 5))
                expected.push_back(each);
        }
        if (round % 5 == 0)
            counting_memory::fail_at(1);
        uint32_t kept =
            parser_get_eid_count_by_owner(asked.data(), static_cast<uint32_t>(asked.size()), owner);
        counting_memory::reset();
        ASSERT_EQ(expected.size(), kept);
        for (size_t i = 0; i < expected.size(); ++i)
            ASSERT_TRUE(same_eid(expected[i], asked[i]));
    }
}

TEST_F(OwnerFilter, owner_5_passes_every_owner_and_is_itself_an_ordinary_one)
{
    sample tree;
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0}, 0);
    for (uint16_t owner = 0; owner <= 6; ++owner)
        tree.add(root, {9, 1, owner}, owner);
    root_eid = root;
    for (uint32_t owner : {0u, 1u, 4u, 5u, 6u, 4711u}) {
        std::vector<sch_eid_type> all;
        for (uint16_t i = 0; i <= 6; ++i)
            all.push_back(eid_of({{3, 0, 0}, {9, 1, i}}));
        uint32_t kept = parser_get_eid_count_by_owner(all.data(), 7, owner);
        std::vector<int> instances;
        for (uint32_t i = 0; i < kept; ++i)
            instances.push_back(all[i].levels[1].instance);
        std::vector<int> expected = {5};
        if (owner < 5)
            expected = {static_cast<int>(owner), 5};
        else if (owner == 6)
            expected = {5, 6};
        EXPECT_EQ(expected, instances) << owner;
    }
}

TEST_F(OwnerFilter, answers_null_and_0_when_nothing_is_left_and_requests_no_memory_for_it)
{
    sample tree;
    root_eid = tree.add(nullptr, {3, 0, 0}, 1);
    sch_eid_type array[] = {eid_of({{3, 0, 0}}), eid_of({{4, 0, 0}})};
    sch_eid_type *out = array;
    uint32_t count = 9;
    parser_filter_eid_by_owner(array, 2, &out, &count, 2);
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(0u, count);
    EXPECT_EQ(0u, counting_memory::requests());
    out = array;
    count = 9;
    parser_filter_eid_by_owner(nullptr, 7, &out, &count, 1);
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(0u, count);
}

TEST_F(OwnerFilter, without_a_place_for_the_answer_nothing_is_written)
{
    sample tree;
    root_eid = tree.add(nullptr, {3, 0, 0}, 1);
    sch_eid_type array[] = {eid_of({{3, 0, 0}})};
    sch_eid_type *out = array;
    uint32_t count = 9;
    parser_filter_eid_by_owner(array, 1, nullptr, &count, 1);
    EXPECT_EQ(9u, count);
    parser_filter_eid_by_owner(array, 1, &out, nullptr, 1);
    EXPECT_EQ(array, out);
    EXPECT_EQ(0u, counting_memory::requests());
}

TEST_F(OwnerFilter, drops_an_entity_without_record)
{
    sample tree;
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0}, 1);
    tree.add(root, {0, 0, 0}, 1)->record = nullptr;
    root_eid = root;
    sch_eid_type array[] = {eid_of({{3, 0, 0}, {0, 0, 0}}), eid_of({{3, 0, 0}})};
    EXPECT_EQ(1u, parser_get_eid_count_by_owner(array, 2, 1));
    EXPECT_EQ(1, array[0].depth);
}

// 60,000 lookups by the plain search would walk 3.6 thousand million nodes. Entities that no EID tells
// from others make no difference: one with a wide subtype, and ones deeper than an EID.
TEST_F(OwnerFilter, is_linear_in_entries_and_tree)
{
    sample tree;
    grow_chain(tree, 17);
    eid_chain_node *root = tree.handle.root;
    tree.add(root, {9, 256, 0}, 1);
    eid_chain_node *last = nullptr;
    std::vector<sch_eid_type> all;
    for (uint32_t i = 0; i < 60000; ++i) {
        last = tree.add_behind(last, root, {9, 1, static_cast<uint16_t>(i)}, i % 2);
        all.push_back(eid_of({{9, 1, 1}, {9, 1, static_cast<uint16_t>(i)}}));
    }
    root_eid = root;
    sch_eid_type *out = nullptr;
    uint32_t count = 0;
    clock_t begin = clock();
    parser_filter_eid_by_owner(all.data(), 60000, &out, &count, 1);
    // About a hundredth of a second, or half a minute.
    EXPECT_LT(static_cast<double>(clock() - begin) / CLOCKS_PER_SEC, 3.0);
    EXPECT_EQ(30000u, count);
    ASSERT_NE(nullptr, out);
    EXPECT_EQ(59999, out[29999].levels[1].instance);
    inv_parser_free_eid_tree(out);
}

}  // namespace
