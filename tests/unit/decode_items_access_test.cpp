// Every item of the access and power types.
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

TEST(DecodeItems, every_item_of_node_info_type_reaches_its_field)
{
    element<NodeInfoType, Init_NodeInfoType, XmlDT_NodeInfoType> d(
        R"(<e><nodeType>ORVL_NODE_TYPE_MAX</nodeType><nodePosition>-1235</nodePosition></e>)");
    ASSERT_EQ(d.status, 0);
    const NodeInfoType &r = d.record;
    EXPECT_EQ(r.nodeType, 21u);
    EXPECT_EQ(r.has.nodePosition, 1);
    EXPECT_EQ(r.nodePosition, -1235);
}

TEST(DecodeItems, every_item_of_i2c_node_type_reaches_its_field)
{
    element<I2cNodeType, Init_I2cNodeType, XmlDT_I2cNodeType> d(
        R"(<e><deviceType>ORVL_I2CDEV_TYPE_PCISWITCH</deviceType><deviceModel>)"
        R"(ORVL_HW_MODEL_CLOCK_SYNC_UNIT</deviceModel><deviceAddress>5c</deviceAddress>)"
        R"(<controlRegister>0302A3fF</controlRegister><dataRegister>0402A3fF</dataRegister>)"
        R"(<secondCtrlReg>0502A3fF</secondCtrlReg><secondDataReg>0602A3fF</secondDataReg>)"
        R"(<xmlInstance>-1241</xmlInstance><resetOnly>true</resetOnly></e>)");
    ASSERT_EQ(d.status, 0);
    const I2cNodeType &r = d.record;
    EXPECT_EQ(r.deviceType, 16u);
    EXPECT_EQ(r.has.deviceModel, 1);
    EXPECT_EQ(r.deviceModel, 143u);
    EXPECT_EQ(r.has.deviceAddress, 1);
    expect_octets(r.deviceAddress.octets, r.deviceAddress.count, {0x5C});
    EXPECT_EQ(r.has.controlRegister, 1);
    expect_octets(r.controlRegister.octets, r.controlRegister.count, {0x03, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.has.dataRegister, 1);
    expect_octets(r.dataRegister.octets, r.dataRegister.count, {0x04, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.has.secondCtrlReg, 1);
    expect_octets(r.secondCtrlReg.octets, r.secondCtrlReg.count, {0x05, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.has.secondDataReg, 1);
    expect_octets(r.secondDataReg.octets, r.secondDataReg.count, {0x06, 0x02, 0xA3, 0xFF});
    EXPECT_EQ(r.has.xmlInstance, 1);
    EXPECT_EQ(r.xmlInstance, -1241);
    EXPECT_EQ(r.has.resetOnly, 1);
    EXPECT_EQ(r.resetOnly, 1);
}

TEST(DecodeItems, every_item_of_i2c_sequence_type_reaches_its_field)
{
    element<I2cSequenceType, Init_I2cSequenceType, XmlDT_I2cSequenceType> d(
        R"(<e><applicable>ORVL_CTRL_SLOT_ANY</applicable><seqType>ORVL_SEQ_PART</seqType>)"
        R"(<description>text of description</description><srcInfo><nodeType>)"
        R"(ORVL_NODE_TYPE_MAX</nodeType></srcInfo><cmdInfo><deviceType>)"
        R"(ORVL_I2CDEV_TYPE_PCISWITCH</deviceType></cmdInfo><cmdInfo><deviceType>)"
        R"(ORVL_I2CDEV_TYPE_PCISWITCH</deviceType></cmdInfo><dstInfo><nodeType>)"
        R"(ORVL_NODE_TYPE_MAX</nodeType></dstInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const I2cSequenceType &r = d.record;
    EXPECT_EQ(r.has.applicable, 1);
    EXPECT_EQ(r.applicable, 2u);
    EXPECT_EQ(r.seqType, 1u);
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.has.srcInfo, 1);
    EXPECT_EQ(r.cmdInfo.count, 2u);
    EXPECT_EQ(r.has.dstInfo, 1);
}

TEST(DecodeItems, every_item_of_i2c_dest_type_reaches_its_field)
{
    element<I2cDestType, Init_I2cDestType, XmlDT_I2cDestType> d(
        R"(<e><description>text of description</description><applicable>)"
        R"(ORVL_CTRL_SLOT_1</applicable><nodeInfo><nodeType>ORVL_NODE_TYPE_MAX</nodeType>)"
        R"(</nodeInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const I2cDestType &r = d.record;
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.applicable, 1u);
}

TEST(DecodeItems, every_item_of_i2c_port_type_reaches_its_field)
{
    element<I2cPortType, Init_I2cPortType, XmlDT_I2cPortType> d(
        R"(<e><portType>ORVL_PORT_TYPE_SMBUS</portType><channelNumber>0A0bFF</channelNumber>)"
        R"(<dstInfo><description>text of description</description><applicable>)"
        R"(ORVL_CTRL_SLOT_1</applicable><nodeInfo><nodeType>ORVL_NODE_TYPE_MAX</nodeType>)"
        R"(</nodeInfo></dstInfo><dstInfo><description>text of description</description>)"
        R"(<applicable>ORVL_CTRL_SLOT_1</applicable><nodeInfo><nodeType>)"
        R"(ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></dstInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const I2cPortType &r = d.record;
    EXPECT_EQ(r.portType, 3u);
    expect_octets(r.channelNumber.octets, r.channelNumber.count, {0x0A, 0x0B, 0xFF});
    EXPECT_EQ(r.dstInfo.count, 2u);
}

TEST(DecodeItems, every_item_of_pcie_node_type_reaches_its_field)
{
    element<PCIeNodeType, Init_PCIeNodeType, XmlDT_PCIeNodeType> d(
        R"(<e><deviceModel>ORVL_HW_MODEL_AUTHENTICITY_CHIP</deviceModel><deviceType>)"
        R"(ORVL_DEV_TYPE_PCITARGET</deviceType><portNumber>5c</portNumber><numOfFunctions>)"
        R"(-1237</numOfFunctions></e>)");
    ASSERT_EQ(d.status, 0);
    const PCIeNodeType &r = d.record;
    EXPECT_EQ(r.has.deviceModel, 1);
    EXPECT_EQ(r.deviceModel, 144u);
    EXPECT_EQ(r.deviceType, 1u);
    EXPECT_EQ(r.has.portNumber, 1);
    expect_octets(r.portNumber.octets, r.portNumber.count, {0x5C});
    EXPECT_EQ(r.has.numOfFunctions, 1);
    EXPECT_EQ(r.numOfFunctions, -1237);
}

TEST(DecodeItems, every_item_of_pci_sequence_type_reaches_its_field)
{
    element<PciSequenceType, Init_PciSequenceType, XmlDT_PciSequenceType> d(
        R"(<e><pdNotes>text of pdNotes</pdNotes><pdNotes>text of pdNotes</pdNotes><applicable>)"
        R"(ORVL_CTRL_SLOT_1</applicable><description>text of description</description><dstPci>)"
        R"(<deviceType>ORVL_DEV_TYPE_PCITARGET</deviceType></dstPci><dstInfo><nodeType>)"
        R"(ORVL_NODE_TYPE_MAX</nodeType></dstInfo><xmlInstance>-1239</xmlInstance></e>)");
    ASSERT_EQ(d.status, 0);
    const PciSequenceType &r = d.record;
    EXPECT_EQ(r.pdNotes.count, 2u);
    EXPECT_EQ(r.has.applicable, 1);
    EXPECT_EQ(r.applicable, 1u);
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.has.dstPci, 1);
    EXPECT_EQ(r.has.dstInfo, 1);
    EXPECT_EQ(r.has.xmlInstance, 1);
    EXPECT_EQ(r.xmlInstance, -1239);
}

TEST(DecodeItems, every_item_of_pmbus_port_type_reaches_its_field)
{
    element<PMBusPortType, Init_PMBusPortType, XmlDT_PMBusPortType> d(R"(<e><PMBusCmd>5a</PMBusCmd></e>)");
    ASSERT_EQ(d.status, 0);
    const PMBusPortType &r = d.record;
    expect_octets(r.PMBusCmd.octets, r.PMBusCmd.count, {0x5A});
}

TEST(DecodeItems, every_item_of_spi_dest_type_reaches_its_field)
{
    element<SpiDestType, Init_SpiDestType, XmlDT_SpiDestType> d(
        R"(<e><description>text of description</description><deviceAddress>5b</deviceAddress></e>)");
    ASSERT_EQ(d.status, 0);
    const SpiDestType &r = d.record;
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.has.deviceAddress, 1);
    expect_octets(r.deviceAddress.octets, r.deviceAddress.count, {0x5B});
}

TEST(DecodeItems, every_item_of_spi_port_type_reaches_its_field)
{
    element<SpiPortType, Init_SpiPortType, XmlDT_SpiPortType> d(
        R"(<e><channel>0A0bFF</channel><dstInfo><description>text of description</description>)"
        R"(</dstInfo><dstInfo><description>text of description</description></dstInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const SpiPortType &r = d.record;
    expect_octets(r.channel.octets, r.channel.count, {0x0A, 0x0B, 0xFF});
    EXPECT_EQ(r.dstInfo.count, 2u);
}

TEST(DecodeItems, every_item_of_pcie_dest_type_reaches_its_field)
{
    element<PCIeDestType, Init_PCIeDestType, XmlDT_PCIeDestType> d(
        R"(<e><description>text of description</description><applicable>)"
        R"(ORVL_CTRL_SLOT_1</applicable><deviceId>0202A3fF</deviceId><nodeInfo><nodeType>)"
        R"(ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const PCIeDestType &r = d.record;
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.applicable, 1u);
    EXPECT_EQ(r.has.deviceId, 1);
    expect_octets(r.deviceId.octets, r.deviceId.count, {0x02, 0x02, 0xA3, 0xFF});
}

TEST(DecodeItems, every_item_of_base_pcie_port_type_reaches_its_field)
{
    element<BasePCIePortType, Init_BasePCIePortType, XmlDT_BasePCIePortType> d(
        R"(<e><width>-1234</width><isTransparentPort>true</isTransparentPort><isPrimary>)"
        R"(true</isPrimary><hwPinLabel>text of hwPinLabel</hwPinLabel><portNumber>5e</portNumber>)"
        R"(<pciGen>ORVL_PCI_GEN_DMI2</pciGen><pciLink><description>)"
        R"(text of description</description></pciLink><pciLink><description>)"
        R"(text of description</description></pciLink><dstInfo><description>)"
        R"(text of description</description><applicable>ORVL_CTRL_SLOT_1</applicable><nodeInfo>)"
        R"(<nodeType>ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></dstInfo><dstInfo><description>)"
        R"(text of description</description><applicable>ORVL_CTRL_SLOT_1</applicable><nodeInfo>)"
        R"(<nodeType>ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></dstInfo></e>)");
    ASSERT_EQ(d.status, 0);
    const BasePCIePortType &r = d.record;
    EXPECT_EQ(r.has.width, 1);
    EXPECT_EQ(r.width, -1234);
    EXPECT_EQ(r.has.isTransparentPort, 1);
    EXPECT_EQ(r.isTransparentPort, 1);
    EXPECT_EQ(r.has.isPrimary, 1);
    EXPECT_EQ(r.isPrimary, 1);
    EXPECT_EQ(r.has.hwPinLabel, 1);
    EXPECT_STREQ(r.hwPinLabel, "text of hwPinLabel");
    expect_octets(r.portNumber.octets, r.portNumber.count, {0x5E});
    EXPECT_EQ(r.has.pciGen, 1);
    EXPECT_EQ(r.pciGen, 1u);
    EXPECT_EQ(r.pciLink.count, 2u);
    EXPECT_EQ(r.dstInfo.count, 2u);
}

TEST(DecodeItems, every_item_of_hardware_registers_type_reaches_its_field)
{
    element<HardwareRegistersType, Init_HardwareRegistersType, XmlDT_HardwareRegistersType> d(
        R"(<e wordOffset="4000000000" bitNumber="4000000001"></e>)");
    ASSERT_EQ(d.status, 0);
    const HardwareRegistersType &r = d.record;
    EXPECT_EQ(r.has.wordOffset, 1);
    EXPECT_EQ(r.wordOffset, 4000000000u);
    EXPECT_EQ(r.has.bitNumber, 1);
    EXPECT_EQ(r.bitNumber, 4000000001u);
}

TEST(DecodeItems, every_item_of_hw_signals_type_reaches_its_field)
{
    element<HwSignalsType, Init_HwSignalsType, XmlDT_HwSignalsType> d(
        R"(<e><direct>true</direct><alert/><present/><reset/><i2cPath><seqType>)"
        R"(ORVL_SEQ_PART</seqType><description>text of description</description></i2cPath></e>)");
    ASSERT_EQ(d.status, 0);
    const HwSignalsType &r = d.record;
    EXPECT_EQ(r.direct, 1);
    EXPECT_EQ(r.has.i2cPath, 1);
}

TEST(DecodeItems, every_item_of_power_consumer_type_reaches_its_field)
{
    element<PowerConsumerType, Init_PowerConsumerType, XmlDT_PowerConsumerType> d(
        R"(<e><openQuestion>text of openQuestion</openQuestion><openQuestion>)"
        R"(text of openQuestion</openQuestion><minPowerBudget>13.5</minPowerBudget>)"
        R"(<maxPowerBudget>14.5</maxPowerBudget><extPowerBudget>15.5</extPowerBudget><powerUsage>)"
        R"(4000000004</powerUsage><powerZone>ORVL_POWER_ZONE_FABRICASICS0</powerZone></e>)");
    ASSERT_EQ(d.status, 0);
    const PowerConsumerType &r = d.record;
    EXPECT_EQ(r.openQuestion.count, 2u);
    EXPECT_EQ(r.has.minPowerBudget, 1);
    EXPECT_EQ(r.minPowerBudget, 13.5);
    EXPECT_EQ(r.has.maxPowerBudget, 1);
    EXPECT_EQ(r.maxPowerBudget, 14.5);
    EXPECT_EQ(r.has.extPowerBudget, 1);
    EXPECT_EQ(r.extPowerBudget, 15.5);
    EXPECT_EQ(r.has.powerUsage, 1);
    EXPECT_EQ(r.powerUsage, 4000000004u);
    EXPECT_EQ(r.powerZone, 12u);
}

TEST(DecodeItems, every_item_of_power_producer_type_reaches_its_field)
{
    element<PowerProducerType, Init_PowerProducerType, XmlDT_PowerProducerType> d(
        R"(<e><maxPower>12.5</maxPower><currentPower>13.5</currentPower></e>)");
    ASSERT_EQ(d.status, 0);
    const PowerProducerType &r = d.record;
    EXPECT_EQ(r.has.maxPower, 1);
    EXPECT_EQ(r.maxPower, 12.5);
    EXPECT_EQ(r.has.currentPower, 1);
    EXPECT_EQ(r.currentPower, 13.5);
}

TEST(DecodeItems, every_item_of_power_zone_type_reaches_its_field)
{
    element<PowerZoneType, Init_PowerZoneType, XmlDT_PowerZoneType> d(
        R"(<e><openQuestion>text of openQuestion</openQuestion><openQuestion>)"
        R"(text of openQuestion</openQuestion><description>text of description</description><zone>)"
        R"(ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>true</powerOnOffCapability>)"
        R"(<powerApplied>true</powerApplied><totalPowerRequired>17.5</totalPowerRequired>)"
        R"(<mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber></e>)");
    ASSERT_EQ(d.status, 0);
    const PowerZoneType &r = d.record;
    EXPECT_EQ(r.openQuestion.count, 2u);
    EXPECT_EQ(r.has.description, 1);
    EXPECT_STREQ(r.description, "text of description");
    EXPECT_EQ(r.zone, 15u);
    EXPECT_EQ(r.powerOnOffCapability, 1);
    EXPECT_EQ(r.powerApplied, 1);
    EXPECT_EQ(r.totalPowerRequired, 17.5);
    EXPECT_EQ(r.mainZone, 1);
    EXPECT_EQ(r.pdZoneNumber, -1241);
}

TEST(DecodeItems, every_item_of_power_info_type_reaches_its_field)
{
    element<PowerInfoType, Init_PowerInfoType, XmlDT_PowerInfoType> d(
        R"(<e><openQuestion>text of openQuestion</openQuestion><openQuestion>)"
        R"(text of openQuestion</openQuestion><kbrsReference>text of kbrsReference</kbrsReference>)"
        R"(<powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
        R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
        R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
        R"(</powerZone><powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
        R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
        R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
        R"(</powerZone></e>)");
    ASSERT_EQ(d.status, 0);
    const PowerInfoType &r = d.record;
    EXPECT_EQ(r.openQuestion.count, 2u);
    EXPECT_EQ(r.has.kbrsReference, 1);
    EXPECT_STREQ(r.kbrsReference, "text of kbrsReference");
    EXPECT_EQ(r.powerZone.count, 2u);
}

}  // namespace
