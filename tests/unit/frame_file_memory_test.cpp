#include "unit/frame_file_memory_fixture.h"

#include <cstring>
#include <random>
#include <vector>

using namespace inv;
using namespace file_memory_test;

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
