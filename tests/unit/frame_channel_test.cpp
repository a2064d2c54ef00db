#include "frame/channel.h"

#include "frame/lock.h"
#include "frame/trace.h"
#include "inv_parser/frame.h"
#include "support/failing_lock.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <thread>

namespace
{

class Channel : public testing::Test
{
protected:
    void SetUp() override
    {
        trace_recorder::reset();
        failing_lock::reset();
    }
    void TearDown() override
    {
        EXPECT_EQ(failing_lock::depth(), 0);
        trace_recorder::reset();
        failing_lock::reset();
    }

    // Standard error of one call.
    template <class Call>
    std::string said(Call call)
    {
        testing::internal::CaptureStderr();
        call();
        return testing::internal::GetCapturedStderr();
    }

    int config = 0;
};

template <char Kind>
auto argument_of()
{
    if constexpr (Kind == 's')
        return "text";
    else if constexpr (Kind == 'd')
        return 1;
    else
        return static_cast<const void *>(nullptr);
}

// A line of the catalogue with arguments of its kinds.
template <class Message>
uint32_t write_line()
{
    return []<size_t... Index>(std::index_sequence<Index...>)
    {
        return inv::trace<Message>(argument_of<Message::kinds[Index]>()...);
    }
    (std::make_index_sequence<sizeof(Message::kinds) - 1>());
}

}  // namespace

TEST_F(Channel, before_init_there_is_no_handle)
{
    int untouched = 0;
    void *handle = &untouched;
    EXPECT_EQ(inv_schema_get_qtrace_hdl(&handle), 22u);
    EXPECT_EQ(handle, &untouched);
    EXPECT_EQ(inv_schema_get_qtrace_hdl(nullptr), 22u);
}

TEST_F(Channel, there_is_no_handle_while_either_the_channel_or_its_dump_is_missing)
{
    void *handle = &config;
    inv::frame::inv_schema_trace_handle = this;
    EXPECT_EQ(inv_schema_get_qtrace_hdl(&handle), 22u);
    inv::frame::inv_schema_trace_handle = nullptr;
    inv::frame::trace_ready = 1;
    EXPECT_EQ(inv_schema_get_qtrace_hdl(&handle), 22u);
    EXPECT_EQ(handle, &config);
    inv::frame::inv_schema_trace_handle = this;
    EXPECT_EQ(inv_schema_get_qtrace_hdl(&handle), 0u);
    EXPECT_EQ(handle, this);
}

TEST_F(Channel, before_init_every_trace_site_is_silent)
{
    size_t silent = 0;
#define INV_TRACE_MESSAGE(id, size, kinds, name, text) silent += write_line<inv::msg::name>() == 22 ? 1 : 0;
#include "frame/trace_messages.def"
#undef INV_TRACE_MESSAGE
    EXPECT_EQ(silent, 259u);
    inv_parser_get_xml_handle(0, 1, 2, "no such unit");
    EXPECT_TRUE(trace_recorder::lines().empty());
    EXPECT_TRUE(trace_recorder::open_calls().empty());
}

TEST_F(Channel, init_opens_the_channel_and_applies_the_configuration)
{
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_parser_init(&config), 0u); }), "");
    ASSERT_EQ(trace_recorder::open_calls().size(), 1u);
    const trace_recorder::open_call call = trace_recorder::open_calls()[0];
    EXPECT_EQ(call.name, "inv_schema_handle");
    EXPECT_EQ(call.buffer_size, 1024000u);
    EXPECT_EQ(call.flags, 259u);
    EXPECT_EQ(call.path, "./orvelian/shared_pkg/common/schema/parser/lib_inv_parser");
    EXPECT_EQ(call.zero, 0u);
    EXPECT_EQ(trace_recorder::configurations(), std::vector<void *>{&config});
    EXPECT_EQ(trace_recorder::dump_on_exit_calls(), std::vector<uint32_t>{1});
    EXPECT_EQ(failing_lock::lock_calls(), 1);

    void *handle = nullptr;
    EXPECT_EQ(inv_schema_get_qtrace_hdl(&handle), 0u);
    EXPECT_EQ(handle, inv::frame::inv_schema_trace_handle);
}

TEST_F(Channel, catalogue_identifier_has_32_lower_case_hexadecimal_digits)
{
    inv_parser_init(nullptr);
    ASSERT_EQ(trace_recorder::open_calls().size(), 1u);
    std::string id = trace_recorder::open_calls()[0].catalogue_id;
    EXPECT_EQ(id.size(), 32u);
    EXPECT_EQ(id.find_first_not_of("0123456789abcdef"), std::string::npos);
}

TEST_F(Channel, a_failing_configuration_is_not_reflected_in_init)
{
    trace_recorder::set_enable_result(5);
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_parser_init(&config), 0u); }), "");
    EXPECT_EQ(trace_recorder::configurations().size(), 1u);
}

TEST_F(Channel, a_failing_configuration_is_the_result_of_enabling_it)
{
    trace_recorder::set_enable_result(5);
    EXPECT_EQ(inv_schema_qtrace_enable_config(&config), 5u);
}

TEST_F(Channel, a_second_init_applies_its_configuration_without_reopening)
{
    int second = 0;
    inv_parser_init(&config);
    EXPECT_EQ(inv_parser_init(&second), 0u);
    EXPECT_EQ(trace_recorder::open_calls().size(), 1u);
    EXPECT_EQ(trace_recorder::configurations(), (std::vector<void *>{&config, &second}));
}

TEST_F(Channel, a_channel_that_cannot_be_opened_is_reported_and_tried_again)
{
    trace_recorder::set_open_result(12);
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_parser_init(&config), 0u); }),
              "inv_schema_qtrace_init failed\ninv_schema_qtrace_enable_config failed\n");
    EXPECT_EQ(inv::trace<inv::msg::close_null_handle>(), 22u);
    EXPECT_TRUE(trace_recorder::configurations().empty());
    EXPECT_TRUE(trace_recorder::dump_on_exit_calls().empty());

    trace_recorder::set_open_result(0);
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_parser_init(&config), 0u); }), "");
    EXPECT_EQ(trace_recorder::open_calls().size(), 2u);
    EXPECT_EQ(inv::trace<inv::msg::close_null_handle>(), 0u);
    EXPECT_EQ(trace_recorder::ids(), std::vector<uint32_t>{119});
}

TEST_F(Channel, a_failed_open_is_22_from_both_functions)
{
    trace_recorder::set_open_result(12);
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_schema_qtrace_init(), 22u); }), "inv_schema_qtrace_init failed\n");
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_schema_qtrace_enable_config(&config), 22u); }),
              "inv_schema_qtrace_init failed\ninv_schema_qtrace_enable_config failed\n");
}

TEST_F(Channel, a_failed_reopening_keeps_the_open_channel)
{
    inv_parser_init(nullptr);
    trace_recorder::set_open_result(12);
    EXPECT_EQ(said([&] { EXPECT_EQ(inv_schema_qtrace_init(), 22u); }), "inv_schema_qtrace_init failed\n");
    EXPECT_EQ(inv::trace<inv::msg::close_null_handle>(), 0u);
    EXPECT_EQ(trace_recorder::dump(), "119 4 0 \"\" Called with Invalid Handle\\n\n");
}

TEST_F(Channel, the_console_switch_is_off)
{
    inv_parser_init(nullptr);
    EXPECT_EQ(inv_schema_debug_enable_console(), 0);
}

TEST_F(Channel, the_console_switch_makes_the_frame_functions_echo_their_names)
{
    inv::frame::debug_console = 1;
    EXPECT_EQ(inv_schema_debug_enable_console(), 1);
    EXPECT_EQ(said([&] { inv_schema_qtrace_enable_config(&config); }),
              "\ninv_schema_qtrace_init\n\ninv_schema_qtrace_enable_config \n");
    EXPECT_EQ(said([&] { inv_schema_qtrace_enable_config(&config); }),
              "\ninv_schema_qtrace_enable_config \n");
}

TEST_F(Channel, init_without_the_lock_does_nothing_and_answers_22_untraced)
{
    failing_lock::fail_next_lock();
    EXPECT_EQ(inv_parser_init(&config), 22u);
    EXPECT_TRUE(trace_recorder::open_calls().empty());
    EXPECT_TRUE(trace_recorder::lines().empty());
}

TEST_F(Channel, init_without_the_lock_answers_what_its_trace_line_answers)
{
    trace_recorder::start();
    failing_lock::fail_next_lock();
    EXPECT_EQ(inv_parser_init(&config), 0u);
    trace_recorder::set_write_result(7);
    failing_lock::fail_next_lock();
    EXPECT_EQ(inv_parser_init(&config), 7u);
    EXPECT_EQ(trace_recorder::dump(), "52 4 0 \"\" Parser init. Mutex Lock Failed\\n\n"
                                      "52 4 0 \"\" Parser init. Mutex Lock Failed\\n\n");
    EXPECT_EQ(trace_recorder::configurations().size(), 1u) << "only the one of the start";
}

TEST_F(Channel, init_that_cannot_release_the_lock_has_done_its_work_and_traces_it)
{
    failing_lock::fail_next_unlock();
    trace_recorder::set_write_result(7);
    EXPECT_EQ(inv_parser_init(&config), 7u);
    EXPECT_EQ(trace_recorder::configurations().size(), 1u);
    EXPECT_EQ(trace_recorder::dump(), "53 4 0 \"\" Parser init. Mutex Unlock Failed\\n\n");
}

TEST_F(Channel, init_that_cannot_release_the_lock_nor_trace_answers_22)
{
    failing_lock::fail_next_unlock();
    trace_recorder::set_open_result(12);
    said([&] { EXPECT_EQ(inv_parser_init(&config), 22u); });
}

TEST_F(Channel, inits_from_several_threads_open_one_channel)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([] { EXPECT_EQ(inv_parser_init(nullptr), 0u); });
    for (std::thread &each : threads)
        each.join();
    EXPECT_EQ(trace_recorder::open_calls().size(), 1u);
    EXPECT_EQ(trace_recorder::configurations().size(), 4u);
}

TEST_F(Channel, lock_helpers_trace_the_message_they_were_given)
{
    trace_recorder::start();
    EXPECT_TRUE(inv::lock_or_trace<inv::msg::close_lock_failed>());
    failing_lock::fail_next_unlock();
    EXPECT_FALSE(inv::unlock_or_trace<inv::msg::close_unlock_failed>());
    failing_lock::fail_next_lock();
    EXPECT_FALSE(inv::lock_or_trace<inv::msg::close_lock_failed>());
    EXPECT_EQ(trace_recorder::ids(), (std::vector<uint32_t>{120, 116}));
}
