#include "access/slot_lookup.h"
#include "frame/file_memory.h"
#include "frame/side_records.h"
#include "support/current_file_fixture.h"

#include <array>
#include <gmock/gmock.h>

namespace
{

class DestinationFiling : public CurrentFile
{
protected:
    DestinationFiling()
    {
        owner.xml_instance = 77;
    }

    static NodeInfoType node(uint32_t type, int16_t position)
    {
        NodeInfoType info = {};
        info.has.nodePosition = 1;
        info.nodeType = type;
        info.nodePosition = position;
        return info;
    }

    uint32_t file_i2c(uint32_t type, int16_t position, uint32_t applicable, uint32_t channel)
    {
        I2cDestType from = {};
        from.description = "not carried";
        from.applicable = applicable;
        from.nodeInfo = node(type, position);
        i2c = {};
        return parser_retrieve_i2c_dest_data(&i2c, &from, channel, &owner);
    }

    uint32_t file_pcie(uint32_t type, int16_t position, uint32_t applicable, uint32_t port)
    {
        PCIeDestType from = {};
        from.applicable = applicable;
        from.nodeInfo = node(type, position);
        from.has.deviceId = 1;
        from.deviceId = {4, {0x11, 0x22, 0x33, 0x44}};
        pcie = {};
        return parser_retrieve_pcie_dest_data(&pcie, &from, port, &owner);
    }

    sch_base_entity_type owner = {};
    sch_i2c_dest_type i2c = {};
    sch_pcie_dest_type pcie = {};
};

constexpr uint32_t entity = SCH_NODE_TYPE_ENTITY;
constexpr uint32_t line_card = 6;

TEST_F(DestinationFiling, an_i2c_destination_record_carries_all_but_the_description)
{
    EXPECT_EQ(file_i2c(line_card, 9, SCH_CTRL_SLOT_1, 4), 0u);
    EXPECT_STREQ(i2c.description, "");
    EXPECT_EQ(i2c.applicable, 1u);
    EXPECT_EQ(i2c.node_type, line_card);
    EXPECT_EQ(i2c.node_position, 9u);
}

TEST_F(DestinationFiling, a_pcie_destination_keeps_the_last_two_octets_of_its_device_id)
{
    EXPECT_EQ(file_pcie(entity, 9, SCH_CTRL_SLOT_0, 4), 0u);
    EXPECT_EQ(pcie.device_id, 0x3344);
    EXPECT_EQ(pcie.field_present, 1);
    EXPECT_EQ(pcie_node(9)->pcie_dest, 0x3344u);
}

TEST_F(DestinationFiling, an_entity_is_filed_with_channel_and_parent_in_its_own_index_only)
{
    EXPECT_EQ(file_i2c(entity, 12, SCH_CTRL_SLOT_0, 5), 0u);
    ASSERT_NE(i2c_node(12), nullptr);
    EXPECT_EQ(i2c_node(12)->channel, 5u);
    EXPECT_EQ(i2c_node(12)->parent_xml_instance, 77u);
    EXPECT_EQ(i2c_node(12)->parent_entity, &owner);
    EXPECT_EQ(i2c_node(12)->entity, nullptr);
    EXPECT_EQ(i2c_node(12)->entity_present, 0);
    EXPECT_EQ(i2c_node(12)->pcie_dest, 0u);
    EXPECT_EQ(pcie_node(12), nullptr);
    EXPECT_EQ(file_pcie(entity, 13, SCH_CTRL_SLOT_0, 6), 0u);
    EXPECT_EQ(i2c_node(13), nullptr);
    EXPECT_EQ(pcie_node(13)->channel, 6u);
}

TEST_F(DestinationFiling, of_two_ports_that_name_one_instance_the_last_wins)
{
    sch_base_entity_type later = {};
    later.xml_instance = 88;
    file_i2c(entity, 12, SCH_CTRL_SLOT_0, 5);
    const sch_xml_inst_node_type *before = i2c_node(12);
    I2cDestType from = {};
    from.nodeInfo = node(entity, 12);
    parser_retrieve_i2c_dest_data(&i2c, &from, 6, &later);
    EXPECT_EQ(i2c_node(12), before) << "one node";
    EXPECT_EQ(i2c_node(12)->channel, 6u);
    EXPECT_EQ(i2c_node(12)->parent_xml_instance, 88u);
    EXPECT_EQ(i2c_node(12)->parent_entity, &later);
}

TEST_F(DestinationFiling, destination_and_entity_complete_one_node_whichever_comes_first)
{
    BaseEntityType device = decoded_entity("device", 12);
    sch_base_entity_type before = {}, after = {};
    parser_retrieve_base_entity_data(&before, &device, nullptr);
    file_i2c(entity, 12, SCH_CTRL_SLOT_0, 5);
    EXPECT_EQ(i2c_node(12)->entity, &before);
    EXPECT_EQ(i2c_node(12)->entity_present, 1);
    EXPECT_EQ(i2c_node(12)->parent_entity, &owner);

    file_i2c(entity, 13, SCH_CTRL_SLOT_0, 6);
    device.xmlInstance = 13;
    parser_retrieve_base_entity_data(&after, &device, nullptr);
    EXPECT_EQ(i2c_node(13)->entity, &after);
    EXPECT_EQ(i2c_node(13)->entity_present, 1);
    EXPECT_EQ(i2c_node(13)->parent_entity, &owner);
    EXPECT_EQ(i2c_node(13)->channel, 6u);
}

TEST_F(DestinationFiling, slot_0_slot_1_and_any_fill_their_pairs)
{
    file_i2c(line_card, 1, SCH_CTRL_SLOT_0, 5);
    file_i2c(line_card, 2, SCH_CTRL_SLOT_1, 6);
    file_i2c(line_card, 3, SCH_CTRL_SLOT_ANY, 7);
    file_i2c(line_card, 4, 99, 8);
    const sch_cc_slot_xml_inst_type *element = handle.i2c_cc_slot_lists[line_card];
    const struct {
        uint16_t key;
        uint32_t parent0, channel0, parent1, channel1;
    } expected[] = {{1, 77, 5, 0, 0}, {2, 0, 0, 77, 6}, {3, 77, 7, 77, 7}, {4, 77, 8, 77, 8}};
    for (const auto &e : expected) {
        ASSERT_NE(element, nullptr);
        EXPECT_EQ(element->key, e.key);
        EXPECT_EQ(element->slot0_parent_instance, e.parent0);
        EXPECT_EQ(element->slot0_channel, e.channel0);
        EXPECT_EQ(element->slot1_parent_instance, e.parent1);
        EXPECT_EQ(element->slot1_channel, e.channel1);
        element = element->next;
    }
    EXPECT_EQ(element, nullptr);
    EXPECT_EQ(handle.pcie_cc_slot_lists[line_card], nullptr);
}

TEST_F(DestinationFiling, a_known_key_is_completed_in_place)
{
    file_pcie(line_card, 5, SCH_CTRL_SLOT_0, 3);
    file_pcie(line_card, 5, SCH_CTRL_SLOT_1, 4);
    const sch_cc_slot_xml_inst_type *element = handle.pcie_cc_slot_lists[line_card];
    ASSERT_EQ(length_of(element), 1u);
    EXPECT_EQ(element->slot0_channel, 3u);
    EXPECT_EQ(element->slot1_channel, 4u);
    EXPECT_EQ(handle.i2c_cc_slot_lists[line_card], nullptr);
}

TEST_F(DestinationFiling, node_type_20_is_the_last_with_a_list_and_21_files_nothing)
{
    EXPECT_EQ(file_i2c(20, 1, SCH_CTRL_SLOT_0, 5), 0u);
    EXPECT_EQ(length_of(handle.i2c_cc_slot_lists[20]), 1u);
    uint64_t live = counting_memory::live();
    for (uint32_t type : {21u, 22u, 0xFFFFFFFFu}) {
        EXPECT_EQ(file_i2c(type, 1, SCH_CTRL_SLOT_0, 5), 0u);
        EXPECT_EQ(i2c.node_type, type) << "the fields are copied all the same";
        EXPECT_EQ(i2c.node_position, 1u);
    }
    EXPECT_EQ(counting_memory::live(), live);
}

TEST_F(DestinationFiling, positions_widen_with_their_sign_and_slot_keys_keep_16_bits)
{
    file_i2c(entity, -1, SCH_CTRL_SLOT_0, 5);
    EXPECT_EQ(i2c.node_position, 0xFFFFFFFFu);
    EXPECT_NE(i2c_node(0xFFFFFFFF), nullptr);
    EXPECT_EQ(i2c_node(0xFFFF), nullptr);
    file_i2c(line_card, -1, SCH_CTRL_SLOT_0, 5);
    EXPECT_EQ(handle.i2c_cc_slot_lists[line_card]->key, 0xFFFF);
    file_i2c(line_card, -1, SCH_CTRL_SLOT_0, 6);
    EXPECT_EQ(length_of(handle.i2c_cc_slot_lists[line_card]), 1u);
}

TEST_F(DestinationFiling, a_destination_without_a_position_has_key_0)
{
    I2cDestType from = {};
    from.nodeInfo.nodeType = line_card;
    from.nodeInfo.nodePosition = 9;
    parser_retrieve_i2c_dest_data(&i2c, &from, 1, &owner);
    EXPECT_EQ(i2c.node_position, 0u);
    EXPECT_EQ(handle.i2c_cc_slot_lists[line_card]->key, 0);
}

TEST_F(DestinationFiling, a_missing_owner_counts_as_instance_0)
{
    I2cDestType from = {};
    from.nodeInfo = node(entity, 3);
    EXPECT_EQ(parser_retrieve_i2c_dest_data(&i2c, &from, 1, nullptr), 0u);
    EXPECT_EQ(i2c_node(3)->parent_xml_instance, 0u);
    EXPECT_EQ(i2c_node(3)->parent_entity, nullptr);
    from.nodeInfo = node(line_card, 3);
    EXPECT_EQ(parser_retrieve_i2c_dest_data(&i2c, &from, 1, nullptr), 0u);
    EXPECT_EQ(handle.i2c_cc_slot_lists[line_card]->slot0_parent_instance, 0u);
}

TEST_F(DestinationFiling, without_a_current_file_nothing_is_filed)
{
    parser_set_inv_file_instance(nullptr);
    EXPECT_EQ(file_i2c(entity, 3, SCH_CTRL_SLOT_0, 1), 0u);
    EXPECT_EQ(file_pcie(line_card, 3, SCH_CTRL_SLOT_0, 1), 0u);
    EXPECT_EQ(i2c.node_position, 3u);
    EXPECT_EQ(counting_memory::live(), live_before);
}

TEST_F(DestinationFiling, memory_running_out_is_traced_and_returns_1)
{
    const struct {
        uint32_t type;
        bool pcie;
        uint64_t failing;
        uint32_t id;
        const char *text;
    } cases[] = {
        {entity, false, 1, 132, "Failure No Mem Available\n"},
        {entity, false, 2, 133, "Failure avl insert\n"},  // the header of the first node
        {line_card, false, 1, 134, "Failure No Mem Available\n"},
        {entity, true, 1, 142, "Failure No Mem Available\n"},
        {entity, true, 2, 143, "Failure avl insert\n"},
        {line_card, true, 1, 144, "Failure No Mem Available\n"},
    };
    for (const auto &c : cases) {
        trace_recorder::clear();
        counting_memory::fail_at(c.failing);
        EXPECT_EQ(c.pcie ? file_pcie(c.type, 3, 0, 1) : file_i2c(c.type, 3, 0, 1), 1u) << c.id;
        counting_memory::reset();
        ASSERT_EQ(trace_recorder::lines().size(), 1u) << c.id;
        EXPECT_EQ(trace_recorder::lines()[0], (trace_recorder::line{c.id, 4, 0, "", c.text}));
        EXPECT_EQ(counting_memory::live(), live_before) << c.id;
    }
}

TEST_F(DestinationFiling, a_failed_filing_ends_the_destinations_of_its_port_but_not_the_port)
{
    I2cDestType first = {}, second = {};
    first.nodeInfo = node(entity, 1);
    second.nodeInfo = node(line_card, 2);
    decoded_list destinations = {&first, &second};
    uint8_t channel[] = {7};
    I2cPortType from = {};
    from.channelNumber = {1, channel};
    from.dstInfo = destinations;
    sch_i2c_port_type record = {};
    counting_memory::fail_at(2);  // the first destination's index node
    EXPECT_EQ(parser_retrieve_i2c_port_data(&record, &from, &owner), 0u);
    counting_memory::reset();
    EXPECT_EQ(length_of(record.dest_list), 1u) << "the record whose filing failed stays";
    EXPECT_EQ(handle.i2c_cc_slot_lists[line_card], nullptr);
    inv_schema_free_i2c_port_data(&record);

    sch_i2c_dest_type *list = nullptr;
    counting_memory::fail_at(2);
    EXPECT_EQ(parser_retrieve_i2c_dest_data_list(&list, &destinations, 7, &owner), 1u);
    counting_memory::reset();
    inv_schema_free_i2c_dest_data_list(list);
}

TEST_F(DestinationFiling, ports_pass_their_channel_and_the_low_octet_of_their_port_number)
{
    I2cDestType i2c_end = {};
    PCIeDestType pcie_end = {};
    i2c_end.nodeInfo = pcie_end.nodeInfo = node(entity, 4);
    decoded_list i2c_ends = {&i2c_end}, pcie_ends = {&pcie_end};
    uint8_t channel[] = {0xFE, 0x01};
    I2cPortType i2c_from = {};
    i2c_from.channelNumber = {2, channel};
    i2c_from.dstInfo = i2c_ends;
    BasePCIePortType pcie_from = {};
    pcie_from.portNumber = {1, {0xFD}};
    pcie_from.dstInfo = pcie_ends;
    sch_i2c_port_type i2c_port = {};
    sch_base_pcie_port_type pcie_port = {};
    parser_retrieve_i2c_port_data(&i2c_port, &i2c_from, &owner);
    parser_retrieve_base_pcie_port_data(&pcie_port, &pcie_from, &owner);
    EXPECT_EQ(i2c_node(4)->channel, 0xFEu);
    EXPECT_EQ(pcie_node(4)->channel, 0xFDu);
    inv_schema_free_i2c_port_data(&i2c_port);
    inv_schema_free_pcie_port_data(&pcie_port);
}

// Lists as the literal functions build them.
class SlotLookup : public DestinationFiling
{
protected:
    std::vector<std::array<uint32_t, 5>> contents(sch_cc_slot_xml_inst_type *const *heads)
    {
        std::vector<std::array<uint32_t, 5>> all;
        for (int i = 0; i < INV_CC_SLOT_LIST_COUNT; ++i)
            for (const auto *e = heads[i]; e != nullptr; e = e->next)
                all.push_back({e->key, e->slot0_parent_instance, e->slot0_channel, e->slot1_parent_instance,
                               e->slot1_channel});
        return all;
    }

    void file_many()
    {
        for (int i = 0; i < 3000; ++i) {
            owner.xml_instance = static_cast<uint16_t>(i);
            auto position = static_cast<int16_t>((i * 7919) % 1024 * 61);
            file_i2c(i % 2 == 0 ? line_card : 20, position, static_cast<uint32_t>(i % 3), 1);
            file_pcie(line_card, position, static_cast<uint32_t>(i % 3), 2);
        }
    }
};

TEST_F(SlotLookup, lists_are_the_same_with_and_without_a_scope)
{
    file_many();
    auto i2c_literally = contents(handle.i2c_cc_slot_lists),
         pcie_literally = contents(handle.pcie_cc_slot_lists);
    take_down();
    parser_set_inv_file_instance(&handle);
    {
        inv::slot_lookup_scope scope(&handle);
        file_many();
    }
    EXPECT_EQ(contents(handle.i2c_cc_slot_lists), i2c_literally);
    EXPECT_EQ(contents(handle.pcie_cc_slot_lists), pcie_literally);
    EXPECT_GT(i2c_literally.size(), 500u);
}

TEST_F(SlotLookup, a_scope_finds_what_was_there_before_and_of_equal_keys_the_first)
{
    sch_cc_slot_xml_inst_type *elements[3];
    for (auto *&element : elements) {
        element = inv::record_new<sch_cc_slot_xml_inst_type>();
        element->key = 300;
        parser_insert_cc_slot_xml_inst(handle.i2c_cc_slot_lists, line_card, element);
    }
    inv::slot_lookup_scope scope(&handle);
    EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, line_card, 300), elements[0]);
    EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, line_card, 0x10000 + 300), elements[0]);
    EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, line_card, 301), nullptr);
    EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, 7, 300), nullptr);
    file_i2c(line_card, 301, SCH_CTRL_SLOT_0, 1);
    EXPECT_EQ(elements[2]->next->key, 301);
}

TEST_F(SlotLookup, the_lists_of_another_file_are_searched_literally)
{
    inv_xml_handle other = {};
    inv::slot_lookup_scope scope(&other);
    file_i2c(line_card, 5, SCH_CTRL_SLOT_0, 1);
    file_i2c(line_card, 5, SCH_CTRL_SLOT_1, 1);
    EXPECT_EQ(length_of(handle.i2c_cc_slot_lists[line_card]), 1u);
}

TEST_F(SlotLookup, a_list_that_is_there_already_is_searched_literally_when_its_table_cannot_be_made)
{
    sch_cc_slot_xml_inst_type *elements[3];
    uint16_t key = 300;
    for (auto *&element : elements) {
        element = inv::record_new<sch_cc_slot_xml_inst_type>();
        element->key = key;
        key = static_cast<uint16_t>(key + 256);
        parser_insert_cc_slot_xml_inst(handle.i2c_cc_slot_lists, line_card, element);
    }
    const uint64_t live = counting_memory::live();
    for (uint64_t n = 1; n <= 4; ++n) {
        inv::slot_lookup_scope scope(&handle);
        counting_memory::fail_at(n);
        EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, line_card, 556), elements[1]) << n;
        EXPECT_TRUE(counting_memory::failed()) << n;
        EXPECT_EQ(counting_memory::live(), live) << n;
        counting_memory::reset();
    }
}

// With tables that stay, made by a load.
class FiledSlots : public SlotLookup
{
protected:
    void SetUp() override
    {
        SlotLookup::SetUp();
        ASSERT_TRUE(inv::frame::add_side_record(&handle));
        inv::begin_load(&handle);
        {
            inv::slot_lookup_scope scope(&handle);
            file_many();
        }
        inv::end_load(true);
    }
    void TearDown() override
    {
        take_down();
        inv::release_file_memory(&handle);
        SlotLookup::TearDown();
    }
    void expect_literal_answer(sch_cc_slot_xml_inst_type **heads, uint32_t index, uint32_t key)
    {
        EXPECT_EQ(inv::find_filed_slot(&handle, heads, index, key),
                  parser_verify_is_slot_xml_inst_available(heads[index], key, 0))
            << index << " " << key;
    }
    // Positions of file_many() are multiples of 61.
    void expect_literal_answers(sch_cc_slot_xml_inst_type **heads)
    {
        for (uint32_t index = 0; index < INV_CC_SLOT_LIST_COUNT; ++index) {
            for (uint32_t key = 0; key <= 0x10000; key += 61) {
                expect_literal_answer(heads, index, key);
                expect_literal_answer(heads, index, key + 1);
            }
        }
    }
};

TEST_F(FiledSlots, are_found_as_a_search_finds_them)
{
    ASSERT_NE(inv::get_side_table(&handle, inv::side_table::slots), nullptr);
    expect_literal_answers(handle.i2c_cc_slot_lists);
    expect_literal_answers(handle.pcie_cc_slot_lists);
}

TEST_F(FiledSlots, are_found_as_a_search_finds_them_in_a_list_that_was_extended)
{
    auto *element = inv::record_new<sch_cc_slot_xml_inst_type>();
    element->key = 7;
    parser_insert_cc_slot_xml_inst(handle.i2c_cc_slot_lists, line_card, element);
    EXPECT_EQ(inv::find_filed_slot(&handle, handle.i2c_cc_slot_lists, line_card, 7), element);
}

TEST_F(FiledSlots, are_found_as_a_search_finds_them_in_a_list_that_was_freed_and_filled_anew)
{
    parser_free_cc_slot_xml_inst(handle.i2c_cc_slot_lists);
    for (uint16_t key = 0; key < 6100; key = static_cast<uint16_t>(key + 61)) {
        auto *element = inv::record_new<sch_cc_slot_xml_inst_type>();
        element->key = key;
        parser_insert_cc_slot_xml_inst(handle.i2c_cc_slot_lists, line_card, element);
    }
    expect_literal_answers(handle.i2c_cc_slot_lists);
    expect_literal_answers(handle.pcie_cc_slot_lists);
}

TEST_F(FiledSlots, are_searched_where_no_table_was_kept)
{
    inv::set_side_table(&handle, inv::side_table::slots, nullptr, nullptr);
    expect_literal_answers(handle.i2c_cc_slot_lists);
    expect_literal_answers(handle.pcie_cc_slot_lists);
}

TEST_F(FiledSlots, of_a_later_load_have_no_table_where_elements_stood_before)
{
    {
        inv::slot_lookup_scope scope(&handle);
        file_i2c(line_card, 7, SCH_CTRL_SLOT_ANY, 1);
    }
    EXPECT_EQ(inv::get_side_table(&handle, inv::side_table::slots), nullptr);
    EXPECT_NE(inv::find_filed_slot(&handle, handle.i2c_cc_slot_lists, line_card, 7), nullptr);
}

TEST_F(SlotLookup, behind_a_scope_lists_are_searched_literally_again)
{
    {
        inv::slot_lookup_scope scope(&handle);
        file_i2c(line_card, 7, SCH_CTRL_SLOT_ANY, 1);
    }
    auto *element = inv::record_new<sch_cc_slot_xml_inst_type>();
    element->key = 9;
    parser_insert_cc_slot_xml_inst(handle.i2c_cc_slot_lists, line_card, element);
    EXPECT_EQ(inv::find_slot_element(handle.i2c_cc_slot_lists, line_card, 9), element);
}

TEST_F(SlotLookup, without_memory_to_keep_a_table_lists_are_searched)
{
    ASSERT_TRUE(inv::frame::add_side_record(&handle));
    const uint64_t before = counting_memory::live();
    {
        inv::slot_lookup_scope scope(&handle);
        file_many();
        counting_memory::fail_at(1);
    }
    EXPECT_TRUE(counting_memory::failed());
    counting_memory::reset();
    EXPECT_EQ(inv::get_side_table(&handle, inv::side_table::slots), nullptr);
    const size_t filed =
        contents(handle.i2c_cc_slot_lists).size() + contents(handle.pcie_cc_slot_lists).size();
    EXPECT_EQ(counting_memory::live(), before + filed);
    inv::release_file_memory(&handle);
}

// Each request of a filing sequence fails once; only requests for records may show.
TEST_F(SlotLookup, memory_running_out_for_the_tables_changes_nothing_that_is_filed)
{
    uint64_t tables_failed = 0;
    for (uint64_t n = 1;; ++n) {
        {
            inv::slot_lookup_scope scope(&handle);
            counting_memory::fail_at(n);
            trace_recorder::clear();
            for (int position : {1, 300, 2, 301, 1, 600})
                file_i2c(line_card, static_cast<int16_t>(position), SCH_CTRL_SLOT_ANY, 1);
        }
        bool failed = counting_memory::failed();
        counting_memory::reset();
        bool record_failed = trace_recorder::ids() == id_list{134};
        EXPECT_TRUE(record_failed || trace_recorder::ids().empty());
        if (!record_failed) {
            tables_failed += failed ? 1 : 0;
            std::vector<uint32_t> keys;
            for (const auto &element : contents(handle.i2c_cc_slot_lists))
                keys.push_back(element[0]);
            EXPECT_THAT(keys, testing::ElementsAre(1, 300, 2, 301, 600)) << n;
        }
        parser_free_cc_slot_xml_inst(handle.i2c_cc_slot_lists);
        EXPECT_EQ(counting_memory::live(), live_before);
        if (!failed)
            break;
    }
    EXPECT_GE(tables_failed, 4u) << "the table and one leaf for each range of keys";
}

}  // namespace
