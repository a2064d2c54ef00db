// How the base entity builder registers an entity, and what its release gives back.
#include "frame/file_memory.h"
#include "support/current_file_fixture.h"

#include "tree/current_file.h"

#include <cstring>
#include <string>

namespace
{

using Registration = CurrentFile;

TEST_F(Registration, an_entity_is_in_both_indexes_and_in_the_tree)
{
    BaseEntityType first = decoded_entity("top", 5), second = decoded_entity("below", 6);
    sch_base_entity_type top = {}, below = {};
    EXPECT_EQ(parser_retrieve_base_entity_data(&top, &first, nullptr), 0u);
    EXPECT_EQ(parser_retrieve_base_entity_data(&below, &second, &top), 0u);
    for (const auto *node : {i2c_node(5), pcie_node(5)}) {
        ASSERT_NE(node, nullptr);
        EXPECT_EQ(node->entity, &top);
        EXPECT_EQ(node->entity_present, 1);
        EXPECT_EQ(node->xml_instance, 5u);
    }
    ASSERT_NE(root_eid, nullptr);
    EXPECT_EQ(root_eid->record, &top);
    ASSERT_NE(root_eid->first_child, nullptr);
    EXPECT_EQ(root_eid->first_child->record, &below);
}

TEST_F(Registration, of_two_entities_with_one_xml_instance_the_second_stays_in_indexes_and_chain_table)
{
    std::vector<inv::xml_instance_chain_entry> table(65536);
    parser_set_xml_instance_chain_list(table.data());
    BaseEntityType first = decoded_entity("first", 9), second = decoded_entity("second", 9);
    sch_base_entity_type one = {}, two = {};
    parser_retrieve_base_entity_data(&one, &first, nullptr);
    EXPECT_EQ(table[9].record, &one);
    parser_retrieve_base_entity_data(&two, &second, &one);
    parser_set_xml_instance_chain_list(nullptr);
    EXPECT_EQ(i2c_node(9)->entity, &two);
    EXPECT_EQ(pcie_node(9)->entity, &two);
    EXPECT_EQ(table[9].record, &two);
    EXPECT_EQ(table[9].xml_instance, 9);
    EXPECT_EQ(root_eid->first_child->record, &two) << "both are in the tree";
}

TEST_F(Registration, the_chain_table_takes_the_last_xml_instance_of_16_bits)
{
    std::vector<inv::xml_instance_chain_entry> table(65536);
    parser_set_xml_instance_chain_list(table.data());
    BaseEntityType from = decoded_entity("last", -1);
    sch_base_entity_type record = {};
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    parser_set_xml_instance_chain_list(nullptr);
    EXPECT_EQ(table[65535].record, &record);
    EXPECT_EQ(table[65535].xml_instance, 65535);
}

TEST_F(Registration, without_a_current_file_it_is_filled_and_hung_but_not_indexed)
{
    parser_set_inv_file_instance(nullptr);
    BaseEntityType from = decoded_entity("lone", 3);
    sch_base_entity_type record = {};
    EXPECT_EQ(parser_retrieve_base_entity_data(&record, &from, nullptr), 0u);
    EXPECT_STREQ(record.name, "lone");
    EXPECT_EQ(root_eid->record, &record);
    EXPECT_EQ(handle.i2c_xml_inst_index, nullptr);
    EXPECT_EQ(handle.pcie_xml_inst_index, nullptr);
}

TEST_F(Registration, a_failing_index_is_traced_and_leaves_the_entity_out_of_the_tree)
{
    const struct {
        uint64_t failing;  // request: I2C node, I2C header, PCIe node, PCIe header
        uint32_t id;
        const char *text;
        bool in_i2c_index, in_chain_table;
    } cases[] = {
        {1, 162, "Failure No Mem Available\n", false, false},
        {2, 163, "Failure avl insert\n", false, false},
        {3, 164, "Failure No Mem Available\n", true, true},
        {4, 165, "Failure avl insert\n", true, true},
    };
    std::vector<inv::xml_instance_chain_entry> table(65536);
    parser_set_xml_instance_chain_list(table.data());
    for (const auto &c : cases) {
        table[9] = {};
        BaseEntityType from = decoded_entity("x", 9);
        from.has.hardwareVersion = 1;
        from.hardwareVersion = "after the indexes";
        sch_base_entity_type record = {};
        trace_recorder::clear();
        counting_memory::fail_at(c.failing);
        EXPECT_EQ(parser_retrieve_base_entity_data(&record, &from, nullptr), 1u);
        counting_memory::reset();
        EXPECT_EQ(trace_recorder::lines(), (std::vector<trace_recorder::line>{{c.id, 4, 0, "", c.text}}));
        EXPECT_STREQ(record.name, "x");
        EXPECT_STREQ(record.hw_version, "") << "partly filled";
        EXPECT_EQ(root_eid, nullptr);
        EXPECT_EQ(i2c_node(9) != nullptr, c.in_i2c_index);
        EXPECT_EQ(pcie_node(9), nullptr);
        EXPECT_EQ(table[9].record != nullptr, c.in_chain_table);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
    parser_set_xml_instance_chain_list(nullptr);
}

TEST_F(Registration, the_filled_record_is_traced)
{
    BaseEntityType from = decoded_entity("Fan 1", 42);
    from.has.oid = from.has.adminState = from.has.operState = from.has.fruable = 1;
    from.oid = "1.3.6";
    from.type = 7;
    from.subtype = 59;
    from.instance = 2;
    from.adminState = 1;
    from.operState = 2;
    from.fruable = 1;
    from.replicationScope = 3;
    sch_base_entity_type record = {};
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    trace_recorder::line expected = {166, 16, 1, "ssddddddddddd",
                                     "\nName: Fan 1  OID: 1.3.6\n"
                                     "Type:  7  Subtype:    1  instance:    2 xml_instance:   42\n"
                                     "Admin:  1 Oper:    2  is_fru:    1 oir:    0 is_primary:    0\n"
                                     "Rep_scope:  3 Owner:    1\n"};
    EXPECT_EQ(trace_recorder::lines().back(), expected);
}

TEST_F(Registration, bits_are_only_ever_set_and_port_lists_start_anew)
{
    BaseEntityType from = decoded_entity("x");
    sch_base_entity_type record = {};
    record.field_present = 1u << 31;
    record.entity_reset_flags = 1u << 31;
    sch_i2c_port_type stale = {};
    record.i2c_port_list = &stale;
    parser_set_inv_file_instance(nullptr);
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    EXPECT_EQ(record.field_present, 1u << 31);
    EXPECT_EQ(record.entity_reset_flags, (1u << 31) | 1);
    EXPECT_EQ(record.i2c_port_list, nullptr);
}

TEST_F(Registration, release_gives_back_i2c_and_pcie_ports_but_neither_spi_ports_nor_signal_commands)
{
    I2cPortType i2c = {};
    BasePCIePortType pcie = {};
    SpiDestType spi_end = {};
    decoded_list spi_ends = {&spi_end};
    SpiPortType spi = {};
    spi.dstInfo = spi_ends;
    I2cNodeType command = {};
    decoded_list i2c_list = {&i2c, &i2c}, pcie_list = {&pcie}, spi_list = {&spi}, commands = {&command};
    BaseEntityType from = decoded_entity("x");
    from.i2cPort = i2c_list;
    from.pciePort = pcie_list;
    from.spiPort = spi_list;
    from.has.hwSignals = from.hwSignals.has.i2cPath = 1;
    from.hwSignals.i2cPath.cmdInfo = commands;
    sch_base_entity_type record = {};
    parser_retrieve_base_entity_data(&record, &from, nullptr);
    EXPECT_EQ(length_of(record.i2c_port_list), 2u);
    EXPECT_EQ(length_of(record.pcie_port_list), 1u);
    EXPECT_EQ(length_of(record.spi_port_list), 1u);
    take_down();
    inv_schema_free_base_entity_data(&record);
    EXPECT_EQ(counting_memory::live(), live_before + 3) << "SPI port, its destination, one command";
    inv::record_free(record.spi_port_list->dest_list);
    inv::record_free(record.spi_port_list);
    inv_schema_free_i2c_sequence_data(&record.hw_signals.i2c_path);
    inv_schema_free_base_entity_data(nullptr);
}

}  // namespace
