// The door to the system's memory that both libraries are built with; most tests have another one in its
// place.
#include "inv_platform/system_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

// Asked for by the address sanitizer, where there is one: to answer what cannot be had as the system does.
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace
{

using namespace inv;

constexpr size_t mebi = size_t{1} << 20;
constexpr size_t more_than_there_is = size_t{1} << 60;

bool is_zero(const void *block, size_t size)
{
    const auto *octets = static_cast<const unsigned char *>(block);
    return std::all_of(octets, octets + size, [](unsigned char octet) { return octet == 0; });
}

TEST(SystemMemory, blocks_are_zero_and_keep_their_octets_when_they_grow)
{
    auto *block = static_cast<char *>(memory::request(100));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(is_zero(block, 100));
    memset(block, 'x', 100);
    block = static_cast<char *>(memory::resize(block, mebi));
    ASSERT_NE(block, nullptr);
    EXPECT_TRUE(std::all_of(block, block + 100, [](char octet) { return octet == 'x'; }));
    EXPECT_EQ(memory::resize(block, more_than_there_is), nullptr);
    EXPECT_EQ(block[99], 'x');
    memory::release(block);
    memory::release(nullptr);
}

// Large pages serve mappings of whole ones from two on, whose ends are cut to their bounds.
TEST(SystemMemory, mappings_are_zero_writable_and_aligned)
{
    for (size_t size : {size_t{4096}, 2 * mebi, 3 * mebi, 4 * mebi, 4 * mebi + 4096, 10 * mebi}) {
        auto *pages = static_cast<unsigned char *>(memory::map(size));
        ASSERT_NE(pages, nullptr) << size;
        const bool has_large_pages = size >= 4 * mebi && size % (2 * mebi) == 0;
        EXPECT_EQ(reinterpret_cast<uintptr_t>(pages) % (has_large_pages ? 2 * mebi : 4096), 0u) << size;
        EXPECT_TRUE(is_zero(pages, size)) << size;
        memset(pages, 1, size);
        memory::unmap(pages, size);
    }
}

TEST(SystemMemory, what_the_system_lacks_is_null)
{
    EXPECT_EQ(memory::request(more_than_there_is), nullptr);
    EXPECT_EQ(memory::map(more_than_there_is), nullptr) << "with large pages";
    EXPECT_EQ(memory::map(more_than_there_is + 4096), nullptr);
    EXPECT_EQ(memory::map(0), nullptr);
}

}  // namespace
