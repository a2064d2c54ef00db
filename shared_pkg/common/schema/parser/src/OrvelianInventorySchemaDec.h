/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#ifndef ORVELIANINVENTORYSCHEMADEC_H
#define ORVELIANINVENTORYSCHEMADEC_H

#include "OrvelianInventorySchema.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decode what the context's reader stands on, up to its end tag. 0 or a negative status, which is recorded in
 * the context. `_2` reads the extension's part of an element that is open already. */
int32_t XmlDT_NodeInfoType(xb_context *ctx, NodeInfoType *record);
int32_t XmlDT_I2cNodeType(xb_context *ctx, I2cNodeType *record);
int32_t XmlDT_I2cSequenceType(xb_context *ctx, I2cSequenceType *record);
int32_t XmlDT_I2cDestType(xb_context *ctx, I2cDestType *record);
int32_t XmlDT_I2cPortType(xb_context *ctx, I2cPortType *record);
int32_t XmlDT_PCIeNodeType(xb_context *ctx, PCIeNodeType *record);
int32_t XmlDT_PciSequenceType(xb_context *ctx, PciSequenceType *record);
int32_t XmlDT_PMBusPortType(xb_context *ctx, PMBusPortType *record);
int32_t XmlDT_SpiDestType(xb_context *ctx, SpiDestType *record);
int32_t XmlDT_SpiPortType(xb_context *ctx, SpiPortType *record);
int32_t XmlDT_PCIeDestType(xb_context *ctx, PCIeDestType *record);
int32_t XmlDT_BasePCIePortType(xb_context *ctx, BasePCIePortType *record);
int32_t XmlDT_HardwareRegistersType(xb_context *ctx, HardwareRegistersType *record);
int32_t XmlDT_HwSignalsType(xb_context *ctx, HwSignalsType *record);
int32_t XmlDT_PowerConsumerType(xb_context *ctx, PowerConsumerType *record);
int32_t XmlDT_PowerProducerType(xb_context *ctx, PowerProducerType *record);
int32_t XmlDT_PowerZoneType(xb_context *ctx, PowerZoneType *record);
int32_t XmlDT_PowerInfoType(xb_context *ctx, PowerInfoType *record);
int32_t XmlDT_BaseLedInfoType(xb_context *ctx, BaseLedInfoType *record);
int32_t XmlDT_BaseContainerListType(xb_context *ctx, BaseContainerListType *record);
int32_t XmlDT_BaseThresholdType(xb_context *ctx, BaseThresholdType *record);
int32_t XmlDT_BaseStorageMemoryMap(xb_context *ctx, BaseStorageMemoryMap *record);
int32_t XmlDT_BaseControlInfoType(xb_context *ctx, BaseControlInfoType *record);
int32_t XmlDT_SwitchPortMapType(xb_context *ctx, SwitchPortMapType *record);
int32_t XmlDT_BaseEntityType(xb_context *ctx, BaseEntityType *record);
int32_t XmlDT_BaseLEDType(xb_context *ctx, BaseLEDType *record);
int32_t XmlDT_BaseLEDType_2(xb_context *ctx, BaseLEDType_2 *record);
int32_t XmlDT_BaseContainerType(xb_context *ctx, BaseContainerType *record);
int32_t XmlDT_BaseContainerType_2(xb_context *ctx, BaseContainerType_2 *record);
int32_t XmlDT_PemBayType(xb_context *ctx, PemBayType *record);
int32_t XmlDT_PemBayType_2(xb_context *ctx, PemBayType_2 *record);
int32_t XmlDT_BaseCEPortType(xb_context *ctx, BaseCEPortType *record);
int32_t XmlDT_BaseCEPortType_2(xb_context *ctx, BaseCEPortType_2 *record);
int32_t XmlDT_BaseCESwitchType_2_port(xb_context *ctx, BaseCESwitchType_2_port *record);
int32_t XmlDT_BaseFPGAType(xb_context *ctx, BaseFPGAType *record);
int32_t XmlDT_BaseFPGAType_2(xb_context *ctx, BaseFPGAType_2 *record);
int32_t XmlDT_BaseIdEEPROMType(xb_context *ctx, BaseIdEEPROMType *record);
int32_t XmlDT_BaseIdEEPROMType_2(xb_context *ctx, BaseIdEEPROMType_2 *record);
int32_t XmlDT_BaseStorageType(xb_context *ctx, BaseStorageType *record);
int32_t XmlDT_BaseStorageType_2(xb_context *ctx, BaseStorageType_2 *record);
int32_t XmlDT_BaseSpiFlash(xb_context *ctx, BaseSpiFlash *record);
int32_t XmlDT_BaseSpiFlash_2(xb_context *ctx, BaseSpiFlash_2 *record);
int32_t XmlDT_BaseSensorType(xb_context *ctx, BaseSensorType *record);
int32_t XmlDT_BaseSensorType_2(xb_context *ctx, BaseSensorType_2 *record);
int32_t XmlDT_I2cChipType(xb_context *ctx, I2cChipType *record);
int32_t XmlDT_BasePCIeSwitchType(xb_context *ctx, BasePCIeSwitchType *record);
int32_t XmlDT_BasePCIeSwitchType_2(xb_context *ctx, BasePCIeSwitchType_2 *record);
int32_t XmlDT_BaseVoltageMarginType(xb_context *ctx, BaseVoltageMarginType *record);
int32_t XmlDT_BaseVoltageMarginType_2(xb_context *ctx, BaseVoltageMarginType_2 *record);
int32_t XmlDT_BaseProcessorType(xb_context *ctx, BaseProcessorType *record);
int32_t XmlDT_BaseProcessorType_2(xb_context *ctx, BaseProcessorType_2 *record);
int32_t XmlDT_BaseMemoryType(xb_context *ctx, BaseMemoryType *record);
int32_t XmlDT_BaseMemoryType_2(xb_context *ctx, BaseMemoryType_2 *record);
int32_t XmlDT_BaseCESwitchType(xb_context *ctx, BaseCESwitchType *record);
int32_t XmlDT_BaseCESwitchType_2(xb_context *ctx, BaseCESwitchType_2 *record);
int32_t XmlDT_BaseKestoType(xb_context *ctx, BaseKestoType *record);
int32_t XmlDT_BaseKestoType_2(xb_context *ctx, BaseKestoType_2 *record);
int32_t XmlDT_BasePortType(xb_context *ctx, BasePortType *record);
int32_t XmlDT_BasePortType_2(xb_context *ctx, BasePortType_2 *record);
int32_t XmlDT_BaseConsoleType(xb_context *ctx, BaseConsoleType *record);
int32_t XmlDT_BaseModuleType(xb_context *ctx, BaseModuleType *record);
int32_t XmlDT_BaseModuleType_2(xb_context *ctx, BaseModuleType_2 *record);
int32_t XmlDT_OpticsType(xb_context *ctx, OpticsType *record);
int32_t XmlDT_OpticsType_2(xb_context *ctx, OpticsType_2 *record);
int32_t XmlDT_PEMType(xb_context *ctx, PEMType *record);
int32_t XmlDT_PEMType_2(xb_context *ctx, PEMType_2 *record);
int32_t XmlDT_FanTrayType(xb_context *ctx, FanTrayType *record);
int32_t XmlDT_FanTrayType_2(xb_context *ctx, FanTrayType_2 *record);
int32_t XmlDT_BackPlaneType(xb_context *ctx, BackPlaneType *record);
int32_t XmlDT_BackPlaneType_2(xb_context *ctx, BackPlaneType_2 *record);
int32_t XmlDT_FanType(xb_context *ctx, FanType *record);
int32_t XmlDT_FanType_2(xb_context *ctx, FanType_2 *record);
int32_t XmlDT_BaseModuleTestType(xb_context *ctx, BaseModuleTestType *record);
int32_t XmlDT_BaseModuleTestType_2(xb_context *ctx, BaseModuleTestType_2 *record);
int32_t XmlDT_BaseCraftInterfaceType(xb_context *ctx, BaseCraftInterfaceType *record);
int32_t XmlDT_BaseCraftInterfaceType_2(xb_context *ctx, BaseCraftInterfaceType_2 *record);
int32_t XmlDT_ChassisEntityType(xb_context *ctx, ChassisEntityType *record);
int32_t XmlDT_ChassisEntityType_2(xb_context *ctx, ChassisEntityType_2 *record);
int32_t XmlDT_PowerShelfType(xb_context *ctx, PowerShelfType *record);
int32_t XmlDT_PowerShelfType_2(xb_context *ctx, PowerShelfType_2 *record);

/* Simple types: the selected attribute or the text of the current element. */
int32_t XmlDT_ReplicationLevelsType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EntityOwnerType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EntitySelectionType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EidType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EidSubType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_MemAccessSpeedUnit(xb_context *ctx, uint32_t *code);
int32_t XmlDT_CyclesPerSecUnit(xb_context *ctx, uint32_t *code);
int32_t XmlDT_HardwareModelType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_LinkApplicableType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_SequenceType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_I2cDeviceType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PowerZonesValuesType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PciGen(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PhyType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EsdPortDestType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PortState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_MdioSpeed(xb_context *ctx, uint32_t *code);
int32_t XmlDT_LocalSwitching(xb_context *ctx, uint32_t *code);
int32_t XmlDT_SerdesParamsType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_SfpControllerType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EsdDevVlanType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EsdDevClientType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PortSpeedType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PortModeType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseLedColorsType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseLedControlType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PortUsageType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_EepromUsageType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_NodeInfoType_nodeType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_I2cPortType_portType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PCIeNodeType_deviceType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseContainerListType_containerType(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseStorageMemoryMap_memoryUsage(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseEntityType_adminState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseEntityType_operState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseEntityType_powerAdminState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseEntityType_powerOperState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseEntityType_dualRouter(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseSensorType_2_unit(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseSensorType_2_userDefinedUnit(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseSensorType_2_scale(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseVoltageMarginType_2_operation(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseKestoType_2_isValidated(xb_context *ctx, uint32_t *code);
int32_t XmlDT_BaseConsoleType_usage(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PEMType_2_faultStatus(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PEMType_2_psmState(xb_context *ctx, uint32_t *code);
int32_t XmlDT_PowerType(xb_context *ctx, PowerType *value);
int32_t XmlDT_Hex32BitHexAddressType(xb_context *ctx, Hex32BitHexAddressType *value);
int32_t XmlDT_Hex8BitHexAddressType(xb_context *ctx, Hex8BitHexAddressType *value);

/* Decode the whole document of the context's input into the record. The result is that of the first recorded
 * error, also of those that did not end the decode. */
int32_t XmlD_module(xb_context *ctx, xb_choice *record);
int32_t XmlD_chassis(xb_context *ctx, ChassisEntityType *record);
int32_t XmlD_powerShelf(xb_context *ctx, PowerShelfType *record);
int32_t XmlD_pem(xb_context *ctx, PEMType *record);
int32_t XmlD_fanTray(xb_context *ctx, FanTrayType *record);
int32_t XmlD_optics(xb_context *ctx, OpticsType *record);

#ifdef __cplusplus
}
#endif

#endif /* ORVELIANINVENTORYSCHEMADEC_H */
