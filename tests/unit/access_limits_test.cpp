// Every field of the access and power records at both limits of its item and of its own width.
#include "field_limits.h"

namespace
{

using namespace field_limits;

void add_i2c_rows(std::vector<row> &rows)
{
    using from = I2cNodeType;
    using to = sch_i2c_node_type;
    auto node = table<from, to, decltype(&parser_retrieve_i2c_node_data)>(rows, "i2c_node",
                                                                          parser_retrieve_i2c_node_data);
    node.always<uint32_t>("device_type", &from::deviceType, &to::device_type);
    node.optional<uint8_t>("device_model", &from::deviceModel, &to::device_model, 0x01,
                           [](from &d) { d.has.deviceModel = 1; });
    node.optional<uint8_t>("device_address", &from::deviceAddress, &to::device_address, 0x02,
                           [](from &d) { d.has.deviceAddress = 1; });
    node.optional<uint32_t>("control_register", &from::controlRegister, &to::control_register, 0x04,
                            [](from &d) { d.has.controlRegister = 1; });
    node.optional<uint32_t>("data_register", &from::dataRegister, &to::data_register, 0x08,
                            [](from &d) { d.has.dataRegister = 1; });
    node.optional<uint32_t>("second_control_register", &from::secondCtrlReg, &to::second_control_register,
                            0x10, [](from &d) { d.has.secondCtrlReg = 1; });
    node.optional<uint32_t>("second_data_register", &from::secondDataReg, &to::second_data_register, 0x20,
                            [](from &d) { d.has.secondDataReg = 1; });
    node.optional<uint16_t>("xml_instance", &from::xmlInstance, &to::xml_instance, 0x40,
                            [](from &d) { d.has.xmlInstance = 1; });
    node.optional<uint8_t>("reset_only", &from::resetOnly, &to::reset_only, 0x80,
                           [](from &d) { d.has.resetOnly = 1; });

    auto fill_port = [](sch_i2c_port_type *record, const I2cPortType *decoded) {
        return parser_retrieve_i2c_port_data(record, decoded, nullptr);
    };
    auto port = table<I2cPortType, sch_i2c_port_type, decltype(fill_port)>(rows, "i2c_port", fill_port);
    port.always<uint8_t>("port_type", &I2cPortType::portType, &sch_i2c_port_type::port_type);
    port.always<uint8_t>("channel_number", &I2cPortType::channelNumber, &sch_i2c_port_type::channel_number);
}

void add_i2c_sequence_rows(std::vector<row> &rows)
{
    using from = I2cSequenceType;
    using to = sch_i2c_sequence_type;
    auto sequence = table<from, to, decltype(&parser_retrieve_i2c_sequence_data)>(
        rows, "i2c_sequence", parser_retrieve_i2c_sequence_data);
    sequence.optional<uint32_t>("applicable", &from::applicable, &to::applicable, 0x01,
                                [](from &d) { d.has.applicable = 1; });
    sequence.always<uint8_t>("seq_type", &from::seqType, &to::seq_type);
    sequence.text("description", &from::description, &to::description, 8, 9);
    sequence.optional<uint32_t>(
        "src_node_type", [](from & d) -> auto & { return d.srcInfo.nodeType; }, &to::src_node_type, 0x02,
        [](from &d) { d.has.srcInfo = 1; });
    sequence.optional<uint16_t>(
        "src_node_position", [](from & d) -> auto & { return d.srcInfo.nodePosition; },
        &to::src_node_position, 0x02, [](from &d) { d.has.srcInfo = d.srcInfo.has.nodePosition = 1; });
    sequence.optional<uint32_t>(
        "dst_node_type", [](from & d) -> auto & { return d.dstInfo.nodeType; }, &to::dst_node_type, 0x04,
        [](from &d) { d.has.dstInfo = 1; });
    sequence.optional<uint16_t>(
        "dst_node_position", [](from & d) -> auto & { return d.dstInfo.nodePosition; },
        &to::dst_node_position, 0x04, [](from &d) { d.has.dstInfo = d.dstInfo.has.nodePosition = 1; });
}

// Destinations widen their position with its sign: -1 becomes 32 bits of ones.
template <class Decoded, class Record, class Fill>
auto destination_table(std::vector<row> &rows, const char *name, Fill fill)
{
    auto destination = table<Decoded, Record, Fill>(rows, name, fill);
    destination.template always<uint32_t>("applicable", &Decoded::applicable, &Record::applicable);
    destination.template always<uint32_t>(
        "node_type", [](Decoded & d) -> auto & { return d.nodeInfo.nodeType; }, &Record::node_type);
    destination.template optional<uint32_t>(
        "node_position", [](Decoded & d) -> auto & { return d.nodeInfo.nodePosition; },
        &Record::node_position, 0, [](Decoded &d) { d.nodeInfo.has.nodePosition = 1; });
    return destination;
}

void add_destination_rows(std::vector<row> &rows)
{
    destination_table<I2cDestType, sch_i2c_dest_type>(
        rows, "i2c_dest", [](sch_i2c_dest_type *record, const I2cDestType *decoded) {
            return parser_retrieve_i2c_dest_data(record, decoded, 1, nullptr);
        });
    auto pcie = destination_table<PCIeDestType, sch_pcie_dest_type>(
        rows, "pcie_dest", [](sch_pcie_dest_type *record, const PCIeDestType *decoded) {
            return parser_retrieve_pcie_dest_data(record, decoded, 1, nullptr);
        });
    pcie.optional<uint16_t>("device_id", &PCIeDestType::deviceId, &sch_pcie_dest_type::device_id, 0x01,
                            [](PCIeDestType &d) { d.has.deviceId = 1; });
    auto info = table<NodeInfoType, sch_node_info_type, decltype(&parser_retrieve_node_info_data)>(
        rows, "node_info", parser_retrieve_node_info_data);
    info.always<uint32_t>("node_type", &NodeInfoType::nodeType, &sch_node_info_type::node_type);
    info.optional<uint16_t>("node_position", &NodeInfoType::nodePosition, &sch_node_info_type::node_position,
                            0x01, [](NodeInfoType &d) { d.has.nodePosition = 1; });
}

void add_pcie_rows(std::vector<row> &rows)
{
    using from = PCIeNodeType;
    using to = sch_pcie_node_type;
    auto node = table<from, to, decltype(&parser_retrieve_pcie_node_data)>(rows, "pcie_node",
                                                                           parser_retrieve_pcie_node_data);
    node.always<uint32_t>("device_type", &from::deviceType, &to::device_type);
    node.optional<uint8_t>("device_model", &from::deviceModel, &to::device_model, 0x02,
                           [](from &d) { d.has.deviceModel = 1; });
    node.optional<uint16_t>("port_number", &from::portNumber, &to::port_number, 0x01,
                            [](from &d) { d.has.portNumber = 1; });
    node.optional<uint16_t>("num_functions", &from::numOfFunctions, &to::num_functions, 0x08,
                            [](from &d) { d.has.numOfFunctions = 1; });

    using sequence = PciSequenceType;
    auto pci = table<sequence, sch_pci_sequence_type, decltype(&parser_retrieve_pci_sequence_data)>(
        rows, "pci_sequence", parser_retrieve_pci_sequence_data);
    pci.optional<uint32_t>("applicable", &sequence::applicable, &sch_pci_sequence_type::applicable, 0x01,
                           [](sequence &d) { d.has.applicable = 1; });
    pci.text("description", &sequence::description, &sch_pci_sequence_type::description, 128, 129);
    pci.optional<uint32_t>(
        "dst_pci", [](sequence & d) -> auto & { return d.dstPci.deviceType; },
        [](sch_pci_sequence_type & r) -> auto & { return r.dst_pci.device_type; }, 0x02,
        [](sequence &d) { d.has.dstPci = 1; });
    pci.optional<uint32_t>(
        "dst_info", [](sequence & d) -> auto & { return d.dstInfo.nodeType; },
        [](sch_pci_sequence_type & r) -> auto & { return r.dst_info.node_type; }, 0x04,
        [](sequence &d) { d.has.dstInfo = 1; });
}

void add_pcie_port_rows(std::vector<row> &rows)
{
    using from = BasePCIePortType;
    using to = sch_base_pcie_port_type;
    auto fill = [](to *record, const from *decoded) {
        return parser_retrieve_base_pcie_port_data(record, decoded, nullptr);
    };
    auto port = table<from, to, decltype(fill)>(rows, "pcie_port", fill);
    port.optional<uint16_t>("width", &from::width, &to::width, 0x01, [](from &d) { d.has.width = 1; });
    port.optional<uint8_t>("is_transparent", &from::isTransparentPort, &to::is_transparent, 0x02,
                           [](from &d) { d.has.isTransparentPort = 1; });
    port.optional<uint8_t>("is_primary", &from::isPrimary, &to::is_primary, 0x04,
                           [](from &d) { d.has.isPrimary = 1; });
    port.text("hw_pin_label", &from::hwPinLabel, &to::hw_pin_label, 64, 65, 0x08,
              [](from &d) { d.has.hwPinLabel = 1; });
    port.always<uint16_t>("port_number", &from::portNumber, &to::port_number);
    port.optional<uint8_t>("pci_gen", &from::pciGen, &to::pci_gen, 0x10, [](from &d) { d.has.pciGen = 1; });
}

void add_spi_and_signal_rows(std::vector<row> &rows)
{
    auto spi_end = table<SpiDestType, sch_spi_dest_type, decltype(&parser_retrieve_spi_dest_data)>(
        rows, "spi_dest", parser_retrieve_spi_dest_data);
    spi_end.text("description", &SpiDestType::description, &sch_spi_dest_type::description, 64, 65);
    spi_end.optional<uint8_t>("device_address", &SpiDestType::deviceAddress,
                              &sch_spi_dest_type::device_address, 0x01,
                              [](SpiDestType &d) { d.has.deviceAddress = 1; });
    auto spi_port = table<SpiPortType, sch_spi_port_type, decltype(&parser_retrieve_spi_port_data)>(
        rows, "spi_port", parser_retrieve_spi_port_data);
    spi_port.always<uint32_t>("channel", &SpiPortType::channel, &sch_spi_port_type::channel);
    auto reg = table<HardwareRegistersType, sch_hw_reg_type, decltype(&parser_retrieve_hw_reg_data)>(
        rows, "hw_reg", parser_retrieve_hw_reg_data);
    reg.optional<uint32_t>("word_offset", &HardwareRegistersType::wordOffset, &sch_hw_reg_type::word_offset,
                           0x01, [](HardwareRegistersType &d) { d.has.wordOffset = 1; });
    reg.optional<uint32_t>("bit_number", &HardwareRegistersType::bitNumber, &sch_hw_reg_type::bit_number,
                           0x02, [](HardwareRegistersType &d) { d.has.bitNumber = 1; });
    auto signals = table<HwSignalsType, sch_hw_signals_type, decltype(&parser_retrieve_hw_signals_data)>(
        rows, "hw_signals", parser_retrieve_hw_signals_data);
    signals.always<uint8_t>("direct", &HwSignalsType::direct, &sch_hw_signals_type::direct);
    signals.optional<uint8_t>(
        "i2c_path", [](HwSignalsType & d) -> auto & { return d.i2cPath.seqType; },
        [](sch_hw_signals_type & r) -> auto & { return r.i2c_path.seq_type; }, 0x01,
        [](HwSignalsType &d) { d.has.i2cPath = 1; });
}

void add_power_rows(std::vector<row> &rows)
{
    using consumer = PowerConsumerType;
    using consumer_record = sch_power_consumer_type;
    auto fill_consumer = [](consumer_record *record, const consumer *decoded) {
        return parser_retrieve_power_consumer_data(record, decoded) == record ? 0u : 1u;
    };
    auto draws =
        table<consumer, consumer_record, decltype(fill_consumer)>(rows, "power_consumer", fill_consumer);
    draws.optional<uint16_t>("min_budget", &consumer::minPowerBudget, &consumer_record::min_budget, 0x01,
                             [](consumer &d) { d.has.minPowerBudget = 1; });
    draws.optional<uint16_t>("max_budget", &consumer::maxPowerBudget, &consumer_record::max_budget, 0x02,
                             [](consumer &d) { d.has.maxPowerBudget = 1; });
    draws.optional<uint16_t>("ext_budget", &consumer::extPowerBudget, &consumer_record::ext_budget, 0x04,
                             [](consumer &d) { d.has.extPowerBudget = 1; });
    draws.optional<uint32_t>("power_usage", &consumer::powerUsage, &consumer_record::power_usage, 0x08,
                             [](consumer &d) { d.has.powerUsage = 1; });
    draws.always<uint32_t>("power_zone", &consumer::powerZone, &consumer_record::power_zone);

    using producer = PowerProducerType;
    auto gives = table<producer, sch_power_producer_type, decltype(&parser_retrieve_power_producer_data)>(
        rows, "power_producer", parser_retrieve_power_producer_data);
    gives.optional<uint32_t>("max_power", &producer::maxPower, &sch_power_producer_type::max_power, 0x01,
                             [](producer &d) { d.has.maxPower = 1; });
    gives.optional<uint32_t>("current_power", &producer::currentPower,
                             &sch_power_producer_type::current_power, 0x02,
                             [](producer &d) { d.has.currentPower = 1; });

    using from = PowerZoneType;
    using to = sch_power_zone_type;
    auto zone = table<from, to, decltype(&parser_retrieve_power_zone_data)>(rows, "power_zone",
                                                                            parser_retrieve_power_zone_data);
    zone.text("description", &from::description, &to::description, 16, 17, 0x01,
              [](from &d) { d.has.description = 1; });
    zone.always<uint8_t>("zone", &from::zone, &to::zone);
    zone.always<uint8_t>("on_off_capability", &from::powerOnOffCapability, &to::on_off_capability);
    zone.always<uint8_t>("power_applied", &from::powerApplied, &to::power_applied);
    zone.always<uint16_t>("total_power_required", &from::totalPowerRequired, &to::total_power_required);
    zone.always<uint8_t>("main_zone", &from::mainZone, &to::main_zone);
    zone.always<uint16_t>("pd_zone_number", &from::pdZoneNumber, &to::pd_zone_number);
}

std::vector<row> all_rows()
{
    std::vector<row> rows;
    add_i2c_rows(rows);
    add_i2c_sequence_rows(rows);
    add_destination_rows(rows);
    add_pcie_rows(rows);
    add_pcie_port_rows(rows);
    add_spi_and_signal_rows(rows);
    add_power_rows(rows);
    return rows;
}

using AccessLimits = FieldLimits;

INSTANTIATE_TEST_SUITE_P(All, AccessLimits, testing::ValuesIn(all_rows()),
                         [](const auto &about) { return about.param.name; });

TEST_P(AccessLimits, a_field_takes_its_item_alone_cut_to_its_width_and_with_its_bit)
{
    GetParam().check();
}

}  // namespace
