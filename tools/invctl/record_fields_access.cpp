// Tables of the access and power records.
#include "OrvelianInventorySchema.h"
#include "record_table.h"

namespace invctl
{

template <>
const record_table &table_of<sch_i2c_node_type>()
{
    using record = sch_i2c_node_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(device_type), I2cDeviceType_ToString),
        token(INVCTL_MEMBER(device_model), HardwareModelType_ToString, SCH_I2C_NODE_HAS_DEVICE_MODEL),
        hex(INVCTL_MEMBER(device_address), SCH_I2C_NODE_HAS_DEVICE_ADDRESS),
        hex(INVCTL_MEMBER(control_register), SCH_I2C_NODE_HAS_CONTROL_REGISTER),
        hex(INVCTL_MEMBER(data_register), SCH_I2C_NODE_HAS_DATA_REGISTER),
        hex(INVCTL_MEMBER(second_control_register), SCH_I2C_NODE_HAS_SECOND_CONTROL_REGISTER),
        hex(INVCTL_MEMBER(second_data_register), SCH_I2C_NODE_HAS_SECOND_DATA_REGISTER),
        number(INVCTL_MEMBER(xml_instance), SCH_I2C_NODE_HAS_XML_INSTANCE),
        flag(INVCTL_MEMBER(reset_only), SCH_I2C_NODE_HAS_RESET_ONLY),
        mask(INVCTL_MEMBER(field_present)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"i2c_node", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_node_info_type>()
{
    using record = sch_node_info_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(node_type), NodeInfoType_nodeType_ToString),
        number(INVCTL_MEMBER(node_position), SCH_NODE_INFO_HAS_NODE_POSITION),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"node_info", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_i2c_dest_type>()
{
    using record = sch_i2c_dest_type;
    static constexpr record_field fields[] = {
        text(INVCTL_MEMBER(description)),
        token(INVCTL_MEMBER(applicable), LinkApplicableType_ToString),
        token(INVCTL_MEMBER(node_type), NodeInfoType_nodeType_ToString),
        number(INVCTL_MEMBER(node_position)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"i2c_dest", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_i2c_port_type>()
{
    using record = sch_i2c_port_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(port_type), I2cPortType_portType_ToString),
        number(INVCTL_MEMBER(channel_number)),
        list(INVCTL_MEMBER(dest_list)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"i2c_port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_i2c_sequence_type>()
{
    using record = sch_i2c_sequence_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(applicable), LinkApplicableType_ToString, SCH_I2C_SEQUENCE_HAS_APPLICABLE),
        token(INVCTL_MEMBER(seq_type), SequenceType_ToString),
        text(INVCTL_MEMBER(description)),
        token(INVCTL_MEMBER(src_node_type), NodeInfoType_nodeType_ToString, SCH_I2C_SEQUENCE_HAS_SOURCE),
        number(INVCTL_MEMBER(src_node_position), SCH_I2C_SEQUENCE_HAS_SOURCE),
        token(INVCTL_MEMBER(dst_node_type), NodeInfoType_nodeType_ToString, SCH_I2C_SEQUENCE_HAS_DESTINATION),
        number(INVCTL_MEMBER(dst_node_position), SCH_I2C_SEQUENCE_HAS_DESTINATION),
        list(INVCTL_MEMBER(command_list)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"i2c_sequence", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pcie_node_type>()
{
    using record = sch_pcie_node_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(device_type), PCIeNodeType_deviceType_ToString),
        token(INVCTL_MEMBER(device_model), HardwareModelType_ToString, SCH_PCIE_NODE_HAS_DEVICE_MODEL),
        number(INVCTL_MEMBER(port_number), SCH_PCIE_NODE_HAS_PORT_NUMBER),
        number(INVCTL_MEMBER(num_functions), SCH_PCIE_NODE_HAS_NUM_FUNCTIONS),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"pcie_node", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pcie_dest_type>()
{
    using record = sch_pcie_dest_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(applicable), LinkApplicableType_ToString),
        token(INVCTL_MEMBER(node_type), NodeInfoType_nodeType_ToString),
        number(INVCTL_MEMBER(node_position)),
        hex(INVCTL_MEMBER(device_id), SCH_PCIE_DEST_HAS_DEVICE_ID),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"pcie_dest", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pci_sequence_type>()
{
    using record = sch_pci_sequence_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(applicable), LinkApplicableType_ToString, SCH_PCI_SEQUENCE_HAS_APPLICABLE),
        text(INVCTL_MEMBER(description)),
        nested(INVCTL_MEMBER(dst_pci), SCH_PCI_SEQUENCE_HAS_DST_PCI),
        nested(INVCTL_MEMBER(dst_info), SCH_PCI_SEQUENCE_HAS_DST_INFO),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"pci_sequence", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_base_pcie_port_type>()
{
    using record = sch_base_pcie_port_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(width), SCH_PCIE_PORT_HAS_WIDTH),
        flag(INVCTL_MEMBER(is_transparent), SCH_PCIE_PORT_HAS_IS_TRANSPARENT),
        flag(INVCTL_MEMBER(is_primary), SCH_PCIE_PORT_HAS_IS_PRIMARY),
        text(INVCTL_MEMBER(hw_pin_label), SCH_PCIE_PORT_HAS_HW_PIN_LABEL),
        number(INVCTL_MEMBER(port_number)),
        token(INVCTL_MEMBER(pci_gen), PciGen_ToString, SCH_PCIE_PORT_HAS_PCI_GEN),
        list(INVCTL_MEMBER(dest_list)),
        list(INVCTL_MEMBER(link_list)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"base_pcie_port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_spi_dest_type>()
{
    using record = sch_spi_dest_type;
    static constexpr record_field fields[] = {
        text(INVCTL_MEMBER(description)),
        hex(INVCTL_MEMBER(device_address), SCH_SPI_DEST_HAS_DEVICE_ADDRESS),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"spi_dest", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_spi_port_type>()
{
    using record = sch_spi_port_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(channel)),
        list(INVCTL_MEMBER(dest_list)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"spi_port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_hw_reg_type>()
{
    using record = sch_hw_reg_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(word_offset), SCH_HW_REG_HAS_WORD_OFFSET),
        number(INVCTL_MEMBER(bit_number), SCH_HW_REG_HAS_BIT_NUMBER),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"hw_reg", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_hw_signals_type>()
{
    using record = sch_hw_signals_type;
    static constexpr record_field fields[] = {
        flag(INVCTL_MEMBER(direct)),
        nested(INVCTL_MEMBER(alert)),
        nested(INVCTL_MEMBER(present)),
        nested(INVCTL_MEMBER(reset)),
        nested(INVCTL_MEMBER(i2c_path), SCH_HW_SIGNALS_HAS_I2C_PATH),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"hw_signals", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_power_consumer_type>()
{
    using record = sch_power_consumer_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(min_budget), SCH_POWER_CONSUMER_HAS_MIN_BUDGET),
        number(INVCTL_MEMBER(max_budget), SCH_POWER_CONSUMER_HAS_MAX_BUDGET),
        number(INVCTL_MEMBER(ext_budget), SCH_POWER_CONSUMER_HAS_EXT_BUDGET),
        number(INVCTL_MEMBER(power_usage), SCH_POWER_CONSUMER_HAS_POWER_USAGE),
        token(INVCTL_MEMBER(power_zone), PowerZonesValuesType_ToString),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"power_consumer", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_power_producer_type>()
{
    using record = sch_power_producer_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(max_power), SCH_POWER_PRODUCER_HAS_MAX_POWER),
        number(INVCTL_MEMBER(current_power), SCH_POWER_PRODUCER_HAS_CURRENT_POWER),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"power_producer", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_power_zone_type>()
{
    using record = sch_power_zone_type;
    static constexpr record_field fields[] = {
        text(INVCTL_MEMBER(description), SCH_POWER_ZONE_HAS_DESCRIPTION),
        token(INVCTL_MEMBER(zone), PowerZonesValuesType_ToString),
        flag(INVCTL_MEMBER(on_off_capability)),
        flag(INVCTL_MEMBER(power_applied)),
        number(INVCTL_MEMBER(total_power_required)),
        flag(INVCTL_MEMBER(main_zone)),
        number(INVCTL_MEMBER(pd_zone_number)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"power_zone", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_power_info_type>()
{
    using record = sch_power_info_type;
    static constexpr record_field fields[] = {
        list(INVCTL_MEMBER(power_zone_list)),
    };
    static constexpr record_table table = {"power_info", sizeof(record), fields};
    return table;
}

}  // namespace invctl
