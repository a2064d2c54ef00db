// The memory of the product, not that of the test build: every request that it makes of the system fails
// once, heap and mapping, led here by the linker (--wrap).
#include "inv_parser/inv_parser.h"
#include "inv_platform/system_memory.h"

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <sys/mman.h>
#include <vector>

// Asked for by the address sanitizer, where there is one: to answer what cannot be had as the system does.
extern "C" const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace
{

std::atomic<uint64_t> requests;
uint64_t failing;  // 0: none
bool all_after;
bool has_failed;
bool counts;                            // only what the library asks for is counted
std::map<const char *, size_t> mapped;  // by start

bool refuse()
{
    if (!counts)
        return false;
    const uint64_t number = ++requests;
    if (failing == 0 || number < failing || (number > failing && !all_after))
        return false;
    has_failed = true;
    errno = ENOMEM;
    return true;
}

}  // namespace

extern "C" {

void *__real_calloc(size_t count, size_t size);
void *__real_realloc(void *block, size_t size);
void *__real_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset);
int __real_munmap(void *address, size_t size);
void *__wrap_calloc(size_t count, size_t size);
void *__wrap_realloc(void *block, size_t size);
void *__wrap_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset);
int __wrap_munmap(void *address, size_t size);

void *__wrap_calloc(size_t count, size_t size)
{
    return refuse() ? nullptr : __real_calloc(count, size);
}

void *__wrap_realloc(void *block, size_t size)
{
    return refuse() ? nullptr : __real_realloc(block, size);
}

void *__wrap_mmap(void *address, size_t size, int protection, int flags, int file, off_t offset)
{
    if (refuse())
        return MAP_FAILED;
    void *pages = __real_mmap(address, size, protection, flags, file, offset);
    if (pages != MAP_FAILED)
        mapped.emplace(static_cast<const char *>(pages), size);
    return pages;
}

// A piece may go from the front or the end of a mapping, or all of it.
int __wrap_munmap(void *address, size_t size)
{
    const char *start = static_cast<const char *>(address);
    auto at = mapped.upper_bound(start);
    EXPECT_NE(at, mapped.begin());
    --at;
    const char *end = at->first + at->second;
    const char *behind = start + size;
    EXPECT_LE(behind, end);
    if (behind < end) {
        EXPECT_EQ(start, at->first);
        mapped.emplace(behind, static_cast<size_t>(end - behind));
    }
    if (start > at->first)
        at->second = static_cast<size_t>(start - at->first);
    else
        mapped.erase(start);
    return __real_munmap(address, size);
}

}  // extern "C"

namespace
{

struct order {
    uint64_t n;
    bool all_after;
};

void begin(const order &given)
{
    requests = 0;
    failing = given.n;
    all_after = given.all_after;
    has_failed = false;
    counts = true;
}

bool end()
{
    counts = false;
    return has_failed;
}

uint64_t sum_of(const void *from, size_t size)
{
    uint64_t sum = 0;
    for (size_t i = 0; i < size; ++i)
        sum = sum * 31 + static_cast<const unsigned char *>(from)[i];
    return sum;
}

// ---- The door itself -----------------------------------------------------------------------------------

TEST(SystemMemory, a_mapping_of_any_size_is_zero_is_given_back_whole_and_may_fail)
{
    for (size_t size : {size_t{4096}, size_t{1} << 20, size_t{2} << 20, size_t{4} << 20, size_t{6} << 20,
                        (size_t{4} << 20) + 4096}) {
        begin({1, false});
        EXPECT_EQ(inv::memory::map(size), nullptr);
        EXPECT_TRUE(end());
        EXPECT_TRUE(mapped.empty());
        begin({0, false});
        void *pages = inv::memory::map(size);
        ASSERT_NE(pages, nullptr);
        EXPECT_EQ(sum_of(pages, size), 0u);
        inv::memory::unmap(pages, size);
        EXPECT_FALSE(end());
        EXPECT_TRUE(mapped.empty()) << size;
    }
}

TEST(SystemMemory, a_block_that_cannot_grow_stays_as_it_is)
{
    void *block = inv::memory::request(100);
    ASSERT_NE(block, nullptr);
    static_cast<char *>(block)[99] = 'x';
    begin({1, false});
    EXPECT_EQ(inv::memory::resize(block, 1 << 20), nullptr);
    EXPECT_TRUE(end());
    EXPECT_EQ(static_cast<char *>(block)[99], 'x');
    inv::memory::release(block);
    EXPECT_EQ(inv::memory::request(SIZE_MAX), nullptr);
    EXPECT_EQ(inv::memory::map(SIZE_MAX - 4095), nullptr);
}

// ---- The library above it, with the reference platform: catalogue, trace, all of it --------------------

struct unit {
    uint32_t pi_hw_type, pd_hw_type;
    const char *pid;
    bool is_module;
};

// As the catalogue of the samples has them.
constexpr unit units[] = {
    {1, 1, "CH-8", false},      {3, 17, "LC-48X10", true}, {6, 18, "LC-12X100", true},
    {14, 19, "LC-SMALL", true}, {4, 32, "RP-2", true},     {5, 48, "FC-6T", true},
    {7, 64, "FAN-6", false},    {8, 80, "PSH-DC4", false}, {9, 81, "PEM-4K", false},
    {12, 96, "CXP-120", false},
};

// The whole tree and a record, summed up; 0 for a failure.
uint64_t answers_of(inv_xml_handle *handle)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count) != 0)
        return 0;
    uint64_t sum = count;
    for (uint32_t i = 0; i < count; ++i) {
        sch_base_entity_type *entity = nullptr;
        if (inv_parser_get_eid_data(handle, &entity, eids[i]) == 0)
            sum += sum_of(entity->name, sizeof entity->name) + sum_of(&eids[i], sizeof eids[i]);
        sch_i2c_access_seq_type *way = nullptr;
        inv_parser_get_i2c_access_sequence_by_eid(handle, &eids[i], &way);
        if (way != nullptr)
            sum += sum_of(way, sizeof *way + way->hop_count * sizeof way->hops[0]);
        inv_parser_free_i2c_access_sequence(way);
    }
    inv_parser_free_eid_tree(eids);
    return sum;
}

inv_xml_handle *open_unit(const unit &which)
{
    fru_xml_loc_info loc = {which.pi_hw_type, which.pd_hw_type, 1, 0, {}};
    if (which.pi_hw_type == 4)
        loc.hw_maj_ver = 2;
    snprintf(loc.pid, sizeof loc.pid, "%s", which.pid);
    return inv_parser_open_xml_file_v2(0, &loc);
}

class SystemMemoryFaults : public testing::TestWithParam<unit>
{
protected:
    static void SetUpTestSuite()
    {
        setenv("INV_CATALOG", INV_SOURCE_DIR "/inventories/catalog.txt", 1);
        inv_parser_init(nullptr);
    }
};

INSTANTIATE_TEST_SUITE_P(Samples, SystemMemoryFaults, testing::ValuesIn(units), [](const auto &info) {
    return "pi_hw_type_" + std::to_string(info.param.pi_hw_type);
});

void sweep(const unit &which, bool all, uint64_t *points)
{
    inv_xml_handle *handle = open_unit(which);
    ASSERT_NE(handle, nullptr);
    const uint64_t wanted = answers_of(handle);
    EXPECT_NE(wanted, 0u);
    inv_parser_close_xml_file(handle);
    EXPECT_TRUE(mapped.empty());
    bool failed = true;
    for (order given = {1, all}; failed; ++given.n) {
        SCOPED_TRACE("request " + std::to_string(given.n));
        begin(given);
        handle = open_unit(which);
        const uint64_t got = handle == nullptr ? 0 : answers_of(handle);
        const bool stays = handle != nullptr && handle->root == nullptr && !which.is_module;
        if (handle != nullptr)
            inv_parser_close_xml_file(handle);
        failed = end();
        *points += failed;
        EXPECT_TRUE(failed || got == wanted);
        // Kept: an empty handle stays allocated when it is not a module's.
        if (stays)
            free(handle);
        handle = open_unit(which);
        ASSERT_NE(handle, nullptr);
        ASSERT_EQ(answers_of(handle), wanted);
        inv_parser_close_xml_file(handle);
        ASSERT_TRUE(mapped.empty());
    }
}

TEST_P(SystemMemoryFaults, any_request_of_the_system_may_fail_in_the_life_of_a_file)
{
    uint64_t points = 0;
    sweep(GetParam(), false, &points);
    sweep(GetParam(), true, &points);
    EXPECT_GT(points, 20u);
    RecordProperty("points", static_cast<int>(points));
    printf("%llu points\n", static_cast<unsigned long long>(points));
}

}  // namespace
