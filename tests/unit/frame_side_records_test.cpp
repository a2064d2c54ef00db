#include "frame/side_records.h"

#include "frame/chunk_ranges.h"
#include "frame/file_memory.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sys/mman.h>
#include <vector>

namespace
{

using namespace inv;

int released;

void count_release(void *table)
{
    released += *static_cast<int *>(table);
}

class SideRecords : public testing::Test
{
protected:
    void SetUp() override
    {
        counting_memory::reset();
        released = 0;
    }
    void TearDown() override
    {
        counting_memory::reset();
        EXPECT_EQ(counting_memory::live(), live_before);
    }
    uint64_t live_before = counting_memory::live();
};

}  // namespace

TEST_F(SideRecords, a_handle_made_by_hand_has_none_and_that_is_harmless)
{
    inv_xml_handle handle = {};
    int table = 1;
    EXPECT_EQ(frame::find_side_record(&handle), nullptr);
    EXPECT_EQ(frame::find_side_record(nullptr), nullptr);
    remember_loaded_kind(&handle, 3, nullptr);
    EXPECT_EQ(loaded_kind(&handle), 0);
    EXPECT_FALSE(set_side_table(&handle, side_table::eid_lookup, &table, count_release));
    EXPECT_EQ(get_side_table(&handle, side_table::eid_lookup), nullptr);
    EXPECT_EQ(released, 0);
}

TEST_F(SideRecords, keep_the_loaded_kind)
{
    inv_xml_handle handle = {};
    ASSERT_TRUE(frame::add_side_record(&handle));
    EXPECT_EQ(loaded_kind(&handle), 0);
    remember_loaded_kind(&handle, 6, nullptr);
    EXPECT_EQ(loaded_kind(&handle), 6);
    release_file_memory(&handle);
    EXPECT_EQ(loaded_kind(&handle), 0);
}

// A client may have given the handle the tree of another file, which went before.
TEST_F(SideRecords, tell_a_module_without_a_look_at_its_tree)
{
    inv_xml_handle handle = {};
    ASSERT_TRUE(frame::add_side_record(&handle));
    remember_loaded_kind(&handle, loaded_module_document, nullptr);
    void *pages = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    handle.root = static_cast<eid_chain_node *>(pages);
    EXPECT_EQ(loaded_kind(&handle), loaded_module_document);
    release_file_memory(&handle);
    munmap(pages, 4096);
}

TEST_F(SideRecords, release_a_table_when_it_is_replaced_and_when_the_file_goes)
{
    inv_xml_handle handle = {};
    ASSERT_TRUE(frame::add_side_record(&handle));
    int first = 1, second = 10;
    EXPECT_TRUE(set_side_table(&handle, side_table::eid_lookup, &first, count_release));
    EXPECT_EQ(get_side_table(&handle, side_table::eid_lookup), &first);
    EXPECT_TRUE(set_side_table(&handle, side_table::eid_lookup, &second, count_release));
    EXPECT_EQ(released, 1);
    EXPECT_EQ(get_side_table(&handle, side_table::eid_lookup), &second);
    release_file_memory(&handle);
    EXPECT_EQ(released, 11);
}

TEST_F(SideRecords, a_table_is_released_while_the_files_memory_still_stands)
{
    inv_xml_handle handle = {};
    ASSERT_TRUE(frame::add_side_record(&handle));
    begin_load(&handle);
    int *table = record_new<int>();
    end_load(false);
    *table = 5;
    ASSERT_TRUE(set_side_table(&handle, side_table::eid_lookup, table, count_release));
    release_file_memory(&handle);
    EXPECT_EQ(released, 5);
}

// A search for a handle that has none ends at an empty place.
TEST_F(SideRecords, fill_at_most_half_of_their_table)
{
    std::vector<inv_xml_handle> handles(64);
    std::vector<size_t> grown_at;
    for (size_t i = 0; i < handles.size(); ++i) {
        const uint64_t before = counting_memory::requests();
        ASSERT_TRUE(frame::add_side_record(&handles[i]));
        if (counting_memory::requests() - before == 2)
            grown_at.push_back(i);
    }
    EXPECT_EQ(grown_at, (std::vector<size_t>{0, 8, 16, 32}));
    for (inv_xml_handle &handle : handles)
        release_file_memory(&handle);
}

TEST_F(SideRecords, the_list_of_their_chunks_takes_at_most_twice_what_it_needs)
{
    const uint64_t before = counting_memory::heap_octets();
    constexpr size_t chunk_count = 17;
    constexpr size_t range_size = 2 * sizeof(void *);
    char places[chunk_count];
    for (char &place : places)
        ASSERT_TRUE(frame::add_chunk_range(&place, 1));
    EXPECT_LE(counting_memory::heap_octets() - before, 2 * chunk_count * range_size);
    for (char &place : places)
        frame::remove_chunk_range(&place);
}

TEST_F(SideRecords, thousands_are_found_by_their_handles_in_any_order_of_coming_and_going)
{
    std::mt19937 random(7);
    std::vector<inv_xml_handle> handles(5000);
    std::vector<size_t> order(handles.size());
    for (size_t i = 0; i < handles.size(); ++i) {
        order[i] = i;
        ASSERT_TRUE(frame::add_side_record(&handles[i]));
        remember_loaded_kind(&handles[i], static_cast<uint8_t>(1 + i % 200), nullptr);
    }
    std::shuffle(order.begin(), order.end(), random);
    for (size_t gone = 0; gone < order.size(); ++gone) {
        release_file_memory(&handles[order[gone]]);
        ASSERT_EQ(frame::find_side_record(&handles[order[gone]]), nullptr);
        if (gone % 100 != 0)
            continue;
        for (size_t left = gone + 1; left < order.size(); ++left)
            ASSERT_EQ(loaded_kind(&handles[order[left]]), 1 + order[left] % 200);
    }
}

TEST_F(SideRecords, running_out_of_memory_adds_nothing_and_keeps_the_others)
{
    std::vector<inv_xml_handle> handles(40);
    for (size_t i = 0; i < handles.size(); ++i) {
        for (uint64_t wanted = 1;; ++wanted) {
            counting_memory::fail_at(wanted);
            bool added = frame::add_side_record(&handles[i]);
            bool failed = counting_memory::failed();
            counting_memory::reset();
            EXPECT_EQ(added, !failed);
            if (added)
                break;
            EXPECT_EQ(frame::find_side_record(&handles[i]), nullptr);
            if (i == 0) {
                EXPECT_EQ(counting_memory::live(), live_before);
            }
        }
        remember_loaded_kind(&handles[i], static_cast<uint8_t>(i + 1), nullptr);
        for (size_t j = 0; j <= i; ++j)
            EXPECT_EQ(loaded_kind(&handles[j]), j + 1);
    }
    for (inv_xml_handle &each : handles)
        release_file_memory(&each);
}

TEST_F(SideRecords, chunk_ranges_tell_pointers_apart_at_their_borders)
{
    std::mt19937 random(11);
    std::vector<char> space(200 * 64);
    std::vector<size_t> chunks;
    for (size_t i = 0; i < 100; ++i)
        chunks.push_back(2 * i);
    std::shuffle(chunks.begin(), chunks.end(), random);
    for (size_t each : chunks)
        ASSERT_TRUE(frame::add_chunk_range(&space[each * 64], 64));
    auto holds = [&](size_t chunk) {
        return frame::is_in_chunk(&space[chunk * 64]) && frame::is_in_chunk(&space[chunk * 64 + 63]);
    };
    std::shuffle(chunks.begin(), chunks.end(), random);
    for (size_t gone = 0; gone < chunks.size(); ++gone) {
        for (size_t left = gone; left < chunks.size(); ++left) {
            ASSERT_TRUE(holds(chunks[left]));
            ASSERT_FALSE(frame::is_in_chunk(&space[chunks[left] * 64 + 64])) << "the octet behind a chunk";
        }
        frame::remove_chunk_range(&space[chunks[gone] * 64]);
        ASSERT_FALSE(frame::is_in_chunk(&space[chunks[gone] * 64]));
    }
}
