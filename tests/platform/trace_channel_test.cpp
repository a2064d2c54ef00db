#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>

#include "platform/trace_support.h"
#include "support/counting_memory.h"

namespace
{

std::string scratch_path(const char *name)
{
    return testing::TempDir() + "trace_channel_" + std::to_string(getpid()) + "_" + name;
}

std::string read_file(const std::string &path)
{
    std::ifstream stream(path, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

qtrace_configuration configuration(uint32_t live, const char *dump_path)
{
    return {.size = sizeof(qtrace_configuration), .live = live, .dump_path = dump_path};
}

TEST(TraceChannel, opening_refuses_a_null_handle_and_too_small_a_ring)
{
    void *channel = nullptr;
    EXPECT_EQ(qtrace_open_internal(nullptr, "n", 1000, 0, "p", "c", 0), EINVAL);
    EXPECT_EQ(qtrace_open_internal(&channel, "n", 0, 0, "p", "c", 0), EINVAL);
    EXPECT_EQ(qtrace_open_internal(&channel, "n", QTRACE_MIN_BUFFER - 1, 0, "p", "c", 0), EINVAL);
    EXPECT_EQ(channel, nullptr);
    EXPECT_EQ(qtrace_open_internal(&channel, nullptr, QTRACE_MIN_BUFFER, 0, nullptr, nullptr, 0), 0);
    ASSERT_NE(channel, nullptr);
    EXPECT_EQ(qtrace_internal(channel, 3, 4, 0, "", "fits\n"), 0);
    EXPECT_EQ(read_lines(channel), (std::vector<trace_line>{{3, "fits\n"}}));
}

TEST(TraceChannel, opening_without_memory_leaves_nothing_behind)
{
    uint64_t live = counting_memory::live();
    uint64_t n = 1;
    for (;; ++n) {
        ASSERT_LT(n, 10u);
        void *channel = nullptr;
        counting_memory::fail_at(n);
        int32_t result = qtrace_open_internal(&channel, "n", 1000, 0, "p", "c", 0);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        if (!failed)
            break;
        EXPECT_EQ(result, ENOMEM);
        EXPECT_EQ(channel, nullptr);
        EXPECT_EQ(counting_memory::live(), live);
    }
    EXPECT_EQ(n, 3u) << "a channel and its ring";
}

TEST(TraceChannel, writing_and_reading_ask_for_no_memory)
{
    void *channel = open_channel();
    counting_memory::reset();
    for (int i = 0; i < 100; ++i)
        qtrace_internal(channel, 1, 6, 1, "sd", "%s %d\n", "text", i);
    EXPECT_EQ(qtrace_read(channel, nullptr, nullptr), 100u);
    EXPECT_EQ(counting_memory::requests(), 0u);
}

TEST(TraceChannel, null_handles_are_refused)
{
    EXPECT_EQ(qtrace_enable_configuration(nullptr, nullptr), EINVAL);
    EXPECT_EQ(qtrace_set_dump_on_exit(nullptr, 1), EINVAL);
    EXPECT_EQ(qtrace_read(nullptr, nullptr, nullptr), 0u);
}

TEST(TraceChannel, a_reader_may_trace_and_still_comes_to_an_end)
{
    void *channel = open_channel();
    for (int i = 0; i < 5; ++i)
        qtrace_internal(channel, 1, 5, 0, "d", "%d\n", i);
    auto echo = [](void *user, uint32_t, const char *text) {
        qtrace_internal(user, 2, 4, 1, "s", "%s", text);
    };
    EXPECT_EQ(qtrace_read(channel, echo, channel), 5u);
    EXPECT_EQ(read_lines(channel).size(), 10u);
}

TEST(TraceChannel, a_reader_that_overwrites_what_it_reads_goes_on_with_the_oldest_line_left)
{
    static std::vector<uint32_t> seen;
    seen.clear();
    void *channel = open_channel(400);  // ten lines
    for (uint32_t i = 0; i < 10; ++i)
        qtrace_internal(channel, i, 4, 0, "", "\n");
    auto overwrite = [](void *user, uint32_t id, const char *) {
        if (seen.empty())
            for (uint32_t i = 100; i < 105; ++i)
                qtrace_internal(user, i, 4, 0, "", "\n");
        seen.push_back(id);
    };
    EXPECT_EQ(qtrace_read(channel, overwrite, channel), 6u);
    EXPECT_EQ(seen, (std::vector<uint32_t>{0, 5, 6, 7, 8, 9}));
}

TEST(TraceChannel, a_configuration_counts_as_far_as_its_size_reaches)
{
    void *channel = open_channel();
    std::string path = scratch_path("never");
    struct {
        uint32_t size;
        int32_t result;
    } cases[] = {{0, EINVAL}, {4, EINVAL}, {7, EINVAL}, {8, 0}, {15, 0}, {16, 0}, {1000, 0}};
    for (auto &one : cases) {
        qtrace_configuration config = configuration(0, path.c_str());
        config.size = one.size;
        EXPECT_EQ(qtrace_enable_configuration(channel, &config), one.result) << one.size;
    }
    // Only as much storage as the size word says: the address sanitizer sees a read beyond.
    auto *small = static_cast<uint32_t *>(malloc(8));
    small[0] = 8;
    small[1] = 1;
    testing::internal::CaptureStderr();
    EXPECT_EQ(qtrace_enable_configuration(channel, small), 0);
    qtrace_internal(channel, 1, 4, 0, "", "live from a small configuration\n");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("live from a small configuration\n"),
              std::string::npos);
    free(small);
}

TEST(TraceChannel, a_configuration_without_memory_keeps_the_previous_one)
{
    void *channel = open_channel();
    qtrace_configuration live = configuration(1, nullptr);
    ASSERT_EQ(qtrace_enable_configuration(channel, &live), 0);
    uint64_t blocks = counting_memory::live();
    qtrace_configuration wanted = configuration(0, "somewhere");
    counting_memory::fail_at(1);
    EXPECT_EQ(qtrace_enable_configuration(channel, &wanted), ENOMEM);
    counting_memory::reset();
    EXPECT_EQ(counting_memory::live(), blocks);
    testing::internal::CaptureStderr();
    qtrace_internal(channel, 1, 4, 0, "", "still live\n");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("still live\n"), std::string::npos);
}

TEST(TraceChannel, each_configuration_gives_the_previous_path_back)
{
    void *channel = open_channel();
    uint64_t blocks = counting_memory::live();
    for (int i = 0; i < 3; ++i) {
        qtrace_configuration config = configuration(0, "somewhere");
        ASSERT_EQ(qtrace_enable_configuration(channel, &config), 0);
        EXPECT_EQ(counting_memory::live(), blocks + 1);
    }
    ASSERT_EQ(qtrace_enable_configuration(channel, nullptr), 0);
    EXPECT_EQ(counting_memory::live(), blocks);
}

TEST(TraceChannel, live_lines_go_to_standard_error_at_once_with_time_thread_and_id)
{
    void *channel = open_channel();
    qtrace_configuration config = configuration(1, nullptr);
    testing::internal::CaptureStderr();
    qtrace_internal(channel, 1, 4, 0, "", "quiet\n");
    qtrace_enable_configuration(channel, &config);
    errno = 77;
    qtrace_internal(channel, 42, 6, 1, "sd", "%s %d\n", "a\x1b[31mb\nc", 7);
    EXPECT_EQ(errno, 77);
    qtrace_internal(channel, 43, 4, 0, "", "no newline");
    qtrace_enable_configuration(channel, nullptr);
    qtrace_internal(channel, 1, 4, 0, "", "quiet again\n");
    std::string text = testing::internal::GetCapturedStderr();
    std::string prefix = R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}Z \[)" + std::to_string(gettid()) + R"(\] )";
    std::regex expected(prefix + R"(42: a\.\[31mb\.c 7\n)" + prefix + R"(43: no newline\n)");
    EXPECT_TRUE(std::regex_match(text, expected)) << text;
    EXPECT_EQ(read_lines(channel)[1].text, "a\x1b[31mb\nc 7\n") << "readers get the text as it is";
}

// What the process traces live.
std::string live_text(void *channel, const char *text)
{
    qtrace_configuration config = configuration(1, nullptr);
    testing::internal::CaptureStderr();
    qtrace_enable_configuration(channel, &config);
    qtrace_internal(channel, 1, 4, 1, "s", "%s\n", text);
    qtrace_enable_configuration(channel, nullptr);
    const std::string line = testing::internal::GetCapturedStderr();
    const size_t start = line.find("] 1: ");
    return start == std::string::npos ? line : line.substr(start + 5);
}

TEST(TraceChannel, control_characters_of_any_length_are_dots_for_people)
{
    struct {
        const char *text, *printed;
    } cases[] = {
        {"a\xC2\x80"
         "b\xC2\x9F"
         "c",
         "a.b.c"},
        {"\xC2\xA0 \xC3\x9B \xC4\x9B \xE2\x80\x9C \xF0\x9F\x98\x80",
         "\xC2\xA0 \xC3\x9B \xC4\x9B \xE2\x80\x9C \xF0\x9F\x98\x80"},
        {"\x9B[31m", ".[31m"},
        {"\xC3\xBC\x9B[31m", "\xC3\xBC.[31m"},
        {"\xE2\x9B[31m", "\xE2.[31m"},
        {"\xC0\x9B[31m", "\xC0.[31m"},
        {"\xC2\x1B[31m", "\xC2.[31m"},
        {"\xE0\x82\x9B[31m", "\xE0..[31m"},
        {"\xF0\x80\x82\x9B[31m", "\xF0...[31m"},
        {"\xED\xA0\x9B[31m", "\xED\xA0.[31m"},
        {"\xF4\x9B\x9B\x9B", "\xF4..."},
        {"\xF8\x9B\x9B\x9B\x9B", "\xF8...."},
        {"cut \xC2", "cut \xC2"},
        {"cut \xE2\x82", "cut \xE2."},
    };
    void *channel = open_channel();
    for (const auto &c : cases)
        EXPECT_EQ(live_text(channel, c.text), std::string(c.printed) + "\n");
}

// In a process of its own; 0 when its line has its own thread's id.
void trace_with_own_thread_and_exit(void *channel)
{
    int ends[2];
    // The line is there when the call returns; without one the reading ends at once.
    const bool is_ready = pipe2(ends, O_NONBLOCK) == 0 && dup2(ends[1], STDERR_FILENO) == STDERR_FILENO;
    qtrace_configuration config = configuration(1, nullptr);
    qtrace_enable_configuration(channel, &config);
    qtrace_internal(channel, 2, 4, 0, "", "\n");
    char line[200] = {};
    const bool is_read = is_ready && read(ends[0], line, sizeof line - 1) > 0;
    exit(is_read && strstr(line, ("[" + std::to_string(gettid()) + "] 2: ").c_str()) != nullptr ? 0 : 1);
}

TEST(TraceChannel, the_child_of_a_fork_traces_with_a_thread_id_of_its_own)
{
    void *channel = open_channel();
    qtrace_internal(channel, 1, 4, 0, "", "\n");
    EXPECT_EXIT(trace_with_own_thread_and_exit(channel), testing::ExitedWithCode(0), "");
}

TEST(TraceChannel, a_full_ring_drops_its_oldest_lines_whole)
{
    for (uint32_t size : {64u, 100u, 500u, 512u, 4096u, 5001u}) {
        SCOPED_TRACE(size);
        void *channel = open_channel(size);
        std::vector<trace_line> written;
        size_t least_kept = SIZE_MAX;
        for (uint32_t i = 0; i < 3000; ++i) {
            std::string text(i * 7 % 101 % (size / 4), static_cast<char>('a' + i % 26));
            if (qtrace_internal(channel, i, 5, 1, "sd", "%s %d\n", text.c_str(), static_cast<int32_t>(i)) !=
                0)
                continue;
            written.push_back({i, text + " " + std::to_string(i) + "\n"});
            std::vector<trace_line> kept = read_lines(channel);
            ASSERT_LE(kept.size(), written.size());
            ASSERT_TRUE(
                std::equal(kept.begin(), kept.end(), written.end() - static_cast<ptrdiff_t>(kept.size())))
                << "after line " << i;
            least_kept = i > 200 ? std::min(least_kept, kept.size()) : least_kept;
        }
        ASSERT_GT(written.size(), 2000u);
        // A line takes at most 40 + 2 + 100 + 4 octets, rounded up; the last gap is shorter than one.
        EXPECT_GE(least_kept, std::max<size_t>(1, size / 152 - (size >= 304 ? 1 : 0)));
    }
}

TEST(TraceChannel, a_line_larger_than_the_ring_is_refused_and_the_rest_stays)
{
    void *channel = open_channel(128);
    std::string text(100, 'x');
    ASSERT_EQ(qtrace_internal(channel, 1, 4, 0, "", "first\n"), 0);
    EXPECT_EQ(qtrace_internal(channel, 2, 4, 1, "s", "%s\n", text.c_str()), ENOSPC);
    EXPECT_EQ(read_lines(channel), (std::vector<trace_line>{{1, "first\n"}}));
}

TEST(TraceChannel, several_threads_write_while_others_read_and_configure)
{
    static constexpr uint32_t writers = 4;
    static constexpr int32_t lines_each = 5000;
    void *channel = open_channel(20000);
    std::atomic<bool> done = false;
    std::vector<std::thread> threads;
    for (uint32_t writer = 0; writer < writers; ++writer)
        threads.emplace_back([channel, writer] {
            for (int32_t i = 0; i < lines_each; ++i)
                EXPECT_EQ(qtrace_internal(channel, writer, 6, 1, "sd", "%s %d\n", "line", i), 0);
        });
    auto configure = [channel, &done] {
        qtrace_configuration config = configuration(0, "never/written");
        while (!done) {
            qtrace_enable_configuration(channel, &config);
            qtrace_set_dump_on_exit(channel, 0);
            qtrace_enable_configuration(channel, nullptr);
        }
    };
    std::thread configurers[] = {std::thread(configure), std::thread(configure)};
    auto check = [channel] {
        std::vector<int32_t> latest(writers, -1);
        for (const trace_line &line : read_lines(channel)) {
            ASSERT_LT(line.id, writers);
            ASSERT_EQ(line.text.rfind("line ", 0), 0u) << line.text;
            int32_t number = atoi(line.text.c_str() + 5);
            ASSERT_GT(number, latest[line.id]) << "a writer's lines stay in order";
            latest[line.id] = number;
        }
    };
    for (int i = 0; i < 20; ++i)
        check();
    for (std::thread &one : threads)
        one.join();
    done = true;
    for (std::thread &one : configurers)
        one.join();
    check();
    EXPECT_GT(read_lines(channel).size(), 100u);
}

// What a process leaves that traces two lines with this configuration and exits.
void trace_and_exit(const char *dump_path, bool armed)
{
    void *channel = open_channel(160);
    qtrace_configuration config = configuration(0, dump_path);
    qtrace_enable_configuration(channel, &config);
    qtrace_set_dump_on_exit(channel, armed ? 1 : 0);
    static void *late_channel = channel;
    atexit([] { qtrace_internal(late_channel, 9, 4, 0, "", "from an exit handler\n"); });
    for (int32_t i = 0; i < 3; ++i)
        qtrace_internal(channel, 8, 5, 1, "sd", "%s %d\n", "line", i);
    exit(0);
}

TEST(TraceDump, an_armed_channel_with_a_path_writes_its_lines_at_exit)
{
    std::string path = scratch_path("dump.txt");
    EXPECT_EXIT(trace_and_exit(path.c_str(), true), testing::ExitedWithCode(0), "");
    std::string text = read_file(path);
    std::string prefix = R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}Z \[\d+\] )";
    std::regex expected("# channel test flags 0x103 catalogue 0123456789abcdef path \\./buffer\n"
                        "# older records dropped: 2\n" +
                        prefix + "8: line 2\n" + prefix + "9: from an exit handler\n");
    EXPECT_TRUE(std::regex_match(text, expected)) << text;
    std::filesystem::remove(path);
}

TEST(TraceDump, there_is_none_when_disarmed)
{
    std::string path = scratch_path("disarmed.txt");
    EXPECT_EXIT(trace_and_exit(path.c_str(), false), testing::ExitedWithCode(0), "^$");
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TraceDump, there_is_none_without_a_path)
{
    EXPECT_EXIT(trace_and_exit(nullptr, true), testing::ExitedWithCode(0), "^$");
}

TEST(TraceDump, no_folder_is_made_and_nothing_said)
{
    std::string folder = scratch_path("folder");
    EXPECT_EXIT(trace_and_exit((folder + "/dump.txt").c_str(), true), testing::ExitedWithCode(0), "^$");
    EXPECT_FALSE(std::filesystem::exists(folder));
}

}  // namespace
