#include "tree/growth.h"

#include "frame/file_memory.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

using namespace tree_samples;

namespace
{

// What the tree has to be: the plain algorithm on plain objects.
struct model_node {
    sch_base_entity_type *record;
    std::vector<std::unique_ptr<model_node>> children;
};

model_node *find_model(model_node *node, const sch_base_entity_type *record)
{
    if (node == nullptr || node->record == record)
        return node;
    for (auto &child : node->children)
        if (model_node *found = find_model(child.get(), record))
            return found;
    return nullptr;
}

void hang_in_model(std::unique_ptr<model_node> &root, sch_base_entity_type *record,
                   sch_base_entity_type *parent)
{
    auto made = std::make_unique<model_node>();
    made->record = record;
    if (root == nullptr)
        root = std::move(made);
    else if (model_node *found = find_model(root.get(), parent))
        found->children.push_back(std::move(made));
}

void expect_same(const model_node *model, const eid_chain_node *node)
{
    ASSERT_NE(nullptr, node);
    ASSERT_EQ(model->record, node->record);
    const eid_chain_node *child = node->first_child;
    for (const auto &expected : model->children) {
        ASSERT_NO_FATAL_FAILURE(expect_same(expected.get(), child));
        ASSERT_EQ(node, child->parent);
        child = child->next_sibling;
    }
    ASSERT_EQ(nullptr, child);
}

class Growth : public testing::Test
{
protected:
    void SetUp() override
    {
        root_eid = nullptr;
        counting_memory::reset();
        live_before = counting_memory::live();
    }

    void TearDown() override
    {
        inv_schema_free_eid_chain_list(root_eid);
        root_eid = nullptr;
        EXPECT_EQ(live_before, counting_memory::live());
    }

    sample records;
    uint64_t live_before = 0;
};

TEST_F(Growth, the_first_entity_becomes_the_root_and_keeps_the_parent_value_given)
{
    sch_base_entity_type *parent = records.record({1, 1, 1});
    sch_base_entity_type *top = records.record({3, 0, 0});
    parser_update_eid_chain(top, parent);
    ASSERT_NE(nullptr, root_eid);
    EXPECT_EQ(top, root_eid->record);
    EXPECT_EQ(static_cast<void *>(parent), static_cast<void *>(root_eid->parent));
    EXPECT_EQ(nullptr, root_eid->first_child);
    EXPECT_EQ(nullptr, root_eid->next_sibling);
}

TEST_F(Growth, children_stand_in_registration_order)
{
    sch_base_entity_type *top = records.record({3, 0, 0});
    parser_update_eid_chain(top, nullptr);
    std::vector<sch_base_entity_type *> children;
    for (uint16_t i = 0; i < 5; ++i)
        parser_update_eid_chain(children.emplace_back(records.record({9, 0, i})), top);
    const eid_chain_node *child = root_eid->first_child;
    for (sch_base_entity_type *expected : children) {
        ASSERT_NE(nullptr, child);
        EXPECT_EQ(expected, child->record);
        EXPECT_EQ(root_eid, child->parent);
        child = child->next_sibling;
    }
    EXPECT_EQ(nullptr, child);
}

TEST_F(Growth, an_entity_whose_parent_is_not_in_the_tree_stays_out_and_so_does_what_hangs_below_it)
{
    for (bool in_load : {false, true}) {
        std::optional<inv::tree_growth_scope> scope;
        if (in_load)
            scope.emplace();
        root_eid = nullptr;
        sch_base_entity_type *top = records.record({3, 0, 0});
        sch_base_entity_type *stray = records.record({9, 0, 0});
        parser_update_eid_chain(top, nullptr);
        parser_update_eid_chain(stray, records.record({9, 9, 9}));
        parser_update_eid_chain(records.record({9, 0, 1}), stray);
        parser_update_eid_chain(records.record({9, 0, 2}), nullptr);
        EXPECT_EQ(nullptr, root_eid->first_child);
        EXPECT_EQ(nullptr, root_eid->next_sibling);
        inv_schema_free_eid_chain_list(root_eid);
        root_eid = nullptr;
    }
}

TEST_F(Growth, an_entity_without_memory_stays_out)
{
    sch_base_entity_type *top = records.record({3, 0, 0});
    counting_memory::fail_at(1);
    parser_update_eid_chain(top, nullptr);
    EXPECT_EQ(nullptr, root_eid);
    parser_update_eid_chain(top, nullptr);
    ASSERT_NE(nullptr, root_eid);
    counting_memory::fail_at(1);
    parser_update_eid_chain(records.record({9, 0, 0}), top);
    EXPECT_EQ(nullptr, root_eid->first_child);
    EXPECT_TRUE(counting_memory::failed());
}

TEST_F(Growth, finding_a_parent_goes_by_address_through_siblings_and_children)
{
    eid_chain_node *first = records.add(nullptr, {3, 0, 0});
    eid_chain_node *second = records.add(nullptr, {3, 0, 0});
    eid_chain_node *below = records.add(second, {3, 0, 0});
    for (eid_chain_node *each : {first, second, below})
        EXPECT_EQ(each, parser_find_parent_node(each->record, first));
    EXPECT_EQ(nullptr, parser_find_parent_node(first->record, second));
    EXPECT_EQ(nullptr, parser_find_parent_node(records.record({3, 0, 0}), first));
    EXPECT_EQ(nullptr, parser_find_parent_node(first->record, nullptr));
}

TEST_F(Growth, releasing_a_tree_gives_back_every_node_however_deep_and_wide)
{
    sch_base_entity_type *parent = records.record({3, 0, 0});
    {
        inv::tree_growth_scope scope;
        parser_update_eid_chain(parent, nullptr);
        for (int i = 0; i < 100000; ++i) {
            sch_base_entity_type *child = records.record({9, 0, 0});
            parser_update_eid_chain(child, parent);
            if (i % 2 == 0)
                parent = child;
        }
    }
    EXPECT_EQ(live_before + 100001, counting_memory::live());
    inv_schema_free_eid_chain_list(root_eid);
    EXPECT_EQ(live_before, counting_memory::live());
    root_eid = nullptr;
    inv_schema_free_eid_chain_list(nullptr);
}

TEST_F(Growth, a_scope_leaves_no_memory_behind)
{
    {
        inv::tree_growth_scope scope;
        parser_update_eid_chain(records.record({3, 0, 0}), nullptr);
        EXPECT_GT(counting_memory::live(), live_before + 1);
    }
    EXPECT_EQ(live_before + 1, counting_memory::live());
}

TEST_F(Growth, a_tree_of_other_origin_is_grown_by_the_plain_search)
{
    sch_base_entity_type *top = records.record({3, 0, 0});
    sch_base_entity_type *card = records.record({9, 0, 0});
    inv::tree_growth_scope scope;
    parser_update_eid_chain(top, nullptr);
    parser_update_eid_chain(card, top);
    eid_chain_node *whole = root_eid;
    // A part of the tree, taken for the tree, gets a child that the scope does not know of.
    root_eid = whole->first_child;
    parser_update_eid_chain(records.record({8, 0, 1}), card);
    root_eid = whole;
    sch_base_entity_type *last = records.record({8, 0, 2});
    parser_update_eid_chain(last, card);
    ASSERT_NE(nullptr, whole->first_child->first_child->next_sibling);
    EXPECT_EQ(last, whole->first_child->first_child->next_sibling->record);
}

TEST_F(Growth, where_a_table_as_large_as_expected_cannot_be_had_a_small_one_grows)
{
    inv::tree_growth_scope scope(100000);
    counting_memory::fail_at(2);
    sch_base_entity_type *top = records.record({3, 0, 0});
    parser_update_eid_chain(top, nullptr);
    EXPECT_TRUE(counting_memory::failed());
    EXPECT_EQ(counting_memory::requests(), 3u) << "the node, the large table, the small one";
    constexpr uint16_t children = 1000;
    for (uint16_t i = 0; i < children; ++i)
        parser_update_eid_chain(records.record({9, 0, i}), top);
    uint16_t next = 0;
    for (const eid_chain_node *child = root_eid->first_child; child != nullptr; child = child->next_sibling)
        ASSERT_EQ(child->record->instance, next++);
    EXPECT_EQ(next, children);
}

// Grows random trees and compares each with the model: nearly always below the newest entity or one of
// its ancestors, now and then anywhere, below strangers, with records that are in the tree already.
void grow_random_tree(sample &records, std::mt19937 &random, int size, bool with_failures)
{
    std::unique_ptr<model_node> model;
    std::vector<sch_base_entity_type *> path;
    std::vector<sch_base_entity_type *> all;
    for (int i = 0; i < size; ++i) {
        bool again = !all.empty() && draw(random, 40) == 0;
        sch_base_entity_type *record =
            again ? all[draw(random, static_cast<uint32_t>(all.size()))] : records.record({9, 0, 0});
        sch_base_entity_type *parent = nullptr;
        uint32_t kind = draw(random, 20);
        if (kind == 0 && !all.empty())
            parent = all[draw(random, static_cast<uint32_t>(all.size()))];
        else if (kind == 1)
            parent = records.record({1, 1, 1});
        else if (!path.empty()) {
            if (draw(random, 3) == 0)
                path.resize(1 + draw(random, static_cast<uint32_t>(path.size())));
            parent = path.back();
        }
        counting_memory::reset();
        if (with_failures && draw(random, 50) == 0)
            counting_memory::fail_at(1 + draw(random, 2));
        parser_update_eid_chain(record, parent);
        // The node's own memory comes first. Without the table's nothing is lost but time.
        bool left_out = counting_memory::failed() && counting_memory::requests() == 1;
        counting_memory::reset();
        if (left_out)
            continue;
        hang_in_model(model, record, parent);
        path.push_back(record);
        all.push_back(record);
    }
    if (model == nullptr)
        ASSERT_EQ(nullptr, root_eid);
    else
        ASSERT_NO_FATAL_FAILURE(expect_same(model.get(), root_eid));
}

TEST_F(Growth, random_trees_come_out_as_the_plain_search_would_make_them)
{
    std::mt19937 random(20240607);
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        sample round_records;
        std::optional<inv::tree_growth_scope> scope;
        if (round % 4 != 0)
            scope.emplace();
        // Several loads in one process, some of them in one scope.
        for (int load = 0; load < 2; ++load) {
            root_eid = nullptr;
            bool with_failures = round % 4 == 3;
            ASSERT_NO_FATAL_FAILURE(grow_random_tree(round_records, random,
                                                     1 + static_cast<int>(draw(random, 300)), with_failures));
            inv_schema_free_eid_chain_list(root_eid);
            root_eid = nullptr;
        }
    }
}

TEST_F(Growth, in_a_load_does_not_slow_down_with_siblings_or_strangers)
{
    // 200,000 siblings, and as many entities with an unknown parent: a walk for each would take minutes.
    inv::tree_growth_scope scope;
    sch_base_entity_type *top = records.record({3, 0, 0});
    sch_base_entity_type *stranger = records.record({3, 0, 0});
    parser_update_eid_chain(top, nullptr);
    for (int i = 0; i < 200000; ++i) {
        parser_update_eid_chain(records.record({9, 0, 0}), top);
        parser_update_eid_chain(stranger, stranger);
    }
    int count = 0;
    for (const eid_chain_node *child = root_eid->first_child; child != nullptr; child = child->next_sibling)
        ++count;
    EXPECT_EQ(200000, count);
}

}  // namespace
