// Types with nothing optional given.
#include <gtest/gtest.h>

#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

// Own bits and those of the extension's items.
template <typename Record>
int bits_set_of(const Record &record)
{
    int count = 0;
    if constexpr (requires { record.has; })
        count += bits_set(record.has);
    if constexpr (requires { record.ext.has; })
        count += bits_set(record.ext.has);
    return count;
}

// Decodes the least document of a type and gives the number of presence bits that are set, -1 on failure.
template <typename Record, void (*Init)(Record *), int32_t (*Decoder)(xb_context *, Record *)>
int least(const char *text)
{
    element<Record, Init, Decoder> d(text);
    if (d.status != 0)
        return -1;
    if constexpr (requires { d.record.base.base.has; })
        return bits_set_of(d.record) + bits_set_of(d.record.base) + bits_set_of(d.record.base.base);
    else if constexpr (requires { d.record.base; })
        return bits_set_of(d.record) + bits_set_of(d.record.base);
    else
        return bits_set_of(d.record);
}

struct least_case {
    const char *type;
    int (*decode)(const char *text);
    int bits;  // those of extensions that cannot be left out
    const char *text;
};

const least_case cases[] = {
    {"NodeInfoType", least<NodeInfoType, Init_NodeInfoType, XmlDT_NodeInfoType>, 0,
     R"(<e><nodeType>ORVL_NODE_TYPE_MAX</nodeType></e>)"},
    {"I2cNodeType", least<I2cNodeType, Init_I2cNodeType, XmlDT_I2cNodeType>, 0,
     R"(<e><deviceType>ORVL_I2CDEV_TYPE_PCISWITCH</deviceType></e>)"},
    {"I2cSequenceType", least<I2cSequenceType, Init_I2cSequenceType, XmlDT_I2cSequenceType>, 0,
     R"(<e><seqType>ORVL_SEQ_PART</seqType><description>text of description</description></e>)"},
    {"I2cDestType", least<I2cDestType, Init_I2cDestType, XmlDT_I2cDestType>, 0,
     R"(<e><description>text of description</description><applicable>ORVL_CTRL_SLOT_1</applicable>)"
     R"(<nodeInfo><nodeType>ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></e>)"},
    {"I2cPortType", least<I2cPortType, Init_I2cPortType, XmlDT_I2cPortType>, 0,
     R"(<e><portType>ORVL_PORT_TYPE_SMBUS</portType><channelNumber>0A0bFF</channelNumber></e>)"},
    {"PCIeNodeType", least<PCIeNodeType, Init_PCIeNodeType, XmlDT_PCIeNodeType>, 0,
     R"(<e><deviceType>ORVL_DEV_TYPE_PCITARGET</deviceType></e>)"},
    {"PciSequenceType", least<PciSequenceType, Init_PciSequenceType, XmlDT_PciSequenceType>, 0,
     R"(<e><description>text of description</description></e>)"},
    {"PMBusPortType", least<PMBusPortType, Init_PMBusPortType, XmlDT_PMBusPortType>, 0,
     R"(<e><PMBusCmd>5a</PMBusCmd></e>)"},
    {"SpiDestType", least<SpiDestType, Init_SpiDestType, XmlDT_SpiDestType>, 0,
     R"(<e><description>text of description</description></e>)"},
    {"SpiPortType", least<SpiPortType, Init_SpiPortType, XmlDT_SpiPortType>, 0,
     R"(<e><channel>0A0bFF</channel></e>)"},
    {"PCIeDestType", least<PCIeDestType, Init_PCIeDestType, XmlDT_PCIeDestType>, 0,
     R"(<e><description>text of description</description><applicable>ORVL_CTRL_SLOT_1</applicable>)"
     R"(<nodeInfo><nodeType>ORVL_NODE_TYPE_MAX</nodeType></nodeInfo></e>)"},
    {"BasePCIePortType", least<BasePCIePortType, Init_BasePCIePortType, XmlDT_BasePCIePortType>, 0,
     R"(<e><portNumber>5e</portNumber></e>)"},
    {"HardwareRegistersType",
     least<HardwareRegistersType, Init_HardwareRegistersType, XmlDT_HardwareRegistersType>, 0, R"(<e></e>)"},
    {"HwSignalsType", least<HwSignalsType, Init_HwSignalsType, XmlDT_HwSignalsType>, 0,
     R"(<e><direct>true</direct><alert/><present/><reset/></e>)"},
    {"PowerConsumerType", least<PowerConsumerType, Init_PowerConsumerType, XmlDT_PowerConsumerType>, 0,
     R"(<e><powerZone>ORVL_POWER_ZONE_FABRICASICS0</powerZone></e>)"},
    {"PowerProducerType", least<PowerProducerType, Init_PowerProducerType, XmlDT_PowerProducerType>, 0,
     R"(<e></e>)"},
    {"PowerZoneType", least<PowerZoneType, Init_PowerZoneType, XmlDT_PowerZoneType>, 0,
     R"(<e><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
     R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
     R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber></e>)"},
    {"PowerInfoType", least<PowerInfoType, Init_PowerInfoType, XmlDT_PowerInfoType>, 0,
     R"(<e><powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
     R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
     R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
     R"(</powerZone></e>)"},
    {"BaseEntityType", least<BaseEntityType, Init_BaseEntityType, XmlDT_BaseEntityType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"BaseLEDType", least<BaseLEDType, Init_BaseLEDType, XmlDT_BaseLEDType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control>)"
     R"(</ledInfo></e>)"},
    {"BaseLedInfoType", least<BaseLedInfoType, Init_BaseLedInfoType, XmlDT_BaseLedInfoType>, 0,
     R"(<e><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_BLINKSLOW</control></e>)"},
    {"BaseContainerType", least<BaseContainerType, Init_BaseContainerType, XmlDT_BaseContainerType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"BaseContainerListType",
     least<BaseContainerListType, Init_BaseContainerListType, XmlDT_BaseContainerListType>, 0,
     R"(<e><containerType>ORVL_CONTAINER_TYPE_BPID2SLOT</containerType><maxContainers>)"
     R"(-1235</maxContainers></e>)"},
    {"BasePortType", least<BasePortType, Init_BasePortType, XmlDT_BasePortType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
     R"( portUsage="ORVL_PORT_USAGE_OTHER"><maxBandWidth>-5000000001</maxBandWidth>)"
     R"(<operatingBandWidth>4000000002</operatingBandWidth><hwBoardIdentifier>)"
     R"(text of hwBoardIdentifier</hwBoardIdentifier></e>)"},
    {"BaseConsoleType", least<BaseConsoleType, Init_BaseConsoleType, XmlDT_BaseConsoleType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
     R"( portUsage="ORVL_PORT_USAGE_OTHER" usage="ORVL_CONSOLE_PORT_OTHER"><maxBandWidth>)"
     R"(-5000000001</maxBandWidth><operatingBandWidth>4000000002</operatingBandWidth>)"
     R"(<hwBoardIdentifier>text of hwBoardIdentifier</hwBoardIdentifier></e>)"},
    {"BaseThresholdType", least<BaseThresholdType, Init_BaseThresholdType, XmlDT_BaseThresholdType>, 0,
     R"(<e criticalLow="-123456" majorLow="-123457" minorLow="-123458" minorHigh="-123459")"
     R"( majorHigh="-123460" criticalHigh="-123461"></e>)"},
    {"BaseKestoType", least<BaseKestoType, Init_BaseKestoType, XmlDT_BaseKestoType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<isValidated>ORVL_KESTO_UNTESTED</isValidated></e>)"},
    {"BaseCEPortType", least<BaseCEPortType, Init_BaseCEPortType, XmlDT_BaseCEPortType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
     R"( portUsage="ORVL_PORT_USAGE_OTHER"><portNumber>4000000001</portNumber><client>)"
     R"(ORVL_ESD_CLIENT_TPA_ONLY</client><serdes>ORVL_SERDES_LONG_REACH</serdes><policingPortMap>)"
     R"(4000000025</policingPortMap><mdioChannel>4000000026</mdioChannel></e>)"},
    {"BaseCESwitchType", least<BaseCESwitchType, Init_BaseCESwitchType, XmlDT_BaseCESwitchType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<cores>4000000001</cores></e>)"},
    {"BaseCESwitchType_2_port",
     least<BaseCESwitchType_2_port, Init_BaseCESwitchType_2_port, XmlDT_BaseCESwitchType_2_port>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
     R"( portUsage="ORVL_PORT_USAGE_OTHER" facePlatePort="true"><portNumber>)"
     R"(4000000001</portNumber><client>ORVL_ESD_CLIENT_TPA_ONLY</client><serdes>)"
     R"(ORVL_SERDES_LONG_REACH</serdes><policingPortMap>4000000025</policingPortMap><mdioChannel>)"
     R"(4000000026</mdioChannel></e>)"},
    {"BaseIdEEPROMType", least<BaseIdEEPROMType, Init_BaseIdEEPROMType, XmlDT_BaseIdEEPROMType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253")"
     R"( eepromType="ORVL_EEPROM_TYPE_UNKNOWN"></e>)"},
    {"BaseStorageType", least<BaseStorageType, Init_BaseStorageType, XmlDT_BaseStorageType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<maxCapacity>0A0bFF</maxCapacity></e>)"},
    {"BaseStorageMemoryMap",
     least<BaseStorageMemoryMap, Init_BaseStorageMemoryMap, XmlDT_BaseStorageMemoryMap>, 0,
     R"(<e><memoryUsage>ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE</memoryUsage><blocks>)"
     R"(4000000001</blocks><startAddr>0A0bFF</startAddr><endAddr>0A0bFF</endAddr></e>)"},
    {"BaseSpiFlash", least<BaseSpiFlash, Init_BaseSpiFlash, XmlDT_BaseSpiFlash>, 2,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<maxCapacity>0A0bFF</maxCapacity><channel>4000000000</channel><blockSizeKB>)"
     R"(0A0bFF</blockSizeKB></e>)"},
    {"BaseFPGAType", least<BaseFPGAType, Init_BaseFPGAType, XmlDT_BaseFPGAType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<fieldUpgradable>true</fieldUpgradable><size>4000000001</size></e>)"},
    {"BaseSensorType", least<BaseSensorType, Init_BaseSensorType, XmlDT_BaseSensorType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<value>-123460</value><lastValue>-123461</lastValue><unit>ORVL_SENSOR_UNIT_VOLT_DC</unit>)"
     R"(<scale>ORVL_SENSOR_SCALE_ATTO</scale></e>)"},
    {"BaseMemoryType", least<BaseMemoryType, Init_BaseMemoryType, XmlDT_BaseMemoryType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<capacity>text of capacity</capacity><serialNumber>text of serialNumber</serialNumber>)"
     R"(<firmwareVersion>text of firmwareVersion</firmwareVersion></e>)"},
    {"BaseProcessorType", least<BaseProcessorType, Init_BaseProcessorType, XmlDT_BaseProcessorType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<cores>4000000000</cores><clockSpeed>text of clockSpeed</clockSpeed><cacheSizeL1>)"
     R"(text of cacheSizeL1</cacheSizeL1><cacheSizeL2>text of cacheSizeL2</cacheSizeL2>)"
     R"(<cacheSizeL3>text of cacheSizeL3</cacheSizeL3></e>)"},
    {"BasePCIeSwitchType", least<BasePCIeSwitchType, Init_BasePCIeSwitchType, XmlDT_BasePCIeSwitchType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"BaseVoltageMarginType",
     least<BaseVoltageMarginType, Init_BaseVoltageMarginType, XmlDT_BaseVoltageMarginType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<highValue>-123456</highValue><lowValue>-123457</lowValue><operation>)"
     R"(ORVL_VOLT_MARGIN_HIGH</operation></e>)"},
    {"I2cChipType", least<I2cChipType, Init_I2cChipType, XmlDT_I2cChipType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"BaseModuleTestType", least<BaseModuleTestType, Init_BaseModuleTestType, XmlDT_BaseModuleTestType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<isPowerProducer>true</isPowerProducer><powerOnOffCapability>true</powerOnOffCapability>)"
     R"(</e>)"},
    {"BaseCraftInterfaceType",
     least<BaseCraftInterfaceType, Init_BaseCraftInterfaceType, XmlDT_BaseCraftInterfaceType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<spiFlash name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<maxCapacity>0A0bFF</maxCapacity></spiFlash></e>)"},
    {"BaseControlInfoType", least<BaseControlInfoType, Init_BaseControlInfoType, XmlDT_BaseControlInfoType>,
     0, R"(<e><name>text of name</name></e>)"},
    {"BaseModuleType", least<BaseModuleType, Init_BaseModuleType, XmlDT_BaseModuleType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"ChassisEntityType", least<ChassisEntityType, Init_ChassisEntityType, XmlDT_ChassisEntityType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<fruBits>4000000000</fruBits><instanceBits>4000000001</instanceBits><rackNumber>)"
     R"(4000000002</rackNumber><availablePower>4000000003</availablePower><powerInfo><powerZone>)"
     R"(<zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>true</powerOnOffCapability>)"
     R"(<powerApplied>true</powerApplied><totalPowerRequired>17.5</totalPowerRequired><mainZone>)"
     R"(true</mainZone><pdZoneNumber>-1241</pdZoneNumber></powerZone></powerInfo></e>)"},
    {"BackPlaneType", least<BackPlaneType, Init_BackPlaneType, XmlDT_BackPlaneType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"OpticsType", least<OpticsType, Init_OpticsType, XmlDT_OpticsType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<numberChannels>-1234</numberChannels><sensorPerChannel>true</sensorPerChannel>)"
     R"(<xmlInstanceStart>-1236</xmlInstanceStart><sensorLosThresholds criticalLow="-123456")"
     R"( majorLow="-123457" minorLow="-123458" minorHigh="-123459" majorHigh="-123460")"
     R"( criticalHigh="-123461"/><sensorBiasThresholds criticalLow="-123456" majorLow="-123457")"
     R"( minorLow="-123458" minorHigh="-123459" majorHigh="-123460" criticalHigh="-123461"/>)"
     R"(<sensorThermoThresholds criticalLow="-123456" majorLow="-123457" minorLow="-123458")"
     R"( minorHigh="-123459" majorHigh="-123460" criticalHigh="-123461"/>)"
     R"(<sensorVoltageThresholds criticalLow="-123456" majorLow="-123457" minorLow="-123458")"
     R"( minorHigh="-123459" majorHigh="-123460" criticalHigh="-123461"/><summaryLosTx>)"
     R"(true</summaryLosTx><summaryFaultTx>true</summaryFaultTx><summaryBiasTx>)"
     R"(true</summaryBiasTx><summaryModuleTx>true</summaryModuleTx><summaryLosRx>)"
     R"(true</summaryLosRx><summaryFaultRx>true</summaryFaultRx><summaryBiasRx>)"
     R"(true</summaryBiasRx><summaryModuleRx>true</summaryModuleRx></e>)"},
    {"PEMType", least<PEMType, Init_PEMType, XmlDT_PEMType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<hoursUsage>4000000001</hoursUsage><faultStatus>)"
     R"(ORVL_FAULT_STATUS_FAULT_INDUCED_SHUTDOWN</faultStatus><psmState>)"
     R"(ORVL_PSM_STATE_FAILED</psmState></e>)"},
    {"PemBayType", least<PemBayType, Init_PemBayType, XmlDT_PemBayType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"PowerShelfType", least<PowerShelfType, Init_PowerShelfType, XmlDT_PowerShelfType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<powerInfo><powerZone><zone>ORVL_POWER_ZONE_FABRICASICS3</zone><powerOnOffCapability>)"
     R"(true</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>)"
     R"(17.5</totalPowerRequired><mainZone>true</mainZone><pdZoneNumber>-1241</pdZoneNumber>)"
     R"(</powerZone></powerInfo><maxPemContainers>-1238</maxPemContainers></e>)"},
    {"FanTrayType", least<FanTrayType, Init_FanTrayType, XmlDT_FanTrayType>, 0,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253"></e>)"},
    {"FanType", least<FanType, Init_FanType, XmlDT_FanType>, 1,
     R"(<e name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<sensor name="text of name" type="ORVL_ENTITY_TYPE_UNKNOWN")"
     R"( subtype="ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE" instance="-1246")"
     R"( replicationScope="ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK" xmlInstance="-1253">)"
     R"(<value>-123460</value><lastValue>-123461</lastValue><unit>ORVL_SENSOR_UNIT_VOLT_DC</unit>)"
     R"(<scale>ORVL_SENSOR_SCALE_ATTO</scale></sensor></e>)"},
    {"SwitchPortMapType", least<SwitchPortMapType, Init_SwitchPortMapType, XmlDT_SwitchPortMapType>, 0,
     R"(<e></e>)"},
};

TEST(DecodeItems, absent_optional_items_leave_every_presence_bit_clear)
{
    for (const least_case &c : cases)
        EXPECT_EQ(c.decode(c.text), c.bits) << c.type;
}

}  // namespace
