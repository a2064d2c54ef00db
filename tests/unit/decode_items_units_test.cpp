// Every item of the unit types.
#include <gtest/gtest.h>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

TEST(DecodeItems, every_item_of_fan_type_reaches_its_field)
{
    element<FanType, Init_FanType, XmlDT_FanType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
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
    const FanType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.module.count, 2u);
}

TEST(DecodeItems, every_item_of_base_module_test_type_reaches_its_field)
{
    element<BaseModuleTestType, Init_BaseModuleTestType, XmlDT_BaseModuleTestType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<isPowerProducer>true</isPowerProducer><powerOnOffCapability>)"
        R"(true</powerOnOffCapability><minPowerBudget>4000000002</minPowerBudget><maxPowerBudget>)"
        R"(4000000003</maxPowerBudget><powerUsage>4000000004</powerUsage><powerApplied>)"
        R"(true</powerApplied><powerZone>4000000006</powerZone></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseModuleTestType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.isPowerProducer, 1);
    EXPECT_EQ(r.ext.powerOnOffCapability, 1);
    EXPECT_EQ(r.ext.has.minPowerBudget, 1);
    EXPECT_EQ(r.ext.minPowerBudget, 4000000002u);
    EXPECT_EQ(r.ext.has.maxPowerBudget, 1);
    EXPECT_EQ(r.ext.maxPowerBudget, 4000000003u);
    EXPECT_EQ(r.ext.has.powerUsage, 1);
    EXPECT_EQ(r.ext.powerUsage, 4000000004u);
    EXPECT_EQ(r.ext.has.powerApplied, 1);
    EXPECT_EQ(r.ext.powerApplied, 1);
    EXPECT_EQ(r.ext.has.powerZone, 1);
    EXPECT_EQ(r.ext.powerZone, 4000000006u);
}

TEST(DecodeItems, every_item_of_base_craft_interface_type_reaches_its_field)
{
    element<BaseCraftInterfaceType, Init_BaseCraftInterfaceType, XmlDT_BaseCraftInterfaceType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<eeprom name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
        R"( eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/><eeprom name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253" eepromType="ORVL_EEPROM_TYPE_UNKNOWN"/><fpga name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><fieldUpgradable>true</fieldUpgradable><size>4000000001</size>)"
        R"(</fpga><fpga name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></fpga>)"
        R"(<spiFlash name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<maxCapacity>0A0bFF</maxCapacity></spiFlash></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseCraftInterfaceType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.eeprom.count, 2u);
    EXPECT_EQ(r.ext.fpga.count, 2u);
    EXPECT_EQ(r.ext.spiFlash.tag, 1u);
}

TEST(DecodeItems, every_item_of_chassis_entity_type_reaches_its_field)
{
    element<ChassisEntityType, Init_ChassisEntityType, XmlDT_ChassisEntityType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<fruBits>4000000000</fruBits><instanceBits>4000000001</instanceBits><rackNumber>)"
        R"(4000000002</rackNumber><availablePower>4000000003</availablePower><powerInfo>)"
        R"(<powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
        R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
        R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
        R"(</powerZone></powerInfo><backPlane name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<ecuSlot name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<craftInterfaceSlot name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<entityContainerList><containerType>ORVL_CONTAINER_TYPE_BPID2SLOT</containerType>)"
        R"(<maxContainers>-1235</maxContainers></entityContainerList><entityContainerList>)"
        R"(<containerType>ORVL_CONTAINER_TYPE_BPID2SLOT</containerType><maxContainers>)"
        R"(-1235</maxContainers></entityContainerList><led name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><ledInfo><color>ORVL_LED_COLOR_RED</color><control>)"
        R"(ORVL_LED_CONTROL_BLINKSLOW</control></ledInfo></led><led name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"><ledInfo><color>ORVL_LED_COLOR_RED</color><control>)"
        R"(ORVL_LED_CONTROL_BLINKSLOW</control></ledInfo></led></e>)");
    ASSERT_EQ(d.status, 0);
    const ChassisEntityType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.fruBits, 4000000000u);
    EXPECT_EQ(r.ext.instanceBits, 4000000001u);
    EXPECT_EQ(r.ext.rackNumber, 4000000002u);
    EXPECT_EQ(r.ext.availablePower, 4000000003u);
    EXPECT_EQ(r.ext.has.backPlane, 1);
    EXPECT_EQ(r.ext.has.ecuSlot, 1);
    EXPECT_EQ(r.ext.ecuSlot.tag, 1u);
    EXPECT_EQ(r.ext.has.craftInterfaceSlot, 1);
    EXPECT_EQ(r.ext.craftInterfaceSlot.tag, 1u);
    EXPECT_EQ(r.ext.entityContainerList.count, 2u);
    EXPECT_EQ(r.ext.led.count, 2u);
}

TEST(DecodeItems, every_item_of_power_shelf_type_reaches_its_field)
{
    element<PowerShelfType, Init_PowerShelfType, XmlDT_PowerShelfType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<powerInfo><powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
        R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
        R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
        R"(</powerZone></powerInfo><i2c name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<i2c name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
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
        R"(<maxPemContainers>-1238</maxPemContainers><pemBay name="text of name")"
        R"( type="ORVL_ENTITY_TYPE_UNKNOWN" subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE")"
        R"( instance="-1246" replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK")"
        R"( xmlInstance="-1253"/><pemBay name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<module name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<module name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
    const PowerShelfType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.i2c.count, 2u);
    EXPECT_EQ(r.ext.eeprom.count, 2u);
    EXPECT_EQ(r.ext.sensor.count, 2u);
    EXPECT_EQ(r.ext.maxPemContainers, -1238);
    EXPECT_EQ(r.ext.pemBay.count, 2u);
    EXPECT_EQ(r.ext.module.count, 2u);
}

TEST(DecodeItems, every_item_of_pem_bay_type_reaches_its_field)
{
    element<PemBayType, Init_PemBayType, XmlDT_PemBayType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<i2cIDPROM><seqType>ORVL_SEQ_FULL</seqType><description>d</description></i2cIDPROM>)"
        R"(<i2cSensorAccess name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<i2cIDPROM><seqType>ORVL_SEQ_PART</seqType><description>)"
        R"(text of description</description></i2cIDPROM></e>)");
    ASSERT_EQ(d.status, 0);
    const PemBayType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.has.i2cSensorAccess, 1);
    EXPECT_EQ(r.ext.i2cSensorAccess.tag, 1u);
    EXPECT_EQ(r.ext.has.i2cIDPROM, 1);
}

}  // namespace
