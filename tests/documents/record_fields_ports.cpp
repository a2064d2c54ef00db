// Components: lights, containers, ports, FPGAs, control-Ethernet switches.
#include "record_fields.h"

namespace record_fields
{

namespace
{

samples port_usages()
{
    return tokens("ORVL_PORT_USAGE_UNKNOWN", "ORVL_PORT_USAGE_OTHER", 7);
}

const char *const port_content =
    "<maxBandWidth>0</maxBandWidth><operatingBandWidth>0</operatingBandWidth><hwBoardIdentifier/>";
const char *const ce_port_content = "<portNumber>0</portNumber><client>ORVL_ESD_CLIENT_NONE</client>"
                                    "<serdes>ORVL_SERDES_SHORT_REACH</serdes>"
                                    "<policingPortMap>0</policingPortMap><mdioChannel>0</mdioChannel>";
const char *const ce_port_attributes = R"(portUsage="ORVL_PORT_USAGE_UNKNOWN" facePlatePort="0")";

record_case led_info()
{
    using record = sch_led_info_type;
    return {
        "led_info",
        module_kind,
        module_before() + entity("led") + " xmlInstance=\"2\"><ledInfo",
        "</ledInfo></led>" + module_after(),
        {required("color", "ORVL_LED_COLOR_BLUE"), required("control", "ORVL_LED_CONTROL_ON")},
        [](const inv_xml_handle &file) { return file.module_record->led_list->led_info_list; },
        {},
        {number(FIELD(color), "color", tokens("ORVL_LED_COLOR_BLUE", "ORVL_LED_COLOR_RED", 3)),
         number(FIELD(control), "control", tokens("ORVL_LED_CONTROL_ON", "ORVL_LED_CONTROL_BLINKFAST", 4))},
        {"next"}};
}

record_case led()
{
    using record = sch_led_type;
    return {"led",
            module_kind,
            module_before() + entity("led"),
            "</led>" + module_after(),
            entity_items({{"cccAddrOffset"}, {"cccAddrBits"}, required("ledInfo", "", led_content)}),
            [](const inv_xml_handle &file) { return file.module_record->led_list; },
            {},
            {base_row("base"), list(FIELD(led_info_list), "ledInfo", led_content),
             number(FIELD(ccc_addr_offset), "cccAddrOffset", hex_word()),
             number(FIELD(ccc_addr_bits), "cccAddrBits", hex_word())},
            {"next"}};
}

record_case container()
{
    using record = sch_container_type;
    return {"container",
            module_kind,
            module_before() + entity("container"),
            "</container>" + module_after(),
            entity_items({{"@position"}, {"@hardwarePosition"}, {"i2cIDPROM"}}),
            [](const inv_xml_handle &file) { return file.module_record->container_list; },
            FIELD(field_present),
            {base_row("base"),
             with_markup(number(FIELD_INSIDE(i2c_idprom, sch_i2c_sequence_type, seq_type), "i2cIDPROM",
                                tokens("ORVL_SEQ_FULL", "ORVL_SEQ_LINK", 2), 1u << 0),
                         "<i2cIDPROM><seqType>%</seqType><description/></i2cIDPROM>"),
             number(FIELD(position), "@position", signed_32(), 1u << 1),
             number(FIELD(hardware_position), "@hardwarePosition", signed_32(), 1u << 2)},
            {"next"}};
}

record_case port()
{
    using record = sch_port_type;
    return {"port",
            module_kind,
            module_before() + entity("fixedPorts"),
            "</fixedPorts>" + module_after(),
            entity_items({required("@portUsage", "ORVL_PORT_USAGE_UNKNOWN"),
                          required("maxBandWidth", "0"),
                          required("operatingBandWidth", "0"),
                          required("hwBoardIdentifier", "a"),
                          {"led"},
                          {"container"}}),
            [](const inv_xml_handle &file) { return file.module_record->port_list; },
            FIELD(field_present),
            {base_row("base"), number(FIELD(max_bandwidth), "maxBandWidth", signed_64()),
             number(FIELD(operating_bandwidth), "operatingBandWidth", unsigned_32()),
             text(FIELD(hw_board_identifier), "hwBoardIdentifier", text_up_to(64)),
             list(FIELD(led_list), "led", whole_entity("led", "", led_content)),
             number(FIELD(port_usage), "@portUsage", port_usages()),
             inner_entity(FIELD_INSIDE(container, sch_container_type, base.xml_instance), "container", "", "",
                          1u << 0)},
            {"next"}};
}

// One limit has its own document each: all six are required.
record_case threshold()
{
    using record = sch_threshold_type;
    std::vector<item> limits;
    for (const char *name :
         {"@criticalLow", "@majorLow", "@minorLow", "@minorHigh", "@majorHigh", "@criticalHigh"})
        limits.push_back(required(name, "0"));
    return {"threshold",
            module_kind,
            module_before() + entity("sensor") + " xmlInstance=\"2\"><threshold",
            std::string("</threshold>") + sensor_content + "</sensor>" + module_after(),
            limits,
            [](const inv_xml_handle &file) { return &file.module_record->sensor_list->threshold; },
            {},
            {number(FIELD(critical_low), "@criticalLow", signed_32()),
             number(FIELD(critical_high), "@criticalHigh", signed_32()),
             number(FIELD(major_low), "@majorLow", signed_32()),
             number(FIELD(major_high), "@majorHigh", signed_32()),
             number(FIELD(minor_low), "@minorLow", signed_32()),
             number(FIELD(minor_high), "@minorHigh", signed_32())}};
}

record_case console()
{
    using record = sch_console_type;
    return {"console",
            module_kind,
            module_before() + entity("console", "portUsage=\"ORVL_PORT_USAGE_CONSOLE\""),
            port_content + std::string("</console>") + module_after(),
            entity_items({required("@usage", "ORVL_CONSOLE_PORT_ANY")}),
            [](const inv_xml_handle &file) { return file.module_record->console_list; },
            {},
            {base_row("port"),
             number(FIELD(usage), "@usage", tokens("ORVL_CONSOLE_PORT_ANY", "ORVL_CONSOLE_PORT_OTHER", 3))},
            {"next"}};
}

record_case kesto()
{
    using record = sch_kesto_type;
    return {"kesto",
            module_kind,
            module_before() + entity("security"),
            "</security>" + module_after(),
            entity_items({required("isValidated", "ORVL_KESTO_PASSED")}),
            [](const inv_xml_handle &file) { return file.module_record->kesto_list; },
            {},
            {base_row("base"), number(FIELD(is_validated), "isValidated",
                                      tokens("ORVL_KESTO_PASSED", "ORVL_KESTO_UNTESTED", 2))},
            {"next"}};
}

record_case fpga()
{
    using record = sch_fpga_type;
    return {"fpga",
            module_kind,
            module_before() + entity("fpga"),
            "</fpga>" + module_after(),
            entity_items({required("fieldUpgradable", "0"),
                          required("size", "0"),
                          {"hardwareVersionMajor"},
                          {"hardwareVersionMinor"},
                          {"minimumHardwareVersionMajor"},
                          {"minimumHardwareVersionMinor"},
                          {"firmwareVersionMajor"},
                          {"firmwareVersionMinor"},
                          {"minimumFirmwareVersionMajor"},
                          {"minimumFirmwareVersionMinor"},
                          {"installedFirmwareVersionMajor"},
                          {"installedFirmwareVersionMinor"},
                          {"inUpgradeProcess"},
                          {"configSpiFlash"},
                          {"secureBootType"}}),
            [](const inv_xml_handle &file) { return file.module_record->fpga_list; },
            FIELD(field_present),
            {base_row("base"), number(FIELD(field_upgradable), "fieldUpgradable", boolean()),
             number(FIELD(size), "size", unsigned_32()),
             number(FIELD(hw_version_major), "hardwareVersionMajor", signed_16(), 1u << 0),
             number(FIELD(hw_version_minor), "hardwareVersionMinor", signed_16(), 1u << 1),
             number(FIELD(min_hw_version_major), "minimumHardwareVersionMajor", signed_16(), 1u << 2),
             number(FIELD(min_hw_version_minor), "minimumHardwareVersionMinor", signed_16(), 1u << 3),
             number(FIELD(fw_version_major), "firmwareVersionMajor", signed_16(), 1u << 4),
             number(FIELD(fw_version_minor), "firmwareVersionMinor", signed_16(), 1u << 5),
             number(FIELD(min_fw_version_major), "minimumFirmwareVersionMajor", signed_16(), 1u << 6),
             number(FIELD(min_fw_version_minor), "minimumFirmwareVersionMinor", signed_16(), 1u << 7),
             number(FIELD(installed_fw_version_major), "installedFirmwareVersionMajor", signed_16(), 1u << 8),
             number(FIELD(installed_fw_version_minor), "installedFirmwareVersionMinor", signed_16(), 1u << 9),
             number(FIELD(config_spi_flash), "configSpiFlash", signed_16(), 1u << 11),
             number(FIELD(secure_boot_type), "secureBootType", unsigned_32(), 1u << 12)},
            {"next"}};
}

std::vector<item> ce_port_items()
{
    return entity_items({required("@portUsage", "ORVL_PORT_USAGE_UNKNOWN"),
                         required("portNumber", "0"),
                         {"operatingBandWidth"},
                         required("client", "ORVL_ESD_CLIENT_NONE"),
                         {"pd_specific_client"},
                         {"CC0nativeVlan"},
                         {"CC1nativeVlan"},
                         {"nativeVlan"},
                         {"CC0portSpeed"},
                         {"CC1portSpeed"},
                         {"portSpeed"},
                         {"CC0portMode"},
                         {"CC1portMode"},
                         {"portMode"},
                         {"portAdminState"},
                         {"CC0mlapFlags"},
                         {"CC1mlapFlags"},
                         {"mlapFlags"},
                         required("serdes", "ORVL_SERDES_SHORT_REACH"),
                         {"CC0portDest"},
                         {"CC0PortDestName"},
                         {"CC1portDest"},
                         {"CC1PortDestName"},
                         {"portDest"},
                         {"PortDestName"},
                         required("policingPortMap", "0"),
                         required("mdioChannel", "0"),
                         {"mdioClkSpeed"},
                         {"LocalSwitching"},
                         {"sfpController"},
                         {"phyType"},
                         {"led"},
                         {"container"}});
}

std::vector<field_row> ce_port_ways()
{
    using record = sch_ce_port_type;
    samples vlans = tokens("ORVL_VLAN_BLUE", "ORVL_VLAN_ALL", 10);
    samples speeds = tokens("ORVL_PORT_SPEED_UNKNOWN", "ORVL_PORT_SPEED_2_5GB", 6);
    samples modes = tokens("ORVL_PORT_MODE_UNKNOWN", "ORVL_PORT_MODE_40G_SR_LR", 7);
    samples ends = tokens("ORVL_ESD_PORT_DEST_MISC", "ORVL_ESD_PORT_DEST_CPU_PORT1", 58);
    return {number(FIELD(cc0_native_vlan), "CC0nativeVlan", vlans, 1u << 1),
            number(FIELD(cc1_native_vlan), "CC1nativeVlan", vlans, 1u << 2),
            number(FIELD(native_vlan), "nativeVlan", vlans, 1u << 3),
            number(FIELD(cc0_port_speed), "CC0portSpeed", speeds, 1u << 4),
            number(FIELD(cc1_port_speed), "CC1portSpeed", speeds, 1u << 5),
            number(FIELD(port_speed), "portSpeed", speeds, 1u << 6),
            number(FIELD(cc0_port_mode), "CC0portMode", modes, 1u << 7),
            number(FIELD(cc1_port_mode), "CC1portMode", modes, 1u << 8),
            number(FIELD(port_mode), "portMode", modes, 1u << 9),
            number(FIELD(cc0_mlap_flags), "CC0mlapFlags", hex_word(), 1u << 10),
            number(FIELD(cc1_mlap_flags), "CC1mlapFlags", hex_word(), 1u << 11),
            number(FIELD(mlap_flags), "mlapFlags", hex_word(), 1u << 12),
            number(FIELD(cc0_port_dest), "CC0portDest", ends, 1u << 13),
            number(FIELD(cc1_port_dest), "CC1portDest", ends, 1u << 14),
            number(FIELD(port_dest), "portDest", ends, 1u << 15),
            text(FIELD(cc0_port_dest_name), "CC0PortDestName", text_up_to(32), 1u << 16),
            text(FIELD(cc1_port_dest_name), "CC1PortDestName", text_up_to(32), 1u << 17),
            text(FIELD(port_dest_name), "PortDestName", text_up_to(32), 1u << 18)};
}

record_case ce_port()
{
    using record = sch_ce_port_type;
    std::vector<field_row> rows = {
        base_row("base"),
        number(FIELD(port_number), "portNumber", unsigned_32()),
        number(FIELD(port_usage), "@portUsage", port_usages()),
        number(FIELD(operating_bandwidth), "operatingBandWidth", unsigned_32()),
        number(FIELD(client), "client", tokens("ORVL_ESD_CLIENT_NONE", "ORVL_ESD_CLIENT_XC", 26)),
        number(FIELD(pd_specific_client), "pd_specific_client", unsigned_32(), 1u << 0),
        number(FIELD(serdes), "serdes", tokens("ORVL_SERDES_SHORT_REACH", "ORVL_SERDES_MAX", 3)),
        number(FIELD(policing_port_map), "policingPortMap", unsigned_32()),
        number(FIELD(mdio_channel), "mdioChannel", unsigned_32()),
        number(FIELD(mdio_clk_speed), "mdioClkSpeed",
               tokens("ORVL_MDIO_CLK_SPEED_DEFAULT", "ORVL_MDIO_CLK_SPEED_SLOW", 2)),
        number(FIELD(local_switching), "LocalSwitching",
               tokens("ORVL_LOCAL_SWITCHING_DISABLE", "ORVL_LOCAL_SWITCHING_ENABLE", 1)),
        number(FIELD(port_admin_state), "portAdminState",
               tokens("ORVL_PORT_STATE_ADMIN_UP", "ORVL_PORT_STATE_ADMIN_DOWN", 1)),
        number(FIELD(sfp_controller), "sfpController",
               tokens("ORVL_SFP_CONTROLLER_UNKNOWN", "ORVL_SFP_CONTROLLER_PHY", 2), 1u << 19),
        number(FIELD(phy_type), "phyType", tokens("ORVL_PHY_TYPE_INTERNAL", "ORVL_PHY_TYPE_NLP1342", 8),
               1u << 20),
        list(FIELD(led_list), "led", whole_entity("led", "", led_content)),
        inner_entity(FIELD_INSIDE(container, sch_container_type, base.xml_instance), "container", "", ""),
    };
    for (field_row &row : ce_port_ways())
        rows.push_back(std::move(row));
    return {
        "ce_port",
        module_kind,
        module_before() + entity("ceSwitch") + " xmlInstance=\"2\"><cores>0</cores>" +
            entity("port", "facePlatePort=\"0\""),
        "</port></ceSwitch>" + module_after(),
        ce_port_items(),
        [](const inv_xml_handle &file) { return &file.module_record->ce_switch_list->port_list->ce_port; },
        FIELD(field_present),
        rows};
}

record_case ce_switch_port()
{
    using record = sch_ce_switch_port_type;
    return {"ce_switch_port",
            module_kind,
            module_before() + entity("ceSwitch") + " xmlInstance=\"2\"><cores>0</cores>" +
                entity("port", "portUsage=\"ORVL_PORT_USAGE_CE\""),
            ce_port_content + std::string("</port></ceSwitch>") + module_after(),
            entity_items({required("@facePlatePort", "0")}),
            [](const inv_xml_handle &file) { return file.module_record->ce_switch_list->port_list; },
            {},
            {base_row("ce_port"), number(FIELD(face_plate_port), "@facePlatePort", boolean())},
            {"next"}};
}

record_case ce_switch()
{
    using record = sch_ce_switch_type;
    return {"ce_switch",
            module_kind,
            module_before() + entity("ceSwitch"),
            "</ceSwitch>" + module_after(),
            entity_items({{"maxPorts"}, required("cores", "0"), {"port"}, {"fpga"}}),
            [](const inv_xml_handle &file) { return file.module_record->ce_switch_list; },
            FIELD(field_present),
            {base_row("base"), number(FIELD(max_ports), "maxPorts", unsigned_32(), 1u << 0),
             number(FIELD(cores), "cores",
                    {{"0", 0}, {"65535", 65535}, {"65536", 0}, {"4294967295", 65535}, {"4294901761", 1}}),
             list(FIELD(port_list), "port", whole_entity("port", ce_port_attributes, ce_port_content)),
             list(FIELD(fpga_list), "fpga", whole_entity("fpga", "", fpga_content))},
            {"next"}};
}

}  // namespace

const std::vector<record_case> &port_cases()
{
    static const std::vector<record_case> cases = {
        led_info(), led(),  container(), port(),           threshold(), console(),
        kesto(),    fpga(), ce_port(),   ce_switch_port(), ce_switch()};
    return cases;
}

}  // namespace record_fields
