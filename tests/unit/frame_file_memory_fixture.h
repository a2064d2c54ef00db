// What the tests of a file's memory and of its chunks share.
#ifndef TESTS_UNIT_FRAME_FILE_MEMORY_FIXTURE_H
#define TESTS_UNIT_FRAME_FILE_MEMORY_FIXTURE_H

#include "frame/chunk_ranges.h"
#include "frame/file_memory.h"
#include "inv_platform/memory_guard.h"
#include "inv_platform/system_memory.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace file_memory_test
{

using namespace inv;

inline constexpr size_t kibi = 1024;

inline bool is_zero(const void *block, size_t size)
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

}  // namespace file_memory_test

#endif
