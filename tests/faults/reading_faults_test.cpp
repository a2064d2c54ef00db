// Reading a document that comes in pieces, is interrupted, fails, ends early or changes meanwhile.
#include "faults/reading_world.h"
#include "faults/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace
{

using namespace fault_world;
using system_calls::system_open;
using system_calls::system_read;

INSTANTIATE_TEST_SUITE_P(Units, ReadingFaults, testing::ValuesIn(small_units()), unit_name);

// So much at most at once, so that a small document takes many reads.
constexpr size_t piece = 128;

// Reads in pieces; the n-th one (1: the first) is answered by trouble().
template <class Trouble>
void set_trouble_at(size_t n, bool &happened, const Trouble &trouble)
{
    happened = false;
    system_calls::set_read(
        [=, &happened, count = size_t{0}](int file, void *buffer, size_t size) mutable -> ssize_t {
            size = std::min(size, piece);
            if (++count < n)
                return system_read(file, buffer, size);
            happened = true;
            return trouble(file, buffer, size);
        });
}

TEST_P(ReadingFaults, a_document_may_come_octet_by_octet)
{
    system_calls::set_read([](int file, void *buffer, size_t size) {
        return system_read(file, buffer, std::min(size, size_t{1}));
    });
    EXPECT_EQ(open_under_trouble(), ending::right);
}

TEST_P(ReadingFaults, a_document_may_come_in_pieces_of_any_length)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        system_calls::set_read([random = std::mt19937(seed)](int file, void *buffer, size_t size) mutable {
            const size_t drawn = std::uniform_int_distribution<size_t>(1, 400)(random);
            return system_read(file, buffer, std::min(size, drawn));
        });
        EXPECT_EQ(open_under_trouble(), ending::right) << seed;
    }
}

TEST_P(ReadingFaults, interruptions_are_passed_over)
{
    system_calls::set_read([is_interrupted = false](int file, void *buffer, size_t size) mutable -> ssize_t {
        is_interrupted = !is_interrupted;
        if (!is_interrupted)
            return system_read(file, buffer, std::min(size, piece));
        errno = EINTR;
        return -1;
    });
    system_calls::set_open([interruptions = 0](const char *name, int flags) mutable {
        if (++interruptions > 3)
            return system_open(name, flags);
        errno = EINTR;
        return -1;
    });
    EXPECT_EQ(open_under_trouble(), ending::right);
}

TEST_P(ReadingFaults, an_error_at_any_read_refuses_the_document)
{
    bool happened = true;
    size_t n = 1;
    for (; happened; ++n) {
        set_trouble_at(n, happened, [](int, void *, size_t) {
            errno = EIO;
            return ssize_t{-1};
        });
        const ending found = open_under_trouble();
        EXPECT_EQ(found, happened ? ending::refused : ending::right) << "read " << n;
    }
    EXPECT_GT(n, 5u);
}

TEST_P(ReadingFaults, an_error_of_reading_is_told_by_status_and_reason)
{
    bool happened = false;
    for (size_t n : {size_t{1}, size_t{2}}) {
        set_trouble_at(n, happened, [](int, void *, size_t) {
            errno = EIO;
            return ssize_t{-1};
        });
        EXPECT_EQ(diagnosis(GetParam().path), "-302 Input/output error");
        EXPECT_TRUE(happened);
    }
    system_calls::reset();
}

// What is left behind the root element may be missing.
TEST_P(ReadingFaults, an_end_at_any_read_refuses_the_document_unless_all_of_it_was_there)
{
    const auto size = std::filesystem::file_size(GetParam().path);
    bool happened = true;
    for (size_t n = 1; happened; ++n) {
        set_trouble_at(n, happened, [](int, void *, size_t) { return ssize_t{0}; });
        const bool is_short = (n - 1) * piece + piece < size;
        const ending found = open_under_trouble();
        EXPECT_TRUE(found == ending::refused || (!is_short && found == ending::right)) << "read " << n;
    }
}

struct change {
    const char *name;
    void (*apply)(const std::string &path);
    bool harmless;  // whoever has the file open goes on with what it was
};

constexpr change changes[] = {
    {"cut to nothing", [](const std::string &path) { std::filesystem::resize_file(path, 0); }, false},
    {"cut to its half",
     [](const std::string &path) {
         std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
     },
     false},
    {"longer by zero octets",
     [](const std::string &path) {
         std::filesystem::resize_file(path, std::filesystem::file_size(path) + 5000);
     },
     false},
    {"longer by markup",
     [](const std::string &path) { std::ofstream(path, std::ios::app) << std::string(3000, '<'); }, false},
    {"overwritten in place by another document",
     [](const std::string &path) {
         std::fstream(path, std::ios::in | std::ios::out) << load_world::text_of(units().back().path);
     },
     false},
    {"replaced by another file",
     [](const std::string &path) {
         std::ofstream(path + ".new") << "<inventory/>";
         std::filesystem::rename(path + ".new", path);
     },
     true},
    {"removed", [](const std::string &path) { std::filesystem::remove(path); }, true},
};

TEST_P(ReadingFaults, a_file_that_changes_while_it_is_read_is_refused_or_loaded_and_nothing_else_suffers)
{
    const std::string text = load_world::text_of(GetParam().path);
    const size_t reads = text.size() / piece + 2;
    for (const change &each : changes) {
        for (size_t n : {size_t{1}, size_t{2}, reads / 2, reads - 2, reads - 1}) {
            SCOPED_TRACE(std::string(each.name) + " at read " + std::to_string(n));
            const std::string path = load_world::scratch_file("changing_" + GetParam().name + ".xml", text);
            bool happened = false;
            bool is_changed = false;
            set_trouble_at(n, happened, [&](int file, void *buffer, size_t size) {
                if (!is_changed)
                    each.apply(path);
                is_changed = true;
                return system_read(file, buffer, size);
            });
            const ending found = open_instead(path);
            EXPECT_TRUE(happened);
            if (each.harmless) {
                EXPECT_EQ(found, ending::right);
            }
        }
        expect_all_well();
    }
}

}  // namespace
