// What the queries answer. How they fail: tree_query_failures_test.cpp.
#include "inv_parser/queries.h"
#include "inv_parser/release.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/trace_recorder.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <vector>

using namespace tree_samples;

namespace
{

constexpr uint32_t owner_common = 5;
constexpr uint32_t owner_all = 6;

class Queries : public testing::Test
{
protected:
    void SetUp() override
    {
        trace_recorder::start();
        failing_lock::reset();
        live_before = counting_memory::live();
    }

    void TearDown() override
    {
        inv_parser_free_eid_tree(out);
        EXPECT_EQ(0, failing_lock::depth());
        EXPECT_EQ(live_before, counting_memory::live());
        root_eid = nullptr;
        global_eid = nullptr;
    }

    void release_last()
    {
        inv_parser_free_eid_tree(out);
        out = nullptr;
    }

    uint32_t by_type(uint32_t owner, uint8_t type)
    {
        release_last();
        uint16_t narrow = 0xABCD;
        uint32_t result = inv_parser_get_eid_by_type(&tree.handle, owner, type, &narrow, &out);
        count = narrow;
        return result;
    }

    uint32_t by_subtype(uint32_t owner, uint8_t type, uint8_t subtype)
    {
        release_last();
        uint16_t narrow = 0xABCD;
        uint32_t result =
            inv_parser_get_eid_by_type_subtype(&tree.handle, owner, type, subtype, &narrow, &out);
        count = narrow;
        return result;
    }

    uint32_t tree_of(uint32_t owner, const sch_eid_type *eid)
    {
        release_last();
        return inv_parser_get_eid_tree(&tree.handle, owner, eid, &out, &count);
    }

    void expect_eids(const std::vector<sch_eid_type> &expected)
    {
        ASSERT_EQ(expected.size(), count);
        for (uint32_t i = 0; i < count; ++i)
            EXPECT_TRUE(same_eid(expected[i], out[i])) << i;
    }

    // A leaf of each owner from 0 to 6 below the root; the owner is the instance.
    void grow_owners(uint32_t root_owner = 0)
    {
        eid_chain_node *root = tree.add(nullptr, {3, 1, 0}, root_owner);
        for (uint16_t owner = 0; owner <= 6; ++owner)
            tree.add(root, {9, 70, owner}, owner);
    }

    std::vector<int> last_instances()
    {
        std::vector<int> found;
        for (uint32_t i = 0; i < count; ++i)
            found.push_back(out[i].levels[out[i].depth - 1].instance);
        return found;
    }

    sample tree;
    sch_eid_type *out = nullptr;
    uint32_t count = 0;
    uint64_t live_before = 0;
};

using instances = std::vector<int>;

TEST_F(Queries, root_eid_is_one_level_and_takes_no_lock)
{
    tree.add(nullptr, {3, 0x1207, 9});
    EXPECT_EQ(0u, inv_parser_get_root_eid(&tree.handle, &out));
    EXPECT_TRUE(same_eid(eid_of({{3, 0x07, 9}}), *out));
    EXPECT_EQ(0, failing_lock::lock_calls());
    EXPECT_EQ(nullptr, root_eid);
}

TEST_F(Queries, by_type_answers_full_eids_in_preorder)
{
    eid_chain_node *root = tree.add(nullptr, {9, 1, 0});
    eid_chain_node *card = tree.add(root, {3, 2, 1});
    tree.add(card, {9, 300, 2});
    tree.add(root, {9, 4, 3});
    EXPECT_EQ(0u, by_type(owner_all, 9));
    expect_eids(
        {eid_of({{9, 1, 0}}), eid_of({{9, 1, 0}, {3, 2, 1}, {9, 300, 2}}), eid_of({{9, 1, 0}, {9, 4, 3}})});
    EXPECT_EQ(3, global_eid_count);
    EXPECT_EQ(3, global_tmp_count);
    EXPECT_EQ(root, root_eid);
    EXPECT_EQ(1, failing_lock::lock_calls());
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(Queries, by_subtype_compares_all_16_bits_of_the_records_subtype)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    tree.add(root, {9, 1, 1});
    tree.add(root, {9, 257, 2});
    tree.add(root, {8, 1, 3});
    tree.add(root, {9, 2, 4});
    EXPECT_EQ(0u, by_subtype(owner_all, 9, 1));
    EXPECT_EQ((instances{1}), last_instances());
}

TEST_F(Queries, by_subtype_235_takes_any_subtype)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    tree.add(root, {9, 1, 1});
    tree.add(root, {9, 257, 2});
    tree.add(root, {9, 235, 3});
    EXPECT_EQ(0u, by_subtype(owner_all, 9, 235));
    EXPECT_EQ((instances{1, 2, 3}), last_instances());
}

TEST_F(Queries, owner_6_answers_every_entity_4_also_common_ones_and_5_only_those)
{
    grow_owners();
    struct {
        uint32_t owner;
        instances expected;
    } cases[] = {{6, {0, 1, 2, 3, 4, 5, 6}}, {4, {4, 5}}, {5, {5}}, {0, {0, 5}}, {7, {5}}};
    for (const auto &each : cases) {
        EXPECT_EQ(0u, by_type(each.owner, 9));
        EXPECT_EQ(each.expected, last_instances()) << each.owner;
        EXPECT_EQ(0u, by_subtype(each.owner, 9, 70));
        EXPECT_EQ(each.expected, last_instances()) << each.owner;
    }
}

TEST_F(Queries, without_a_match_answer_an_empty_array_and_with_an_owner_null)
{
    grow_owners();
    trace_recorder::clear();
    EXPECT_EQ(0u, by_type(owner_all, 11));
    EXPECT_EQ(0u, count);
    EXPECT_NE(nullptr, out);
    EXPECT_EQ(0u, by_subtype(owner_all, 9, 71));
    EXPECT_EQ(0u, count);
    EXPECT_NE(nullptr, out);
    EXPECT_EQ(0u, by_type(1, 11));
    EXPECT_EQ(0u, count);
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(0u, by_subtype(1, 9, 71));
    EXPECT_EQ(0u, count);
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(Queries, of_entities_that_share_an_eid_all_share_the_first_ones_owner)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0}, 2);
    tree.add(root, {9, 1, 1}, 2);
    tree.add(root, {9, 1, 1}, 3);
    tree.add(root, {9, 1, 2}, 3);
    EXPECT_EQ(0u, by_type(2, 9));
    EXPECT_EQ((instances{1, 1}), last_instances());
    EXPECT_EQ(0u, by_type(3, 9));
    EXPECT_EQ((instances{2}), last_instances());
}

TEST_F(Queries, with_an_owner_leave_entities_of_a_wide_subtype_out)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    tree.add(root, {9, 256, 1});
    tree.add(root, {9, 255, 2});
    EXPECT_EQ(0u, by_type(1, 9));
    EXPECT_EQ((instances{2}), last_instances());
}

TEST_F(Queries, for_eid_data_answer_the_first_entity_with_the_eid)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    eid_chain_node *first = tree.add(root, {9, 1, 1});
    tree.add(root, {9, 1, 1});
    sch_eid_type eid = eid_of({{3, 1, 0}, {9, 1, 1}});
    eid.reserved0 = eid.reserved1 = 0;
    sch_base_entity_type *record = nullptr;
    EXPECT_EQ(0u, inv_parser_get_eid_data(&tree.handle, &record, eid));
    EXPECT_EQ(first->record, record);
    EXPECT_EQ(0u, inv_parser_get_eid_data(&tree.handle, &record, eid_of({{3, 1, 0}})));
    EXPECT_EQ(root->record, record);
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(Queries, tree_of_the_root_is_the_root_and_every_other_entity)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    eid_chain_node *card = tree.add(root, {9, 2, 1});
    tree.add(card, {8, 3, 2});
    tree.add(root, {9, 4, 3});
    std::vector<sch_eid_type> expected = {eid_of({{3, 1, 0}}), eid_of({{3, 1, 0}, {9, 2, 1}}),
                                          eid_of({{3, 1, 0}, {9, 2, 1}, {8, 3, 2}}),
                                          eid_of({{3, 1, 0}, {9, 4, 3}})};
    EXPECT_EQ(0u, tree_of(owner_all, nullptr));
    expect_eids(expected);
    EXPECT_EQ(0u, tree_of(owner_all, &expected[0]));
    expect_eids(expected);
    EXPECT_EQ(nullptr, global_eid);
    EXPECT_EQ(0, global_eid_count);
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(Queries, tree_starts_with_the_entitys_own_triple_and_goes_on_with_full_eids)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    eid_chain_node *card = tree.add(root, {9, 2, 1});
    tree.add(card, {8, 3, 2});
    tree.add(root, {9, 4, 3});
    sch_eid_type start = eid_of({{3, 1, 0}, {9, 2, 1}});
    EXPECT_EQ(0u, tree_of(owner_all, &start));
    expect_eids({eid_of({{9, 2, 1}}), eid_of({{3, 1, 0}, {9, 2, 1}, {8, 3, 2}})});
}

TEST_F(Queries, tree_of_a_leaf_is_one_record_of_depth_0_whatever_the_owner)
{
    grow_owners();
    sch_eid_type leaf = eid_of({{3, 1, 0}, {9, 70, 4}});
    for (uint32_t owner : {owner_all, owner_common, 0u, 4u}) {
        trace_recorder::clear();
        EXPECT_EQ(0u, tree_of(owner, &leaf));
        sch_eid_type expected = eid_of({{9, 70, 4}});
        expected.depth = 0;
        expect_eids({expected});
        EXPECT_EQ("113 4 0 \"\" No child for this EID \\n\n", trace_recorder::dump());
    }
}

TEST_F(Queries, tree_with_an_owner_drops_entry_0_of_a_subtree)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0}, 1);
    eid_chain_node *card = tree.add(root, {9, 2, 1}, 1);
    tree.add(card, {8, 3, 2}, 1);
    sch_eid_type start = eid_of({{3, 1, 0}, {9, 2, 1}});
    EXPECT_EQ(0u, tree_of(1, &start));
    expect_eids({eid_of({{3, 1, 0}, {9, 2, 1}, {8, 3, 2}})});
    EXPECT_EQ(0u, tree_of(1, nullptr));
    EXPECT_EQ(3u, count);
}

TEST_F(Queries, tree_with_an_owner_keeps_entry_0_when_its_triple_is_the_roots)
{
    eid_chain_node *root = tree.add(nullptr, {9, 2, 1}, 1);
    eid_chain_node *card = tree.add(root, {9, 2, 1}, 3);
    tree.add(card, {8, 3, 2}, 1);
    sch_eid_type start = eid_of({{9, 2, 1}, {9, 2, 1}});
    EXPECT_EQ(0u, tree_of(1, &start));
    expect_eids({eid_of({{9, 2, 1}}), eid_of({{9, 2, 1}, {9, 2, 1}, {8, 3, 2}})});
    // The owner looked at is the root's.
    EXPECT_EQ(0u, tree_of(3, &start));
    EXPECT_EQ(0u, count);
    EXPECT_EQ(nullptr, out);
}

TEST_F(Queries, answer_no_entity_whose_parent_is_not_in_the_tree)
{
    root_eid = nullptr;
    sch_base_entity_type *top = tree.record({3, 1, 0});
    parser_update_eid_chain(top, nullptr);
    parser_update_eid_chain(tree.record({9, 1, 1}), top);
    parser_update_eid_chain(tree.record({9, 1, 2}), tree.record({9, 1, 3}));
    eid_chain_node *built = tree.handle.root = root_eid;
    for (uint32_t owner : {owner_all, 1u}) {
        EXPECT_EQ(0u, by_type(owner, 9));
        EXPECT_EQ((instances{1}), last_instances());
        EXPECT_EQ(0u, by_subtype(owner, 9, 1));
        EXPECT_EQ((instances{1}), last_instances());
        EXPECT_EQ(0u, tree_of(owner, nullptr));
        EXPECT_EQ((instances{0, 1}), last_instances());
    }
    sch_base_entity_type *record = top;
    EXPECT_EQ(1u, inv_parser_get_eid_data(&tree.handle, &record, eid_of({{3, 1, 0}, {9, 1, 2}})));
    EXPECT_EQ(nullptr, record);
    inv_schema_free_eid_chain_list(built);
}

TEST_F(Queries, reach_entities_16_and_17_levels_deep)
{
    grow_chain(tree, 17);
    EXPECT_EQ(0u, by_type(owner_all, 9));
    ASSERT_EQ(17u, count);
    EXPECT_EQ(16, out[15].depth);
    EXPECT_EQ(16, out[16].depth);
    EXPECT_EQ(2, out[16].levels[0].instance);
    sch_base_entity_type *record = nullptr;
    EXPECT_EQ(0u, inv_parser_get_eid_data(&tree.handle, &record, out[15]));
    EXPECT_EQ(&tree.records[15], record);
    EXPECT_EQ(0u, inv_parser_get_eid_data(&tree.handle, &record, out[16]));
    EXPECT_EQ(&tree.records[16], record);
    EXPECT_EQ(0u, by_type(1, 9));
    EXPECT_EQ(17u, count);
    EXPECT_EQ(0u, tree_of(1, nullptr));
    EXPECT_EQ(17u, count);
}

TEST_F(Queries, with_an_eid_of_depth_0_17_or_255_find_nothing)
{
    grow_chain(tree, 20);
    EXPECT_EQ(0u, by_type(owner_all, 9));
    sch_eid_type asked = out[15];
    for (int depth : {0, 17, 255}) {
        SCOPED_TRACE(depth);
        asked.depth = static_cast<uint8_t>(depth);
        sch_base_entity_type *record = &tree.records[0];
        EXPECT_EQ(1u, inv_parser_get_eid_data(&tree.handle, &record, asked));
        EXPECT_EQ(nullptr, record);
        for (uint32_t owner : {owner_all, 1u}) {
            count = 0xABCD;
            EXPECT_EQ(1u, tree_of(owner, &asked));
            EXPECT_EQ(nullptr, out);
            EXPECT_EQ(0xABCDu, count);
        }
        std::vector<sch_eid_type> several(10, asked);
        EXPECT_EQ(0u, parser_get_eid_count_by_owner(several.data(), 10, 1));
    }
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(Queries, a_leafs_answer_is_no_key_for_its_depth_is_0)
{
    grow_owners();
    sch_eid_type leaf = eid_of({{3, 1, 0}, {9, 70, 4}});
    EXPECT_EQ(0u, tree_of(owner_all, &leaf));
    sch_base_entity_type *record = nullptr;
    EXPECT_EQ(1u, inv_parser_get_eid_data(&tree.handle, &record, *out));
}

TEST_F(Queries, on_several_handles_may_follow_one_another)
{
    grow_owners();
    sample other;
    other.add(nullptr, {3, 2, 8});
    sch_eid_type *of_other = nullptr;
    uint16_t narrow = 0;
    EXPECT_EQ(0u, by_type(owner_all, 9));
    EXPECT_EQ(0u, inv_parser_get_eid_by_type(&other.handle, owner_all, 3, &narrow, &of_other));
    EXPECT_EQ(1, narrow);
    EXPECT_EQ(8, of_other->levels[0].instance);
    EXPECT_EQ(7u, count);
    EXPECT_EQ(6, out[6].levels[1].instance);
    inv_parser_free_eid_tree(of_other);
}

TEST_F(Queries, by_type_leave_their_result_in_the_globals)
{
    grow_owners();
    EXPECT_EQ(0u, by_type(owner_all, 9));
    EXPECT_EQ(out, global_eid);
    EXPECT_EQ(7, global_eid_count);
    EXPECT_EQ(0u, by_subtype(owner_all, 9, 70));
    EXPECT_EQ(out, global_eid);
    EXPECT_EQ(7, global_eid_count);
}

TEST_F(Queries, after_a_filtered_one_leave_the_array_of_all_behind_in_the_global)
{
    grow_owners();
    EXPECT_EQ(0u, by_type(4, 9));
    EXPECT_EQ(2u, count);
    EXPECT_EQ(7, global_eid_count);
    EXPECT_NE(nullptr, global_eid);
    EXPECT_NE(out, global_eid);
}

TEST_F(Queries, by_type_answer_up_to_65535_entities_and_fail_like_without_memory_above)
{
    eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
    eid_chain_node *last = nullptr;
    for (uint32_t i = 0; i < 65534; ++i)
        last = tree.add_behind(last, root, {9, 1, static_cast<uint16_t>(i)});
    for (uint32_t total = 65535; total <= 65537; ++total) {
        last = tree.add_behind(last, root, {9, 1, static_cast<uint16_t>(total - 1)});
        for (uint32_t owner : {owner_all, 1u}) {
            trace_recorder::clear();
            bool fits = total == 65535;
            EXPECT_EQ(fits ? 0u : 1u, by_type(owner, 9));
            EXPECT_EQ(fits ? 65535u : 0xABCDu, count);
            EXPECT_EQ(total & 0xFFFF, global_eid_count);
            EXPECT_EQ(fits ? "" : "101 4 0 \"\" \\n\n", trace_recorder::dump());
            EXPECT_EQ(fits ? 65534 : -1, out == nullptr ? -1 : out[65534].levels[1].instance);
            trace_recorder::clear();
            EXPECT_EQ(fits ? 0u : 1u, by_subtype(owner, 9, 1));
            EXPECT_EQ(fits ? "" : "105 4 0 \"\" \\n\n", trace_recorder::dump());
            trace_recorder::clear();
            EXPECT_EQ(fits ? 0u : 1u, by_subtype(owner, 9, 235));
            EXPECT_EQ(fits ? "" : "106 4 0 \"\" \\n\n", trace_recorder::dump());
        }
    }
    // The tree query counts in 32 bits.
    EXPECT_EQ(0u, tree_of(owner_all, nullptr));
    EXPECT_EQ(65538u, count);
    EXPECT_EQ(0, out[65537].levels[1].instance);
    EXPECT_EQ(0u, tree_of(1, nullptr));
    EXPECT_EQ(65538u, count);
}

TEST_F(Queries, an_answer_of_no_records_has_room_for_one)
{
    grow_owners();
    const uint64_t before = counting_memory::heap_octets();
    EXPECT_EQ(0u, by_type(owner_all, 44));
    EXPECT_EQ(0u, count);
    EXPECT_GE(counting_memory::heap_octets() - before, sizeof(sch_eid_type));
}

TEST_F(Queries, releasing_nothing_is_allowed)
{
    inv_parser_free_eid_tree(nullptr);
}

}  // namespace
