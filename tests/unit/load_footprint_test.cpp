// What an open file costs in memory beyond its records, and that filing slots walks no list.
#include "frame/side_records.h"
#include "generate_document.h"
#include "generate_unit_document.h"
#include "inv_platform/memory_guard.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"

#include "inv_parser/inv_parser.h"
#include "inv_parser/tree_internal.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <string_view>
#include <unistd.h>

namespace
{

// Octets of what the builders asked for, each request as it was: records, tree nodes, index nodes.
uint64_t asked_octets;
uint64_t slot_searches;

}  // namespace

// inv::record_request(size_t), seen from its callers.
extern "C" void *__real__ZN3inv14record_requestEm(size_t size);

extern "C" void *__wrap__ZN3inv14record_requestEm(size_t size)
{
    asked_octets += size + inv::memory::guard_size;
    return __real__ZN3inv14record_requestEm(size);
}

extern "C" sch_cc_slot_xml_inst_type *
__real_parser_verify_is_slot_xml_inst_available(sch_cc_slot_xml_inst_type *list, uint32_t key,
                                                uint32_t ignored);

extern "C" sch_cc_slot_xml_inst_type *
__wrap_parser_verify_is_slot_xml_inst_available(sch_cc_slot_xml_inst_type *list, uint32_t key,
                                                uint32_t ignored)
{
    ++slot_searches;
    return __real_parser_verify_is_slot_xml_inst_available(list, key, ignored);
}

namespace
{

struct document_kind {
    const char *name;
    uint32_t pi_hw_type;
    std::string (*text)(uint32_t entities);
};

template <inv_bench::unit_kind Kind>
std::string unit_text(uint32_t entities)
{
    return inv_bench::generate_unit_document(Kind, entities);
}

std::string card_text(uint32_t entities)
{
    inv_bench::document_options options;
    options.entities = entities;
    return inv_bench::generate_document(options);
}

using inv_bench::unit_kind;
const document_kind kinds[] = {
    {"chassis", 1, unit_text<unit_kind::chassis>},   {"module", 3, card_text},
    {"fan_tray", 7, unit_text<unit_kind::fan_tray>}, {"power_shelf", 8, unit_text<unit_kind::power_shelf>},
    {"pem", 9, unit_text<unit_kind::pem>},           {"cxp_optics", 12, unit_text<unit_kind::optics>},
};

inv_xml_handle *open_text(const std::string &name, uint32_t pi_hw_type, const std::string &text)
{
    // Tests of one document run at the same time.
    std::string path = testing::TempDir() + "inv_footprint_" + name + std::to_string(getpid()) + ".xml";
    std::ofstream(path, std::ios::binary) << text;
    fake_platform::set_only_file_name(path.c_str());
    inv_xml_handle *handle = inv_parser_open_xml_file(0, pi_hw_type, 0, "");
    std::remove(path.c_str());
    return handle;
}

uint64_t entities_of(inv_xml_handle *handle)
{
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    EXPECT_EQ(inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count), 0u);
    inv_parser_free_eid_tree(eids);
    return count;
}

// Octets taken out of the file's chunks, their headers and what is left behind at their ends included;
// the untouched rest of the last one is no memory yet.
uint64_t taken_octets(const inv::frame::file_memory &memory)
{
    uint64_t octets = 0;
    for (const auto *single = memory.single; single != nullptr; single = single->next)
        octets += single->size;
    for (const auto *each = memory.first; each != nullptr; each = each->next) {
        if (each == memory.current)
            return octets + static_cast<uint64_t>(memory.free_begin - reinterpret_cast<const char *>(each));
        octets += each->size;
    }
    return octets;
}

class Footprint : public testing::TestWithParam<document_kind>
{
};

INSTANTIATE_TEST_SUITE_P(All, Footprint, testing::ValuesIn(kinds),
                         [](const auto &about) { return about.param.name; });

TEST_P(Footprint, an_open_file_takes_at_most_15_percent_beyond_what_its_records_ask_for)
{
    for (uint32_t size : {200u, 2000u, 20000u}) {
        asked_octets = 0;
        uint64_t heap_before = counting_memory::heap_octets();
        uint64_t mapped_before = counting_memory::mapped_octets();
        inv_xml_handle *handle = open_text(GetParam().name, GetParam().pi_hw_type, GetParam().text(size));
        ASSERT_NE(handle, nullptr);
        uint64_t heap = counting_memory::heap_octets() - heap_before;
        uint64_t mapped = counting_memory::mapped_octets() - mapped_before;
        const inv::frame::side_record *side = inv::frame::find_side_record(handle);
        ASSERT_NE(side, nullptr);
        uint64_t taken = taken_octets(side->memory) + heap;
        uint64_t entities = entities_of(handle);
        ASSERT_GE(entities, size - 1);
        // Said of each entity: node of the tree, and nodes of two indexes where the xml instance is its own.
        uint64_t nodes = entities * (sizeof(eid_chain_node) + 2 * sizeof(sch_xml_inst_node_type));
        printf("%-12s %6u entities: %llu octets each, of which asked for %llu (%llu in nodes), mapped %llu\n",
               GetParam().name, static_cast<unsigned>(entities),
               static_cast<unsigned long long>(taken / entities),
               static_cast<unsigned long long>(asked_octets / entities),
               static_cast<unsigned long long>(nodes / entities),
               static_cast<unsigned long long>(mapped / entities));
        EXPECT_GE(taken, asked_octets) << "everything asked for lies in the file's memory";
        EXPECT_LE(taken - asked_octets, asked_octets * 15 / 100);
        inv_parser_close_xml_file(handle);
        EXPECT_EQ(counting_memory::mapped_octets(), mapped_before);
    }
}

// Octets do not grow faster than the document.
TEST_P(Footprint, the_octets_of_an_entity_do_not_grow_with_the_document)
{
    uint64_t each[2] = {};
    const uint32_t sizes[2] = {2000, 20000};
    for (int i = 0; i < 2; ++i) {
        inv_xml_handle *handle = open_text(GetParam().name, GetParam().pi_hw_type, GetParam().text(sizes[i]));
        ASSERT_NE(handle, nullptr);
        each[i] = taken_octets(inv::frame::find_side_record(handle)->memory) / entities_of(handle);
        inv_parser_close_xml_file(handle);
    }
    EXPECT_LE(each[1], each[0] + each[0] / 20);
}

std::set<std::string> names_in(const std::string &text)
{
    static constexpr std::string_view start = " name=\"";
    std::set<std::string> names;
    for (size_t at = text.find(start); at != std::string::npos; at = text.find(start, at)) {
        at += start.size();
        names.insert(text.substr(at, text.find('"', at) - at));
    }
    return names;
}

// Decoded data and records never stand in memory whole at one time.
TEST(DecodedData, what_is_built_goes_back_while_its_siblings_are_built)
{
    constexpr size_t large_page = size_t{2} << 20;
    counting_memory::reset();
    const std::string text = card_text(10000);
    inv_xml_handle *handle = open_text("spent", 3, text);
    ASSERT_NE(handle, nullptr);
    EXPECT_GE(counting_memory::discarded_octets() + 2 * large_page, text.size() / large_page * large_page)
        << "all but what the first and the last page hold";
    // What went back is filled with something else by the tests' memory: nothing of it was read again.
    sch_eid_type *eids = nullptr;
    uint32_t count = 0;
    ASSERT_EQ(inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &eids, &count), 0u);
    EXPECT_GE(count, 9999u);
    const std::set<std::string> names = names_in(text);
    for (uint32_t i = 0; i < count; ++i) {
        sch_base_entity_type *record = nullptr;
        ASSERT_EQ(inv_parser_get_eid_data(handle, &record, eids[i]), 0u);
        ASSERT_EQ(names.count(record->name), 1u) << record->name;
    }
    inv_parser_free_eid_tree(eids);
    inv_parser_close_xml_file(handle);
    counting_memory::reset();
}

std::string card_of_boards(int boards, size_t name_length)
{
    const std::string entity = "type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" "
                               "replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" instance=\"0\" ";
    std::string text = "<module name=\"m\" " + entity + "xmlInstance=\"1\">";
    for (int board = 0; board < boards; ++board)
        text += "<module name=\"" + std::string(name_length, 'b') + "\" " + entity + "xmlInstance=\"2\"/>";
    return text + "</module>";
}

// Wherever in a child the pages end.
TEST(DecodedData, nothing_that_is_still_needed_goes_back)
{
    constexpr int boards = 8000;
    for (size_t name_length = 1; name_length <= 48; ++name_length) {
        counting_memory::reset();
        inv_xml_handle *handle = open_text("boards", 3, card_of_boards(boards, name_length));
        ASSERT_NE(handle, nullptr);
        EXPECT_GT(counting_memory::discarded_octets(), 0u);
        EXPECT_EQ(entities_of(handle), boards + 1u) << name_length;
        inv_parser_close_xml_file(handle);
    }
    counting_memory::reset();
}

std::string text_with_slots(int slots)
{
    std::string text =
        "<module xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" name=\"m\" "
        "type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" instance=\"0\" "
        "replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"1\"><i2cPort>"
        "<portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>01</channelNumber>";
    for (int slot = 0; slot < slots; ++slot)
        text += "<dstInfo><description>s</description><applicable>ORVL_CTRL_SLOT_ANY</applicable>"
                "<nodeInfo><nodeType>ORVL_NODE_TYPE_LINECARD</nodeType><nodePosition>" +
                std::to_string(slot) + "</nodePosition></nodeInfo></dstInfo>";
    return text + "</i2cPort></module>";
}

TEST(SlotFiling, a_load_of_ten_thousand_slots_searches_no_list)
{
    constexpr int slots = 10000;
    slot_searches = 0;
    inv_xml_handle *handle = open_text("slots", 3, text_with_slots(slots));
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(slot_searches, 0u);
    int filed = 0;
    for (const auto *lists : handle->i2c_cc_slot_lists)
        for (; lists != nullptr; lists = lists->next)
            ++filed;
    EXPECT_EQ(filed, slots);
    inv_parser_close_xml_file(handle);
}

// The wrapped search is what direct builds use, so that the count above can be other than zero.
TEST(SlotFiling, a_search_outside_a_load_is_counted)
{
    slot_searches = 0;
    inv_xml_handle handle = {};
    parser_set_inv_file_instance(&handle);
    EXPECT_EQ(parser_verify_is_slot_xml_inst_available(handle.i2c_cc_slot_lists[0], 1, 0), nullptr);
    parser_set_inv_file_instance(nullptr);
    EXPECT_EQ(slot_searches, 1u);
}

}  // namespace
