#include "load_world.h"

#include "frame/registry.h"
#include "inv_parser/tree_internal.h"
#include "support/counting_memory.h"
#include "support/failing_lock.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"
#include "tree/current_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace load_world;
using inv::frame::xml_file_list_handle;
using testing::ElementsAre;

// Opens the document with a handle that was registered under another hardware type.
inv_xml_handle *open_registered_as(uint32_t pi_hw_type, const document_case &document)
{
    fake_platform::set_only_file_name(path_of(document).c_str());
    inv_parser_get_xml_handle(0, pi_hw_type, 0, "");
    return generations()[0].open(document.pi_hw_type);
}

TEST(Close, a_null_handle_is_traced_and_gives_0)
{
    fresh_library library;
    EXPECT_EQ(inv_parser_close_xml_file(nullptr), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(119));
    EXPECT_EQ(text_of_line(119), "Called with Invalid Handle\n");
}

TEST(Close, the_count_is_traced_before_it_falls)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    generations()[0].open(3);
    trace_recorder::clear();
    EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(117));
    EXPECT_EQ(text_of_line(117),
              "inv_parser_close_xml_file: inv_type 7, pi_hw_type 3, pd_hw_type 103 count 2\n");
}

TEST(Close, the_last_close_gives_everything_of_a_file_back)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        inv_xml_handle *handle = open_document(each);
        ASSERT_NE(handle, nullptr);
        EXPECT_GT(counting_memory::mapped_octets(), 0u);
        trace_recorder::clear();
        EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
        EXPECT_THAT(frame_ids(), ElementsAre(117));
        EXPECT_EQ(library.live(), 0u);
        EXPECT_EQ(counting_memory::mapped_octets(), 0u);
        EXPECT_EQ(xml_file_list_handle, nullptr);
        EXPECT_EQ(root_eid, nullptr);
    }
}

TEST(Close, a_file_that_is_not_the_first_is_named_when_it_leaves_the_list)
{
    fresh_library library;
    inv_xml_handle *first = open_document(module_document());
    inv_xml_handle *second = open_document(chassis_document());
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    trace_recorder::clear();
    inv_parser_close_xml_file(second);
    EXPECT_THAT(frame_ids(), ElementsAre(117, 0));
    EXPECT_EQ(text_of_line(0), "Closed the file " + path_of(chassis_document()) + "\n");
    EXPECT_EQ(entity_count(first), module_document().entities);
    trace_recorder::clear();
    inv_parser_close_xml_file(first);
    EXPECT_THAT(frame_ids(), ElementsAre(117));
}

TEST(Close, a_handle_whose_load_failed_stays_known_and_its_count_wraps)
{
    for (const generation &by : generations()) {
        SCOPED_TRACE(by.name);
        fresh_library library;
        std::string path = scratch_file("retried.xml", "<module");
        EXPECT_EQ(open_file(by, path, 3), nullptr);
        inv_xml_handle *handle = xml_file_list_handle;
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(handle->state, INV_HANDLE_REGISTERED);
        EXPECT_EQ(handle->file_count, 0);

        EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
        EXPECT_EQ(handle->file_count, 65535);
        EXPECT_EQ(xml_file_list_handle, handle);

        // Kept: the next open that succeeds counts it to 0.
        scratch_file("retried.xml", text_of(path_of(module_document())));
        EXPECT_EQ(by.open(3), handle);
        EXPECT_EQ(handle->state, INV_HANDLE_PARSED);
        EXPECT_EQ(handle->file_count, 0);

        EXPECT_EQ(by.open(3), handle);
        EXPECT_EQ(handle->file_count, 1);
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(library.live(), 0u);
    }
}

TEST(Close, a_never_loaded_handle_is_released_when_its_count_has_wrapped_all_the_way)
{
    for (const document_case &each : documents()) {
        SCOPED_TRACE(each.name);
        fresh_library library;
        trace_recorder::reset();
        fake_platform::set_only_file_name("unread.xml");
        inv_xml_handle *handle = inv_parser_get_xml_handle(0, each.pi_hw_type, 0, "");
        ASSERT_NE(handle, nullptr);
        handle->file_count = 1;
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(xml_file_list_handle, nullptr);
        bool is_module = &each == &module_document();
        EXPECT_EQ(library.live(), is_module ? 0u : 1u);
        if (!is_module)
            library.release_kept(handle);
    }
}

TEST(Close, a_failing_lock_gives_0_and_does_nothing)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    trace_recorder::clear();
    failing_lock::fail_next_lock();
    EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(116));
    EXPECT_EQ(handle->file_count, 1);
    EXPECT_EQ(xml_file_list_handle, handle);
}

TEST(Close, a_failing_unlock_is_traced_after_the_work)
{
    fresh_library library;
    inv_xml_handle *handle = open_document(module_document());
    ASSERT_NE(handle, nullptr);
    trace_recorder::clear();
    failing_lock::fail_next_unlock();
    EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(117, 120));
    EXPECT_EQ(library.live(), 0u);

    trace_recorder::clear();
    failing_lock::fail_next_unlock();
    EXPECT_EQ(inv_parser_close_xml_file(nullptr), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(119, 120));
}

TEST(Close, a_handle_is_released_by_the_kind_that_was_loaded_not_by_its_hardware_type)
{
    for (const document_case &registered_as : documents()) {
        for (const document_case &loaded : documents()) {
            SCOPED_TRACE(registered_as.name + std::string(" loaded as ") + loaded.name);
            fresh_library library;
            inv_xml_handle *handle = open_registered_as(registered_as.pi_hw_type, loaded);
            ASSERT_NE(handle, nullptr);
            EXPECT_EQ(handle->pi_hw_type, registered_as.pi_hw_type);
            EXPECT_EQ(entity_count(handle), loaded.entities);
            inv_parser_close_xml_file(handle);
            EXPECT_EQ(count_of(118), 0u);
            EXPECT_EQ(library.live(), 0u);
        }
    }
}

TEST(Close, a_handle_with_an_invalid_type_is_kept_without_its_files_memory)
{
    for (const document_case &loaded : documents()) {
        SCOPED_TRACE(loaded.name);
        fresh_library library;
        inv_xml_handle *handle = open_registered_as(10, loaded);
        ASSERT_NE(handle, nullptr);
        EXPECT_EQ(handle->pi_hw_type, 10u);
        EXPECT_EQ(entity_count(handle), loaded.entities);
        trace_recorder::clear();
        inv_parser_close_xml_file(handle);
        EXPECT_THAT(frame_ids(), ElementsAre(117, 118));
        EXPECT_EQ(text_of_line(118), "Inv_parser close xml file. Received invalid pi_hw_type 10\n");
        EXPECT_EQ(counting_memory::mapped_octets(), 0u);
        EXPECT_EQ(library.live(), 1u);
        library.release_kept(handle);
    }
}

TEST(Close, a_closed_file_is_no_longer_the_one_that_direct_builds_are_filed_under)
{
    fresh_library library;
    inv_xml_handle *closed = open_document(module_document());
    inv_xml_handle *other = open_document(chassis_document());
    ASSERT_NE(closed, nullptr);
    parser_set_inv_file_instance(closed);
    inv_parser_close_xml_file(closed);
    EXPECT_EQ(inv::current_file(), nullptr);
    parser_set_inv_file_instance(other);
    inv_xml_handle *third = open_file(generations()[0], path_of(module_document()), 3);
    parser_set_inv_file_instance(other);
    inv_parser_close_xml_file(third);
    EXPECT_EQ(inv::current_file(), other) << "another file stays";
    parser_set_inv_file_instance(nullptr);
}

TEST(Close, a_handle_put_together_by_hand_goes_by_its_hardware_type)
{
    fresh_library library;
    auto *handle = static_cast<inv_xml_handle *>(calloc(1, sizeof(inv_xml_handle)));
    ASSERT_NE(handle, nullptr);
    handle->file_count = 1;
    handle->pi_hw_type = 22;
    EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(117, 118));
    handle->file_count = 1;
    handle->pi_hw_type = 1;
    trace_recorder::clear();
    EXPECT_EQ(inv_parser_close_xml_file(handle), 0u);
    EXPECT_THAT(frame_ids(), ElementsAre(117));
    free(handle);
}

}  // namespace
