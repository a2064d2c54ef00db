#include "load_world.h"

#include "frame/registry.h"
#include "inv_parser/loaders.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

// The loader that a hardware type is served by, named by the id of its first line; 0: none.
struct dispatch_case {
    uint32_t pi_hw_type;
    uint32_t first_generation;
    uint32_t second_generation;
};

constexpr uint32_t chassis = 244, module = 246, pem = 250, shelf = 252, optics = 255, fan_tray = 257;

const dispatch_case dispatch_cases[] = {
    {0, 0, 0},
    {1, chassis, chassis},
    {2, chassis, chassis},
    {3, module, module},
    {4, module, module},
    {5, module, module},
    {6, module, module},
    {7, fan_tray, fan_tray},
    {8, shelf, shelf},
    {9, pem, pem},
    {10, 0, 0},
    {11, module, module},
    {12, optics, optics},
    {13, 0, module},
    {14, module, module},
    {15, module, module},
    {16, module, module},
    {17, module, module},
    {18, module, module},
    {19, module, module},
    {20, chassis, chassis},
    {21, module, module},
    {22, 0, 0},
    {23, 0, 0},
    {255, 0, 0},
    {256 + 3, 0, 0},
    {0x80000003, 0, 0},
    {0xFFFFFFFF, 0, 0},
};

uint32_t loader_that_ran()
{
    uint32_t ran = 0;
    for (const document_case &each : documents()) {
        uint64_t count = count_of(each.start_id);
        EXPECT_LE(count, 1u);
        if (count > 0) {
            EXPECT_EQ(ran, 0u) << "two loaders ran";
            ran = each.start_id;
        }
    }
    return ran;
}

TEST(Open, each_hardware_type_is_served_by_the_loader_of_its_kind)
{
    for (const dispatch_case &each : dispatch_cases) {
        for (const generation &by : generations()) {
            SCOPED_TRACE(by.name + std::string(" generation, type ") + std::to_string(each.pi_hw_type));
            fresh_library library;
            open_file(by, scratch_folder() + "/none.xml", each.pi_hw_type);
            bool is_first = by.entry == 15;
            EXPECT_EQ(loader_that_ran(), is_first ? each.first_generation : each.second_generation);
        }
    }
}

TEST(Open, a_document_of_each_kind_is_opened_by_both_generations)
{
    for (const document_case &each : documents()) {
        for (const generation &by : generations()) {
            SCOPED_TRACE(each.name + std::string(", ") + by.name);
            fresh_library library;
            inv_xml_handle *handle = open_file(by, path_of(each), each.pi_hw_type);
            ASSERT_NE(handle, nullptr);
            EXPECT_EQ(handle->state, INV_HANDLE_PARSED);
            EXPECT_EQ(handle->file_count, 1);
            ASSERT_NE(handle->root, nullptr);
            EXPECT_EQ(handle->root, root_eid);
            EXPECT_EQ(handle->root->parent, nullptr);
            EXPECT_EQ(static_cast<const void *>(handle->root->record), each.record());
            EXPECT_EQ(handle->root->record->xml_instance, 1);
            EXPECT_EQ(handle->module_record != nullptr, each.start_id == module);
            EXPECT_EQ(entity_count(handle), each.entities);
            EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
            EXPECT_EQ(library.live(), 0u);
        }
    }
}

TEST(Open, the_handle_keeps_what_the_first_opener_gave)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(handle->inv_type, 7u);
    EXPECT_EQ(handle->pi_hw_type, 3u);
    EXPECT_EQ(handle->pd_hw_type, 103u);
    EXPECT_EQ(handle->file_name, path_of(module_document()));
}

TEST(Open, type_13_is_a_module_for_the_second_generation_only)
{
    fresh_library library;
    inv_xml_handle *first = open_file(generations()[0], path_of(module_document()), 13);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->state, INV_HANDLE_REGISTERED);
    EXPECT_EQ(first->file_count, 0);
    EXPECT_THAT(frame_ids(), ElementsAre(15, 3, 18, 37, 38));
    EXPECT_EQ(text_of_line(37), "inv_parser_open_xml_file: Invalid pi_hw_type 13 \n");

    inv_xml_handle *second = generations()[1].open(13);
    ASSERT_EQ(second, first);
    EXPECT_EQ(second->state, INV_HANDLE_PARSED);
    EXPECT_EQ(second->file_count, 1);

    // At close it is a module too.
    inv_parser_close_xml_file(second);
    EXPECT_EQ(count_of(118), 0u);
    EXPECT_EQ(library.live(), 0u);
}

TEST(Open, types_that_name_no_kind_take_the_invalid_path_without_a_loader)
{
    for (uint32_t type : {0u, 10u, 22u, 23u, 1000u, 0xFFFFFFFFu}) {
        SCOPED_TRACE(type);
        fresh_library library;
        inv_xml_handle *handle = open_file(generations()[0], path_of(module_document()), type);
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(handle->state, INV_HANDLE_REGISTERED);
        EXPECT_EQ(handle->file_count, 0);
        EXPECT_EQ(handle->root, nullptr);
        EXPECT_THAT(frame_ids(), ElementsAre(15, 3, 18, 37, 38));

        trace_recorder::clear();
        EXPECT_EQ(generations()[1].open(type), nullptr);
        EXPECT_THAT(frame_ids(), ElementsAre(42, 10, 45, 46));
        EXPECT_EQ(xml_file_list_handle, handle);
    }
}

TEST(Open, an_invalid_type_clears_the_tree_that_is_being_queried)
{
    fresh_library library;
    ASSERT_NE(open_document(chassis_document()), nullptr);
    ASSERT_NE(root_eid, nullptr);
    open_file(generations()[0], path_of(module_document()), 10);
    EXPECT_EQ(root_eid, nullptr);
}

TEST(Open, opened_twice_and_closed_once_a_file_stays_parsed_and_the_second_close_releases_it)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        inv_xml_handle *handle = open_file(by, path_of(module_document()), 3);
        ASSERT_NE(handle, nullptr);
        trace_recorder::clear();
        EXPECT_EQ(by.open(3), handle);
        EXPECT_EQ(handle->file_count, 2);
        EXPECT_THAT(frame_ids(), ElementsAre(by.entry, by.entry == 15 ? 4 : 10, by.parsed_already));

        inv_parser_close_xml_file(handle);
        EXPECT_EQ(handle->state, INV_HANDLE_PARSED);
        EXPECT_EQ(handle->file_count, 1);
        EXPECT_EQ(entity_count(handle), module_document().entities);
        EXPECT_EQ(xml_file_list_handle, handle);

        inv_parser_close_xml_file(handle);
        EXPECT_EQ(xml_file_list_handle, nullptr);
        EXPECT_EQ(library.live(), 0u);
    }
}

TEST(Open, a_further_open_counts_whatever_its_hardware_type)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    for (uint32_t type : {1u, 10u, 13u, 22u}) {
        EXPECT_EQ(generations()[0].open(type), handle);
        EXPECT_EQ(generations()[1].open(type), handle);
    }
    EXPECT_EQ(handle->file_count, 9);
    EXPECT_EQ(handle->pi_hw_type, 3u);
    EXPECT_EQ(count_of(18) + count_of(45), 1u);
}

TEST(Open, a_unit_without_a_file_gives_null)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        EXPECT_EQ(by.open(3), nullptr);
        EXPECT_THAT(frame_ids(), ElementsAre(by.entry, by.entry == 15 ? 1 : 7, by.no_handle));
        EXPECT_EQ(xml_file_list_handle, nullptr);
    }
}

TEST(Open, a_null_location_gives_null_under_the_lock)
{
    fresh_library library;
    int calls = failing_lock::lock_calls();
    EXPECT_EQ(inv_parser_open_xml_file_v2(0, nullptr), nullptr);
    EXPECT_EQ(failing_lock::lock_calls(), calls + 1);
    EXPECT_EQ(failing_lock::depth(), 0);
    EXPECT_THAT(frame_ids(), ElementsAre(41));
}

TEST(Open, a_null_product_identifier_is_traced_as_an_empty_text)
{
    fresh_library library;
    fake_platform::set_only_file_name(path_of(module_document()).c_str());
    ASSERT_NE(inv_parser_open_xml_file(1, 3, 4, nullptr), nullptr);
    EXPECT_EQ(text_of_line(15), "inv_parser_open_xml_file: inv_type 1  pi_hw_type 3 pd_hw_type 4 pid \n");
}

TEST(Open, a_product_identifier_that_fills_its_field_is_read_to_the_fields_end_only)
{
    fresh_library library;
    fake_platform::set_only_file_name(path_of(module_document()).c_str());
    struct {
        fru_xml_loc_info loc;
        char behind[16];
    } given = {};
    given.loc.pi_hw_type = 3;
    memset(given.loc.pid, 'A', sizeof given.loc.pid);
    memset(given.behind, 'B', sizeof given.behind - 1);
    inv_xml_handle *handle = inv_parser_open_xml_file_v2(0, &given.loc);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(inv_parser_open_xml_file_v2(0, &given.loc), handle);
    std::string pid = "pid " + std::string(sizeof given.loc.pid, 'A') + " ";
    EXPECT_THAT(text_of_line(42), testing::HasSubstr(pid));
    EXPECT_THAT(text_of_line(44), testing::HasSubstr(pid));
}

TEST(Open, two_hardware_kinds_that_share_a_file_share_the_handle_of_the_first)
{
    for (const document_case &first : documents()) {
        for (const document_case &second : documents()) {
            SCOPED_TRACE(first.name + std::string(", then ") + second.name);
            fresh_library library;
            inv_xml_handle *handle = open_document(first);
            ASSERT_NE(handle, nullptr);
            trace_recorder::clear();
            EXPECT_EQ(generations()[1].open(second.pi_hw_type), handle);
            EXPECT_THAT(frame_ids(), ElementsAre(42, 10, 44)) << "nothing is loaded again";
            EXPECT_EQ(handle->pi_hw_type, first.pi_hw_type);
            EXPECT_EQ(handle->pd_hw_type, 100 + first.pi_hw_type);
            EXPECT_EQ(handle->file_count, 2);
            EXPECT_EQ(entity_count(handle), first.entities);
            inv_parser_close_xml_file(handle);
            inv_parser_close_xml_file(handle);
            EXPECT_EQ(library.live(), 0u);
        }
    }
}

TEST(Open, without_a_local_clock_the_two_lines_that_show_it_are_left_out)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        set_clock(false);
        ASSERT_NE(open_file(by, path_of(module_document()), 3), nullptr);
        EXPECT_THAT(frame_ids(), Not(Contains(by.start)));
        EXPECT_THAT(frame_ids(), Not(Contains(by.end)));
    }
}

TEST(Open, a_failing_lock_gives_null_and_does_nothing)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        failing_lock::fail_next_lock();
        EXPECT_EQ(open_file(by, path_of(module_document()), 3), nullptr);
        EXPECT_THAT(frame_ids(), ElementsAre(by.lock_failed));
        EXPECT_EQ(xml_file_list_handle, nullptr);
    }
    fresh_library library;
    failing_lock::fail_next_lock();
    EXPECT_EQ(inv_parser_open_xml_file_v2(0, nullptr), nullptr);
    EXPECT_THAT(frame_ids(), ElementsAre(40));
}

TEST(Open, a_finished_open_whose_unlock_fails_gives_null)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        failing_lock::fail_next_unlock();
        EXPECT_EQ(open_file(by, path_of(module_document()), 3), nullptr);
        EXPECT_EQ(frame_ids().back(), by.unlock_failed);
        // It is loaded and counted all the same.
        ASSERT_NE(xml_file_list_handle, nullptr);
        EXPECT_EQ(xml_file_list_handle->state, INV_HANDLE_PARSED);
        EXPECT_EQ(xml_file_list_handle->file_count, 1);
    }
    fresh_library library;
    failing_lock::fail_next_unlock();
    EXPECT_EQ(open_file(generations()[0], path_of(module_document()), 10), nullptr);
    EXPECT_THAT(frame_ids(), ElementsAre(15, 3, 18, 37, 38, 39));
}

TEST(Open, an_early_return_whose_unlock_fails_keeps_its_result)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        inv_xml_handle *handle = open_file(by, path_of(module_document()), 3);
        ASSERT_NE(handle, nullptr);
        failing_lock::fail_next_unlock();
        trace_recorder::clear();
        EXPECT_EQ(by.open(3), handle);
        // The line about the parsed file comes after the lock is gone.
        EXPECT_THAT(frame_ids(),
                    ElementsAre(by.entry, by.entry == 15 ? 4 : 10, by.unlock_failed, by.parsed_already));

        failing_lock::fail_next_unlock();
        trace_recorder::clear();
        EXPECT_EQ(open_file(by, scratch_folder() + "/none.xml", 3), nullptr);
        EXPECT_EQ(frame_ids().back(), by.unlock_failed);

        failing_lock::fail_next_unlock();
        fake_platform::set_only_file_name(nullptr);
        trace_recorder::clear();
        EXPECT_EQ(by.open(3), nullptr);
        EXPECT_EQ(frame_ids().back(), by.unlock_failed);
    }
    fresh_library library;
    failing_lock::fail_next_unlock();
    EXPECT_EQ(inv_parser_open_xml_file_v2(0, nullptr), nullptr);
    EXPECT_THAT(frame_ids(), ElementsAre(41, 51));
    failing_lock::fail_next_unlock();
    trace_recorder::clear();
    EXPECT_EQ(open_file(generations()[1], path_of(module_document()), 10), nullptr);
    EXPECT_THAT(frame_ids(), ElementsAre(42, 9, 45, 46, 51));
}

TEST(Open, the_lock_is_free_after_every_way_out)
{
    fresh_library library;
    for (const generation &by : generations()) {
        for (uint32_t type : {1u, 3u, 10u, 13u, 22u}) {
            open_file(by, path_of(module_document()), type);
            EXPECT_EQ(failing_lock::depth(), 0);
            open_file(by, scratch_folder() + "/none.xml", type);
            EXPECT_EQ(failing_lock::depth(), 0);
        }
    }
}

TEST(Open, without_a_trace_channel_files_open_and_close_silently)
{
    fresh_library library;
    trace_recorder::reset();
    for (const document_case &each : documents()) {
        inv_xml_handle *handle = open_document(each);
        ASSERT_NE(handle, nullptr) << each.name;
        inv_parser_close_xml_file(handle);
    }
    EXPECT_TRUE(trace_recorder::lines().empty());
    EXPECT_EQ(library.live(), 0u);
}

}  // namespace
