#include "inv_platform/lookup.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "inv_parser/handle.h"
#include "support/counting_memory.h"

namespace
{

namespace fs = std::filesystem;

// A catalogue in a folder of its own, named by $INV_CATALOG while the test runs.
struct Lookup : testing::Test {
    fs::path folder = fs::path(testing::TempDir()) / ("lookup_" + std::to_string(getpid()));
    fs::path catalogue = folder / "catalog.txt";

    void SetUp() override
    {
        fs::create_directories(folder);
        setenv("INV_CATALOG", catalogue.c_str(), 1);
    }

    void TearDown() override
    {
        unsetenv("INV_CATALOG");
        fs::remove_all(folder);
    }

    void write(const std::string &text) const
    {
        std::ofstream(catalogue, std::ios::binary) << text;
    }

    // The answer without the catalogue's folder; "-" for null.
    std::string relative(const char *answer) const
    {
        if (answer == nullptr)
            return "-";
        std::string prefix = folder.string() + "/";
        std::string text = answer;
        return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
    }

    std::string find(uint32_t pi, uint32_t pd, const char *pid) const
    {
        return relative(platform_get_inv_xml_file_name(pi, pd, pid));
    }

    std::string find_v2(uint32_t pi, uint32_t pd, const char *pid, uint32_t major, uint32_t minor) const
    {
        fru_xml_loc_info loc = {
            .pi_hw_type = pi, .pd_hw_type = pd, .hw_maj_ver = major, .hw_min_ver = minor, .pid = {}};
        strncpy(loc.pid, pid, sizeof loc.pid - 1);
        return relative(platform_get_inv_xml_file_name_v2(&loc));
    }
};

TEST_F(Lookup, a_unit_is_found_by_its_types_and_pid)
{
    write("# made-up units\n"
          "\n"
          "3 17 LC-48* 1.0-2.9 line_card_48.xml\n"
          "  0x10\t0xfF  RP-?  *   processor card.xml \t\r\n"
          "* * * * sub/any.xml");
    EXPECT_EQ(find(3, 17, "LC-48X"), "line_card_48.xml");
    EXPECT_EQ(find(16, 255, "RP-1"), "processor card.xml");
    EXPECT_EQ(find(16, 255, "RP-12"), "sub/any.xml");
    EXPECT_EQ(find(4, 17, "LC-48X"), "sub/any.xml");
    EXPECT_EQ(find(3, 18, "LC-48X"), "sub/any.xml");
}

TEST_F(Lookup, the_first_fitting_line_wins)
{
    write("1 1 A 1.0 first.xml\n1 1 A* * second.xml\n1 1 * * third.xml\n");
    EXPECT_EQ(find(1, 1, "A"), "first.xml");
    EXPECT_EQ(find(1, 1, "AB"), "second.xml");
    EXPECT_EQ(find(1, 1, "B"), "third.xml");
    EXPECT_EQ(find_v2(1, 1, "A", 2, 0), "second.xml");
    EXPECT_EQ(find(2, 1, "A"), "-");
}

TEST_F(Lookup, file_names_are_relative_to_the_catalogue_unless_absolute)
{
    write("1 * * * /etc/one.xml\n2 * * * two.xml\n");
    EXPECT_STREQ(platform_get_inv_xml_file_name(1, 0, ""), "/etc/one.xml");
    EXPECT_EQ(std::string(platform_get_inv_xml_file_name(2, 0, "")), folder.string() + "/two.xml");
    fs::path previous = fs::current_path();
    fs::current_path(folder);
    setenv("INV_CATALOG", "catalog.txt", 1);
    EXPECT_STREQ(platform_get_inv_xml_file_name(2, 0, ""), "two.xml");
    setenv("INV_CATALOG", "./catalog.txt", 1);
    EXPECT_STREQ(platform_get_inv_xml_file_name(2, 0, ""), "./two.xml");
    fs::current_path(previous);
}

TEST_F(Lookup, hardware_versions_are_pairs_within_inclusive_limits)
{
    write("1 * * 1.5-3.2 range.xml\n2 * * 7.0 single.xml\n3 * * * any.xml\n4 * * 0.0-0xffffffff.4294967295 "
          "full.xml\n");
    struct {
        uint32_t pi, major, minor;
        const char *file;
    } cases[] = {
        {1, 1, 4, "-"},
        {1, 1, 5, "range.xml"},
        {1, 1, 6, "range.xml"},
        {1, 2, 0, "range.xml"},
        {1, 2, 99, "range.xml"},
        {1, 3, 0, "range.xml"},
        {1, 3, 2, "range.xml"},
        {1, 3, 3, "-"},
        {1, 4, 0, "-"},
        {1, 0, 9, "-"},
        {2, 7, 0, "single.xml"},
        {2, 7, 1, "-"},
        {2, 6, 0, "-"},
        {3, 0, 0, "any.xml"},
        {3, UINT32_MAX, UINT32_MAX, "any.xml"},
        {4, 0, 0, "full.xml"},
        {4, UINT32_MAX, UINT32_MAX, "full.xml"},
    };
    for (const auto &one : cases)
        EXPECT_EQ(find_v2(one.pi, 0, "X", one.major, one.minor), one.file)
            << one.pi << ": " << one.major << '.' << one.minor;
    EXPECT_EQ(find(1, 0, "X"), "range.xml") << "the first generation ignores versions";
    EXPECT_EQ(find(2, 0, "X"), "single.xml");
}

TEST_F(Lookup, pid_patterns_know_star_and_question_mark)
{
    struct {
        const char *pattern, *pid;
        bool fits;
    } cases[] = {
        {"ABC", "ABC", true},
        {"ABC", "abc", false},
        {"ABC", "ABCD", false},
        {"ABC", "AB", false},
        {"A?C", "AXC", true},
        {"A?C", "AC", false},
        {"?", "", false},
        {"*", "", true},
        {"**", "", true},
        {"*?", "", false},
        {"*?", "A", true},
        {"A*", "A", true},
        {"*A", "BBA", true},
        {"*A", "BAB", false},
        {"A*B*C", "AxxBxBxC", true},
        {"A*B*C", "AxxCxB", false},
        {"*AB*AB*", "ABxAB", true},
        {"*AB", "AAB", true},
        {"*AB*AB*", "ABAxB", false},
        {"a*a*a*b", "aaaaaaaaac", false},
        {"A*A", "A", false},
        {"A??", "A B", true},
        {"[A]", "A", false},
        {"\\*", "*", false},
    };
    for (const auto &one : cases) {
        write(std::string("1 1 ") + one.pattern + " * fits.xml\n");
        EXPECT_EQ(find(1, 1, one.pid), one.fits ? "fits.xml" : "-") << one.pattern << " on " << one.pid;
    }
}

TEST_F(Lookup, a_pattern_made_to_backtrack_ends_soon)
{
    std::string pattern;
    for (int i = 0; i < 120; ++i)
        pattern += "a*";
    write("1 1 " + pattern + "b * fits.xml\n");
    EXPECT_EQ(find(1, 1, std::string(20000, 'a').c_str()), "-");
}

TEST_F(Lookup, a_null_pid_counts_as_empty_and_a_null_location_finds_nothing)
{
    write("1 1 ?* * some.xml\n1 1 * * none.xml\n");
    EXPECT_EQ(find(1, 1, nullptr), "none.xml");
    EXPECT_EQ(find(1, 1, "X"), "some.xml");
    EXPECT_EQ(platform_get_inv_xml_file_name_v2(nullptr), nullptr);
}

TEST_F(Lookup, a_pid_that_fills_its_field_without_an_end_is_read_no_further)
{
    write("1 1 " + std::string(64, 'P') + " * full.xml\n");
    fru_xml_loc_info loc = {.pi_hw_type = 1, .pd_hw_type = 1, .hw_maj_ver = 0, .hw_min_ver = 0, .pid = {}};
    memset(loc.pid, 'P', sizeof loc.pid);
    EXPECT_EQ(relative(platform_get_inv_xml_file_name_v2(&loc)), "full.xml");
}

TEST_F(Lookup, each_broken_line_is_reported_with_file_and_line_and_passed_over)
{
    const std::string columns =
        "five columns are needed: pi_hw_type, pd_hw_type, PID pattern, hardware versions, file";
    const std::string versions = "hardware versions are neither major.minor, a range of two nor *";
    const std::string pi = "pi_hw_type is neither a 32-bit number nor *";
    const std::string pd = "pd_hw_type is neither a 32-bit number nor *";
    const std::pair<std::string, std::string> cases[] = {
        {"1", columns},
        {"1 1 * *", columns},
        {"1 1 * *  ", columns},
        {"x 1 * * f.xml", pi},
        {"-1 1 * * f.xml", pi},
        {"+1 1 * * f.xml", pi},
        {"0x 1 * * f.xml", pi},
        {"1z 1 * * f.xml", pi},
        {"** 1 * * f.xml", pi},
        {"4294967296 1 * * f.xml", pi},
        {"1 0x100000000 * * f.xml", pd},
        {"1 one * * f.xml", pd},
        {"1 1 * 1 f.xml", versions},
        {"1 1 * 1. f.xml", versions},
        {"1 1 * .1 f.xml", versions},
        {"1 1 * 1.0- f.xml", versions},
        {"1 1 * 1.0-2 f.xml", versions},
        {"1 1 * 1.0-2.0-3.0 f.xml", versions},
        {"1 1 * 1.0.0 f.xml", versions},
        {"1 1 * *-2.0 f.xml", versions},
        {"1 1 * 4294967296.0 f.xml", versions},
        {"1 1 * 2.0-1.9 f.xml", "the range of hardware versions ends before it begins"},
        {"1 1 * 2.5-2.4 f.xml", "the range of hardware versions ends before it begins"},
        {"1 1 " + std::string(256, '*') + " * f.xml", "the PID pattern is longer than 255 octets"},
        {std::string("1 1 * * f\0.xml", 14), "the line holds a NUL octet"},
        {"1 1 * * " + std::string(4096, 'f'), "the file's path is too long"},
    };
    for (const auto &[line, reason] : cases) {
        write("# comment\n1 2 * * other.xml\n" + line + "\n1 1 * * good.xml\n");
        testing::internal::CaptureStderr();
        EXPECT_EQ(find(1, 1, "A"), "good.xml") << line;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), catalogue.string() + ":3: " + reason + "\n")
            << line;
    }
}

TEST_F(Lookup, broken_lines_behind_the_fitting_one_are_reported_too)
{
    write("oops\n1 1 * * good.xml\n\noops again");
    for (int i = 0; i < 2; ++i) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(find(1, 1, "A"), "good.xml");
        std::string text = testing::internal::GetCapturedStderr();
        EXPECT_EQ(text.find(catalogue.string() + ":1: five columns"), 0u) << text;
        EXPECT_NE(text.find("\n" + catalogue.string() + ":4: five columns"), std::string::npos) << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
    }
}

TEST_F(Lookup, patterns_and_paths_at_their_limits_are_taken)
{
    write("1 1 " + std::string(255, '*') + " * f.xml\n");
    EXPECT_EQ(find(1, 1, "A"), "f.xml");
    std::string absolute = "/" + std::string(4094, 'f');
    write("1 1 * * " + absolute + "\n");
    EXPECT_EQ(find(1, 1, "A"), absolute);
}

TEST_F(Lookup, an_edited_catalogue_counts_at_once)
{
    write("1 1 * * a.xml\n");
    EXPECT_EQ(find(1, 1, ""), "a.xml");
    write("1 1 * * b.xml\n");
    EXPECT_EQ(find(1, 1, ""), "b.xml");
    write("");
    EXPECT_EQ(find(1, 1, ""), "-");
}

// The answer, then what was said about it.
std::pair<std::string, std::string> find_reported(const Lookup &in)
{
    testing::internal::CaptureStderr();
    std::string answer = in.find(1, 1, "A");
    return {answer, testing::internal::GetCapturedStderr()};
}

using answer = std::pair<std::string, std::string>;

TEST_F(Lookup, a_catalogue_that_cannot_be_read_gives_null_and_says_why)
{
    EXPECT_EQ(find_reported(*this), answer("-", catalogue.string() + ": No such file or directory\n"));
    fs::create_directory(catalogue);
    EXPECT_EQ(find_reported(*this), answer("-", catalogue.string() + ": not a regular file\n"));
    fs::remove(catalogue);
    ASSERT_EQ(mkfifo(catalogue.c_str(), 0600), 0);
    EXPECT_EQ(find_reported(*this), answer("-", catalogue.string() + ": not a regular file\n"));
    fs::remove(catalogue);
}

TEST_F(Lookup, a_catalogue_of_absurd_size_is_refused)
{
    constexpr size_t limit = 16u * 1024 * 1024;
    std::string line = "1 1 * * good.xml\n";
    write(line + std::string(limit - line.size(), '\n'));
    EXPECT_EQ(find_reported(*this), answer("good.xml", ""));
    fs::resize_file(catalogue, limit + 1);
    EXPECT_EQ(find_reported(*this), answer("-", catalogue.string() + ": larger than 16 MiB\n"));
}

TEST_F(Lookup, without_the_variable_the_installed_catalogue_is_asked)
{
    for (bool is_set : {false, true}) {
        if (is_set)
            setenv("INV_CATALOG", "", 1);
        else
            unsetenv("INV_CATALOG");
        testing::internal::CaptureStderr();
        const char *found = platform_get_inv_xml_file_name(0xFFFFFFF0, 0xFFFFFFF0, "no such unit");
        std::string text = testing::internal::GetCapturedStderr();
        EXPECT_EQ(found, nullptr);
        if (!fs::exists(INV_INSTALLED_CATALOG)) {
            EXPECT_EQ(text, std::string(INV_INSTALLED_CATALOG) + ": No such file or directory\n");
        }
    }
}

TEST_F(Lookup, the_sample_catalogue_names_a_document_for_each_sample_unit)
{
    const fs::path samples = fs::path(INV_SOURCE_DIR) / "inventories";
    setenv("INV_CATALOG", (samples / "catalog.txt").c_str(), 1);
    const struct {
        uint32_t pi, pd;
        const char *pid, *file;
        uint32_t major = 1, minor = 0;
    } units[] = {
        {1, 1, "CH-8", "chassis.xml"},
        {3, 17, "LC-48X10-A", "line_card_48.xml"},
        {6, 18, "LC-12X100", "line_card_12.xml"},
        {14, 19, "LC-SMALL", "line_card_small.xml"},
        {4, 32, "RP-2", "route_processor.xml", 2},
        {5, 48, "FC-6T", "fabric_card.xml"},
        {7, 64, "FAN-6", "fan_tray.xml"},
        {8, 80, "PSH-DC4", "power_shelf.xml"},
        {9, 81, "PEM-4K", "pem.xml"},
        {12, 96, "CXP-120", "cxp_optics.xml"},
    };
    testing::internal::CaptureStderr();
    for (const auto &unit : units) {
        SCOPED_TRACE(unit.file);
        EXPECT_EQ(find_v2(unit.pi, unit.pd, unit.pid, unit.major, unit.minor), samples / unit.file);
        EXPECT_TRUE(fs::is_regular_file(samples / unit.file));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Lookup, without_memory_there_is_no_file_and_no_leak)
{
    write("1 1 * * good.xml\n");
    uint64_t live = counting_memory::live();
    uint64_t n = 1;
    for (;; ++n) {
        ASSERT_LT(n, 10u);
        counting_memory::fail_at(n);
        answer got = find_reported(*this);
        bool failed = counting_memory::failed();
        counting_memory::reset();
        EXPECT_EQ(counting_memory::live(), live);
        if (!failed) {
            EXPECT_EQ(got, answer("good.xml", ""));
            break;
        }
        EXPECT_EQ(got, answer("-", catalogue.string() + ": Cannot allocate memory\n"));
    }
    EXPECT_EQ(n, 2u);
}

TEST_F(Lookup, each_thread_keeps_its_own_answer)
{
    write("1 1 * * one.xml\n2 2 * * two.xml\n");
    const char *mine = platform_get_inv_xml_file_name(1, 1, "");
    ASSERT_NE(mine, nullptr);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([this] {
            for (int k = 0; k < 200; ++k)
                EXPECT_EQ(find(2, 2, ""), "two.xml");
        });
    for (std::thread &one : threads)
        one.join();
    EXPECT_EQ(relative(mine), "one.xml");
}

}  // namespace
