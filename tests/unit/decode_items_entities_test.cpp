// Every item of the entity base and of the types around it.
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

TEST(DecodeItems, every_item_of_base_entity_type_reaches_its_field)
{
    element<BaseEntityType, Init_BaseEntityType, XmlDT_BaseEntityType> d(
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
        R"( resetDynamicData="true" resetNoData="true"><pdNotes>text of pdNotes</pdNotes><pdNotes>)"
        R"(text of pdNotes</pdNotes><openQuestion>text of openQuestion</openQuestion>)"
        R"(<openQuestion>text of openQuestion</openQuestion><kbrsReference>)"
        R"(text of kbrsReference</kbrsReference><powerConsumer><powerZone>)"
        R"(ORVL_POWER_ZONE_FABRICASICS0</powerZone></powerConsumer><powerProducer/>)"
        R"(<hardwareVersion>text of hardwareVersion</hardwareVersion><softwareVersion>)"
        R"(text of softwareVersion</softwareVersion><firmwareVersion>)"
        R"(text of firmwareVersion</firmwareVersion><pdHardwareModel>)"
        R"(ORVL_HW_MODEL_CPU_EMBEDDED</pdHardwareModel><hwSignals><direct>true</direct><alert/>)"
        R"(<present/><reset/></hwSignals><spiPort><channel>0A0bFF</channel></spiPort><spiPort>)"
        R"(<channel>0A0bFF</channel></spiPort><i2cNode><deviceType>)"
        R"(ORVL_I2CDEV_TYPE_PCISWITCH</deviceType></i2cNode><i2cPort><portType>)"
        R"(ORVL_PORT_TYPE_SMBUS</portType><channelNumber>0A0bFF</channelNumber></i2cPort><i2cPort>)"
        R"(<portType>ORVL_PORT_TYPE_SMBUS</portType><channelNumber>0A0bFF</channelNumber>)"
        R"(</i2cPort><pcieNode><deviceType>ORVL_DEV_TYPE_PCITARGET</deviceType></pcieNode>)"
        R"(<pciePort><portNumber>5e</portNumber></pciePort><pciePort><portNumber>5e</portNumber>)"
        R"(</pciePort><obflData>4000000040</obflData><pmBusPort><PMBusCmd>5a</PMBusCmd>)"
        R"(</pmBusPort><driverRegistered>true</driverRegistered><driverRequired>)"
        R"(true</driverRequired><driverId>-1278</driverId></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseEntityType &r = d.record;
    EXPECT_STREQ(r.name, "text of name");
    EXPECT_EQ(r.has.description, 1);
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.has.oid, 1);
    EXPECT_STREQ(r.oid, "text of oid");
    EXPECT_EQ(r.has.adminState, 1);
    EXPECT_EQ(r.adminState, 1u);
    EXPECT_EQ(r.has.operState, 1);
    EXPECT_EQ(r.operState, 0u);
    EXPECT_EQ(r.has.powerAdminState, 1);
    EXPECT_EQ(r.powerAdminState, 4u);
    EXPECT_EQ(r.has.powerOperState, 1);
    EXPECT_EQ(r.powerOperState, 3u);
    EXPECT_EQ(r.has.dualRouter, 1);
    EXPECT_EQ(r.dualRouter, 0u);
    EXPECT_EQ(r.has.fruable, 1);
    EXPECT_EQ(r.fruable, 1);
    EXPECT_EQ(r.has.oir, 1);
    EXPECT_EQ(r.oir, 1);
    EXPECT_EQ(r.type, 2u);
    EXPECT_EQ(r.subtype, 224u);
    EXPECT_EQ(r.instance, -1246);
    EXPECT_EQ(r.replicationScope, 4u);
    EXPECT_EQ(r.has.entitySelect, 1);
    EXPECT_EQ(r.entitySelect, 1u);
    EXPECT_EQ(r.has.replicationStateScope, 1);
    EXPECT_EQ(r.replicationStateScope, 2u);
    EXPECT_EQ(r.has.entityOwner, 1);
    EXPECT_EQ(r.entityOwner, 4u);
    EXPECT_EQ(r.has.snmpEntity, 1);
    EXPECT_EQ(r.snmpEntity, 1);
    EXPECT_EQ(r.has.isPrimary, 1);
    EXPECT_EQ(r.isPrimary, 1);
    EXPECT_EQ(r.xmlInstance, -1253);
    EXPECT_EQ(r.has.isPrefixNeeded, 1);
    EXPECT_EQ(r.isPrefixNeeded, 1);
    EXPECT_EQ(r.has.isHidden, 1);
    EXPECT_EQ(r.isHidden, 1);
    EXPECT_EQ(r.has.resetBaseData, 1);
    EXPECT_EQ(r.resetBaseData, 1);
    EXPECT_EQ(r.has.resetDynamicData, 1);
    EXPECT_EQ(r.resetDynamicData, 1);
    EXPECT_EQ(r.has.resetNoData, 1);
    EXPECT_EQ(r.resetNoData, 1);
    EXPECT_EQ(r.pdNotes.count, 2u);
    EXPECT_EQ(r.openQuestion.count, 2u);
    EXPECT_EQ(r.has.kbrsReference, 1);
    EXPECT_STREQ(r.kbrsReference, "text of kbrsReference");
    EXPECT_EQ(r.has.powerConsumer, 1);
    EXPECT_EQ(r.has.powerProducer, 1);
    EXPECT_EQ(r.has.hardwareVersion, 1);
    EXPECT_STREQ(r.hardwareVersion, "text of hardwareVersion");
    EXPECT_EQ(r.has.softwareVersion, 1);
    EXPECT_STREQ(r.softwareVersion, "text of softwareVersion");
    EXPECT_EQ(r.has.firmwareVersion, 1);
    EXPECT_STREQ(r.firmwareVersion, "text of firmwareVersion");
    EXPECT_EQ(r.has.pdHardwareModel, 1);
    EXPECT_EQ(r.pdHardwareModel, 111u);
    EXPECT_EQ(r.has.hwSignals, 1);
    EXPECT_EQ(r.spiPort.count, 2u);
    EXPECT_EQ(r.has.i2cNode, 1);
    EXPECT_EQ(r.i2cPort.count, 2u);
    EXPECT_EQ(r.has.pcieNode, 1);
    EXPECT_EQ(r.pciePort.count, 2u);
    EXPECT_EQ(r.has.obflData, 1);
    EXPECT_EQ(r.obflData, 4000000040u);
    EXPECT_EQ(r.has.pmBusPort, 1);
    EXPECT_EQ(r.has.driverRegistered, 1);
    EXPECT_EQ(r.driverRegistered, 1);
    EXPECT_EQ(r.has.driverRequired, 1);
    EXPECT_EQ(r.driverRequired, 1);
    EXPECT_EQ(r.has.driverId, 1);
    EXPECT_EQ(r.driverId, -1278);
}

TEST(DecodeItems, every_item_of_base_led_info_type_reaches_its_field)
{
    element<BaseLedInfoType, Init_BaseLedInfoType, XmlDT_BaseLedInfoType> d(
        R"(<e><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseLedInfoType &r = d.record;
    EXPECT_EQ(r.color, 3u);
    EXPECT_EQ(r.control, 3u);
}

TEST(DecodeItems, every_item_of_base_container_list_type_reaches_its_field)
{
    element<BaseContainerListType, Init_BaseContainerListType, XmlDT_BaseContainerListType> d(
        R"(<e><containerType>ORVL_CONTAINER_TYPE_BPID2SLOT</containerType><maxContainers>)"
        R"(-1235</maxContainers><pdNotes>text of pdNotes</pdNotes><pdNotes>)"
        R"(text of pdNotes</pdNotes><openQuestion>text of openQuestion</openQuestion>)"
        R"(<openQuestion>text of openQuestion</openQuestion><kbrsReference>)"
        R"(text of kbrsReference</kbrsReference><i2cAccess><seqType>ORVL_SEQ_PART</seqType>)"
        R"(<description>text of description</description></i2cAccess><i2cIDPROM><seqType>)"
        R"(ORVL_SEQ_PART</seqType><description>text of description</description></i2cIDPROM>)"
        R"(<pciAccess><description>text of description</description></pciAccess>)"
        R"(<entityContainer name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(<entityContainer name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
    const BaseContainerListType &r = d.record;
    EXPECT_EQ(r.containerType, 11u);
    EXPECT_EQ(r.maxContainers, -1235);
    EXPECT_EQ(r.pdNotes.count, 2u);
    EXPECT_EQ(r.openQuestion.count, 2u);
    EXPECT_EQ(r.has.kbrsReference, 1);
    EXPECT_STREQ(r.kbrsReference, "text of kbrsReference");
    EXPECT_EQ(r.has.i2cAccess, 1);
    EXPECT_EQ(r.has.i2cIDPROM, 1);
    EXPECT_EQ(r.has.pciAccess, 1);
    EXPECT_EQ(r.entityContainer.count, 2u);
}

TEST(DecodeItems, every_item_of_base_threshold_type_reaches_its_field)
{
    element<BaseThresholdType, Init_BaseThresholdType, XmlDT_BaseThresholdType> d(
        R"(<e criticalLow="-123456" majorLow="-123457" minorLow="-123458" minorHigh="-123459")"
        R"( majorHigh="-123460" criticalHigh="-123461"></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseThresholdType &r = d.record;
    EXPECT_EQ(r.criticalLow, -123456);
    EXPECT_EQ(r.majorLow, -123457);
    EXPECT_EQ(r.minorLow, -123458);
    EXPECT_EQ(r.minorHigh, -123459);
    EXPECT_EQ(r.majorHigh, -123460);
    EXPECT_EQ(r.criticalHigh, -123461);
}

TEST(DecodeItems, every_item_of_base_storage_memory_map_reaches_its_field)
{
    element<BaseStorageMemoryMap, Init_BaseStorageMemoryMap, XmlDT_BaseStorageMemoryMap> d(
        R"(<e><memoryUsage>ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE</memoryUsage><blocks>)"
        R"(4000000001</blocks><startAddr>0A0bFF</startAddr><endAddr>0A0bFF</endAddr></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseStorageMemoryMap &r = d.record;
    EXPECT_EQ(r.memoryUsage, 6u);
    EXPECT_EQ(r.blocks, 4000000001u);
    expect_octets(r.startAddr.octets, r.startAddr.count, {0x0A, 0x0B, 0xFF});
    expect_octets(r.endAddr.octets, r.endAddr.count, {0x0A, 0x0B, 0xFF});
}

TEST(DecodeItems, every_item_of_base_control_info_type_reaches_its_field)
{
    element<BaseControlInfoType, Init_BaseControlInfoType, XmlDT_BaseControlInfoType> d(
        R"(<e><name>text of name</name></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseControlInfoType &r = d.record;
    EXPECT_STREQ(r.name, "text of name");
}

TEST(DecodeItems, every_item_of_switch_port_map_type_reaches_its_field)
{
    element<SwitchPortMapType, Init_SwitchPortMapType, XmlDT_SwitchPortMapType> d(R"(<e></e>)");
    ASSERT_EQ(d.status, 0);
}

TEST(DecodeItems, every_item_of_base_ledtype_reaches_its_field)
{
    element<BaseLEDType, Init_BaseLEDType, XmlDT_BaseLEDType> d(
        R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<cccAddrOffset>0002A3fF</cccAddrOffset><cccAddrBits>0102A3fF</cccAddrBits><ledInfo>)"
        R"(<color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
        R"(</ledInfo><ledInfo><color>ORVL_LED_COLOR_RED</color><control>)"
        R"(ORVL_LED_CONTROL_BLINKSLOW</control></ledInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseLEDType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.ext.has.cccAddrOffset, 1);
    expect_octets(r.ext.cccAddrOffset.octets, r.ext.cccAddrOffset.count, {0x00, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.cccAddrBits, 1);
    expect_octets(r.ext.cccAddrBits.octets, r.ext.cccAddrBits.count, {0x01, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.ledInfo.count, 2u);
}

TEST(DecodeItems, every_item_of_base_container_type_reaches_its_field)
{
    element<BaseContainerType, Init_BaseContainerType, XmlDT_BaseContainerType> d(
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
        R"( resetDynamicData="true" resetNoData="true" position="-123456")"
        R"( hardwarePosition="-123457"><i2cIDPROM><seqType>ORVL_SEQ_PART</seqType><description>)"
        R"(text of description</description></i2cIDPROM></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseContainerType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.has.position, 1);
    EXPECT_EQ(r.position, -123456);
    EXPECT_EQ(r.has.hardwarePosition, 1);
    EXPECT_EQ(r.hardwarePosition, -123457);
    EXPECT_EQ(r.ext.has.i2cIDPROM, 1);
}

TEST(DecodeItems, every_item_of_base_ceport_type_reaches_its_field)
{
    element<BaseCEPortType, Init_BaseCEPortType, XmlDT_BaseCEPortType> d(
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
        R"(<portNumber>4000000001</portNumber><operatingBandWidth>4000000002</operatingBandWidth>)"
        R"(<client>ORVL_ESD_CLIENT_TPA_ONLY</client><pd_specific_client>)"
        R"(4000000004</pd_specific_client><CC0nativeVlan>ORVL_VLAN_BLUE_RED</CC0nativeVlan>)"
        R"(<CC1nativeVlan>ORVL_VLAN_BLUE_GREEN</CC1nativeVlan><nativeVlan>)"
        R"(ORVL_VLAN_BLACK</nativeVlan><CC0portSpeed>ORVL_PORT_SPEED_40GB</CC0portSpeed>)"
        R"(<CC1portSpeed>ORVL_PORT_SPEED_20GB</CC1portSpeed><portSpeed>)"
        R"(ORVL_PORT_SPEED_10GB</portSpeed><CC0portMode>ORVL_PORT_MODE_RXAUI</CC0portMode>)"
        R"(<CC1portMode>ORVL_PORT_MODE_XAUI</CC1portMode><portMode>ORVL_PORT_MODE_SGMII</portMode>)"
        R"(<portAdminState>ORVL_PORT_STATE_ADMIN_DOWN</portAdminState><CC0mlapFlags>)"
        R"(0F02A3fF</CC0mlapFlags><CC1mlapFlags>1002A3fF</CC1mlapFlags><mlapFlags>)"
        R"(1102A3fF</mlapFlags><serdes>ORVL_SERDES_LONG_REACH</serdes><CC0portDest>)"
        R"(ORVL_ESD_PORT_DEST_FC2</CC0portDest><CC0PortDestName>)"
        R"(text of CC0PortDestName</CC0PortDestName><CC1portDest>)"
        R"(ORVL_ESD_PORT_DEST_FC0</CC1portDest><CC1PortDestName>)"
        R"(text of CC1PortDestName</CC1PortDestName><portDest>ORVL_ESD_PORT_DEST_LC18</portDest>)"
        R"(<PortDestName>text of PortDestName</PortDestName><policingPortMap>)"
        R"(4000000025</policingPortMap><mdioChannel>4000000026</mdioChannel><mdioClkSpeed>)"
        R"(ORVL_MDIO_CLK_SPEED_SLOW</mdioClkSpeed><LocalSwitching>)"
        R"(ORVL_LOCAL_SWITCHING_ENABLE</LocalSwitching><sfpController>)"
        R"(ORVL_SFP_CONTROLLER_UNKNOWN</sfpController><phyType>ORVL_PHY_TYPE_BCM8729</phyType>)"
        R"(<led name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
        R"(</ledInfo></led><led name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
        R"(<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
        R"(</ledInfo></led><container name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
        R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
        R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"/>)"
        R"(</e>)");
    ASSERT_EQ(d.status, 0);
    const BaseCEPortType &r = d.record;
    EXPECT_EQ(r.has.ext, 1);
    EXPECT_EQ(r.portUsage, 7u);
    EXPECT_EQ(r.ext.portNumber, 4000000001u);
    EXPECT_EQ(r.ext.has.operatingBandWidth, 1);
    EXPECT_EQ(r.ext.operatingBandWidth, 4000000002u);
    EXPECT_EQ(r.ext.client, 23u);
    EXPECT_EQ(r.ext.has.pd_specific_client, 1);
    EXPECT_EQ(r.ext.pd_specific_client, 4000000004u);
    EXPECT_EQ(r.ext.has.CC0nativeVlan, 1);
    EXPECT_EQ(r.ext.CC0nativeVlan, 5u);
    EXPECT_EQ(r.ext.has.CC1nativeVlan, 1);
    EXPECT_EQ(r.ext.CC1nativeVlan, 4u);
    EXPECT_EQ(r.ext.has.nativeVlan, 1);
    EXPECT_EQ(r.ext.nativeVlan, 3u);
    EXPECT_EQ(r.ext.has.CC0portSpeed, 1);
    EXPECT_EQ(r.ext.CC0portSpeed, 5u);
    EXPECT_EQ(r.ext.has.CC1portSpeed, 1);
    EXPECT_EQ(r.ext.CC1portSpeed, 4u);
    EXPECT_EQ(r.ext.has.portSpeed, 1);
    EXPECT_EQ(r.ext.portSpeed, 3u);
    EXPECT_EQ(r.ext.has.CC0portMode, 1);
    EXPECT_EQ(r.ext.CC0portMode, 4u);
    EXPECT_EQ(r.ext.has.CC1portMode, 1);
    EXPECT_EQ(r.ext.CC1portMode, 3u);
    EXPECT_EQ(r.ext.has.portMode, 1);
    EXPECT_EQ(r.ext.portMode, 2u);
    EXPECT_EQ(r.ext.has.portAdminState, 1);
    EXPECT_EQ(r.ext.portAdminState, 1u);
    EXPECT_EQ(r.ext.has.CC0mlapFlags, 1);
    expect_octets(r.ext.CC0mlapFlags.octets, r.ext.CC0mlapFlags.count, {0x0F, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.CC1mlapFlags, 1);
    expect_octets(r.ext.CC1mlapFlags.octets, r.ext.CC1mlapFlags.count, {0x10, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.has.mlapFlags, 1);
    expect_octets(r.ext.mlapFlags.octets, r.ext.mlapFlags.count, {0x11, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.ext.serdes, 1u);
    EXPECT_EQ(r.ext.has.CC0portDest, 1);
    EXPECT_EQ(r.ext.CC0portDest, 39u);
    EXPECT_EQ(r.ext.has.CC0PortDestName, 1);
    EXPECT_STREQ(r.ext.CC0PortDestName, "text of CC0PortDestName");
    EXPECT_EQ(r.ext.has.CC1portDest, 1);
    EXPECT_EQ(r.ext.CC1portDest, 37u);
    EXPECT_EQ(r.ext.has.CC1PortDestName, 1);
    EXPECT_STREQ(r.ext.CC1PortDestName, "text of CC1PortDestName");
    EXPECT_EQ(r.ext.has.portDest, 1);
    EXPECT_EQ(r.ext.portDest, 35u);
    EXPECT_EQ(r.ext.has.PortDestName, 1);
    EXPECT_STREQ(r.ext.PortDestName, "text of PortDestName");
    EXPECT_EQ(r.ext.policingPortMap, 4000000025u);
    EXPECT_EQ(r.ext.mdioChannel, 4000000026u);
    EXPECT_EQ(r.ext.has.mdioClkSpeed, 1);
    EXPECT_EQ(r.ext.mdioClkSpeed, 2u);
    EXPECT_EQ(r.ext.has.LocalSwitching, 1);
    EXPECT_EQ(r.ext.LocalSwitching, 1u);
    EXPECT_EQ(r.ext.has.sfpController, 1);
    EXPECT_EQ(r.ext.sfpController, 0u);
    EXPECT_EQ(r.ext.has.phyType, 1);
    EXPECT_EQ(r.ext.phyType, 5u);
    EXPECT_EQ(r.ext.led.count, 2u);
    EXPECT_EQ(r.ext.has.container, 1);
    EXPECT_EQ(r.ext.container.tag, 1u);
}

TEST(DecodeItems, every_item_of_base_ceswitch_type_2_port_reaches_its_field)
{
    element<BaseCESwitchType_2_port, Init_BaseCESwitchType_2_port, XmlDT_BaseCESwitchType_2_port> d(
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
        R"( facePlatePort="true"><portNumber>4000000001</portNumber><client>)"
        R"(ORVL_ESD_CLIENT_TPA_ONLY</client><serdes>ORVL_SERDES_LONG_REACH</serdes>)"
        R"(<policingPortMap>4000000025</policingPortMap><mdioChannel>4000000026</mdioChannel></e>)");
    ASSERT_EQ(d.status, 0);
    const BaseCESwitchType_2_port &r = d.record;
    EXPECT_EQ(r.facePlatePort, 1);
}

}  // namespace
