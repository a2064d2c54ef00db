// Several threads open, query through the entry points that take the lock, and close, at once. Meant for
// the thread sanitizer, which reports what these expectations cannot see.
#include "inv_parser/inv_parser.h"
#include "inv_platform/lookup.h"
#include "support/counting_memory.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr int thread_count = 4;
constexpr int rounds = 50;

struct unit {
    uint32_t pi_hw_type;
    const char *file;
    uint32_t entities;
};

constexpr unit units[] = {
    {1, INV_SOURCE_DIR "/tests/documents/data/chassis.xml", 12},
    {3, INV_SOURCE_DIR "/tests/documents/data/module.xml", 20},
    {7, INV_SOURCE_DIR "/tests/documents/data/fan_tray.xml", 7},
    {8, INV_SOURCE_DIR "/tests/documents/data/power_shelf.xml", 9},
    {9, INV_SOURCE_DIR "/tests/documents/data/pem.xml", 5},
    {12, INV_SOURCE_DIR "/tests/documents/data/optics.xml", 3},
    {4, INV_SOURCE_DIR "/tests/documents/data/none.xml", 0},
};

const char *file_of(uint32_t pi_hw_type)
{
    for (const unit &each : units) {
        if (each.pi_hw_type == pi_hw_type)
            return each.file;
    }
    return nullptr;
}

inv_xml_handle *open_unit(const unit &which, bool second_generation)
{
    if (!second_generation)
        return inv_parser_open_xml_file(0, which.pi_hw_type, 0, "PID");
    fru_xml_loc_info loc = {};
    loc.pi_hw_type = which.pi_hw_type;
    return inv_parser_open_xml_file_v2(0, &loc);
}

// False when an answer is wrong.
bool query(inv_xml_handle *handle, const unit &which)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    if (inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count) != 0 ||
        count != which.entities)
        return false;
    sch_base_entity_type *entity = nullptr;
    bool good = inv_parser_get_eid_data(handle, &entity, eids[0]) == 0 && entity->xml_instance == 1;
    inv_parser_free_eid_tree(eids);

    eids = nullptr;
    uint16_t narrow = 0;
    good = good && inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_SHELF, 8, &narrow, &eids) == 0;
    inv_parser_free_eid_tree(eids);
    eids = nullptr;
    good = good && inv_parser_get_eid_by_type_subtype(handle, ORVL_ENTITY_OWNER_TYPE_ALL, 8, INV_ANY_SUBTYPE,
                                                      &narrow, &eids) == 0;
    inv_parser_free_eid_tree(eids);
    return good;
}

void work(int number, std::atomic<int> &wrong)
{
    constexpr size_t unit_count = sizeof units / sizeof units[0];
    for (int round = 0; round < rounds; ++round) {
        const unit &which = units[static_cast<size_t>(number + round) % unit_count];
        inv_xml_handle *handle = open_unit(which, (round & 1) != 0);
        if (handle == nullptr) {
            wrong += which.entities == 0 ? 0 : 1;
            continue;
        }
        wrong += query(handle, which) ? 0 : 1;
        wrong += inv_parser_close_xml_file(handle) == 0 ? 0 : 1;
        if (round % 10 == 0)
            inv_parser_init(nullptr);
    }
}

TEST(LoadThreads, files_are_opened_queried_and_closed_by_several_threads_at_once)
{
    ASSERT_EQ(inv_parser_init(nullptr), 0u);
    uint64_t mapped = counting_memory::mapped_octets();
    // One file stays open throughout, so that its handle is shared.
    inv_xml_handle *shared = open_unit(units[1], false);
    ASSERT_NE(shared, nullptr);
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < thread_count; ++i)
        threads.emplace_back(work, i, std::ref(wrong));
    for (std::thread &each : threads)
        each.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(shared->file_count, 1);
    EXPECT_EQ(inv_parser_close_xml_file(shared), 0u);
    // The document that is missing stays known, with the memory of its failed loads.
    inv_xml_handle *missing = inv_parser_get_xml_handle(0, 4, 0, "");
    ASSERT_NE(missing, nullptr);
    EXPECT_EQ(missing->file_count, 0);
    EXPECT_LE(counting_memory::mapped_octets(), mapped + 64 * 1024);
}

}  // namespace

const char *platform_get_inv_xml_file_name(uint32_t pi_hw_type, uint32_t, const char *)
{
    return file_of(pi_hw_type);
}

const char *platform_get_inv_xml_file_name_v2(const fru_xml_loc_info *loc)
{
    return file_of(loc->pi_hw_type);
}
