#include "support/current_file_fixture.h"

#include <cstring>
#include <functional>
#include <string>

namespace
{

using AccessRecords = CurrentFile;

constexpr Hex32BitHexAddressType hex32(uint8_t a, uint8_t b, uint8_t c, uint8_t d)
{
    return {4, {a, b, c, d}};
}

I2cNodeType full_i2c_node()
{
    I2cNodeType node = {};
    node.has = {1, 1, 1, 1, 1, 1, 1, 1};
    node.deviceType = 0xFFFFFFFF;
    node.deviceModel = 0x17F;
    node.deviceAddress = {1, {0x51}};
    node.controlRegister = hex32(0x12, 0x34, 0x56, 0x78);
    node.dataRegister = hex32(0xFF, 0, 0, 1);
    node.secondCtrlReg = hex32(0, 0, 0, 0xFF);
    node.secondDataReg = hex32(0x80, 0, 0, 0);
    node.xmlInstance = -1;
    node.resetOnly = 1;
    return node;
}

TEST_F(AccessRecords, an_i2c_node_with_everything_has_every_field_and_bit)
{
    I2cNodeType from = full_i2c_node();
    sch_i2c_node_type record = {};
    EXPECT_EQ(parser_retrieve_i2c_node_data(&record, &from), 0u);
    EXPECT_EQ(record.device_type, 0xFFFFFFFFu);
    EXPECT_EQ(record.device_model, 0x7F) << "the model is narrowed to its low octet";
    EXPECT_EQ(record.device_address, 0x51);
    EXPECT_EQ(record.control_register, 0x12345678u);
    EXPECT_EQ(record.data_register, 0xFF000001u);
    EXPECT_EQ(record.second_control_register, 0xFFu);
    EXPECT_EQ(record.second_data_register, 0x80000000u);
    EXPECT_EQ(record.xml_instance, 0xFFFF);
    EXPECT_EQ(record.reset_only, 1);
    EXPECT_EQ(record.field_present, 0xFF);
    EXPECT_EQ(record.next, nullptr);
    trace_recorder::line expected = {
        122, 8, 0, "dddd",
        "deviceModel:127  deviceAddress: 0x51  ControlRegister: 0x12345678 XmlInst: 65535\n"};
    ASSERT_EQ(trace_recorder::lines().size(), 1u);
    EXPECT_EQ(trace_recorder::lines()[0], expected);
}

TEST_F(AccessRecords, an_i2c_node_with_nothing_optional_keeps_only_its_type)
{
    I2cNodeType from = full_i2c_node();
    from.has = {};
    sch_i2c_node_type record = {};
    parser_retrieve_i2c_node_data(&record, &from);
    sch_i2c_node_type expected = {};
    expected.device_type = 0xFFFFFFFF;
    EXPECT_EQ(memcmp(&record, &expected, sizeof record), 0);
}

TEST_F(AccessRecords, a_register_of_fewer_than_four_octets_is_read_as_four)
{
    I2cNodeType from = {};
    from.has.controlRegister = 1;
    from.controlRegister = {2, {0x12, 0x34, 0, 0}};
    sch_i2c_node_type record = {};
    parser_retrieve_i2c_node_data(&record, &from);
    EXPECT_EQ(record.control_register, 0x12340000u);
}

TEST_F(AccessRecords, each_optional_field_of_a_pcie_node_has_its_own_bit_and_bit_4_is_never_set)
{
    PCIeNodeType from = {};
    from.has = {1, 1, 1};
    from.deviceType = 3;
    from.deviceModel = 0x1FE;
    from.portNumber = {1, {0xFF}};
    from.numOfFunctions = -2;
    sch_pcie_node_type record = {};
    parser_retrieve_pcie_node_data(&record, &from);
    EXPECT_EQ(record.device_type, 3u);
    EXPECT_EQ(record.device_model, 0xFE);
    EXPECT_EQ(record.port_number, 0xFF);
    EXPECT_EQ(record.num_functions, 0xFFFE);
    EXPECT_EQ(record.field_present, 0x0B);
    EXPECT_EQ(trace_recorder::lines().at(0).text,
              "deviceType:3  portNumber:0xff  hwModel:254 numOfFunctions:65534\n");
    const struct {
        uint8_t model, port, functions, bit;
    } cases[] = {{0, 1, 0, 0x01}, {1, 0, 0, 0x02}, {0, 0, 1, 0x08}, {0, 0, 0, 0x00}};
    for (const auto &c : cases) {
        PCIeNodeType one = from;
        one.has.deviceModel = c.model & 1;
        one.has.portNumber = c.port & 1;
        one.has.numOfFunctions = c.functions & 1;
        sch_pcie_node_type alone = {};
        parser_retrieve_pcie_node_data(&alone, &one);
        EXPECT_EQ(alone.field_present, c.bit);
        EXPECT_EQ(alone.device_model, c.model ? 0xFE : 0);
    }
}

TEST_F(AccessRecords, node_info_carries_its_position_only_when_given)
{
    NodeInfoType from = {};
    from.nodeType = 20;
    from.nodePosition = -3;
    sch_node_info_type absent = {}, present = {};
    parser_retrieve_node_info_data(&absent, &from);
    from.has.nodePosition = 1;
    parser_retrieve_node_info_data(&present, &from);
    EXPECT_EQ(absent.node_type, 20u);
    EXPECT_EQ(absent.node_position, 0);
    EXPECT_EQ(absent.field_present, 0);
    EXPECT_EQ(present.node_position, 0xFFFD);
    EXPECT_EQ(present.field_present, 1);
    EXPECT_EQ(trace_recorder::lines().at(1).text, "nodeType: 20  nodePosition:65533 \n");
}

TEST_F(AccessRecords, an_i2c_sequence_has_its_ends_its_commands_and_8_octets_of_description)
{
    I2cNodeType first = full_i2c_node(), second = {};
    decoded_list commands = {&first, &second};
    I2cSequenceType from = {};
    from.has = {1, 1, 1};
    from.applicable = 2;
    from.seqType = 0x105;
    from.description = "ninechars";
    from.srcInfo.has.nodePosition = 1;
    from.srcInfo.nodeType = 6;
    from.srcInfo.nodePosition = 7;
    from.dstInfo.nodeType = 8;
    from.dstInfo.nodePosition = 9;
    from.cmdInfo = commands;
    sch_i2c_sequence_type record = {};
    EXPECT_EQ(parser_retrieve_i2c_sequence_data(&record, &from), 0u);
    EXPECT_EQ(record.applicable, 2u);
    EXPECT_EQ(record.seq_type, 5);
    EXPECT_STREQ(record.description, "ninechar");
    EXPECT_EQ(record.src_node_type, 6u);
    EXPECT_EQ(record.src_node_position, 7);
    EXPECT_EQ(record.dst_node_type, 8u);
    EXPECT_EQ(record.dst_node_position, 0) << "without a position in the document";
    EXPECT_EQ(record.field_present, 0x07);
    EXPECT_EQ(length_of(record.command_list), 2u);
    inv_schema_free_i2c_sequence_data(&record);
}

TEST_F(AccessRecords, a_pci_sequence_keeps_128_octets_of_description_and_both_targets)
{
    std::string text(200, 'p');
    PciSequenceType from = {};
    from.has.applicable = from.has.dstPci = from.has.dstInfo = from.has.xmlInstance = 1;
    from.applicable = 1;
    from.description = text.c_str();
    from.dstPci.deviceType = 4;
    from.dstInfo.nodeType = 5;
    sch_pci_sequence_type record = {};
    EXPECT_EQ(parser_retrieve_pci_sequence_data(&record, &from), 0u);
    EXPECT_EQ(std::string(record.description), std::string(128, 'p'));
    EXPECT_EQ(record.applicable, 1u);
    EXPECT_EQ(record.dst_pci.device_type, 4u);
    EXPECT_EQ(record.dst_info.node_type, 5u);
    EXPECT_EQ(record.field_present, 0x07);
}

TEST_F(AccessRecords, a_pcie_port_fills_all_fields_and_cuts_its_label_at_64_octets)
{
    std::string label(80, 'L');
    BasePCIePortType from = {};
    from.has = {1, 1, 1, 1, 1};
    from.width = 16;
    from.isTransparentPort = 1;
    from.isPrimary = 1;
    from.hwPinLabel = label.c_str();
    from.portNumber = {1, {0xFE}};
    from.pciGen = 3;
    PciSequenceType link = {};
    decoded_list links = {&link};
    from.pciLink = links;
    sch_base_pcie_port_type record = {};
    EXPECT_EQ(parser_retrieve_base_pcie_port_data(&record, &from, nullptr), 0u);
    EXPECT_EQ(record.width, 16);
    EXPECT_EQ(record.is_transparent, 1);
    EXPECT_EQ(record.is_primary, 1);
    EXPECT_EQ(std::string(record.hw_pin_label), std::string(64, 'L'));
    EXPECT_EQ(record.port_number, 0xFE);
    EXPECT_EQ(record.pci_gen, 3);
    EXPECT_EQ(record.field_present, 0x1F);
    EXPECT_EQ(record.link_list, nullptr) << "links are not carried";
    sch_base_pcie_port_type absent = {};
    from.has = {};
    parser_retrieve_base_pcie_port_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.field_present, 0);
    EXPECT_EQ(absent.port_number, 0xFE);
    EXPECT_EQ(absent.width + absent.is_transparent + absent.is_primary + absent.pci_gen, 0);
    EXPECT_STREQ(absent.hw_pin_label, "");
}

TEST_F(AccessRecords, an_spi_destination_keeps_64_octets_of_description)
{
    std::string text(70, 's');
    SpiDestType from = {};
    from.description = text.c_str();
    sch_spi_dest_type record = {};
    parser_retrieve_spi_dest_data(&record, &from);
    EXPECT_EQ(std::string(record.description), std::string(64, 's'));
    EXPECT_EQ(record.field_present, 0);
    from.has.deviceAddress = 1;
    from.deviceAddress = {1, {9}};
    parser_retrieve_spi_dest_data(&record, &from);
    EXPECT_EQ(record.device_address, 9);
    EXPECT_EQ(record.field_present, 1);
}

TEST_F(AccessRecords, a_channel_without_octets_is_0)
{
    uint8_t octets[] = {0xAB, 0xCD};
    SpiPortType spi = {};
    I2cPortType i2c = {};
    sch_spi_port_type spi_record = {};
    sch_i2c_port_type i2c_record = {};
    parser_retrieve_spi_port_data(&spi_record, &spi);
    parser_retrieve_i2c_port_data(&i2c_record, &i2c, nullptr);
    EXPECT_EQ(spi_record.channel, 0u);
    EXPECT_EQ(i2c_record.channel_number, 0);
    spi.channel = i2c.channelNumber = {2, octets};
    i2c.portType = 3;
    parser_retrieve_spi_port_data(&spi_record, &spi);
    parser_retrieve_i2c_port_data(&i2c_record, &i2c, nullptr);
    EXPECT_EQ(spi_record.channel, 0xABu) << "only the first octet";
    EXPECT_EQ(i2c_record.channel_number, 0xAB);
    EXPECT_EQ(trace_recorder::lines().back().text, "portType: 3  channelNumber:171 \n");
}

TEST_F(AccessRecords, hardware_signals_carry_three_registers_and_the_path)
{
    HwSignalsType from = {};
    from.has.i2cPath = 1;
    from.direct = 1;
    from.alert.has = {1, 1};
    from.alert.wordOffset = 0xFFFFFFFF;
    from.alert.bitNumber = 31;
    from.present.has.wordOffset = 1;
    from.present.wordOffset = 2;
    from.reset.has.bitNumber = 1;
    from.reset.bitNumber = 3;
    from.i2cPath.seqType = 2;
    sch_hw_signals_type record = {};
    EXPECT_EQ(parser_retrieve_hw_signals_data(&record, &from), 0u);
    EXPECT_EQ(record.direct, 1);
    EXPECT_EQ(record.alert.word_offset, 0xFFFFFFFFu);
    EXPECT_EQ(record.alert.bit_number, 31u);
    EXPECT_EQ(record.alert.field_present, 3);
    EXPECT_EQ(record.present.word_offset, 2u);
    EXPECT_EQ(record.present.field_present, 1);
    EXPECT_EQ(record.reset.bit_number, 3u);
    EXPECT_EQ(record.reset.field_present, 2);
    EXPECT_EQ(record.i2c_path.seq_type, 2);
    EXPECT_EQ(record.field_present, 1);
}

// Calls a builder with a null record, else with a null value.
template <class Record, class Decoded, class... Rest>
std::function<uint32_t(bool)> one_null(uint32_t (*build)(Record *, const Decoded *, Rest...))
{
    return [build](bool null_record) {
        Record record = {};
        Decoded decoded = {};
        return build(null_record ? nullptr : &record, null_record ? &decoded : nullptr, Rest{}...);
    };
}

// A null record or value only traces, and the result is 0.
TEST_F(AccessRecords, a_null_record_or_value_is_traced_and_skipped)
{
    const struct {
        uint32_t id;
        const char *text;
        std::function<uint32_t(bool)> call;
    } cases[] = {
        {121, "Invalid i2cNodeType pointer\n", one_null(parser_retrieve_i2c_node_data)},
        {123, "Invalid PciNodeType pointer\n", one_null(parser_retrieve_pcie_node_data)},
        {125, "Invalid HardwareRegistersType pointer\n", one_null(parser_retrieve_hw_reg_data)},
        {126, "Invalid NodeInfoType pointer\n", one_null(parser_retrieve_node_info_data)},
        {128, "Invalid PowerZoneType pointer\n", one_null(parser_retrieve_power_zone_data)},
        {131, "Invalid I2cDestype pointer\n", one_null(parser_retrieve_i2c_dest_data)},
        {137, "Invalid I2cPortType pointer\n", one_null(parser_retrieve_i2c_port_data)},
        {141, "Invalid PCIeDestype pointer\n", one_null(parser_retrieve_pcie_dest_data)},
        {147, "Invalid SpiDestType pointer\n", one_null(parser_retrieve_spi_dest_data)},
        {148, "Invalid PciSequenceType pointer\n", one_null(parser_retrieve_pci_sequence_data)},
        {152, "Invalid I2cSequenceType pointer\n", one_null(parser_retrieve_i2c_sequence_data)},
        {153, "Invalid HwSignalsType pointer\n", one_null(parser_retrieve_hw_signals_data)},
        {154, "Invalid SpiPortType pointer\n", one_null(parser_retrieve_spi_port_data)},
        {155, "Invalid BasePCIePortType pointer\n", one_null(parser_retrieve_base_pcie_port_data)},
    };
    for (const auto &c : cases) {
        trace_recorder::clear();
        EXPECT_EQ(c.call(true), 0u);
        EXPECT_EQ(c.call(false), 0u);
        trace_recorder::line expected = {c.id, 4, 0, "", c.text};
        EXPECT_EQ(trace_recorder::lines(), (std::vector<trace_recorder::line>{expected, expected})) << c.id;
    }
}

TEST_F(AccessRecords, every_release_function_ignores_null)
{
    inv_schema_free_i2c_node_data_list(nullptr);
    inv_schema_free_i2c_dest_data_list(nullptr);
    inv_schema_free_i2c_port_data(nullptr);
    inv_schema_free_i2c_port_data_list(nullptr);
    inv_schema_free_i2c_sequence_data(nullptr);
    inv_schema_free_pci_sequence_data_list(nullptr);
    inv_schema_free_pcie_port_dest_list(nullptr);
    inv_schema_free_pcie_port_data(nullptr);
    inv_schema_free_pcie_port_data_list(nullptr);
    inv_schema_free_power_zone_data_list(nullptr);
    inv_schema_free_power_info_data(nullptr);
    EXPECT_EQ(counting_memory::live(), live_before);
}

}  // namespace
