// The own fields of FPGAs, ID EEPROMs and processors.
#include "support/current_file_fixture.h"

#include <cstring>
#include <string>

namespace
{

using ChipFields = CurrentFile;

template <class Decoded>
Decoded decoded_component(const char *name)
{
    Decoded decoded = {};
    decoded.base = decoded_entity(name);
    return decoded;
}

TEST_F(ChipFields, each_version_of_an_fpga_has_its_own_bit)
{
    BaseFPGAType from = decoded_component<BaseFPGAType>("fpga");
    from.ext.fieldUpgradable = 1;
    from.ext.size = 0xFFFFFFFF;
    const struct {
        unsigned bit;
        void (*give)(BaseFPGAType_2 &);
        uint32_t (*read)(const sch_fpga_type &);
    } cases[] = {
        {0,
         [](BaseFPGAType_2 &e) {
             e.has.hardwareVersionMajor = 1;
             e.hardwareVersionMajor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.hw_version_major); }},
        {1,
         [](BaseFPGAType_2 &e) {
             e.has.hardwareVersionMinor = 1;
             e.hardwareVersionMinor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.hw_version_minor); }},
        {2,
         [](BaseFPGAType_2 &e) {
             e.has.minimumHardwareVersionMajor = 1;
             e.minimumHardwareVersionMajor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.min_hw_version_major); }},
        {3,
         [](BaseFPGAType_2 &e) {
             e.has.minimumHardwareVersionMinor = 1;
             e.minimumHardwareVersionMinor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.min_hw_version_minor); }},
        {4,
         [](BaseFPGAType_2 &e) {
             e.has.firmwareVersionMajor = 1;
             e.firmwareVersionMajor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.fw_version_major); }},
        {5,
         [](BaseFPGAType_2 &e) {
             e.has.firmwareVersionMinor = 1;
             e.firmwareVersionMinor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.fw_version_minor); }},
        {6,
         [](BaseFPGAType_2 &e) {
             e.has.minimumFirmwareVersionMajor = 1;
             e.minimumFirmwareVersionMajor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.min_fw_version_major); }},
        {7,
         [](BaseFPGAType_2 &e) {
             e.has.minimumFirmwareVersionMinor = 1;
             e.minimumFirmwareVersionMinor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.min_fw_version_minor); }},
        {8,
         [](BaseFPGAType_2 &e) {
             e.has.installedFirmwareVersionMajor = 1;
             e.installedFirmwareVersionMajor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.installed_fw_version_major); }},
        {9,
         [](BaseFPGAType_2 &e) {
             e.has.installedFirmwareVersionMinor = 1;
             e.installedFirmwareVersionMinor = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.installed_fw_version_minor); }},
        {11,
         [](BaseFPGAType_2 &e) {
             e.has.configSpiFlash = 1;
             e.configSpiFlash = -1;
         },
         [](const sch_fpga_type &r) { return uint32_t(r.config_spi_flash); }},
        {12,
         [](BaseFPGAType_2 &e) {
             e.has.secureBootType = 1;
             e.secureBootType = 0xFFFF;
         },
         [](const sch_fpga_type &r) { return r.secure_boot_type; }},
    };
    for (const auto &c : cases) {
        BaseFPGAType one = from;
        sch_fpga_type absent = {}, present = {};
        parser_retrieve_base_fpga_data(&absent, &one, nullptr);
        c.give(one.ext);
        parser_retrieve_base_fpga_data(&present, &one, nullptr);
        EXPECT_EQ(c.read(absent), 0u) << c.bit;
        EXPECT_EQ(absent.field_present, 0) << c.bit;
        EXPECT_EQ(c.read(present), 0xFFFFu) << c.bit;
        EXPECT_EQ(present.field_present, 1u << c.bit);
        EXPECT_EQ(present.field_upgradable, 1);
        EXPECT_EQ(present.size, 0xFFFFFFFFu);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(ChipFields, an_fpga_in_upgrade_has_no_bit_10)
{
    BaseFPGAType from = decoded_component<BaseFPGAType>("fpga");
    from.ext.has.inUpgradeProcess = 1;
    from.ext.inUpgradeProcess = 1;
    sch_fpga_type record = {};
    parser_retrieve_base_fpga_data(&record, &from, nullptr);
    EXPECT_EQ(record.field_present, 0);
}

TEST_F(ChipFields, each_text_of_an_id_eeprom_keeps_25_octets_and_sets_its_bit)
{
    using record_text = char(sch_ideeprom_type::*)[26];
    const struct {
        unsigned bit;
        void (*mark_given)(BaseIdEEPROMType_2 &);
        const char *BaseIdEEPROMType_2::*item;
        record_text field;
    } cases[] = {
        {2, [](BaseIdEEPROMType_2 &e) { e.has.CLEICodeNum = 1; }, &BaseIdEEPROMType_2::CLEICodeNum,
         &sch_ideeprom_type::clei_code_num},
        {3, [](BaseIdEEPROMType_2 &e) { e.has.manufacturerID = 1; }, &BaseIdEEPROMType_2::manufacturerID,
         &sch_ideeprom_type::manufacturer_id},
        {4, [](BaseIdEEPROMType_2 &e) { e.has.vendorName = 1; }, &BaseIdEEPROMType_2::vendorName,
         &sch_ideeprom_type::vendor_name},
        {5, [](BaseIdEEPROMType_2 &e) { e.has.vendorPN = 1; }, &BaseIdEEPROMType_2::vendorPN,
         &sch_ideeprom_type::vendor_pn},
        {6, [](BaseIdEEPROMType_2 &e) { e.has.PCBRevNumber = 1; }, &BaseIdEEPROMType_2::PCBRevNumber,
         &sch_ideeprom_type::pcb_rev_number},
        {7, [](BaseIdEEPROMType_2 &e) { e.has.PCBSerialNumber = 1; }, &BaseIdEEPROMType_2::PCBSerialNumber,
         &sch_ideeprom_type::pcb_serial_number},
        {8, [](BaseIdEEPROMType_2 &e) { e.has.yearMD = 1; }, &BaseIdEEPROMType_2::yearMD,
         &sch_ideeprom_type::year_md},
        {9, [](BaseIdEEPROMType_2 &e) { e.has.monthMD = 1; }, &BaseIdEEPROMType_2::monthMD,
         &sch_ideeprom_type::month_md},
        {10, [](BaseIdEEPROMType_2 &e) { e.has.dayMD = 1; }, &BaseIdEEPROMType_2::dayMD,
         &sch_ideeprom_type::day_md},
        {11, [](BaseIdEEPROMType_2 &e) { e.has.lot = 1; }, &BaseIdEEPROMType_2::lot, &sch_ideeprom_type::lot},
        {13, [](BaseIdEEPROMType_2 &e) { e.has.PID = 1; }, &BaseIdEEPROMType_2::PID, &sch_ideeprom_type::pid},
        {14, [](BaseIdEEPROMType_2 &e) { e.has.VID = 1; }, &BaseIdEEPROMType_2::VID, &sch_ideeprom_type::vid},
        {15, [](BaseIdEEPROMType_2 &e) { e.has.PN = 1; }, &BaseIdEEPROMType_2::PN, &sch_ideeprom_type::pn},
        {16, [](BaseIdEEPROMType_2 &e) { e.has.rev = 1; }, &BaseIdEEPROMType_2::rev, &sch_ideeprom_type::rev},
    };
    const std::string text(40, 't');
    for (const auto &c : cases) {
        BaseIdEEPROMType from = decoded_component<BaseIdEEPROMType>("eeprom");
        c.mark_given(from.ext);
        from.ext.*c.item = text.c_str();
        sch_ideeprom_type record = {};
        parser_retrieve_base_ideeprom_data(&record, &from, nullptr);
        EXPECT_EQ(std::string(record.*c.field), std::string(25, 't')) << c.bit;
        EXPECT_EQ(record.field_present, 1u << c.bit);
        take_down();
        parser_set_inv_file_instance(&handle);
    }
}

TEST_F(ChipFields, an_id_eeprom_has_numbers_with_bits_0_1_12_and_17)
{
    BaseIdEEPROMType from = decoded_component<BaseIdEEPROMType>("eeprom");
    from.eepromType = 7;
    from.ext.hardwareVersion = 0xFF;
    from.ext.size = 0xFFFF;
    from.ext.checkSum = -1;
    from.ext.boardID = 0xFFFF;
    sch_ideeprom_type absent = {}, present = {};
    parser_retrieve_base_ideeprom_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.eeprom_type, 7u);
    EXPECT_EQ(absent.hardware_version + absent.size + absent.check_sum + absent.board_id, 0);
    EXPECT_EQ(absent.field_present, 0u);
    from.ext.has.hardwareVersion = from.ext.has.size = from.ext.has.checkSum = from.ext.has.boardID = 1;
    parser_retrieve_base_ideeprom_data(&present, &from, nullptr);
    EXPECT_EQ(present.hardware_version, 0xFF);
    EXPECT_EQ(present.size, 0xFFFF);
    EXPECT_EQ(present.check_sum, 0xFF);
    EXPECT_EQ(present.board_id, 0xFFFF);
    EXPECT_EQ(present.field_present, 0x21003u);
}

TEST_F(ChipFields, a_processor_has_speeds_with_bits_and_four_texts)
{
    BaseProcessorType from = decoded_component<BaseProcessorType>("cpu");
    std::string long_text(80, 'c');
    from.ext.cores = 0xFFFFFFFF;
    from.ext.busSpeed = 1;
    from.ext.cpuSpeed = 2;
    from.ext.oscillationSpeed = 3;
    from.ext.clockSpeed = long_text.c_str();
    from.ext.cacheSizeL1 = "L1";
    from.ext.cacheSizeL2 = "L2";
    from.ext.cacheSizeL3 = long_text.c_str();
    sch_processor_type absent = {}, present = {};
    parser_retrieve_base_processor_data(&absent, &from, nullptr);
    EXPECT_EQ(absent.bus_speed + absent.cpu_speed + absent.oscillation_speed, 0u);
    EXPECT_EQ(absent.field_present, 0);
    from.ext.has.busSpeed = from.ext.has.cpuSpeed = from.ext.has.oscillationSpeed = 1;
    parser_retrieve_base_processor_data(&present, &from, nullptr);
    EXPECT_EQ(present.cores, 0xFFFFFFFFu);
    EXPECT_EQ(present.bus_speed, 1u);
    EXPECT_EQ(present.cpu_speed, 2u);
    EXPECT_EQ(present.oscillation_speed, 3u);
    EXPECT_EQ(present.field_present, 7);
    EXPECT_EQ(std::string(present.clock_speed), std::string(64, 'c'));
    EXPECT_STREQ(present.cache_size_l1, "L1");
    EXPECT_STREQ(present.cache_size_l2, "L2");
    EXPECT_EQ(std::string(present.cache_size_l3), std::string(64, 'c'));
}

}  // namespace
