#include "frame/trace.h"

#include "frame/channel.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace inv;

struct catalogue_row {
    uint32_t id;
    uint32_t size_word;
    std::string kinds;
    std::string name;
    std::string text;
    uint32_t has_string;
    uint32_t type_id;
};

const std::vector<catalogue_row> catalogue = {
#define INV_TRACE_MESSAGE(number, size, argument_kinds, name, text)                                          \
    {number, size, argument_kinds, #name, text, msg::name::has_string, msg::name::id},
#include "frame/trace_messages.def"
#undef INV_TRACE_MESSAGE
};

// The argument kinds that a format's conversions take.
std::string kinds_of(const std::string &format)
{
    std::string kinds;
    for (size_t at = format.find('%'); at != std::string::npos; at = format.find('%', at + 1)) {
        char conversion = format[format.find_first_not_of("0123456789", at + 1)];
        kinds += conversion == 's' ? 's' : conversion == 'p' ? 'D' : 'd';
    }
    return kinds;
}

template <class Message, class... Arguments>
concept can_trace = requires(Arguments... arguments)
{
    inv::trace<Message>(arguments...);
};

class Trace : public testing::Test
{
protected:
    void SetUp() override
    {
        trace_recorder::reset();
    }
    void TearDown() override
    {
        trace_recorder::reset();
    }
};

}  // namespace

TEST(TraceCatalogue, has_every_id_from_0_to_258_once_and_in_order)
{
    ASSERT_EQ(catalogue.size(), 259u);
    for (uint32_t id = 0; id < catalogue.size(); ++id) {
        EXPECT_EQ(catalogue[id].id, id);
        EXPECT_EQ(catalogue[id].type_id, id) << catalogue[id].name;
    }
}

TEST(TraceCatalogue, size_word_grows_with_the_numeric_arguments)
{
    for (const catalogue_row &row : catalogue) {
        uint32_t words = 0;
        for (char kind : row.kinds)
            words += kind == 'd' ? 1 : kind == 'D' ? 2 : 0;
        EXPECT_EQ(row.size_word, 4 + words + (words >= 6 ? 1 : 0)) << row.id;
    }
}

TEST(TraceCatalogue, has_string_says_whether_a_text_is_among_the_arguments)
{
    for (const catalogue_row &row : catalogue)
        EXPECT_EQ(row.has_string, row.kinds.find('s') != std::string::npos ? 1u : 0u) << row.id;
}

TEST(TraceCatalogue, formats_agree_with_their_kinds_and_end_with_a_newline)
{
    for (const catalogue_row &row : catalogue) {
        EXPECT_EQ(kinds_of(row.text), row.kinds) << row.id;
        EXPECT_EQ(row.text.back(), '\n') << row.id;
    }
}

TEST(TraceCatalogue, keeps_the_known_misspellings_and_double_blanks)
{
    EXPECT_EQ(catalogue[4].text, "%s: Alreary Parsed\n");
    EXPECT_EQ(catalogue[110].text, catalogue[108].text);
    EXPECT_EQ(catalogue[115].text, catalogue[111].text);
    EXPECT_EQ(catalogue[131].text, "Invalid I2cDestype pointer\n");
    EXPECT_EQ(catalogue[161].text, "Invalid BaseEntityType  pointer\n");
    EXPECT_EQ(catalogue[208].text, "Invalid  BackPlantType pointer\n");
    EXPECT_EQ(catalogue[243].text, "Malloc failure while retrieveing base module data\n");
}

TEST(TraceRules, a_disagreeing_format_is_found)
{
    EXPECT_TRUE(trace_rules::agrees("a %s b %4d c 0x%x %p\n", "sddD"));
    EXPECT_FALSE(trace_rules::agrees("%d\n", "s"));
    EXPECT_FALSE(trace_rules::agrees("%d\n", ""));
    EXPECT_FALSE(trace_rules::agrees("%d\n", "dd"));
    EXPECT_FALSE(trace_rules::agrees("%d", "d"));
    EXPECT_FALSE(trace_rules::agrees("%lu\n", "D"));
    EXPECT_FALSE(trace_rules::agrees("", ""));
    EXPECT_FALSE(trace_rules::agrees("100%", ""));
}

TEST(TraceRules, a_wrong_number_or_kind_of_arguments_does_not_compile)
{
    using one_text = msg::file_closed;
    using two_words = msg::lookup_no_file;
    using one_pointer = msg::by_type_no_root;
    EXPECT_TRUE((can_trace<one_text, const char *>));
    EXPECT_TRUE((can_trace<one_text, char *>));
    EXPECT_FALSE((can_trace<one_text>));
    EXPECT_FALSE((can_trace<one_text, int>));
    EXPECT_FALSE((can_trace<one_text, std::string>));
    EXPECT_FALSE((can_trace<one_text, const char *, int>));
    EXPECT_TRUE((can_trace<two_words, uint32_t, uint8_t>));
    EXPECT_TRUE((can_trace<two_words, bool, int16_t>));
    EXPECT_FALSE((can_trace<two_words, uint32_t>));
    EXPECT_FALSE((can_trace<two_words, uint32_t, uint64_t>));
    EXPECT_FALSE((can_trace<two_words, uint32_t, double>));
    EXPECT_FALSE((can_trace<two_words, uint32_t, const char *>));
    EXPECT_TRUE((can_trace<one_pointer, const void *>));
    EXPECT_TRUE((can_trace<one_pointer, uint64_t>));
    EXPECT_FALSE((can_trace<one_pointer, int>));
    EXPECT_FALSE((can_trace<one_pointer, double>));
}

TEST_F(Trace, is_silent_and_answers_22_before_the_channel_is_open)
{
    EXPECT_EQ(trace<msg::file_closed>("a.xml"), 22u);
    EXPECT_TRUE(trace_recorder::lines().empty());
    EXPECT_TRUE(trace_recorder::open_calls().empty()) << "a trace site never opens the channel";
}

TEST_F(Trace, hands_id_size_word_kinds_and_arguments_to_the_trace_library)
{
    trace_recorder::start();
    int object = 0;
    char pointer[32];
    snprintf(pointer, sizeof pointer, "%p", static_cast<void *>(&object));
    EXPECT_EQ((trace<msg::open_v2_parsed_already>("f", &object, uint8_t{1}, 2u, 0xFFFFFFFFu, "PID", 4, 5,
                                                  uint16_t{6})),
              0u);
    std::vector<trace_recorder::line> expected = {
        {44, 13, 1, "sDdddsddd",
         std::string("f: File parsed already. xml_handle(") + pointer +
             "), inv_type 1  pi_hw_type 2  pd_hw_type -1 pid PID hw_maj_ver 4 hw_min_ver 5 file_count 6\n"}};
    EXPECT_EQ(trace_recorder::lines(), expected);
}

TEST_F(Trace, takes_sixteen_words_of_arguments)
{
    trace_recorder::start();
    trace<msg::base_entity_filled>("n", "o", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
    ASSERT_EQ(trace_recorder::lines().size(), 1u);
    EXPECT_EQ(trace_recorder::lines()[0].size_word, 16u);
    EXPECT_EQ(trace_recorder::lines()[0].text,
              "\nName: n  OID: o\nType:  1  Subtype:    2  instance:    3 xml_instance:    4\n"
              "Admin:  5 Oper:    6  is_fru:    7 oir:    8 is_primary:    9\nRep_scope: 10 Owner:   11\n");
}

TEST_F(Trace, a_null_text_is_written_empty)
{
    trace_recorder::start();
    const char *none = nullptr;
    trace<msg::file_closed>(none);
    ASSERT_EQ(trace_recorder::lines().size(), 1u);
    EXPECT_EQ(trace_recorder::lines()[0].text, "Closed the file \n");
}

TEST_F(Trace, a_wide_integer_passes_whole_where_a_pointer_may)
{
    trace_recorder::start();
    trace<msg::by_type_no_root>(UINT64_C(0x123456789abc));
    ASSERT_EQ(trace_recorder::lines().size(), 1u);
    EXPECT_EQ(trace_recorder::lines()[0].text, "ROOT EID NULL for the handle 0x123456789abc\n");
}

TEST_F(Trace, answers_what_the_trace_library_answers)
{
    trace_recorder::start();
    trace_recorder::set_write_result(28);
    EXPECT_EQ(trace<msg::close_null_handle>(), 28u);
}

TEST_F(Trace, without_a_handle_an_open_channel_is_not_written_to)
{
    trace_recorder::start();
    void *channel = std::exchange(frame::inv_schema_trace_handle, nullptr);
    EXPECT_EQ(trace<msg::file_closed>("a.xml"), 22u);
    EXPECT_TRUE(trace_recorder::lines().empty());
    frame::inv_schema_trace_handle = channel;
    EXPECT_EQ(trace<msg::file_closed>("a.xml"), 0u);
    EXPECT_EQ(trace_recorder::lines().size(), 1u);
}
