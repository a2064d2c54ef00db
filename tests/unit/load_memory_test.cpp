// Memory that opening, querying and closing take: constant over time, and safe when any request fails.
#include "load_world.h"

#include "frame/registry.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;

struct answer {
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    uint32_t status = 1;

    answer() = default;
    answer(const answer &) = delete;
    answer &operator=(const answer &) = delete;
    ~answer()
    {
        inv_parser_free_eid_tree(eids);
    }
};

// Reads what an answer holds, so that the sanitizer sees every octet of it.
void read_all(const answer &given)
{
    if (given.status != 0)
        return;
    uint64_t sum = 0;
    for (uint32_t i = 0; i < given.count; ++i) {
        for (const sch_eid_level_type &level : given.eids[i].levels)
            sum += level.type + level.subtype + level.instance;
    }
    EXPECT_LT(sum, UINT64_MAX);
}

// Asks every query of a file, with and without owner filter.
void ask_everything(inv_xml_handle *handle)
{
    {
        answer root;
        root.status = inv_parser_get_root_eid(handle, &root.eids);
        root.count = 1;
        read_all(root);
        if (root.status == 0) {
            sch_base_entity_type *entity = nullptr;
            uint32_t status = inv_parser_get_eid_data(handle, &entity, *root.eids);
            EXPECT_EQ(status, entity == nullptr ? 1u : 0u);
        }
    }
    for (uint32_t owner : {0u, 1u, 2u, 5u, 6u}) {
        answer tree;
        tree.status = inv_parser_get_eid_tree(handle, owner, nullptr, &tree.eids, &tree.count);
        read_all(tree);
        for (uint8_t type : {uint8_t{8}, uint8_t{9}, uint8_t{11}}) {
            answer by_type, by_subtype, by_any_subtype;
            uint16_t count = 0;
            by_type.status = inv_parser_get_eid_by_type(handle, owner, type, &count, &by_type.eids);
            by_type.count = count;
            read_all(by_type);
            count = 0;
            by_subtype.status =
                inv_parser_get_eid_by_type_subtype(handle, owner, type, 25, &count, &by_subtype.eids);
            by_subtype.count = count;
            read_all(by_subtype);
            count = 0;
            by_any_subtype.status = inv_parser_get_eid_by_type_subtype(handle, owner, type, INV_ANY_SUBTYPE,
                                                                       &count, &by_any_subtype.eids);
            by_any_subtype.count = count;
            read_all(by_any_subtype);
        }
    }
}

// One client's work on a document while requests fail as ordered. A handle that the contract leaves
// allocated (an empty tree, and no module) is checked and given back.
void work_through(const fresh_library &library, const document_case &document)
{
    inv_xml_handle *handle = generations()[0].open(document.pi_hw_type);
    if (handle == nullptr) {
        EXPECT_TRUE(counting_memory::failed());
        return;
    }
    ask_everything(handle);
    bool stays = handle->root == nullptr && &document != &module_document();
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(xml_file_list_handle, nullptr);
    EXPECT_EQ(library.live(), stays ? 1u : 0u);
    if (stays)
        library.release_kept(handle);
}

void sweep(const document_case &document, bool all_after)
{
    uint64_t n = 1;
    for (bool failed = true; failed; ++n) {
        SCOPED_TRACE(document.name + std::string(", request ") + std::to_string(n));
        fresh_library library;
        fake_platform::set_only_file_name(path_of(document).c_str());
        counting_memory::fail_at(n, all_after);
        work_through(library, document);
        failed = counting_memory::failed();

        // A later open of the same file succeeds in full.
        counting_memory::reset();
        inv_xml_handle *handle = generations()[0].open(document.pi_hw_type);
        ASSERT_NE(handle, nullptr);
        ASSERT_EQ(entity_count(handle), document.entities);
        inv_parser_close_xml_file(handle);
        ASSERT_EQ(library.live(), 0u);
        if (testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(n, 20u) << "the sweep met hardly any request";
}

TEST(LoadMemory, any_one_request_may_fail_in_the_life_of_a_file)
{
    for (const document_case &each : documents())
        sweep(each, false);
}

TEST(LoadMemory, all_requests_from_any_one_on_may_fail_in_the_life_of_a_file)
{
    for (const document_case &each : documents())
        sweep(each, true);
}

TEST(LoadMemory, opening_and_closing_a_thousand_times_leaves_memory_where_it_was)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        trace_recorder::reset();
        uint64_t requests = 0;
        for (int i = 0; i < 1000; ++i) {
            counting_memory::reset();
            inv_xml_handle *handle = open_document(each);
            ASSERT_NE(handle, nullptr);
            inv_parser_close_xml_file(handle);
            ASSERT_EQ(library.live(), 0u);
            ASSERT_EQ(counting_memory::mapped_octets(), 0u);
            if (i == 0)
                requests = counting_memory::requests();
            ASSERT_EQ(counting_memory::requests(), requests);
        }
    }
}

TEST(LoadMemory, reopening_beside_an_open_file_leaves_memory_where_it_was)
{
    fresh_library library;
    trace_recorder::reset();
    inv_xml_handle *stays = open_document(module_document());
    ASSERT_NE(stays, nullptr);
    uint64_t live = library.live();
    uint64_t mapped = counting_memory::mapped_octets();
    for (int i = 0; i < 1000; ++i) {
        inv_xml_handle *handle = open_document(chassis_document());
        ASSERT_NE(handle, nullptr);
        ask_everything(handle);
        inv_parser_close_xml_file(handle);
        if (i == 0)
            live = library.live();  // side tables of the list of files may have grown once
        ASSERT_EQ(library.live(), live);
        ASSERT_EQ(counting_memory::mapped_octets(), mapped);
    }
    EXPECT_EQ(entity_count(stays), module_document().entities);
}

}  // namespace
