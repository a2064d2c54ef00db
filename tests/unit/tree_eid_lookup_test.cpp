// Looking an EID up in a handle's tree: the table a handle keeps answers as the literal search does.
#include "frame/file_memory.h"
#include "inv_parser/queries.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"
#include "tree/eid_lookup.h"
#include "tree/growth.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <utility>

using namespace tree_samples;

namespace
{

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
    }
};

void grow_random(sample &tree, std::mt19937 &random, uint32_t size)
{
    for (uint32_t i = 0; i < size; ++i) {
        eid_chain_node *parent =
            i == 0 ? nullptr : &tree.nodes[draw(random, 4) != 0 ? i - 1 : draw(random, i)];
        tree.add(parent,
                 {static_cast<uint8_t>(draw(random, 2)), static_cast<uint16_t>(draw(random, 2) * 256u),
                  static_cast<uint16_t>(draw(random, 3))});
    }
}

sch_eid_type draw_eid(sample &tree, std::mt19937 &random)
{
    sch_eid_type eid = {};
    parser_populate_parent_eid_data(&tree.nodes[draw(random, static_cast<uint32_t>(tree.nodes.size()))],
                                    &eid);
    if (draw(random, 3) == 0)
        eid.depth = static_cast<uint8_t>(draw(random, 19));
    if (draw(random, 3) == 0)
        eid.levels[draw(random, INV_EID_MAX_DEPTH)].instance ^= 1;
    return eid;
}

TEST(EidLookup, repeated_lookups_answer_as_the_literal_search_does)
{
    std::mt19937 random(11);
    for (int round = 0; round < 1000; ++round) {
        known_sample tree;
        grow_random(tree, random, 1 + draw(random, 40));
        root_eid = tree.handle.root;
        for (int i = 0; i < 20; ++i) {
            sch_eid_type eid = draw_eid(tree, random);
            ASSERT_EQ(inv::find_entity_of(&tree.handle, &eid), parser_find_entity(root_eid, &eid));
        }
    }
}

TEST(EidLookup, an_entity_hung_in_later_is_found_and_an_earlier_one_of_its_path_wins)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *first = tree.add(root, {8, 1, 1});
    root_eid = tree.handle.root;
    sch_eid_type late = eid_of({{9, 1, 0}, {8, 2, 7}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &late), nullptr);
    sch_base_entity_type *record = tree.record({8, 2, 7});
    parser_update_eid_chain(record, root->record);
    for (int i = 0; i < 3; ++i) {
        eid_chain_node *found = inv::find_entity_of(&tree.handle, &late);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->record, record);
        EXPECT_EQ(found, first->next_sibling);
    }
    inv_schema_free_eid_chain_list(first->next_sibling);
    first->next_sibling = nullptr;
}

TEST(EidLookup, an_entity_whose_node_was_released_is_found_no_longer)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    root_eid = tree.handle.root;
    parser_update_eid_chain(tree.record({8, 2, 7}), root->record);
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 2, 7}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), root->first_child);
    inv_schema_free_eid_chain_list(root->first_child);
    root->first_child = nullptr;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), nullptr);
}

// A file that has been asked about often enough to have a table, which then leads to nodes that no search
// finds.
struct asked_sample : known_sample {
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 1, 1}});

    asked_sample()
    {
        add(add(nullptr, {9, 1, 0}), {8, 1, 1});
        root_eid = handle.root;
        for (int i = 0; i < 2; ++i)
            EXPECT_NE(inv::find_entity_of(&handle, &eid), nullptr);
    }
    bool still_has_its_table()
    {
        root_eid = handle.root;
        eid_chain_node *child = std::exchange(handle.root->first_child, nullptr);
        const bool found = inv::find_entity_of(&handle, &eid) == child;
        handle.root->first_child = child;
        return found;
    }
};

// With a tree from the process heap.
inv_xml_handle *made_by_hand(sample &records, bool is_known)
{
    auto *handle = static_cast<inv_xml_handle *>(inv::memory::request(sizeof(inv_xml_handle)));
    EXPECT_TRUE(!is_known || inv::frame::add_side_record(handle));
    root_eid = nullptr;
    parser_update_eid_chain(records.record({9, 1, 0}), nullptr);
    handle->root = root_eid;
    return handle;
}

TEST(EidLookup, the_release_of_a_file_leaves_the_table_of_another_as_it_is)
{
    sample records;
    auto *other = static_cast<inv_xml_handle *>(inv::memory::request(sizeof(inv_xml_handle)));
    ASSERT_TRUE(inv::frame::add_side_record(other));
    inv::begin_load(other);
    {
        inv::tree_growth_scope growth;
        root_eid = nullptr;
        parser_update_eid_chain(records.record({9, 1, 0}), nullptr);
    }
    inv::end_load(false);
    other->root = root_eid;
    asked_sample tree;
    inv_schema_free_base_module_data(other);
    EXPECT_TRUE(tree.still_has_its_table());
}

// It would stay there when the other file is closed.
TEST(EidLookup, a_tree_in_the_memory_of_another_file_is_in_no_table)
{
    known_sample asked, other;
    inv::begin_load(&other.handle);
    root_eid = nullptr;
    parser_update_eid_chain(other.record({9, 1, 0}), nullptr);
    inv::end_load(false);
    asked.handle.root = root_eid;
    sch_eid_type eid = eid_of({{9, 1, 0}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&asked.handle, &eid), root_eid);
    EXPECT_EQ(inv::get_side_table(&asked.handle, inv::side_table::eid_lookup), nullptr);
    other.handle.root = root_eid;
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&other.handle, &eid), root_eid);
    EXPECT_NE(inv::get_side_table(&other.handle, inv::side_table::eid_lookup), nullptr);
    asked.handle.root = nullptr;
}

// Its nodes may hang in the tree of any file.
TEST(EidLookup, the_release_of_a_tree_from_the_process_heap_is_a_change_of_all_trees)
{
    for (bool is_known : {false, true}) {
        sample records;
        inv_xml_handle *other = made_by_hand(records, is_known);
        asked_sample tree;
        inv_schema_free_base_module_data(other);
        EXPECT_FALSE(tree.still_has_its_table()) << is_known;
    }
}

TEST(EidLookup, the_tree_of_a_load_leaves_the_table_of_another_as_it_is)
{
    asked_sample tree;
    sample loaded;
    {
        inv::tree_growth_scope load;
        root_eid = nullptr;
        sch_base_entity_type *top = loaded.record({9, 1, 0});
        parser_update_eid_chain(top, nullptr);
        parser_update_eid_chain(loaded.record({8, 1, 2}), top);
    }
    eid_chain_node *loaded_root = root_eid;
    EXPECT_TRUE(tree.still_has_its_table());
    inv_schema_free_eid_chain_list(loaded_root);
}

TEST(EidLookup, an_entity_whose_triple_was_changed_is_found_by_its_new_eid_only)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *child = tree.add(root, {8, 1, 1});
    root_eid = tree.handle.root;
    sch_eid_type before = eid_of({{9, 1, 0}, {8, 1, 1}});
    sch_eid_type after = eid_of({{9, 1, 0}, {8, 1, 2}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &before), child);
    child->record->instance = 2;
    EXPECT_EQ(inv::find_entity_of(&tree.handle, &before), nullptr);
    EXPECT_EQ(inv::find_entity_of(&tree.handle, &after), child);
}

TEST(EidLookup, an_entity_whose_subtype_outgrew_the_eid_is_no_longer_found)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *child = tree.add(root, {8, 1, 1});
    root_eid = tree.handle.root;
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 1, 1}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), child);
    // The low octet, which is all that an EID has, stays.
    child->record->subtype = 257;
    EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), nullptr);
}

TEST(EidLookup, a_handle_with_another_root_is_looked_up_anew)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *child = tree.add(root, {8, 1, 1});
    root_eid = tree.handle.root;
    sch_eid_type whole = eid_of({{9, 1, 0}, {8, 1, 1}});
    sch_eid_type part = eid_of({{8, 1, 1}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &whole), child);
    root_eid = tree.handle.root = child;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &whole), nullptr);
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &part), child);
    }
}

TEST(EidLookup, the_tree_in_use_answers_for_a_handle_of_another_tree)
{
    known_sample tree;
    tree.add(tree.add(nullptr, {9, 1, 0}), {8, 1, 1});
    sample other;
    eid_chain_node *there = other.add(other.add(nullptr, {9, 1, 0}), {8, 2, 2});
    root_eid = other.handle.root;
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 2, 2}});
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), there);
}

TEST(EidLookup, without_memory_the_literal_search_answers_and_nothing_is_traced_or_lost)
{
    uint64_t before = counting_memory::live();
    {
        known_sample tree;
        eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
        eid_chain_node *child = tree.add(root, {8, 1, 1});
        root_eid = tree.handle.root;
        sch_eid_type eid = eid_of({{9, 1, 0}, {8, 1, 1}});
        for (uint64_t n = 1; n <= 4; ++n) {
            counting_memory::fail_at(n, true);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), child);
            counting_memory::reset();
        }
    }
    EXPECT_EQ(counting_memory::live(), before);
}

TEST(EidLookup, a_handle_that_the_registry_did_not_make_takes_no_memory)
{
    sample tree;
    tree.add(tree.add(nullptr, {9, 1, 0}), {8, 1, 1});
    root_eid = tree.handle.root;
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 1, 1}});
    counting_memory::reset();
    for (int i = 0; i < 3; ++i)
        EXPECT_NE(inv::find_entity_of(&tree.handle, &eid), nullptr);
    EXPECT_EQ(counting_memory::requests(), 0u);
    root_eid = nullptr;
}

TEST(EidLookup, from_the_second_lookup_on_no_node_but_the_answers_is_walked)
{
    known_sample tree;
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *last = nullptr;
    for (uint32_t i = 0; i < 1000; ++i)
        last = tree.add_behind(last, root, {8, 1, static_cast<uint16_t>(i)});
    root_eid = tree.handle.root;
    sch_eid_type eid = eid_of({{9, 1, 0}, {8, 1, 500}});
    for (int i = 0; i < 2; ++i)
        EXPECT_NE(inv::find_entity_of(&tree.handle, &eid), nullptr);
    // Cut off from below the root, the entities are out of every walk's reach.
    eid_chain_node *children = root->first_child;
    root->first_child = nullptr;
    for (uint32_t i = 0; i < 1000; ++i) {
        eid = eid_of({{9, 1, 0}, {8, 1, static_cast<uint16_t>(i)}});
        EXPECT_EQ(inv::find_entity_of(&tree.handle, &eid), &tree.nodes[i + 1]);
    }
    root->first_child = children;
}

}  // namespace
