// Tables of the components: lights, containers, ports, FPGAs, control-Ethernet switches.
#include "OrvelianInventorySchema.h"
#include "record_table.h"

namespace invctl
{

template <>
const record_table &table_of<sch_led_info_type>()
{
    using record = sch_led_info_type;
    static constexpr record_field fields[] = {
        token(INVCTL_MEMBER(color), BaseLedColorsType_ToString),
        token(INVCTL_MEMBER(control), BaseLedControlType_ToString),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"led_info", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_led_type>()
{
    using record = sch_led_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),         list(INVCTL_MEMBER(led_info_list)),
        hex(INVCTL_MEMBER(ccc_addr_offset)), hex(INVCTL_MEMBER(ccc_addr_bits)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"led", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_container_type>()
{
    using record = sch_container_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        nested(INVCTL_MEMBER(i2c_idprom), SCH_CONTAINER_HAS_I2C_IDPROM),
        number(INVCTL_MEMBER(position), SCH_CONTAINER_HAS_POSITION),
        number(INVCTL_MEMBER(hardware_position), SCH_CONTAINER_HAS_HARDWARE_POSITION),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"container", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_port_type>()
{
    using record = sch_port_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(max_bandwidth)),
        number(INVCTL_MEMBER(operating_bandwidth)),
        text(INVCTL_MEMBER(hw_board_identifier)),
        children(INVCTL_MEMBER(led_list)),
        token(INVCTL_MEMBER(port_usage), PortUsageType_ToString),
        child(INVCTL_MEMBER(container), SCH_PORT_HAS_CONTAINER),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_threshold_type>()
{
    using record = sch_threshold_type;
    static constexpr record_field fields[] = {
        number(INVCTL_MEMBER(critical_low)), number(INVCTL_MEMBER(critical_high)),
        number(INVCTL_MEMBER(major_low)),    number(INVCTL_MEMBER(major_high)),
        number(INVCTL_MEMBER(minor_low)),    number(INVCTL_MEMBER(minor_high)),
    };
    static constexpr record_table table = {"threshold", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_console_type>()
{
    using record = sch_console_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(port)),
        token(INVCTL_MEMBER(usage), BaseConsoleType_usage_ToString),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"console", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_kesto_type>()
{
    using record = sch_kesto_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        token(INVCTL_MEMBER(is_validated), BaseKestoType_2_isValidated_ToString),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"kesto", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_fpga_type>()
{
    using record = sch_fpga_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        flag(INVCTL_MEMBER(field_upgradable)),
        number(INVCTL_MEMBER(size)),
        number(INVCTL_MEMBER(hw_version_major), SCH_FPGA_HAS_HW_VERSION_MAJOR),
        number(INVCTL_MEMBER(hw_version_minor), SCH_FPGA_HAS_HW_VERSION_MINOR),
        number(INVCTL_MEMBER(min_hw_version_major), SCH_FPGA_HAS_MIN_HW_VERSION_MAJOR),
        number(INVCTL_MEMBER(min_hw_version_minor), SCH_FPGA_HAS_MIN_HW_VERSION_MINOR),
        number(INVCTL_MEMBER(fw_version_major), SCH_FPGA_HAS_FW_VERSION_MAJOR),
        number(INVCTL_MEMBER(fw_version_minor), SCH_FPGA_HAS_FW_VERSION_MINOR),
        number(INVCTL_MEMBER(min_fw_version_major), SCH_FPGA_HAS_MIN_FW_VERSION_MAJOR),
        number(INVCTL_MEMBER(min_fw_version_minor), SCH_FPGA_HAS_MIN_FW_VERSION_MINOR),
        number(INVCTL_MEMBER(installed_fw_version_major), SCH_FPGA_HAS_INSTALLED_FW_VERSION_MAJOR),
        number(INVCTL_MEMBER(installed_fw_version_minor), SCH_FPGA_HAS_INSTALLED_FW_VERSION_MINOR),
        number(INVCTL_MEMBER(config_spi_flash), SCH_FPGA_HAS_CONFIG_SPI_FLASH),
        number(INVCTL_MEMBER(secure_boot_type), SCH_FPGA_HAS_SECURE_BOOT_TYPE),
        link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"fpga", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_ce_port_type>()
{
    using record = sch_ce_port_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),
        number(INVCTL_MEMBER(port_number)),
        token(INVCTL_MEMBER(port_usage), PortUsageType_ToString),
        number(INVCTL_MEMBER(operating_bandwidth)),
        token(INVCTL_MEMBER(client), EsdDevClientType_ToString),
        number(INVCTL_MEMBER(pd_specific_client), SCH_CE_PORT_HAS_PD_SPECIFIC_CLIENT),
        token(INVCTL_MEMBER(cc0_native_vlan), EsdDevVlanType_ToString, SCH_CE_PORT_HAS_CC0_NATIVE_VLAN),
        token(INVCTL_MEMBER(cc1_native_vlan), EsdDevVlanType_ToString, SCH_CE_PORT_HAS_CC1_NATIVE_VLAN),
        token(INVCTL_MEMBER(native_vlan), EsdDevVlanType_ToString, SCH_CE_PORT_HAS_NATIVE_VLAN),
        token(INVCTL_MEMBER(cc0_port_speed), PortSpeedType_ToString, SCH_CE_PORT_HAS_CC0_PORT_SPEED),
        token(INVCTL_MEMBER(cc1_port_speed), PortSpeedType_ToString, SCH_CE_PORT_HAS_CC1_PORT_SPEED),
        token(INVCTL_MEMBER(port_speed), PortSpeedType_ToString, SCH_CE_PORT_HAS_PORT_SPEED),
        token(INVCTL_MEMBER(cc0_port_mode), PortModeType_ToString, SCH_CE_PORT_HAS_CC0_PORT_MODE),
        token(INVCTL_MEMBER(cc1_port_mode), PortModeType_ToString, SCH_CE_PORT_HAS_CC1_PORT_MODE),
        token(INVCTL_MEMBER(port_mode), PortModeType_ToString, SCH_CE_PORT_HAS_PORT_MODE),
        hex(INVCTL_MEMBER(cc0_mlap_flags), SCH_CE_PORT_HAS_CC0_MLAP_FLAGS),
        hex(INVCTL_MEMBER(cc1_mlap_flags), SCH_CE_PORT_HAS_CC1_MLAP_FLAGS),
        hex(INVCTL_MEMBER(mlap_flags), SCH_CE_PORT_HAS_MLAP_FLAGS),
        token(INVCTL_MEMBER(serdes), SerdesParamsType_ToString),
        token(INVCTL_MEMBER(cc0_port_dest), EsdPortDestType_ToString, SCH_CE_PORT_HAS_CC0_PORT_DEST),
        token(INVCTL_MEMBER(cc1_port_dest), EsdPortDestType_ToString, SCH_CE_PORT_HAS_CC1_PORT_DEST),
        token(INVCTL_MEMBER(port_dest), EsdPortDestType_ToString, SCH_CE_PORT_HAS_PORT_DEST),
        text(INVCTL_MEMBER(cc0_port_dest_name), SCH_CE_PORT_HAS_CC0_PORT_DEST_NAME),
        text(INVCTL_MEMBER(cc1_port_dest_name), SCH_CE_PORT_HAS_CC1_PORT_DEST_NAME),
        text(INVCTL_MEMBER(port_dest_name), SCH_CE_PORT_HAS_PORT_DEST_NAME),
        number(INVCTL_MEMBER(policing_port_map)),
        number(INVCTL_MEMBER(mdio_channel)),
        token(INVCTL_MEMBER(mdio_clk_speed), MdioSpeed_ToString),
        token(INVCTL_MEMBER(local_switching), LocalSwitching_ToString),
        token(INVCTL_MEMBER(port_admin_state), PortState_ToString),
        token(INVCTL_MEMBER(sfp_controller), SfpControllerType_ToString, SCH_CE_PORT_HAS_SFP_CONTROLLER),
        token(INVCTL_MEMBER(phy_type), PhyType_ToString, SCH_CE_PORT_HAS_PHY_TYPE),
        children(INVCTL_MEMBER(led_list)),
        child(INVCTL_MEMBER(container)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"ce_port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_ce_switch_port_type>()
{
    using record = sch_ce_switch_port_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(ce_port)),
        flag(INVCTL_MEMBER(face_plate_port)),
        link(INVCTL_MEMBER(next)),
    };
    static constexpr record_table table = {"ce_switch_port", sizeof(record), fields};
    return table;
}

template <>
const record_table &table_of<sch_ce_switch_type>()
{
    using record = sch_ce_switch_type;
    static constexpr record_field fields[] = {
        nested(INVCTL_MEMBER(base)),        number(INVCTL_MEMBER(max_ports), SCH_CE_SWITCH_HAS_MAX_PORTS),
        number(INVCTL_MEMBER(cores)),       children(INVCTL_MEMBER(port_list)),
        children(INVCTL_MEMBER(fpga_list)), link(INVCTL_MEMBER(next)),
        mask(INVCTL_MEMBER(field_present)),
    };
    static constexpr record_table table = {"ce_switch", sizeof(record), fields};
    return table;
}

}  // namespace invctl
