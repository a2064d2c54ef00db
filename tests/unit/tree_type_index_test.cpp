// The EIDs of a type from the index that a handle keeps: what a walk over the tree answers.
#include "tree/type_index.h"

#include "frame/file_memory.h"
#include "inv_parser/queries.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace tree_samples;

namespace
{

constexpr uint32_t owner_all = 6;

// A sample tree whose handle the library keeps private data about, as it does for registered files.
struct known_sample : sample {
    known_sample()
    {
        EXPECT_TRUE(inv::frame::add_side_record(&handle));
    }
    ~known_sample()
    {
        inv::release_file_memory(&handle);
        root_eid = nullptr;
        global_eid = nullptr;
    }
};

// Types 0 to 2; subtypes 0, 1 and 256, which no query finds.
void grow_random(sample &tree, std::mt19937 &random, uint32_t size, uint32_t depth_bias)
{
    for (uint32_t i = 0; i < size; ++i) {
        eid_chain_node *parent =
            i == 0 ? nullptr : &tree.nodes[draw(random, depth_bias) != 0 ? i - 1 : draw(random, i)];
        uint32_t kind = draw(random, 3);
        tree.add(parent, {static_cast<uint8_t>(draw(random, 3)),
                          static_cast<uint16_t>(kind == 2 ? 256 : kind), static_cast<uint16_t>(i)});
    }
}

void walk_literally(eid_chain_node *list, uint8_t type, int subtype, std::vector<sch_eid_type> &found)
{
    for (; list != nullptr; list = list->next_sibling) {
        const sch_base_entity_type *record = list->record;
        if (record != nullptr && record->type == type &&
            (subtype == INV_ANY_SUBTYPE || record->subtype == subtype)) {
            found.emplace_back();
            parser_populate_parent_eid_data(list, &found.back());
        }
        walk_literally(list->first_child, type, subtype, found);
    }
}

void expect_answers_of_walk(inv_xml_handle *handle, uint8_t type, uint8_t subtype)
{
    root_eid = handle->root;
    std::vector<sch_eid_type> expected;
    walk_literally(handle->root, type, subtype, expected);
    uint16_t count = 0;
    sch_eid_type *array = nullptr;
    ASSERT_EQ(inv_parser_get_eid_by_type_subtype(handle, owner_all, type, subtype, &count, &array), 0u);
    ASSERT_EQ(count, expected.size());
    EXPECT_TRUE(count == 0 || memcmp(array, expected.data(), count * sizeof *array) == 0);
    EXPECT_EQ(global_eid, array);
    EXPECT_EQ(global_eid_count, count);
    EXPECT_EQ(global_tmp_count, count);
    inv_parser_free_eid_tree(array);
}

void expect_all_answers(inv_xml_handle *handle)
{
    for (uint8_t type : {uint8_t{0}, uint8_t{1}, uint8_t{2}, uint8_t{3}})
        for (uint8_t subtype : {uint8_t{0}, uint8_t{1}, uint8_t{2}, uint8_t{INV_ANY_SUBTYPE}})
            ASSERT_NO_FATAL_FAILURE(expect_answers_of_walk(handle, type, subtype));
}

TEST(TypeIndex, answers_as_the_walk_does_in_trees_of_any_shape)
{
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        known_sample tree;
        // Every third tree is deeper than an EID.
        grow_random(tree, random, 1 + draw(random, 60), round % 3 == 0 ? 50 : 3);
        // Nodes whose parent is not the one they hang below: climbing ends there.
        for (int misfits = round % 4; misfits > 0; --misfits)
            tree.nodes[draw(random, static_cast<uint32_t>(tree.nodes.size()))].parent = nullptr;
        ASSERT_NO_FATAL_FAILURE(expect_all_answers(&tree.handle));
    }
}

TEST(TypeIndex, takes_in_what_a_client_hangs_into_the_tree_later)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    tree.add(root, {1, 1, 1});
    expect_all_answers(&tree.handle);
    sch_base_entity_type mine = {};
    mine.type = 1;
    root_eid = tree.handle.root;
    parser_update_eid_chain(&mine, root->record);
    expect_all_answers(&tree.handle);
    eid_chain_node *hung = root->first_child->next_sibling;
    ASSERT_NE(hung, nullptr);
    root->first_child->next_sibling = nullptr;
    inv_schema_free_eid_chain_list(hung);
}

TEST(TypeIndex, leaves_out_what_a_client_has_released)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    root_eid = tree.handle.root;
    parser_update_eid_chain(tree.record({1, 1, 1}), root->record);
    parser_update_eid_chain(tree.record({1, 1, 2}), root->first_child->record);
    expect_all_answers(&tree.handle);
    inv_schema_free_eid_chain_list(root->first_child->first_child);
    root->first_child->first_child = nullptr;
    expect_all_answers(&tree.handle);
    inv_schema_free_eid_chain_list(root->first_child);
    root->first_child = nullptr;
    expect_all_answers(&tree.handle);
}

TEST(TypeIndex, is_asked_for_memory_once_and_the_answer_once_each_time)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    for (uint16_t i = 0; i < 100; ++i)
        tree.add(root, {1, 1, i});
    expect_answers_of_walk(&tree.handle, 1, 1);
    counting_memory::reset();
    expect_answers_of_walk(&tree.handle, 1, 1);
    EXPECT_EQ(counting_memory::requests(), 1u);
}

TEST(TypeIndex, without_memory_for_it_the_walk_answers)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    tree.add(root, {1, 1, 1});
    uint64_t before = counting_memory::live();
    counting_memory::fail_at(1);
    expect_answers_of_walk(&tree.handle, 1, 1);
    EXPECT_TRUE(counting_memory::failed());
    counting_memory::reset();
    EXPECT_EQ(counting_memory::live(), before);
}

TEST(TypeIndex, a_handle_that_the_registry_did_not_make_keeps_nothing)
{
    sample tree;
    tree.add(tree.add(nullptr, {2, 1, 0}), {1, 1, 1});
    uint64_t before = counting_memory::live();
    expect_all_answers(&tree.handle);
    EXPECT_EQ(counting_memory::live(), before);
    root_eid = nullptr;
    global_eid = nullptr;
}

TEST(TypeIndex, leaves_out_nodes_without_record)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    eid_chain_node *bare = tree.add(root, {0, 0, 1});
    tree.add(bare, {0, 0, 2});
    bare->record = nullptr;
    expect_all_answers(&tree.handle);
    root_eid = tree.handle.root;
    const inv::type_index *index = inv::type_index_for(&tree.handle, inv::entities_of_type(0));
    ASSERT_NE(index, nullptr);
    EXPECT_EQ(inv::count_entities(*index, inv::entities_of_type(0)), 1u);
}

TEST(TypeIndex, is_for_queries_of_one_type_in_the_current_tree)
{
    known_sample tree;
    tree.add(tree.add(nullptr, {2, 1, 0}), {1, 1, 1});
    root_eid = tree.handle.root;
    EXPECT_NE(inv::type_index_for(&tree.handle, inv::entities_of_type(255)), nullptr);
    EXPECT_EQ(inv::type_index_for(&tree.handle, inv::entities_of_type(256)), nullptr);
    EXPECT_EQ(inv::type_index_for(&tree.handle, inv::every_entity()), nullptr);
    root_eid = root_eid->first_child;
    EXPECT_EQ(inv::type_index_for(&tree.handle, inv::entities_of_type(1)), nullptr);
}

TEST(TypeIndex, is_made_again_when_the_handle_gets_another_root)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {2, 1, 0});
    tree.add(root, {1, 1, 1});
    expect_answers_of_walk(&tree.handle, 2, INV_ANY_SUBTYPE);
    tree.handle.root = root->first_child;
    expect_answers_of_walk(&tree.handle, 2, INV_ANY_SUBTYPE);
    expect_answers_of_walk(&tree.handle, 1, INV_ANY_SUBTYPE);
}

}  // namespace
