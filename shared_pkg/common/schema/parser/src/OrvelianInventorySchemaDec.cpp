/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#include "OrvelianInventorySchemaDec.h"

#include "decode/engine.h"
#include "decode/tables.h"
#include "inventory_DerivationsDec.h"

using namespace inv::decode;

namespace inv::decode::tokens
{

extern const enumeration ReplicationLevelsType;
extern const enumeration EntityOwnerType;
extern const enumeration EntitySelectionType;
extern const enumeration EidType;
extern const enumeration EidSubType;
extern const enumeration MemAccessSpeedUnit;
extern const enumeration CyclesPerSecUnit;
extern const enumeration HardwareModelType;
extern const enumeration LinkApplicableType;
extern const enumeration SequenceType;
extern const enumeration I2cDeviceType;
extern const enumeration PowerZonesValuesType;
extern const enumeration PciGen;
extern const enumeration PhyType;
extern const enumeration EsdPortDestType;
extern const enumeration PortState;
extern const enumeration MdioSpeed;
extern const enumeration LocalSwitching;
extern const enumeration SerdesParamsType;
extern const enumeration SfpControllerType;
extern const enumeration EsdDevVlanType;
extern const enumeration EsdDevClientType;
extern const enumeration PortSpeedType;
extern const enumeration PortModeType;
extern const enumeration BaseLedColorsType;
extern const enumeration BaseLedControlType;
extern const enumeration PortUsageType;
extern const enumeration EepromUsageType;
extern const enumeration NodeInfoType_nodeType;
extern const enumeration I2cPortType_portType;
extern const enumeration PCIeNodeType_deviceType;
extern const enumeration BaseContainerListType_containerType;
extern const enumeration BaseStorageMemoryMap_memoryUsage;
extern const enumeration BaseEntityType_adminState;
extern const enumeration BaseEntityType_operState;
extern const enumeration BaseEntityType_powerAdminState;
extern const enumeration BaseEntityType_powerOperState;
extern const enumeration BaseEntityType_dualRouter;
extern const enumeration BaseSensorType_2_unit;
extern const enumeration BaseSensorType_2_userDefinedUnit;
extern const enumeration BaseSensorType_2_scale;
extern const enumeration BaseVoltageMarginType_2_operation;
extern const enumeration BaseKestoType_2_isValidated;
extern const enumeration BaseConsoleType_usage;
extern const enumeration PEMType_2_faultStatus;
extern const enumeration PEMType_2_psmState;

}  // namespace inv::decode::tokens

namespace
{

constexpr item NodeInfoType_items[] = {
    {.name = "nodeType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(NodeInfoType, nodeType), .decode = child<XmlDT_NodeInfoType_nodeType>,
     .tokens = &tokens::NodeInfoType_nodeType, .has_tokens = true},
    {.name = "nodePosition", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(NodeInfoType, nodePosition), .present = bit(offsetof(NodeInfoType, has), 0)},
};
constexpr auto NodeInfoType_elements = element_rows(NodeInfoType_items);
constexpr auto NodeInfoType_sequence = sequence_rows(NodeInfoType_items);
constexpr auto NodeInfoType_values = plain_rows(NodeInfoType_items);
constexpr type_description NodeInfoType_description = {
    .name = "NodeInfoType",
    .first_step = 1000,
    .xmlns = offsetof(NodeInfoType, xmlns),
    .content = content_of(NodeInfoType_items, NodeInfoType_sequence, NodeInfoType_elements,
        NodeInfoType_values),
};

constexpr item I2cNodeType_items[] = {
    {.name = "deviceType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(I2cNodeType, deviceType), .decode = child<XmlDT_I2cDeviceType>,
     .tokens = &tokens::I2cDeviceType, .has_tokens = true},
    {.name = "deviceModel", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, deviceModel), .present = bit(offsetof(I2cNodeType, has), 0),
     .decode = child<XmlDT_HardwareModelType>, .tokens = &tokens::HardwareModelType, .has_tokens = true},
    {.name = "deviceAddress", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, deviceAddress), .present = bit(offsetof(I2cNodeType, has), 1),
     .decode = child<XmlDT_Hex8BitHexAddressType>, .capacity = sizeof Hex8BitHexAddressType::octets},
    {.name = "controlRegister", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, controlRegister), .present = bit(offsetof(I2cNodeType, has), 2),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "dataRegister", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, dataRegister), .present = bit(offsetof(I2cNodeType, has), 3),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "secondCtrlReg", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, secondCtrlReg), .present = bit(offsetof(I2cNodeType, has), 4),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "secondDataReg", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, secondDataReg), .present = bit(offsetof(I2cNodeType, has), 5),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "xmlInstance", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, xmlInstance), .present = bit(offsetof(I2cNodeType, has), 6)},
    {.name = "resetOnly", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(I2cNodeType, resetOnly), .present = bit(offsetof(I2cNodeType, has), 7)},
};
constexpr auto I2cNodeType_elements = element_rows(I2cNodeType_items);
constexpr auto I2cNodeType_sequence = sequence_rows(I2cNodeType_items);
constexpr auto I2cNodeType_values = plain_rows(I2cNodeType_items);
constexpr type_description I2cNodeType_description = {
    .name = "I2cNodeType",
    .first_step = 2000,
    .xmlns = offsetof(I2cNodeType, xmlns),
    .content = content_of(I2cNodeType_items, I2cNodeType_sequence, I2cNodeType_elements, I2cNodeType_values),
};

constexpr item I2cSequenceType_items[] = {
    {.name = "applicable", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(I2cSequenceType, applicable), .present = bit(offsetof(I2cSequenceType, has), 0),
     .decode = child<XmlDT_LinkApplicableType>, .tokens = &tokens::LinkApplicableType, .has_tokens = true},
    {.name = "seqType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(I2cSequenceType, seqType), .decode = child<XmlDT_SequenceType>,
     .tokens = &tokens::SequenceType, .has_tokens = true},
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(I2cSequenceType, description)},
    {.name = "srcInfo", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(I2cSequenceType, srcInfo), .present = bit(offsetof(I2cSequenceType, has), 1),
     .decode = child<XmlDT_NodeInfoType>},
    {.name = "cmdInfo", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(I2cSequenceType, cmdInfo), .node_size = sizeof(I2cNodeType),
     .init = init<Init_I2cNodeType>, .decode = child<XmlDT_I2cNodeType>},
    {.name = "dstInfo", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(I2cSequenceType, dstInfo), .present = bit(offsetof(I2cSequenceType, has), 2),
     .decode = child<XmlDT_NodeInfoType>},
};
constexpr auto I2cSequenceType_elements = element_rows(I2cSequenceType_items);
constexpr auto I2cSequenceType_sequence = sequence_rows(I2cSequenceType_items);
constexpr auto I2cSequenceType_values = plain_rows(I2cSequenceType_items);
constexpr type_description I2cSequenceType_description = {
    .name = "I2cSequenceType",
    .first_step = 3000,
    .xmlns = offsetof(I2cSequenceType, xmlns),
    .content = content_of(I2cSequenceType_items, I2cSequenceType_sequence, I2cSequenceType_elements,
        I2cSequenceType_values),
};

constexpr item I2cDestType_items[] = {
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(I2cDestType, description)},
    {.name = "applicable", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(I2cDestType, applicable), .decode = child<XmlDT_LinkApplicableType>,
     .tokens = &tokens::LinkApplicableType, .has_tokens = true},
    {.name = "nodeInfo", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(I2cDestType, nodeInfo), .decode = child<XmlDT_NodeInfoType>},
};
constexpr auto I2cDestType_elements = element_rows(I2cDestType_items);
constexpr auto I2cDestType_sequence = sequence_rows(I2cDestType_items);
constexpr auto I2cDestType_values = plain_rows(I2cDestType_items);
constexpr type_description I2cDestType_description = {
    .name = "I2cDestType",
    .first_step = 4000,
    .xmlns = offsetof(I2cDestType, xmlns),
    .content = content_of(I2cDestType_items, I2cDestType_sequence, I2cDestType_elements, I2cDestType_values),
};

constexpr item I2cPortType_items[] = {
    {.name = "portType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(I2cPortType, portType), .decode = child<XmlDT_I2cPortType_portType>,
     .tokens = &tokens::I2cPortType_portType, .has_tokens = true},
    {.name = "channelNumber", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(I2cPortType, channelNumber)},
    {.name = "dstInfo", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(I2cPortType, dstInfo), .node_size = sizeof(I2cDestType),
     .init = init<Init_I2cDestType>, .decode = child<XmlDT_I2cDestType>},
};
constexpr auto I2cPortType_elements = element_rows(I2cPortType_items);
constexpr auto I2cPortType_sequence = sequence_rows(I2cPortType_items);
constexpr auto I2cPortType_values = plain_rows(I2cPortType_items);
constexpr type_description I2cPortType_description = {
    .name = "I2cPortType",
    .first_step = 5000,
    .xmlns = offsetof(I2cPortType, xmlns),
    .content = content_of(I2cPortType_items, I2cPortType_sequence, I2cPortType_elements, I2cPortType_values),
};

constexpr item PCIeNodeType_items[] = {
    {.name = "deviceModel", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PCIeNodeType, deviceModel), .present = bit(offsetof(PCIeNodeType, has), 0),
     .decode = child<XmlDT_HardwareModelType>, .tokens = &tokens::HardwareModelType, .has_tokens = true},
    {.name = "deviceType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PCIeNodeType, deviceType), .decode = child<XmlDT_PCIeNodeType_deviceType>,
     .tokens = &tokens::PCIeNodeType_deviceType, .has_tokens = true},
    {.name = "portNumber", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PCIeNodeType, portNumber), .present = bit(offsetof(PCIeNodeType, has), 1),
     .decode = child<XmlDT_Hex8BitHexAddressType>, .capacity = sizeof Hex8BitHexAddressType::octets},
    {.name = "numOfFunctions", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(PCIeNodeType, numOfFunctions), .present = bit(offsetof(PCIeNodeType, has), 2)},
};
constexpr auto PCIeNodeType_elements = element_rows(PCIeNodeType_items);
constexpr auto PCIeNodeType_sequence = sequence_rows(PCIeNodeType_items);
constexpr auto PCIeNodeType_values = plain_rows(PCIeNodeType_items);
constexpr type_description PCIeNodeType_description = {
    .name = "PCIeNodeType",
    .first_step = 6000,
    .xmlns = offsetof(PCIeNodeType, xmlns),
    .content = content_of(PCIeNodeType_items, PCIeNodeType_sequence, PCIeNodeType_elements,
        PCIeNodeType_values),
};

constexpr item PciSequenceType_items[] = {
    {.name = "pdNotes", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(PciSequenceType, pdNotes)},
    {.name = "applicable", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PciSequenceType, applicable), .present = bit(offsetof(PciSequenceType, has), 0),
     .decode = child<XmlDT_LinkApplicableType>, .tokens = &tokens::LinkApplicableType, .has_tokens = true},
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(PciSequenceType, description)},
    {.name = "dstPci", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(PciSequenceType, dstPci), .present = bit(offsetof(PciSequenceType, has), 1),
     .decode = child<XmlDT_PCIeNodeType>},
    {.name = "dstInfo", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(PciSequenceType, dstInfo), .present = bit(offsetof(PciSequenceType, has), 2),
     .decode = child<XmlDT_NodeInfoType>},
    {.name = "xmlInstance", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(PciSequenceType, xmlInstance), .present = bit(offsetof(PciSequenceType, has), 3)},
};
constexpr auto PciSequenceType_elements = element_rows(PciSequenceType_items);
constexpr auto PciSequenceType_sequence = sequence_rows(PciSequenceType_items);
constexpr auto PciSequenceType_values = plain_rows(PciSequenceType_items);
constexpr type_description PciSequenceType_description = {
    .name = "PciSequenceType",
    .first_step = 7000,
    .xmlns = offsetof(PciSequenceType, xmlns),
    .content = content_of(PciSequenceType_items, PciSequenceType_sequence, PciSequenceType_elements,
        PciSequenceType_values),
};

constexpr item PMBusPortType_items[] = {
    {.name = "PMBusCmd", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PMBusPortType, PMBusCmd), .decode = child<XmlDT_Hex8BitHexAddressType>,
     .capacity = sizeof Hex8BitHexAddressType::octets},
};
constexpr auto PMBusPortType_elements = element_rows(PMBusPortType_items);
constexpr auto PMBusPortType_sequence = sequence_rows(PMBusPortType_items);
constexpr auto PMBusPortType_values = plain_rows(PMBusPortType_items);
constexpr type_description PMBusPortType_description = {
    .name = "PMBusPortType",
    .first_step = 8000,
    .xmlns = offsetof(PMBusPortType, xmlns),
    .content = content_of(PMBusPortType_items, PMBusPortType_sequence, PMBusPortType_elements,
        PMBusPortType_values),
};

constexpr item SpiDestType_items[] = {
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(SpiDestType, description)},
    {.name = "deviceAddress", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(SpiDestType, deviceAddress), .present = bit(offsetof(SpiDestType, has), 0),
     .decode = child<XmlDT_Hex8BitHexAddressType>, .capacity = sizeof Hex8BitHexAddressType::octets},
};
constexpr auto SpiDestType_elements = element_rows(SpiDestType_items);
constexpr auto SpiDestType_sequence = sequence_rows(SpiDestType_items);
constexpr auto SpiDestType_values = plain_rows(SpiDestType_items);
constexpr type_description SpiDestType_description = {
    .name = "SpiDestType",
    .first_step = 9000,
    .xmlns = offsetof(SpiDestType, xmlns),
    .content = content_of(SpiDestType_items, SpiDestType_sequence, SpiDestType_elements, SpiDestType_values),
};

constexpr item SpiPortType_items[] = {
    {.name = "channel", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(SpiPortType, channel)},
    {.name = "dstInfo", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(SpiPortType, dstInfo), .node_size = sizeof(SpiDestType),
     .init = init<Init_SpiDestType>, .decode = child<XmlDT_SpiDestType>},
};
constexpr auto SpiPortType_elements = element_rows(SpiPortType_items);
constexpr auto SpiPortType_sequence = sequence_rows(SpiPortType_items);
constexpr auto SpiPortType_values = plain_rows(SpiPortType_items);
constexpr type_description SpiPortType_description = {
    .name = "SpiPortType",
    .first_step = 10000,
    .xmlns = offsetof(SpiPortType, xmlns),
    .content = content_of(SpiPortType_items, SpiPortType_sequence, SpiPortType_elements, SpiPortType_values),
};

constexpr item PCIeDestType_items[] = {
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(PCIeDestType, description)},
    {.name = "applicable", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PCIeDestType, applicable), .decode = child<XmlDT_LinkApplicableType>,
     .tokens = &tokens::LinkApplicableType, .has_tokens = true},
    {.name = "deviceId", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PCIeDestType, deviceId), .present = bit(offsetof(PCIeDestType, has), 0),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "nodeInfo", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(PCIeDestType, nodeInfo), .decode = child<XmlDT_NodeInfoType>},
};
constexpr auto PCIeDestType_elements = element_rows(PCIeDestType_items);
constexpr auto PCIeDestType_sequence = sequence_rows(PCIeDestType_items);
constexpr auto PCIeDestType_values = plain_rows(PCIeDestType_items);
constexpr type_description PCIeDestType_description = {
    .name = "PCIeDestType",
    .first_step = 11000,
    .xmlns = offsetof(PCIeDestType, xmlns),
    .content = content_of(PCIeDestType_items, PCIeDestType_sequence, PCIeDestType_elements,
        PCIeDestType_values),
};

constexpr item BasePCIePortType_items[] = {
    {.name = "width", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIePortType, width), .present = bit(offsetof(BasePCIePortType, has), 0)},
    {.name = "isTransparentPort", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIePortType, isTransparentPort),
     .present = bit(offsetof(BasePCIePortType, has), 1)},
    {.name = "isPrimary", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIePortType, isPrimary), .present = bit(offsetof(BasePCIePortType, has), 2)},
    {.name = "hwPinLabel", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIePortType, hwPinLabel), .present = bit(offsetof(BasePCIePortType, has), 3)},
    {.name = "portNumber", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BasePCIePortType, portNumber), .decode = child<XmlDT_Hex8BitHexAddressType>,
     .capacity = sizeof Hex8BitHexAddressType::octets},
    {.name = "pciGen", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIePortType, pciGen), .present = bit(offsetof(BasePCIePortType, has), 4),
     .decode = child<XmlDT_PciGen>, .tokens = &tokens::PciGen, .has_tokens = true},
    {.name = "pciLink", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BasePCIePortType, pciLink), .node_size = sizeof(PciSequenceType),
     .init = init<Init_PciSequenceType>, .decode = child<XmlDT_PciSequenceType>},
    {.name = "dstInfo", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BasePCIePortType, dstInfo), .node_size = sizeof(PCIeDestType),
     .init = init<Init_PCIeDestType>, .decode = child<XmlDT_PCIeDestType>},
};
constexpr auto BasePCIePortType_elements = element_rows(BasePCIePortType_items);
constexpr auto BasePCIePortType_sequence = sequence_rows(BasePCIePortType_items);
constexpr auto BasePCIePortType_values = plain_rows(BasePCIePortType_items);
constexpr type_description BasePCIePortType_description = {
    .name = "BasePCIePortType",
    .first_step = 12000,
    .xmlns = offsetof(BasePCIePortType, xmlns),
    .content = content_of(BasePCIePortType_items, BasePCIePortType_sequence, BasePCIePortType_elements,
        BasePCIePortType_values),
};

constexpr auto HardwareRegistersType_attributes = std::to_array<item>({
    {.name = "wordOffset", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(HardwareRegistersType, wordOffset),
     .present = bit(offsetof(HardwareRegistersType, has), 0)},
    {.name = "bitNumber", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(HardwareRegistersType, bitNumber),
     .present = bit(offsetof(HardwareRegistersType, has), 1)},
});
constexpr auto HardwareRegistersType_attribute_names = attribute_rows(HardwareRegistersType_attributes);
constexpr auto HardwareRegistersType_attribute_values = plain_rows(HardwareRegistersType_attributes);
constexpr type_description HardwareRegistersType_description = {
    .name = "HardwareRegistersType",
    .first_step = 13000,
    .xmlns = offsetof(HardwareRegistersType, xmlns),
    .attributes = attributes_of(HardwareRegistersType_attributes, HardwareRegistersType_attribute_names,
        HardwareRegistersType_attribute_values),
};

constexpr item HwSignalsType_items[] = {
    {.name = "direct", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(HwSignalsType, direct)},
    {.name = "alert", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(HwSignalsType, alert), .decode = child<XmlDT_HardwareRegistersType>},
    {.name = "present", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(HwSignalsType, present), .decode = child<XmlDT_HardwareRegistersType>},
    {.name = "reset", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(HwSignalsType, reset), .decode = child<XmlDT_HardwareRegistersType>},
    {.name = "i2cPath", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(HwSignalsType, i2cPath), .present = bit(offsetof(HwSignalsType, has), 0),
     .decode = child<XmlDT_I2cSequenceType>},
};
constexpr auto HwSignalsType_elements = element_rows(HwSignalsType_items);
constexpr auto HwSignalsType_sequence = sequence_rows(HwSignalsType_items);
constexpr auto HwSignalsType_values = plain_rows(HwSignalsType_items);
constexpr type_description HwSignalsType_description = {
    .name = "HwSignalsType",
    .first_step = 14000,
    .xmlns = offsetof(HwSignalsType, xmlns),
    .content = content_of(HwSignalsType_items, HwSignalsType_sequence, HwSignalsType_elements,
        HwSignalsType_values),
};

constexpr item PowerConsumerType_items[] = {
    {.name = "openQuestion", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(PowerConsumerType, openQuestion)},
    {.name = "minPowerBudget", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PowerConsumerType, minPowerBudget),
     .present = bit(offsetof(PowerConsumerType, has), 0), .decode = child<XmlDT_PowerType>},
    {.name = "maxPowerBudget", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PowerConsumerType, maxPowerBudget),
     .present = bit(offsetof(PowerConsumerType, has), 1), .decode = child<XmlDT_PowerType>},
    {.name = "extPowerBudget", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PowerConsumerType, extPowerBudget),
     .present = bit(offsetof(PowerConsumerType, has), 2), .decode = child<XmlDT_PowerType>},
    {.name = "powerUsage", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(PowerConsumerType, powerUsage), .present = bit(offsetof(PowerConsumerType, has), 3)},
    {.name = "powerZone", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PowerConsumerType, powerZone), .decode = child<XmlDT_PowerZonesValuesType>,
     .tokens = &tokens::PowerZonesValuesType, .has_tokens = true},
};
constexpr auto PowerConsumerType_elements = element_rows(PowerConsumerType_items);
constexpr auto PowerConsumerType_sequence = sequence_rows(PowerConsumerType_items);
constexpr auto PowerConsumerType_values = plain_rows(PowerConsumerType_items);
constexpr type_description PowerConsumerType_description = {
    .name = "PowerConsumerType",
    .first_step = 15000,
    .xmlns = offsetof(PowerConsumerType, xmlns),
    .content = content_of(PowerConsumerType_items, PowerConsumerType_sequence, PowerConsumerType_elements,
        PowerConsumerType_values),
};

constexpr item PowerProducerType_items[] = {
    {.name = "maxPower", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PowerProducerType, maxPower), .present = bit(offsetof(PowerProducerType, has), 0),
     .decode = child<XmlDT_PowerType>},
    {.name = "currentPower", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(PowerProducerType, currentPower), .present = bit(offsetof(PowerProducerType, has), 1),
     .decode = child<XmlDT_PowerType>},
};
constexpr auto PowerProducerType_elements = element_rows(PowerProducerType_items);
constexpr auto PowerProducerType_sequence = sequence_rows(PowerProducerType_items);
constexpr auto PowerProducerType_values = plain_rows(PowerProducerType_items);
constexpr type_description PowerProducerType_description = {
    .name = "PowerProducerType",
    .first_step = 16000,
    .xmlns = offsetof(PowerProducerType, xmlns),
    .content = content_of(PowerProducerType_items, PowerProducerType_sequence, PowerProducerType_elements,
        PowerProducerType_values),
};

constexpr item PowerZoneType_items[] = {
    {.name = "openQuestion", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(PowerZoneType, openQuestion)},
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(PowerZoneType, description), .present = bit(offsetof(PowerZoneType, has), 0)},
    {.name = "zone", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, zone), .decode = child<XmlDT_PowerZonesValuesType>,
     .tokens = &tokens::PowerZonesValuesType, .has_tokens = true},
    {.name = "powerOnOffCapability", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, powerOnOffCapability)},
    {.name = "powerApplied", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, powerApplied)},
    {.name = "totalPowerRequired", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, totalPowerRequired), .decode = child<XmlDT_PowerType>},
    {.name = "mainZone", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, mainZone)},
    {.name = "pdZoneNumber", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(PowerZoneType, pdZoneNumber)},
};
constexpr auto PowerZoneType_elements = element_rows(PowerZoneType_items);
constexpr auto PowerZoneType_sequence = sequence_rows(PowerZoneType_items);
constexpr auto PowerZoneType_values = plain_rows(PowerZoneType_items);
constexpr type_description PowerZoneType_description = {
    .name = "PowerZoneType",
    .first_step = 17000,
    .xmlns = offsetof(PowerZoneType, xmlns),
    .content = content_of(PowerZoneType_items, PowerZoneType_sequence, PowerZoneType_elements,
        PowerZoneType_values),
};

constexpr item PowerInfoType_items[] = {
    {.name = "openQuestion", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(PowerInfoType, openQuestion)},
    {.name = "kbrsReference", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(PowerInfoType, kbrsReference), .present = bit(offsetof(PowerInfoType, has), 0)},
    {.name = "powerZone", .kind = item_kind::record, .occurs = occurrence::counted,
     .offset = offsetof(PowerInfoType, powerZone), .node_size = sizeof(PowerZoneType),
     .init = init<Init_PowerZoneType>, .decode = child<XmlDT_PowerZoneType>,
     .counter = "PowerInfoType.powerZone.count"},
};
constexpr auto PowerInfoType_elements = element_rows(PowerInfoType_items);
constexpr auto PowerInfoType_sequence = sequence_rows(PowerInfoType_items);
constexpr auto PowerInfoType_values = plain_rows(PowerInfoType_items);
constexpr type_description PowerInfoType_description = {
    .name = "PowerInfoType",
    .first_step = 18000,
    .xmlns = offsetof(PowerInfoType, xmlns),
    .content = content_of(PowerInfoType_items, PowerInfoType_sequence, PowerInfoType_elements,
        PowerInfoType_values),
};

constexpr item BaseLedInfoType_items[] = {
    {.name = "color", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseLedInfoType, color), .decode = child<XmlDT_BaseLedColorsType>,
     .tokens = &tokens::BaseLedColorsType, .has_tokens = true},
    {.name = "control", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseLedInfoType, control), .decode = child<XmlDT_BaseLedControlType>,
     .tokens = &tokens::BaseLedControlType, .has_tokens = true},
};
constexpr auto BaseLedInfoType_elements = element_rows(BaseLedInfoType_items);
constexpr auto BaseLedInfoType_sequence = sequence_rows(BaseLedInfoType_items);
constexpr auto BaseLedInfoType_values = plain_rows(BaseLedInfoType_items);
constexpr type_description BaseLedInfoType_description = {
    .name = "BaseLedInfoType",
    .first_step = 19000,
    .xmlns = offsetof(BaseLedInfoType, xmlns),
    .content = content_of(BaseLedInfoType_items, BaseLedInfoType_sequence, BaseLedInfoType_elements,
        BaseLedInfoType_values),
};

constexpr item BaseContainerListType_items[] = {
    {.name = "containerType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseContainerListType, containerType),
     .decode = child<XmlDT_BaseContainerListType_containerType>,
     .tokens = &tokens::BaseContainerListType_containerType, .has_tokens = true},
    {.name = "maxContainers", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(BaseContainerListType, maxContainers)},
    {.name = "pdNotes", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(BaseContainerListType, pdNotes)},
    {.name = "openQuestion", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(BaseContainerListType, openQuestion)},
    {.name = "kbrsReference", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerListType, kbrsReference),
     .present = bit(offsetof(BaseContainerListType, has), 0)},
    {.name = "i2cAccess", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerListType, i2cAccess),
     .present = bit(offsetof(BaseContainerListType, has), 1), .decode = child<XmlDT_I2cSequenceType>},
    {.name = "i2cIDPROM", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerListType, i2cIDPROM),
     .present = bit(offsetof(BaseContainerListType, has), 2), .decode = child<XmlDT_I2cSequenceType>},
    {.name = "pciAccess", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerListType, pciAccess),
     .present = bit(offsetof(BaseContainerListType, has), 3), .decode = child<XmlDT_PciSequenceType>},
    {.name = "entityContainer", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseContainerListType, entityContainer), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseContainerType_derivations>, .decode = child<XmlDT_BaseContainerType_derivations>},
};
constexpr auto BaseContainerListType_elements = element_rows(BaseContainerListType_items);
constexpr auto BaseContainerListType_sequence = sequence_rows(BaseContainerListType_items);
constexpr auto BaseContainerListType_values = plain_rows(BaseContainerListType_items);
constexpr type_description BaseContainerListType_description = {
    .name = "BaseContainerListType",
    .first_step = 20000,
    .xmlns = offsetof(BaseContainerListType, xmlns),
    .content = content_of(BaseContainerListType_items, BaseContainerListType_sequence,
        BaseContainerListType_elements, BaseContainerListType_values),
};

constexpr auto BaseThresholdType_attributes = std::to_array<item>({
    {.name = "criticalLow", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, criticalLow)},
    {.name = "majorLow", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, majorLow)},
    {.name = "minorLow", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, minorLow)},
    {.name = "minorHigh", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, minorHigh)},
    {.name = "majorHigh", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, majorHigh)},
    {.name = "criticalHigh", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseThresholdType, criticalHigh)},
});
constexpr auto BaseThresholdType_attribute_names = attribute_rows(BaseThresholdType_attributes);
constexpr auto BaseThresholdType_attribute_values = plain_rows(BaseThresholdType_attributes);
constexpr type_description BaseThresholdType_description = {
    .name = "BaseThresholdType",
    .first_step = 21000,
    .xmlns = offsetof(BaseThresholdType, xmlns),
    .attributes = attributes_of(BaseThresholdType_attributes, BaseThresholdType_attribute_names,
        BaseThresholdType_attribute_values),
};

constexpr item BaseStorageMemoryMap_items[] = {
    {.name = "memoryUsage", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageMemoryMap, memoryUsage),
     .decode = child<XmlDT_BaseStorageMemoryMap_memoryUsage>,
     .tokens = &tokens::BaseStorageMemoryMap_memoryUsage, .has_tokens = true},
    {.name = "blocks", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageMemoryMap, blocks)},
    {.name = "startAddr", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageMemoryMap, startAddr)},
    {.name = "endAddr", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageMemoryMap, endAddr)},
};
constexpr auto BaseStorageMemoryMap_elements = element_rows(BaseStorageMemoryMap_items);
constexpr auto BaseStorageMemoryMap_sequence = sequence_rows(BaseStorageMemoryMap_items);
constexpr auto BaseStorageMemoryMap_values = plain_rows(BaseStorageMemoryMap_items);
constexpr type_description BaseStorageMemoryMap_description = {
    .name = "BaseStorageMemoryMap",
    .first_step = 22000,
    .xmlns = offsetof(BaseStorageMemoryMap, xmlns),
    .content = content_of(BaseStorageMemoryMap_items, BaseStorageMemoryMap_sequence,
        BaseStorageMemoryMap_elements, BaseStorageMemoryMap_values),
};

constexpr item BaseControlInfoType_items[] = {
    {.name = "name", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseControlInfoType, name)},
};
constexpr auto BaseControlInfoType_elements = element_rows(BaseControlInfoType_items);
constexpr auto BaseControlInfoType_sequence = sequence_rows(BaseControlInfoType_items);
constexpr auto BaseControlInfoType_values = plain_rows(BaseControlInfoType_items);
constexpr type_description BaseControlInfoType_description = {
    .name = "BaseControlInfoType",
    .first_step = 23000,
    .xmlns = offsetof(BaseControlInfoType, xmlns),
    .content = content_of(BaseControlInfoType_items, BaseControlInfoType_sequence,
        BaseControlInfoType_elements, BaseControlInfoType_values),
};

constexpr type_description SwitchPortMapType_description = {
    .name = "SwitchPortMapType",
    .first_step = 24000,
    .xmlns = offsetof(SwitchPortMapType, xmlns),
};

constexpr auto BaseEntityType_attributes = std::to_array<item>({
    {.name = "name", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, name)},
    {.name = "description", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, description), .present = bit(offsetof(BaseEntityType, has), 0)},
    {.name = "oid", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, oid), .present = bit(offsetof(BaseEntityType, has), 1)},
    {.name = "adminState", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, adminState), .present = bit(offsetof(BaseEntityType, has), 2),
     .decode = child<XmlDT_BaseEntityType_adminState>, .tokens = &tokens::BaseEntityType_adminState,
     .has_tokens = true},
    {.name = "operState", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, operState), .present = bit(offsetof(BaseEntityType, has), 3),
     .decode = child<XmlDT_BaseEntityType_operState>, .tokens = &tokens::BaseEntityType_operState,
     .has_tokens = true},
    {.name = "powerAdminState", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, powerAdminState), .present = bit(offsetof(BaseEntityType, has), 4),
     .decode = child<XmlDT_BaseEntityType_powerAdminState>, .tokens = &tokens::BaseEntityType_powerAdminState,
     .has_tokens = true},
    {.name = "powerOperState", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, powerOperState), .present = bit(offsetof(BaseEntityType, has), 5),
     .decode = child<XmlDT_BaseEntityType_powerOperState>, .tokens = &tokens::BaseEntityType_powerOperState,
     .has_tokens = true},
    {.name = "dualRouter", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, dualRouter), .present = bit(offsetof(BaseEntityType, has), 6),
     .decode = child<XmlDT_BaseEntityType_dualRouter>, .tokens = &tokens::BaseEntityType_dualRouter,
     .has_tokens = true},
    {.name = "fruable", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, fruable), .present = bit(offsetof(BaseEntityType, has), 7)},
    {.name = "oir", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, oir), .present = bit(offsetof(BaseEntityType, has), 8)},
    {.name = "type", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, type), .decode = child<XmlDT_EidType>, .tokens = &tokens::EidType,
     .has_tokens = true},
    {.name = "subtype", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, subtype), .decode = child<XmlDT_EidSubType>,
     .tokens = &tokens::EidSubType, .has_tokens = true},
    {.name = "instance", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, instance)},
    {.name = "replicationScope", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, replicationScope), .decode = child<XmlDT_ReplicationLevelsType>,
     .tokens = &tokens::ReplicationLevelsType, .has_tokens = true},
    {.name = "entitySelect", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, entitySelect), .present = bit(offsetof(BaseEntityType, has), 9),
     .decode = child<XmlDT_EntitySelectionType>, .tokens = &tokens::EntitySelectionType, .has_tokens = true},
    {.name = "replicationStateScope", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, replicationStateScope),
     .present = bit(offsetof(BaseEntityType, has), 10), .decode = child<XmlDT_ReplicationLevelsType>,
     .tokens = &tokens::ReplicationLevelsType, .has_tokens = true},
    {.name = "entityOwner", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, entityOwner), .present = bit(offsetof(BaseEntityType, has), 11),
     .decode = child<XmlDT_EntityOwnerType>, .tokens = &tokens::EntityOwnerType, .has_tokens = true},
    {.name = "snmpEntity", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, snmpEntity), .present = bit(offsetof(BaseEntityType, has), 12)},
    {.name = "isPrimary", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, isPrimary), .present = bit(offsetof(BaseEntityType, has), 13)},
    {.name = "xmlInstance", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(BaseEntityType, xmlInstance)},
    {.name = "isPrefixNeeded", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, isPrefixNeeded), .present = bit(offsetof(BaseEntityType, has), 14)},
    {.name = "isHidden", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, isHidden), .present = bit(offsetof(BaseEntityType, has), 15)},
    {.name = "resetBaseData", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, resetBaseData), .present = bit(offsetof(BaseEntityType, has), 16)},
    {.name = "resetDynamicData", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, resetDynamicData), .present = bit(offsetof(BaseEntityType, has), 17)},
    {.name = "resetNoData", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, resetNoData), .present = bit(offsetof(BaseEntityType, has), 18)},
});
constexpr auto BaseEntityType_attribute_names = attribute_rows(BaseEntityType_attributes);
constexpr auto BaseEntityType_attribute_values = plain_rows(BaseEntityType_attributes);
constexpr item BaseEntityType_items[] = {
    {.name = "pdNotes", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(BaseEntityType, pdNotes)},
    {.name = "openQuestion", .kind = item_kind::text, .occurs = occurrence::repeated,
     .offset = offsetof(BaseEntityType, openQuestion)},
    {.name = "kbrsReference", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, kbrsReference), .present = bit(offsetof(BaseEntityType, has), 19)},
    {.name = "powerConsumer", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, powerConsumer), .present = bit(offsetof(BaseEntityType, has), 20),
     .decode = child<XmlDT_PowerConsumerType>},
    {.name = "powerProducer", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, powerProducer), .present = bit(offsetof(BaseEntityType, has), 21),
     .decode = child<XmlDT_PowerProducerType>},
    {.name = "hardwareVersion", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, hardwareVersion), .present = bit(offsetof(BaseEntityType, has), 22)},
    {.name = "softwareVersion", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, softwareVersion), .present = bit(offsetof(BaseEntityType, has), 23)},
    {.name = "firmwareVersion", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, firmwareVersion), .present = bit(offsetof(BaseEntityType, has), 24)},
    {.name = "pdHardwareModel", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, pdHardwareModel), .present = bit(offsetof(BaseEntityType, has), 25),
     .decode = child<XmlDT_HardwareModelType>, .tokens = &tokens::HardwareModelType, .has_tokens = true},
    {.name = "hwSignals", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, hwSignals), .present = bit(offsetof(BaseEntityType, has), 26),
     .decode = child<XmlDT_HwSignalsType>},
    {.name = "spiPort", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseEntityType, spiPort), .node_size = sizeof(SpiPortType),
     .init = init<Init_SpiPortType>, .decode = child<XmlDT_SpiPortType>},
    {.name = "i2cNode", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, i2cNode), .present = bit(offsetof(BaseEntityType, has), 27),
     .decode = child<XmlDT_I2cNodeType>},
    {.name = "i2cPort", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseEntityType, i2cPort), .node_size = sizeof(I2cPortType),
     .init = init<Init_I2cPortType>, .decode = child<XmlDT_I2cPortType>},
    {.name = "pcieNode", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, pcieNode), .present = bit(offsetof(BaseEntityType, has), 28),
     .decode = child<XmlDT_PCIeNodeType>},
    {.name = "pciePort", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseEntityType, pciePort), .node_size = sizeof(BasePCIePortType),
     .init = init<Init_BasePCIePortType>, .decode = child<XmlDT_BasePCIePortType>},
    {.name = "obflData", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, obflData), .present = bit(offsetof(BaseEntityType, has), 29)},
    {.name = "pmBusPort", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, pmBusPort), .present = bit(offsetof(BaseEntityType, has), 30),
     .decode = child<XmlDT_PMBusPortType>},
    {.name = "driverRegistered", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, driverRegistered), .present = bit(offsetof(BaseEntityType, has), 31)},
    {.name = "driverRequired", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, driverRequired), .present = bit(offsetof(BaseEntityType, has), 32)},
    {.name = "driverId", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseEntityType, driverId), .present = bit(offsetof(BaseEntityType, has), 33)},
};
constexpr auto BaseEntityType_elements = element_rows(BaseEntityType_items);
constexpr auto BaseEntityType_sequence = sequence_rows(BaseEntityType_items);
constexpr auto BaseEntityType_values = plain_rows(BaseEntityType_items);
constexpr auto BaseEntityType_inherited = base_group_rows(BaseEntityType_items);
constexpr type_description BaseEntityType_description = {
    .name = "BaseEntityType",
    .first_step = 25000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseEntityType_items, BaseEntityType_sequence, BaseEntityType_elements,
        BaseEntityType_values),
};

constexpr item BaseLEDType_2_items[] = {
    {.name = "cccAddrOffset", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseLEDType_2, cccAddrOffset), .present = bit(offsetof(BaseLEDType_2, has), 0),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "cccAddrBits", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseLEDType_2, cccAddrBits), .present = bit(offsetof(BaseLEDType_2, has), 1),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "ledInfo", .kind = item_kind::record, .occurs = occurrence::counted,
     .offset = offsetof(BaseLEDType_2, ledInfo), .node_size = sizeof(BaseLedInfoType),
     .init = init<Init_BaseLedInfoType>, .decode = child<XmlDT_BaseLedInfoType>,
     .counter = "BaseLEDType_2.ledInfo.count"},
};
constexpr auto BaseLEDType_2_elements = element_rows(BaseLEDType_2_items);
constexpr auto BaseLEDType_2_sequence = sequence_rows(BaseLEDType_2_items);
constexpr auto BaseLEDType_2_values = plain_rows(BaseLEDType_2_items);
constexpr type_description BaseLEDType_2_description = {
    .name = "BaseLEDType_2",
    .first_step = 27000,
    .is_extension = true,
    .content = content_of(BaseLEDType_2_items, BaseLEDType_2_sequence, BaseLEDType_2_elements,
        BaseLEDType_2_values),
};

constexpr item BaseLEDType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseLEDType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseLEDType_2", .kind = item_kind::group, .occurs = occurrence::counted,
     .offset = offsetof(BaseLEDType, ext), .present = bit(offsetof(BaseLEDType, has), 0),
     .decode = child<XmlDT_BaseLEDType_2>},
};
constexpr auto BaseLEDType_elements = joined(BaseEntityType_inherited, leading_rows<BaseLEDType_2_items>());
constexpr auto BaseLEDType_sequence = sequence_rows(BaseLEDType_items);
constexpr auto BaseLEDType_values = plain_rows(BaseLEDType_items);
constexpr type_description BaseLEDType_description = {
    .name = "BaseLEDType",
    .first_step = 26000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseLEDType_items, BaseLEDType_sequence, BaseLEDType_elements, BaseLEDType_values),
};

constexpr item BaseContainerType_2_items[] = {
    {.name = "i2cIDPROM", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerType_2, i2cIDPROM),
     .present = bit(offsetof(BaseContainerType_2, has), 0), .decode = child<XmlDT_I2cSequenceType>},
};
constexpr auto BaseContainerType_2_elements = element_rows(BaseContainerType_2_items);
constexpr auto BaseContainerType_2_sequence = sequence_rows(BaseContainerType_2_items);
constexpr auto BaseContainerType_2_values = plain_rows(BaseContainerType_2_items);
constexpr type_description BaseContainerType_2_description = {
    .name = "BaseContainerType_2",
    .first_step = 29000,
    .is_extension = true,
    .content = content_of(BaseContainerType_2_items, BaseContainerType_2_sequence,
        BaseContainerType_2_elements, BaseContainerType_2_values),
};

constexpr auto BaseContainerType_own_attributes = std::to_array<item>({
    {.name = "position", .kind = item_kind::int32, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerType, position), .present = bit(offsetof(BaseContainerType, has), 1)},
    {.name = "hardwarePosition", .kind = item_kind::int32, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerType, hardwarePosition),
     .present = bit(offsetof(BaseContainerType, has), 2)},
});
constexpr auto BaseContainerType_attributes = joined(BaseEntityType_attributes,
    BaseContainerType_own_attributes);
constexpr auto BaseContainerType_attribute_names = attribute_rows(BaseContainerType_attributes);
constexpr auto BaseContainerType_attribute_values = plain_rows(BaseContainerType_attributes);
constexpr item BaseContainerType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseContainerType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseContainerType, ext), .present = bit(offsetof(BaseContainerType, has), 0),
     .decode = child<XmlDT_BaseContainerType_2>},
};
constexpr auto BaseContainerType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseContainerType_2_items>());
constexpr auto BaseContainerType_sequence = sequence_rows(BaseContainerType_items);
constexpr auto BaseContainerType_values = plain_rows(BaseContainerType_items);
constexpr auto BaseContainerType_inherited = joined(BaseEntityType_inherited,
    base_group_rows(BaseContainerType_2_items));
constexpr type_description BaseContainerType_description = {
    .name = "BaseContainerType",
    .first_step = 28000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseContainerType_attributes, BaseContainerType_attribute_names,
        BaseContainerType_attribute_values),
    .content = content_of(BaseContainerType_items, BaseContainerType_sequence, BaseContainerType_elements,
        BaseContainerType_values),
};

constexpr item PemBayType_2_items[] = {
    {.name = "i2cSensorAccess", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(PemBayType_2, i2cSensorAccess), .present = bit(offsetof(PemBayType_2, has), 0),
     .decode = child<XmlDT_BaseEntityType_derivations>},
    {.name = "i2cIDPROM", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(PemBayType_2, i2cIDPROM), .present = bit(offsetof(PemBayType_2, has), 1),
     .decode = child<XmlDT_I2cSequenceType>},
};
constexpr auto PemBayType_2_elements = element_rows(PemBayType_2_items);
constexpr auto PemBayType_2_sequence = sequence_rows(PemBayType_2_items);
constexpr auto PemBayType_2_values = plain_rows(PemBayType_2_items);
constexpr type_description PemBayType_2_description = {
    .name = "PemBayType_2",
    .first_step = 31000,
    .is_extension = true,
    .content = content_of(PemBayType_2_items, PemBayType_2_sequence, PemBayType_2_elements,
        PemBayType_2_values),
};

constexpr item PemBayType_items[] = {
    {.name = "BaseContainerType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(PemBayType, base), .decode = child<XmlDT_BaseContainerType>},
    {.name = "PemBayType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(PemBayType, ext), .present = bit(offsetof(PemBayType, has), 0),
     .decode = child<XmlDT_PemBayType_2>},
};
constexpr auto PemBayType_elements = joined(BaseContainerType_inherited, leading_rows<PemBayType_2_items>());
constexpr auto PemBayType_sequence = sequence_rows(PemBayType_items);
constexpr auto PemBayType_values = plain_rows(PemBayType_items);
constexpr type_description PemBayType_description = {
    .name = "PemBayType",
    .first_step = 30000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseContainerType_attributes, BaseContainerType_attribute_names,
        BaseContainerType_attribute_values),
    .content = content_of(PemBayType_items, PemBayType_sequence, PemBayType_elements, PemBayType_values),
};

constexpr item BaseCEPortType_2_items[] = {
    {.name = "portNumber", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType_2, portNumber)},
    {.name = "operatingBandWidth", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, operatingBandWidth),
     .present = bit(offsetof(BaseCEPortType_2, has), 0)},
    {.name = "client", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType_2, client), .decode = child<XmlDT_EsdDevClientType>,
     .tokens = &tokens::EsdDevClientType, .has_tokens = true},
    {.name = "pd_specific_client", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, pd_specific_client),
     .present = bit(offsetof(BaseCEPortType_2, has), 1)},
    {.name = "CC0nativeVlan", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0nativeVlan), .present = bit(offsetof(BaseCEPortType_2, has), 2),
     .decode = child<XmlDT_EsdDevVlanType>, .tokens = &tokens::EsdDevVlanType, .has_tokens = true},
    {.name = "CC1nativeVlan", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1nativeVlan), .present = bit(offsetof(BaseCEPortType_2, has), 3),
     .decode = child<XmlDT_EsdDevVlanType>, .tokens = &tokens::EsdDevVlanType, .has_tokens = true},
    {.name = "nativeVlan", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, nativeVlan), .present = bit(offsetof(BaseCEPortType_2, has), 4),
     .decode = child<XmlDT_EsdDevVlanType>, .tokens = &tokens::EsdDevVlanType, .has_tokens = true},
    {.name = "CC0portSpeed", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0portSpeed), .present = bit(offsetof(BaseCEPortType_2, has), 5),
     .decode = child<XmlDT_PortSpeedType>, .tokens = &tokens::PortSpeedType, .has_tokens = true},
    {.name = "CC1portSpeed", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1portSpeed), .present = bit(offsetof(BaseCEPortType_2, has), 6),
     .decode = child<XmlDT_PortSpeedType>, .tokens = &tokens::PortSpeedType, .has_tokens = true},
    {.name = "portSpeed", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, portSpeed), .present = bit(offsetof(BaseCEPortType_2, has), 7),
     .decode = child<XmlDT_PortSpeedType>, .tokens = &tokens::PortSpeedType, .has_tokens = true},
    {.name = "CC0portMode", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0portMode), .present = bit(offsetof(BaseCEPortType_2, has), 8),
     .decode = child<XmlDT_PortModeType>, .tokens = &tokens::PortModeType, .has_tokens = true},
    {.name = "CC1portMode", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1portMode), .present = bit(offsetof(BaseCEPortType_2, has), 9),
     .decode = child<XmlDT_PortModeType>, .tokens = &tokens::PortModeType, .has_tokens = true},
    {.name = "portMode", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, portMode), .present = bit(offsetof(BaseCEPortType_2, has), 10),
     .decode = child<XmlDT_PortModeType>, .tokens = &tokens::PortModeType, .has_tokens = true},
    {.name = "portAdminState", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, portAdminState),
     .present = bit(offsetof(BaseCEPortType_2, has), 11), .decode = child<XmlDT_PortState>,
     .tokens = &tokens::PortState, .has_tokens = true},
    {.name = "CC0mlapFlags", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0mlapFlags), .present = bit(offsetof(BaseCEPortType_2, has), 12),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "CC1mlapFlags", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1mlapFlags), .present = bit(offsetof(BaseCEPortType_2, has), 13),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "mlapFlags", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, mlapFlags), .present = bit(offsetof(BaseCEPortType_2, has), 14),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "serdes", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType_2, serdes), .decode = child<XmlDT_SerdesParamsType>,
     .tokens = &tokens::SerdesParamsType, .has_tokens = true},
    {.name = "CC0portDest", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0portDest), .present = bit(offsetof(BaseCEPortType_2, has), 15),
     .decode = child<XmlDT_EsdPortDestType>, .tokens = &tokens::EsdPortDestType, .has_tokens = true},
    {.name = "CC0PortDestName", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC0PortDestName),
     .present = bit(offsetof(BaseCEPortType_2, has), 16)},
    {.name = "CC1portDest", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1portDest), .present = bit(offsetof(BaseCEPortType_2, has), 17),
     .decode = child<XmlDT_EsdPortDestType>, .tokens = &tokens::EsdPortDestType, .has_tokens = true},
    {.name = "CC1PortDestName", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, CC1PortDestName),
     .present = bit(offsetof(BaseCEPortType_2, has), 18)},
    {.name = "portDest", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, portDest), .present = bit(offsetof(BaseCEPortType_2, has), 19),
     .decode = child<XmlDT_EsdPortDestType>, .tokens = &tokens::EsdPortDestType, .has_tokens = true},
    {.name = "PortDestName", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, PortDestName), .present = bit(offsetof(BaseCEPortType_2, has), 20)},
    {.name = "policingPortMap", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType_2, policingPortMap)},
    {.name = "mdioChannel", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType_2, mdioChannel)},
    {.name = "mdioClkSpeed", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, mdioClkSpeed), .present = bit(offsetof(BaseCEPortType_2, has), 21),
     .decode = child<XmlDT_MdioSpeed>, .tokens = &tokens::MdioSpeed, .has_tokens = true},
    {.name = "LocalSwitching", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, LocalSwitching),
     .present = bit(offsetof(BaseCEPortType_2, has), 22), .decode = child<XmlDT_LocalSwitching>,
     .tokens = &tokens::LocalSwitching, .has_tokens = true},
    {.name = "sfpController", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, sfpController), .present = bit(offsetof(BaseCEPortType_2, has), 23),
     .decode = child<XmlDT_SfpControllerType>, .tokens = &tokens::SfpControllerType, .has_tokens = true},
    {.name = "phyType", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, phyType), .present = bit(offsetof(BaseCEPortType_2, has), 24),
     .decode = child<XmlDT_PhyType>, .tokens = &tokens::PhyType, .has_tokens = true},
    {.name = "led", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseCEPortType_2, led), .node_size = sizeof(BaseLEDType),
     .init = init<Init_BaseLEDType>, .decode = child<XmlDT_BaseLEDType>},
    {.name = "container", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType_2, container), .present = bit(offsetof(BaseCEPortType_2, has), 25),
     .decode = child<XmlDT_BaseContainerType_derivations>},
};
constexpr auto BaseCEPortType_2_elements = element_rows(BaseCEPortType_2_items);
constexpr auto BaseCEPortType_2_sequence = sequence_rows(BaseCEPortType_2_items);
constexpr auto BaseCEPortType_2_values = plain_rows(BaseCEPortType_2_items);
constexpr type_description BaseCEPortType_2_description = {
    .name = "BaseCEPortType_2",
    .first_step = 33000,
    .is_extension = true,
    .content = content_of(BaseCEPortType_2_items, BaseCEPortType_2_sequence, BaseCEPortType_2_elements,
        BaseCEPortType_2_values),
};

constexpr auto BaseCEPortType_own_attributes = std::to_array<item>({
    {.name = "portUsage", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType, portUsage), .decode = child<XmlDT_PortUsageType>,
     .tokens = &tokens::PortUsageType, .has_tokens = true},
});
constexpr auto BaseCEPortType_attributes = joined(BaseEntityType_attributes, BaseCEPortType_own_attributes);
constexpr auto BaseCEPortType_attribute_names = attribute_rows(BaseCEPortType_attributes);
constexpr auto BaseCEPortType_attribute_values = plain_rows(BaseCEPortType_attributes);
constexpr item BaseCEPortType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseCEPortType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseCEPortType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseCEPortType, ext), .present = bit(offsetof(BaseCEPortType, has), 0),
     .decode = child<XmlDT_BaseCEPortType_2>},
};
constexpr auto BaseCEPortType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseCEPortType_2_items>());
constexpr auto BaseCEPortType_sequence = sequence_rows(BaseCEPortType_items);
constexpr auto BaseCEPortType_values = plain_rows(BaseCEPortType_items);
constexpr auto BaseCEPortType_inherited = joined(BaseEntityType_inherited,
    base_group_rows(BaseCEPortType_2_items));
constexpr type_description BaseCEPortType_description = {
    .name = "BaseCEPortType",
    .first_step = 32000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseCEPortType_attributes, BaseCEPortType_attribute_names,
        BaseCEPortType_attribute_values),
    .content = content_of(BaseCEPortType_items, BaseCEPortType_sequence, BaseCEPortType_elements,
        BaseCEPortType_values),
};

constexpr auto BaseCESwitchType_2_port_own_attributes = std::to_array<item>({
    {.name = "facePlatePort", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(BaseCESwitchType_2_port, facePlatePort)},
});
constexpr auto BaseCESwitchType_2_port_attributes = joined(BaseCEPortType_attributes,
    BaseCESwitchType_2_port_own_attributes);
constexpr auto BaseCESwitchType_2_port_attribute_names = attribute_rows(BaseCESwitchType_2_port_attributes);
constexpr auto BaseCESwitchType_2_port_attribute_values = plain_rows(BaseCESwitchType_2_port_attributes);
constexpr item BaseCESwitchType_2_port_items[] = {
    {.name = "BaseCEPortType", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseCESwitchType_2_port, base), .decode = child<XmlDT_BaseCEPortType>},
};
constexpr auto BaseCESwitchType_2_port_elements = BaseCEPortType_inherited;
constexpr auto BaseCESwitchType_2_port_sequence = sequence_rows(BaseCESwitchType_2_port_items);
constexpr auto BaseCESwitchType_2_port_values = plain_rows(BaseCESwitchType_2_port_items);
constexpr type_description BaseCESwitchType_2_port_description = {
    .name = "BaseCESwitchType_2_port",
    .first_step = 34000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseCESwitchType_2_port_attributes, BaseCESwitchType_2_port_attribute_names,
        BaseCESwitchType_2_port_attribute_values),
    .content = content_of(BaseCESwitchType_2_port_items, BaseCESwitchType_2_port_sequence,
        BaseCESwitchType_2_port_elements, BaseCESwitchType_2_port_values),
};

constexpr item BaseFPGAType_2_items[] = {
    {.name = "fieldUpgradable", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(BaseFPGAType_2, fieldUpgradable)},
    {.name = "size", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseFPGAType_2, size)},
    {.name = "hardwareVersionMajor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, hardwareVersionMajor),
     .present = bit(offsetof(BaseFPGAType_2, has), 0)},
    {.name = "hardwareVersionMinor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, hardwareVersionMinor),
     .present = bit(offsetof(BaseFPGAType_2, has), 1)},
    {.name = "minimumHardwareVersionMajor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, minimumHardwareVersionMajor),
     .present = bit(offsetof(BaseFPGAType_2, has), 2)},
    {.name = "minimumHardwareVersionMinor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, minimumHardwareVersionMinor),
     .present = bit(offsetof(BaseFPGAType_2, has), 3)},
    {.name = "firmwareVersionMajor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, firmwareVersionMajor),
     .present = bit(offsetof(BaseFPGAType_2, has), 4)},
    {.name = "firmwareVersionMinor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, firmwareVersionMinor),
     .present = bit(offsetof(BaseFPGAType_2, has), 5)},
    {.name = "minimumFirmwareVersionMajor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, minimumFirmwareVersionMajor),
     .present = bit(offsetof(BaseFPGAType_2, has), 6)},
    {.name = "minimumFirmwareVersionMinor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, minimumFirmwareVersionMinor),
     .present = bit(offsetof(BaseFPGAType_2, has), 7)},
    {.name = "installedFirmwareVersionMajor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, installedFirmwareVersionMajor),
     .present = bit(offsetof(BaseFPGAType_2, has), 8)},
    {.name = "installedFirmwareVersionMinor", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, installedFirmwareVersionMinor),
     .present = bit(offsetof(BaseFPGAType_2, has), 9)},
    {.name = "inUpgradeProcess", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, inUpgradeProcess), .present = bit(offsetof(BaseFPGAType_2, has), 10)},
    {.name = "configSpiFlash", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, configSpiFlash), .present = bit(offsetof(BaseFPGAType_2, has), 11)},
    {.name = "secureBootType", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType_2, secureBootType), .present = bit(offsetof(BaseFPGAType_2, has), 12)},
};
constexpr auto BaseFPGAType_2_elements = element_rows(BaseFPGAType_2_items);
constexpr auto BaseFPGAType_2_sequence = sequence_rows(BaseFPGAType_2_items);
constexpr auto BaseFPGAType_2_values = plain_rows(BaseFPGAType_2_items);
constexpr type_description BaseFPGAType_2_description = {
    .name = "BaseFPGAType_2",
    .first_step = 36000,
    .is_extension = true,
    .content = content_of(BaseFPGAType_2_items, BaseFPGAType_2_sequence, BaseFPGAType_2_elements,
        BaseFPGAType_2_values),
};

constexpr item BaseFPGAType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseFPGAType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseFPGAType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseFPGAType, ext), .present = bit(offsetof(BaseFPGAType, has), 0),
     .decode = child<XmlDT_BaseFPGAType_2>},
};
constexpr auto BaseFPGAType_elements = joined(BaseEntityType_inherited, leading_rows<BaseFPGAType_2_items>());
constexpr auto BaseFPGAType_sequence = sequence_rows(BaseFPGAType_items);
constexpr auto BaseFPGAType_values = plain_rows(BaseFPGAType_items);
constexpr type_description BaseFPGAType_description = {
    .name = "BaseFPGAType",
    .first_step = 35000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseFPGAType_items, BaseFPGAType_sequence, BaseFPGAType_elements,
        BaseFPGAType_values),
};

constexpr item BaseIdEEPROMType_2_items[] = {
    {.name = "hardwareVersion", .kind = item_kind::uint8, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, hardwareVersion),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 0)},
    {.name = "size", .kind = item_kind::uint16, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, size), .present = bit(offsetof(BaseIdEEPROMType_2, has), 1)},
    {.name = "CLEICodeNum", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, CLEICodeNum),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 2)},
    {.name = "manufacturerID", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, manufacturerID),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 3)},
    {.name = "vendorName", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, vendorName),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 4)},
    {.name = "vendorPN", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, vendorPN), .present = bit(offsetof(BaseIdEEPROMType_2, has), 5)},
    {.name = "PCBRevNumber", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, PCBRevNumber),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 6)},
    {.name = "PCBSerialNumber", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, PCBSerialNumber),
     .present = bit(offsetof(BaseIdEEPROMType_2, has), 7)},
    {.name = "yearMD", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, yearMD), .present = bit(offsetof(BaseIdEEPROMType_2, has), 8)},
    {.name = "monthMD", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, monthMD), .present = bit(offsetof(BaseIdEEPROMType_2, has), 9)},
    {.name = "dayMD", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, dayMD), .present = bit(offsetof(BaseIdEEPROMType_2, has), 10)},
    {.name = "lot", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, lot), .present = bit(offsetof(BaseIdEEPROMType_2, has), 11)},
    {.name = "checkSum", .kind = item_kind::int8, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, checkSum), .present = bit(offsetof(BaseIdEEPROMType_2, has), 12)},
    {.name = "PID", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, PID), .present = bit(offsetof(BaseIdEEPROMType_2, has), 13)},
    {.name = "VID", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, VID), .present = bit(offsetof(BaseIdEEPROMType_2, has), 14)},
    {.name = "PN", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, PN), .present = bit(offsetof(BaseIdEEPROMType_2, has), 15)},
    {.name = "rev", .kind = item_kind::text, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, rev), .present = bit(offsetof(BaseIdEEPROMType_2, has), 16)},
    {.name = "boardID", .kind = item_kind::uint16, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType_2, boardID), .present = bit(offsetof(BaseIdEEPROMType_2, has), 17)},
};
constexpr auto BaseIdEEPROMType_2_elements = element_rows(BaseIdEEPROMType_2_items);
constexpr auto BaseIdEEPROMType_2_sequence = sequence_rows(BaseIdEEPROMType_2_items);
constexpr auto BaseIdEEPROMType_2_values = plain_rows(BaseIdEEPROMType_2_items);
constexpr type_description BaseIdEEPROMType_2_description = {
    .name = "BaseIdEEPROMType_2",
    .first_step = 38000,
    .is_extension = true,
    .content = content_of(BaseIdEEPROMType_2_items, BaseIdEEPROMType_2_sequence, BaseIdEEPROMType_2_elements,
        BaseIdEEPROMType_2_values),
};

constexpr auto BaseIdEEPROMType_own_attributes = std::to_array<item>({
    {.name = "eepromType", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseIdEEPROMType, eepromType), .decode = child<XmlDT_EepromUsageType>,
     .tokens = &tokens::EepromUsageType, .has_tokens = true},
});
constexpr auto BaseIdEEPROMType_attributes = joined(BaseEntityType_attributes,
    BaseIdEEPROMType_own_attributes);
constexpr auto BaseIdEEPROMType_attribute_names = attribute_rows(BaseIdEEPROMType_attributes);
constexpr auto BaseIdEEPROMType_attribute_values = plain_rows(BaseIdEEPROMType_attributes);
constexpr item BaseIdEEPROMType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseIdEEPROMType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseIdEEPROMType, ext), .present = bit(offsetof(BaseIdEEPROMType, has), 0),
     .decode = child<XmlDT_BaseIdEEPROMType_2>},
};
constexpr auto BaseIdEEPROMType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseIdEEPROMType_2_items>());
constexpr auto BaseIdEEPROMType_sequence = sequence_rows(BaseIdEEPROMType_items);
constexpr auto BaseIdEEPROMType_values = plain_rows(BaseIdEEPROMType_items);
constexpr type_description BaseIdEEPROMType_description = {
    .name = "BaseIdEEPROMType",
    .first_step = 37000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseIdEEPROMType_attributes, BaseIdEEPROMType_attribute_names,
        BaseIdEEPROMType_attribute_values),
    .content = content_of(BaseIdEEPROMType_items, BaseIdEEPROMType_sequence, BaseIdEEPROMType_elements,
        BaseIdEEPROMType_values),
};

constexpr item BaseStorageType_2_items[] = {
    {.name = "maxCapacity", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageType_2, maxCapacity)},
    {.name = "speed", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseStorageType_2, speed), .present = bit(offsetof(BaseStorageType_2, has), 0)},
    {.name = "storageSpeedUnit", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseStorageType_2, storageSpeedUnit),
     .present = bit(offsetof(BaseStorageType_2, has), 1), .decode = child<XmlDT_MemAccessSpeedUnit>,
     .tokens = &tokens::MemAccessSpeedUnit, .has_tokens = true},
    {.name = "fpga", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseStorageType_2, fpga), .node_size = sizeof(BaseFPGAType),
     .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
    {.name = "eeprom", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseStorageType_2, eeprom), .node_size = sizeof(BaseIdEEPROMType),
     .init = init<Init_BaseIdEEPROMType>, .decode = child<XmlDT_BaseIdEEPROMType>},
};
constexpr auto BaseStorageType_2_elements = element_rows(BaseStorageType_2_items);
constexpr auto BaseStorageType_2_sequence = sequence_rows(BaseStorageType_2_items);
constexpr auto BaseStorageType_2_values = plain_rows(BaseStorageType_2_items);
constexpr type_description BaseStorageType_2_description = {
    .name = "BaseStorageType_2",
    .first_step = 40000,
    .is_extension = true,
    .content = content_of(BaseStorageType_2_items, BaseStorageType_2_sequence, BaseStorageType_2_elements,
        BaseStorageType_2_values),
};

constexpr item BaseStorageType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseStorageType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseStorageType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseStorageType, ext), .present = bit(offsetof(BaseStorageType, has), 0),
     .decode = child<XmlDT_BaseStorageType_2>},
};
constexpr auto BaseStorageType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseStorageType_2_items>());
constexpr auto BaseStorageType_sequence = sequence_rows(BaseStorageType_items);
constexpr auto BaseStorageType_values = plain_rows(BaseStorageType_items);
constexpr auto BaseStorageType_inherited = joined(BaseEntityType_inherited,
    base_group_rows(BaseStorageType_2_items));
constexpr type_description BaseStorageType_description = {
    .name = "BaseStorageType",
    .first_step = 39000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseStorageType_items, BaseStorageType_sequence, BaseStorageType_elements,
        BaseStorageType_values),
};

constexpr item BaseSpiFlash_2_items[] = {
    {.name = "channel", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseSpiFlash_2, channel)},
    {.name = "blockSizeKB", .kind = item_kind::octets, .occurs = occurrence::required,
     .offset = offsetof(BaseSpiFlash_2, blockSizeKB)},
    {.name = "memoryRow", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseSpiFlash_2, memoryRow), .node_size = sizeof(BaseStorageMemoryMap),
     .init = init<Init_BaseStorageMemoryMap>, .decode = child<XmlDT_BaseStorageMemoryMap>},
};
constexpr auto BaseSpiFlash_2_elements = element_rows(BaseSpiFlash_2_items);
constexpr auto BaseSpiFlash_2_sequence = sequence_rows(BaseSpiFlash_2_items);
constexpr auto BaseSpiFlash_2_values = plain_rows(BaseSpiFlash_2_items);
constexpr type_description BaseSpiFlash_2_description = {
    .name = "BaseSpiFlash_2",
    .first_step = 42000,
    .is_extension = true,
    .content = content_of(BaseSpiFlash_2_items, BaseSpiFlash_2_sequence, BaseSpiFlash_2_elements,
        BaseSpiFlash_2_values),
};

constexpr item BaseSpiFlash_items[] = {
    {.name = "BaseStorageType", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseSpiFlash, base), .decode = child<XmlDT_BaseStorageType>},
    {.name = "BaseSpiFlash_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseSpiFlash, ext), .present = bit(offsetof(BaseSpiFlash, has), 0),
     .decode = child<XmlDT_BaseSpiFlash_2>},
};
constexpr auto BaseSpiFlash_elements = joined(BaseStorageType_inherited,
    leading_rows<BaseSpiFlash_2_items>());
constexpr auto BaseSpiFlash_sequence = sequence_rows(BaseSpiFlash_items);
constexpr auto BaseSpiFlash_values = plain_rows(BaseSpiFlash_items);
constexpr type_description BaseSpiFlash_description = {
    .name = "BaseSpiFlash",
    .first_step = 41000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseSpiFlash_items, BaseSpiFlash_sequence, BaseSpiFlash_elements,
        BaseSpiFlash_values),
};

constexpr item BaseSensorType_2_items[] = {
    {.name = "threshold", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, threshold), .present = bit(offsetof(BaseSensorType_2, has), 0),
     .decode = child<XmlDT_BaseThresholdType>},
    {.name = "value", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseSensorType_2, value)},
    {.name = "lastValue", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseSensorType_2, lastValue)},
    {.name = "pd_data1", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, pd_data1), .present = bit(offsetof(BaseSensorType_2, has), 1),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "pd_data2", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, pd_data2), .present = bit(offsetof(BaseSensorType_2, has), 2),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "powerdomain", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, powerdomain), .present = bit(offsetof(BaseSensorType_2, has), 3),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "hwPollRegisterOffset", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, hwPollRegisterOffset),
     .present = bit(offsetof(BaseSensorType_2, has), 4), .decode = child<XmlDT_Hex32BitHexAddressType>,
     .capacity = sizeof Hex32BitHexAddressType::octets},
    {.name = "isCoreAutopolled", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, isCoreAutopolled),
     .present = bit(offsetof(BaseSensorType_2, has), 5)},
    {.name = "sensorDataLength", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, sensorDataLength),
     .present = bit(offsetof(BaseSensorType_2, has), 6)},
    {.name = "unit", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseSensorType_2, unit), .decode = child<XmlDT_BaseSensorType_2_unit>,
     .tokens = &tokens::BaseSensorType_2_unit, .has_tokens = true},
    {.name = "userDefinedUnit", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, userDefinedUnit),
     .present = bit(offsetof(BaseSensorType_2, has), 7),
     .decode = child<XmlDT_BaseSensorType_2_userDefinedUnit>,
     .tokens = &tokens::BaseSensorType_2_userDefinedUnit, .has_tokens = true},
    {.name = "scale", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseSensorType_2, scale), .decode = child<XmlDT_BaseSensorType_2_scale>,
     .tokens = &tokens::BaseSensorType_2_scale, .has_tokens = true},
    {.name = "precision", .kind = item_kind::int32, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType_2, precision), .present = bit(offsetof(BaseSensorType_2, has), 8)},
};
constexpr auto BaseSensorType_2_elements = element_rows(BaseSensorType_2_items);
constexpr auto BaseSensorType_2_sequence = sequence_rows(BaseSensorType_2_items);
constexpr auto BaseSensorType_2_values = plain_rows(BaseSensorType_2_items);
constexpr type_description BaseSensorType_2_description = {
    .name = "BaseSensorType_2",
    .first_step = 44000,
    .is_extension = true,
    .content = content_of(BaseSensorType_2_items, BaseSensorType_2_sequence, BaseSensorType_2_elements,
        BaseSensorType_2_values),
};

constexpr auto BaseSensorType_own_attributes = std::to_array<item>({
    {.name = "isMarginable", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType, isMarginable), .present = bit(offsetof(BaseSensorType, has), 1)},
    {.name = "isRov", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType, isRov), .present = bit(offsetof(BaseSensorType, has), 2)},
    {.name = "marginRegister", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType, marginRegister), .present = bit(offsetof(BaseSensorType, has), 3),
     .decode = child<XmlDT_Hex32BitHexAddressType>, .capacity = sizeof Hex32BitHexAddressType::octets},
});
constexpr auto BaseSensorType_attributes = joined(BaseEntityType_attributes, BaseSensorType_own_attributes);
constexpr auto BaseSensorType_attribute_names = attribute_rows(BaseSensorType_attributes);
constexpr auto BaseSensorType_attribute_values = plain_rows(BaseSensorType_attributes);
constexpr item BaseSensorType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseSensorType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseSensorType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseSensorType, ext), .present = bit(offsetof(BaseSensorType, has), 0),
     .decode = child<XmlDT_BaseSensorType_2>},
};
constexpr auto BaseSensorType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseSensorType_2_items>());
constexpr auto BaseSensorType_sequence = sequence_rows(BaseSensorType_items);
constexpr auto BaseSensorType_values = plain_rows(BaseSensorType_items);
constexpr type_description BaseSensorType_description = {
    .name = "BaseSensorType",
    .first_step = 43000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseSensorType_attributes, BaseSensorType_attribute_names,
        BaseSensorType_attribute_values),
    .content = content_of(BaseSensorType_items, BaseSensorType_sequence, BaseSensorType_elements,
        BaseSensorType_values),
};

constexpr item I2cChipType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(I2cChipType, base), .decode = child<XmlDT_BaseEntityType>},
};
constexpr auto I2cChipType_elements = BaseEntityType_inherited;
constexpr auto I2cChipType_sequence = sequence_rows(I2cChipType_items);
constexpr auto I2cChipType_values = plain_rows(I2cChipType_items);
constexpr type_description I2cChipType_description = {
    .name = "I2cChipType",
    .first_step = 45000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(I2cChipType_items, I2cChipType_sequence, I2cChipType_elements, I2cChipType_values),
};

constexpr item BasePCIeSwitchType_2_items[] = {
    {.name = "configGen", .kind = item_kind::simple, .occurs = occurrence::repeated,
     .offset = offsetof(BasePCIeSwitchType_2, configGen), .node_size = sizeof(uint32_t),
     .init = init<clear_code>, .decode = child<XmlDT_PciGen>},
    {.name = "sensor", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIeSwitchType_2, sensor), .present = bit(offsetof(BasePCIeSwitchType_2, has), 0),
     .decode = child<XmlDT_BaseSensorType>},
    {.name = "fpga", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BasePCIeSwitchType_2, fpga), .node_size = sizeof(BaseFPGAType),
     .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
};
constexpr auto BasePCIeSwitchType_2_elements = element_rows(BasePCIeSwitchType_2_items);
constexpr auto BasePCIeSwitchType_2_sequence = sequence_rows(BasePCIeSwitchType_2_items);
constexpr auto BasePCIeSwitchType_2_values = plain_rows(BasePCIeSwitchType_2_items);
constexpr type_description BasePCIeSwitchType_2_description = {
    .name = "BasePCIeSwitchType_2",
    .first_step = 47000,
    .is_extension = true,
    .content = content_of(BasePCIeSwitchType_2_items, BasePCIeSwitchType_2_sequence,
        BasePCIeSwitchType_2_elements, BasePCIeSwitchType_2_values),
};

constexpr item BasePCIeSwitchType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIeSwitchType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BasePCIeSwitchType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BasePCIeSwitchType, ext), .present = bit(offsetof(BasePCIeSwitchType, has), 0),
     .decode = child<XmlDT_BasePCIeSwitchType_2>},
};
constexpr auto BasePCIeSwitchType_elements = joined(BaseEntityType_inherited,
    leading_rows<BasePCIeSwitchType_2_items>());
constexpr auto BasePCIeSwitchType_sequence = sequence_rows(BasePCIeSwitchType_items);
constexpr auto BasePCIeSwitchType_values = plain_rows(BasePCIeSwitchType_items);
constexpr type_description BasePCIeSwitchType_description = {
    .name = "BasePCIeSwitchType",
    .first_step = 46000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BasePCIeSwitchType_items, BasePCIeSwitchType_sequence, BasePCIeSwitchType_elements,
        BasePCIeSwitchType_values),
};

constexpr item BaseVoltageMarginType_2_items[] = {
    {.name = "highValue", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseVoltageMarginType_2, highValue)},
    {.name = "lowValue", .kind = item_kind::int32, .occurs = occurrence::required,
     .offset = offsetof(BaseVoltageMarginType_2, lowValue)},
    {.name = "operation", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseVoltageMarginType_2, operation),
     .decode = child<XmlDT_BaseVoltageMarginType_2_operation>,
     .tokens = &tokens::BaseVoltageMarginType_2_operation, .has_tokens = true},
};
constexpr auto BaseVoltageMarginType_2_elements = element_rows(BaseVoltageMarginType_2_items);
constexpr auto BaseVoltageMarginType_2_sequence = sequence_rows(BaseVoltageMarginType_2_items);
constexpr auto BaseVoltageMarginType_2_values = plain_rows(BaseVoltageMarginType_2_items);
constexpr type_description BaseVoltageMarginType_2_description = {
    .name = "BaseVoltageMarginType_2",
    .first_step = 49000,
    .is_extension = true,
    .content = content_of(BaseVoltageMarginType_2_items, BaseVoltageMarginType_2_sequence,
        BaseVoltageMarginType_2_elements, BaseVoltageMarginType_2_values),
};

constexpr item BaseVoltageMarginType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseVoltageMarginType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseVoltageMarginType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseVoltageMarginType, ext), .present = bit(offsetof(BaseVoltageMarginType, has), 0),
     .decode = child<XmlDT_BaseVoltageMarginType_2>},
};
constexpr auto BaseVoltageMarginType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseVoltageMarginType_2_items>());
constexpr auto BaseVoltageMarginType_sequence = sequence_rows(BaseVoltageMarginType_items);
constexpr auto BaseVoltageMarginType_values = plain_rows(BaseVoltageMarginType_items);
constexpr type_description BaseVoltageMarginType_description = {
    .name = "BaseVoltageMarginType",
    .first_step = 48000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseVoltageMarginType_items, BaseVoltageMarginType_sequence,
        BaseVoltageMarginType_elements, BaseVoltageMarginType_values),
};

constexpr item BaseProcessorType_2_items[] = {
    {.name = "cores", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType_2, cores)},
    {.name = "clockSpeed", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType_2, clockSpeed)},
    {.name = "busSpeed", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, busSpeed),
     .present = bit(offsetof(BaseProcessorType_2, has), 0)},
    {.name = "busSpeedUnit", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, busSpeedUnit),
     .present = bit(offsetof(BaseProcessorType_2, has), 1), .decode = child<XmlDT_CyclesPerSecUnit>,
     .tokens = &tokens::CyclesPerSecUnit, .has_tokens = true},
    {.name = "cpuSpeed", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, cpuSpeed),
     .present = bit(offsetof(BaseProcessorType_2, has), 2)},
    {.name = "cpuSpeedUnit", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, cpuSpeedUnit),
     .present = bit(offsetof(BaseProcessorType_2, has), 3), .decode = child<XmlDT_CyclesPerSecUnit>,
     .tokens = &tokens::CyclesPerSecUnit, .has_tokens = true},
    {.name = "oscillationSpeed", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, oscillationSpeed),
     .present = bit(offsetof(BaseProcessorType_2, has), 4)},
    {.name = "oscillationSpeedUnit", .kind = item_kind::simple, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType_2, oscillationSpeedUnit),
     .present = bit(offsetof(BaseProcessorType_2, has), 5), .decode = child<XmlDT_CyclesPerSecUnit>,
     .tokens = &tokens::CyclesPerSecUnit, .has_tokens = true},
    {.name = "cacheSizeL1", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType_2, cacheSizeL1)},
    {.name = "cacheSizeL2", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType_2, cacheSizeL2)},
    {.name = "cacheSizeL3", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType_2, cacheSizeL3)},
};
constexpr auto BaseProcessorType_2_elements = element_rows(BaseProcessorType_2_items);
constexpr auto BaseProcessorType_2_sequence = sequence_rows(BaseProcessorType_2_items);
constexpr auto BaseProcessorType_2_values = plain_rows(BaseProcessorType_2_items);
constexpr type_description BaseProcessorType_2_description = {
    .name = "BaseProcessorType_2",
    .first_step = 51000,
    .is_extension = true,
    .content = content_of(BaseProcessorType_2_items, BaseProcessorType_2_sequence,
        BaseProcessorType_2_elements, BaseProcessorType_2_values),
};

constexpr item BaseProcessorType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseProcessorType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseProcessorType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseProcessorType, ext), .present = bit(offsetof(BaseProcessorType, has), 0),
     .decode = child<XmlDT_BaseProcessorType_2>},
};
constexpr auto BaseProcessorType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseProcessorType_2_items>());
constexpr auto BaseProcessorType_sequence = sequence_rows(BaseProcessorType_items);
constexpr auto BaseProcessorType_values = plain_rows(BaseProcessorType_items);
constexpr type_description BaseProcessorType_description = {
    .name = "BaseProcessorType",
    .first_step = 50000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseProcessorType_items, BaseProcessorType_sequence, BaseProcessorType_elements,
        BaseProcessorType_values),
};

constexpr item BaseMemoryType_2_items[] = {
    {.name = "capacity", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseMemoryType_2, capacity)},
    {.name = "serialNumber", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseMemoryType_2, serialNumber)},
    {.name = "firmwareVersion", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BaseMemoryType_2, firmwareVersion)},
};
constexpr auto BaseMemoryType_2_elements = element_rows(BaseMemoryType_2_items);
constexpr auto BaseMemoryType_2_sequence = sequence_rows(BaseMemoryType_2_items);
constexpr auto BaseMemoryType_2_values = plain_rows(BaseMemoryType_2_items);
constexpr type_description BaseMemoryType_2_description = {
    .name = "BaseMemoryType_2",
    .first_step = 53000,
    .is_extension = true,
    .content = content_of(BaseMemoryType_2_items, BaseMemoryType_2_sequence, BaseMemoryType_2_elements,
        BaseMemoryType_2_values),
};

constexpr item BaseMemoryType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseMemoryType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseMemoryType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseMemoryType, ext), .present = bit(offsetof(BaseMemoryType, has), 0),
     .decode = child<XmlDT_BaseMemoryType_2>},
};
constexpr auto BaseMemoryType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseMemoryType_2_items>());
constexpr auto BaseMemoryType_sequence = sequence_rows(BaseMemoryType_items);
constexpr auto BaseMemoryType_values = plain_rows(BaseMemoryType_items);
constexpr type_description BaseMemoryType_description = {
    .name = "BaseMemoryType",
    .first_step = 52000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseMemoryType_items, BaseMemoryType_sequence, BaseMemoryType_elements,
        BaseMemoryType_values),
};

constexpr item BaseCESwitchType_2_items[] = {
    {.name = "maxPorts", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseCESwitchType_2, maxPorts), .present = bit(offsetof(BaseCESwitchType_2, has), 0)},
    {.name = "cores", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BaseCESwitchType_2, cores)},
    {.name = "port", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseCESwitchType_2, port), .node_size = sizeof(BaseCESwitchType_2_port),
     .init = init<Init_BaseCESwitchType_2_port>, .decode = child<XmlDT_BaseCESwitchType_2_port>},
    {.name = "fpga", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseCESwitchType_2, fpga), .node_size = sizeof(BaseFPGAType),
     .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
};
constexpr auto BaseCESwitchType_2_elements = element_rows(BaseCESwitchType_2_items);
constexpr auto BaseCESwitchType_2_sequence = sequence_rows(BaseCESwitchType_2_items);
constexpr auto BaseCESwitchType_2_values = plain_rows(BaseCESwitchType_2_items);
constexpr type_description BaseCESwitchType_2_description = {
    .name = "BaseCESwitchType_2",
    .first_step = 55000,
    .is_extension = true,
    .content = content_of(BaseCESwitchType_2_items, BaseCESwitchType_2_sequence, BaseCESwitchType_2_elements,
        BaseCESwitchType_2_values),
};

constexpr item BaseCESwitchType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseCESwitchType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseCESwitchType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseCESwitchType, ext), .present = bit(offsetof(BaseCESwitchType, has), 0),
     .decode = child<XmlDT_BaseCESwitchType_2>},
};
constexpr auto BaseCESwitchType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseCESwitchType_2_items>());
constexpr auto BaseCESwitchType_sequence = sequence_rows(BaseCESwitchType_items);
constexpr auto BaseCESwitchType_values = plain_rows(BaseCESwitchType_items);
constexpr type_description BaseCESwitchType_description = {
    .name = "BaseCESwitchType",
    .first_step = 54000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseCESwitchType_items, BaseCESwitchType_sequence, BaseCESwitchType_elements,
        BaseCESwitchType_values),
};

constexpr item BaseKestoType_2_items[] = {
    {.name = "isValidated", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseKestoType_2, isValidated), .decode = child<XmlDT_BaseKestoType_2_isValidated>,
     .tokens = &tokens::BaseKestoType_2_isValidated, .has_tokens = true},
};
constexpr auto BaseKestoType_2_elements = element_rows(BaseKestoType_2_items);
constexpr auto BaseKestoType_2_sequence = sequence_rows(BaseKestoType_2_items);
constexpr auto BaseKestoType_2_values = plain_rows(BaseKestoType_2_items);
constexpr type_description BaseKestoType_2_description = {
    .name = "BaseKestoType_2",
    .first_step = 57000,
    .is_extension = true,
    .content = content_of(BaseKestoType_2_items, BaseKestoType_2_sequence, BaseKestoType_2_elements,
        BaseKestoType_2_values),
};

constexpr item BaseKestoType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseKestoType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseKestoType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseKestoType, ext), .present = bit(offsetof(BaseKestoType, has), 0),
     .decode = child<XmlDT_BaseKestoType_2>},
};
constexpr auto BaseKestoType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseKestoType_2_items>());
constexpr auto BaseKestoType_sequence = sequence_rows(BaseKestoType_items);
constexpr auto BaseKestoType_values = plain_rows(BaseKestoType_items);
constexpr type_description BaseKestoType_description = {
    .name = "BaseKestoType",
    .first_step = 56000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseKestoType_items, BaseKestoType_sequence, BaseKestoType_elements,
        BaseKestoType_values),
};

constexpr item BasePortType_2_items[] = {
    {.name = "maxBandWidth", .kind = item_kind::int64, .occurs = occurrence::required,
     .offset = offsetof(BasePortType_2, maxBandWidth)},
    {.name = "operatingBandWidth", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(BasePortType_2, operatingBandWidth)},
    {.name = "hwBoardIdentifier", .kind = item_kind::text, .occurs = occurrence::required,
     .offset = offsetof(BasePortType_2, hwBoardIdentifier)},
    {.name = "led", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BasePortType_2, led), .node_size = sizeof(BaseLEDType),
     .init = init<Init_BaseLEDType>, .decode = child<XmlDT_BaseLEDType>},
    {.name = "container", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BasePortType_2, container), .present = bit(offsetof(BasePortType_2, has), 0),
     .decode = child<XmlDT_BaseContainerType_derivations>},
};
constexpr auto BasePortType_2_elements = element_rows(BasePortType_2_items);
constexpr auto BasePortType_2_sequence = sequence_rows(BasePortType_2_items);
constexpr auto BasePortType_2_values = plain_rows(BasePortType_2_items);
constexpr type_description BasePortType_2_description = {
    .name = "BasePortType_2",
    .first_step = 59000,
    .is_extension = true,
    .content = content_of(BasePortType_2_items, BasePortType_2_sequence, BasePortType_2_elements,
        BasePortType_2_values),
};

constexpr auto BasePortType_own_attributes = std::to_array<item>({
    {.name = "portUsage", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BasePortType, portUsage), .decode = child<XmlDT_PortUsageType>,
     .tokens = &tokens::PortUsageType, .has_tokens = true},
});
constexpr auto BasePortType_attributes = joined(BaseEntityType_attributes, BasePortType_own_attributes);
constexpr auto BasePortType_attribute_names = attribute_rows(BasePortType_attributes);
constexpr auto BasePortType_attribute_values = plain_rows(BasePortType_attributes);
constexpr item BasePortType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BasePortType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BasePortType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BasePortType, ext), .present = bit(offsetof(BasePortType, has), 0),
     .decode = child<XmlDT_BasePortType_2>},
};
constexpr auto BasePortType_elements = joined(BaseEntityType_inherited, leading_rows<BasePortType_2_items>());
constexpr auto BasePortType_sequence = sequence_rows(BasePortType_items);
constexpr auto BasePortType_values = plain_rows(BasePortType_items);
constexpr auto BasePortType_inherited = joined(BaseEntityType_inherited,
    base_group_rows(BasePortType_2_items));
constexpr type_description BasePortType_description = {
    .name = "BasePortType",
    .first_step = 58000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BasePortType_attributes, BasePortType_attribute_names,
        BasePortType_attribute_values),
    .content = content_of(BasePortType_items, BasePortType_sequence, BasePortType_elements,
        BasePortType_values),
};

constexpr auto BaseConsoleType_own_attributes = std::to_array<item>({
    {.name = "usage", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(BaseConsoleType, usage), .decode = child<XmlDT_BaseConsoleType_usage>,
     .tokens = &tokens::BaseConsoleType_usage, .has_tokens = true},
});
constexpr auto BaseConsoleType_attributes = joined(BasePortType_attributes, BaseConsoleType_own_attributes);
constexpr auto BaseConsoleType_attribute_names = attribute_rows(BaseConsoleType_attributes);
constexpr auto BaseConsoleType_attribute_values = plain_rows(BaseConsoleType_attributes);
constexpr item BaseConsoleType_items[] = {
    {.name = "BasePortType", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseConsoleType, base), .decode = child<XmlDT_BasePortType>},
};
constexpr auto BaseConsoleType_elements = BasePortType_inherited;
constexpr auto BaseConsoleType_sequence = sequence_rows(BaseConsoleType_items);
constexpr auto BaseConsoleType_values = plain_rows(BaseConsoleType_items);
constexpr type_description BaseConsoleType_description = {
    .name = "BaseConsoleType",
    .first_step = 60000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseConsoleType_attributes, BaseConsoleType_attribute_names,
        BaseConsoleType_attribute_values),
    .content = content_of(BaseConsoleType_items, BaseConsoleType_sequence, BaseConsoleType_elements,
        BaseConsoleType_values),
};

constexpr item BaseModuleType_2_items[] = {
    {.name = "logicalModuleNum", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleType_2, logicalModuleNum),
     .present = bit(offsetof(BaseModuleType_2, has), 0)},
    {.name = "powerInfo", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleType_2, powerInfo), .present = bit(offsetof(BaseModuleType_2, has), 1),
     .decode = child<XmlDT_PowerInfoType>},
    {.name = "fpga", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, fpga), .node_size = sizeof(BaseFPGAType),
     .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
    {.name = "i2c", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, i2c), .node_size = sizeof(I2cChipType),
     .init = init<Init_I2cChipType>, .decode = child<XmlDT_I2cChipType>},
    {.name = "pcieSwitch", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, pcieSwitch), .node_size = sizeof(BasePCIeSwitchType),
     .init = init<Init_BasePCIeSwitchType>, .decode = child<XmlDT_BasePCIeSwitchType>},
    {.name = "sensor", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, sensor), .node_size = sizeof(BaseSensorType),
     .init = init<Init_BaseSensorType>, .decode = child<XmlDT_BaseSensorType>},
    {.name = "voltMargin", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, voltMargin), .node_size = sizeof(BaseVoltageMarginType),
     .init = init<Init_BaseVoltageMarginType>, .decode = child<XmlDT_BaseVoltageMarginType>},
    {.name = "storageSPI", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, storageSPI), .node_size = sizeof(BaseSpiFlash),
     .init = init<Init_BaseSpiFlash>, .decode = child<XmlDT_BaseSpiFlash>},
    {.name = "storageHDD", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, storageHDD), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseStorageType_derivations>, .decode = child<XmlDT_BaseStorageType_derivations>},
    {.name = "processor", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, processor), .node_size = sizeof(BaseProcessorType),
     .init = init<Init_BaseProcessorType>, .decode = child<XmlDT_BaseProcessorType>},
    {.name = "memory", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, memory), .node_size = sizeof(BaseMemoryType),
     .init = init<Init_BaseMemoryType>, .decode = child<XmlDT_BaseMemoryType>},
    {.name = "ceSwitch", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, ceSwitch), .node_size = sizeof(BaseCESwitchType),
     .init = init<Init_BaseCESwitchType>, .decode = child<XmlDT_BaseCESwitchType>},
    {.name = "security", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, security), .node_size = sizeof(BaseKestoType),
     .init = init<Init_BaseKestoType>, .decode = child<XmlDT_BaseKestoType>},
    {.name = "console", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, console), .node_size = sizeof(BaseConsoleType),
     .init = init<Init_BaseConsoleType>, .decode = child<XmlDT_BaseConsoleType>},
    {.name = "module", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, module), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseModuleType_derivations>, .decode = child<XmlDT_BaseModuleType_derivations>},
    {.name = "container", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, container), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseContainerType_derivations>, .decode = child<XmlDT_BaseContainerType_derivations>},
    {.name = "eeprom", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, eeprom), .node_size = sizeof(BaseIdEEPROMType),
     .init = init<Init_BaseIdEEPROMType>, .decode = child<XmlDT_BaseIdEEPROMType>},
    {.name = "fixedPorts", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, fixedPorts), .node_size = sizeof(xb_choice),
     .init = init<Init_BasePortType_derivations>, .decode = child<XmlDT_BasePortType_derivations>},
    {.name = "powerController", .kind = item_kind::int16, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleType_2, powerController),
     .present = bit(offsetof(BaseModuleType_2, has), 2)},
    {.name = "led", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseModuleType_2, led), .node_size = sizeof(BaseLEDType),
     .init = init<Init_BaseLEDType>, .decode = child<XmlDT_BaseLEDType>},
};
constexpr auto BaseModuleType_2_elements = element_rows(BaseModuleType_2_items);
constexpr auto BaseModuleType_2_sequence = sequence_rows(BaseModuleType_2_items);
constexpr auto BaseModuleType_2_values = plain_rows(BaseModuleType_2_items);
constexpr type_description BaseModuleType_2_description = {
    .name = "BaseModuleType_2",
    .first_step = 62000,
    .is_extension = true,
    .content = content_of(BaseModuleType_2_items, BaseModuleType_2_sequence, BaseModuleType_2_elements,
        BaseModuleType_2_values),
};

constexpr item BaseModuleType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseModuleType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleType, ext), .present = bit(offsetof(BaseModuleType, has), 0),
     .decode = child<XmlDT_BaseModuleType_2>},
};
constexpr auto BaseModuleType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseModuleType_2_items>());
constexpr auto BaseModuleType_sequence = sequence_rows(BaseModuleType_items);
constexpr auto BaseModuleType_values = plain_rows(BaseModuleType_items);
constexpr auto BaseModuleType_inherited = joined(BaseEntityType_inherited,
    base_group_rows(BaseModuleType_2_items));
constexpr type_description BaseModuleType_description = {
    .name = "BaseModuleType",
    .first_step = 61000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseModuleType_items, BaseModuleType_sequence, BaseModuleType_elements,
        BaseModuleType_values),
};

constexpr item OpticsType_2_items[] = {
    {.name = "numberChannels", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, numberChannels)},
    {.name = "sensorPerChannel", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, sensorPerChannel)},
    {.name = "xmlInstanceStart", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, xmlInstanceStart)},
    {.name = "sensorLosThresholds", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, sensorLosThresholds), .decode = child<XmlDT_BaseThresholdType>},
    {.name = "sensorBiasThresholds", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, sensorBiasThresholds), .decode = child<XmlDT_BaseThresholdType>},
    {.name = "sensorThermoThresholds", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, sensorThermoThresholds), .decode = child<XmlDT_BaseThresholdType>},
    {.name = "sensorVoltageThresholds", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, sensorVoltageThresholds), .decode = child<XmlDT_BaseThresholdType>},
    {.name = "summaryLosTx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryLosTx)},
    {.name = "summaryFaultTx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryFaultTx)},
    {.name = "summaryBiasTx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryBiasTx)},
    {.name = "summaryModuleTx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryModuleTx)},
    {.name = "summaryLosRx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryLosRx)},
    {.name = "summaryFaultRx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryFaultRx)},
    {.name = "summaryBiasRx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryBiasRx)},
    {.name = "summaryModuleRx", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(OpticsType_2, summaryModuleRx)},
};
constexpr auto OpticsType_2_elements = element_rows(OpticsType_2_items);
constexpr auto OpticsType_2_sequence = sequence_rows(OpticsType_2_items);
constexpr auto OpticsType_2_values = plain_rows(OpticsType_2_items);
constexpr type_description OpticsType_2_description = {
    .name = "OpticsType_2",
    .first_step = 64000,
    .is_extension = true,
    .content = content_of(OpticsType_2_items, OpticsType_2_sequence, OpticsType_2_elements,
        OpticsType_2_values),
};

constexpr item OpticsType_items[] = {
    {.name = "BaseModuleType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(OpticsType, base), .decode = child<XmlDT_BaseModuleType>},
    {.name = "OpticsType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(OpticsType, ext), .present = bit(offsetof(OpticsType, has), 0),
     .decode = child<XmlDT_OpticsType_2>},
};
constexpr auto OpticsType_elements = joined(BaseModuleType_inherited, leading_rows<OpticsType_2_items>());
constexpr auto OpticsType_sequence = sequence_rows(OpticsType_items);
constexpr auto OpticsType_values = plain_rows(OpticsType_items);
constexpr type_description OpticsType_description = {
    .name = "OpticsType",
    .first_step = 63000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(OpticsType_items, OpticsType_sequence, OpticsType_elements, OpticsType_values),
};

constexpr item PEMType_2_items[] = {
    {.name = "fan", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PEMType_2, fan), .node_size = sizeof(FanType), .init = init<Init_FanType>,
     .decode = child<XmlDT_FanType>},
    {.name = "hoursUsage", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(PEMType_2, hoursUsage)},
    {.name = "faultStatus", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PEMType_2, faultStatus), .decode = child<XmlDT_PEMType_2_faultStatus>,
     .tokens = &tokens::PEMType_2_faultStatus, .has_tokens = true},
    {.name = "psmState", .kind = item_kind::simple, .occurs = occurrence::required,
     .offset = offsetof(PEMType_2, psmState), .decode = child<XmlDT_PEMType_2_psmState>,
     .tokens = &tokens::PEMType_2_psmState, .has_tokens = true},
};
constexpr auto PEMType_2_elements = element_rows(PEMType_2_items);
constexpr auto PEMType_2_sequence = sequence_rows(PEMType_2_items);
constexpr auto PEMType_2_values = plain_rows(PEMType_2_items);
constexpr type_description PEMType_2_description = {
    .name = "PEMType_2",
    .first_step = 66000,
    .is_extension = true,
    .content = content_of(PEMType_2_items, PEMType_2_sequence, PEMType_2_elements, PEMType_2_values),
};

constexpr item PEMType_items[] = {
    {.name = "BaseModuleType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(PEMType, base), .decode = child<XmlDT_BaseModuleType>},
    {.name = "PEMType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(PEMType, ext), .present = bit(offsetof(PEMType, has), 0),
     .decode = child<XmlDT_PEMType_2>},
};
constexpr auto PEMType_elements = joined(BaseModuleType_inherited, leading_rows<PEMType_2_items>());
constexpr auto PEMType_sequence = sequence_rows(PEMType_items);
constexpr auto PEMType_values = plain_rows(PEMType_items);
constexpr type_description PEMType_description = {
    .name = "PEMType",
    .first_step = 65000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(PEMType_items, PEMType_sequence, PEMType_elements, PEMType_values),
};

constexpr item FanTrayType_2_items[] = {
    {.name = "fan", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(FanTrayType_2, fan), .node_size = sizeof(FanType), .init = init<Init_FanType>,
     .decode = child<XmlDT_FanType>},
};
constexpr auto FanTrayType_2_elements = element_rows(FanTrayType_2_items);
constexpr auto FanTrayType_2_sequence = sequence_rows(FanTrayType_2_items);
constexpr auto FanTrayType_2_values = plain_rows(FanTrayType_2_items);
constexpr type_description FanTrayType_2_description = {
    .name = "FanTrayType_2",
    .first_step = 68000,
    .is_extension = true,
    .content = content_of(FanTrayType_2_items, FanTrayType_2_sequence, FanTrayType_2_elements,
        FanTrayType_2_values),
};

constexpr item FanTrayType_items[] = {
    {.name = "BaseModuleType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(FanTrayType, base), .decode = child<XmlDT_BaseModuleType>},
    {.name = "FanTrayType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(FanTrayType, ext), .present = bit(offsetof(FanTrayType, has), 0),
     .decode = child<XmlDT_FanTrayType_2>},
};
constexpr auto FanTrayType_elements = joined(BaseModuleType_inherited, leading_rows<FanTrayType_2_items>());
constexpr auto FanTrayType_sequence = sequence_rows(FanTrayType_items);
constexpr auto FanTrayType_values = plain_rows(FanTrayType_items);
constexpr type_description FanTrayType_description = {
    .name = "FanTrayType",
    .first_step = 67000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(FanTrayType_items, FanTrayType_sequence, FanTrayType_elements, FanTrayType_values),
};

constexpr item BackPlaneType_2_items[] = {
    {.name = "eeprom", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BackPlaneType_2, eeprom), .node_size = sizeof(BaseIdEEPROMType),
     .init = init<Init_BaseIdEEPROMType>, .decode = child<XmlDT_BaseIdEEPROMType>},
    {.name = "sensor", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BackPlaneType_2, sensor), .node_size = sizeof(BaseSensorType),
     .init = init<Init_BaseSensorType>, .decode = child<XmlDT_BaseSensorType>},
    {.name = "module", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BackPlaneType_2, module), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseModuleType_derivations>, .decode = child<XmlDT_BaseModuleType_derivations>},
};
constexpr auto BackPlaneType_2_elements = element_rows(BackPlaneType_2_items);
constexpr auto BackPlaneType_2_sequence = sequence_rows(BackPlaneType_2_items);
constexpr auto BackPlaneType_2_values = plain_rows(BackPlaneType_2_items);
constexpr type_description BackPlaneType_2_description = {
    .name = "BackPlaneType_2",
    .first_step = 70000,
    .is_extension = true,
    .content = content_of(BackPlaneType_2_items, BackPlaneType_2_sequence, BackPlaneType_2_elements,
        BackPlaneType_2_values),
};

constexpr item BackPlaneType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BackPlaneType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BackPlaneType_2", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BackPlaneType, ext), .present = bit(offsetof(BackPlaneType, has), 0),
     .decode = child<XmlDT_BackPlaneType_2>},
};
constexpr auto BackPlaneType_elements = joined(BaseEntityType_inherited,
    leading_rows<BackPlaneType_2_items>());
constexpr auto BackPlaneType_sequence = sequence_rows(BackPlaneType_items);
constexpr auto BackPlaneType_values = plain_rows(BackPlaneType_items);
constexpr type_description BackPlaneType_description = {
    .name = "BackPlaneType",
    .first_step = 69000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BackPlaneType_items, BackPlaneType_sequence, BackPlaneType_elements,
        BackPlaneType_values),
};

constexpr item FanType_2_items[] = {
    {.name = "sensor", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(FanType_2, sensor), .decode = child<XmlDT_BaseSensorType>},
    {.name = "module", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(FanType_2, module), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseModuleType_derivations>, .decode = child<XmlDT_BaseModuleType_derivations>},
};
constexpr auto FanType_2_elements = element_rows(FanType_2_items);
constexpr auto FanType_2_sequence = sequence_rows(FanType_2_items);
constexpr auto FanType_2_values = plain_rows(FanType_2_items);
constexpr type_description FanType_2_description = {
    .name = "FanType_2",
    .first_step = 72000,
    .is_extension = true,
    .content = content_of(FanType_2_items, FanType_2_sequence, FanType_2_elements, FanType_2_values),
};

constexpr item FanType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(FanType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "FanType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(FanType, ext), .present = bit(offsetof(FanType, has), 0),
     .decode = child<XmlDT_FanType_2>},
};
constexpr auto FanType_elements = joined(BaseEntityType_inherited, leading_rows<FanType_2_items>());
constexpr auto FanType_sequence = sequence_rows(FanType_items);
constexpr auto FanType_values = plain_rows(FanType_items);
constexpr type_description FanType_description = {
    .name = "FanType",
    .first_step = 71000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(FanType_items, FanType_sequence, FanType_elements, FanType_values),
};

constexpr item BaseModuleTestType_2_items[] = {
    {.name = "isPowerProducer", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(BaseModuleTestType_2, isPowerProducer)},
    {.name = "powerOnOffCapability", .kind = item_kind::boolean, .occurs = occurrence::required,
     .offset = offsetof(BaseModuleTestType_2, powerOnOffCapability)},
    {.name = "minPowerBudget", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType_2, minPowerBudget),
     .present = bit(offsetof(BaseModuleTestType_2, has), 0)},
    {.name = "maxPowerBudget", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType_2, maxPowerBudget),
     .present = bit(offsetof(BaseModuleTestType_2, has), 1)},
    {.name = "powerUsage", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType_2, powerUsage),
     .present = bit(offsetof(BaseModuleTestType_2, has), 2)},
    {.name = "powerApplied", .kind = item_kind::boolean, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType_2, powerApplied),
     .present = bit(offsetof(BaseModuleTestType_2, has), 3)},
    {.name = "powerZone", .kind = item_kind::uint32, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType_2, powerZone),
     .present = bit(offsetof(BaseModuleTestType_2, has), 4)},
};
constexpr auto BaseModuleTestType_2_elements = element_rows(BaseModuleTestType_2_items);
constexpr auto BaseModuleTestType_2_sequence = sequence_rows(BaseModuleTestType_2_items);
constexpr auto BaseModuleTestType_2_values = plain_rows(BaseModuleTestType_2_items);
constexpr type_description BaseModuleTestType_2_description = {
    .name = "BaseModuleTestType_2",
    .first_step = 74000,
    .is_extension = true,
    .content = content_of(BaseModuleTestType_2_items, BaseModuleTestType_2_sequence,
        BaseModuleTestType_2_elements, BaseModuleTestType_2_values),
};

constexpr item BaseModuleTestType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseModuleTestType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseModuleTestType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseModuleTestType, ext), .present = bit(offsetof(BaseModuleTestType, has), 0),
     .decode = child<XmlDT_BaseModuleTestType_2>},
};
constexpr auto BaseModuleTestType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseModuleTestType_2_items>());
constexpr auto BaseModuleTestType_sequence = sequence_rows(BaseModuleTestType_items);
constexpr auto BaseModuleTestType_values = plain_rows(BaseModuleTestType_items);
constexpr type_description BaseModuleTestType_description = {
    .name = "BaseModuleTestType",
    .first_step = 73000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseModuleTestType_items, BaseModuleTestType_sequence, BaseModuleTestType_elements,
        BaseModuleTestType_values),
};

constexpr item BaseCraftInterfaceType_2_items[] = {
    {.name = "eeprom", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseCraftInterfaceType_2, eeprom), .node_size = sizeof(BaseIdEEPROMType),
     .init = init<Init_BaseIdEEPROMType>, .decode = child<XmlDT_BaseIdEEPROMType>},
    {.name = "fpga", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(BaseCraftInterfaceType_2, fpga), .node_size = sizeof(BaseFPGAType),
     .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
    {.name = "spiFlash", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(BaseCraftInterfaceType_2, spiFlash),
     .decode = child<XmlDT_BaseStorageType_derivations>},
};
constexpr auto BaseCraftInterfaceType_2_elements = element_rows(BaseCraftInterfaceType_2_items);
constexpr auto BaseCraftInterfaceType_2_sequence = sequence_rows(BaseCraftInterfaceType_2_items);
constexpr auto BaseCraftInterfaceType_2_values = plain_rows(BaseCraftInterfaceType_2_items);
constexpr type_description BaseCraftInterfaceType_2_description = {
    .name = "BaseCraftInterfaceType_2",
    .first_step = 76000,
    .is_extension = true,
    .content = content_of(BaseCraftInterfaceType_2_items, BaseCraftInterfaceType_2_sequence,
        BaseCraftInterfaceType_2_elements, BaseCraftInterfaceType_2_values),
};

constexpr item BaseCraftInterfaceType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(BaseCraftInterfaceType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "BaseCraftInterfaceType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(BaseCraftInterfaceType, ext),
     .present = bit(offsetof(BaseCraftInterfaceType, has), 0),
     .decode = child<XmlDT_BaseCraftInterfaceType_2>},
};
constexpr auto BaseCraftInterfaceType_elements = joined(BaseEntityType_inherited,
    leading_rows<BaseCraftInterfaceType_2_items>());
constexpr auto BaseCraftInterfaceType_sequence = sequence_rows(BaseCraftInterfaceType_items);
constexpr auto BaseCraftInterfaceType_values = plain_rows(BaseCraftInterfaceType_items);
constexpr type_description BaseCraftInterfaceType_description = {
    .name = "BaseCraftInterfaceType",
    .first_step = 75000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(BaseCraftInterfaceType_items, BaseCraftInterfaceType_sequence,
        BaseCraftInterfaceType_elements, BaseCraftInterfaceType_values),
};

constexpr item ChassisEntityType_2_items[] = {
    {.name = "fruBits", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType_2, fruBits)},
    {.name = "instanceBits", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType_2, instanceBits)},
    {.name = "rackNumber", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType_2, rackNumber)},
    {.name = "availablePower", .kind = item_kind::uint32, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType_2, availablePower)},
    {.name = "powerInfo", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType_2, powerInfo), .decode = child<XmlDT_PowerInfoType>},
    {.name = "backPlane", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(ChassisEntityType_2, backPlane),
     .present = bit(offsetof(ChassisEntityType_2, has), 0), .decode = child<XmlDT_BackPlaneType>},
    {.name = "ecuSlot", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(ChassisEntityType_2, ecuSlot), .present = bit(offsetof(ChassisEntityType_2, has), 1),
     .decode = child<XmlDT_BaseContainerType_derivations>},
    {.name = "craftInterfaceSlot", .kind = item_kind::record, .occurs = occurrence::optional,
     .offset = offsetof(ChassisEntityType_2, craftInterfaceSlot),
     .present = bit(offsetof(ChassisEntityType_2, has), 2),
     .decode = child<XmlDT_BaseContainerType_derivations>},
    {.name = "entityContainerList", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(ChassisEntityType_2, entityContainerList), .node_size = sizeof(BaseContainerListType),
     .init = init<Init_BaseContainerListType>, .decode = child<XmlDT_BaseContainerListType>},
    {.name = "led", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(ChassisEntityType_2, led), .node_size = sizeof(BaseLEDType),
     .init = init<Init_BaseLEDType>, .decode = child<XmlDT_BaseLEDType>},
};
constexpr auto ChassisEntityType_2_elements = element_rows(ChassisEntityType_2_items);
constexpr auto ChassisEntityType_2_sequence = sequence_rows(ChassisEntityType_2_items);
constexpr auto ChassisEntityType_2_values = plain_rows(ChassisEntityType_2_items);
constexpr type_description ChassisEntityType_2_description = {
    .name = "ChassisEntityType_2",
    .first_step = 78000,
    .is_extension = true,
    .content = content_of(ChassisEntityType_2_items, ChassisEntityType_2_sequence,
        ChassisEntityType_2_elements, ChassisEntityType_2_values),
};

constexpr item ChassisEntityType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(ChassisEntityType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "ChassisEntityType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(ChassisEntityType, ext), .present = bit(offsetof(ChassisEntityType, has), 0),
     .decode = child<XmlDT_ChassisEntityType_2>},
};
constexpr auto ChassisEntityType_elements = joined(BaseEntityType_inherited,
    leading_rows<ChassisEntityType_2_items>());
constexpr auto ChassisEntityType_sequence = sequence_rows(ChassisEntityType_items);
constexpr auto ChassisEntityType_values = plain_rows(ChassisEntityType_items);
constexpr type_description ChassisEntityType_description = {
    .name = "ChassisEntityType",
    .first_step = 77000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(ChassisEntityType_items, ChassisEntityType_sequence, ChassisEntityType_elements,
        ChassisEntityType_values),
};

constexpr item PowerShelfType_2_items[] = {
    {.name = "powerInfo", .kind = item_kind::record, .occurs = occurrence::required,
     .offset = offsetof(PowerShelfType_2, powerInfo), .decode = child<XmlDT_PowerInfoType>},
    {.name = "i2c", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PowerShelfType_2, i2c), .node_size = sizeof(I2cChipType),
     .init = init<Init_I2cChipType>, .decode = child<XmlDT_I2cChipType>},
    {.name = "eeprom", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PowerShelfType_2, eeprom), .node_size = sizeof(BaseIdEEPROMType),
     .init = init<Init_BaseIdEEPROMType>, .decode = child<XmlDT_BaseIdEEPROMType>},
    {.name = "sensor", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PowerShelfType_2, sensor), .node_size = sizeof(BaseSensorType),
     .init = init<Init_BaseSensorType>, .decode = child<XmlDT_BaseSensorType>},
    {.name = "maxPemContainers", .kind = item_kind::int16, .occurs = occurrence::required,
     .offset = offsetof(PowerShelfType_2, maxPemContainers)},
    {.name = "pemBay", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PowerShelfType_2, pemBay), .node_size = sizeof(PemBayType),
     .init = init<Init_PemBayType>, .decode = child<XmlDT_PemBayType>},
    {.name = "module", .kind = item_kind::record, .occurs = occurrence::repeated,
     .offset = offsetof(PowerShelfType_2, module), .node_size = sizeof(xb_choice),
     .init = init<Init_BaseModuleType_derivations>, .decode = child<XmlDT_BaseModuleType_derivations>},
};
constexpr auto PowerShelfType_2_elements = element_rows(PowerShelfType_2_items);
constexpr auto PowerShelfType_2_sequence = sequence_rows(PowerShelfType_2_items);
constexpr auto PowerShelfType_2_values = plain_rows(PowerShelfType_2_items);
constexpr type_description PowerShelfType_2_description = {
    .name = "PowerShelfType_2",
    .first_step = 80000,
    .is_extension = true,
    .content = content_of(PowerShelfType_2_items, PowerShelfType_2_sequence, PowerShelfType_2_elements,
        PowerShelfType_2_values),
};

constexpr item PowerShelfType_items[] = {
    {.name = "BaseEntityType", .kind = item_kind::group, .occurs = occurrence::optional,
     .offset = offsetof(PowerShelfType, base), .decode = child<XmlDT_BaseEntityType>},
    {.name = "PowerShelfType_2", .kind = item_kind::group, .occurs = occurrence::required,
     .offset = offsetof(PowerShelfType, ext), .present = bit(offsetof(PowerShelfType, has), 0),
     .decode = child<XmlDT_PowerShelfType_2>},
};
constexpr auto PowerShelfType_elements = joined(BaseEntityType_inherited,
    leading_rows<PowerShelfType_2_items>());
constexpr auto PowerShelfType_sequence = sequence_rows(PowerShelfType_items);
constexpr auto PowerShelfType_values = plain_rows(PowerShelfType_items);
constexpr type_description PowerShelfType_description = {
    .name = "PowerShelfType",
    .first_step = 79000,
    .xmlns = offsetof(BaseEntityType, xmlns),
    .attributes = attributes_of(BaseEntityType_attributes, BaseEntityType_attribute_names,
        BaseEntityType_attribute_values),
    .content = content_of(PowerShelfType_items, PowerShelfType_sequence, PowerShelfType_elements,
        PowerShelfType_values),
};

}  // namespace

int32_t XmlDT_NodeInfoType(xb_context *ctx, NodeInfoType *record)
{
    return decode_type(ctx, NodeInfoType_description, record);
}

int32_t XmlDT_I2cNodeType(xb_context *ctx, I2cNodeType *record)
{
    return decode_type(ctx, I2cNodeType_description, record);
}

int32_t XmlDT_I2cSequenceType(xb_context *ctx, I2cSequenceType *record)
{
    return decode_type(ctx, I2cSequenceType_description, record);
}

int32_t XmlDT_I2cDestType(xb_context *ctx, I2cDestType *record)
{
    return decode_type(ctx, I2cDestType_description, record);
}

int32_t XmlDT_I2cPortType(xb_context *ctx, I2cPortType *record)
{
    return decode_type(ctx, I2cPortType_description, record);
}

int32_t XmlDT_PCIeNodeType(xb_context *ctx, PCIeNodeType *record)
{
    return decode_type(ctx, PCIeNodeType_description, record);
}

int32_t XmlDT_PciSequenceType(xb_context *ctx, PciSequenceType *record)
{
    return decode_type(ctx, PciSequenceType_description, record);
}

int32_t XmlDT_PMBusPortType(xb_context *ctx, PMBusPortType *record)
{
    return decode_type(ctx, PMBusPortType_description, record);
}

int32_t XmlDT_SpiDestType(xb_context *ctx, SpiDestType *record)
{
    return decode_type(ctx, SpiDestType_description, record);
}

int32_t XmlDT_SpiPortType(xb_context *ctx, SpiPortType *record)
{
    return decode_type(ctx, SpiPortType_description, record);
}

int32_t XmlDT_PCIeDestType(xb_context *ctx, PCIeDestType *record)
{
    return decode_type(ctx, PCIeDestType_description, record);
}

int32_t XmlDT_BasePCIePortType(xb_context *ctx, BasePCIePortType *record)
{
    return decode_type(ctx, BasePCIePortType_description, record);
}

int32_t XmlDT_HardwareRegistersType(xb_context *ctx, HardwareRegistersType *record)
{
    return decode_type(ctx, HardwareRegistersType_description, record);
}

int32_t XmlDT_HwSignalsType(xb_context *ctx, HwSignalsType *record)
{
    return decode_type(ctx, HwSignalsType_description, record);
}

int32_t XmlDT_PowerConsumerType(xb_context *ctx, PowerConsumerType *record)
{
    return decode_type(ctx, PowerConsumerType_description, record);
}

int32_t XmlDT_PowerProducerType(xb_context *ctx, PowerProducerType *record)
{
    return decode_type(ctx, PowerProducerType_description, record);
}

int32_t XmlDT_PowerZoneType(xb_context *ctx, PowerZoneType *record)
{
    return decode_type(ctx, PowerZoneType_description, record);
}

int32_t XmlDT_PowerInfoType(xb_context *ctx, PowerInfoType *record)
{
    return decode_type(ctx, PowerInfoType_description, record);
}

int32_t XmlDT_BaseLedInfoType(xb_context *ctx, BaseLedInfoType *record)
{
    return decode_type(ctx, BaseLedInfoType_description, record);
}

int32_t XmlDT_BaseContainerListType(xb_context *ctx, BaseContainerListType *record)
{
    return decode_type(ctx, BaseContainerListType_description, record);
}

int32_t XmlDT_BaseThresholdType(xb_context *ctx, BaseThresholdType *record)
{
    return decode_type(ctx, BaseThresholdType_description, record);
}

int32_t XmlDT_BaseStorageMemoryMap(xb_context *ctx, BaseStorageMemoryMap *record)
{
    return decode_type(ctx, BaseStorageMemoryMap_description, record);
}

int32_t XmlDT_BaseControlInfoType(xb_context *ctx, BaseControlInfoType *record)
{
    return decode_type(ctx, BaseControlInfoType_description, record);
}

int32_t XmlDT_SwitchPortMapType(xb_context *ctx, SwitchPortMapType *record)
{
    return decode_type(ctx, SwitchPortMapType_description, record);
}

int32_t XmlDT_BaseEntityType(xb_context *ctx, BaseEntityType *record)
{
    return decode_type(ctx, BaseEntityType_description, record);
}

int32_t XmlDT_BaseLEDType(xb_context *ctx, BaseLEDType *record)
{
    return decode_type(ctx, BaseLEDType_description, record);
}

int32_t XmlDT_BaseLEDType_2(xb_context *ctx, BaseLEDType_2 *record)
{
    return decode_type(ctx, BaseLEDType_2_description, record);
}

int32_t XmlDT_BaseContainerType(xb_context *ctx, BaseContainerType *record)
{
    return decode_type(ctx, BaseContainerType_description, record);
}

int32_t XmlDT_BaseContainerType_2(xb_context *ctx, BaseContainerType_2 *record)
{
    return decode_type(ctx, BaseContainerType_2_description, record);
}

int32_t XmlDT_PemBayType(xb_context *ctx, PemBayType *record)
{
    return decode_type(ctx, PemBayType_description, record);
}

int32_t XmlDT_PemBayType_2(xb_context *ctx, PemBayType_2 *record)
{
    return decode_type(ctx, PemBayType_2_description, record);
}

int32_t XmlDT_BaseCEPortType(xb_context *ctx, BaseCEPortType *record)
{
    return decode_type(ctx, BaseCEPortType_description, record);
}

int32_t XmlDT_BaseCEPortType_2(xb_context *ctx, BaseCEPortType_2 *record)
{
    return decode_type(ctx, BaseCEPortType_2_description, record);
}

int32_t XmlDT_BaseCESwitchType_2_port(xb_context *ctx, BaseCESwitchType_2_port *record)
{
    return decode_type(ctx, BaseCESwitchType_2_port_description, record);
}

int32_t XmlDT_BaseFPGAType(xb_context *ctx, BaseFPGAType *record)
{
    return decode_type(ctx, BaseFPGAType_description, record);
}

int32_t XmlDT_BaseFPGAType_2(xb_context *ctx, BaseFPGAType_2 *record)
{
    return decode_type(ctx, BaseFPGAType_2_description, record);
}

int32_t XmlDT_BaseIdEEPROMType(xb_context *ctx, BaseIdEEPROMType *record)
{
    return decode_type(ctx, BaseIdEEPROMType_description, record);
}

int32_t XmlDT_BaseIdEEPROMType_2(xb_context *ctx, BaseIdEEPROMType_2 *record)
{
    return decode_type(ctx, BaseIdEEPROMType_2_description, record);
}

int32_t XmlDT_BaseStorageType(xb_context *ctx, BaseStorageType *record)
{
    return decode_type(ctx, BaseStorageType_description, record);
}

int32_t XmlDT_BaseStorageType_2(xb_context *ctx, BaseStorageType_2 *record)
{
    return decode_type(ctx, BaseStorageType_2_description, record);
}

int32_t XmlDT_BaseSpiFlash(xb_context *ctx, BaseSpiFlash *record)
{
    return decode_type(ctx, BaseSpiFlash_description, record);
}

int32_t XmlDT_BaseSpiFlash_2(xb_context *ctx, BaseSpiFlash_2 *record)
{
    return decode_type(ctx, BaseSpiFlash_2_description, record);
}

int32_t XmlDT_BaseSensorType(xb_context *ctx, BaseSensorType *record)
{
    return decode_type(ctx, BaseSensorType_description, record);
}

int32_t XmlDT_BaseSensorType_2(xb_context *ctx, BaseSensorType_2 *record)
{
    return decode_type(ctx, BaseSensorType_2_description, record);
}

int32_t XmlDT_I2cChipType(xb_context *ctx, I2cChipType *record)
{
    return decode_type(ctx, I2cChipType_description, record);
}

int32_t XmlDT_BasePCIeSwitchType(xb_context *ctx, BasePCIeSwitchType *record)
{
    return decode_type(ctx, BasePCIeSwitchType_description, record);
}

int32_t XmlDT_BasePCIeSwitchType_2(xb_context *ctx, BasePCIeSwitchType_2 *record)
{
    return decode_type(ctx, BasePCIeSwitchType_2_description, record);
}

int32_t XmlDT_BaseVoltageMarginType(xb_context *ctx, BaseVoltageMarginType *record)
{
    return decode_type(ctx, BaseVoltageMarginType_description, record);
}

int32_t XmlDT_BaseVoltageMarginType_2(xb_context *ctx, BaseVoltageMarginType_2 *record)
{
    return decode_type(ctx, BaseVoltageMarginType_2_description, record);
}

int32_t XmlDT_BaseProcessorType(xb_context *ctx, BaseProcessorType *record)
{
    return decode_type(ctx, BaseProcessorType_description, record);
}

int32_t XmlDT_BaseProcessorType_2(xb_context *ctx, BaseProcessorType_2 *record)
{
    return decode_type(ctx, BaseProcessorType_2_description, record);
}

int32_t XmlDT_BaseMemoryType(xb_context *ctx, BaseMemoryType *record)
{
    return decode_type(ctx, BaseMemoryType_description, record);
}

int32_t XmlDT_BaseMemoryType_2(xb_context *ctx, BaseMemoryType_2 *record)
{
    return decode_type(ctx, BaseMemoryType_2_description, record);
}

int32_t XmlDT_BaseCESwitchType(xb_context *ctx, BaseCESwitchType *record)
{
    return decode_type(ctx, BaseCESwitchType_description, record);
}

int32_t XmlDT_BaseCESwitchType_2(xb_context *ctx, BaseCESwitchType_2 *record)
{
    return decode_type(ctx, BaseCESwitchType_2_description, record);
}

int32_t XmlDT_BaseKestoType(xb_context *ctx, BaseKestoType *record)
{
    return decode_type(ctx, BaseKestoType_description, record);
}

int32_t XmlDT_BaseKestoType_2(xb_context *ctx, BaseKestoType_2 *record)
{
    return decode_type(ctx, BaseKestoType_2_description, record);
}

int32_t XmlDT_BasePortType(xb_context *ctx, BasePortType *record)
{
    return decode_type(ctx, BasePortType_description, record);
}

int32_t XmlDT_BasePortType_2(xb_context *ctx, BasePortType_2 *record)
{
    return decode_type(ctx, BasePortType_2_description, record);
}

int32_t XmlDT_BaseConsoleType(xb_context *ctx, BaseConsoleType *record)
{
    return decode_type(ctx, BaseConsoleType_description, record);
}

int32_t XmlDT_BaseModuleType(xb_context *ctx, BaseModuleType *record)
{
    return decode_type(ctx, BaseModuleType_description, record);
}

int32_t XmlDT_BaseModuleType_2(xb_context *ctx, BaseModuleType_2 *record)
{
    return decode_type(ctx, BaseModuleType_2_description, record);
}

int32_t XmlDT_OpticsType(xb_context *ctx, OpticsType *record)
{
    return decode_type(ctx, OpticsType_description, record);
}

int32_t XmlDT_OpticsType_2(xb_context *ctx, OpticsType_2 *record)
{
    return decode_type(ctx, OpticsType_2_description, record);
}

int32_t XmlDT_PEMType(xb_context *ctx, PEMType *record)
{
    return decode_type(ctx, PEMType_description, record);
}

int32_t XmlDT_PEMType_2(xb_context *ctx, PEMType_2 *record)
{
    return decode_type(ctx, PEMType_2_description, record);
}

int32_t XmlDT_FanTrayType(xb_context *ctx, FanTrayType *record)
{
    return decode_type(ctx, FanTrayType_description, record);
}

int32_t XmlDT_FanTrayType_2(xb_context *ctx, FanTrayType_2 *record)
{
    return decode_type(ctx, FanTrayType_2_description, record);
}

int32_t XmlDT_BackPlaneType(xb_context *ctx, BackPlaneType *record)
{
    return decode_type(ctx, BackPlaneType_description, record);
}

int32_t XmlDT_BackPlaneType_2(xb_context *ctx, BackPlaneType_2 *record)
{
    return decode_type(ctx, BackPlaneType_2_description, record);
}

int32_t XmlDT_FanType(xb_context *ctx, FanType *record)
{
    return decode_type(ctx, FanType_description, record);
}

int32_t XmlDT_FanType_2(xb_context *ctx, FanType_2 *record)
{
    return decode_type(ctx, FanType_2_description, record);
}

int32_t XmlDT_BaseModuleTestType(xb_context *ctx, BaseModuleTestType *record)
{
    return decode_type(ctx, BaseModuleTestType_description, record);
}

int32_t XmlDT_BaseModuleTestType_2(xb_context *ctx, BaseModuleTestType_2 *record)
{
    return decode_type(ctx, BaseModuleTestType_2_description, record);
}

int32_t XmlDT_BaseCraftInterfaceType(xb_context *ctx, BaseCraftInterfaceType *record)
{
    return decode_type(ctx, BaseCraftInterfaceType_description, record);
}

int32_t XmlDT_BaseCraftInterfaceType_2(xb_context *ctx, BaseCraftInterfaceType_2 *record)
{
    return decode_type(ctx, BaseCraftInterfaceType_2_description, record);
}

int32_t XmlDT_ChassisEntityType(xb_context *ctx, ChassisEntityType *record)
{
    return decode_type(ctx, ChassisEntityType_description, record);
}

int32_t XmlDT_ChassisEntityType_2(xb_context *ctx, ChassisEntityType_2 *record)
{
    return decode_type(ctx, ChassisEntityType_2_description, record);
}

int32_t XmlDT_PowerShelfType(xb_context *ctx, PowerShelfType *record)
{
    return decode_type(ctx, PowerShelfType_description, record);
}

int32_t XmlDT_PowerShelfType_2(xb_context *ctx, PowerShelfType_2 *record)
{
    return decode_type(ctx, PowerShelfType_2_description, record);
}

int32_t XmlDT_ReplicationLevelsType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81000, ReplicationLevelsType_ToEnum, code);
}

int32_t XmlDT_EntityOwnerType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81010, EntityOwnerType_ToEnum, code);
}

int32_t XmlDT_EntitySelectionType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81020, EntitySelectionType_ToEnum, code);
}

int32_t XmlDT_EidType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81030, EidType_ToEnum, code);
}

int32_t XmlDT_EidSubType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81040, EidSubType_ToEnum, code);
}

int32_t XmlDT_MemAccessSpeedUnit(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81050, MemAccessSpeedUnit_ToEnum, code);
}

int32_t XmlDT_CyclesPerSecUnit(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81060, CyclesPerSecUnit_ToEnum, code);
}

int32_t XmlDT_HardwareModelType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81070, HardwareModelType_ToEnum, code);
}

int32_t XmlDT_LinkApplicableType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81080, LinkApplicableType_ToEnum, code);
}

int32_t XmlDT_SequenceType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81090, SequenceType_ToEnum, code);
}

int32_t XmlDT_I2cDeviceType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81100, I2cDeviceType_ToEnum, code);
}

int32_t XmlDT_PowerZonesValuesType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81110, PowerZonesValuesType_ToEnum, code);
}

int32_t XmlDT_PciGen(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81120, PciGen_ToEnum, code);
}

int32_t XmlDT_PhyType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81130, PhyType_ToEnum, code);
}

int32_t XmlDT_EsdPortDestType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81140, EsdPortDestType_ToEnum, code);
}

int32_t XmlDT_PortState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81150, PortState_ToEnum, code);
}

int32_t XmlDT_MdioSpeed(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81160, MdioSpeed_ToEnum, code);
}

int32_t XmlDT_LocalSwitching(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81170, LocalSwitching_ToEnum, code);
}

int32_t XmlDT_SerdesParamsType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81180, SerdesParamsType_ToEnum, code);
}

int32_t XmlDT_SfpControllerType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81190, SfpControllerType_ToEnum, code);
}

int32_t XmlDT_EsdDevVlanType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81200, EsdDevVlanType_ToEnum, code);
}

int32_t XmlDT_EsdDevClientType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81210, EsdDevClientType_ToEnum, code);
}

int32_t XmlDT_PortSpeedType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81220, PortSpeedType_ToEnum, code);
}

int32_t XmlDT_PortModeType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81230, PortModeType_ToEnum, code);
}

int32_t XmlDT_BaseLedColorsType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81240, BaseLedColorsType_ToEnum, code);
}

int32_t XmlDT_BaseLedControlType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81250, BaseLedControlType_ToEnum, code);
}

int32_t XmlDT_PortUsageType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81260, PortUsageType_ToEnum, code);
}

int32_t XmlDT_EepromUsageType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81270, EepromUsageType_ToEnum, code);
}

int32_t XmlDT_NodeInfoType_nodeType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81280, NodeInfoType_nodeType_ToEnum, code);
}

int32_t XmlDT_I2cPortType_portType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81290, I2cPortType_portType_ToEnum, code);
}

int32_t XmlDT_PCIeNodeType_deviceType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81300, PCIeNodeType_deviceType_ToEnum, code);
}

int32_t XmlDT_BaseContainerListType_containerType(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81310, BaseContainerListType_containerType_ToEnum, code);
}

int32_t XmlDT_BaseStorageMemoryMap_memoryUsage(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81320, BaseStorageMemoryMap_memoryUsage_ToEnum, code);
}

int32_t XmlDT_BaseEntityType_adminState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81330, BaseEntityType_adminState_ToEnum, code);
}

int32_t XmlDT_BaseEntityType_operState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81340, BaseEntityType_operState_ToEnum, code);
}

int32_t XmlDT_BaseEntityType_powerAdminState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81350, BaseEntityType_powerAdminState_ToEnum, code);
}

int32_t XmlDT_BaseEntityType_powerOperState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81360, BaseEntityType_powerOperState_ToEnum, code);
}

int32_t XmlDT_BaseEntityType_dualRouter(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81370, BaseEntityType_dualRouter_ToEnum, code);
}

int32_t XmlDT_BaseSensorType_2_unit(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81380, BaseSensorType_2_unit_ToEnum, code);
}

int32_t XmlDT_BaseSensorType_2_userDefinedUnit(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81390, BaseSensorType_2_userDefinedUnit_ToEnum, code);
}

int32_t XmlDT_BaseSensorType_2_scale(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81400, BaseSensorType_2_scale_ToEnum, code);
}

int32_t XmlDT_BaseVoltageMarginType_2_operation(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81410, BaseVoltageMarginType_2_operation_ToEnum, code);
}

int32_t XmlDT_BaseKestoType_2_isValidated(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81420, BaseKestoType_2_isValidated_ToEnum, code);
}

int32_t XmlDT_BaseConsoleType_usage(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81430, BaseConsoleType_usage_ToEnum, code);
}

int32_t XmlDT_PEMType_2_faultStatus(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81440, PEMType_2_faultStatus_ToEnum, code);
}

int32_t XmlDT_PEMType_2_psmState(xb_context *ctx, uint32_t *code)
{
    return decode_enumeration(ctx, 81450, PEMType_2_psmState_ToEnum, code);
}

int32_t XmlDT_PowerType(xb_context *ctx, PowerType *value)
{
    return decode_decimal(ctx, 81460, value);
}

int32_t XmlDT_Hex32BitHexAddressType(xb_context *ctx, Hex32BitHexAddressType *value)
{
    return decode_octet_buffer(ctx, "Hex32BitHexAddressType", 81470, value->octets, sizeof value->octets,
                               &value->count);
}

int32_t XmlDT_Hex8BitHexAddressType(xb_context *ctx, Hex8BitHexAddressType *value)
{
    return decode_octet_buffer(ctx, "Hex8BitHexAddressType", 81480, value->octets, sizeof value->octets,
                               &value->count);
}

int32_t XmlD_module(xb_context *ctx, xb_choice *record)
{
    static constexpr root_description root = {.element = "module",
                                              .first_step = 81490,
                                              .init = init<Init_BaseModuleType_derivations>,
                                              .decode = child<XmlDT_BaseModuleType_derivations>};
    return decode_document(ctx, root, record);
}

int32_t XmlD_chassis(xb_context *ctx, ChassisEntityType *record)
{
    static constexpr root_description root = {.element = "chassis",
                                              .first_step = 81500,
                                              .init = init<Init_ChassisEntityType>,
                                              .decode = child<XmlDT_ChassisEntityType>};
    return decode_document(ctx, root, record);
}

int32_t XmlD_powerShelf(xb_context *ctx, PowerShelfType *record)
{
    static constexpr root_description root = {.element = "powerShelf",
                                              .first_step = 81510,
                                              .init = init<Init_PowerShelfType>,
                                              .decode = child<XmlDT_PowerShelfType>};
    return decode_document(ctx, root, record);
}

int32_t XmlD_pem(xb_context *ctx, PEMType *record)
{
    static constexpr root_description root = {.element = "pem",
                                              .first_step = 81520,
                                              .init = init<Init_PEMType>,
                                              .decode = child<XmlDT_PEMType>};
    return decode_document(ctx, root, record);
}

int32_t XmlD_fanTray(xb_context *ctx, FanTrayType *record)
{
    static constexpr root_description root = {.element = "fanTray",
                                              .first_step = 81530,
                                              .init = init<Init_FanTrayType>,
                                              .decode = child<XmlDT_FanTrayType>};
    return decode_document(ctx, root, record);
}

int32_t XmlD_optics(xb_context *ctx, OpticsType *record)
{
    static constexpr root_description root = {.element = "optics",
                                              .first_step = 81540,
                                              .init = init<Init_OpticsType>,
                                              .decode = child<XmlDT_OpticsType>};
    return decode_document(ctx, root, record);
}
