#include "frame/registry.h"

#include "frame/file_memory.h"
#include "inv_parser/frame.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace
{

using inv::frame::xml_file_list_handle;

fru_xml_loc_info location(uint32_t pi_hw_type, uint32_t pd_hw_type)
{
    fru_xml_loc_info loc = {};
    loc.pi_hw_type = pi_hw_type;
    loc.pd_hw_type = pd_hw_type;
    strcpy(loc.pid, "PID");
    return loc;
}

// Both generations of the lookup under one shape, with the first id of their messages.
struct generation {
    const char *name;
    inv_xml_handle *(*look_up)(uint32_t pi_hw_type, uint32_t pd_hw_type);
    uint32_t first_id;
};

const generation generations[] = {
    {"v1", [](uint32_t pi, uint32_t pd) { return inv_parser_get_xml_handle(9, pi, pd, "PID"); }, 1},
    {"v2",
     [](uint32_t pi, uint32_t pd) {
         fru_xml_loc_info loc = location(pi, pd);
         return inv_parser_get_xml_handle_v2(9, &loc);
     },
     7},
};

// Empties the registry and gives everything back.
void forget_all()
{
    while (xml_file_list_handle != nullptr) {
        inv_xml_handle *first = xml_file_list_handle;
        inv_schema_update_the_xml_handle_list(first);
        inv::handle_forget(first);
    }
}

// The file of a unit is named after its pd_hw_type.
const char *name_by_pd_type(const fake_platform::lookup &asked)
{
    static std::string name;
    name = "file_" + std::to_string(asked.pd_hw_type) + ".xml";
    return name.c_str();
}

std::vector<std::string> registered()
{
    std::vector<std::string> names;
    for (inv_xml_handle *each = xml_file_list_handle; each != nullptr; each = each->next)
        names.push_back(each->file_name);
    return names;
}

void start_test()
{
    counting_memory::reset();
    trace_recorder::reset();
    trace_recorder::start();
    fake_platform::set_file_name(name_by_pd_type);
}

void end_test(uint64_t live_before)
{
    counting_memory::reset();
    forget_all();
    EXPECT_EQ(counting_memory::live(), live_before);
    fake_platform::set_file_name({});
    trace_recorder::reset();
}

class Registry : public testing::Test
{
protected:
    void SetUp() override
    {
        start_test();
    }
    void TearDown() override
    {
        end_test(live_before);
    }
    uint64_t live_before = counting_memory::live();
};

class RegistryLookup : public testing::TestWithParam<generation>
{
protected:
    void SetUp() override
    {
        start_test();
    }
    void TearDown() override
    {
        end_test(live_before);
    }

    inv_xml_handle *look_up(uint32_t pi, uint32_t pd)
    {
        return GetParam().look_up(pi, pd);
    }
    uint32_t id(uint32_t of_v1)
    {
        return of_v1 - 1 + GetParam().first_id;
    }
    std::string line(uint32_t id_of_v1, const std::string &rest)
    {
        return std::to_string(id(id_of_v1)) + " " + rest + "\\n\n";
    }

    uint64_t live_before = counting_memory::live();
};

INSTANTIATE_TEST_SUITE_P(BothGenerations, RegistryLookup, testing::ValuesIn(generations),
                         [](const auto &info) { return std::string(info.param.name); });

}  // namespace

TEST_P(RegistryLookup, first_file_becomes_the_head_in_state_registered)
{
    inv_xml_handle *handle = look_up(3, 17);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(xml_file_list_handle, handle);
    EXPECT_EQ(handle->next, nullptr);
    EXPECT_EQ(handle->inv_type, 9u);
    EXPECT_EQ(handle->pi_hw_type, 3u);
    EXPECT_EQ(handle->pd_hw_type, 17u);
    EXPECT_EQ(handle->state, 2);
    EXPECT_EQ(handle->file_count, 0);
    EXPECT_STREQ(handle->file_name, "file_17.xml");
    EXPECT_EQ(handle->root, nullptr);
    EXPECT_EQ(handle->module_record, nullptr);
    EXPECT_EQ(trace_recorder::dump(),
              line(3, "8 0 \"Ddd\" XML_HANDLE(1st):(PTR) pi_hw_type 3  pd_hw_type 17"));
}

TEST_P(RegistryLookup, later_files_are_appended_in_order_of_registration)
{
    look_up(3, 1);
    look_up(3, 2);
    trace_recorder::clear();
    inv_xml_handle *third = look_up(4, 3);
    EXPECT_EQ(registered(), (std::vector<std::string>{"file_1.xml", "file_2.xml", "file_3.xml"}));
    EXPECT_EQ(third->state, 2);
    EXPECT_EQ(trace_recorder::dump(), line(6, "8 0 \"Ddd\" XML_HANDLE:(PTR) pi_hw_type 4  pd_hw_type 3"));
}

TEST_P(RegistryLookup, the_traced_pointer_is_the_handle)
{
    inv_xml_handle *handle = look_up(3, 17);
    char text[64];
    snprintf(text, sizeof text, "(%p)", static_cast<void *>(handle));
    EXPECT_NE(trace_recorder::lines().at(0).text.find(text), std::string::npos);
}

TEST_P(RegistryLookup, of_a_known_file_returns_the_same_handle)
{
    inv_xml_handle *handle = look_up(3, 17);
    trace_recorder::clear();
    EXPECT_EQ(look_up(3, 17), handle);
    EXPECT_EQ(trace_recorder::dump(), line(4, "4 1 \"s\" file_17.xml: Alreary Parsed"));
}

TEST_P(RegistryLookup, two_units_of_one_file_share_the_handle_of_the_first)
{
    fake_platform::set_only_file_name("shared.xml");
    inv_xml_handle *handle = look_up(3, 17);
    EXPECT_EQ(look_up(7, 18), handle);
    EXPECT_EQ(handle->pi_hw_type, 3u);
    EXPECT_EQ(handle->pd_hw_type, 17u);
    EXPECT_EQ(registered().size(), 1u);
}

TEST_P(RegistryLookup, says_already_parsed_also_of_a_file_whose_load_failed)
{
    inv_xml_handle *handle = look_up(3, 17);
    ASSERT_EQ(handle->state, INV_HANDLE_REGISTERED);
    look_up(3, 17);
    EXPECT_EQ(trace_recorder::ids(), (std::vector<uint32_t>{id(3), id(4)}));
    EXPECT_EQ(handle->state, INV_HANDLE_REGISTERED);
}

TEST_P(RegistryLookup, compares_names_exactly)
{
    fake_platform::set_only_file_name("card.xml");
    inv_xml_handle *lower = look_up(3, 17);
    fake_platform::set_only_file_name("Card.xml");
    inv_xml_handle *upper = look_up(3, 17);
    fake_platform::set_only_file_name("card.xml2");
    inv_xml_handle *longer = look_up(3, 17);
    EXPECT_NE(lower, upper);
    EXPECT_NE(lower, longer);
    EXPECT_EQ(registered(), (std::vector<std::string>{"card.xml", "Card.xml", "card.xml2"}));
}

TEST_P(RegistryLookup, without_a_file_is_null)
{
    fake_platform::set_only_file_name(nullptr);
    EXPECT_EQ(look_up(3, 17), nullptr);
    EXPECT_TRUE(registered().empty());
    EXPECT_EQ(counting_memory::live(), live_before);
    EXPECT_EQ(trace_recorder::dump(), line(1, "6 0 \"dd\" No XML for pi_hw_type 3  pd_hw_type 17"));
}

TEST_P(RegistryLookup, hardware_types_are_traced_as_signed_words)
{
    fake_platform::set_only_file_name(nullptr);
    look_up(0xFFFFFFFFu, 0x80000000u);
    EXPECT_EQ(trace_recorder::dump(), line(1, "6 0 \"dd\" No XML for pi_hw_type -1  pd_hw_type -2147483648"));
}

TEST_P(RegistryLookup, takes_a_name_of_255_characters_whole)
{
    std::string name(255, 'n');
    fake_platform::set_only_file_name(name.c_str());
    inv_xml_handle *handle = look_up(3, 17);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(inv_parser_get_file_name(handle), name);
    EXPECT_EQ(look_up(3, 17), handle);
    EXPECT_EQ(handle->root, nullptr) << "the field behind the name";
}

TEST_P(RegistryLookup, refuses_a_name_of_256_characters_like_no_file)
{
    std::string name(256, 'n');
    fake_platform::set_only_file_name(name.c_str());
    EXPECT_EQ(look_up(3, 17), nullptr);
    EXPECT_EQ(trace_recorder::ids(), std::vector<uint32_t>{id(1)});
    fake_platform::set_only_file_name(std::string(70000, 'n').c_str());
    EXPECT_EQ(look_up(3, 17), nullptr);
    EXPECT_TRUE(registered().empty());
}

TEST_P(RegistryLookup, out_of_memory_for_the_first_file_is_null_and_leaves_nothing)
{
    uint64_t wanted = 0;
    for (;;) {
        trace_recorder::clear();
        counting_memory::fail_at(++wanted);
        inv_xml_handle *handle = look_up(3, 17);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        if (!failed) {
            EXPECT_NE(handle, nullptr);
            break;
        }
        EXPECT_EQ(handle, nullptr) << wanted;
        EXPECT_TRUE(registered().empty());
        EXPECT_EQ(counting_memory::live(), live_before);
        EXPECT_EQ(trace_recorder::dump(),
                  line(2, "4 1 \"s\" first xml_file_list_handle malloc failed: file_17.xml"));
    }
    EXPECT_GT(wanted, 1u);
}

TEST_P(RegistryLookup, out_of_memory_for_a_later_file_is_null_and_keeps_the_list)
{
    look_up(3, 1);
    look_up(3, 2);
    uint64_t live = counting_memory::live();
    uint64_t wanted = 0;
    for (;;) {
        trace_recorder::clear();
        counting_memory::fail_at(++wanted);
        inv_xml_handle *handle = look_up(3, 17);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        if (!failed)
            break;
        EXPECT_EQ(handle, nullptr) << wanted;
        EXPECT_EQ(registered(), (std::vector<std::string>{"file_1.xml", "file_2.xml"}));
        EXPECT_EQ(counting_memory::live(), live);
        EXPECT_EQ(trace_recorder::dump(),
                  line(5, "4 1 \"s\" xml_file_list_handle malloc failed: file_17.xml"));
    }
    EXPECT_GT(wanted, 1u);
}

TEST_P(RegistryLookup, every_handle_has_its_private_record)
{
    for (uint32_t pd = 0; pd < 100; ++pd)
        inv::remember_loaded_kind(look_up(3, pd), static_cast<uint8_t>(pd + 1), nullptr);
    for (uint32_t pd = 0; pd < 100; ++pd)
        EXPECT_EQ(inv::loaded_kind(look_up(3, pd)), pd + 1);
}

TEST_F(Registry, both_generations_know_the_same_files)
{
    inv_xml_handle *first = generations[0].look_up(3, 17);
    trace_recorder::clear();
    EXPECT_EQ(generations[1].look_up(3, 17), first);
    EXPECT_EQ(trace_recorder::ids(), std::vector<uint32_t>{10});
}

TEST_F(Registry, arguments_reach_the_platform_unchanged)
{
    std::vector<fake_platform::lookup> asked;
    fake_platform::set_file_name([&](const fake_platform::lookup &each) {
        asked.push_back(each);
        return nullptr;
    });
    const char *pid = "LC-48";
    inv_parser_get_xml_handle(1, 0xFFFFFFFFu, 17, pid);
    fru_xml_loc_info loc = location(4, 5);
    inv_parser_get_xml_handle_v2(1, &loc);
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[0].pi_hw_type, 0xFFFFFFFFu);
    EXPECT_EQ(asked[0].pd_hw_type, 17u);
    EXPECT_EQ(asked[0].pid, pid);
    EXPECT_EQ(asked[1].loc, &loc);
}

TEST_F(Registry, a_null_pid_is_the_platforms_to_judge)
{
    EXPECT_NE(inv_parser_get_xml_handle(0, 3, 17, nullptr), nullptr);
}

TEST_F(Registry, a_null_location_is_null_without_a_line)
{
    EXPECT_EQ(inv_parser_get_xml_handle_v2(0, nullptr), nullptr);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

TEST_F(Registry, unlinking_the_head_is_silent)
{
    inv_xml_handle *first = generations[0].look_up(3, 1);
    generations[0].look_up(3, 2);
    trace_recorder::clear();
    inv_schema_update_the_xml_handle_list(first);
    EXPECT_EQ(registered(), std::vector<std::string>{"file_2.xml"});
    EXPECT_TRUE(trace_recorder::lines().empty());
    inv::handle_forget(first);
}

TEST_F(Registry, unlinking_middle_and_tail_is_traced)
{
    std::vector<inv_xml_handle *> handles;
    for (uint32_t pd = 1; pd <= 4; ++pd)
        handles.push_back(generations[0].look_up(3, pd));
    trace_recorder::clear();
    inv_schema_update_the_xml_handle_list(handles[1]);
    EXPECT_EQ(registered(), (std::vector<std::string>{"file_1.xml", "file_3.xml", "file_4.xml"}));
    inv_schema_update_the_xml_handle_list(handles[3]);
    EXPECT_EQ(registered(), (std::vector<std::string>{"file_1.xml", "file_3.xml"}));
    EXPECT_EQ(trace_recorder::dump(), "0 4 1 \"s\" Closed the file file_2.xml\\n\n"
                                      "0 4 1 \"s\" Closed the file file_4.xml\\n\n");
    inv::handle_forget(handles[1]);
    inv::handle_forget(handles[3]);
    generations[0].look_up(3, 5);
    EXPECT_EQ(registered(), (std::vector<std::string>{"file_1.xml", "file_3.xml", "file_5.xml"}));
}

TEST_F(Registry, unlinking_goes_by_the_file_name)
{
    generations[0].look_up(3, 1);
    inv_xml_handle *second = generations[0].look_up(3, 2);
    inv_xml_handle twin = {};
    strcpy(twin.file_name, "file_2.xml");
    inv_schema_update_the_xml_handle_list(&twin);
    EXPECT_EQ(registered(), std::vector<std::string>{"file_1.xml"});
    inv::handle_forget(second);
}

TEST_F(Registry, unlinking_what_is_not_there_does_nothing)
{
    inv_xml_handle stranger = {};
    strcpy(stranger.file_name, "stranger.xml");
    inv_schema_update_the_xml_handle_list(&stranger);
    generations[0].look_up(3, 1);
    generations[0].look_up(3, 2);
    trace_recorder::clear();
    inv_schema_update_the_xml_handle_list(&stranger);
    inv_schema_update_the_xml_handle_list(nullptr);
    EXPECT_EQ(registered().size(), 2u);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

TEST_F(Registry, unlinking_reads_no_further_than_the_name_field)
{
    generations[0].look_up(3, 1);
    std::vector<inv_xml_handle> unterminated(1);
    memset(&unterminated[0], 'x', sizeof(inv_xml_handle));
    inv_schema_update_the_xml_handle_list(&unterminated[0]);
    EXPECT_EQ(registered().size(), 1u);
}

TEST_F(Registry, the_file_name_of_null_is_an_empty_text)
{
    EXPECT_STREQ(inv_parser_get_file_name(nullptr), "");
    inv_xml_handle *handle = generations[0].look_up(3, 17);
    EXPECT_EQ(inv_parser_get_file_name(handle), handle->file_name);
}
