// How the queries fail: what is traced, and what becomes of the outputs.
#include "inv_parser/queries.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/trace_recorder.h"
#include "unit/tree_samples.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace tree_samples;

namespace
{

constexpr uint32_t owner_all = 6;

// The outputs of one call, and what they held before.
struct outputs {
    static constexpr uint32_t untouched_count = 0xABCD;
    sch_eid_type marker = {};
    sch_base_entity_type record_marker = {};
    sch_eid_type *array = &marker;
    sch_base_entity_type *record = &record_marker;
    uint32_t count = untouched_count;

    bool are_untouched() const
    {
        return array == &marker && record == &record_marker && count == untouched_count;
    }
};

using query = std::function<uint32_t(inv_xml_handle *, uint32_t owner, outputs &)>;

// A query with the lines it writes. Empty: it has no such failure.
struct described_query {
    const char *name;
    query run;
    std::string null_handle;
    std::string no_root;
    std::string lock_failed;
    std::string unlock_failed;
    std::string no_memory;
};

template <class Call>
uint32_t with_narrow_count(outputs &into, const Call &call)
{
    auto narrow = static_cast<uint16_t>(into.count);
    uint32_t result = call(&narrow);
    into.count = narrow;
    return result;
}

const std::vector<described_query> &described_queries()
{
    static const std::string null_handle = "95 4 0 \"\" NULL XML handle passed to get root eid(int). \\n\n";
    static const std::vector<described_query> all = {
        {"by type",
         [](inv_xml_handle *handle, uint32_t owner, outputs &into) {
             return with_narrow_count(into, [&](uint16_t *count) {
                 return inv_parser_get_eid_by_type(handle, owner, 9, count, &into.array);
             });
         },
         null_handle, "100 6 0 \"D\" ROOT EID NULL for the handle PTR\\n\n",
         "99 4 0 \"\" GET EID BY TYPE. Mutex Lock Failed\\n\n",
         "102 4 0 \"\" GET EID BY TYPE. Mutex Unlock Failed\\n\n", "101 4 0 \"\" \\n\n"},
        {"by subtype",
         [](inv_xml_handle *handle, uint32_t owner, outputs &into) {
             return with_narrow_count(into, [&](uint16_t *count) {
                 return inv_parser_get_eid_by_type_subtype(handle, owner, 9, 1, count, &into.array);
             });
         },
         null_handle, "104 6 0 \"D\" ROOT EID NULL for the handle PTR\\n\n",
         "103 4 0 \"\" GET EID BY TYPE/SUBTYPE. Mutex Lock Failed\\n\n",
         "107 4 0 \"\" GET EID BY TYPE/SUBTYPE. Mutex Unlock Failed\\n\n", "105 4 0 \"\" \\n\n"},
        {"by any subtype",
         [](inv_xml_handle *handle, uint32_t owner, outputs &into) {
             return with_narrow_count(into, [&](uint16_t *count) {
                 return inv_parser_get_eid_by_type_subtype(handle, owner, 9, 235, count, &into.array);
             });
         },
         null_handle, "104 6 0 \"D\" ROOT EID NULL for the handle PTR\\n\n",
         "103 4 0 \"\" GET EID BY TYPE/SUBTYPE. Mutex Lock Failed\\n\n",
         "107 4 0 \"\" GET EID BY TYPE/SUBTYPE. Mutex Unlock Failed\\n\n", "106 4 0 \"\" \\n\n"},
        {"data",
         [](inv_xml_handle *handle, uint32_t, outputs &into) {
             return inv_parser_get_eid_data(handle, &into.record, eid_of({{3, 1, 0}}));
         },
         null_handle, "109 6 0 \"D\" ROOT EID NULL for the handle PTR \\n\n",
         // Kept: the unlock failure of the next two has the lock's text.
         "108 4 0 \"\" GET EID DATA. Mutex Lock Failed\\n\n",
         "110 4 0 \"\" GET EID DATA. Mutex Lock Failed\\n\n", ""},
        {"tree",
         [](inv_xml_handle *handle, uint32_t owner, outputs &into) {
             return inv_parser_get_eid_tree(handle, owner, nullptr, &into.array, &into.count);
         },
         null_handle, "112 6 0 \"D\" ROOT EID NULL for the handle PTR \\n\n",
         "111 4 0 \"\" GET EID TREE. Mutex Lock Failed\\n\n",
         "115 4 0 \"\" GET EID TREE. Mutex Lock Failed\\n\n", "114 4 0 \"\" \\n\n"},
    };
    return all;
}

class QueryFailures : public testing::Test
{
protected:
    void SetUp() override
    {
        trace_recorder::start();
        failing_lock::reset();
        counting_memory::reset();
        live_before = counting_memory::live();
        eid_chain_node *root = tree.add(nullptr, {3, 1, 0});
        for (uint16_t i = 0; i < 10; ++i)
            tree.add(root, {9, 1, i});
    }

    void TearDown() override
    {
        counting_memory::reset();
        EXPECT_EQ(0, failing_lock::depth());
        EXPECT_EQ(live_before, counting_memory::live());
        root_eid = nullptr;
        global_eid = nullptr;
    }

    void release(outputs &of)
    {
        if (of.array != &of.marker)
            inv_parser_free_eid_tree(of.array);
    }

    sample tree;
    inv_xml_handle empty = {};
    uint64_t live_before = 0;
};

TEST_F(QueryFailures, a_null_handle_is_traced_twice_and_touches_no_output)
{
    for (const described_query &each : described_queries()) {
        SCOPED_TRACE(each.name);
        trace_recorder::clear();
        root_eid = tree.handle.root;
        outputs into;
        EXPECT_EQ(1u, each.run(nullptr, owner_all, into));
        EXPECT_TRUE(into.are_untouched());
        EXPECT_EQ(each.null_handle + each.no_root, trace_recorder::dump());
        EXPECT_EQ(nullptr, root_eid);
        EXPECT_EQ(0, failing_lock::depth());
    }
}

TEST_F(QueryFailures, a_handle_without_tree_is_traced_and_touches_no_output)
{
    for (const described_query &each : described_queries()) {
        SCOPED_TRACE(each.name);
        trace_recorder::clear();
        outputs into;
        EXPECT_EQ(1u, each.run(&empty, owner_all, into));
        EXPECT_TRUE(into.are_untouched());
        EXPECT_EQ(each.no_root, trace_recorder::dump());
        EXPECT_EQ(0, failing_lock::depth());
    }
}

TEST_F(QueryFailures, a_lock_failure_is_traced_and_nothing_is_done)
{
    for (const described_query &each : described_queries()) {
        SCOPED_TRACE(each.name);
        trace_recorder::clear();
        root_eid = nullptr;
        failing_lock::fail_next_lock();
        outputs into;
        EXPECT_EQ(1u, each.run(&tree.handle, owner_all, into));
        EXPECT_TRUE(into.are_untouched());
        EXPECT_EQ(each.lock_failed, trace_recorder::dump());
        EXPECT_EQ(nullptr, root_eid);
        EXPECT_EQ(0, failing_lock::depth());
    }
}

TEST_F(QueryFailures, an_unlock_failure_is_traced_and_keeps_the_result)
{
    for (const described_query &each : described_queries()) {
        SCOPED_TRACE(each.name);
        for (inv_xml_handle *handle : {&tree.handle, &empty}) {
            trace_recorder::clear();
            failing_lock::fail_next_unlock();
            outputs into;
            bool succeeds = handle == &tree.handle;
            EXPECT_EQ(succeeds ? 0u : 1u, each.run(handle, owner_all, into));
            EXPECT_NE(succeeds, into.are_untouched());
            EXPECT_EQ((succeeds ? "" : each.no_root) + each.unlock_failed, trace_recorder::dump());
            EXPECT_EQ(0, failing_lock::depth());
            release(into);
        }
    }
}

TEST_F(QueryFailures, running_out_of_memory_is_traced_and_touches_no_output)
{
    for (const described_query &each : described_queries()) {
        if (each.no_memory.empty())
            continue;
        SCOPED_TRACE(each.name);
        for (uint32_t owner : {owner_all, 1u}) {
            trace_recorder::clear();
            counting_memory::fail_at(1);
            outputs into;
            EXPECT_EQ(1u, each.run(&tree.handle, owner, into));
            EXPECT_TRUE(into.are_untouched());
            EXPECT_EQ(each.no_memory, trace_recorder::dump());
            EXPECT_EQ(0, failing_lock::depth());
        }
    }
}

// With an owner: the array, the table of paths, the narrowed array.
TEST_F(QueryFailures, running_out_of_memory_in_the_owner_filter_answers_null_and_0)
{
    for (const described_query &each : described_queries()) {
        if (each.no_memory.empty())
            continue;
        SCOPED_TRACE(each.name);
        trace_recorder::clear();
        counting_memory::fail_at(2);
        outputs without_table;
        EXPECT_EQ(0u, each.run(&tree.handle, 1, without_table));
        EXPECT_TRUE(counting_memory::failed());
        EXPECT_LE(10u, without_table.count);
        EXPECT_EQ("", trace_recorder::dump());
        release(without_table);
        counting_memory::fail_at(3);
        outputs without_result;
        EXPECT_EQ(0u, each.run(&tree.handle, 1, without_result));
        EXPECT_EQ(nullptr, without_result.array);
        EXPECT_EQ(0u, without_result.count);
        EXPECT_EQ("13 4 0 \"\" \\n\n", trace_recorder::dump());
        counting_memory::reset();
    }
}

// Kept: of the two answers of the tree query only the array has a line for this.
TEST_F(QueryFailures, the_tree_of_a_leaf_without_memory_is_a_failure_without_a_line_of_its_own)
{
    sch_eid_type leaf = eid_of({{3, 1, 0}, {9, 1, 4}});
    counting_memory::fail_at(1);
    outputs into;
    EXPECT_EQ(1u, inv_parser_get_eid_tree(&tree.handle, owner_all, &leaf, &into.array, &into.count));
    EXPECT_TRUE(into.are_untouched());
    EXPECT_EQ("113 4 0 \"\" No child for this EID \\n\n", trace_recorder::dump());
}

TEST_F(QueryFailures, an_eid_that_names_nothing_clears_the_first_output_without_a_trace)
{
    sch_eid_type unknown[] = {eid_of({{3, 1, 1}}), eid_of({{3, 1, 0}, {9, 1, 10}}), eid_of({}),
                              eid_of({{3, 1, 0}}), eid_of({{3, 1, 0}})};
    unknown[3].depth = 17;
    unknown[4].depth = 255;
    for (sch_eid_type &eid : unknown) {
        SCOPED_TRACE(int{eid.depth});
        outputs into;
        EXPECT_EQ(1u, inv_parser_get_eid_data(&tree.handle, &into.record, eid));
        EXPECT_EQ(nullptr, into.record);
        EXPECT_EQ(1u, inv_parser_get_eid_tree(&tree.handle, owner_all, &eid, &into.array, &into.count));
        EXPECT_EQ(nullptr, into.array);
        EXPECT_EQ(outputs::untouched_count, into.count);
        EXPECT_EQ(0u, parser_get_eid_count_by_owner(&eid, 1, 1));
    }
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(QueryFailures, leave_no_result_in_the_globals_except_that_eid_data_does_not_touch_them)
{
    sch_eid_type earlier = {};
    auto fill_globals = [&] {
        global_eid = &earlier;
        global_eid_count = global_tmp_count = 7;
    };
    for (const described_query &each : described_queries()) {
        SCOPED_TRACE(each.name);
        bool is_reset = std::string(each.name) != "data";
        outputs into;
        fill_globals();
        EXPECT_EQ(1u, each.run(&empty, owner_all, into));
        EXPECT_EQ(is_reset ? nullptr : &earlier, global_eid);
        EXPECT_EQ(is_reset ? 0 : 7, global_eid_count);
        EXPECT_EQ(is_reset ? 0 : 7, global_tmp_count);
        fill_globals();
        failing_lock::fail_next_lock();
        EXPECT_EQ(1u, each.run(&tree.handle, owner_all, into));
        EXPECT_EQ(&earlier, global_eid);
        EXPECT_EQ(7, global_eid_count);
        if (each.no_memory.empty())
            continue;
        counting_memory::fail_at(1);
        EXPECT_EQ(1u, each.run(&tree.handle, owner_all, into));
        EXPECT_EQ(nullptr, global_eid);
    }
    global_eid_count = global_tmp_count = 0;
}

TEST_F(QueryFailures, of_the_root_eid_have_their_own_lines)
{
    outputs into;
    EXPECT_EQ(1u, inv_parser_get_root_eid(nullptr, &into.array));
    EXPECT_EQ(nullptr, into.array);
    into.array = &into.marker;
    EXPECT_EQ(1u, inv_parser_get_root_eid(&empty, &into.array));
    EXPECT_EQ(nullptr, into.array);
    into.array = &into.marker;
    counting_memory::fail_at(1);
    EXPECT_EQ(1u, inv_parser_get_root_eid(&tree.handle, &into.array));
    EXPECT_TRUE(into.are_untouched());
    EXPECT_EQ("96 4 0 \"\" NULL XML handle passed to get root eid. \\n\n"
              "97 4 0 \"\" No EID chain for the given handle. \\n\n"
              "98 4 0 \"\" \\n\n",
              trace_recorder::dump());
}

TEST_F(QueryFailures, the_internal_root_lookup_traces_a_null_handle_only)
{
    parser_get_root_eid_internal(&tree.handle);
    EXPECT_EQ(tree.handle.root, root_eid);
    parser_get_root_eid_internal(&empty);
    EXPECT_EQ(nullptr, root_eid);
    EXPECT_EQ("", trace_recorder::dump());
    root_eid = tree.handle.root;
    parser_get_root_eid_internal(nullptr);
    EXPECT_EQ(nullptr, root_eid);
    EXPECT_EQ("95 4 0 \"\" NULL XML handle passed to get root eid(int). \\n\n", trace_recorder::dump());
}

TEST_F(QueryFailures, null_outputs_are_refused_before_anything_is_done)
{
    outputs into;
    uint16_t narrow = 0;
    inv_xml_handle *handle = &tree.handle;
    EXPECT_EQ(1u, inv_parser_get_root_eid(handle, nullptr));
    EXPECT_EQ(1u, inv_parser_get_eid_by_type(handle, owner_all, 9, nullptr, &into.array));
    EXPECT_EQ(1u, inv_parser_get_eid_by_type(handle, owner_all, 9, &narrow, nullptr));
    EXPECT_EQ(1u, inv_parser_get_eid_by_type_subtype(handle, owner_all, 9, 1, nullptr, &into.array));
    EXPECT_EQ(1u, inv_parser_get_eid_by_type_subtype(handle, owner_all, 9, 1, &narrow, nullptr));
    EXPECT_EQ(1u, inv_parser_get_eid_data(handle, nullptr, eid_of({{3, 1, 0}})));
    EXPECT_EQ(1u, inv_parser_get_eid_tree(handle, owner_all, nullptr, nullptr, &into.count));
    EXPECT_EQ(1u, inv_parser_get_eid_tree(handle, owner_all, nullptr, &into.array, nullptr));
    EXPECT_TRUE(into.are_untouched());
    EXPECT_EQ(0, failing_lock::lock_calls());
    EXPECT_EQ("", trace_recorder::dump());
}

TEST_F(QueryFailures, are_silent_while_no_channel_is_open)
{
    trace_recorder::reset();
    outputs into;
    EXPECT_EQ(1u, inv_parser_get_root_eid(nullptr, &into.array));
    EXPECT_EQ(1u, inv_parser_get_eid_tree(nullptr, owner_all, nullptr, &into.array, &into.count));
    EXPECT_TRUE(trace_recorder::lines().empty());
}

}  // namespace
