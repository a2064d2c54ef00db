// An index that refuses a node, and slot lists with very many keys.
#include "access/slot_lookup.h"
#include "support/current_file_fixture.h"

namespace
{

uint64_t inserts_to_accept = UINT64_MAX;

}  // namespace

extern "C" void *__real_avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t flag);

extern "C" void *__wrap_avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t flag)
{
    if (inserts_to_accept == 0)
        return nullptr;
    --inserts_to_accept;
    return __real_avl_insert(root, node, compare, flag);
}

namespace
{

class IndexFailures : public CurrentFile
{
protected:
    IndexFailures()
    {
        i2c.nodeInfo =
            pcie.nodeInfo = {.has = {1}, .xmlns = {}, .nodeType = SCH_NODE_TYPE_ENTITY, .nodePosition = 1};
    }
    void TearDown() override
    {
        inserts_to_accept = UINT64_MAX;
        CurrentFile::TearDown();
    }

    I2cDestType i2c = {};
    PCIeDestType pcie = {};
};

TEST_F(IndexFailures, a_refused_destination_is_traced_freed_and_reported)
{
    sch_i2c_dest_type i2c_record = {};
    sch_pcie_dest_type pcie_record = {};
    for (uint64_t accepted : {0u, 1u}) {
        uint64_t live = 0;
        trace_recorder::clear();
        inserts_to_accept = accepted;
        if (accepted == 1) {
            EXPECT_EQ(parser_retrieve_i2c_dest_data(&i2c_record, &i2c, 1, nullptr), 0u);
            i2c.nodeInfo.nodePosition = 2;
        }
        live = counting_memory::live();
        EXPECT_EQ(parser_retrieve_i2c_dest_data(&i2c_record, &i2c, 1, nullptr), 1u);
        EXPECT_EQ(parser_retrieve_pcie_dest_data(&pcie_record, &pcie, 1, nullptr), 1u);
        EXPECT_EQ(trace_recorder::lines(),
                  (std::vector<trace_recorder::line>{{133, 4, 0, "", "Failure avl insert\n"},
                                                     {143, 4, 0, "", "Failure avl insert\n"}}));
        EXPECT_EQ(counting_memory::live(), live);
        EXPECT_EQ(i2c_record.node_type, SCH_NODE_TYPE_ENTITY) << "the record is filled all the same";
    }
    EXPECT_NE(i2c_node(1), nullptr);
    EXPECT_EQ(i2c_node(2), nullptr);
}

TEST_F(IndexFailures, a_known_destination_needs_neither_insertion_nor_memory)
{
    sch_i2c_dest_type record = {};
    EXPECT_EQ(parser_retrieve_i2c_dest_data(&record, &i2c, 1, nullptr), 0u);
    inserts_to_accept = 0;
    counting_memory::fail_at(1, true);
    EXPECT_EQ(parser_retrieve_i2c_dest_data(&record, &i2c, 9, nullptr), 0u);
    EXPECT_EQ(i2c_node(1)->channel, 9u);
}

TEST_F(IndexFailures, a_destination_list_ends_at_the_refused_one_and_its_port_does_not)
{
    I2cDestType second = i2c;
    second.nodeInfo.nodePosition = 2;
    decoded_list three = {&i2c, &second, &i2c};
    sch_i2c_dest_type *list = nullptr;
    inserts_to_accept = 1;
    EXPECT_EQ(parser_retrieve_i2c_dest_data_list(&list, &three, 1, nullptr), 1u);
    EXPECT_EQ(length_of(list), 2u);
    inv_schema_free_i2c_dest_data_list(list);

    PCIeDestType other = pcie;
    other.nodeInfo.nodePosition = 2;
    decoded_list ends = {&pcie, &other, &pcie};
    BasePCIePortType port = {};
    port.dstInfo = ends;
    sch_base_pcie_port_type record = {};
    inserts_to_accept = 1;
    EXPECT_EQ(parser_retrieve_base_pcie_port_data(&record, &port, nullptr), 0u);
    EXPECT_EQ(length_of(record.dest_list), 2u);
    inv_schema_free_pcie_port_data(&record);
}

// Both indexes, and which of them had taken the entity.
TEST_F(IndexFailures, a_refused_entity_is_traced_and_stays_out_of_the_tree)
{
    const struct {
        uint64_t accepted;
        uint32_t id;
    } cases[] = {{0, 163}, {1, 165}};
    for (const auto &c : cases) {
        BaseEntityType from = decoded_entity("x", 7);
        sch_base_entity_type record = {};
        trace_recorder::clear();
        inserts_to_accept = c.accepted;
        EXPECT_EQ(parser_retrieve_base_entity_data(&record, &from, nullptr), 1u);
        inserts_to_accept = UINT64_MAX;
        EXPECT_EQ(trace_recorder::lines(),
                  (std::vector<trace_recorder::line>{{c.id, 4, 0, "", "Failure avl insert\n"}}));
        EXPECT_EQ(i2c_node(7) != nullptr, c.accepted == 1);
        EXPECT_EQ(pcie_node(7), nullptr);
        EXPECT_EQ(root_eid, nullptr);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

class ManySlots : public CurrentFile
{
protected:
    static constexpr uint32_t line_card = 6;
    static constexpr int16_t keys = 10000;

    uint32_t file(int16_t key, uint32_t channel)
    {
        I2cDestType i2c = {};
        PCIeDestType pcie = {};
        i2c.applicable = pcie.applicable = SCH_CTRL_SLOT_ANY;
        i2c.nodeInfo = pcie.nodeInfo = {.has = {1}, .xmlns = {}, .nodeType = line_card, .nodePosition = key};
        sch_i2c_dest_type i2c_record = {};
        sch_pcie_dest_type pcie_record = {};
        return parser_retrieve_i2c_dest_data(&i2c_record, &i2c, channel, nullptr) +
               parser_retrieve_pcie_dest_data(&pcie_record, &pcie, channel, nullptr);
    }

    // Takes the elements between the first and the last out of both lists, so that whoever walks a list
    // from its head meets two elements only.
    void cut_lists()
    {
        for (auto **heads : {handle.i2c_cc_slot_lists, handle.pcie_cc_slot_lists}) {
            cut.push_back(heads[line_card]->next);
            heads[line_card]->next = nullptr;
        }
    }
    void mend_lists()
    {
        handle.i2c_cc_slot_lists[line_card]->next = cut[0];
        handle.pcie_cc_slot_lists[line_card]->next = cut[1];
    }

    std::vector<sch_cc_slot_xml_inst_type *> cut;
};

// The walk of the list would not find what was cut off, nor append behind it: neither search nor append
// takes a step along the list, however long it is.
TEST_F(ManySlots, during_a_load_no_list_is_walked_for_a_destination)
{
    inv::slot_lookup_scope scope(&handle);
    for (int16_t key = 0; key < keys; ++key)
        ASSERT_EQ(file(key, 1), 0u);
    cut_lists();
    for (int16_t key = 0; key < keys; ++key)
        ASSERT_EQ(file(key, 2), 0u);
    ASSERT_EQ(file(keys, 2), 0u);
    mend_lists();
    for (auto **heads : {handle.i2c_cc_slot_lists, handle.pcie_cc_slot_lists}) {
        int16_t expected = 0;
        for (const auto *element = heads[line_card]; element != nullptr; element = element->next) {
            ASSERT_EQ(element->key, expected++);
            ASSERT_EQ(element->slot0_channel, 2u);
            ASSERT_EQ(element->slot1_channel, 2u);
        }
        EXPECT_EQ(expected, keys + 1) << "no key twice";
    }
}

// A table for each list and a leaf for every 256 keys, beside the elements.
TEST_F(ManySlots, the_requests_for_memory_grow_with_the_keys_only)
{
    inv::slot_lookup_scope scope(&handle);
    counting_memory::reset();
    for (int16_t key = 0; key < keys; ++key)
        ASSERT_EQ(file(key, 1), 0u);
    EXPECT_LE(counting_memory::requests(), 2u * (keys + 1 + keys / 256 + 1));
}

TEST_F(ManySlots, of_two_pcie_ports_that_name_one_instance_the_last_wins)
{
    sch_base_entity_type first = {}, second = {};
    first.xml_instance = 5;
    second.xml_instance = 6;
    PCIeDestType from = {};
    from.nodeInfo = {.has = {1}, .xmlns = {}, .nodeType = SCH_NODE_TYPE_ENTITY, .nodePosition = 9};
    from.has.deviceId = 1;
    from.deviceId = {4, {0, 0, 1, 2}};
    sch_pcie_dest_type record = {};
    parser_retrieve_pcie_dest_data(&record, &from, 3, &first);
    from.deviceId = {4, {0, 0, 3, 4}};
    parser_retrieve_pcie_dest_data(&record, &from, 4, &second);
    EXPECT_EQ(pcie_node(9)->channel, 4u);
    EXPECT_EQ(pcie_node(9)->parent_xml_instance, 6u);
    EXPECT_EQ(pcie_node(9)->parent_entity, &second);
    EXPECT_EQ(pcie_node(9)->pcie_dest, 0x0304u);
}

}  // namespace
