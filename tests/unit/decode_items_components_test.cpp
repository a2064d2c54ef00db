// Every item of the component types.
#include <gtest/gtest.h>

#include <initializer_list>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

void expect_octets(const uint8_t *octets, uint32_t count, std::initializer_list<uint8_t> expected)
{
    EXPECT_EQ(std::vector<uint8_t>(octets, octets + count), std::vector<uint8_t>(expected));
}

TEST(DecodeItems, every_item_of_base_fpgatype_reaches_its_field)
{
    element<BaseFPGAType, Init_BaseFPGAType, XmlDT_BaseFPGAType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size><hardwareVersionMajor>)"
        R"(-1236</hardwareVersionMajor><hardwareVersionMinor>-1237</hardwareVersionMinor>)"
        R"(<minimumHardwareVersionMajor>-1238</minimumHardwareVersionMajor>)"
        R"(<minimumHardwareVersionMinor>-1239</minimumHardwareVersionMinor><firmwareVersionMajor>)"
        R"(-1240</firmwareVersionMajor><firmwareVersionMinor>-1241</firmwareVersionMinor>)"
        R"(<minimumFirmwareVersionMajor>-1242</minimumFirmwareVersionMajor>)"
        R"(<minimumFirmwareVersionMinor>-1243</minimumFirmwareVersionMinor>)"
        R"(<installedFirmwareVersionMajor>-1244</installedFirmwareVersionMajor>)"
        R"(<installedFirmwareVersionMinor>-1245</installedFirmwareVersionMinor><inUpgradeProcess>)"
        R"(true</inUpgradeProcess><configSpiFlash>-1247</configSpiFlash><secureBootType>)"
        R"(4000000014</secureBootType></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseFPGAType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.fieldUpgradable, 1);
    EXPECT_EQ(r.ext.size, 4000000001u);
    EXPECT_EQ(r.ext.has.hardwareVersionMajor, 1);
    EXPECT_EQ(r.ext.hardwareVersionMajor, -1236);
    EXPECT_EQ(r.ext.has.hardwareVersionMinor, 1);
    EXPECT_EQ(r.ext.hardwareVersionMinor, -1237);
    EXPECT_EQ(r.ext.has.minimumHardwareVersionMajor, 1);
    EXPECT_EQ(r.ext.minimumHardwareVersionMajor, -1238);
    EXPECT_EQ(r.ext.has.minimumHardwareVersionMinor, 1);
    EXPECT_EQ(r.ext.minimumHardwareVersionMinor, -1239);
    EXPECT_EQ(r.ext.has.firmwareVersionMajor, 1);
    EXPECT_EQ(r.ext.firmwareVersionMajor, -1240);
    EXPECT_EQ(r.ext.has.firmwareVersionMinor, 1);
    EXPECT_EQ(r.ext.firmwareVersionMinor, -1241);
    EXPECT_EQ(r.ext.has.minimumFirmwareVersionMajor, 1);
    EXPECT_EQ(r.ext.minimumFirmwareVersionMajor, -1242);
    EXPECT_EQ(r.ext.has.minimumFirmwareVersionMinor, 1);
    EXPECT_EQ(r.ext.minimumFirmwareVersionMinor, -1243);
    EXPECT_EQ(r.ext.has.installedFirmwareVersionMajor, 1);
    EXPECT_EQ(r.ext.installedFirmwareVersionMajor, -1244);
    EXPECT_EQ(r.ext.has.installedFirmwareVersionMinor, 1);
    EXPECT_EQ(r.ext.installedFirmwareVersionMinor, -1245);
    EXPECT_EQ(r.ext.has.inUpgradeProcess, 1);
    EXPECT_EQ(r.ext.inUpgradeProcess, 1);
    EXPECT_EQ(r.ext.has.configSpiFlash, 1);
    EXPECT_EQ(r.ext.configSpiFlash, -1247);
    EXPECT_EQ(r.ext.has.secureBootType, 1);
    EXPECT_EQ(r.ext.secureBootType, 4000000014u);
}

TEST(DecodeItems, every_item_of_base_id_eepromtype_reaches_its_field)
{
    element<BaseIdEEPROMType, Init_BaseIdEEPROMType, XmlDT_BaseIdEEPROMType> d(
        R"(<e name="text of name" description="text of description" oid="text of oid")"
        R"( adminState="ORVL_ADMIN_STATE_ENABLED" operState="ORVL_OPER_STATE_UNKNOWN")"
        R"( powerAdminState="ORVL_POWER_ADMIN_STATE_MAX")"
        R"( powerOperState="ORVL_POWER_OPER_STATE_N/A" dualRouter="ORVL_DUAL_ROUTER_MODE_SINGLE")"
        R"( fruable="true" oir="true" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( entitySelect="ORVL_ENTITY_ADD_ALL")"
        R"( replicationStateScope="ORVL_REPLICATION_TYPE_SYSTEM")"
        R"( entityOwner="ORVL_ENTITY_OWNER_TYPE_QZ_SDR" snmpEntity="true" isPrimary="true")"
        R"( xmlInstance="-1253" isPrefixNeeded="true" isHidden="true" resetBaseData="true")"
        R"( resetDynamicData="true" resetNoData="true" eepromType="ORVL_EEPROM_TYPE_UNKNOWN">)"
        R"(<hardwareVersion>base</hardwareVersion><hardwareVersion>212</hardwareVersion><size>)"
        R"(54323</size><CLEICodeNum>text of CLEICodeNum</CLEICodeNum><manufacturerID>)"
        R"(text of manufacturerID</manufacturerID><vendorName>text of vendorName</vendorName>)"
        R"(<vendorPN>text of vendorPN</vendorPN><PCBRevNumber>text of PCBRevNumber</PCBRevNumber>)"
        R"(<PCBSerialNumber>text of PCBSerialNumber</PCBSerialNumber><yearMD>)"
        R"(text of yearMD</yearMD><monthMD>text of monthMD</monthMD><dayMD>text of dayMD</dayMD>)"
        R"(<lot>text of lot</lot><checkSum>2</checkSum><PID>text of PID</PID><VID>)"
        R"(text of VID</VID><PN>text of PN</PN><rev>text of rev</rev><boardID>54339</boardID></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseIdEEPROMType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.eepromType, 2u);
    EXPECT_EQ(r.ext.has.hardwareVersion, 1);
    EXPECT_EQ(r.ext.hardwareVersion, 212u);
    EXPECT_EQ(r.ext.has.size, 1);
    EXPECT_EQ(r.ext.size, 54323u);
    EXPECT_EQ(r.ext.has.CLEICodeNum, 1);
    EXPECT_STREQ(r.ext.CLEICodeNum, "text of CLEICodeNum");
    EXPECT_EQ(r.ext.has.manufacturerID, 1);
    EXPECT_STREQ(r.ext.manufacturerID, "text of manufacturerID");
    EXPECT_EQ(r.ext.has.vendorName, 1);
    EXPECT_STREQ(r.ext.vendorName, "text of vendorName");
    EXPECT_EQ(r.ext.has.vendorPN, 1);
    EXPECT_STREQ(r.ext.vendorPN, "text of vendorPN");
    EXPECT_EQ(r.ext.has.PCBRevNumber, 1);
    EXPECT_STREQ(r.ext.PCBRevNumber, "text of PCBRevNumber");
    EXPECT_EQ(r.ext.has.PCBSerialNumber, 1);
    EXPECT_STREQ(r.ext.PCBSerialNumber, "text of PCBSerialNumber");
    EXPECT_EQ(r.ext.has.yearMD, 1);
    EXPECT_STREQ(r.ext.yearMD, "text of yearMD");
    EXPECT_EQ(r.ext.has.monthMD, 1);
    EXPECT_STREQ(r.ext.monthMD, "text of monthMD");
    EXPECT_EQ(r.ext.has.dayMD, 1);
    EXPECT_STREQ(r.ext.dayMD, "text of dayMD");
    EXPECT_EQ(r.ext.has.lot, 1);
    EXPECT_STREQ(r.ext.lot, "text of lot");
    EXPECT_EQ(r.ext.has.checkSum, 1);
    EXPECT_EQ(r.ext.checkSum, 2);
    EXPECT_EQ(r.ext.has.PID, 1);
    EXPECT_STREQ(r.ext.PID, "text of PID");
    EXPECT_EQ(r.ext.has.VID, 1);
    EXPECT_STREQ(r.ext.VID, "text of VID");
    EXPECT_EQ(r.ext.has.PN, 1);
    EXPECT_STREQ(r.ext.PN, "text of PN");
    EXPECT_EQ(r.ext.has.rev, 1);
    EXPECT_STREQ(r.ext.rev, "text of rev");
    EXPECT_EQ(r.ext.has.boardID, 1);
    EXPECT_EQ(r.ext.boardID, 54339u);
}

TEST(DecodeItems, every_item_of_base_storage_type_reaches_its_field)
{
    element<BaseStorageType, Init_BaseStorageType, XmlDT_BaseStorageType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxCapacity>0A0bFF</maxCapacity><speed>4000000001</speed><storageSpeedUnit>)"
        R"(ORVL_MEM_SPEED_UNIT_OTHER</storageSpeedUnit><fpga name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><fieldUpgradable>true</fieldUpgradable><size>4000000001</size>)"
        R"(</fpga><fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga>)"
        R"(<eeprom name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/><eeprom name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseStorageType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    expect_octets(r.ext.maxCapacity.octets, r.ext.maxCapacity.count, {0x0A, 0x0B, 0xFF});
    EXPECT_EQ(r.ext.has.speed, 1);
    EXPECT_EQ(r.ext.speed, 4000000001u);
    EXPECT_EQ(r.ext.has.storageSpeedUnit, 1);
    EXPECT_EQ(r.ext.storageSpeedUnit, 1u);
    EXPECT_EQ(r.ext.fpga.count, 2u);
    EXPECT_EQ(r.ext.eeprom.count, 2u);
}

TEST(DecodeItems, every_item_of_base_spi_flash_reaches_its_field)
{
    element<BaseSpiFlash, Init_BaseSpiFlash, XmlDT_BaseSpiFlash> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxCapacity>0A0bFF</maxCapacity><channel>4000000000</channel><blockSizeKB>)"
        R"(0A0bFF</blockSizeKB><memoryRow><memoryUsage>)"
        R"(ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE</memoryUsage><blocks>4000000001</blocks>)"
        R"(<startAddr>0A0bFF</startAddr><endAddr>0A0bFF</endAddr></memoryRow><memoryRow>)"
        R"(<memoryUsage>ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE</memoryUsage><blocks>)"
        R"(4000000001</blocks><startAddr>0A0bFF</startAddr><endAddr>0A0bFF</endAddr></memoryRow>)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
    const BaseSpiFlash &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.channel, 4000000000u);
    expect_octets(r.ext.blockSizeKB.octets, r.ext.blockSizeKB.count, {0x0A, 0x0B, 0xFF});
    EXPECT_EQ(r.ext.memoryRow.count, 2u);
}

TEST(DecodeItems, every_item_of_base_sensor_type_reaches_its_field)
{
    element<BaseSensorType, Init_BaseSensorType, XmlDT_BaseSensorType> d(
        R"(<e name="text of name" description="text of description" oid="text of oid")"
        R"( adminState="ORVL_ADMIN_STATE_ENABLED" operState="ORVL_OPER_STATE_UNKNOWN")"
        R"( powerAdminState="ORVL_POWER_ADMIN_STATE_MAX")"
        R"( powerOperState="ORVL_POWER_OPER_STATE_N/A" dualRouter="ORVL_DUAL_ROUTER_MODE_SINGLE")"
        R"( fruable="true" oir="true" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( entitySelect="ORVL_ENTITY_ADD_ALL")"
        R"( replicationStateScope="ORVL_REPLICATION_TYPE_SYSTEM")"
        R"( entityOwner="ORVL_ENTITY_OWNER_TYPE_QZ_SDR" snmpEntity="true" isPrimary="true")"
        R"( xmlInstance="-1253" isPrefixNeeded="true" isHidden="true" resetBaseData="true")"
        R"( resetDynamicData="true" resetNoData="true" isMarginable="true" isRov="true")"
        R"( marginRegister="0202A3fF"><threshold criticalLow="-123456" majorLow="-123457")"
        R"( minorLow="-123458" minorHigh="-123459" majorHigh="-123460" criticalHigh="-123461"/>)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><pd_data1>0602A3fF</pd_data1>)"
        R"(<pd_data2>0702A3fF</pd_data2><powerdomain>0802A3fF</powerdomain><hwPollRegisterOffset>)"
        R"(0902A3fF</hwPollRegisterOffset><isCoreAutopolled>true</isCoreAutopolled>)"
        R"(<sensorDataLength>-1245</sensorDataLength><unit>ORVL_SENSOR_UNIT_VOLT_DC</unit>)"
        R"(<userDefinedUnit>ORVL_USER_DEFINED_SENSOR_UNIT_MILLIVOLT_AC</userDefinedUnit><scale>)"
        R"(ORVL_SENSOR_SCALE_ATTO</scale><precision>-123471</precision></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseSensorType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.has.isMarginable, 1);
    EXPECT_EQ(r.isMarginable, 1);
    EXPECT_EQ(r.has.isRov, 1);
    EXPECT_EQ(r.isRov, 1);
    EXPECT_EQ(r.has.marginRegister, 1);
    expect_octets(r.marginRegister.octets, r.marginRegister.count, {0x02, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.threshold, 1);
    EXPECT_EQ(r.ext.value, -123460);
    EXPECT_EQ(r.ext.lastValue, -123461);
    EXPECT_EQ(r.ext.has.pd_data1, 1);
    expect_octets(r.ext.pd_data1.octets, r.ext.pd_data1.count, {0x06, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.pd_data2, 1);
    expect_octets(r.ext.pd_data2.octets, r.ext.pd_data2.count, {0x07, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.powerdomain, 1);
    expect_octets(r.ext.powerdomain.octets, r.ext.powerdomain.count, {0x08, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.hwPollRegisterOffset, 1);
    expect_octets(r.ext.hwPollRegisterOffset.octets, r.ext.hwPollRegisterOffset.count,
                  {0x09, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.isCoreAutopolled, 1);
    EXPECT_EQ(r.ext.isCoreAutopolled, 1);
    EXPECT_EQ(r.ext.has.sensorDataLength, 1);
    EXPECT_EQ(r.ext.sensorDataLength, -1245);
    EXPECT_EQ(r.ext.unit, 4u);
    EXPECT_EQ(r.ext.has.userDefinedUnit, 1);
    EXPECT_EQ(r.ext.userDefinedUnit, 1u);
    EXPECT_EQ(r.ext.scale, 3u);
    EXPECT_EQ(r.ext.has.precision, 1);
    EXPECT_EQ(r.ext.precision, -123471);
}

TEST(DecodeItems, every_item_of_i2c_chip_type_reaches_its_field)
{
    element<I2cChipType, Init_I2cChipType, XmlDT_I2cChipType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
}

TEST(DecodeItems, every_item_of_base_pcie_switch_type_reaches_its_field)
{
    element<BasePCIeSwitchType, Init_BasePCIeSwitchType, XmlDT_BasePCIeSwitchType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<configGen>ORVL_PCI_GEN_GEN4</configGen><configGen>ORVL_PCI_GEN_GEN4</configGen>)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor>)"
        R"(<fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga>)"
        R"(<fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga></e>)");
    ASSERT_EQ(d.status, 0);
    const BasePCIeSwitchType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.configGen.count, 2u);
    EXPECT_EQ(r.ext.has.sensor, 1);
    EXPECT_EQ(r.ext.fpga.count, 2u);
}

TEST(DecodeItems, every_item_of_base_voltage_margin_type_reaches_its_field)
{
    element<BaseVoltageMarginType, Init_BaseVoltageMarginType, XmlDT_BaseVoltageMarginType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<highValue>-123456</highValue><lowValue>-123457</lowValue><operation>)"
        R"(ORVL_VOLT_MARGIN_HIGH</operation></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseVoltageMarginType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.highValue, -123456);
    EXPECT_EQ(r.ext.lowValue, -123457);
    EXPECT_EQ(r.ext.operation, 0u);
}

TEST(DecodeItems, every_item_of_base_processor_type_reaches_its_field)
{
    element<BaseProcessorType, Init_BaseProcessorType, XmlDT_BaseProcessorType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<cores>4000000000</cores><clockSpeed>text of clockSpeed</clockSpeed><busSpeed>)"
        R"(4000000002</busSpeed><busSpeedUnit>ORVL_CYSCLES_PER_SEC_UNIT_OTHER</busSpeedUnit>)"
        R"(<cpuSpeed>4000000004</cpuSpeed><cpuSpeedUnit>)"
        R"(ORVL_CYSCLES_PER_SEC_UNIT_GHZ</cpuSpeedUnit><oscillationSpeed>)"
        R"(4000000006</oscillationSpeed><oscillationSpeedUnit>)"
        R"(ORVL_CYSCLES_PER_SEC_UNIT_KHZ</oscillationSpeedUnit><cacheSizeL1>)"
        R"(text of cacheSizeL1</cacheSizeL1><cacheSizeL2>text of cacheSizeL2</cacheSizeL2>)"
        R"(<cacheSizeL3>text of cacheSizeL3</cacheSizeL3></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseProcessorType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.cores, 4000000000u);
    EXPECT_STREQ(r.ext.clockSpeed, "text of clockSpeed");
    EXPECT_EQ(r.ext.has.busSpeed, 1);
    EXPECT_EQ(r.ext.busSpeed, 4000000002u);
    EXPECT_EQ(r.ext.has.busSpeedUnit, 1);
    EXPECT_EQ(r.ext.busSpeedUnit, 1u);
    EXPECT_EQ(r.ext.has.cpuSpeed, 1);
    EXPECT_EQ(r.ext.cpuSpeed, 4000000004u);
    EXPECT_EQ(r.ext.has.cpuSpeedUnit, 1);
    EXPECT_EQ(r.ext.cpuSpeedUnit, 4u);
    EXPECT_EQ(r.ext.has.oscillationSpeed, 1);
    EXPECT_EQ(r.ext.oscillationSpeed, 4000000006u);
    EXPECT_EQ(r.ext.has.oscillationSpeedUnit, 1);
    EXPECT_EQ(r.ext.oscillationSpeedUnit, 2u);
    EXPECT_STREQ(r.ext.cacheSizeL1, "text of cacheSizeL1");
    EXPECT_STREQ(r.ext.cacheSizeL2, "text of cacheSizeL2");
    EXPECT_STREQ(r.ext.cacheSizeL3, "text of cacheSizeL3");
}

TEST(DecodeItems, every_item_of_base_memory_type_reaches_its_field)
{
    element<BaseMemoryType, Init_BaseMemoryType, XmlDT_BaseMemoryType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<capacity>text of capacity</capacity><serialNumber>text of serialNumber</serialNumber>)"
        R"(<firmwareVersion>text of firmwareVersion</firmwareVersion></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseMemoryType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_STREQ(r.ext.capacity, "text of capacity");
    EXPECT_STREQ(r.ext.serialNumber, "text of serialNumber");
    EXPECT_STREQ(r.ext.firmwareVersion, "text of firmwareVersion");
}

TEST(DecodeItems, every_item_of_base_ceswitch_type_reaches_its_field)
{
    element<BaseCESwitchType, Init_BaseCESwitchType, XmlDT_BaseCESwitchType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxPorts>4000000000</maxPorts><cores>4000000001</cores><port name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" portUsage="ORVL_PORT_USAGE_OTHER" facePlatePort="true">)"
        R"(<portNumber>4000000001</portNumber><client>ORVL_ESD_CLIENT_TPA_ONLY</client><serdes>)"
        R"(ORVL_SERDES_LONG_REACH</serdes><policingPortMap>4000000025</policingPortMap>)"
        R"(<mdioChannel>4000000026</mdioChannel></port><port name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" portUsage="ORVL_PORT_USAGE_OTHER" facePlatePort="true">)"
        R"(<portNumber>4000000001</portNumber><client>ORVL_ESD_CLIENT_TPA_ONLY</client><serdes>)"
        R"(ORVL_SERDES_LONG_REACH</serdes><policingPortMap>4000000025</policingPortMap>)"
        R"(<mdioChannel>4000000026</mdioChannel></port><fpga name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><fieldUpgradable>true</fieldUpgradable><size>4000000001</size>)"
        R"(</fpga><fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseCESwitchType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.has.maxPorts, 1);
    EXPECT_EQ(r.ext.maxPorts, 4000000000u);
    EXPECT_EQ(r.ext.cores, 4000000001u);
    EXPECT_EQ(r.ext.port.count, 2u);
    EXPECT_EQ(r.ext.fpga.count, 2u);
}

TEST(DecodeItems, every_item_of_base_kesto_type_reaches_its_field)
{
    element<BaseKestoType, Init_BaseKestoType, XmlDT_BaseKestoType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<isValidated>ORVL_KESTO_UNTESTED</isValidated></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseKestoType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.isValidated, 2u);
}

TEST(DecodeItems, every_item_of_base_port_type_reaches_its_field)
{
    element<BasePortType, Init_BasePortType, XmlDT_BasePortType> d(
        R"(<e name="text of name" description="text of description" oid="text of oid")"
        R"( adminState="ORVL_ADMIN_STATE_ENABLED" operState="ORVL_OPER_STATE_UNKNOWN")"
        R"( powerAdminState="ORVL_POWER_ADMIN_STATE_MAX")"
        R"( powerOperState="ORVL_POWER_OPER_STATE_N/A" dualRouter="ORVL_DUAL_ROUTER_MODE_SINGLE")"
        R"( fruable="true" oir="true" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( entitySelect="ORVL_ENTITY_ADD_ALL")"
        R"( replicationStateScope="ORVL_REPLICATION_TYPE_SYSTEM")"
        R"( entityOwner="ORVL_ENTITY_OWNER_TYPE_QZ_SDR" snmpEntity="true" isPrimary="true")"
        R"( xmlInstance="-1253" isPrefixNeeded="true" isHidden="true" resetBaseData="true")"
        R"( resetDynamicData="true" resetNoData="true" portUsage="ORVL_PORT_USAGE_OTHER">)"
        R"(<maxBandWidth>-5000000001</maxBandWidth><operatingBandWidth>)"
        R"(4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier><led name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><ledInfo><color>ORVL_LED_COLOR_RED</color><control>)"
        R"(ORVL_LED_CONTROL_BLINKSLOW</control></ledInfo></led><led name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><ledInfo><color>ORVL_LED_COLOR_RED</color><control>)"
        R"(ORVL_LED_CONTROL_BLINKSLOW</control></ledInfo></led><container name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"/></e>)");
    ASSERT_EQ(d.status, 0);
    const BasePortType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.portUsage, 7u);
    EXPECT_EQ(r.ext.maxBandWidth, -5000000001);
    EXPECT_EQ(r.ext.operatingBandWidth, 4000000002u);
    EXPECT_STREQ(r.ext.hwBoardIdentifier, "text of hwBoardIdentifier");
    EXPECT_EQ(r.ext.led.count, 2u);
    EXPECT_EQ(r.ext.has.container, 1);
    EXPECT_EQ(r.ext.container.tag, 1u);
}

TEST(DecodeItems, every_item_of_base_console_type_reaches_its_field)
{
    element<BaseConsoleType, Init_BaseConsoleType, XmlDT_BaseConsoleType> d(
        R"(<e name="text of name" description="text of description" oid="text of oid")"
        R"( adminState="ORVL_ADMIN_STATE_ENABLED" operState="ORVL_OPER_STATE_UNKNOWN")"
        R"( powerAdminState="ORVL_POWER_ADMIN_STATE_MAX")"
        R"( powerOperState="ORVL_POWER_OPER_STATE_N/A" dualRouter="ORVL_DUAL_ROUTER_MODE_SINGLE")"
        R"( fruable="true" oir="true" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( entitySelect="ORVL_ENTITY_ADD_ALL")"
        R"( replicationStateScope="ORVL_REPLICATION_TYPE_SYSTEM")"
        R"( entityOwner="ORVL_ENTITY_OWNER_TYPE_QZ_SDR" snmpEntity="true" isPrimary="true")"
        R"( xmlInstance="-1253" isPrefixNeeded="true" isHidden="true" resetBaseData="true")"
        R"( resetDynamicData="true" resetNoData="true" portUsage="ORVL_PORT_USAGE_OTHER")"
        R"( usage="ORVL_CONSOLE_PORT_OTHER"><maxBandWidth>-5000000001</maxBandWidth>)"
        R"(<operatingBandWidth>4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseConsoleType &r = d.record;
    EXPECT_EQ(r.usage, 3u);
}

}  // namespace
