// Tables of modules and of whole units.
#include "OrvelianInventorySchema.h"
#include "record_table.h"

namespace invctl
{

template <>
const record_table &table_of<sch_module_type>()
{
    using record = sch_module_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(logical_module_num), SCH_MODULE_HAS_LOGICAL_MODULE_NUM),
        nested(INVCTL_MEMBER(power_info), SCH_MODULE_HAS_POWER_INFO),
        number(INVCTL_MEMBER(power_controller), SCH_MODULE_HAS_POWER_CONTROLLER),
        children(INVCTL_MEMBER(fpga_list)),
        children(INVCTL_MEMBER(i2c_chip_list)),
        children(INVCTL_MEMBER(pcie_switch_list)),
        children(INVCTL_MEMBER(sensor_list)),
        children(INVCTL_MEMBER(volt_margin_list)),
        children(INVCTL_MEMBER(spi_flash_list)),
        children(INVCTL_MEMBER(storage_list)),
        children(INVCTL_MEMBER(processor_list)),
        children(INVCTL_MEMBER(memory_list)),
        children(INVCTL_MEMBER(ce_switch_list)),
        children(INVCTL_MEMBER(kesto_list)),
        children(INVCTL_MEMBER(console_list)),
        children(INVCTL_MEMBER(container_list)),
        children(INVCTL_MEMBER(ideeprom_list)),
        children(INVCTL_MEMBER(port_list)),
        children(INVCTL_MEMBER(led_list)),
        children(INVCTL_MEMBER(module_list)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"module", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_back_plane_type>()
{
    using record = sch_back_plane_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        children(INVCTL_MEMBER(ideeprom_list)),
        children(INVCTL_MEMBER(sensor_list)),
        children(INVCTL_MEMBER(module_list)),
    };
    static constexpr record_table table = {"back_plane", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_fan_type>()
{
    using record = sch_fan_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        child(INVCTL_MEMBER(sensor)),
        child(INVCTL_MEMBER(module)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"fan", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_cxp_fixed_optics_type>()
{
    using record = sch_cxp_fixed_optics_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(module)),
        number(INVCTL_MEMBER(number_channels)),
        flag(INVCTL_MEMBER(sensor_per_channel)),
        number(INVCTL_MEMBER(xml_instance_start)),
        flag(INVCTL_MEMBER(summary_los_tx)),
        flag(INVCTL_MEMBER(summary_fault_tx)),
        flag(INVCTL_MEMBER(summary_bias_tx)),
        flag(INVCTL_MEMBER(summary_module_tx)),
        flag(INVCTL_MEMBER(summary_los_rx)),
        flag(INVCTL_MEMBER(summary_fault_rx)),
        flag(INVCTL_MEMBER(summary_bias_rx)),
        flag(INVCTL_MEMBER(summary_module_rx)),
        nested(INVCTL_MEMBER(los_thresholds)),
        nested(INVCTL_MEMBER(bias_thresholds)),
        nested(INVCTL_MEMBER(thermo_thresholds)),
        nested(INVCTL_MEMBER(voltage_thresholds)),
    };
    static constexpr record_table table = {"cxp_fixed_optics", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_chassis_type>()
{
    using record = sch_chassis_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(available_power)),
        number(INVCTL_MEMBER(rack_number)),
        hex(INVCTL_MEMBER(fru_bits)),
        hex(INVCTL_MEMBER(instance_bits)),
        nested(INVCTL_MEMBER(power_info)),
        child(INVCTL_MEMBER(back_plane), SCH_CHASSIS_HAS_BACK_PLANE),
        child(INVCTL_MEMBER(ecu_slot), SCH_CHASSIS_HAS_ECU_SLOT),
        child(INVCTL_MEMBER(craft_interface_slot), SCH_CHASSIS_HAS_CRAFT_INTERFACE_SLOT),
        list(INVCTL_MEMBER(container_list_list)),
        children(INVCTL_MEMBER(led_list)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"chassis", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pem_type>()
{
    using record = sch_pem_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(module)),
        children(INVCTL_MEMBER(fan_list)),
    };
    static constexpr record_table table = {"pem", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_fan_tray_type>()
{
    using record = sch_fan_tray_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(module)),
        children(INVCTL_MEMBER(fan_list)),
    };
    static constexpr record_table table = {"fan_tray", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_power_shelf_type>()
{
    using record = sch_power_shelf_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        nested(INVCTL_MEMBER(power_info)),
        children(INVCTL_MEMBER(i2c_chip_list)),
        children(INVCTL_MEMBER(ideeprom_list)),
        children(INVCTL_MEMBER(sensor_list)),
        number(INVCTL_MEMBER(max_pem_containers)),
        children(INVCTL_MEMBER(pem_bay_list)),
        child(INVCTL_MEMBER(module)),
    };
    static constexpr record_table table = {"power_shelf", sizeof(record), fields};
    return table;
}

std::span<const record_table *const> all_record_tables()
{
    static const record_table *const tables[] = {
        &table_of<sch_i2c_node_type>(),
        &table_of<sch_node_info_type>(),
        &table_of<sch_i2c_dest_type>(),
        &table_of<sch_i2c_port_type>(),
        &table_of<sch_i2c_sequence_type>(),
        &table_of<sch_pcie_node_type>(),
        &table_of<sch_pcie_dest_type>(),
        &table_of<sch_pci_sequence_type>(),
        &table_of<sch_base_pcie_port_type>(),
        &table_of<sch_spi_dest_type>(),
        &table_of<sch_spi_port_type>(),
        &table_of<sch_hw_reg_type>(),
        &table_of<sch_hw_signals_type>(),
        &table_of<sch_power_consumer_type>(),
        &table_of<sch_power_producer_type>(),
        &table_of<sch_power_zone_type>(),
        &table_of<sch_power_info_type>(),
        &table_of<sch_base_entity_type>(),
        &table_of<sch_led_info_type>(),
        &table_of<sch_led_type>(),
        &table_of<sch_container_type>(),
        &table_of<sch_port_type>(),
        &table_of<sch_threshold_type>(),
        &table_of<sch_console_type>(),
        &table_of<sch_kesto_type>(),
        &table_of<sch_fpga_type>(),
        &table_of<sch_ce_port_type>(),
        &table_of<sch_ce_switch_port_type>(),
        &table_of<sch_ce_switch_type>(),
        &table_of<sch_ideeprom_type>(),
        &table_of<sch_storage_memory_map_type>(),
        &table_of<sch_storage_type>(),
        &table_of<sch_spi_flash_type>(),
        &table_of<sch_sensor_type>(),
        &table_of<sch_pem_bay_type>(),
        &table_of<sch_memory_type>(),
        &table_of<sch_container_list_type>(),
        &table_of<sch_i2c_chip_type>(),
        &table_of<sch_processor_type>(),
        &table_of<sch_pcie_switch_type>(),
        &table_of<sch_volt_margin_type>(),
        &table_of<sch_module_type>(),
        &table_of<sch_back_plane_type>(),
        &table_of<sch_fan_type>(),
        &table_of<sch_cxp_fixed_optics_type>(),
        &table_of<sch_chassis_type>(),
        &table_of<sch_pem_type>(),
        &table_of<sch_fan_tray_type>(),
        &table_of<sch_power_shelf_type>(),
    };
    return tables;
}

}  // namespace invctl
