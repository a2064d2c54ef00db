// The fields of the components with many items: FPGAs, ID EEPROMs and CE ports, each at both limits of its
// item and of its own width.
#include "field_limits.h"

namespace
{

using namespace field_limits;

template <auto Builder, class Decoded, class Record>
auto component(std::vector<row> &rows, const char *name)
{
    auto fill = [](Record *record, const Decoded *decoded) { return Builder(record, decoded, nullptr); };
    return table<Decoded, Record, decltype(fill)>(rows, name, fill);
}

void add_fpga_rows(std::vector<row> &rows)
{
    using from = BaseFPGAType;
    using ext = BaseFPGAType_2;
    using to = sch_fpga_type;
    auto fpga = component<parser_retrieve_base_fpga_data, from, to>(rows, "fpga");
    fpga.always<uint8_t>("field_upgradable", &ext::fieldUpgradable, &to::field_upgradable);
    fpga.always<uint32_t>("size", &ext::size, &to::size);
    fpga.optional<uint16_t>("hw_version_major", &ext::hardwareVersionMajor, &to::hw_version_major, 1u << 0,
                            [](from &d) { d.ext.has.hardwareVersionMajor = 1; });
    fpga.optional<uint16_t>("hw_version_minor", &ext::hardwareVersionMinor, &to::hw_version_minor, 1u << 1,
                            [](from &d) { d.ext.has.hardwareVersionMinor = 1; });
    fpga.optional<uint16_t>("min_hw_version_major", &ext::minimumHardwareVersionMajor,
                            &to::min_hw_version_major, 1u << 2,
                            [](from &d) { d.ext.has.minimumHardwareVersionMajor = 1; });
    fpga.optional<uint16_t>("min_hw_version_minor", &ext::minimumHardwareVersionMinor,
                            &to::min_hw_version_minor, 1u << 3,
                            [](from &d) { d.ext.has.minimumHardwareVersionMinor = 1; });
    fpga.optional<uint16_t>("fw_version_major", &ext::firmwareVersionMajor, &to::fw_version_major, 1u << 4,
                            [](from &d) { d.ext.has.firmwareVersionMajor = 1; });
    fpga.optional<uint16_t>("fw_version_minor", &ext::firmwareVersionMinor, &to::fw_version_minor, 1u << 5,
                            [](from &d) { d.ext.has.firmwareVersionMinor = 1; });
    fpga.optional<uint16_t>("min_fw_version_major", &ext::minimumFirmwareVersionMajor,
                            &to::min_fw_version_major, 1u << 6,
                            [](from &d) { d.ext.has.minimumFirmwareVersionMajor = 1; });
    fpga.optional<uint16_t>("min_fw_version_minor", &ext::minimumFirmwareVersionMinor,
                            &to::min_fw_version_minor, 1u << 7,
                            [](from &d) { d.ext.has.minimumFirmwareVersionMinor = 1; });
    fpga.optional<uint16_t>("installed_fw_version_major", &ext::installedFirmwareVersionMajor,
                            &to::installed_fw_version_major, 1u << 8,
                            [](from &d) { d.ext.has.installedFirmwareVersionMajor = 1; });
    fpga.optional<uint16_t>("installed_fw_version_minor", &ext::installedFirmwareVersionMinor,
                            &to::installed_fw_version_minor, 1u << 9,
                            [](from &d) { d.ext.has.installedFirmwareVersionMinor = 1; });
    fpga.optional<uint16_t>("config_spi_flash", &ext::configSpiFlash, &to::config_spi_flash, 1u << 11,
                            [](from &d) { d.ext.has.configSpiFlash = 1; });
    fpga.optional<uint32_t>("secure_boot_type", &ext::secureBootType, &to::secure_boot_type, 1u << 12,
                            [](from &d) { d.ext.has.secureBootType = 1; });
}

void add_ideeprom_rows(std::vector<row> &rows)
{
    using from = BaseIdEEPROMType;
    using ext = BaseIdEEPROMType_2;
    using to = sch_ideeprom_type;
    auto eeprom = component<parser_retrieve_base_ideeprom_data, from, to>(rows, "ideeprom");
    eeprom.always<uint32_t>("eeprom_type", &from::eepromType, &to::eeprom_type);
    eeprom.optional<uint8_t>("hardware_version", &ext::hardwareVersion, &to::hardware_version, 1u << 0,
                             [](from &d) { d.ext.has.hardwareVersion = 1; });
    eeprom.optional<uint16_t>("size", &ext::size, &to::size, 1u << 1, [](from &d) { d.ext.has.size = 1; });
    eeprom.optional<uint8_t>("check_sum", &ext::checkSum, &to::check_sum, 1u << 12,
                             [](from &d) { d.ext.has.checkSum = 1; });
    eeprom.optional<uint16_t>("board_id", &ext::boardID, &to::board_id, 1u << 17,
                              [](from &d) { d.ext.has.boardID = 1; });
    eeprom.text("clei_code_num", &ext::CLEICodeNum, &to::clei_code_num, 25, 26, 1u << 2,
                [](from &d) { d.ext.has.CLEICodeNum = 1; });
    eeprom.text("manufacturer_id", &ext::manufacturerID, &to::manufacturer_id, 25, 26, 1u << 3,
                [](from &d) { d.ext.has.manufacturerID = 1; });
    eeprom.text("vendor_name", &ext::vendorName, &to::vendor_name, 25, 26, 1u << 4,
                [](from &d) { d.ext.has.vendorName = 1; });
    eeprom.text("vendor_pn", &ext::vendorPN, &to::vendor_pn, 25, 26, 1u << 5,
                [](from &d) { d.ext.has.vendorPN = 1; });
    eeprom.text("pcb_rev_number", &ext::PCBRevNumber, &to::pcb_rev_number, 25, 26, 1u << 6,
                [](from &d) { d.ext.has.PCBRevNumber = 1; });
    eeprom.text("pcb_serial_number", &ext::PCBSerialNumber, &to::pcb_serial_number, 25, 26, 1u << 7,
                [](from &d) { d.ext.has.PCBSerialNumber = 1; });
    eeprom.text("year_md", &ext::yearMD, &to::year_md, 25, 26, 1u << 8,
                [](from &d) { d.ext.has.yearMD = 1; });
    eeprom.text("month_md", &ext::monthMD, &to::month_md, 25, 26, 1u << 9,
                [](from &d) { d.ext.has.monthMD = 1; });
    eeprom.text("day_md", &ext::dayMD, &to::day_md, 25, 26, 1u << 10, [](from &d) { d.ext.has.dayMD = 1; });
    eeprom.text("lot", &ext::lot, &to::lot, 25, 26, 1u << 11, [](from &d) { d.ext.has.lot = 1; });
    eeprom.text("pid", &ext::PID, &to::pid, 25, 26, 1u << 13, [](from &d) { d.ext.has.PID = 1; });
    eeprom.text("vid", &ext::VID, &to::vid, 25, 26, 1u << 14, [](from &d) { d.ext.has.VID = 1; });
    eeprom.text("pn", &ext::PN, &to::pn, 25, 26, 1u << 15, [](from &d) { d.ext.has.PN = 1; });
    eeprom.text("rev", &ext::rev, &to::rev, 25, 26, 1u << 16, [](from &d) { d.ext.has.rev = 1; });
}

void add_ce_port_numbers(std::vector<row> &rows)
{
    using from = BaseCEPortType;
    using ext = BaseCEPortType_2;
    using to = sch_ce_port_type;
    auto port = component<parser_retrieve_base_ce_port_data, from, to>(rows, "ce_port");
    port.always<uint32_t>("port_usage", &from::portUsage, &to::port_usage);
    port.always<uint32_t>("port_number", &ext::portNumber, &to::port_number);
    port.always<uint32_t>("client", &ext::client, &to::client);
    port.always<uint32_t>("serdes", &ext::serdes, &to::serdes);
    port.always<uint32_t>("policing_port_map", &ext::policingPortMap, &to::policing_port_map);
    port.always<uint32_t>("mdio_channel", &ext::mdioChannel, &to::mdio_channel);
    // No bits, but zero when absent.
    port.optional<uint32_t>("operating_bandwidth", &ext::operatingBandWidth, &to::operating_bandwidth, 0,
                            [](from &d) { d.ext.has.operatingBandWidth = 1; });
    port.optional<uint32_t>("mdio_clk_speed", &ext::mdioClkSpeed, &to::mdio_clk_speed, 0,
                            [](from &d) { d.ext.has.mdioClkSpeed = 1; });
    port.optional<uint32_t>("local_switching", &ext::LocalSwitching, &to::local_switching, 0,
                            [](from &d) { d.ext.has.LocalSwitching = 1; });
    port.optional<uint32_t>("port_admin_state", &ext::portAdminState, &to::port_admin_state, 0,
                            [](from &d) { d.ext.has.portAdminState = 1; });
}

void add_ce_port_settings(std::vector<row> &rows)
{
    using from = BaseCEPortType;
    using ext = BaseCEPortType_2;
    using to = sch_ce_port_type;
    auto port = component<parser_retrieve_base_ce_port_data, from, to>(rows, "ce_port");
    port.optional<uint32_t>("pd_specific_client", &ext::pd_specific_client, &to::pd_specific_client, 1u << 0,
                            [](from &d) { d.ext.has.pd_specific_client = 1; });
    port.optional<uint32_t>("cc0_native_vlan", &ext::CC0nativeVlan, &to::cc0_native_vlan, 1u << 1,
                            [](from &d) { d.ext.has.CC0nativeVlan = 1; });
    port.optional<uint32_t>("cc1_native_vlan", &ext::CC1nativeVlan, &to::cc1_native_vlan, 1u << 2,
                            [](from &d) { d.ext.has.CC1nativeVlan = 1; });
    port.optional<uint32_t>("native_vlan", &ext::nativeVlan, &to::native_vlan, 1u << 3,
                            [](from &d) { d.ext.has.nativeVlan = 1; });
    port.optional<uint32_t>("cc0_port_speed", &ext::CC0portSpeed, &to::cc0_port_speed, 1u << 4,
                            [](from &d) { d.ext.has.CC0portSpeed = 1; });
    port.optional<uint32_t>("cc1_port_speed", &ext::CC1portSpeed, &to::cc1_port_speed, 1u << 5,
                            [](from &d) { d.ext.has.CC1portSpeed = 1; });
    port.optional<uint32_t>("port_speed", &ext::portSpeed, &to::port_speed, 1u << 6,
                            [](from &d) { d.ext.has.portSpeed = 1; });
    port.optional<uint32_t>("cc0_port_mode", &ext::CC0portMode, &to::cc0_port_mode, 1u << 7,
                            [](from &d) { d.ext.has.CC0portMode = 1; });
    port.optional<uint32_t>("cc1_port_mode", &ext::CC1portMode, &to::cc1_port_mode, 1u << 8,
                            [](from &d) { d.ext.has.CC1portMode = 1; });
    port.optional<uint32_t>("port_mode", &ext::portMode, &to::port_mode, 1u << 9,
                            [](from &d) { d.ext.has.portMode = 1; });
    port.optional<uint32_t>("cc0_mlap_flags", &ext::CC0mlapFlags, &to::cc0_mlap_flags, 1u << 10,
                            [](from &d) { d.ext.has.CC0mlapFlags = 1; });
    port.optional<uint32_t>("cc1_mlap_flags", &ext::CC1mlapFlags, &to::cc1_mlap_flags, 1u << 11,
                            [](from &d) { d.ext.has.CC1mlapFlags = 1; });
    port.optional<uint32_t>("mlap_flags", &ext::mlapFlags, &to::mlap_flags, 1u << 12,
                            [](from &d) { d.ext.has.mlapFlags = 1; });
    port.optional<uint32_t>("cc0_port_dest", &ext::CC0portDest, &to::cc0_port_dest, 1u << 13,
                            [](from &d) { d.ext.has.CC0portDest = 1; });
    port.optional<uint32_t>("cc1_port_dest", &ext::CC1portDest, &to::cc1_port_dest, 1u << 14,
                            [](from &d) { d.ext.has.CC1portDest = 1; });
    port.optional<uint32_t>("port_dest", &ext::portDest, &to::port_dest, 1u << 15,
                            [](from &d) { d.ext.has.portDest = 1; });
    port.optional<uint32_t>("sfp_controller", &ext::sfpController, &to::sfp_controller, 1u << 19,
                            [](from &d) { d.ext.has.sfpController = 1; });
    port.optional<uint32_t>("phy_type", &ext::phyType, &to::phy_type, 1u << 20,
                            [](from &d) { d.ext.has.phyType = 1; });
    port.text("cc0_port_dest_name", &ext::CC0PortDestName, &to::cc0_port_dest_name, 32, 33, 1u << 16,
              [](from &d) { d.ext.has.CC0PortDestName = 1; });
    port.text("cc1_port_dest_name", &ext::CC1PortDestName, &to::cc1_port_dest_name, 32, 33, 1u << 17,
              [](from &d) { d.ext.has.CC1PortDestName = 1; });
    port.text("port_dest_name", &ext::PortDestName, &to::port_dest_name, 32, 33, 1u << 18,
              [](from &d) { d.ext.has.PortDestName = 1; });
}

std::vector<row> all_rows()
{
    std::vector<row> rows;
    add_fpga_rows(rows);
    add_ideeprom_rows(rows);
    add_ce_port_numbers(rows);
    add_ce_port_settings(rows);
    return rows;
}

using ChipLimits = FieldLimits;

INSTANTIATE_TEST_SUITE_P(All, ChipLimits, testing::ValuesIn(all_rows()),
                         [](const auto &about) { return about.param.name; });

TEST_P(ChipLimits, a_field_takes_its_item_alone_cut_to_its_width_and_with_its_bit)
{
    GetParam().check();
}

}  // namespace
