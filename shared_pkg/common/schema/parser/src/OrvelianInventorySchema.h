/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#ifndef ORVELIANINVENTORYSCHEMA_H
#define ORVELIANINVENTORYSCHEMA_H

#include <stdint.h>

#include "inv_parser/platform_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decoded records. `has` holds one bit per optional item, `base` the inherited part, `ext` the extension's
 * content; absent items keep their initial values. Everything a record points to lives in the heap of the
 * context that decoded it. */

typedef double PowerType;

typedef struct Hex32BitHexAddressType {
    uint32_t count;
    uint8_t octets[4];
} Hex32BitHexAddressType;

typedef struct Hex8BitHexAddressType {
    uint32_t count;
    uint8_t octets[1];
} Hex8BitHexAddressType;

/* Names one end of an access path: a kind of node and, where several of the kind exist, its position. */
typedef struct NodeInfoType {
    struct {
        uint8_t nodePosition : 1;
    } has;
    xb_data_list xmlns;
    uint32_t nodeType; /* NodeInfoType_nodeType */
    int16_t nodePosition;
} NodeInfoType;

/* An I2C device: what it is, where it answers on its bus, and through which registers it is driven. */
typedef struct I2cNodeType {
    struct {
        uint8_t deviceModel : 1;
        uint8_t deviceAddress : 1;
        uint8_t controlRegister : 1;
        uint8_t dataRegister : 1;
        uint8_t secondCtrlReg : 1;
        uint8_t secondDataReg : 1;
        uint8_t xmlInstance : 1;
        uint8_t resetOnly : 1;
    } has;
    xb_data_list xmlns;
    uint32_t deviceType; /* I2cDeviceType */
    uint32_t deviceModel; /* HardwareModelType */
    Hex8BitHexAddressType deviceAddress;
    Hex32BitHexAddressType controlRegister;
    Hex32BitHexAddressType dataRegister;
    Hex32BitHexAddressType secondCtrlReg;
    Hex32BitHexAddressType secondDataReg;
    int16_t xmlInstance;
    uint8_t resetOnly; /* 0 or 1 */
} I2cNodeType;

/* The I2C steps that lead from a source node to a destination node, in the order in which they are issued. */
typedef struct I2cSequenceType {
    struct {
        uint8_t applicable : 1;
        uint8_t srcInfo : 1;
        uint8_t dstInfo : 1;
    } has;
    xb_data_list xmlns;
    uint32_t applicable; /* LinkApplicableType */
    uint32_t seqType; /* SequenceType */
    const char *description;
    NodeInfoType srcInfo;
    xb_data_list cmdInfo; /* of I2cNodeType */
    NodeInfoType dstInfo;
} I2cSequenceType;

/* What stands at the far end of one channel of an I2C port. */
typedef struct I2cDestType {
    xb_data_list xmlns;
    const char *description;
    uint32_t applicable; /* LinkApplicableType */
    NodeInfoType nodeInfo;
} I2cDestType;

/* One channel of an I2C master or multiplexer and the nodes behind it. */
typedef struct I2cPortType {
    xb_data_list xmlns;
    uint32_t portType; /* I2cPortType_portType */
    xb_octets channelNumber;
    xb_data_list dstInfo; /* of I2cDestType */
} I2cPortType;

/* A PCI Express switch or target device. */
typedef struct PCIeNodeType {
    struct {
        uint8_t deviceModel : 1;
        uint8_t portNumber : 1;
        uint8_t numOfFunctions : 1;
    } has;
    xb_data_list xmlns;
    uint32_t deviceModel; /* HardwareModelType */
    uint32_t deviceType; /* PCIeNodeType_deviceType */
    Hex8BitHexAddressType portNumber;
    int16_t numOfFunctions;
} PCIeNodeType;

/* A PCI Express link: the switch port it ends on and the node that port belongs to. */
typedef struct PciSequenceType {
    struct {
        uint8_t applicable : 1;
        uint8_t dstPci : 1;
        uint8_t dstInfo : 1;
        uint8_t xmlInstance : 1;
    } has;
    xb_data_list xmlns;
    xb_data_list pdNotes; /* of text */
    uint32_t applicable; /* LinkApplicableType */
    const char *description;
    PCIeNodeType dstPci;
    NodeInfoType dstInfo;
    int16_t xmlInstance;
} PciSequenceType;

/* A power management bus port of the entity. */
typedef struct PMBusPortType {
    xb_data_list xmlns;
    Hex8BitHexAddressType PMBusCmd;
} PMBusPortType;

/* A device on an SPI channel. */
typedef struct SpiDestType {
    struct {
        uint8_t deviceAddress : 1;
    } has;
    xb_data_list xmlns;
    const char *description;
    Hex8BitHexAddressType deviceAddress;
} SpiDestType;

/* One SPI channel and the devices on it. */
typedef struct SpiPortType {
    xb_data_list xmlns;
    xb_octets channel;
    xb_data_list dstInfo; /* of SpiDestType */
} SpiPortType;

/* What stands at the far end of a PCI Express port. */
typedef struct PCIeDestType {
    struct {
        uint8_t deviceId : 1;
    } has;
    xb_data_list xmlns;
    const char *description;
    uint32_t applicable; /* LinkApplicableType */
    Hex32BitHexAddressType deviceId;
    NodeInfoType nodeInfo;
} PCIeDestType;

/* A port of a PCI Express switch with its links and destinations. */
typedef struct BasePCIePortType {
    struct {
        uint8_t width : 1;
        uint8_t isTransparentPort : 1;
        uint8_t isPrimary : 1;
        uint8_t hwPinLabel : 1;
        uint8_t pciGen : 1;
    } has;
    xb_data_list xmlns;
    int16_t width;
    uint8_t isTransparentPort; /* 0 or 1 */
    uint8_t isPrimary; /* 0 or 1 */
    const char *hwPinLabel;
    Hex8BitHexAddressType portNumber;
    uint32_t pciGen; /* PciGen */
    xb_data_list pciLink; /* of PciSequenceType */
    xb_data_list dstInfo; /* of PCIeDestType */
} BasePCIePortType;

/* A bit of a hardware register. */
typedef struct HardwareRegistersType {
    struct {
        uint8_t wordOffset : 1;
        uint8_t bitNumber : 1;
    } has;
    xb_data_list xmlns;
    uint32_t wordOffset;
    uint32_t bitNumber;
} HardwareRegistersType;

/* Where the alert, presence and reset signals of an entity are read and driven. */
typedef struct HwSignalsType {
    struct {
        uint8_t i2cPath : 1;
    } has;
    xb_data_list xmlns;
    uint8_t direct; /* 0 or 1 */
    HardwareRegistersType alert;
    HardwareRegistersType present;
    HardwareRegistersType reset;
    I2cSequenceType i2cPath;
} HwSignalsType;

/* How much power an entity draws and from which zone. */
typedef struct PowerConsumerType {
    struct {
        uint8_t minPowerBudget : 1;
        uint8_t maxPowerBudget : 1;
        uint8_t extPowerBudget : 1;
        uint8_t powerUsage : 1;
    } has;
    xb_data_list xmlns;
    xb_data_list openQuestion; /* of text */
    PowerType minPowerBudget;
    PowerType maxPowerBudget;
    PowerType extPowerBudget;
    uint32_t powerUsage;
    uint32_t powerZone; /* PowerZonesValuesType */
} PowerConsumerType;

/* How much power an entity supplies. */
typedef struct PowerProducerType {
    struct {
        uint8_t maxPower : 1;
        uint8_t currentPower : 1;
    } has;
    xb_data_list xmlns;
    PowerType maxPower;
    PowerType currentPower;
} PowerProducerType;

/* A part of a unit whose power is switched together. */
typedef struct PowerZoneType {
    struct {
        uint8_t description : 1;
    } has;
    xb_data_list xmlns;
    xb_data_list openQuestion; /* of text */
    const char *description;
    uint32_t zone; /* PowerZonesValuesType */
    uint8_t powerOnOffCapability; /* 0 or 1 */
    uint8_t powerApplied; /* 0 or 1 */
    PowerType totalPowerRequired;
    uint8_t mainZone; /* 0 or 1 */
    int16_t pdZoneNumber;
} PowerZoneType;

/* All power zones of a unit; at least one. */
typedef struct PowerInfoType {
    struct {
        uint8_t kbrsReference : 1;
    } has;
    xb_data_list xmlns;
    xb_data_list openQuestion; /* of text */
    const char *kbrsReference;
    xb_data_list powerZone; /* of PowerZoneType */
} PowerInfoType;

/* One state that a light can show. */
typedef struct BaseLedInfoType {
    xb_data_list xmlns;
    uint32_t color; /* BaseLedColorsType */
    uint32_t control; /* BaseLedControlType */
} BaseLedInfoType;

/* All containers of one kind in a chassis and how the units in them are reached. */
typedef struct BaseContainerListType {
    struct {
        uint8_t kbrsReference : 1;
        uint8_t i2cAccess : 1;
        uint8_t i2cIDPROM : 1;
        uint8_t pciAccess : 1;
    } has;
    xb_data_list xmlns;
    uint32_t containerType; /* BaseContainerListType_containerType */
    int16_t maxContainers;
    xb_data_list pdNotes; /* of text */
    xb_data_list openQuestion; /* of text */
    const char *kbrsReference;
    I2cSequenceType i2cAccess;
    I2cSequenceType i2cIDPROM;
    PciSequenceType pciAccess;
    xb_data_list entityContainer; /* of xb_choice: BaseContainerType */
} BaseContainerListType;

/* Limits of a measured value, from the lowest to the highest, in the unit of the value. */
typedef struct BaseThresholdType {
    xb_data_list xmlns;
    int32_t criticalLow;
    int32_t majorLow;
    int32_t minorLow;
    int32_t minorHigh;
    int32_t majorHigh;
    int32_t criticalHigh;
} BaseThresholdType;

/* One range of a flash memory and what it is used for. */
typedef struct BaseStorageMemoryMap {
    xb_data_list xmlns;
    uint32_t memoryUsage; /* BaseStorageMemoryMap_memoryUsage */
    uint32_t blocks;
    xb_octets startAddr;
    xb_octets endAddr;
} BaseStorageMemoryMap;

/* Names the controller of a unit. */
typedef struct BaseControlInfoType {
    xb_data_list xmlns;
    const char *name;
} BaseControlInfoType;

/* Marks a switch port map; the element is empty. */
typedef struct SwitchPortMapType {
    xb_data_list xmlns;
} SwitchPortMapType;

/* What every entity of the inventory has: its identity (attributes), its state and how it is reached, powered
 * and signalled (elements). All entity types extend it. */
typedef struct BaseEntityType {
    struct {
        uint8_t description : 1;
        uint8_t oid : 1;
        uint8_t adminState : 1;
        uint8_t operState : 1;
        uint8_t powerAdminState : 1;
        uint8_t powerOperState : 1;
        uint8_t dualRouter : 1;
        uint8_t fruable : 1;
        uint8_t oir : 1;
        uint8_t entitySelect : 1;
        uint8_t replicationStateScope : 1;
        uint8_t entityOwner : 1;
        uint8_t snmpEntity : 1;
        uint8_t isPrimary : 1;
        uint8_t isPrefixNeeded : 1;
        uint8_t isHidden : 1;
        uint8_t resetBaseData : 1;
        uint8_t resetDynamicData : 1;
        uint8_t resetNoData : 1;
        uint8_t kbrsReference : 1;
        uint8_t powerConsumer : 1;
        uint8_t powerProducer : 1;
        uint8_t hardwareVersion : 1;
        uint8_t softwareVersion : 1;
        uint8_t firmwareVersion : 1;
        uint8_t pdHardwareModel : 1;
        uint8_t hwSignals : 1;
        uint8_t i2cNode : 1;
        uint8_t pcieNode : 1;
        uint8_t obflData : 1;
        uint8_t pmBusPort : 1;
        uint8_t driverRegistered : 1;
        uint8_t driverRequired : 1;
        uint8_t driverId : 1;
    } has;
    xb_data_list xmlns;
    const char *name;
    const char *description;
    const char *oid;
    uint32_t adminState; /* BaseEntityType_adminState */
    uint32_t operState; /* BaseEntityType_operState */
    uint32_t powerAdminState; /* BaseEntityType_powerAdminState */
    uint32_t powerOperState; /* BaseEntityType_powerOperState */
    uint32_t dualRouter; /* BaseEntityType_dualRouter */
    uint8_t fruable; /* 0 or 1 */
    uint8_t oir; /* 0 or 1 */
    uint32_t type; /* EidType */
    uint32_t subtype; /* EidSubType */
    int16_t instance;
    uint32_t replicationScope; /* ReplicationLevelsType */
    uint32_t entitySelect; /* EntitySelectionType */
    uint32_t replicationStateScope; /* ReplicationLevelsType */
    uint32_t entityOwner; /* EntityOwnerType */
    uint8_t snmpEntity; /* 0 or 1 */
    uint8_t isPrimary; /* 0 or 1 */
    int16_t xmlInstance;
    uint8_t isPrefixNeeded; /* 0 or 1 */
    uint8_t isHidden; /* 0 or 1 */
    uint8_t resetBaseData; /* 0 or 1 */
    uint8_t resetDynamicData; /* 0 or 1 */
    uint8_t resetNoData; /* 0 or 1 */
    xb_data_list pdNotes; /* of text */
    xb_data_list openQuestion; /* of text */
    const char *kbrsReference;
    PowerConsumerType powerConsumer;
    PowerProducerType powerProducer;
    const char *hardwareVersion;
    const char *softwareVersion;
    const char *firmwareVersion;
    uint32_t pdHardwareModel; /* HardwareModelType */
    HwSignalsType hwSignals;
    xb_data_list spiPort; /* of SpiPortType */
    I2cNodeType i2cNode;
    xb_data_list i2cPort; /* of I2cPortType */
    PCIeNodeType pcieNode;
    xb_data_list pciePort; /* of BasePCIePortType */
    uint32_t obflData;
    PMBusPortType pmBusPort;
    uint8_t driverRegistered; /* 0 or 1 */
    uint8_t driverRequired; /* 0 or 1 */
    int16_t driverId;
} BaseEntityType;

/* Extension content of BaseLEDType. */
typedef struct BaseLEDType_2 {
    struct {
        uint8_t cccAddrOffset : 1;
        uint8_t cccAddrBits : 1;
    } has;
    Hex32BitHexAddressType cccAddrOffset;
    Hex32BitHexAddressType cccAddrBits;
    xb_data_list ledInfo; /* of BaseLedInfoType */
} BaseLEDType_2;

/* An indicator light and the states it can show. */
typedef struct BaseLEDType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseLEDType_2 ext;
} BaseLEDType;

/* Extension content of BaseContainerType. */
typedef struct BaseContainerType_2 {
    struct {
        uint8_t i2cIDPROM : 1;
    } has;
    I2cSequenceType i2cIDPROM;
} BaseContainerType_2;

/* A slot, socket or bay that can hold a replaceable unit. */
typedef struct BaseContainerType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
        uint8_t position : 1;
        uint8_t hardwarePosition : 1;
    } has;
    BaseContainerType_2 ext;
    int32_t position;
    int32_t hardwarePosition;
} BaseContainerType;

/* Extension content of PemBayType. */
typedef struct PemBayType_2 {
    struct {
        uint8_t i2cSensorAccess : 1;
        uint8_t i2cIDPROM : 1;
    } has;
    xb_choice i2cSensorAccess; /* BaseEntityType or derived */
    I2cSequenceType i2cIDPROM;
} PemBayType_2;

/* A bay of a power shelf that takes a power entry module. A second i2cIDPROM behind i2cSensorAccess belongs
 * to the bay. */
typedef struct PemBayType {
    BaseContainerType base;
    struct {
        uint8_t ext : 1;
    } has;
    PemBayType_2 ext;
} PemBayType;

/* Extension content of BaseCEPortType. */
typedef struct BaseCEPortType_2 {
    struct {
        uint8_t operatingBandWidth : 1;
        uint8_t pd_specific_client : 1;
        uint8_t CC0nativeVlan : 1;
        uint8_t CC1nativeVlan : 1;
        uint8_t nativeVlan : 1;
        uint8_t CC0portSpeed : 1;
        uint8_t CC1portSpeed : 1;
        uint8_t portSpeed : 1;
        uint8_t CC0portMode : 1;
        uint8_t CC1portMode : 1;
        uint8_t portMode : 1;
        uint8_t portAdminState : 1;
        uint8_t CC0mlapFlags : 1;
        uint8_t CC1mlapFlags : 1;
        uint8_t mlapFlags : 1;
        uint8_t CC0portDest : 1;
        uint8_t CC0PortDestName : 1;
        uint8_t CC1portDest : 1;
        uint8_t CC1PortDestName : 1;
        uint8_t portDest : 1;
        uint8_t PortDestName : 1;
        uint8_t mdioClkSpeed : 1;
        uint8_t LocalSwitching : 1;
        uint8_t sfpController : 1;
        uint8_t phyType : 1;
        uint8_t container : 1;
    } has;
    uint32_t portNumber;
    uint32_t operatingBandWidth;
    uint32_t client; /* EsdDevClientType */
    uint32_t pd_specific_client;
    uint32_t CC0nativeVlan; /* EsdDevVlanType */
    uint32_t CC1nativeVlan; /* EsdDevVlanType */
    uint32_t nativeVlan; /* EsdDevVlanType */
    uint32_t CC0portSpeed; /* PortSpeedType */
    uint32_t CC1portSpeed; /* PortSpeedType */
    uint32_t portSpeed; /* PortSpeedType */
    uint32_t CC0portMode; /* PortModeType */
    uint32_t CC1portMode; /* PortModeType */
    uint32_t portMode; /* PortModeType */
    uint32_t portAdminState; /* PortState */
    Hex32BitHexAddressType CC0mlapFlags;
    Hex32BitHexAddressType CC1mlapFlags;
    Hex32BitHexAddressType mlapFlags;
    uint32_t serdes; /* SerdesParamsType */
    uint32_t CC0portDest; /* EsdPortDestType */
    const char *CC0PortDestName;
    uint32_t CC1portDest; /* EsdPortDestType */
    const char *CC1PortDestName;
    uint32_t portDest; /* EsdPortDestType */
    const char *PortDestName;
    uint32_t policingPortMap;
    uint32_t mdioChannel;
    uint32_t mdioClkSpeed; /* MdioSpeed */
    uint32_t LocalSwitching; /* LocalSwitching */
    uint32_t sfpController; /* SfpControllerType */
    uint32_t phyType; /* PhyType */
    xb_data_list led; /* of BaseLEDType */
    xb_choice container; /* BaseContainerType or derived */
} BaseCEPortType_2;

/* A port of the control Ethernet. */
typedef struct BaseCEPortType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseCEPortType_2 ext;
    uint32_t portUsage; /* PortUsageType */
} BaseCEPortType;

/* A port of a control Ethernet switch that may lead to the face plate. */
typedef struct BaseCESwitchType_2_port {
    BaseCEPortType base;
    uint8_t facePlatePort; /* 0 or 1 */
} BaseCESwitchType_2_port;

/* Extension content of BaseFPGAType. */
typedef struct BaseFPGAType_2 {
    struct {
        uint8_t hardwareVersionMajor : 1;
        uint8_t hardwareVersionMinor : 1;
        uint8_t minimumHardwareVersionMajor : 1;
        uint8_t minimumHardwareVersionMinor : 1;
        uint8_t firmwareVersionMajor : 1;
        uint8_t firmwareVersionMinor : 1;
        uint8_t minimumFirmwareVersionMajor : 1;
        uint8_t minimumFirmwareVersionMinor : 1;
        uint8_t installedFirmwareVersionMajor : 1;
        uint8_t installedFirmwareVersionMinor : 1;
        uint8_t inUpgradeProcess : 1;
        uint8_t configSpiFlash : 1;
        uint8_t secureBootType : 1;
    } has;
    uint8_t fieldUpgradable; /* 0 or 1 */
    uint32_t size;
    int16_t hardwareVersionMajor;
    int16_t hardwareVersionMinor;
    int16_t minimumHardwareVersionMajor;
    int16_t minimumHardwareVersionMinor;
    int16_t firmwareVersionMajor;
    int16_t firmwareVersionMinor;
    int16_t minimumFirmwareVersionMajor;
    int16_t minimumFirmwareVersionMinor;
    int16_t installedFirmwareVersionMajor;
    int16_t installedFirmwareVersionMinor;
    uint8_t inUpgradeProcess; /* 0 or 1 */
    int16_t configSpiFlash;
    uint32_t secureBootType;
} BaseFPGAType_2;

/* A programmable logic device with its image versions. */
typedef struct BaseFPGAType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseFPGAType_2 ext;
} BaseFPGAType;

/* Extension content of BaseIdEEPROMType. */
typedef struct BaseIdEEPROMType_2 {
    struct {
        uint8_t hardwareVersion : 1;
        uint8_t size : 1;
        uint8_t CLEICodeNum : 1;
        uint8_t manufacturerID : 1;
        uint8_t vendorName : 1;
        uint8_t vendorPN : 1;
        uint8_t PCBRevNumber : 1;
        uint8_t PCBSerialNumber : 1;
        uint8_t yearMD : 1;
        uint8_t monthMD : 1;
        uint8_t dayMD : 1;
        uint8_t lot : 1;
        uint8_t checkSum : 1;
        uint8_t PID : 1;
        uint8_t VID : 1;
        uint8_t PN : 1;
        uint8_t rev : 1;
        uint8_t boardID : 1;
    } has;
    uint8_t hardwareVersion;
    uint16_t size;
    const char *CLEICodeNum;
    const char *manufacturerID;
    const char *vendorName;
    const char *vendorPN;
    const char *PCBRevNumber;
    const char *PCBSerialNumber;
    const char *yearMD;
    const char *monthMD;
    const char *dayMD;
    const char *lot;
    int8_t checkSum;
    const char *PID;
    const char *VID;
    const char *PN;
    const char *rev;
    uint16_t boardID;
} BaseIdEEPROMType_2;

/* A memory that holds the identity of a board. An element hardwareVersion in front of the other extension
 * items goes to the inherited item while that one has not been passed. */
typedef struct BaseIdEEPROMType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseIdEEPROMType_2 ext;
    uint32_t eepromType; /* EepromUsageType */
} BaseIdEEPROMType;

/* Extension content of BaseStorageType. */
typedef struct BaseStorageType_2 {
    struct {
        uint8_t speed : 1;
        uint8_t storageSpeedUnit : 1;
    } has;
    xb_octets maxCapacity;
    uint32_t speed;
    uint32_t storageSpeedUnit; /* MemAccessSpeedUnit */
    xb_data_list fpga; /* of BaseFPGAType */
    xb_data_list eeprom; /* of BaseIdEEPROMType */
} BaseStorageType_2;

/* A storage device. */
typedef struct BaseStorageType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseStorageType_2 ext;
} BaseStorageType;

/* Extension content of BaseSpiFlash. */
typedef struct BaseSpiFlash_2 {
    uint32_t channel;
    xb_octets blockSizeKB;
    xb_data_list memoryRow; /* of BaseStorageMemoryMap */
} BaseSpiFlash_2;

/* A flash memory on an SPI channel. */
typedef struct BaseSpiFlash {
    BaseStorageType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseSpiFlash_2 ext;
} BaseSpiFlash;

/* Extension content of BaseSensorType. */
typedef struct BaseSensorType_2 {
    struct {
        uint8_t threshold : 1;
        uint8_t pd_data1 : 1;
        uint8_t pd_data2 : 1;
        uint8_t powerdomain : 1;
        uint8_t hwPollRegisterOffset : 1;
        uint8_t isCoreAutopolled : 1;
        uint8_t sensorDataLength : 1;
        uint8_t userDefinedUnit : 1;
        uint8_t precision : 1;
    } has;
    BaseThresholdType threshold;
    int32_t value;
    int32_t lastValue;
    Hex32BitHexAddressType pd_data1;
    Hex32BitHexAddressType pd_data2;
    Hex32BitHexAddressType powerdomain;
    Hex32BitHexAddressType hwPollRegisterOffset;
    uint8_t isCoreAutopolled; /* 0 or 1 */
    int16_t sensorDataLength;
    uint32_t unit; /* BaseSensorType_2_unit */
    uint32_t userDefinedUnit; /* BaseSensorType_2_userDefinedUnit */
    uint32_t scale; /* BaseSensorType_2_scale */
    int32_t precision;
} BaseSensorType_2;

/* A sensor with its value, unit and limits. */
typedef struct BaseSensorType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
        uint8_t isMarginable : 1;
        uint8_t isRov : 1;
        uint8_t marginRegister : 1;
    } has;
    BaseSensorType_2 ext;
    uint8_t isMarginable; /* 0 or 1 */
    uint8_t isRov; /* 0 or 1 */
    Hex32BitHexAddressType marginRegister;
} BaseSensorType;

/* A chip on an I2C bus (multiplexer, expander or the like); the inherited items describe it fully. */
typedef struct I2cChipType {
    BaseEntityType base;
} I2cChipType;

/* Extension content of BasePCIeSwitchType. */
typedef struct BasePCIeSwitchType_2 {
    struct {
        uint8_t sensor : 1;
    } has;
    xb_data_list configGen; /* of PciGen */
    BaseSensorType sensor;
    xb_data_list fpga; /* of BaseFPGAType */
} BasePCIeSwitchType_2;

/* A PCI Express switch. */
typedef struct BasePCIeSwitchType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BasePCIeSwitchType_2 ext;
} BasePCIeSwitchType;

/* Extension content of BaseVoltageMarginType. */
typedef struct BaseVoltageMarginType_2 {
    int32_t highValue;
    int32_t lowValue;
    uint32_t operation; /* BaseVoltageMarginType_2_operation */
} BaseVoltageMarginType_2;

/* A rail whose voltage can be moved for a margin test. */
typedef struct BaseVoltageMarginType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseVoltageMarginType_2 ext;
} BaseVoltageMarginType;

/* Extension content of BaseProcessorType. */
typedef struct BaseProcessorType_2 {
    struct {
        uint8_t busSpeed : 1;
        uint8_t busSpeedUnit : 1;
        uint8_t cpuSpeed : 1;
        uint8_t cpuSpeedUnit : 1;
        uint8_t oscillationSpeed : 1;
        uint8_t oscillationSpeedUnit : 1;
    } has;
    uint32_t cores;
    const char *clockSpeed;
    uint32_t busSpeed;
    uint32_t busSpeedUnit; /* CyclesPerSecUnit */
    uint32_t cpuSpeed;
    uint32_t cpuSpeedUnit; /* CyclesPerSecUnit */
    uint32_t oscillationSpeed;
    uint32_t oscillationSpeedUnit; /* CyclesPerSecUnit */
    const char *cacheSizeL1;
    const char *cacheSizeL2;
    const char *cacheSizeL3;
} BaseProcessorType_2;

/* A processor with its clocks and caches. */
typedef struct BaseProcessorType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseProcessorType_2 ext;
} BaseProcessorType;

/* Extension content of BaseMemoryType. */
typedef struct BaseMemoryType_2 {
    const char *capacity;
    const char *serialNumber;
    const char *firmwareVersion;
} BaseMemoryType_2;

/* A memory module. */
typedef struct BaseMemoryType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseMemoryType_2 ext;
} BaseMemoryType;

/* Extension content of BaseCESwitchType. */
typedef struct BaseCESwitchType_2 {
    struct {
        uint8_t maxPorts : 1;
    } has;
    uint32_t maxPorts;
    uint32_t cores;
    xb_data_list port; /* of BaseCESwitchType_2_port */
    xb_data_list fpga; /* of BaseFPGAType */
} BaseCESwitchType_2;

/* A control Ethernet switch with its ports. */
typedef struct BaseCESwitchType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseCESwitchType_2 ext;
} BaseCESwitchType;

/* Extension content of BaseKestoType. */
typedef struct BaseKestoType_2 {
    uint32_t isValidated; /* BaseKestoType_2_isValidated */
} BaseKestoType_2;

/* A chip that proves that the board is genuine. */
typedef struct BaseKestoType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseKestoType_2 ext;
} BaseKestoType;

/* Extension content of BasePortType. */
typedef struct BasePortType_2 {
    struct {
        uint8_t container : 1;
    } has;
    int64_t maxBandWidth;
    uint32_t operatingBandWidth;
    const char *hwBoardIdentifier;
    xb_data_list led; /* of BaseLEDType */
    xb_choice container; /* BaseContainerType or derived */
} BasePortType_2;

/* A port on the face plate. */
typedef struct BasePortType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BasePortType_2 ext;
    uint32_t portUsage; /* PortUsageType */
} BasePortType;

/* A console port. */
typedef struct BaseConsoleType {
    BasePortType base;
    uint32_t usage; /* BaseConsoleType_usage */
} BaseConsoleType;

/* Extension content of BaseModuleType. */
typedef struct BaseModuleType_2 {
    struct {
        uint8_t logicalModuleNum : 1;
        uint8_t powerInfo : 1;
        uint8_t powerController : 1;
    } has;
    int16_t logicalModuleNum;
    PowerInfoType powerInfo;
    xb_data_list fpga; /* of BaseFPGAType */
    xb_data_list i2c; /* of I2cChipType */
    xb_data_list pcieSwitch; /* of BasePCIeSwitchType */
    xb_data_list sensor; /* of BaseSensorType */
    xb_data_list voltMargin; /* of BaseVoltageMarginType */
    xb_data_list storageSPI; /* of BaseSpiFlash */
    xb_data_list storageHDD; /* of xb_choice: BaseStorageType */
    xb_data_list processor; /* of BaseProcessorType */
    xb_data_list memory; /* of BaseMemoryType */
    xb_data_list ceSwitch; /* of BaseCESwitchType */
    xb_data_list security; /* of BaseKestoType */
    xb_data_list console; /* of BaseConsoleType */
    xb_data_list module; /* of xb_choice: BaseModuleType */
    xb_data_list container; /* of xb_choice: BaseContainerType */
    xb_data_list eeprom; /* of BaseIdEEPROMType */
    xb_data_list fixedPorts; /* of xb_choice: BasePortType */
    int16_t powerController;
    xb_data_list led; /* of BaseLEDType */
} BaseModuleType_2;

/* A board, card or other assembly with all components on it; modules nest. */
typedef struct BaseModuleType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseModuleType_2 ext;
} BaseModuleType;

/* Extension content of OpticsType. */
typedef struct OpticsType_2 {
    int16_t numberChannels;
    uint8_t sensorPerChannel; /* 0 or 1 */
    int16_t xmlInstanceStart;
    BaseThresholdType sensorLosThresholds;
    BaseThresholdType sensorBiasThresholds;
    BaseThresholdType sensorThermoThresholds;
    BaseThresholdType sensorVoltageThresholds;
    uint8_t summaryLosTx; /* 0 or 1 */
    uint8_t summaryFaultTx; /* 0 or 1 */
    uint8_t summaryBiasTx; /* 0 or 1 */
    uint8_t summaryModuleTx; /* 0 or 1 */
    uint8_t summaryLosRx; /* 0 or 1 */
    uint8_t summaryFaultRx; /* 0 or 1 */
    uint8_t summaryBiasRx; /* 0 or 1 */
    uint8_t summaryModuleRx; /* 0 or 1 */
} OpticsType_2;

/* An optics module with several channels. */
typedef struct OpticsType {
    BaseModuleType base;
    struct {
        uint8_t ext : 1;
    } has;
    OpticsType_2 ext;
} OpticsType;

/* Extension content of PEMType. */
typedef struct PEMType_2 {
    xb_data_list fan; /* of FanType */
    uint32_t hoursUsage;
    uint32_t faultStatus; /* PEMType_2_faultStatus */
    uint32_t psmState; /* PEMType_2_psmState */
} PEMType_2;

/* A power entry module. */
typedef struct PEMType {
    BaseModuleType base;
    struct {
        uint8_t ext : 1;
    } has;
    PEMType_2 ext;
} PEMType;

/* Extension content of FanTrayType. */
typedef struct FanTrayType_2 {
    xb_data_list fan; /* of FanType */
} FanTrayType_2;

/* A tray of fans. */
typedef struct FanTrayType {
    BaseModuleType base;
    struct {
        uint8_t ext : 1;
    } has;
    FanTrayType_2 ext;
} FanTrayType;

/* Extension content of BackPlaneType. */
typedef struct BackPlaneType_2 {
    xb_data_list eeprom; /* of BaseIdEEPROMType */
    xb_data_list sensor; /* of BaseSensorType */
    xb_data_list module; /* of xb_choice: BaseModuleType */
} BackPlaneType_2;

/* The back plane or midplane of a chassis. */
typedef struct BackPlaneType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BackPlaneType_2 ext;
} BackPlaneType;

/* Extension content of FanType. */
typedef struct FanType_2 {
    BaseSensorType sensor;
    xb_data_list module; /* of xb_choice: BaseModuleType */
} FanType_2;

/* A fan with its speed sensor. */
typedef struct FanType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    FanType_2 ext;
} FanType;

/* Extension content of BaseModuleTestType. */
typedef struct BaseModuleTestType_2 {
    struct {
        uint8_t minPowerBudget : 1;
        uint8_t maxPowerBudget : 1;
        uint8_t powerUsage : 1;
        uint8_t powerApplied : 1;
        uint8_t powerZone : 1;
    } has;
    uint8_t isPowerProducer; /* 0 or 1 */
    uint8_t powerOnOffCapability; /* 0 or 1 */
    uint32_t minPowerBudget;
    uint32_t maxPowerBudget;
    uint32_t powerUsage;
    uint8_t powerApplied; /* 0 or 1 */
    uint32_t powerZone;
} BaseModuleTestType_2;

/* Figures of a module under test. */
typedef struct BaseModuleTestType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseModuleTestType_2 ext;
} BaseModuleTestType;

/* Extension content of BaseCraftInterfaceType. */
typedef struct BaseCraftInterfaceType_2 {
    xb_data_list eeprom; /* of BaseIdEEPROMType */
    xb_data_list fpga; /* of BaseFPGAType */
    xb_choice spiFlash; /* BaseStorageType or derived */
} BaseCraftInterfaceType_2;

/* The panel of lights, displays and contacts for the operator. */
typedef struct BaseCraftInterfaceType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    BaseCraftInterfaceType_2 ext;
} BaseCraftInterfaceType;

/* Extension content of ChassisEntityType. */
typedef struct ChassisEntityType_2 {
    struct {
        uint8_t backPlane : 1;
        uint8_t ecuSlot : 1;
        uint8_t craftInterfaceSlot : 1;
    } has;
    uint32_t fruBits;
    uint32_t instanceBits;
    uint32_t rackNumber;
    uint32_t availablePower;
    PowerInfoType powerInfo;
    BackPlaneType backPlane;
    xb_choice ecuSlot; /* BaseContainerType or derived */
    xb_choice craftInterfaceSlot; /* BaseContainerType or derived */
    xb_data_list entityContainerList; /* of BaseContainerListType */
    xb_data_list led; /* of BaseLEDType */
} ChassisEntityType_2;

/* A chassis with its back plane and its slots. */
typedef struct ChassisEntityType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    ChassisEntityType_2 ext;
} ChassisEntityType;

/* Extension content of PowerShelfType. */
typedef struct PowerShelfType_2 {
    PowerInfoType powerInfo;
    xb_data_list i2c; /* of I2cChipType */
    xb_data_list eeprom; /* of BaseIdEEPROMType */
    xb_data_list sensor; /* of BaseSensorType */
    int16_t maxPemContainers;
    xb_data_list pemBay; /* of PemBayType */
    xb_data_list module; /* of xb_choice: BaseModuleType */
} PowerShelfType_2;

/* A shelf of power entry modules. */
typedef struct PowerShelfType {
    BaseEntityType base;
    struct {
        uint8_t ext : 1;
    } has;
    PowerShelfType_2 ext;
} PowerShelfType;

/* Bring a record into its initial state, whatever it held. */
void Init_NodeInfoType(NodeInfoType *record);
void Init_I2cNodeType(I2cNodeType *record);
void Init_I2cSequenceType(I2cSequenceType *record);
void Init_I2cDestType(I2cDestType *record);
void Init_I2cPortType(I2cPortType *record);
void Init_PCIeNodeType(PCIeNodeType *record);
void Init_PciSequenceType(PciSequenceType *record);
void Init_PMBusPortType(PMBusPortType *record);
void Init_SpiDestType(SpiDestType *record);
void Init_SpiPortType(SpiPortType *record);
void Init_PCIeDestType(PCIeDestType *record);
void Init_BasePCIePortType(BasePCIePortType *record);
void Init_HardwareRegistersType(HardwareRegistersType *record);
void Init_HwSignalsType(HwSignalsType *record);
void Init_PowerConsumerType(PowerConsumerType *record);
void Init_PowerProducerType(PowerProducerType *record);
void Init_PowerZoneType(PowerZoneType *record);
void Init_PowerInfoType(PowerInfoType *record);
void Init_BaseLedInfoType(BaseLedInfoType *record);
void Init_BaseContainerListType(BaseContainerListType *record);
void Init_BaseThresholdType(BaseThresholdType *record);
void Init_BaseStorageMemoryMap(BaseStorageMemoryMap *record);
void Init_BaseControlInfoType(BaseControlInfoType *record);
void Init_SwitchPortMapType(SwitchPortMapType *record);
void Init_BaseEntityType(BaseEntityType *record);
void Init_BaseLEDType(BaseLEDType *record);
void Init_BaseContainerType(BaseContainerType *record);
void Init_PemBayType(PemBayType *record);
void Init_BaseCEPortType(BaseCEPortType *record);
void Init_BaseCESwitchType_2_port(BaseCESwitchType_2_port *record);
void Init_BaseFPGAType(BaseFPGAType *record);
void Init_BaseIdEEPROMType(BaseIdEEPROMType *record);
void Init_BaseStorageType(BaseStorageType *record);
void Init_BaseSpiFlash(BaseSpiFlash *record);
void Init_BaseSensorType(BaseSensorType *record);
void Init_I2cChipType(I2cChipType *record);
void Init_BasePCIeSwitchType(BasePCIeSwitchType *record);
void Init_BaseVoltageMarginType(BaseVoltageMarginType *record);
void Init_BaseProcessorType(BaseProcessorType *record);
void Init_BaseMemoryType(BaseMemoryType *record);
void Init_BaseCESwitchType(BaseCESwitchType *record);
void Init_BaseKestoType(BaseKestoType *record);
void Init_BasePortType(BasePortType *record);
void Init_BaseConsoleType(BaseConsoleType *record);
void Init_BaseModuleType(BaseModuleType *record);
void Init_OpticsType(OpticsType *record);
void Init_PEMType(PEMType *record);
void Init_FanTrayType(FanTrayType *record);
void Init_BackPlaneType(BackPlaneType *record);
void Init_FanType(FanType *record);
void Init_BaseModuleTestType(BaseModuleTestType *record);
void Init_BaseCraftInterfaceType(BaseCraftInterfaceType *record);
void Init_ChassisEntityType(ChassisEntityType *record);
void Init_PowerShelfType(PowerShelfType *record);

/* Token to code and back. A length of -1 stands for NUL-terminated text; the code pointer may be null and is
 * left alone on failure. Unknown codes give "_UNKNOWN_". */
int32_t ReplicationLevelsType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *ReplicationLevelsType_ToString(uint32_t code);
int32_t EntityOwnerType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EntityOwnerType_ToString(uint32_t code);
int32_t EntitySelectionType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EntitySelectionType_ToString(uint32_t code);
int32_t EidType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EidType_ToString(uint32_t code);
int32_t EidSubType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EidSubType_ToString(uint32_t code);
int32_t MemAccessSpeedUnit_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *MemAccessSpeedUnit_ToString(uint32_t code);
int32_t CyclesPerSecUnit_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *CyclesPerSecUnit_ToString(uint32_t code);
int32_t HardwareModelType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *HardwareModelType_ToString(uint32_t code);
int32_t LinkApplicableType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *LinkApplicableType_ToString(uint32_t code);
int32_t SequenceType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *SequenceType_ToString(uint32_t code);
int32_t I2cDeviceType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *I2cDeviceType_ToString(uint32_t code);
int32_t PowerZonesValuesType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PowerZonesValuesType_ToString(uint32_t code);
int32_t PciGen_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PciGen_ToString(uint32_t code);
int32_t PhyType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PhyType_ToString(uint32_t code);
int32_t EsdPortDestType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EsdPortDestType_ToString(uint32_t code);
int32_t PortState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PortState_ToString(uint32_t code);
int32_t MdioSpeed_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *MdioSpeed_ToString(uint32_t code);
int32_t LocalSwitching_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *LocalSwitching_ToString(uint32_t code);
int32_t SerdesParamsType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *SerdesParamsType_ToString(uint32_t code);
int32_t SfpControllerType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *SfpControllerType_ToString(uint32_t code);
int32_t EsdDevVlanType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EsdDevVlanType_ToString(uint32_t code);
int32_t EsdDevClientType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EsdDevClientType_ToString(uint32_t code);
int32_t PortSpeedType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PortSpeedType_ToString(uint32_t code);
int32_t PortModeType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PortModeType_ToString(uint32_t code);
int32_t BaseLedColorsType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseLedColorsType_ToString(uint32_t code);
int32_t BaseLedControlType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseLedControlType_ToString(uint32_t code);
int32_t PortUsageType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PortUsageType_ToString(uint32_t code);
int32_t EepromUsageType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *EepromUsageType_ToString(uint32_t code);
int32_t NodeInfoType_nodeType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *NodeInfoType_nodeType_ToString(uint32_t code);
int32_t I2cPortType_portType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *I2cPortType_portType_ToString(uint32_t code);
int32_t PCIeNodeType_deviceType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PCIeNodeType_deviceType_ToString(uint32_t code);
int32_t BaseContainerListType_containerType_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseContainerListType_containerType_ToString(uint32_t code);
int32_t BaseStorageMemoryMap_memoryUsage_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseStorageMemoryMap_memoryUsage_ToString(uint32_t code);
int32_t BaseEntityType_adminState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseEntityType_adminState_ToString(uint32_t code);
int32_t BaseEntityType_operState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseEntityType_operState_ToString(uint32_t code);
int32_t BaseEntityType_powerAdminState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseEntityType_powerAdminState_ToString(uint32_t code);
int32_t BaseEntityType_powerOperState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseEntityType_powerOperState_ToString(uint32_t code);
int32_t BaseEntityType_dualRouter_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseEntityType_dualRouter_ToString(uint32_t code);
int32_t BaseSensorType_2_unit_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseSensorType_2_unit_ToString(uint32_t code);
int32_t BaseSensorType_2_userDefinedUnit_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseSensorType_2_userDefinedUnit_ToString(uint32_t code);
int32_t BaseSensorType_2_scale_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseSensorType_2_scale_ToString(uint32_t code);
int32_t BaseVoltageMarginType_2_operation_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseVoltageMarginType_2_operation_ToString(uint32_t code);
int32_t BaseKestoType_2_isValidated_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseKestoType_2_isValidated_ToString(uint32_t code);
int32_t BaseConsoleType_usage_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *BaseConsoleType_usage_ToString(uint32_t code);
int32_t PEMType_2_faultStatus_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PEMType_2_faultStatus_ToString(uint32_t code);
int32_t PEMType_2_psmState_ToEnum(const char *text, int32_t length, uint32_t *code);
const char *PEMType_2_psmState_ToString(uint32_t code);

#ifdef __cplusplus
}
#endif

#endif /* ORVELIANINVENTORYSCHEMA_H */
