// Which chunks a file's memory takes for what is asked for and expected.
#include "unit/frame_file_memory_fixture.h"

#include <vector>

using namespace inv;
using namespace file_memory_test;

namespace
{

using FileChunks = FileMemory;

// Sizes in KiB of the chunks that many small requests take one after the other.
std::vector<uint64_t> chunk_sizes(size_t count)
{
    std::vector<uint64_t> sizes;
    uint64_t mapped = counting_memory::mapped_octets();
    while (sizes.size() < count && record_request(1000) != nullptr) {
        uint64_t now = counting_memory::mapped_octets();
        EXPECT_EQ((now - mapped) % kibi, 0u);
        if (now != mapped)
            sizes.push_back((now - mapped) / kibi);
        mapped = now;
    }
    return sizes;
}

struct expectation {
    size_t octets;
    std::vector<uint64_t> chunk_sizes;
};

}  // namespace

TEST_F(FileChunks, chunks_double_from_64_kibi_to_1_mebi_and_are_large_pages_when_many)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_EQ(chunk_sizes(21),
              (std::vector<uint64_t>{64,   128,  256,  512,  1024, 1024, 1024, 1024, 1024, 1024, 1024,
                                     1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 2048}));
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, what_is_expected_takes_large_pages_that_are_half_filled_at_least)
{
    const expectation expectations[] = {
        {1024 * kibi - 1, {64, 128}},      {1024 * kibi, {2048, 1024}},
        {2048 * kibi, {2048, 1024}},       {3071 * kibi, {2048, 1024, 1024}},
        {3072 * kibi, {4096, 1024}},       {33 * 1024 * kibi, {32768, 2048, 2048}},
        {16 * 1024 * kibi, {16384, 2048}}, {SIZE_MAX / 2, {32768, 32768}},
    };
    for (const expectation &each : expectations) {
        inv_xml_handle *handle = new_handle();
        begin_load(handle);
        expect_records(each.octets);
        EXPECT_EQ(chunk_sizes(each.chunk_sizes.size()), each.chunk_sizes) << each.octets;
        end_load(false);
        handle_forget(handle);
    }
}

TEST_F(FileChunks, a_request_is_met_where_large_pages_cannot_be_had)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    expect_records(8 * 1024 * kibi);
    counting_memory::fail_at(1);
    auto *record = static_cast<char *>(record_request(100 * kibi));
    EXPECT_TRUE(counting_memory::failed());
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(is_zero(record, 100 * kibi));
    EXPECT_EQ(counting_memory::mapped_octets() - mapped_before, 128 * kibi);
    counting_memory::fail_at(1, true);
    EXPECT_EQ(record_request(100 * kibi), nullptr);
    counting_memory::reset();
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, chunks_that_a_failed_load_left_serve_what_the_next_expects)
{
    inv_xml_handle *handle = new_handle();
    for (int loads = 0; loads < 3; ++loads) {
        begin_load(handle);
        expect_records(1024 * kibi);
        EXPECT_NE(record_request(1000), nullptr);
        end_load(true);
        EXPECT_EQ(counting_memory::mapped_octets() - mapped_before, 2048 * kibi);
    }
    handle_forget(handle);
}

TEST_F(FileChunks, what_a_second_load_expects_comes_on_top_of_what_the_first_took)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    expect_records(2048 * kibi);
    EXPECT_EQ(chunk_sizes(1), std::vector<uint64_t>{2048});
    end_load(false);
    begin_load(handle);
    expect_records(4096 * kibi);
    EXPECT_EQ(chunk_sizes(1), std::vector<uint64_t>{4096});
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, outside_a_load_nothing_is_expected)
{
    expect_records(1024 * kibi);
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_EQ(chunk_sizes(1), std::vector<uint64_t>{64});
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, a_large_request_has_a_chunk_of_its_own_and_small_ones_go_on)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *before = static_cast<char *>(record_request(16));
    auto *large = static_cast<char *>(record_request(10 * kibi * kibi));
    auto *after = static_cast<char *>(record_request(16));
    end_load(false);
    ASSERT_NE(large, nullptr);
    EXPECT_TRUE(is_zero(large, 10 * kibi * kibi));
    EXPECT_TRUE(frame::is_in_chunk(large + 10 * kibi * kibi - 1));
    EXPECT_EQ(after, before + 16 + memory::guard_size);
    handle_forget(handle);
}

TEST_F(FileChunks, a_large_request_that_fills_its_pages_has_no_more)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_NE(record_request(1024 * kibi - sizeof(frame::chunk)), nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + 1024 * kibi);
    EXPECT_NE(record_request(1024 * kibi - sizeof(frame::chunk) + 1), nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + (1024 + 1028) * kibi);
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, a_request_that_would_leave_much_of_a_chunk_unused_is_kept_apart)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *before = static_cast<char *>(record_request(14 * kibi));
    for (int i = 0; i < 2; ++i)
        record_request(14 * kibi);
    uint64_t mapped = counting_memory::mapped_octets();
    record_request(40 * kibi);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped + 44 * kibi) << "over a quarter of the next, 128 KiB";
    EXPECT_EQ(record_request(14 * kibi), before + 3 * (14 * kibi + memory::guard_size));
    record_request(30 * kibi);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped + (44 + 128) * kibi);
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, a_quarter_of_the_next_chunk_is_no_request_of_its_own)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_NE(record_request(16 * kibi), nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + 64 * kibi);
    EXPECT_NE(record_request(16 * kibi), nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + 64 * kibi);
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, a_request_of_all_that_is_left_of_a_chunk_is_met_there)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    for (int i = 0; i < 3; ++i)
        record_request(16 * kibi);
    const frame::file_memory &of_file = frame::find_side_record(handle)->memory;
    EXPECT_NE(record_request(static_cast<size_t>(of_file.free_end - of_file.free_begin)), nullptr);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + 64 * kibi);
    EXPECT_EQ(of_file.free_begin, of_file.free_end);
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileChunks, requests_up_to_64_octets_lie_together)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *first = static_cast<char *>(record_request(64));
    auto *large = static_cast<char *>(record_request(65));
    auto *second = static_cast<char *>(record_request(49));
    auto *third = static_cast<char *>(record_request(16));
    EXPECT_EQ(second, first + 64 + memory::guard_size);
    EXPECT_EQ(third, second + 64 + memory::guard_size);
    EXPECT_EQ(record_request(65), large + 80 + memory::guard_size);
    end_load(false);
    handle_forget(handle);
}
