// Every way from stored arguments to text.
#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <string>

#include "platform/trace_support.h"

namespace
{

template <typename... argument_types>
std::string text_of(const char *kinds, const char *format, argument_types... arguments)
{
    static void *channel = open_channel();
    int32_t result = qtrace_internal(channel, 1, 4, 0, kinds, format, arguments...);
    if (result != 0)
        return "result " + std::to_string(result);
    return read_lines(channel).back().text;
}

TEST(TraceFormat, a_line_without_arguments_is_its_format)
{
    EXPECT_EQ(text_of("", "Parser init. Mutex Lock Failed\n"), "Parser init. Mutex Lock Failed\n");
    EXPECT_EQ(text_of("", ""), "");
    EXPECT_EQ(text_of(nullptr, "no kinds\n"), "no kinds\n");
    EXPECT_EQ(text_of("", "100%% sure\n"), "100% sure\n");
}

TEST(TraceFormat, numbers_look_as_printf_writes_them)
{
    EXPECT_EQ(text_of("ddd", "%d %d %d\n", 0, INT_MIN, INT_MAX), "0 -2147483648 2147483647\n");
    EXPECT_EQ(text_of("dd", "%x %x\n", 0xAB, -1), "ab ffffffff\n");
    EXPECT_EQ(text_of("d", "%u\n", -1), "4294967295\n");
    EXPECT_EQ(text_of("dd", "[%4d][%2d]\n", -7, 12345), "[  -7][12345]\n");
    EXPECT_EQ(text_of("ddd", "[%-4d][%04d][%04x]\n", 7, -7, 10), "[7   ][-007][000a]\n");
    EXPECT_EQ(text_of("DD", "%ld %llx\n", LLONG_MIN, 0xFEDCBA9876543210),
              "-9223372036854775808 fedcba9876543210\n");
}

TEST(TraceFormat, pointers_look_as_printf_writes_them)
{
    void *pointer = reinterpret_cast<void *>(0x7f00deadbeef);
    EXPECT_EQ(text_of("D", "handle %p\n", pointer), "handle 0x7f00deadbeef\n");
    EXPECT_EQ(text_of("D", "handle %p\n", nullptr), "handle (nil)\n");
}

TEST(TraceFormat, texts_are_copied_when_they_are_written)
{
    char text[] = "before";
    static void *channel = open_channel();
    ASSERT_EQ(qtrace_internal(channel, 1, 4, 1, "s", "[%s][%%]\n", text), 0);
    text[0] = 'X';
    EXPECT_EQ(read_lines(channel).back().text, "[before][%]\n");
    EXPECT_EQ(text_of("sss", "[%s][%8s][%-8s]\n", "", "right", "left"), "[][   right][left    ]\n");
    EXPECT_EQ(text_of("s", "%s\n", "%d %s %n"), "%d %s %n\n");
}

TEST(TraceFormat, a_null_text_reads_as_null)
{
    EXPECT_EQ(text_of("sd", "%s %d\n", nullptr, 4), "(null) 4\n");
}

TEST(TraceFormat, a_long_text_is_cut_at_its_limit)
{
    constexpr size_t limit = QTRACE_MAX_TEXT;
    for (size_t length : {limit - 1, limit, limit + 1, limit * 400}) {
        std::string text(length, 'x');
        std::string kept(length < limit ? length : limit, 'x');
        EXPECT_EQ(text_of("sd", "%s|%d\n", text.c_str(), 9), kept + "|9\n");
    }
}

TEST(TraceFormat, all_kinds_mix_in_order)
{
    EXPECT_EQ(text_of("sDdddsddd", "%s: %p %d %d %d %s %d %d %d\n", "open", reinterpret_cast<void *>(16), 1,
                      2, 3, "PID", 4, 5, 6),
              "open: 0x10 1 2 3 PID 4 5 6\n");
}

TEST(TraceFormat, the_format_is_never_believed_against_the_kinds)
{
    EXPECT_EQ(text_of("d", "%s\n", 5), "<?>\n");
    EXPECT_EQ(text_of("s", "%d\n", "text"), "<?>\n");
    EXPECT_EQ(text_of("d", "%p\n", 5), "<?>\n");
    EXPECT_EQ(text_of("D", "%d\n", 5LL), "<?>\n");
    EXPECT_EQ(text_of("d", "%ld\n", 5), "<?>\n");
    EXPECT_EQ(text_of("s", "%ls\n", "text"), "<?>\n");
    EXPECT_EQ(text_of("d", "%d %d %s\n", 5), "5 <?> <?>\n");
    EXPECT_EQ(text_of("dds", "%n %f %s\n", 1, 2, "end"), "<?> <?> end\n");
    EXPECT_EQ(text_of("ds", "%*d %s\n", 1, "end"), "<?>d end\n");
    EXPECT_EQ(text_of("d", "ends with %", 1), "ends with <?>");
    EXPECT_EQ(text_of("d", "ends with %-08l", 1), "ends with <?>");
    EXPECT_EQ(text_of("sd", "one %s\n", "text", 3), "one text\n");
}

TEST(TraceFormat, a_width_beyond_all_reason_is_bounded)
{
    EXPECT_EQ(text_of("d", "%99999999999999999999d", 1).size(), 255u);
    EXPECT_EQ(text_of("d", "%-256dx", 1).size(), 256u);
    EXPECT_EQ(text_of("s", "%300s", std::string(300, 'x').c_str()), std::string(QTRACE_MAX_TEXT, 'x'));
}

TEST(TraceFormat, a_line_longer_than_any_is_cut)
{
    static const std::string format(20000, 'f');
    EXPECT_EQ(text_of("", format.c_str()), std::string(8191, 'f'));
    static const std::string conversions = [] {
        std::string text;
        for (int i = 0; i < 100; ++i)
            text += "%255d";
        return text + "%s";
    }();
    EXPECT_EQ(text_of("d", conversions.c_str(), 1).size(), 255u + 100u * 3u);
}

TEST(TraceFormat, calls_that_cannot_be_stored_are_refused)
{
    static void *channel = open_channel();
    EXPECT_EQ(qtrace_internal(nullptr, 1, 4, 0, "", "text\n"), EINVAL);
    EXPECT_EQ(qtrace_internal(channel, 1, 4, 0, "", nullptr), EINVAL);
    EXPECT_EQ(qtrace_internal(channel, 1, 4, 0, "x", "%d\n", 1), EINVAL);
    EXPECT_EQ(qtrace_internal(channel, 1, 4, 0, "dq", "%d %d\n", 1, 2), EINVAL);
    EXPECT_EQ(qtrace_internal(channel, 1, 4, 0, "ddddddddddddddddd", "", 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
                              1, 1, 1, 1, 1),
              E2BIG);
    EXPECT_EQ(read_lines(channel).size(), 0u);
    EXPECT_EQ(qtrace_internal(channel, 1, 4, 0, "dddddddddddddddd", "%d\n", 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
                              1, 1, 1, 1, 1),
              0);
    EXPECT_EQ(read_lines(channel).size(), 1u);
}

}  // namespace
