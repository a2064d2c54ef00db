#include "inv_parser/tree_internal.h"

#include "unit/tree_samples.h"

#include <gtest/gtest.h>

using namespace tree_samples;

namespace
{

class EidRecord : public testing::Test
{
protected:
    void TearDown() override
    {
        root_eid = nullptr;
    }

    sch_eid_type eid_of_node(eid_chain_node *node)
    {
        sch_eid_type eid;
        memset(&eid, 0xAB, sizeof(eid));
        EXPECT_EQ(0u, parser_populate_parent_eid_data(node, &eid));
        return eid;
    }

    eid_chain_node *find(sch_eid_type eid)
    {
        return parser_find_entity(tree.handle.root, &eid);
    }

    sample tree;
};

TEST_F(EidRecord, holds_the_path_from_the_top_entity_down_and_zeros_behind_it)
{
    eid_chain_node *root = tree.add(nullptr, {3, 7, 1});
    eid_chain_node *card = tree.add(root, {9, 70, 2});
    eid_chain_node *sensor = tree.add(card, {8, 200, 65535});
    EXPECT_TRUE(same_eid(eid_of({{3, 7, 1}, {9, 70, 2}, {8, 200, 65535}}), eid_of_node(sensor)));
    EXPECT_TRUE(same_eid(eid_of({{3, 7, 1}}), eid_of_node(root)));
}

TEST_F(EidRecord, of_no_node_is_not_written)
{
    sch_eid_type eid;
    memset(&eid, 0xAB, sizeof(eid));
    sch_eid_type before = eid;
    EXPECT_EQ(0u, parser_populate_parent_eid_data(nullptr, &eid));
    EXPECT_TRUE(same_eid(before, eid));
    EXPECT_EQ(0u, parser_populate_parent_eid_data(tree.add(nullptr, {3, 0, 0}), nullptr));
}

TEST_F(EidRecord, sixteen_levels_are_held_and_a_seventeenth_loses_the_top_entity)
{
    grow_chain(tree, 17);
    sch_eid_type of_16 = eid_of_node(&tree.nodes[15]);
    sch_eid_type of_17 = eid_of_node(&tree.nodes[16]);
    EXPECT_EQ(16, of_16.depth);
    EXPECT_EQ(16, of_17.depth);
    EXPECT_EQ(1, of_16.levels[0].instance);
    EXPECT_EQ(16, of_16.levels[15].instance);
    EXPECT_EQ(2, of_17.levels[0].instance);
    EXPECT_EQ(17, of_17.levels[15].instance);
    EXPECT_EQ(&tree.nodes[16], find(of_17));
}

TEST_F(EidRecord, climbing_ends_at_the_root_although_it_carries_a_parent_value)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    eid_chain_node *child = tree.add(root, {9, 1, 1});
    root->parent = reinterpret_cast<eid_chain_node *>(uintptr_t{0x10});
    root_eid = root;
    EXPECT_TRUE(same_eid(eid_of({{3, 0, 0}, {9, 1, 1}}), eid_of_node(child)));
    EXPECT_TRUE(same_eid(eid_of({{3, 0, 0}}), eid_of_node(root)));
}

TEST_F(EidRecord, a_node_without_record_appears_as_zeros)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    root->record = nullptr;
    eid_chain_node *child = tree.add(root, {9, 1, 1});
    EXPECT_TRUE(same_eid(eid_of({{0, 0, 0}, {9, 1, 1}}), eid_of_node(child)));
}

TEST_F(EidRecord, reversing_swaps_the_levels_in_use_and_sets_the_reserved_words)
{
    sch_eid_type eid = eid_of({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}});
    eid.reserved0 = eid.reserved1 = 0;
    parser_reverse_populate_eid_data(&eid);
    EXPECT_TRUE(same_eid(eid_of({{3, 3, 3}, {2, 2, 2}, {1, 1, 1}}), eid));
    sch_eid_type none = {};
    parser_reverse_populate_eid_data(&none);
    EXPECT_TRUE(same_eid(eid_of({}), none));
    parser_reverse_populate_eid_data(nullptr);
}

TEST_F(EidRecord, reversing_a_depth_above_16_stays_within_the_record)
{
    for (int depth : {17, 255}) {
        sch_eid_type eid = {};
        eid.depth = static_cast<uint8_t>(depth);
        for (int i = 0; i < INV_EID_MAX_DEPTH; ++i)
            eid.levels[i].instance = static_cast<uint16_t>(i);
        parser_reverse_populate_eid_data(&eid);
        EXPECT_EQ(depth, eid.depth);
        for (int i = 0; i < INV_EID_MAX_DEPTH; ++i)
            EXPECT_EQ(15 - i, eid.levels[i].instance);
    }
}

TEST_F(EidRecord, matches_a_node_on_the_levels_in_use_whatever_depth_and_reserved_words_say)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    eid_chain_node *child = tree.add(root, {9, 1, 1});
    sch_eid_type shorter = eid_of({{3, 0, 0}});
    sch_eid_type exact = eid_of({{3, 0, 0}, {9, 1, 1}});
    sch_eid_type longer = eid_of({{3, 0, 0}, {9, 1, 1}, {0, 0, 0}});
    exact.reserved0 = exact.reserved1 = 1;
    EXPECT_EQ(child, parser_verify_eid_match(child, &shorter));
    EXPECT_EQ(child, parser_verify_eid_match(child, &exact));
    EXPECT_EQ(child, parser_verify_eid_match(child, &longer));
    for (triple differing : {triple{8, 1, 1}, triple{9, 2, 1}, triple{9, 1, 2}}) {
        sch_eid_type other = eid_of({{3, 0, 0}, differing});
        EXPECT_EQ(nullptr, parser_verify_eid_match(child, &other));
    }
    EXPECT_EQ(nullptr, parser_verify_eid_match(nullptr, &exact));
    EXPECT_EQ(nullptr, parser_verify_eid_match(child, nullptr));
}

TEST_F(EidRecord, an_entity_with_subtype_256_or_more_is_never_found_and_shows_its_low_octet)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    for (uint16_t subtype : {uint16_t{256}, uint16_t{0x1207}, uint16_t{65535}}) {
        eid_chain_node *wide = tree.add(root, {9, subtype, subtype});
        sch_eid_type eid = eid_of_node(wide);
        EXPECT_EQ(subtype & 0xFF, eid.levels[1].subtype);
        EXPECT_EQ(nullptr, find(eid)) << subtype;
    }
    eid_chain_node *narrow = tree.add(root, {9, 255, 255});
    EXPECT_EQ(narrow, find(eid_of_node(narrow)));
}

TEST_F(EidRecord, of_depth_1_finds_the_root)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    tree.add(root, {9, 1, 1});
    EXPECT_EQ(root, find(eid_of({{3, 0, 0}})));
    EXPECT_EQ(nullptr, find(eid_of({{9, 1, 1}})));
}

TEST_F(EidRecord, of_depth_1_finds_an_entity_whose_own_and_whose_roots_triple_equal_it)
{
    // The root itself cannot be found: its subtype needs more than 8 bits.
    eid_chain_node *root = tree.add(nullptr, {3, 256, 0});
    tree.add(root, {9, 0, 0});
    eid_chain_node *alike = tree.add(root, {3, 0, 0});
    EXPECT_EQ(alike, find(eid_of({{3, 0, 0}})));
}

TEST_F(EidRecord, of_depth_0_or_above_16_finds_nothing)
{
    grow_chain(tree, 20);
    for (int depth : {0, 17, 255}) {
        sch_eid_type eid = eid_of({{9, 1, 1}});
        eid.depth = static_cast<uint8_t>(depth);
        EXPECT_EQ(nullptr, find(eid)) << depth;
        EXPECT_EQ(depth == 0 ? &tree.nodes[0] : nullptr, parser_verify_eid_match(&tree.nodes[0], &eid));
    }
}

TEST_F(EidRecord, finds_nothing_in_an_empty_tree)
{
    sch_eid_type eid = eid_of({{3, 0, 0}});
    EXPECT_EQ(nullptr, parser_find_entity(nullptr, &eid));
    EXPECT_EQ(nullptr, parser_find_entity(tree.add(nullptr, {3, 0, 0}), nullptr));
}

TEST_F(EidRecord, that_several_entities_share_finds_the_first_in_preorder)
{
    eid_chain_node *root = tree.add(nullptr, {3, 0, 0});
    eid_chain_node *first_card = tree.add(root, {9, 1, 1});
    eid_chain_node *second_card = tree.add(root, {9, 1, 1});
    tree.add(second_card, {8, 1, 1});
    eid_chain_node *below_first = tree.add(first_card, {8, 1, 1});
    EXPECT_EQ(first_card, find(eid_of({{3, 0, 0}, {9, 1, 1}})));
    EXPECT_EQ(below_first, find(eid_of({{3, 0, 0}, {9, 1, 1}, {8, 1, 1}})));
}

}  // namespace
