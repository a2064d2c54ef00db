// The files that are read beside documents under way: the catalogue by the lookup, whole files by `invctl
// check`. What system calls answer is up to the test.
#include "faults/system_calls.h"
#include "inv_platform/lookup.h"
#include "read_octets.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

namespace fs = std::filesystem;
using system_calls::system_open;
using system_calls::system_read;

const std::string catalogue_text = "1 1 * * first.xml\n# a remark between the two\n2 2 * * second.xml\n";

// What reading a file has come to.
struct outcome {
    std::string text;    // what was read, or found by what was read
    std::string reason;  // why there is none

    bool operator==(const outcome &) const = default;
};

void PrintTo(const outcome &which, std::ostream *out)
{
    *out << "\"" << which.text << "\", \"" << which.reason << "\"";
}

// The second unit of the catalogue, and what is said of it without the file's name.
outcome by_lookup(const std::string &path)
{
    setenv("INV_CATALOG", path.c_str(), 1);
    testing::internal::CaptureStderr();
    const char *found = platform_get_inv_xml_file_name(2, 2, "A");
    std::string told = testing::internal::GetCapturedStderr();
    unsetenv("INV_CATALOG");
    if (told.starts_with(path + ": "))
        told.erase(0, path.size() + 2);
    return {found == nullptr ? "" : fs::path(found).filename().string(), told.substr(0, told.find('\n'))};
}

outcome by_command(const std::string &path)
{
    std::string octets;
    const std::string reason = invctl::check::read_octets(path, &octets);
    return {reason.empty() ? octets : "", reason};
}

struct road {
    const char *name;
    outcome (*read)(const std::string &path);
    std::string text;   // of the whole catalogue
    std::string first;  // of the first half of it
};

const road roads[] = {
    {"lookup", by_lookup, "second.xml", ""},
    {"command", by_command, catalogue_text, catalogue_text.substr(0, catalogue_text.size() / 2)},
};

void PrintTo(const road &which, std::ostream *out)
{
    *out << which.name;
}

class ReadingRoads : public testing::TestWithParam<road>
{
protected:
    std::string path = testing::TempDir() + "reading_roads_" + std::to_string(getpid());
    size_t files_before = 0;

    void SetUp() override
    {
        std::ofstream(path, std::ios::binary) << catalogue_text;
        files_before = open_files();
        ASSERT_EQ(GetParam().read(path), all());
    }
    void TearDown() override
    {
        system_calls::reset();
        EXPECT_EQ(open_files(), files_before);
        fs::remove(path);
    }

    static size_t open_files()
    {
        return static_cast<size_t>(
            std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
    }
    static outcome all()
    {
        return {GetParam().text, ""};
    }
    outcome read_under_trouble() const
    {
        outcome result = GetParam().read(path);
        system_calls::reset();
        return result;
    }
};

INSTANTIATE_TEST_SUITE_P(Roads, ReadingRoads, testing::ValuesIn(roads),
                         [](const auto &info) { return std::string(info.param.name); });

// So much at most at once, so that a small file takes many reads.
constexpr size_t piece = 16;

TEST_P(ReadingRoads, an_interrupted_open_is_repeated)
{
    system_calls::set_open([interruptions = 0](const char *name, int flags) mutable {
        if (++interruptions > 3)
            return system_open(name, flags);
        errno = EINTR;
        return -1;
    });
    EXPECT_EQ(read_under_trouble(), all());
}

TEST_P(ReadingRoads, interrupted_and_short_reads_are_gone_on_with)
{
    system_calls::set_read([is_interrupted = false](int file, void *buffer, size_t size) mutable -> ssize_t {
        is_interrupted = !is_interrupted;
        if (!is_interrupted)
            return system_read(file, buffer, std::min(size, piece));
        errno = EINTR;
        return -1;
    });
    EXPECT_EQ(read_under_trouble(), all());
}

TEST_P(ReadingRoads, an_error_at_any_read_gives_nothing_but_its_reason)
{
    bool happened = true;
    size_t failing = 1;
    for (; happened; ++failing) {
        happened = false;
        system_calls::set_read(
            [&, count = size_t{0}](int file, void *buffer, size_t size) mutable -> ssize_t {
                if (++count < failing)
                    return system_read(file, buffer, std::min(size, piece));
                happened = true;
                errno = EIO;
                return -1;
            });
        const outcome found = read_under_trouble();
        EXPECT_EQ(found, happened ? outcome({"", "Input/output error"}) : all()) << "read " << failing;
    }
    EXPECT_GT(failing, catalogue_text.size() / piece);
}

TEST_P(ReadingRoads, a_file_that_shrinks_is_what_is_left_of_it)
{
    system_calls::set_read([this, is_cut = false](int file, void *buffer, size_t size) mutable {
        if (!is_cut)
            fs::resize_file(path, catalogue_text.size() / 2);
        is_cut = true;
        return system_read(file, buffer, std::min(size, piece));
    });
    outcome found = read_under_trouble();
    // The lookup may tell of the line that was cut.
    EXPECT_EQ(found.text, GetParam().first);
}

TEST_P(ReadingRoads, an_open_or_a_status_that_the_system_refuses_gives_its_reason)
{
    for (int error : {EMFILE, EIO, EACCES}) {
        system_calls::set_open([=](const char *, int) {
            errno = error;
            return -1;
        });
        EXPECT_EQ(read_under_trouble(), (outcome{"", strerror(error)}));
        system_calls::set_fstat([=](int, struct stat *) {
            errno = error;
            return -1;
        });
        EXPECT_EQ(read_under_trouble(), (outcome{"", strerror(error)}));
    }
}

}  // namespace
