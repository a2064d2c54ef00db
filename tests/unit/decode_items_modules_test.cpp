// Every item of the module types.
#include <gtest/gtest.h>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

TEST(DecodeItems, every_item_of_base_module_type_reaches_its_field)
{
    element<BaseModuleType, Init_BaseModuleType, XmlDT_BaseModuleType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<logicalModuleNum>-1234</logicalModuleNum><powerInfo><powerZone><zone>)"
        R"(ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>true</powerOnOffCapability>)"
        R"(<powerApplied>true</powerApplied><totalPowerRequired>17.5</totalPowerRequired>)"
        R"(<mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber></powerZone></powerInfo>)"
        R"(<fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga>)"
        R"(<fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga>)"
        R"(<i2c name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<i2c name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<pcieSwitch name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<pcieSwitch name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor>)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor>)"
        R"(<voltMargin name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<highValue>-123456</highValue><lowValue>-123457</lowValue><operation>)"
        R"(ORVL_VOLT_MARGIN_HIGH</operation></voltMargin><voltMargin name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><highValue>-123456</highValue><lowValue>-123457</lowValue>)"
        R"(<operation>ORVL_VOLT_MARGIN_HIGH</operation></voltMargin>)"
        R"(<storageSPI name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxCapacity>0A0bFF</maxCapacity><channel>4000000000</channel><blockSizeKB>)"
        R"(0A0bFF</blockSizeKB></storageSPI><storageSPI name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><maxCapacity>0A0bFF</maxCapacity><channel>4000000000</channel>)"
        R"(<blockSizeKB>0A0bFF</blockSizeKB></storageSPI><storageHDD name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><maxCapacity>0A0bFF</maxCapacity></storageHDD>)"
        R"(<storageHDD name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxCapacity>0A0bFF</maxCapacity></storageHDD><processor name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><cores>4000000000</cores><clockSpeed>)"
        R"(text of clockSpeed</clockSpeed><cacheSizeL1>text of cacheSizeL1</cacheSizeL1>)"
        R"(<cacheSizeL2>text of cacheSizeL2</cacheSizeL2><cacheSizeL3>)"
        R"(text of cacheSizeL3</cacheSizeL3></processor><processor name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><cores>4000000000</cores><clockSpeed>)"
        R"(text of clockSpeed</clockSpeed><cacheSizeL1>text of cacheSizeL1</cacheSizeL1>)"
        R"(<cacheSizeL2>text of cacheSizeL2</cacheSizeL2><cacheSizeL3>)"
        R"(text of cacheSizeL3</cacheSizeL3></processor><memory name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><capacity>text of capacity</capacity><serialNumber>)"
        R"(text of serialNumber</serialNumber><firmwareVersion>)"
        R"(text of firmwareVersion</firmwareVersion></memory><memory name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><capacity>text of capacity</capacity><serialNumber>)"
        R"(text of serialNumber</serialNumber><firmwareVersion>)"
        R"(text of firmwareVersion</firmwareVersion></memory><ceSwitch name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><cores>4000000001</cores></ceSwitch><ceSwitch name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><cores>4000000001</cores></ceSwitch><security name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><isValidated>ORVL_KESTO_UNTESTED</isValidated></security>)"
        R"(<security name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<isValidated>ORVL_KESTO_UNTESTED</isValidated></security><console name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" portUsage="ORVL_PORT_USAGE_OTHER" usage="ORVL_CONSOLE_PORT_OTHER">)"
        R"(<maxBandWidth>-5000000001</maxBandWidth><operatingBandWidth>)"
        R"(4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier></console><console name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" portUsage="ORVL_PORT_USAGE_OTHER" usage="ORVL_CONSOLE_PORT_OTHER">)"
        R"(<maxBandWidth>-5000000001</maxBandWidth><operatingBandWidth>)"
        R"(4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier></console><module name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"/><module name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<container name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<container name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<eeprom name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/><eeprom name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/>)"
        R"(<fixedPorts name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( portUsage="ORVL_PORT_USAGE_OTHER"><maxBandWidth>-5000000001</maxBandWidth>)"
        R"(<operatingBandWidth>4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier></fixedPorts>)"
        R"(<fixedPorts name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( portUsage="ORVL_PORT_USAGE_OTHER"><maxBandWidth>-5000000001</maxBandWidth>)"
        R"(<operatingBandWidth>4000000002</operatingBandWidth><hwBoardIdentifier>)"
        R"(text of hwBoardIdentifier</hwBoardIdentifier></fixedPorts><powerController>)"
        R"(-1252</powerController><led name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
        R"(</ledInfo></led><led name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
        R"(</ledInfo></led></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseModuleType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.has.logicalModuleNum, 1);
    EXPECT_EQ(r.ext.logicalModuleNum, -1234);
    EXPECT_EQ(r.ext.has.powerInfo, 1);
    EXPECT_EQ(r.ext.fpga.count, 2u);
    EXPECT_EQ(r.ext.i2c.count, 2u);
    EXPECT_EQ(r.ext.pcieSwitch.count, 2u);
    EXPECT_EQ(r.ext.sensor.count, 2u);
    EXPECT_EQ(r.ext.voltMargin.count, 2u);
    EXPECT_EQ(r.ext.storageSPI.count, 2u);
    EXPECT_EQ(r.ext.storageHDD.count, 2u);
    EXPECT_EQ(r.ext.processor.count, 2u);
    EXPECT_EQ(r.ext.memory.count, 2u);
    EXPECT_EQ(r.ext.ceSwitch.count, 2u);
    EXPECT_EQ(r.ext.security.count, 2u);
    EXPECT_EQ(r.ext.console.count, 2u);
    EXPECT_EQ(r.ext.module.count, 2u);
    EXPECT_EQ(r.ext.container.count, 2u);
    EXPECT_EQ(r.ext.eeprom.count, 2u);
    EXPECT_EQ(r.ext.fixedPorts.count, 2u);
    EXPECT_EQ(r.ext.has.powerController, 1);
    EXPECT_EQ(r.ext.powerController, -1252);
    EXPECT_EQ(r.ext.led.count, 2u);
}

TEST(DecodeItems, every_item_of_optics_type_reaches_its_field)
{
    element<OpticsType, Init_OpticsType, XmlDT_OpticsType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<numberChannels>-1234</numberChannels><sensorPerChannel>true</sensorPerChannel>)"
        R"(<xmlInstanceStart>-1236</xmlInstanceStart><sensorLosThresholds criticalLow="-123456")"
        R"( majorLow="-123457" minorLow="-123458" minorHigh="-123459" majorHigh="-123460")"
        R"( criticalHigh="-123461"/><sensorBiasThresholds criticalLow="-123456")"
        R"( majorLow="-123457" minorLow="-123458" minorHigh="-123459" majorHigh="-123460")"
        R"( criticalHigh="-123461"/><sensorThermoThresholds criticalLow="-123456")"
        R"( majorLow="-123457" minorLow="-123458" minorHigh="-123459" majorHigh="-123460")"
        R"( criticalHigh="-123461"/><sensorVoltageThresholds criticalLow="-123456")"
        R"( majorLow="-123457" minorLow="-123458" minorHigh="-123459" majorHigh="-123460")"
        R"( criticalHigh="-123461"/><summaryLosTx>true</summaryLosTx><summaryFaultTx>)"
        R"(true</summaryFaultTx><summaryBiasTx>true</summaryBiasTx><summaryModuleTx>)"
        R"(true</summaryModuleTx><summaryLosRx>true</summaryLosRx><summaryFaultRx>)"
        R"(true</summaryFaultRx><summaryBiasRx>true</summaryBiasRx><summaryModuleRx>)"
        R"(true</summaryModuleRx></e>)");
    ASSERT_EQ(d.status, 0);
    const OpticsType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.numberChannels, -1234);
    EXPECT_EQ(r.ext.sensorPerChannel, 1);
    EXPECT_EQ(r.ext.xmlInstanceStart, -1236);
    EXPECT_EQ(r.ext.summaryLosTx, 1);
    EXPECT_EQ(r.ext.summaryFaultTx, 1);
    EXPECT_EQ(r.ext.summaryBiasTx, 1);
    EXPECT_EQ(r.ext.summaryModuleTx, 1);
    EXPECT_EQ(r.ext.summaryLosRx, 1);
    EXPECT_EQ(r.ext.summaryFaultRx, 1);
    EXPECT_EQ(r.ext.summaryBiasRx, 1);
    EXPECT_EQ(r.ext.summaryModuleRx, 1);
}

TEST(DecodeItems, every_item_of_pemtype_reaches_its_field)
{
    element<PEMType, Init_PEMType, XmlDT_PEMType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fan name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor></fan>)"
        R"(<fan name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor></fan>)"
        R"(<hoursUsage>4000000001</hoursUsage><faultStatus>)"
        R"(ORVL_FAULT_STATUS_FAULT_INDUCED_SHUTDOWN</faultStatus><psmState>)"
        R"(ORVL_PSM_STATE_FAILED</psmState></e>)");
    ASSERT_EQ(d.status, 0);
    const PEMType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.fan.count, 2u);
    EXPECT_EQ(r.ext.hoursUsage, 4000000001u);
    EXPECT_EQ(r.ext.faultStatus, 13u);
    EXPECT_EQ(r.ext.psmState, 2u);
}

TEST(DecodeItems, every_item_of_fan_tray_type_reaches_its_field)
{
    element<FanTrayType, Init_FanTrayType, XmlDT_FanTrayType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fan name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor></fan>)"
        R"(<fan name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor></fan></e>)");
    ASSERT_EQ(d.status, 0);
    const FanTrayType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.fan.count, 2u);
}

TEST(DecodeItems, every_item_of_back_plane_type_reaches_its_field)
{
    element<BackPlaneType, Init_BackPlaneType, XmlDT_BackPlaneType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<eeprom name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/><eeprom name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/>)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor>)"
        R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<value>-123460</value><lastValue>-123461</lastValue><unit>)"
        R"(ORVL_SENSOR_UNIT_VOLT_DC</unit><scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor>)"
        R"(<module name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<module name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
    const BackPlaneType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.eeprom.count, 2u);
    EXPECT_EQ(r.ext.sensor.count, 2u);
    EXPECT_EQ(r.ext.module.count, 2u);
}

}  // namespace
