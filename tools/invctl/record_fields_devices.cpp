// Tables of the components: memories, sensors, bays, processors and chips.
#include "OrvelianInventorySchema.h"
#include "record_table.h"

namespace invctl
{

template <>
const record_table &table_of<sch_ideeprom_type>()
{
    using record = sch_ideeprom_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        token(INVCTL_MEMBER(eeprom_type), EepromUsageType_ToString),
        number(INVCTL_MEMBER(hardware_version), SCH_IDEEPROM_HAS_HARDWARE_VERSION),
        number(INVCTL_MEMBER(size), SCH_IDEEPROM_HAS_SIZE),
        text(INVCTL_MEMBER(clei_code_num), SCH_IDEEPROM_HAS_CLEI_CODE_NUM),
        text(INVCTL_MEMBER(manufacturer_id), SCH_IDEEPROM_HAS_MANUFACTURER_ID),
        text(INVCTL_MEMBER(vendor_name), SCH_IDEEPROM_HAS_VENDOR_NAME),
        text(INVCTL_MEMBER(vendor_pn), SCH_IDEEPROM_HAS_VENDOR_PN),
        text(INVCTL_MEMBER(pcb_rev_number), SCH_IDEEPROM_HAS_PCB_REV_NUMBER),
        text(INVCTL_MEMBER(pcb_serial_number), SCH_IDEEPROM_HAS_PCB_SERIAL_NUMBER),
        text(INVCTL_MEMBER(year_md), SCH_IDEEPROM_HAS_YEAR_MD),
        text(INVCTL_MEMBER(month_md), SCH_IDEEPROM_HAS_MONTH_MD),
        text(INVCTL_MEMBER(day_md), SCH_IDEEPROM_HAS_DAY_MD),
        text(INVCTL_MEMBER(lot), SCH_IDEEPROM_HAS_LOT),
        text(INVCTL_MEMBER(pid), SCH_IDEEPROM_HAS_PID),
        text(INVCTL_MEMBER(vid), SCH_IDEEPROM_HAS_VID),
        text(INVCTL_MEMBER(pn), SCH_IDEEPROM_HAS_PN),
        text(INVCTL_MEMBER(rev), SCH_IDEEPROM_HAS_REV),
        number(INVCTL_MEMBER(check_sum), SCH_IDEEPROM_HAS_CHECK_SUM),
        number(INVCTL_MEMBER(board_id), SCH_IDEEPROM_HAS_BOARD_ID),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"ideeprom", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_storage_memory_map_type>()
{
    using record = sch_storage_memory_map_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(memory_usage), BaseStorageMemoryMap_memoryUsage_ToString),
        number(INVCTL_MEMBER(blocks)),
        hex(INVCTL_MEMBER(start_addr)),
        hex(INVCTL_MEMBER(end_addr)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"storage_memory_map", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_storage_type>()
{
    using record = sch_storage_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(max_capacity)),
        number(INVCTL_MEMBER(speed), SCH_STORAGE_HAS_SPEED),
        children(INVCTL_MEMBER(fpga_list)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"storage", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_spi_flash_type>()
{
    using record = sch_spi_flash_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(storage)),
        number(INVCTL_MEMBER(channel)),
        number(INVCTL_MEMBER(block_size_kb)),
        list(INVCTL_MEMBER(memory_map_list)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"spi_flash", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_sensor_type>()
{
    using record = sch_sensor_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        nested(INVCTL_MEMBER(threshold), SCH_SENSOR_HAS_THRESHOLD),
        token(INVCTL_MEMBER(user_defined_unit), BaseSensorType_2_userDefinedUnit_ToString,
              SCH_SENSOR_HAS_USER_DEFINED_UNIT),
        hex(INVCTL_MEMBER(pd_data1), SCH_SENSOR_HAS_PD_DATA1),
        hex(INVCTL_MEMBER(pd_data2), SCH_SENSOR_HAS_PD_DATA2),
        hex(INVCTL_MEMBER(powerdomain), SCH_SENSOR_HAS_POWERDOMAIN),
        hex(INVCTL_MEMBER(hw_poll_register_offset), SCH_SENSOR_HAS_HW_POLL_REGISTER_OFFSET),
        flag(INVCTL_MEMBER(is_core_autopolled)),
        number(INVCTL_MEMBER(sensor_data_length)),
        token(INVCTL_MEMBER(unit), BaseSensorType_2_unit_ToString),
        token(INVCTL_MEMBER(scale), BaseSensorType_2_scale_ToString),
        number(INVCTL_MEMBER(precision), SCH_SENSOR_HAS_PRECISION),
        flag(INVCTL_MEMBER(is_marginable), SCH_SENSOR_HAS_IS_MARGINABLE),
        flag(INVCTL_MEMBER(is_rov), SCH_SENSOR_HAS_IS_ROV),
        hex(INVCTL_MEMBER(margin_register), SCH_SENSOR_HAS_MARGIN_REGISTER),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"sensor", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pem_bay_type>()
{
    using record = sch_pem_bay_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(container)),
        child(INVCTL_MEMBER(sensor_access), SCH_PEM_BAY_HAS_SENSOR_ACCESS),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"pem_bay", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_memory_type>()
{
    using record = sch_memory_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),        text(INVCTL_MEMBER(capacity)),
        text(INVCTL_MEMBER(serial_number)), text(INVCTL_MEMBER(firmware_version)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"memory", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_container_list_type>()
{
    using record = sch_container_list_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(container_type), BaseContainerListType_containerType_ToString),
        number(INVCTL_MEMBER(max_containers)),
        nested(INVCTL_MEMBER(i2c_access), SCH_CONTAINER_LIST_HAS_I2C_ACCESS),
        nested(INVCTL_MEMBER(i2c_idprom), SCH_CONTAINER_LIST_HAS_I2C_IDPROM),
        nested(INVCTL_MEMBER(pci_access), SCH_CONTAINER_LIST_HAS_PCI_ACCESS),
        children(INVCTL_MEMBER(container_list)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"container_list", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_i2c_chip_type>()
{
    using record = sch_i2c_chip_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"i2c_chip", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_processor_type>()
{
    using record = sch_processor_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(cores)),
        number(INVCTL_MEMBER(bus_speed), SCH_PROCESSOR_HAS_BUS_SPEED),
        number(INVCTL_MEMBER(cpu_speed), SCH_PROCESSOR_HAS_CPU_SPEED),
        number(INVCTL_MEMBER(oscillation_speed), SCH_PROCESSOR_HAS_OSCILLATION_SPEED),
        text(INVCTL_MEMBER(clock_speed)),
        text(INVCTL_MEMBER(cache_size_l1)),
        text(INVCTL_MEMBER(cache_size_l2)),
        text(INVCTL_MEMBER(cache_size_l3)),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"processor", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_pcie_switch_type>()
{
    using record = sch_pcie_switch_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),        child(INVCTL_MEMBER(sensor), SCH_PCIE_SWITCH_HAS_SENSOR),
        children(INVCTL_MEMBER(fpga_list)), link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"pcie_switch", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_volt_margin_type>()
{
    using record = sch_volt_margin_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(high_value)),
        number(INVCTL_MEMBER(low_value)),
        token(INVCTL_MEMBER(operation), BaseVoltageMarginType_2_operation_ToString),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"volt_margin", sizeof(record), fields};
    return table;
}

}  // namespace invctl
