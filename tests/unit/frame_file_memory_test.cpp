#include "frame/file_memory.h"

#include "frame/chunk_ranges.h"
#include "inv_platform/memory_guard.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

namespace
{

using namespace inv;

constexpr size_t kibi = 1024;

bool is_zero(const void *block, size_t size)
{
    const auto *octets = static_cast<const unsigned char *>(block);
    return std::all_of(octets, octets + size, [](unsigned char octet) { return octet == 0; });
}

class FileMemory : public testing::Test
{
protected:
    void SetUp() override
    {
        counting_memory::reset();
    }
    void TearDown() override
    {
        counting_memory::reset();
        EXPECT_EQ(counting_memory::live(), live_before);
        EXPECT_EQ(counting_memory::mapped_octets(), mapped_before);
    }

    // As the registry makes them.
    inv_xml_handle *new_handle()
    {
        auto *handle = static_cast<inv_xml_handle *>(memory::request(sizeof(inv_xml_handle)));
        EXPECT_TRUE(frame::add_side_record(handle));
        return handle;
    }

    uint64_t live_before = counting_memory::live();
    uint64_t mapped_before = counting_memory::mapped_octets();
};

struct sample_record {
    uint64_t numbers[5];
};

}  // namespace

TEST_F(FileMemory, outside_a_load_records_come_from_the_heap_and_are_released)
{
    uint64_t live = counting_memory::live();
    auto *record = record_new<sample_record>();
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(is_zero(record, sizeof *record));
    EXPECT_FALSE(frame::is_in_chunk(record));
    EXPECT_EQ(counting_memory::live(), live + 1);
    record_free(record);
    EXPECT_EQ(counting_memory::live(), live);
}

TEST_F(FileMemory, freeing_null_does_nothing)
{
    record_free(nullptr);
    handle_forget(nullptr);
    release_file_memory(nullptr);
}

TEST_F(FileMemory, during_a_load_records_lie_in_the_files_chunks)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *first = record_new<sample_record>();
    auto *second = record_new<sample_record>();
    end_load(false);
    EXPECT_TRUE(frame::is_in_chunk(first));
    EXPECT_EQ(reinterpret_cast<char *>(second), reinterpret_cast<char *>(first) + 48 + memory::guard_size)
        << "40 octets, aligned";
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before + 64 * kibi);
    handle_forget(handle);
}

TEST_F(FileMemory, a_files_records_stay_when_they_are_freed)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *record = record_new<sample_record>();
    end_load(false);
    record->numbers[4] = 7;
    uint64_t live = counting_memory::live();
    record_free(record);
    EXPECT_EQ(record->numbers[4], 7u);
    EXPECT_EQ(counting_memory::live(), live);
    handle_forget(handle);
}

TEST_F(FileMemory, after_a_load_records_come_from_the_heap_again)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    end_load(false);
    auto *record = record_new<sample_record>();
    EXPECT_FALSE(frame::is_in_chunk(record));
    handle_forget(handle);
    record->numbers[0] = 1;
    record_free(record);
}

namespace
{

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

TEST_F(FileMemory, chunks_double_from_64_kibi_to_1_mebi_and_are_large_pages_when_many)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_EQ(chunk_sizes(21),
              (std::vector<uint64_t>{64,   128,  256,  512,  1024, 1024, 1024, 1024, 1024, 1024, 1024,
                                     1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 1024, 2048}));
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileMemory, what_is_expected_takes_large_pages_that_are_half_filled_at_least)
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

TEST_F(FileMemory, a_request_is_met_where_large_pages_cannot_be_had)
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

TEST_F(FileMemory, chunks_that_a_failed_load_left_serve_what_the_next_expects)
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

TEST_F(FileMemory, what_a_second_load_expects_comes_on_top_of_what_the_first_took)
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

TEST_F(FileMemory, outside_a_load_nothing_is_expected)
{
    expect_records(1024 * kibi);
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_EQ(chunk_sizes(1), std::vector<uint64_t>{64});
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileMemory, a_large_request_has_a_chunk_of_its_own_and_small_ones_go_on)
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

TEST_F(FileMemory, a_large_request_that_fills_its_pages_has_no_more)
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

TEST_F(FileMemory, a_request_that_would_leave_much_of_a_chunk_unused_is_kept_apart)
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

TEST_F(FileMemory, a_quarter_of_the_next_chunk_is_no_request_of_its_own)
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

TEST_F(FileMemory, a_request_of_all_that_is_left_of_a_chunk_is_met_there)
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

TEST_F(FileMemory, requests_up_to_64_octets_lie_together)
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

TEST_F(FileMemory, absurd_sizes_are_refused)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_NE(record_request(16), nullptr);
    EXPECT_EQ(record_request(SIZE_MAX), nullptr) << "not even where small ones lie";
    EXPECT_EQ(record_request(SIZE_MAX - 15), nullptr);
    EXPECT_EQ(record_request(SIZE_MAX / 2), nullptr);
    EXPECT_NE(record_request(0), nullptr);
    EXPECT_NE(record_request(0), record_request(0));
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileMemory, a_failed_load_leaves_its_chunks_zeroed_to_the_next)
{
    inv_xml_handle *handle = new_handle();
    std::vector<void *> first_try;
    {
        load_scope scope(handle);
        for (int i = 0; i < 1000; ++i) {
            first_try.push_back(record_request(500));
            memset(first_try.back(), 0xEE, 500);
        }
        memset(record_request(9 * kibi * kibi), 0xEE, 9 * kibi * kibi);
        scope.mark_failed();
    }
    uint64_t mapped = counting_memory::mapped_octets();
    {
        load_scope scope(handle);
        EXPECT_EQ(counting_memory::mapped_octets(), mapped - 9 * kibi * kibi - 4 * kibi)
            << "large ones go back";
        for (int i = 0; i < 1000; ++i) {
            void *again = record_request(500);
            ASSERT_EQ(again, first_try[static_cast<size_t>(i)]);
            ASSERT_TRUE(is_zero(again, 500)) << i;
        }
        EXPECT_EQ(counting_memory::mapped_octets(), mapped - 9 * kibi * kibi - 4 * kibi);
    }
    handle_forget(handle);
}

TEST_F(FileMemory, small_records_of_a_retry_lie_apart_from_the_others)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    EXPECT_NE(record_request(16), nullptr);
    end_load(true);
    begin_load(handle);
    void *first = record_request(4000);
    ASSERT_NE(first, nullptr);
    memset(first, 0xEE, 4000);
    void *small = record_request(16);
    ASSERT_NE(small, nullptr);
    EXPECT_TRUE(is_zero(small, 16));
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileMemory, tables_may_be_kept_of_trees_in_ones_own_memory_and_in_the_heap)
{
    inv_xml_handle *handle = new_handle();
    inv_xml_handle *other = new_handle();
    int elsewhere = 0;
    begin_load(handle);
    std::vector<void *> places = {&elsewhere, record_request(16), record_request(10 * kibi * kibi)};
    // So that the file has more than one chunk, and two of their own.
    for (int i = 0; i < 10; ++i)
        places.push_back(record_request(14 * kibi));
    places.push_back(record_request(10 * kibi * kibi));
    end_load(false);
    for (const void *place : places) {
        EXPECT_TRUE(may_keep_tables_of(handle, place));
        EXPECT_EQ(may_keep_tables_of(other, place), place == &elsewhere);
    }
    handle_forget(other);
    handle_forget(handle);
    inv_xml_handle by_hand = {};
    EXPECT_FALSE(may_keep_tables_of(&by_hand, &elsewhere));
}

TEST_F(FileMemory, no_table_knows_what_a_failed_load_built_when_the_next_begins)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    end_load(true);
    set_side_table(handle, side_table::eid_lookup, memory::request(16), memory::release);
    begin_load(handle);
    EXPECT_EQ(get_side_table(handle, side_table::eid_lookup), nullptr);
    end_load(false);
    set_side_table(handle, side_table::eid_lookup, memory::request(16), memory::release);
    begin_load(handle);
    EXPECT_NE(get_side_table(handle, side_table::eid_lookup), nullptr) << "what is kept stays known";
    end_load(false);
    handle_forget(handle);
}

TEST_F(FileMemory, the_record_of_a_failed_load_is_no_longer_the_handles_when_the_next_begins)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *record = record_new<sample_record>();
    handle->module_record = reinterpret_cast<sch_module_type *>(record);
    end_load(true);
    EXPECT_NE(handle->module_record, nullptr) << "stays where the load put it until then";
    begin_load(handle);
    EXPECT_EQ(handle->module_record, nullptr);
    end_load(true);
    handle_forget(handle);
}

TEST_F(FileMemory, a_smaller_retry_fills_the_kept_chunks_in_turn)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    for (int i = 0; i < 5000; ++i)
        memset(record_request(480), 0xEE, 480);
    end_load(true);
    uint64_t mapped = counting_memory::mapped_octets();
    for (int tries = 0; tries < 3; ++tries) {
        begin_load(handle);
        for (int i = 0; i < 1000 * (tries + 1); ++i) {
            void *record = record_request(480);
            ASSERT_TRUE(is_zero(record, 480));
            memset(record, 0xEE, 480);
        }
        end_load(true);
        EXPECT_EQ(counting_memory::mapped_octets(), mapped);
    }
    handle_forget(handle);
}

TEST_F(FileMemory, what_a_successful_load_built_survives_a_later_failed_one)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    auto *record = record_new<sample_record>();
    record->numbers[0] = 7;
    end_load(false);
    for (int i = 0; i < 2; ++i) {
        begin_load(handle);
        EXPECT_NE(record_new<sample_record>(), record);
        end_load(true);
    }
    EXPECT_EQ(record->numbers[0], 7u);
    handle_forget(handle);
}

TEST_F(FileMemory, a_handle_without_side_record_loads_into_the_heap)
{
    auto *handle = static_cast<inv_xml_handle *>(memory::request(sizeof(inv_xml_handle)));
    begin_load(handle);
    auto *record = record_new<sample_record>();
    end_load(false);
    ASSERT_NE(record, nullptr);
    EXPECT_FALSE(frame::is_in_chunk(record));
    release_file_memory(handle);
    record->numbers[0] = 1;
    record_free(record);
    handle_forget(handle);
}

TEST_F(FileMemory, releasing_the_memory_leaves_the_handle_without_side_record)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    record_new<sample_record>();
    end_load(false);
    release_file_memory(handle);
    EXPECT_EQ(counting_memory::mapped_octets(), mapped_before);
    EXPECT_EQ(frame::find_side_record(handle), nullptr);
    handle->file_count = 1;
    handle_forget(handle);
}

TEST_F(FileMemory, releasing_in_the_middle_of_a_load_ends_it)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    record_new<sample_record>();
    handle_forget(handle);
    auto *record = record_new<sample_record>();
    EXPECT_FALSE(frame::is_in_chunk(record));
    end_load(false);
    record_free(record);
}

TEST_F(FileMemory, running_out_of_memory_gives_null_and_leaves_the_file_usable)
{
    // Large and small requests, so that chunks of both sorts and the table of ranges are refused in turn.
    for (uint64_t wanted = 1;; ++wanted) {
        inv_xml_handle *handle = new_handle();
        begin_load(handle);
        counting_memory::fail_at(wanted);
        int refused = 0;
        for (int i = 0; i < 3000; ++i)
            refused += record_request(i % 100 == 99 ? 2048 * kibi : 200) == nullptr ? 1 : 0;
        bool failed = counting_memory::failed();
        counting_memory::reset();
        EXPECT_EQ(refused, failed ? 1 : 0) << wanted;
        EXPECT_NE(record_request(200), nullptr);
        end_load(false);
        handle_forget(handle);
        ASSERT_EQ(counting_memory::live(), live_before) << wanted;
        if (!failed) {
            EXPECT_GT(wanted, 35u);
            break;
        }
    }
}

TEST_F(FileMemory, random_requests_over_many_files_stay_apart_until_their_file_goes)
{
    struct block {
        unsigned char *start;
        size_t size;
        unsigned char mark;
    };
    struct file {
        inv_xml_handle *handle;
        std::vector<block> blocks;
    };
    std::mt19937 random(20240611);
    std::vector<file> files;
    std::vector<block> heap;
    auto intact = [](const block &each) {
        return std::all_of(each.start, each.start + each.size,
                           [&](unsigned char c) { return c == each.mark; });
    };
    auto request = [&](std::vector<block> &into) {
        size_t size = random() % (random() % 50 == 0 ? 300000 : 1500);
        block made = {static_cast<unsigned char *>(record_request(size)), size,
                      static_cast<unsigned char>(random() | 1)};
        ASSERT_NE(made.start, nullptr);
        ASSERT_EQ(reinterpret_cast<uintptr_t>(made.start) % record_alignment, 0u);
        ASSERT_TRUE(is_zero(made.start, size));
        memset(made.start, made.mark, size);
        into.push_back(made);
    };
    for (int round = 0; round < 400; ++round) {
        unsigned long choice = random() % 4;
        if (choice <= 1 || files.empty()) {
            if (choice == 0 || files.empty())
                files.push_back({new_handle(), {}});
            file &chosen = files[random() % files.size()];
            load_scope scope(chosen.handle);
            for (unsigned long i = random() % 60; i > 0; --i)
                request(chosen.blocks);
        } else if (choice == 2) {
            request(heap);
        } else {
            std::swap(files[random() % files.size()], files.back());
            for (const block &each : files.back().blocks) {
                ASSERT_TRUE(frame::is_in_chunk(each.start));
                ASSERT_TRUE(intact(each));
                record_free(each.start);
            }
            handle_forget(files.back().handle);
            files.pop_back();
        }
    }
    for (const block &each : heap) {
        ASSERT_FALSE(frame::is_in_chunk(each.start));
        ASSERT_TRUE(intact(each));
        record_free(each.start);
    }
    std::shuffle(files.begin(), files.end(), random);
    for (const file &each : files) {
        ASSERT_TRUE(std::all_of(each.blocks.begin(), each.blocks.end(), intact));
        handle_forget(each.handle);
    }
}

TEST_F(FileMemory, a_small_record_without_memory_for_its_block_is_refused_and_can_be_asked_for_again)
{
    inv_xml_handle *handle = new_handle();
    begin_load(handle);
    // A new mapping and its place among the ranges.
    for (uint64_t n : {uint64_t{1}, uint64_t{2}}) {
        counting_memory::fail_at(n);
        EXPECT_EQ(record_new<sample_record>(), nullptr) << n;
        EXPECT_TRUE(counting_memory::failed()) << n;
        counting_memory::reset();
        EXPECT_EQ(counting_memory::mapped_octets(), mapped_before) << n;
    }
    auto *record = record_new<sample_record>();
    end_load(false);
    EXPECT_TRUE(frame::is_in_chunk(record));
    handle_forget(handle);
}
