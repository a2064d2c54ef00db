// The memory of the product, not that of the test build: every request that it makes of the system fails
// once, heap and mapping, led here by the linker (--wrap).
#include "inv_parser/inv_parser.h"
#include "inv_platform/system_memory.h"

#include "faults/record_octets.h"
#include "frame/channel.h"
#include "inv_parser/base_entity.h"
#include "inv_platform/trace.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
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

// ---- The start of the library: its trace channel ------------------------------------------------------

TEST(SystemMemory, a_library_that_starts_without_memory_works_untraced_and_may_start_again)
{
    uint32_t requests_met = 0;
    for (bool all : {false, true}) {
        bool failed = true;
        for (order given = {1, all}; failed; ++given.n) {
            SCOPED_TRACE("request " + std::to_string(given.n));
            inv::frame::inv_schema_trace_handle = nullptr;
            inv::frame::trace_ready = 0;
            qtrace_configuration config = {sizeof config, 0, "/nowhere/at/all"};
            begin(given);
            testing::internal::CaptureStderr();
            EXPECT_EQ(inv_parser_init(&config), 0u);
            const std::string told = testing::internal::GetCapturedStderr();
            failed = end();
            requests_met += failed;
            void *channel = nullptr;
            const bool is_open = inv_schema_get_qtrace_hdl(&channel) == 0;
            EXPECT_EQ(is_open, told.empty()) << told;
            EXPECT_TRUE(is_open || failed);
            EXPECT_EQ(inv_parser_init(nullptr), 0u);
            EXPECT_EQ(inv_schema_get_qtrace_hdl(&channel), 0u);
        }
    }
    EXPECT_EQ(requests_met, 6u) << "the channel, its ring and the configuration's path";
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

// One question after the other, each answer by itself; an empty one is a failure.
using answers = std::vector<std::string>;

std::string octets_of(const void *from, size_t size)
{
    return std::string(static_cast<const char *>(from), size);
}

std::vector<sch_eid_type> tree_of(inv_xml_handle *handle)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count) != 0)
        return {};
    std::vector<sch_eid_type> all(eids, eids + count);
    inv_parser_free_eid_tree(eids);
    return all;
}

std::string record_of(inv_xml_handle *handle, const sch_eid_type &eid)
{
    sch_base_entity_type *entity = nullptr;
    if (inv_parser_get_eid_data(handle, &entity, eid) != 0)
        return "";
    return fault_world::record_octets(*entity);
}

std::string hops_to(inv_xml_handle *handle, const sch_eid_type &eid)
{
    sch_i2c_access_seq_type *way = nullptr;
    inv_parser_get_i2c_access_sequence_by_eid(handle, &eid, &way);
    if (way == nullptr)
        return "";
    std::string octets = octets_of(way, sizeof *way + way->hop_count * sizeof way->hops[0]);
    inv_parser_free_i2c_access_sequence(way);
    return octets;
}

// The tree, then two questions about each of the entities, whether the tree has them or not.
answers answers_of(inv_xml_handle *handle, const std::vector<sch_eid_type> &entities)
{
    const std::vector<sch_eid_type> tree = tree_of(handle);
    answers all = {octets_of(tree.data(), tree.size() * sizeof tree[0])};
    for (const sch_eid_type &eid : entities) {
        all.push_back(record_of(handle, eid));
        all.push_back(hops_to(handle, eid));
    }
    return all;
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

// A channel of the test's own in place of the library's, with room for a whole life. It takes long to read.
class whole_channel
{
public:
    whole_channel() : before(inv::frame::inv_schema_trace_handle)
    {
        EXPECT_EQ(qtrace_open_internal(&channel, "whole", 1 << 20, 0, "", "", 0), 0);
        inv::frame::inv_schema_trace_handle = channel;
    }
    ~whole_channel()
    {
        inv::frame::inv_schema_trace_handle = before;
    }
    whole_channel(const whole_channel &) = delete;
    whole_channel &operator=(const whole_channel &) = delete;

    void mark() const
    {
        qtrace_internal(channel, marker, 4, 0, "", "\n");
    }
    void mark_end() const
    {
        qtrace_internal(channel, end_marker, 4, 0, "", "\n");
    }
    // The lines since the last mark, which has to be there still, up to an end that was marked.
    std::set<uint32_t> since_mark() const
    {
        struct {
            std::set<uint32_t> ids;
            bool is_marked = false;
            bool is_ended = false;
        } found;
        qtrace_read(
            channel,
            [](void *user, uint32_t id, const char *) {
                auto &lines = *static_cast<decltype(found) *>(user);
                if (id == marker)
                    lines = {{}, true, false};
                else if (id == end_marker)
                    lines.is_ended = true;
                else if (!lines.is_ended)
                    lines.ids.insert(id);
            },
            &found);
        EXPECT_TRUE(found.is_marked);
        return found.ids;
    }

private:
    static constexpr uint32_t marker = 1000000;
    static constexpr uint32_t end_marker = 1000001;
    void *before;
    void *channel = nullptr;
};

struct life {
    std::string head;  // name of the top entity
    answers given;
};

bool tells_more(const std::set<uint32_t> &than, const std::set<uint32_t> &wanted)
{
    return !std::includes(wanted.begin(), wanted.end(), than.begin(), than.end());
}

// Octets in front of the parts of an answer, and of each part: the tree's entities, a record's items, or a
// way's hops.
struct shape {
    size_t head;
    size_t part;
};

shape shape_of(size_t question)
{
    if (question == 0)
        return {0, sizeof(sch_eid_type)};
    return question % 2 == 1 ? shape{0, fault_world::record_item_size}
                             : shape{sizeof(sch_i2c_access_seq_type), sizeof(sch_i2c_access_hop_type)};
}

bool is_part_of(const std::string &given, const std::string &whole, const shape &of)
{
    std::set<std::string> parts;
    for (size_t at = of.head; at < whole.size(); at += of.part)
        parts.insert(whole.substr(at, of.part));
    for (size_t at = of.head; at < given.size(); at += of.part)
        if (!parts.contains(given.substr(at, of.part)))
            return false;
    return given.size() <= whole.size();
}

// The open failed, or something was answered that is not what it should be. A question that failed says so
// itself.
bool needs_telling(const life &lived, const life &wanted)
{
    if (lived.head != wanted.head)
        return true;
    for (size_t i = 0; i < lived.given.size(); ++i)
        if (!lived.given[i].empty() && lived.given[i] != wanted.given[i])
            return true;
    return false;
}

void expect_honest(const life &lived, const life &wanted, const whole_channel &channel,
                   const std::set<uint32_t> &wanted_lines)
{
    if (!needs_telling(lived, wanted))
        return;
    const bool is_told = tells_more(channel.since_mark(), wanted_lines);
    EXPECT_TRUE(is_told || lived.head == wanted.head);
    // Without memory for the unit's node another entity heads the tree, and EIDs begin there.
    if (lived.head != wanted.head)
        return;
    for (size_t i = 0; i < lived.given.size(); ++i) {
        const std::string &given = lived.given[i];
        if (given.empty() || given == wanted.given[i])
            continue;
        EXPECT_TRUE(is_told) << "question " << i << ": a wrong answer without a word";
        EXPECT_TRUE(is_part_of(given, wanted.given[i], shape_of(i))) << "question " << i << ": no part of it";
    }
}

life live_once(const unit &which, const std::vector<sch_eid_type> &entities, const whole_channel &channel)
{
    life lived;
    channel.mark();
    inv_xml_handle *handle = open_unit(which);
    if (handle == nullptr)
        return lived;
    if (handle->root != nullptr)
        lived.head = handle->root->record->name;
    lived.given = answers_of(handle, entities);
    // What the close says tells nobody that an answer was partial.
    channel.mark_end();
    const bool stays = handle->root == nullptr && !which.is_module;
    inv_parser_close_xml_file(handle);
    // Kept: an empty handle stays allocated when it is not a module's.
    if (stays)
        free(handle);
    return lived;
}

size_t descriptors()
{
    namespace fs = std::filesystem;
    return static_cast<size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

void sweep(const unit &which, bool all, uint64_t *points)
{
    const whole_channel channel;
    inv_xml_handle *handle = open_unit(which);
    ASSERT_NE(handle, nullptr);
    const std::vector<sch_eid_type> entities = tree_of(handle);
    EXPECT_FALSE(entities.empty());
    inv_parser_close_xml_file(handle);
    EXPECT_TRUE(mapped.empty());
    const life wanted = live_once(which, entities, channel);
    const std::set<uint32_t> wanted_lines = channel.since_mark();
    const size_t descriptors_before = descriptors();
    bool failed = true;
    for (order given = {1, all}; failed; ++given.n) {
        SCOPED_TRACE("request " + std::to_string(given.n));
        begin(given);
        const life lived = live_once(which, entities, channel);
        failed = end();
        *points += failed;
        EXPECT_TRUE(failed || lived.given == wanted.given);
        expect_honest(lived, wanted, channel, wanted_lines);
        EXPECT_EQ(descriptors(), descriptors_before);
        ASSERT_EQ(live_once(which, entities, channel).given, wanted.given);
        ASSERT_TRUE(mapped.empty());
        ASSERT_EQ(descriptors(), descriptors_before);
        ASSERT_FALSE(testing::Test::HasFailure());
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
