/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#include "OrvelianInventorySchema.h"

#include "decode/engine.h"
#include "decode/name_links.h"

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

constexpr xb_enum_row ReplicationLevelsType_rows[] = {
    {.token = "ORVL_REPLICATION_TYPE_ADMIN_RACK_SVC_SYSTEM", .code = 5, .token_length = 43,
     .inverse_index = 3},
    {.token = "ORVL_REPLICATION_TYPE_ADMIN_SYSTEM_SVC_RACK", .code = 4, .token_length = 43,
     .inverse_index = 4},
    {.token = "ORVL_REPLICATION_TYPE_NODE", .code = 3, .token_length = 26, .inverse_index = 5},
    {.token = "ORVL_REPLICATION_TYPE_NONE", .code = 0, .token_length = 26, .inverse_index = 2},
    {.token = "ORVL_REPLICATION_TYPE_RACK", .code = 1, .token_length = 26, .inverse_index = 1},
    {.token = "ORVL_REPLICATION_TYPE_SYSTEM", .code = 2, .token_length = 28, .inverse_index = 0},
};
constexpr auto ReplicationLevelsType_links = token_links(ReplicationLevelsType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::ReplicationLevelsType = {.rows = ReplicationLevelsType_rows, .links
    = ReplicationLevelsType_links.data(), .count = 6};

namespace
{

constexpr xb_enum_row EntityOwnerType_rows[] = {
    {.token = "ORVL_ENTITY_OWNER_TYPE_ALL", .code = 6, .token_length = 26, .inverse_index = 4},
    {.token = "ORVL_ENTITY_OWNER_TYPE_COMMON", .code = 5, .token_length = 29, .inverse_index = 6},
    {.token = "ORVL_ENTITY_OWNER_TYPE_ESD", .code = 3, .token_length = 26, .inverse_index = 3},
    {.token = "ORVL_ENTITY_OWNER_TYPE_FABRIC", .code = 2, .token_length = 29, .inverse_index = 2},
    {.token = "ORVL_ENTITY_OWNER_TYPE_NONE", .code = 0, .token_length = 27, .inverse_index = 5},
    {.token = "ORVL_ENTITY_OWNER_TYPE_QZ_SDR", .code = 4, .token_length = 29, .inverse_index = 1},
    {.token = "ORVL_ENTITY_OWNER_TYPE_SHELF", .code = 1, .token_length = 28, .inverse_index = 0},
};
constexpr auto EntityOwnerType_links = token_links(EntityOwnerType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EntityOwnerType = {.rows = EntityOwnerType_rows, .links =
    EntityOwnerType_links.data(), .count = 7};

namespace
{

constexpr xb_enum_row EntitySelectionType_rows[] = {
    {.token = "ORVL_ENTITY_ADD_ALL", .code = 1, .token_length = 19, .inverse_index = 1},
    {.token = "ORVL_ENTITY_ADD_SELECTIVE", .code = 0, .token_length = 25, .inverse_index = 0},
};
constexpr auto EntitySelectionType_links = token_links(EntitySelectionType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EntitySelectionType = {.rows = EntitySelectionType_rows, .links =
    EntitySelectionType_links.data(), .count = 2};

namespace
{

constexpr xb_enum_row EidType_rows[] = {
    {.token = "ORVL_ENTITY_TYPE_BACKPLANE", .code = 4, .token_length = 26, .inverse_index = 4},
    {.token = "ORVL_ENTITY_TYPE_CHASSIS", .code = 3, .token_length = 24, .inverse_index = 7},
    {.token = "ORVL_ENTITY_TYPE_CONTAINER", .code = 5, .token_length = 26, .inverse_index = 12},
    {.token = "ORVL_ENTITY_TYPE_CPU", .code = 12, .token_length = 20, .inverse_index = 1},
    {.token = "ORVL_ENTITY_TYPE_DUMMY", .code = 0, .token_length = 22, .inverse_index = 0},
    {.token = "ORVL_ENTITY_TYPE_FAN", .code = 7, .token_length = 20, .inverse_index = 2},
    {.token = "ORVL_ENTITY_TYPE_MODULE", .code = 9, .token_length = 23, .inverse_index = 9},
    {.token = "ORVL_ENTITY_TYPE_OTHER", .code = 1, .token_length = 22, .inverse_index = 5},
    {.token = "ORVL_ENTITY_TYPE_PORT", .code = 10, .token_length = 21, .inverse_index = 10},
    {.token = "ORVL_ENTITY_TYPE_POWERSUPPLY", .code = 6, .token_length = 28, .inverse_index = 6},
    {.token = "ORVL_ENTITY_TYPE_SENSOR", .code = 8, .token_length = 23, .inverse_index = 8},
    {.token = "ORVL_ENTITY_TYPE_STACK", .code = 11, .token_length = 22, .inverse_index = 11},
    {.token = "ORVL_ENTITY_TYPE_UNKNOWN", .code = 2, .token_length = 24, .inverse_index = 3},
};
constexpr auto EidType_links = token_links(EidType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EidType = {.rows = EidType_rows, .links = EidType_links.data(),
    .count = 13};

namespace
{

constexpr xb_enum_row EidSubType_rows[] = {
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_BSC", .code = 3, .token_length = 33, .inverse_index = 1},
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_DUMMY", .code = 0, .token_length = 35, .inverse_index = 3},
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_FCC", .code = 2, .token_length = 33, .inverse_index = 2},
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_LCC", .code = 1, .token_length = 33, .inverse_index = 0},
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_MAX", .code = 5, .token_length = 33, .inverse_index = 5},
    {.token = "ORVL_ENTITY_SUBTYPE_BACKPLANE_SCC", .code = 4, .token_length = 33, .inverse_index = 4},
    {.token = "ORVL_ENTITY_SUBTYPE_CHASSIS_BSC", .code = 9, .token_length = 31, .inverse_index = 7},
    {.token = "ORVL_ENTITY_SUBTYPE_CHASSIS_DUMMY", .code = 6, .token_length = 33, .inverse_index = 9},
    {.token = "ORVL_ENTITY_SUBTYPE_CHASSIS_FCC", .code = 8, .token_length = 31, .inverse_index = 8},
    {.token = "ORVL_ENTITY_SUBTYPE_CHASSIS_LCC", .code = 7, .token_length = 31, .inverse_index = 6},
    {.token = "ORVL_ENTITY_SUBTYPE_CHASSIS_MAX", .code = 10, .token_length = 31, .inverse_index = 10},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_BPID2", .code = 36, .token_length = 35, .inverse_index = 15},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_CC", .code = 13, .token_length = 32, .inverse_index = 20},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_CRAFT_INT", .code = 19, .token_length = 39, .inverse_index = 12},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_DIMM", .code = 20, .token_length = 34, .inverse_index = 39},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_DUMMY", .code = 11, .token_length = 35, .inverse_index = 19},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_ECU", .code = 29, .token_length = 33, .inverse_index = 18},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_ECU_DISK", .code = 34, .token_length = 38, .inverse_index = 36},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_FANTRAY", .code = 16, .token_length = 37, .inverse_index = 34},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_FC", .code = 15, .token_length = 32, .inverse_index = 13},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_LC", .code = 12, .token_length = 32, .inverse_index = 14},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_MAX", .code = 43, .token_length = 33, .inverse_index = 25},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_MPA", .code = 35, .token_length = 33, .inverse_index = 26},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICAL_CHANNEL", .code = 38, .token_length = 45,
     .inverse_index = 28},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_CFP2", .code = 33, .token_length = 41,
     .inverse_index = 31},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_CPAK", .code = 21, .token_length = 41,
     .inverse_index = 33},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_CXP", .code = 22, .token_length = 40,
     .inverse_index = 40},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_CXP2", .code = 40, .token_length = 41,
     .inverse_index = 42},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_QSFP", .code = 23, .token_length = 41,
     .inverse_index = 38},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_QSFP_28", .code = 32, .token_length = 44,
     .inverse_index = 16},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_QSFP_DD", .code = 41, .token_length = 44,
     .inverse_index = 35},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_SFP", .code = 24, .token_length = 40,
     .inverse_index = 43},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_SFP_28", .code = 39, .token_length = 43,
     .inverse_index = 29},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_OPTICS_SFP_PLUS", .code = 25, .token_length = 45,
     .inverse_index = 24},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_PEM", .code = 18, .token_length = 33, .inverse_index = 17},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_POWERFILTER", .code = 30, .token_length = 41,
     .inverse_index = 22},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_POWERSHELF", .code = 17, .token_length = 40,
     .inverse_index = 11},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_QZVPORT", .code = 37, .token_length = 37, .inverse_index = 37},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_RJ45", .code = 28, .token_length = 34, .inverse_index = 23},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_SC", .code = 14, .token_length = 32, .inverse_index = 32},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_SW", .code = 26, .token_length = 32, .inverse_index = 27},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_UNKNOWN", .code = 42, .token_length = 37, .inverse_index = 30},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_USB", .code = 27, .token_length = 33, .inverse_index = 41},
    {.token = "ORVL_ENTITY_SUBTYPE_CONTAINER_XC", .code = 31, .token_length = 32, .inverse_index = 21},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_ASIC_CPUCTRL", .code = 45, .token_length = 36, .inverse_index = 50},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_ASIC_FIA", .code = 46, .token_length = 32, .inverse_index = 44},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_ASIC_MAC", .code = 47, .token_length = 32, .inverse_index = 45},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_ASIC_OTHER", .code = 48, .token_length = 34, .inverse_index = 46},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_ASIC_UNKNOWN", .code = 53, .token_length = 36, .inverse_index = 47},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_CPU_COMPLEX", .code = 49, .token_length = 35, .inverse_index = 49},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_DUMMY", .code = 44, .token_length = 29, .inverse_index = 51},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_GPU", .code = 50, .token_length = 27, .inverse_index = 53},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_MAX", .code = 57, .token_length = 27, .inverse_index = 54},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_MCU", .code = 51, .token_length = 27, .inverse_index = 48},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_NPU", .code = 52, .token_length = 27, .inverse_index = 55},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_VIRTUAL_ADMIN", .code = 54, .token_length = 37, .inverse_index = 57},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_VIRTUAL_LC_SVC", .code = 56, .token_length = 38, .inverse_index = 56},
    {.token = "ORVL_ENTITY_SUBTYPE_CPU_VIRTUAL_RP_SVC", .code = 55, .token_length = 38, .inverse_index = 52},
    {.token = "ORVL_ENTITY_SUBTYPE_FAN_CTRL", .code = 59, .token_length = 28, .inverse_index = 59},
    {.token = "ORVL_ENTITY_SUBTYPE_FAN_DUMMY", .code = 58, .token_length = 29, .inverse_index = 58},
    {.token = "ORVL_ENTITY_SUBTYPE_FAN_INDEP", .code = 60, .token_length = 29, .inverse_index = 60},
    {.token = "ORVL_ENTITY_SUBTYPE_FAN_MAX", .code = 61, .token_length = 27, .inverse_index = 61},
    {.token = "ORVL_ENTITY_SUBTYPE_INVALID", .code = 235, .token_length = 27, .inverse_index = 75},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_ASIC", .code = 107, .token_length = 31, .inverse_index = 67},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_BITS", .code = 108, .token_length = 31, .inverse_index = 70},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_BPID2", .code = 126, .token_length = 32, .inverse_index = 71},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CC", .code = 133, .token_length = 29, .inverse_index = 73},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CE_SWITCH", .code = 63, .token_length = 36, .inverse_index = 78},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CLOCK", .code = 128, .token_length = 32, .inverse_index = 80},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CPUCTRL", .code = 109, .token_length = 34, .inverse_index = 81},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CPU_COMPLEX", .code = 64, .token_length = 38, .inverse_index = 82},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_CRAFT_INT", .code = 65, .token_length = 36, .inverse_index = 83},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_DAUGHTER_BOARD", .code = 96, .token_length = 41,
     .inverse_index = 85},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_DIMM", .code = 66, .token_length = 31, .inverse_index = 86},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_DSUB15", .code = 110, .token_length = 33, .inverse_index = 87},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_DUMMY", .code = 62, .token_length = 32, .inverse_index = 95},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_ECU", .code = 119, .token_length = 30, .inverse_index = 96},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_ECU_DISK", .code = 124, .token_length = 35, .inverse_index = 97},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_EEPROM", .code = 67, .token_length = 33, .inverse_index = 101},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_ETHER_CONTROLLER", .code = 105, .token_length = 43,
     .inverse_index = 102},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_FANTRAY", .code = 68, .token_length = 34, .inverse_index = 103},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_FC", .code = 69, .token_length = 29, .inverse_index = 106},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_FCC_SW", .code = 70, .token_length = 33, .inverse_index = 108},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_FLASH", .code = 71, .token_length = 32, .inverse_index = 111},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_FPGA", .code = 97, .token_length = 31, .inverse_index = 113},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_GE", .code = 72, .token_length = 29, .inverse_index = 115},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_HDD", .code = 73, .token_length = 30, .inverse_index = 117},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_HOST", .code = 74, .token_length = 31, .inverse_index = 116},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_I2C", .code = 98, .token_length = 30, .inverse_index = 109},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX", .code = 99, .token_length = 34, .inverse_index = 124},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_IDPROM", .code = 100, .token_length = 33, .inverse_index = 126},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_IEEE1588", .code = 112, .token_length = 35, .inverse_index = 128},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_MAX", .code = 135, .token_length = 30, .inverse_index = 129},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_MOTHER_BOARD", .code = 95, .token_length = 39,
     .inverse_index = 134},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_MPA", .code = 125, .token_length = 30, .inverse_index = 135},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_MSC", .code = 75, .token_length = 30, .inverse_index = 93},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_MULTISENSOR", .code = 76, .token_length = 38, .inverse_index = 72},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_NVRAM", .code = 77, .token_length = 32, .inverse_index = 84},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICAL_CHANNEL", .code = 130, .token_length = 42,
     .inverse_index = 88},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICAL_CONTROLLER", .code = 131, .token_length = 45,
     .inverse_index = 89},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_CFP2", .code = 132, .token_length = 38, .inverse_index = 90},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_CPAK", .code = 78, .token_length = 38, .inverse_index = 110},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_CXP", .code = 79, .token_length = 37, .inverse_index = 119},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_QSFP", .code = 80, .token_length = 38, .inverse_index = 127},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_QSFP28", .code = 123, .token_length = 40,
     .inverse_index = 130},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_QSFP_DD", .code = 134, .token_length = 41,
     .inverse_index = 79},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_SFP", .code = 81, .token_length = 37, .inverse_index = 118},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_SFP_28", .code = 129, .token_length = 40,
     .inverse_index = 63},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_OPTICS_SFP_PLUS", .code = 82, .token_length = 42,
     .inverse_index = 64},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PCH", .code = 88, .token_length = 30, .inverse_index = 69},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PCIE", .code = 101, .token_length = 31, .inverse_index = 74},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PCIE_SWITCH", .code = 83, .token_length = 38, .inverse_index = 131},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PHY", .code = 118, .token_length = 30, .inverse_index = 91},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PLIM", .code = 84, .token_length = 31, .inverse_index = 123},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_POWERFILTER", .code = 120, .token_length = 38,
     .inverse_index = 121},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF", .code = 85, .token_length = 37, .inverse_index = 122},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF_AC", .code = 87, .token_length = 40,
     .inverse_index = 125},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_POWERSHELF_DC", .code = 86, .token_length = 40,
     .inverse_index = 132},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_POWER_CONTROLLER", .code = 106, .token_length = 43,
     .inverse_index = 112},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_PSE", .code = 102, .token_length = 30, .inverse_index = 76},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_QZVPORT", .code = 127, .token_length = 34, .inverse_index = 114},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_RF_10MHZ", .code = 114, .token_length = 35, .inverse_index = 133},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_RF_1PPS", .code = 115, .token_length = 34, .inverse_index = 136},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_RJ45", .code = 113, .token_length = 31, .inverse_index = 104},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_RP", .code = 89, .token_length = 29, .inverse_index = 77},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_RS232", .code = 116, .token_length = 32, .inverse_index = 94},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_SC", .code = 90, .token_length = 29, .inverse_index = 65},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_SFE", .code = 103, .token_length = 30, .inverse_index = 120},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_SLICE", .code = 91, .token_length = 32, .inverse_index = 68},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_SSD", .code = 92, .token_length = 30, .inverse_index = 107},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_SWITCH", .code = 104, .token_length = 33, .inverse_index = 98},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_TCAM", .code = 111, .token_length = 31, .inverse_index = 99},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_TOD", .code = 117, .token_length = 30, .inverse_index = 100},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_TRC", .code = 121, .token_length = 30, .inverse_index = 66},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_UNKNOWN", .code = 93, .token_length = 34, .inverse_index = 105},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_USB", .code = 94, .token_length = 30, .inverse_index = 92},
    {.token = "ORVL_ENTITY_SUBTYPE_MODULE_XC", .code = 122, .token_length = 29, .inverse_index = 138},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_CONSOLE", .code = 137, .token_length = 33, .inverse_index = 137},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_DUMMY", .code = 136, .token_length = 31, .inverse_index = 140},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_MAX", .code = 143, .token_length = 29, .inverse_index = 142},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_SECURITY", .code = 138, .token_length = 34, .inverse_index = 144},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_STORAGE", .code = 141, .token_length = 33, .inverse_index = 141},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_SW_PROCESS", .code = 139, .token_length = 36, .inverse_index = 143},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_UNKNOWN", .code = 142, .token_length = 33, .inverse_index = 139},
    {.token = "ORVL_ENTITY_SUBTYPE_OTHER_VM", .code = 140, .token_length = 28, .inverse_index = 153},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ASIC", .code = 145, .token_length = 29, .inverse_index = 145},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_BITS", .code = 146, .token_length = 29, .inverse_index = 146},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_CE", .code = 147, .token_length = 27, .inverse_index = 147},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_CE_ME", .code = 166, .token_length = 30, .inverse_index = 149},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_CPU", .code = 148, .token_length = 28, .inverse_index = 150},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_CPUCTRL", .code = 149, .token_length = 32, .inverse_index = 152},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_CTRL_ETHERNET", .code = 151, .token_length = 38,
     .inverse_index = 151},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_DSUB15", .code = 150, .token_length = 31, .inverse_index = 154},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_DUMMY", .code = 144, .token_length = 30, .inverse_index = 155},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHERNET", .code = 152, .token_length = 33, .inverse_index = 156},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_100GB", .code = 153, .token_length = 36, .inverse_index = 157},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_100MB", .code = 154, .token_length = 36, .inverse_index = 158},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_10GB", .code = 155, .token_length = 35, .inverse_index = 159},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_10MB", .code = 156, .token_length = 35, .inverse_index = 164},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_1GB", .code = 157, .token_length = 34, .inverse_index = 162},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_200GB", .code = 187, .token_length = 36, .inverse_index = 166},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_25GB", .code = 184, .token_length = 35, .inverse_index = 168},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_2_5GB", .code = 159, .token_length = 36, .inverse_index = 169},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_400GB", .code = 186, .token_length = 36, .inverse_index = 173},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_40GB", .code = 158, .token_length = 35, .inverse_index = 179},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_ETHER_50GB", .code = 183, .token_length = 35, .inverse_index = 182},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_FABRIC", .code = 160, .token_length = 31, .inverse_index = 148},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_G709", .code = 179, .token_length = 29, .inverse_index = 180},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_I2C", .code = 161, .token_length = 28, .inverse_index = 181},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_IEEE1588", .code = 162, .token_length = 33, .inverse_index = 183},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_MACSEC_MKA", .code = 185, .token_length = 35, .inverse_index = 186},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_MAX", .code = 188, .token_length = 28, .inverse_index = 188},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_MULTILANE", .code = 181, .token_length = 34, .inverse_index = 189},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OPTICS", .code = 163, .token_length = 31, .inverse_index = 184},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OTS", .code = 182, .token_length = 28, .inverse_index = 178},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OTU1", .code = 177, .token_length = 29, .inverse_index = 177},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OTU2", .code = 176, .token_length = 29, .inverse_index = 176},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OTU3", .code = 175, .token_length = 29, .inverse_index = 175},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_OTU4", .code = 174, .token_length = 29, .inverse_index = 187},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_PCIE", .code = 164, .token_length = 29, .inverse_index = 167},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_RF_10MHZ", .code = 167, .token_length = 33, .inverse_index = 185},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_RF_1PPS", .code = 168, .token_length = 32, .inverse_index = 172},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_RJ45", .code = 165, .token_length = 29, .inverse_index = 174},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_RS232", .code = 169, .token_length = 30, .inverse_index = 165},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_SCSI26", .code = 173, .token_length = 31, .inverse_index = 161},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_SDH", .code = 180, .token_length = 28, .inverse_index = 170},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_SFP", .code = 170, .token_length = 28, .inverse_index = 163},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_SONET", .code = 178, .token_length = 30, .inverse_index = 160},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_TOD", .code = 171, .token_length = 28, .inverse_index = 171},
    {.token = "ORVL_ENTITY_SUBTYPE_PORT_USB", .code = 172, .token_length = 28, .inverse_index = 193},
    {.token = "ORVL_ENTITY_SUBTYPE_POWERSUPPLY", .code = 190, .token_length = 31, .inverse_index = 190},
    {.token = "ORVL_ENTITY_SUBTYPE_POWERSUPPLY_AC", .code = 191, .token_length = 34, .inverse_index = 191},
    {.token = "ORVL_ENTITY_SUBTYPE_POWERSUPPLY_DC", .code = 192, .token_length = 34, .inverse_index = 192},
    {.token = "ORVL_ENTITY_SUBTYPE_POWERSUPPLY_DUMMY", .code = 189, .token_length = 37, .inverse_index = 194},
    {.token = "ORVL_ENTITY_SUBTYPE_POWERSUPPLY_MAX", .code = 193, .token_length = 35, .inverse_index = 202},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CABLE_STATUS", .code = 195, .token_length = 39,
     .inverse_index = 195},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CLOCK_COUNT", .code = 196, .token_length = 38,
     .inverse_index = 196},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CLOCK_STATUS", .code = 197, .token_length = 39,
     .inverse_index = 197},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CLOCK_VALUE", .code = 198, .token_length = 38,
     .inverse_index = 198},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CURRENT_MARGIN", .code = 199, .token_length = 41,
     .inverse_index = 199},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CURRENT_STATUS", .code = 200, .token_length = 41,
     .inverse_index = 200},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_CURRENT_VALUE", .code = 201, .token_length = 40,
     .inverse_index = 201},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_DUMMY", .code = 194, .token_length = 32, .inverse_index = 204},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_EXT_VALUE", .code = 225, .token_length = 36, .inverse_index = 205},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_FAN_SPEED", .code = 202, .token_length = 36, .inverse_index = 206},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_FAN_STATUS", .code = 203, .token_length = 37, .inverse_index = 207},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_FREQ_MARGIN", .code = 204, .token_length = 38,
     .inverse_index = 208},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_FREQ_STATUS", .code = 205, .token_length = 38,
     .inverse_index = 209},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_FREQ_VALUE", .code = 206, .token_length = 37, .inverse_index = 210},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED", .code = 207, .token_length = 30, .inverse_index = 212},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_ACTIVITY", .code = 208, .token_length = 39,
     .inverse_index = 211},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_ALARM", .code = 210, .token_length = 36, .inverse_index = 213},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_ATTN", .code = 209, .token_length = 35, .inverse_index = 214},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_DISK", .code = 211, .token_length = 35, .inverse_index = 215},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_MASTER", .code = 212, .token_length = 37, .inverse_index = 216},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_STATUS", .code = 213, .token_length = 37, .inverse_index = 218},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_LED_SYNC", .code = 214, .token_length = 35, .inverse_index = 219},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_MAX", .code = 226, .token_length = 30, .inverse_index = 220},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_POWER_MARGIN", .code = 215, .token_length = 39,
     .inverse_index = 222},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_POWER_STATUS", .code = 216, .token_length = 39,
     .inverse_index = 223},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_POWER_VALUE", .code = 217, .token_length = 38,
     .inverse_index = 224},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_PRESSURE_VALUE", .code = 224, .token_length = 41,
     .inverse_index = 225},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_TEMP_STATUS", .code = 218, .token_length = 38,
     .inverse_index = 226},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_TEMP_VALUE", .code = 219, .token_length = 37, .inverse_index = 227},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_UNKNOWN", .code = 220, .token_length = 34, .inverse_index = 221},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_VOLTAGE_MARGIN", .code = 221, .token_length = 41,
     .inverse_index = 203},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_VOLTAGE_STATUS", .code = 222, .token_length = 41,
     .inverse_index = 217},
    {.token = "ORVL_ENTITY_SUBTYPE_SENSOR_VOLTAGE_VALUE", .code = 223, .token_length = 40,
     .inverse_index = 229},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_BACKTOBACK_CHASSIS", .code = 228, .token_length = 44,
     .inverse_index = 228},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_DUMMY", .code = 227, .token_length = 31, .inverse_index = 231},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_MAX", .code = 232, .token_length = 29, .inverse_index = 232},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_MULTI_CHASSIS", .code = 229, .token_length = 39,
     .inverse_index = 233},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_SINGLE_CHASSIS", .code = 230, .token_length = 40,
     .inverse_index = 230},
    {.token = "ORVL_ENTITY_SUBTYPE_STACK_UNKNOWN_CHASSIS", .code = 231, .token_length = 41,
     .inverse_index = 234},
    {.token = "ORVL_ENTITY_SUBTYPE_UNKNOWN_DUMMY", .code = 233, .token_length = 33, .inverse_index = 235},
    {.token = "ORVL_ENTITY_SUBTYPE_UNKNOWN_MAX", .code = 234, .token_length = 31, .inverse_index = 62},
};
constexpr auto EidSubType_links = token_links(EidSubType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EidSubType = {.rows = EidSubType_rows, .links =
    EidSubType_links.data(), .count = 236};

namespace
{

constexpr xb_enum_row MemAccessSpeedUnit_rows[] = {
    {.token = "ORVL_MEM_SPEED_UNIT_DUMMY", .code = 0, .token_length = 25, .inverse_index = 0},
    {.token = "ORVL_MEM_SPEED_UNIT_KILOBYTES_PER_SEC", .code = 2, .token_length = 37, .inverse_index = 3},
    {.token = "ORVL_MEM_SPEED_UNIT_MEGABYTES_PER_SEC", .code = 3, .token_length = 37, .inverse_index = 1},
    {.token = "ORVL_MEM_SPEED_UNIT_OTHER", .code = 1, .token_length = 25, .inverse_index = 2},
};
constexpr auto MemAccessSpeedUnit_links = token_links(MemAccessSpeedUnit_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::MemAccessSpeedUnit = {.rows = MemAccessSpeedUnit_rows, .links =
    MemAccessSpeedUnit_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row CyclesPerSecUnit_rows[] = {
    {.token = "ORVL_CYCLES_PER_SEC_UNIT_DUMMY", .code = 0, .token_length = 30, .inverse_index = 0},
    {.token = "ORVL_CYSCLES_PER_SEC_UNIT_GHZ", .code = 4, .token_length = 29, .inverse_index = 4},
    {.token = "ORVL_CYSCLES_PER_SEC_UNIT_KHZ", .code = 2, .token_length = 29, .inverse_index = 2},
    {.token = "ORVL_CYSCLES_PER_SEC_UNIT_MHZ", .code = 3, .token_length = 29, .inverse_index = 3},
    {.token = "ORVL_CYSCLES_PER_SEC_UNIT_OTHER", .code = 1, .token_length = 31, .inverse_index = 1},
};
constexpr auto CyclesPerSecUnit_links = token_links(CyclesPerSecUnit_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::CyclesPerSecUnit = {.rows = CyclesPerSecUnit_rows, .links =
    CyclesPerSecUnit_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row HardwareModelType_rows[] = {
    {.token = "ORVL_HW_MODEL_ADC_16CH_12BIT", .code = 91, .token_length = 28, .inverse_index = 137},
    {.token = "ORVL_HW_MODEL_ADC_8CH_12BIT", .code = 90, .token_length = 27, .inverse_index = 77},
    {.token = "ORVL_HW_MODEL_AUTHENTICITY_CHIP", .code = 144, .token_length = 31, .inverse_index = 78},
    {.token = "ORVL_HW_MODEL_BACK_PLANE_16_SLOT", .code = 31, .token_length = 32, .inverse_index = 79},
    {.token = "ORVL_HW_MODEL_BACK_PLANE_4_SLOT", .code = 29, .token_length = 31, .inverse_index = 68},
    {.token = "ORVL_HW_MODEL_BACK_PLANE_8_SLOT", .code = 30, .token_length = 31, .inverse_index = 69},
    {.token = "ORVL_HW_MODEL_BOARD_MANAGEMENT_CONTROLLER", .code = 107, .token_length = 41,
     .inverse_index = 70},
    {.token = "ORVL_HW_MODEL_CARD_CONTROL_CHIP", .code = 106, .token_length = 31, .inverse_index = 71},
    {.token = "ORVL_HW_MODEL_CE_SWITCH_10PORT", .code = 121, .token_length = 30, .inverse_index = 72},
    {.token = "ORVL_HW_MODEL_CE_SWITCH_24PORT", .code = 122, .token_length = 30, .inverse_index = 73},
    {.token = "ORVL_HW_MODEL_CE_SWITCH_48PORT", .code = 123, .token_length = 30, .inverse_index = 74},
    {.token = "ORVL_HW_MODEL_CHASSIS_16_SLOT", .code = 27, .token_length = 29, .inverse_index = 75},
    {.token = "ORVL_HW_MODEL_CHASSIS_4_SLOT", .code = 25, .token_length = 28, .inverse_index = 76},
    {.token = "ORVL_HW_MODEL_CHASSIS_8_SLOT", .code = 26, .token_length = 28, .inverse_index = 114},
    {.token = "ORVL_HW_MODEL_CHASSIS_FABRIC", .code = 28, .token_length = 28, .inverse_index = 115},
    {.token = "ORVL_HW_MODEL_CLOCK_BUFFER", .code = 142, .token_length = 26, .inverse_index = 116},
    {.token = "ORVL_HW_MODEL_CLOCK_SYNC_UNIT", .code = 143, .token_length = 29, .inverse_index = 126},
    {.token = "ORVL_HW_MODEL_CLOCK_SYNTHESIZER", .code = 141, .token_length = 31, .inverse_index = 127},
    {.token = "ORVL_HW_MODEL_CPLD_LED", .code = 105, .token_length = 22, .inverse_index = 128},
    {.token = "ORVL_HW_MODEL_CPLD_POWER", .code = 104, .token_length = 24, .inverse_index = 40},
    {.token = "ORVL_HW_MODEL_CPU_16CORE", .code = 110, .token_length = 24, .inverse_index = 41},
    {.token = "ORVL_HW_MODEL_CPU_4CORE", .code = 108, .token_length = 23, .inverse_index = 42},
    {.token = "ORVL_HW_MODEL_CPU_8CORE", .code = 109, .token_length = 23, .inverse_index = 129},
    {.token = "ORVL_HW_MODEL_CPU_EMBEDDED", .code = 111, .token_length = 26, .inverse_index = 130},
    {.token = "ORVL_HW_MODEL_CURRENT_SENSOR_SHUNT", .code = 88, .token_length = 34, .inverse_index = 131},
    {.token = "ORVL_HW_MODEL_DAC_4CH_10BIT", .code = 92, .token_length = 27, .inverse_index = 12},
    {.token = "ORVL_HW_MODEL_DIMM_16GB", .code = 114, .token_length = 23, .inverse_index = 13},
    {.token = "ORVL_HW_MODEL_DIMM_32GB", .code = 115, .token_length = 23, .inverse_index = 11},
    {.token = "ORVL_HW_MODEL_DIMM_64GB", .code = 116, .token_length = 23, .inverse_index = 14},
    {.token = "ORVL_HW_MODEL_DIMM_8GB", .code = 113, .token_length = 22, .inverse_index = 4},
    {.token = "ORVL_HW_MODEL_EEPROM_16KBIT", .code = 73, .token_length = 27, .inverse_index = 5},
    {.token = "ORVL_HW_MODEL_EEPROM_256KBIT", .code = 75, .token_length = 28, .inverse_index = 3},
    {.token = "ORVL_HW_MODEL_EEPROM_2KBIT", .code = 71, .token_length = 26, .inverse_index = 80},
    {.token = "ORVL_HW_MODEL_EEPROM_4KBIT", .code = 72, .token_length = 26, .inverse_index = 50},
    {.token = "ORVL_HW_MODEL_EEPROM_512KBIT", .code = 76, .token_length = 28, .inverse_index = 51},
    {.token = "ORVL_HW_MODEL_EEPROM_64KBIT", .code = 74, .token_length = 27, .inverse_index = 52},
    {.token = "ORVL_HW_MODEL_ETHERNET_CONTROLLER_10G", .code = 125, .token_length = 37, .inverse_index = 49},
    {.token = "ORVL_HW_MODEL_ETHERNET_CONTROLLER_1G", .code = 124, .token_length = 36, .inverse_index = 45},
    {.token = "ORVL_HW_MODEL_ETHERNET_PHY_10G", .code = 127, .token_length = 30, .inverse_index = 46},
    {.token = "ORVL_HW_MODEL_ETHERNET_PHY_1G", .code = 126, .token_length = 29, .inverse_index = 48},
    {.token = "ORVL_HW_MODEL_FABRIC_CARD_GEN1", .code = 19, .token_length = 30, .inverse_index = 47},
    {.token = "ORVL_HW_MODEL_FABRIC_CARD_GEN2", .code = 20, .token_length = 30, .inverse_index = 111},
    {.token = "ORVL_HW_MODEL_FABRIC_CARD_GEN3", .code = 21, .token_length = 30, .inverse_index = 112},
    {.token = "ORVL_HW_MODEL_FABRIC_ELEMENT_GEN1", .code = 128, .token_length = 33, .inverse_index = 98},
    {.token = "ORVL_HW_MODEL_FABRIC_ELEMENT_GEN2", .code = 129, .token_length = 33, .inverse_index = 99},
    {.token = "ORVL_HW_MODEL_FAN_CONTROLLER_4CH", .code = 37, .token_length = 32, .inverse_index = 100},
    {.token = "ORVL_HW_MODEL_FAN_CONTROLLER_8CH", .code = 38, .token_length = 32, .inverse_index = 101},
    {.token = "ORVL_HW_MODEL_FAN_ROTOR_120MM", .code = 40, .token_length = 29, .inverse_index = 106},
    {.token = "ORVL_HW_MODEL_FAN_ROTOR_80MM", .code = 39, .token_length = 28, .inverse_index = 110},
    {.token = "ORVL_HW_MODEL_FAN_TRAY_BOTTOM", .code = 36, .token_length = 29, .inverse_index = 109},
    {.token = "ORVL_HW_MODEL_FAN_TRAY_FRONT", .code = 33, .token_length = 28, .inverse_index = 107},
    {.token = "ORVL_HW_MODEL_FAN_TRAY_REAR", .code = 34, .token_length = 27, .inverse_index = 108},
    {.token = "ORVL_HW_MODEL_FAN_TRAY_TOP", .code = 35, .token_length = 26, .inverse_index = 57},
    {.token = "ORVL_HW_MODEL_FPGA_LARGE", .code = 103, .token_length = 24, .inverse_index = 138},
    {.token = "ORVL_HW_MODEL_FPGA_MEDIUM", .code = 102, .token_length = 25, .inverse_index = 139},
    {.token = "ORVL_HW_MODEL_FPGA_SMALL", .code = 101, .token_length = 24, .inverse_index = 140},
    {.token = "ORVL_HW_MODEL_HDD_500GB", .code = 120, .token_length = 23, .inverse_index = 141},
    {.token = "ORVL_HW_MODEL_HOT_SWAP_CONTROLLER", .code = 52, .token_length = 33, .inverse_index = 142},
    {.token = "ORVL_HW_MODEL_I2C_BUFFER", .code = 69, .token_length = 24, .inverse_index = 103},
    {.token = "ORVL_HW_MODEL_I2C_EXPANDER_16BIT", .code = 68, .token_length = 32, .inverse_index = 104},
    {.token = "ORVL_HW_MODEL_I2C_EXPANDER_8BIT", .code = 67, .token_length = 31, .inverse_index = 105},
    {.token = "ORVL_HW_MODEL_I2C_LED_DRIVER", .code = 70, .token_length = 28, .inverse_index = 63},
    {.token = "ORVL_HW_MODEL_I2C_MASTER_CORE", .code = 66, .token_length = 29, .inverse_index = 64},
    {.token = "ORVL_HW_MODEL_I2C_MUX_2CH", .code = 61, .token_length = 25, .inverse_index = 65},
    {.token = "ORVL_HW_MODEL_I2C_MUX_4CH", .code = 62, .token_length = 25, .inverse_index = 66},
    {.token = "ORVL_HW_MODEL_I2C_MUX_8CH", .code = 63, .token_length = 25, .inverse_index = 67},
    {.token = "ORVL_HW_MODEL_I2C_SWITCH_4CH", .code = 64, .token_length = 28, .inverse_index = 62},
    {.token = "ORVL_HW_MODEL_I2C_SWITCH_8CH", .code = 65, .token_length = 28, .inverse_index = 60},
    {.token = "ORVL_HW_MODEL_LINE_CARD_24X10_GEN1", .code = 4, .token_length = 34, .inverse_index = 59},
    {.token = "ORVL_HW_MODEL_LINE_CARD_24X10_GEN2", .code = 5, .token_length = 34, .inverse_index = 58},
    {.token = "ORVL_HW_MODEL_LINE_CARD_24X10_GEN3", .code = 6, .token_length = 34, .inverse_index = 61},
    {.token = "ORVL_HW_MODEL_LINE_CARD_36X100_GEN1", .code = 7, .token_length = 35, .inverse_index = 32},
    {.token = "ORVL_HW_MODEL_LINE_CARD_36X100_GEN2", .code = 8, .token_length = 35, .inverse_index = 33},
    {.token = "ORVL_HW_MODEL_LINE_CARD_36X100_GEN3", .code = 9, .token_length = 35, .inverse_index = 30},
    {.token = "ORVL_HW_MODEL_LINE_CARD_48X10_GEN1", .code = 10, .token_length = 34, .inverse_index = 35},
    {.token = "ORVL_HW_MODEL_LINE_CARD_48X10_GEN2", .code = 11, .token_length = 34, .inverse_index = 31},
    {.token = "ORVL_HW_MODEL_LINE_CARD_48X10_GEN3", .code = 12, .token_length = 34, .inverse_index = 34},
    {.token = "ORVL_HW_MODEL_LINE_CARD_8X100_GEN1", .code = 1, .token_length = 34, .inverse_index = 118},
    {.token = "ORVL_HW_MODEL_LINE_CARD_8X100_GEN2", .code = 2, .token_length = 34, .inverse_index = 120},
    {.token = "ORVL_HW_MODEL_LINE_CARD_8X100_GEN3", .code = 3, .token_length = 34, .inverse_index = 122},
    {.token = "ORVL_HW_MODEL_MIDPLANE_FABRIC", .code = 32, .token_length = 29, .inverse_index = 117},
    {.token = "ORVL_HW_MODEL_OPTICS_CXP_100G", .code = 139, .token_length = 29, .inverse_index = 119},
    {.token = "ORVL_HW_MODEL_OPTICS_CXP_120G", .code = 140, .token_length = 29, .inverse_index = 121},
    {.token = "ORVL_HW_MODEL_OPTICS_QSFP_100G", .code = 138, .token_length = 30, .inverse_index = 135},
    {.token = "ORVL_HW_MODEL_OPTICS_QSFP_40G", .code = 137, .token_length = 29, .inverse_index = 136},
    {.token = "ORVL_HW_MODEL_OPTICS_SFP_1G", .code = 135, .token_length = 27, .inverse_index = 134},
    {.token = "ORVL_HW_MODEL_OPTICS_SFP_PLUS_10G", .code = 136, .token_length = 33, .inverse_index = 143},
    {.token = "ORVL_HW_MODEL_PACKET_MEMORY", .code = 132, .token_length = 27, .inverse_index = 144},
    {.token = "ORVL_HW_MODEL_PACKET_PROCESSOR_GEN1", .code = 130, .token_length = 35, .inverse_index = 24},
    {.token = "ORVL_HW_MODEL_PACKET_PROCESSOR_GEN2", .code = 131, .token_length = 35, .inverse_index = 113},
    {.token = "ORVL_HW_MODEL_PCIE_BRIDGE", .code = 99, .token_length = 25, .inverse_index = 1},
    {.token = "ORVL_HW_MODEL_PCIE_RETIMER", .code = 100, .token_length = 26, .inverse_index = 0},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_12PORT", .code = 96, .token_length = 32, .inverse_index = 25},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_16PORT", .code = 97, .token_length = 32, .inverse_index = 95},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_24PORT", .code = 98, .token_length = 32, .inverse_index = 96},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_4PORT", .code = 93, .token_length = 31, .inverse_index = 97},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_6PORT", .code = 94, .token_length = 31, .inverse_index = 92},
    {.token = "ORVL_HW_MODEL_PCIE_SWITCH_8PORT", .code = 95, .token_length = 31, .inverse_index = 93},
    {.token = "ORVL_HW_MODEL_PEM_AC_3KW", .code = 43, .token_length = 24, .inverse_index = 94},
    {.token = "ORVL_HW_MODEL_PEM_AC_6KW", .code = 44, .token_length = 24, .inverse_index = 90},
    {.token = "ORVL_HW_MODEL_PEM_DC_2KW", .code = 45, .token_length = 24, .inverse_index = 91},
    {.token = "ORVL_HW_MODEL_PEM_DC_4KW", .code = 46, .token_length = 24, .inverse_index = 55},
    {.token = "ORVL_HW_MODEL_PLATFORM_HUB", .code = 112, .token_length = 26, .inverse_index = 54},
    {.token = "ORVL_HW_MODEL_POINT_OF_LOAD_12A", .code = 58, .token_length = 31, .inverse_index = 53},
    {.token = "ORVL_HW_MODEL_POINT_OF_LOAD_20A", .code = 59, .token_length = 31, .inverse_index = 19},
    {.token = "ORVL_HW_MODEL_POINT_OF_LOAD_40A", .code = 60, .token_length = 31, .inverse_index = 18},
    {.token = "ORVL_HW_MODEL_POWER_FILTER", .code = 47, .token_length = 26, .inverse_index = 7},
    {.token = "ORVL_HW_MODEL_POWER_MONITOR_2CH", .code = 50, .token_length = 31, .inverse_index = 6},
    {.token = "ORVL_HW_MODEL_POWER_MONITOR_4CH", .code = 51, .token_length = 31, .inverse_index = 21},
    {.token = "ORVL_HW_MODEL_POWER_SEQUENCER_16", .code = 49, .token_length = 32, .inverse_index = 22},
    {.token = "ORVL_HW_MODEL_POWER_SEQUENCER_8", .code = 48, .token_length = 31, .inverse_index = 20},
    {.token = "ORVL_HW_MODEL_POWER_SHELF_AC", .code = 41, .token_length = 28, .inverse_index = 23},
    {.token = "ORVL_HW_MODEL_POWER_SHELF_DC", .code = 42, .token_length = 28, .inverse_index = 102},
    {.token = "ORVL_HW_MODEL_PRESSURE_SENSOR", .code = 89, .token_length = 29, .inverse_index = 29},
    {.token = "ORVL_HW_MODEL_ROUTE_PROCESSOR_GEN1", .code = 13, .token_length = 34, .inverse_index = 26},
    {.token = "ORVL_HW_MODEL_ROUTE_PROCESSOR_GEN2", .code = 14, .token_length = 34, .inverse_index = 27},
    {.token = "ORVL_HW_MODEL_ROUTE_PROCESSOR_GEN3", .code = 15, .token_length = 34, .inverse_index = 28},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_128MBIT", .code = 80, .token_length = 31, .inverse_index = 125},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_16MBIT", .code = 77, .token_length = 30, .inverse_index = 123},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_256MBIT", .code = 81, .token_length = 31, .inverse_index = 124},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_32MBIT", .code = 78, .token_length = 30, .inverse_index = 56},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_512MBIT", .code = 82, .token_length = 31, .inverse_index = 8},
    {.token = "ORVL_HW_MODEL_SPI_FLASH_64MBIT", .code = 79, .token_length = 30, .inverse_index = 9},
    {.token = "ORVL_HW_MODEL_SSD_128GB", .code = 118, .token_length = 23, .inverse_index = 10},
    {.token = "ORVL_HW_MODEL_SSD_240GB", .code = 119, .token_length = 23, .inverse_index = 37},
    {.token = "ORVL_HW_MODEL_SSD_64GB", .code = 117, .token_length = 22, .inverse_index = 36},
    {.token = "ORVL_HW_MODEL_SWITCH_CARD_GEN1", .code = 16, .token_length = 30, .inverse_index = 39},
    {.token = "ORVL_HW_MODEL_SWITCH_CARD_GEN2", .code = 17, .token_length = 30, .inverse_index = 38},
    {.token = "ORVL_HW_MODEL_SWITCH_CARD_GEN3", .code = 18, .token_length = 30, .inverse_index = 43},
    {.token = "ORVL_HW_MODEL_SYSTEM_CONTROLLER_GEN1", .code = 22, .token_length = 36, .inverse_index = 44},
    {.token = "ORVL_HW_MODEL_SYSTEM_CONTROLLER_GEN2", .code = 23, .token_length = 36, .inverse_index = 88},
    {.token = "ORVL_HW_MODEL_SYSTEM_CONTROLLER_GEN3", .code = 24, .token_length = 36, .inverse_index = 89},
    {.token = "ORVL_HW_MODEL_TCAM_20MBIT", .code = 133, .token_length = 25, .inverse_index = 87},
    {.token = "ORVL_HW_MODEL_TCAM_80MBIT", .code = 134, .token_length = 25, .inverse_index = 132},
    {.token = "ORVL_HW_MODEL_TEMPERATURE_SENSOR_8CH", .code = 85, .token_length = 36, .inverse_index = 133},
    {.token = "ORVL_HW_MODEL_TEMPERATURE_SENSOR_LOCAL", .code = 83, .token_length = 38, .inverse_index = 85},
    {.token = "ORVL_HW_MODEL_TEMPERATURE_SENSOR_REMOTE", .code = 84, .token_length = 39, .inverse_index = 86},
    {.token = "ORVL_HW_MODEL_UNKNOWN", .code = 0, .token_length = 21, .inverse_index = 84},
    {.token = "ORVL_HW_MODEL_VOLTAGE_REGULATOR_1PH", .code = 53, .token_length = 35, .inverse_index = 83},
    {.token = "ORVL_HW_MODEL_VOLTAGE_REGULATOR_2PH", .code = 54, .token_length = 35, .inverse_index = 81},
    {.token = "ORVL_HW_MODEL_VOLTAGE_REGULATOR_4PH", .code = 55, .token_length = 35, .inverse_index = 82},
    {.token = "ORVL_HW_MODEL_VOLTAGE_REGULATOR_6PH", .code = 56, .token_length = 35, .inverse_index = 17},
    {.token = "ORVL_HW_MODEL_VOLTAGE_REGULATOR_8PH", .code = 57, .token_length = 35, .inverse_index = 15},
    {.token = "ORVL_HW_MODEL_VOLTAGE_SENSOR_4CH", .code = 86, .token_length = 32, .inverse_index = 16},
    {.token = "ORVL_HW_MODEL_VOLTAGE_SENSOR_8CH", .code = 87, .token_length = 32, .inverse_index = 2},
};
constexpr auto HardwareModelType_links = token_links(HardwareModelType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::HardwareModelType = {.rows = HardwareModelType_rows, .links =
    HardwareModelType_links.data(), .count = 145};

namespace
{

constexpr xb_enum_row LinkApplicableType_rows[] = {
    {.token = "ORVL_CTRL_SLOT_0", .code = 0, .token_length = 16, .inverse_index = 0},
    {.token = "ORVL_CTRL_SLOT_1", .code = 1, .token_length = 16, .inverse_index = 1},
    {.token = "ORVL_CTRL_SLOT_ANY", .code = 2, .token_length = 18, .inverse_index = 2},
};
constexpr auto LinkApplicableType_links = token_links(LinkApplicableType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::LinkApplicableType = {.rows = LinkApplicableType_rows, .links =
    LinkApplicableType_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row SequenceType_rows[] = {
    {.token = "ORVL_SEQ_FULL", .code = 0, .token_length = 13, .inverse_index = 0},
    {.token = "ORVL_SEQ_LINK", .code = 2, .token_length = 13, .inverse_index = 2},
    {.token = "ORVL_SEQ_PART", .code = 1, .token_length = 13, .inverse_index = 1},
};
constexpr auto SequenceType_links = token_links(SequenceType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::SequenceType = {.rows = SequenceType_rows, .links =
    SequenceType_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row I2cDeviceType_rows[] = {
    {.token = "ORVL_I2CDEV_TYPE_CCC", .code = 0, .token_length = 20, .inverse_index = 0},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER", .code = 1, .token_length = 26, .inverse_index = 1},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER0", .code = 2, .token_length = 27, .inverse_index = 2},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER1", .code = 3, .token_length = 27, .inverse_index = 3},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER2", .code = 4, .token_length = 27, .inverse_index = 4},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER3", .code = 5, .token_length = 27, .inverse_index = 5},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER4", .code = 6, .token_length = 27, .inverse_index = 6},
    {.token = "ORVL_I2CDEV_TYPE_I2CMASTER5", .code = 7, .token_length = 27, .inverse_index = 7},
    {.token = "ORVL_I2CDEV_TYPE_I2CMUX", .code = 11, .token_length = 23, .inverse_index = 11},
    {.token = "ORVL_I2CDEV_TYPE_I2CPMBUS", .code = 13, .token_length = 25, .inverse_index = 12},
    {.token = "ORVL_I2CDEV_TYPE_I2CSLAVEADDRESS", .code = 14, .token_length = 32, .inverse_index = 13},
    {.token = "ORVL_I2CDEV_TYPE_I2CSLAVE_S0", .code = 8, .token_length = 28, .inverse_index = 8},
    {.token = "ORVL_I2CDEV_TYPE_I2CSLAVE_S1", .code = 9, .token_length = 28, .inverse_index = 16},
    {.token = "ORVL_I2CDEV_TYPE_I2CSLAVE_S2", .code = 10, .token_length = 28, .inverse_index = 9},
    {.token = "ORVL_I2CDEV_TYPE_I2CSMBUS", .code = 15, .token_length = 25, .inverse_index = 10},
    {.token = "ORVL_I2CDEV_TYPE_PCISWITCH", .code = 16, .token_length = 26, .inverse_index = 14},
    {.token = "ORVL_I2CDEV_TYPE_PSEUDO_I2CMUX", .code = 12, .token_length = 30, .inverse_index = 15},
};
constexpr auto I2cDeviceType_links = token_links(I2cDeviceType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::I2cDeviceType = {.rows = I2cDeviceType_rows, .links =
    I2cDeviceType_links.data(), .count = 17};

namespace
{

constexpr xb_enum_row PowerZonesValuesType_rows[] = {
    {.token = "ORVL_POWER_ZONE_CHASSIS", .code = 2, .token_length = 23, .inverse_index = 17},
    {.token = "ORVL_POWER_ZONE_CPUCOMPLEX", .code = 5, .token_length = 26, .inverse_index = 16},
    {.token = "ORVL_POWER_ZONE_FABRICASICS0", .code = 12, .token_length = 28, .inverse_index = 0},
    {.token = "ORVL_POWER_ZONE_FABRICASICS1", .code = 13, .token_length = 28, .inverse_index = 8},
    {.token = "ORVL_POWER_ZONE_FABRICASICS2", .code = 14, .token_length = 28, .inverse_index = 9},
    {.token = "ORVL_POWER_ZONE_FABRICASICS3", .code = 15, .token_length = 28, .inverse_index = 1},
    {.token = "ORVL_POWER_ZONE_FABRICASICS4", .code = 16, .token_length = 28, .inverse_index = 10},
    {.token = "ORVL_POWER_ZONE_FABRICASICS5", .code = 17, .token_length = 28, .inverse_index = 11},
    {.token = "ORVL_POWER_ZONE_MAINBOARDCOMMON", .code = 3, .token_length = 31, .inverse_index = 12},
    {.token = "ORVL_POWER_ZONE_MAINBOARDFULL", .code = 4, .token_length = 29, .inverse_index = 13},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD0", .code = 6, .token_length = 27, .inverse_index = 14},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD1", .code = 7, .token_length = 27, .inverse_index = 15},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD2", .code = 8, .token_length = 27, .inverse_index = 2},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD3", .code = 9, .token_length = 27, .inverse_index = 3},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD4", .code = 10, .token_length = 27, .inverse_index = 4},
    {.token = "ORVL_POWER_ZONE_SLICEBOARD5", .code = 11, .token_length = 27, .inverse_index = 5},
    {.token = "ORVL_POWER_ZONE_STANDBY", .code = 1, .token_length = 23, .inverse_index = 6},
    {.token = "ORVL_POWER_ZONE_UNKNOWN", .code = 0, .token_length = 23, .inverse_index = 7},
};
constexpr auto PowerZonesValuesType_links = token_links(PowerZonesValuesType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PowerZonesValuesType = {.rows = PowerZonesValuesType_rows, .links =
    PowerZonesValuesType_links.data(), .count = 18};

namespace
{

constexpr xb_enum_row PciGen_rows[] = {
    {.token = "ORVL_PCI_GEN_DMI1", .code = 0, .token_length = 17, .inverse_index = 0},
    {.token = "ORVL_PCI_GEN_DMI2", .code = 1, .token_length = 17, .inverse_index = 1},
    {.token = "ORVL_PCI_GEN_GEN1", .code = 3, .token_length = 17, .inverse_index = 6},
    {.token = "ORVL_PCI_GEN_GEN2", .code = 4, .token_length = 17, .inverse_index = 2},
    {.token = "ORVL_PCI_GEN_GEN3", .code = 5, .token_length = 17, .inverse_index = 3},
    {.token = "ORVL_PCI_GEN_GEN4", .code = 6, .token_length = 17, .inverse_index = 4},
    {.token = "ORVL_PCI_GEN_GENx", .code = 2, .token_length = 17, .inverse_index = 5},
};
constexpr auto PciGen_links = token_links(PciGen_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PciGen = {.rows = PciGen_rows, .links = PciGen_links.data(), .count
    = 7};

namespace
{

constexpr xb_enum_row PhyType_rows[] = {
    {.token = "ORVL_PHY_TYPE_BCM84764", .code = 7, .token_length = 22, .inverse_index = 3},
    {.token = "ORVL_PHY_TYPE_BCM8729", .code = 5, .token_length = 21, .inverse_index = 4},
    {.token = "ORVL_PHY_TYPE_BCM8747", .code = 6, .token_length = 21, .inverse_index = 5},
    {.token = "ORVL_PHY_TYPE_INTERNAL", .code = 0, .token_length = 22, .inverse_index = 6},
    {.token = "ORVL_PHY_TYPE_MV1112", .code = 1, .token_length = 20, .inverse_index = 7},
    {.token = "ORVL_PHY_TYPE_MV1114", .code = 2, .token_length = 20, .inverse_index = 1},
    {.token = "ORVL_PHY_TYPE_MV1322", .code = 3, .token_length = 20, .inverse_index = 2},
    {.token = "ORVL_PHY_TYPE_MV2120", .code = 4, .token_length = 20, .inverse_index = 0},
    {.token = "ORVL_PHY_TYPE_NLP1342", .code = 8, .token_length = 21, .inverse_index = 8},
};
constexpr auto PhyType_links = token_links(PhyType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PhyType = {.rows = PhyType_rows, .links = PhyType_links.data(),
    .count = 9};

namespace
{

constexpr xb_enum_row EsdPortDestType_rows[] = {
    {.token = "ORVL_ESD_PORT_DEST_CPU0", .code = 5, .token_length = 23, .inverse_index = 44},
    {.token = "ORVL_ESD_PORT_DEST_CPU1", .code = 6, .token_length = 23, .inverse_index = 50},
    {.token = "ORVL_ESD_PORT_DEST_CPU_PORT0", .code = 57, .token_length = 28, .inverse_index = 52},
    {.token = "ORVL_ESD_PORT_DEST_CPU_PORT1", .code = 58, .token_length = 28, .inverse_index = 49},
    {.token = "ORVL_ESD_PORT_DEST_CRAFT", .code = 52, .token_length = 24, .inverse_index = 51},
    {.token = "ORVL_ESD_PORT_DEST_EMS", .code = 51, .token_length = 22, .inverse_index = 0},
    {.token = "ORVL_ESD_PORT_DEST_FC0", .code = 37, .token_length = 22, .inverse_index = 1},
    {.token = "ORVL_ESD_PORT_DEST_FC1", .code = 38, .token_length = 22, .inverse_index = 53},
    {.token = "ORVL_ESD_PORT_DEST_FC10", .code = 47, .token_length = 23, .inverse_index = 55},
    {.token = "ORVL_ESD_PORT_DEST_FC11", .code = 48, .token_length = 23, .inverse_index = 54},
    {.token = "ORVL_ESD_PORT_DEST_FC2", .code = 39, .token_length = 22, .inverse_index = 56},
    {.token = "ORVL_ESD_PORT_DEST_FC3", .code = 40, .token_length = 22, .inverse_index = 40},
    {.token = "ORVL_ESD_PORT_DEST_FC4", .code = 41, .token_length = 22, .inverse_index = 42},
    {.token = "ORVL_ESD_PORT_DEST_FC5", .code = 42, .token_length = 22, .inverse_index = 43},
    {.token = "ORVL_ESD_PORT_DEST_FC6", .code = 43, .token_length = 22, .inverse_index = 57},
    {.token = "ORVL_ESD_PORT_DEST_FC7", .code = 44, .token_length = 22, .inverse_index = 58},
    {.token = "ORVL_ESD_PORT_DEST_FC8", .code = 45, .token_length = 22, .inverse_index = 41},
    {.token = "ORVL_ESD_PORT_DEST_FC9", .code = 46, .token_length = 22, .inverse_index = 20},
    {.token = "ORVL_ESD_PORT_DEST_FCC_SW_0", .code = 49, .token_length = 27, .inverse_index = 21},
    {.token = "ORVL_ESD_PORT_DEST_FCC_SW_1", .code = 50, .token_length = 27, .inverse_index = 32},
    {.token = "ORVL_ESD_PORT_DEST_LC0", .code = 17, .token_length = 22, .inverse_index = 33},
    {.token = "ORVL_ESD_PORT_DEST_LC1", .code = 18, .token_length = 22, .inverse_index = 34},
    {.token = "ORVL_ESD_PORT_DEST_LC10", .code = 27, .token_length = 23, .inverse_index = 35},
    {.token = "ORVL_ESD_PORT_DEST_LC11", .code = 28, .token_length = 23, .inverse_index = 36},
    {.token = "ORVL_ESD_PORT_DEST_LC12", .code = 29, .token_length = 23, .inverse_index = 37},
    {.token = "ORVL_ESD_PORT_DEST_LC13", .code = 30, .token_length = 23, .inverse_index = 38},
    {.token = "ORVL_ESD_PORT_DEST_LC14", .code = 31, .token_length = 23, .inverse_index = 39},
    {.token = "ORVL_ESD_PORT_DEST_LC15", .code = 32, .token_length = 23, .inverse_index = 22},
    {.token = "ORVL_ESD_PORT_DEST_LC16", .code = 33, .token_length = 23, .inverse_index = 23},
    {.token = "ORVL_ESD_PORT_DEST_LC17", .code = 34, .token_length = 23, .inverse_index = 24},
    {.token = "ORVL_ESD_PORT_DEST_LC18", .code = 35, .token_length = 23, .inverse_index = 25},
    {.token = "ORVL_ESD_PORT_DEST_LC19", .code = 36, .token_length = 23, .inverse_index = 26},
    {.token = "ORVL_ESD_PORT_DEST_LC2", .code = 19, .token_length = 22, .inverse_index = 27},
    {.token = "ORVL_ESD_PORT_DEST_LC3", .code = 20, .token_length = 22, .inverse_index = 28},
    {.token = "ORVL_ESD_PORT_DEST_LC4", .code = 21, .token_length = 22, .inverse_index = 29},
    {.token = "ORVL_ESD_PORT_DEST_LC5", .code = 22, .token_length = 22, .inverse_index = 30},
    {.token = "ORVL_ESD_PORT_DEST_LC6", .code = 23, .token_length = 22, .inverse_index = 31},
    {.token = "ORVL_ESD_PORT_DEST_LC7", .code = 24, .token_length = 22, .inverse_index = 6},
    {.token = "ORVL_ESD_PORT_DEST_LC8", .code = 25, .token_length = 22, .inverse_index = 7},
    {.token = "ORVL_ESD_PORT_DEST_LC9", .code = 26, .token_length = 22, .inverse_index = 10},
    {.token = "ORVL_ESD_PORT_DEST_LC_CCC", .code = 11, .token_length = 25, .inverse_index = 11},
    {.token = "ORVL_ESD_PORT_DEST_M16", .code = 16, .token_length = 22, .inverse_index = 12},
    {.token = "ORVL_ESD_PORT_DEST_MGMT_0", .code = 12, .token_length = 25, .inverse_index = 13},
    {.token = "ORVL_ESD_PORT_DEST_MGMT_1", .code = 13, .token_length = 25, .inverse_index = 14},
    {.token = "ORVL_ESD_PORT_DEST_MISC", .code = 0, .token_length = 23, .inverse_index = 15},
    {.token = "ORVL_ESD_PORT_DEST_MSM_ETH0", .code = 53, .token_length = 27, .inverse_index = 16},
    {.token = "ORVL_ESD_PORT_DEST_MSM_ETH1", .code = 54, .token_length = 27, .inverse_index = 17},
    {.token = "ORVL_ESD_PORT_DEST_MSM_ETH2", .code = 55, .token_length = 27, .inverse_index = 8},
    {.token = "ORVL_ESD_PORT_DEST_MSM_ETH3", .code = 56, .token_length = 27, .inverse_index = 9},
    {.token = "ORVL_ESD_PORT_DEST_RP0", .code = 3, .token_length = 22, .inverse_index = 18},
    {.token = "ORVL_ESD_PORT_DEST_RP0_CCC", .code = 1, .token_length = 26, .inverse_index = 19},
    {.token = "ORVL_ESD_PORT_DEST_RP1", .code = 4, .token_length = 22, .inverse_index = 5},
    {.token = "ORVL_ESD_PORT_DEST_RP1_CCC", .code = 2, .token_length = 26, .inverse_index = 4},
    {.token = "ORVL_ESD_PORT_DEST_SC0", .code = 7, .token_length = 22, .inverse_index = 45},
    {.token = "ORVL_ESD_PORT_DEST_SC0_CCC", .code = 9, .token_length = 26, .inverse_index = 46},
    {.token = "ORVL_ESD_PORT_DEST_SC1", .code = 8, .token_length = 22, .inverse_index = 47},
    {.token = "ORVL_ESD_PORT_DEST_SC1_CCC", .code = 10, .token_length = 26, .inverse_index = 48},
    {.token = "ORVL_ESD_PORT_DEST_UPLINK_0", .code = 14, .token_length = 27, .inverse_index = 2},
    {.token = "ORVL_ESD_PORT_DEST_UPLINK_1", .code = 15, .token_length = 27, .inverse_index = 3},
};
constexpr auto EsdPortDestType_links = token_links(EsdPortDestType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EsdPortDestType = {.rows = EsdPortDestType_rows, .links =
    EsdPortDestType_links.data(), .count = 59};

namespace
{

constexpr xb_enum_row PortState_rows[] = {
    {.token = "ORVL_PORT_STATE_ADMIN_DOWN", .code = 1, .token_length = 26, .inverse_index = 1},
    {.token = "ORVL_PORT_STATE_ADMIN_UP", .code = 0, .token_length = 24, .inverse_index = 0},
};
constexpr auto PortState_links = token_links(PortState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PortState = {.rows = PortState_rows, .links =
    PortState_links.data(), .count = 2};

namespace
{

constexpr xb_enum_row MdioSpeed_rows[] = {
    {.token = "ORVL_MDIO_CLK_SPEED_DEFAULT", .code = 0, .token_length = 27, .inverse_index = 0},
    {.token = "ORVL_MDIO_CLK_SPEED_FAST", .code = 1, .token_length = 24, .inverse_index = 1},
    {.token = "ORVL_MDIO_CLK_SPEED_SLOW", .code = 2, .token_length = 24, .inverse_index = 2},
};
constexpr auto MdioSpeed_links = token_links(MdioSpeed_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::MdioSpeed = {.rows = MdioSpeed_rows, .links =
    MdioSpeed_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row LocalSwitching_rows[] = {
    {.token = "ORVL_LOCAL_SWITCHING_DISABLE", .code = 0, .token_length = 28, .inverse_index = 0},
    {.token = "ORVL_LOCAL_SWITCHING_ENABLE", .code = 1, .token_length = 27, .inverse_index = 1},
};
constexpr auto LocalSwitching_links = token_links(LocalSwitching_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::LocalSwitching = {.rows = LocalSwitching_rows, .links =
    LocalSwitching_links.data(), .count = 2};

namespace
{

constexpr xb_enum_row SerdesParamsType_rows[] = {
    {.token = "ORVL_SERDES_AUTO_TUNE", .code = 2, .token_length = 21, .inverse_index = 3},
    {.token = "ORVL_SERDES_LONG_REACH", .code = 1, .token_length = 22, .inverse_index = 1},
    {.token = "ORVL_SERDES_MAX", .code = 3, .token_length = 15, .inverse_index = 0},
    {.token = "ORVL_SERDES_SHORT_REACH", .code = 0, .token_length = 23, .inverse_index = 2},
};
constexpr auto SerdesParamsType_links = token_links(SerdesParamsType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::SerdesParamsType = {.rows = SerdesParamsType_rows, .links =
    SerdesParamsType_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row SfpControllerType_rows[] = {
    {.token = "ORVL_SFP_CONTROLLER_PHY", .code = 2, .token_length = 23, .inverse_index = 2},
    {.token = "ORVL_SFP_CONTROLLER_SWITCH", .code = 1, .token_length = 26, .inverse_index = 1},
    {.token = "ORVL_SFP_CONTROLLER_UNKNOWN", .code = 0, .token_length = 27, .inverse_index = 0},
};
constexpr auto SfpControllerType_links = token_links(SfpControllerType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::SfpControllerType = {.rows = SfpControllerType_rows, .links =
    SfpControllerType_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row EsdDevVlanType_rows[] = {
    {.token = "ORVL_VLAN_ALL", .code = 10, .token_length = 13, .inverse_index = 2},
    {.token = "ORVL_VLAN_BLACK", .code = 3, .token_length = 15, .inverse_index = 9},
    {.token = "ORVL_VLAN_BLUE", .code = 0, .token_length = 14, .inverse_index = 5},
    {.token = "ORVL_VLAN_BLUE_GREEN", .code = 4, .token_length = 20, .inverse_index = 1},
    {.token = "ORVL_VLAN_BLUE_RED", .code = 5, .token_length = 18, .inverse_index = 3},
    {.token = "ORVL_VLAN_GREEN", .code = 2, .token_length = 15, .inverse_index = 4},
    {.token = "ORVL_VLAN_MINT", .code = 7, .token_length = 14, .inverse_index = 10},
    {.token = "ORVL_VLAN_OLIVE", .code = 8, .token_length = 15, .inverse_index = 6},
    {.token = "ORVL_VLAN_PURPLE", .code = 9, .token_length = 16, .inverse_index = 7},
    {.token = "ORVL_VLAN_RED", .code = 1, .token_length = 13, .inverse_index = 8},
    {.token = "ORVL_VLAN_RED_GREEN", .code = 6, .token_length = 19, .inverse_index = 0},
};
constexpr auto EsdDevVlanType_links = token_links(EsdDevVlanType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EsdDevVlanType = {.rows = EsdDevVlanType_rows, .links =
    EsdDevVlanType_links.data(), .count = 11};

namespace
{

constexpr xb_enum_row EsdDevClientType_rows[] = {
    {.token = "ORVL_ESD_CLIENT_AMBA", .code = 19, .token_length = 20, .inverse_index = 14},
    {.token = "ORVL_ESD_CLIENT_BAO", .code = 18, .token_length = 19, .inverse_index = 25},
    {.token = "ORVL_ESD_CLIENT_BFD_ONLY", .code = 22, .token_length = 24, .inverse_index = 19},
    {.token = "ORVL_ESD_CLIENT_CCC", .code = 7, .token_length = 19, .inverse_index = 21},
    {.token = "ORVL_ESD_CLIENT_CPU", .code = 8, .token_length = 19, .inverse_index = 8},
    {.token = "ORVL_ESD_CLIENT_EXT_RP", .code = 11, .token_length = 22, .inverse_index = 6},
    {.token = "ORVL_ESD_CLIENT_FC", .code = 5, .token_length = 18, .inverse_index = 7},
    {.token = "ORVL_ESD_CLIENT_F_SW", .code = 6, .token_length = 20, .inverse_index = 3},
    {.token = "ORVL_ESD_CLIENT_LC", .code = 4, .token_length = 18, .inverse_index = 4},
    {.token = "ORVL_ESD_CLIENT_MC", .code = 15, .token_length = 18, .inverse_index = 11},
    {.token = "ORVL_ESD_CLIENT_MC_HS", .code = 16, .token_length = 21, .inverse_index = 12},
    {.token = "ORVL_ESD_CLIENT_MGMT", .code = 9, .token_length = 20, .inverse_index = 5},
    {.token = "ORVL_ESD_CLIENT_MGMT_SVC", .code = 10, .token_length = 24, .inverse_index = 22},
    {.token = "ORVL_ESD_CLIENT_MISC", .code = 25, .token_length = 20, .inverse_index = 16},
    {.token = "ORVL_ESD_CLIENT_NONE", .code = 0, .token_length = 20, .inverse_index = 23},
    {.token = "ORVL_ESD_CLIENT_PD_SPECIFIC", .code = 17, .token_length = 27, .inverse_index = 9},
    {.token = "ORVL_ESD_CLIENT_PSE", .code = 13, .token_length = 19, .inverse_index = 10},
    {.token = "ORVL_ESD_CLIENT_PUNT", .code = 20, .token_length = 20, .inverse_index = 15},
    {.token = "ORVL_ESD_CLIENT_PUNT_ONLY", .code = 21, .token_length = 25, .inverse_index = 1},
    {.token = "ORVL_ESD_CLIENT_RP", .code = 2, .token_length = 18, .inverse_index = 0},
    {.token = "ORVL_ESD_CLIENT_RP_LC_PUNT_BFD", .code = 24, .token_length = 30, .inverse_index = 17},
    {.token = "ORVL_ESD_CLIENT_SC", .code = 3, .token_length = 18, .inverse_index = 18},
    {.token = "ORVL_ESD_CLIENT_SDR_SVC", .code = 12, .token_length = 23, .inverse_index = 2},
    {.token = "ORVL_ESD_CLIENT_SFE", .code = 14, .token_length = 19, .inverse_index = 24},
    {.token = "ORVL_ESD_CLIENT_TPA_ONLY", .code = 23, .token_length = 24, .inverse_index = 20},
    {.token = "ORVL_ESD_CLIENT_UPLINK", .code = 1, .token_length = 22, .inverse_index = 13},
    {.token = "ORVL_ESD_CLIENT_XC", .code = 26, .token_length = 18, .inverse_index = 26},
};
constexpr auto EsdDevClientType_links = token_links(EsdDevClientType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EsdDevClientType = {.rows = EsdDevClientType_rows, .links =
    EsdDevClientType_links.data(), .count = 27};

namespace
{

constexpr xb_enum_row PortSpeedType_rows[] = {
    {.token = "ORVL_PORT_SPEED_10GB", .code = 3, .token_length = 20, .inverse_index = 6},
    {.token = "ORVL_PORT_SPEED_10_100_1000", .code = 1, .token_length = 27, .inverse_index = 1},
    {.token = "ORVL_PORT_SPEED_1GB", .code = 2, .token_length = 19, .inverse_index = 2},
    {.token = "ORVL_PORT_SPEED_20GB", .code = 4, .token_length = 20, .inverse_index = 0},
    {.token = "ORVL_PORT_SPEED_2_5GB", .code = 6, .token_length = 21, .inverse_index = 3},
    {.token = "ORVL_PORT_SPEED_40GB", .code = 5, .token_length = 20, .inverse_index = 5},
    {.token = "ORVL_PORT_SPEED_UNKNOWN", .code = 0, .token_length = 23, .inverse_index = 4},
};
constexpr auto PortSpeedType_links = token_links(PortSpeedType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PortSpeedType = {.rows = PortSpeedType_rows, .links =
    PortSpeedType_links.data(), .count = 7};

namespace
{

constexpr xb_enum_row PortModeType_rows[] = {
    {.token = "ORVL_PORT_MODE_1000BASEX", .code = 1, .token_length = 24, .inverse_index = 6},
    {.token = "ORVL_PORT_MODE_10G_SR_LR", .code = 6, .token_length = 24, .inverse_index = 0},
    {.token = "ORVL_PORT_MODE_40G_SR_LR", .code = 7, .token_length = 24, .inverse_index = 5},
    {.token = "ORVL_PORT_MODE_KR", .code = 5, .token_length = 17, .inverse_index = 7},
    {.token = "ORVL_PORT_MODE_RXAUI", .code = 4, .token_length = 20, .inverse_index = 4},
    {.token = "ORVL_PORT_MODE_SGMII", .code = 2, .token_length = 20, .inverse_index = 3},
    {.token = "ORVL_PORT_MODE_UNKNOWN", .code = 0, .token_length = 22, .inverse_index = 1},
    {.token = "ORVL_PORT_MODE_XAUI", .code = 3, .token_length = 19, .inverse_index = 2},
};
constexpr auto PortModeType_links = token_links(PortModeType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PortModeType = {.rows = PortModeType_rows, .links =
    PortModeType_links.data(), .count = 8};

namespace
{

constexpr xb_enum_row BaseLedColorsType_rows[] = {
    {.token = "ORVL_LED_COLOR_BLUE", .code = 0, .token_length = 19, .inverse_index = 0},
    {.token = "ORVL_LED_COLOR_GREEN", .code = 1, .token_length = 20, .inverse_index = 1},
    {.token = "ORVL_LED_COLOR_RED", .code = 3, .token_length = 18, .inverse_index = 3},
    {.token = "ORVL_LED_COLOR_YELLOW", .code = 2, .token_length = 21, .inverse_index = 2},
};
constexpr auto BaseLedColorsType_links = token_links(BaseLedColorsType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseLedColorsType = {.rows = BaseLedColorsType_rows, .links =
    BaseLedColorsType_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row BaseLedControlType_rows[] = {
    {.token = "ORVL_LED_CONTROL_BLINK", .code = 2, .token_length = 22, .inverse_index = 4},
    {.token = "ORVL_LED_CONTROL_BLINKFAST", .code = 4, .token_length = 26, .inverse_index = 3},
    {.token = "ORVL_LED_CONTROL_BLINKSLOW", .code = 3, .token_length = 26, .inverse_index = 0},
    {.token = "ORVL_LED_CONTROL_OFF", .code = 1, .token_length = 20, .inverse_index = 2},
    {.token = "ORVL_LED_CONTROL_ON", .code = 0, .token_length = 19, .inverse_index = 1},
};
constexpr auto BaseLedControlType_links = token_links(BaseLedControlType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseLedControlType = {.rows = BaseLedControlType_rows, .links =
    BaseLedControlType_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row PortUsageType_rows[] = {
    {.token = "ORVL_PORT_USAGE_ALARM", .code = 1, .token_length = 21, .inverse_index = 7},
    {.token = "ORVL_PORT_USAGE_CE", .code = 4, .token_length = 18, .inverse_index = 0},
    {.token = "ORVL_PORT_USAGE_CONSOLE", .code = 2, .token_length = 23, .inverse_index = 2},
    {.token = "ORVL_PORT_USAGE_MGMT", .code = 3, .token_length = 20, .inverse_index = 3},
    {.token = "ORVL_PORT_USAGE_OTHER", .code = 7, .token_length = 21, .inverse_index = 1},
    {.token = "ORVL_PORT_USAGE_SYNC", .code = 5, .token_length = 20, .inverse_index = 5},
    {.token = "ORVL_PORT_USAGE_TRAFFIC", .code = 6, .token_length = 23, .inverse_index = 6},
    {.token = "ORVL_PORT_USAGE_UNKNOWN", .code = 0, .token_length = 23, .inverse_index = 4},
};
constexpr auto PortUsageType_links = token_links(PortUsageType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PortUsageType = {.rows = PortUsageType_rows, .links =
    PortUsageType_links.data(), .count = 8};

namespace
{

constexpr xb_enum_row EepromUsageType_rows[] = {
    {.token = "ORVL_EEPROM_TYPE_ID", .code = 0, .token_length = 19, .inverse_index = 0},
    {.token = "ORVL_EEPROM_TYPE_SCRATCH", .code = 1, .token_length = 24, .inverse_index = 1},
    {.token = "ORVL_EEPROM_TYPE_UNKNOWN", .code = 2, .token_length = 24, .inverse_index = 2},
};
constexpr auto EepromUsageType_links = token_links(EepromUsageType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::EepromUsageType = {.rows = EepromUsageType_rows, .links =
    EepromUsageType_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row NodeInfoType_nodeType_rows[] = {
    {.token = "ORVL_NODE_TYPE_BPID2", .code = 20, .token_length = 20, .inverse_index = 21},
    {.token = "ORVL_NODE_TYPE_CONTROLCARD", .code = 1, .token_length = 26, .inverse_index = 1},
    {.token = "ORVL_NODE_TYPE_CRAFTINTERFACE", .code = 2, .token_length = 29, .inverse_index = 2},
    {.token = "ORVL_NODE_TYPE_ECU", .code = 16, .token_length = 18, .inverse_index = 5},
    {.token = "ORVL_NODE_TYPE_ECU_DISK", .code = 19, .token_length = 23, .inverse_index = 6},
    {.token = "ORVL_NODE_TYPE_ENTITY", .code = 3, .token_length = 21, .inverse_index = 8},
    {.token = "ORVL_NODE_TYPE_FABRICCARD", .code = 4, .token_length = 25, .inverse_index = 9},
    {.token = "ORVL_NODE_TYPE_FAN", .code = 15, .token_length = 18, .inverse_index = 11},
    {.token = "ORVL_NODE_TYPE_FANTRAY", .code = 5, .token_length = 22, .inverse_index = 12},
    {.token = "ORVL_NODE_TYPE_LINECARD", .code = 6, .token_length = 23, .inverse_index = 15},
    {.token = "ORVL_NODE_TYPE_MAX", .code = 21, .token_length = 18, .inverse_index = 14},
    {.token = "ORVL_NODE_TYPE_MIDPLANEID", .code = 7, .token_length = 25, .inverse_index = 17},
    {.token = "ORVL_NODE_TYPE_MYCONTAINER", .code = 8, .token_length = 26, .inverse_index = 18},
    {.token = "ORVL_NODE_TYPE_OPTICS", .code = 14, .token_length = 21, .inverse_index = 19},
    {.token = "ORVL_NODE_TYPE_PEERCONTROLCARD", .code = 10, .token_length = 30, .inverse_index = 13},
    {.token = "ORVL_NODE_TYPE_PEM", .code = 9, .token_length = 18, .inverse_index = 7},
    {.token = "ORVL_NODE_TYPE_POWERFILTER", .code = 17, .token_length = 26, .inverse_index = 3},
    {.token = "ORVL_NODE_TYPE_POWERSHELF", .code = 11, .token_length = 25, .inverse_index = 16},
    {.token = "ORVL_NODE_TYPE_SLICE", .code = 12, .token_length = 20, .inverse_index = 20},
    {.token = "ORVL_NODE_TYPE_SWITCHCARD", .code = 13, .token_length = 25, .inverse_index = 4},
    {.token = "ORVL_NODE_TYPE_SYSTEMCONTCARD", .code = 18, .token_length = 29, .inverse_index = 0},
    {.token = "ORVL_NODE_TYPE_UNKNOWN", .code = 0, .token_length = 22, .inverse_index = 10},
};
constexpr auto NodeInfoType_nodeType_links = token_links(NodeInfoType_nodeType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::NodeInfoType_nodeType = {.rows = NodeInfoType_nodeType_rows, .links
    = NodeInfoType_nodeType_links.data(), .count = 22};

namespace
{

constexpr xb_enum_row I2cPortType_portType_rows[] = {
    {.token = "ORVL_PORT_TYPE_MASTER", .code = 0, .token_length = 21, .inverse_index = 0},
    {.token = "ORVL_PORT_TYPE_MUX", .code = 1, .token_length = 18, .inverse_index = 1},
    {.token = "ORVL_PORT_TYPE_PMBUS", .code = 2, .token_length = 20, .inverse_index = 2},
    {.token = "ORVL_PORT_TYPE_SMBUS", .code = 3, .token_length = 20, .inverse_index = 3},
};
constexpr auto I2cPortType_portType_links = token_links(I2cPortType_portType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::I2cPortType_portType = {.rows = I2cPortType_portType_rows, .links =
    I2cPortType_portType_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row PCIeNodeType_deviceType_rows[] = {
    {.token = "ORVL_DEV_TYPE_PCISWITCH", .code = 0, .token_length = 23, .inverse_index = 0},
    {.token = "ORVL_DEV_TYPE_PCITARGET", .code = 1, .token_length = 23, .inverse_index = 1},
    {.token = "ORVL_DEV_TYPE_UNKNOWN", .code = 2, .token_length = 21, .inverse_index = 2},
};
constexpr auto PCIeNodeType_deviceType_links = token_links(PCIeNodeType_deviceType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PCIeNodeType_deviceType = {.rows = PCIeNodeType_deviceType_rows,
    .links = PCIeNodeType_deviceType_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row BaseContainerListType_containerType_rows[] = {
    {.token = "ORVL_CONTAINER_TYPE_BPID2SLOT", .code = 11, .token_length = 29, .inverse_index = 1},
    {.token = "ORVL_CONTAINER_TYPE_CONTROLCARDSLOT", .code = 0, .token_length = 35, .inverse_index = 5},
    {.token = "ORVL_CONTAINER_TYPE_ECUDISKSLOT", .code = 8, .token_length = 31, .inverse_index = 4},
    {.token = "ORVL_CONTAINER_TYPE_ECUSLOT", .code = 7, .token_length = 27, .inverse_index = 6},
    {.token = "ORVL_CONTAINER_TYPE_FABRICCARDSLOT", .code = 2, .token_length = 34, .inverse_index = 9},
    {.token = "ORVL_CONTAINER_TYPE_FANTRAYSLOT", .code = 1, .token_length = 31, .inverse_index = 10},
    {.token = "ORVL_CONTAINER_TYPE_LINECARDSLOT", .code = 3, .token_length = 32, .inverse_index = 8},
    {.token = "ORVL_CONTAINER_TYPE_PM", .code = 9, .token_length = 22, .inverse_index = 3},
    {.token = "ORVL_CONTAINER_TYPE_POWERFILTERSLOT", .code = 6, .token_length = 35, .inverse_index = 2},
    {.token = "ORVL_CONTAINER_TYPE_POWERSHELFSLOT", .code = 4, .token_length = 34, .inverse_index = 7},
    {.token = "ORVL_CONTAINER_TYPE_SWITCHCARDSLOT", .code = 5, .token_length = 34, .inverse_index = 11},
    {.token = "ORVL_CONTAINER_TYPE_SYSTEMCONTSLOT", .code = 10, .token_length = 34, .inverse_index = 0},
};
constexpr auto BaseContainerListType_containerType_links =
    token_links(BaseContainerListType_containerType_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseContainerListType_containerType = {.rows =
    BaseContainerListType_containerType_rows, .links = BaseContainerListType_containerType_links.data(),
    .count = 12};

namespace
{

constexpr xb_enum_row BaseStorageMemoryMap_memoryUsage_rows[] = {
    {.token = "ORVL_MEM_USAGE_BOOTHEADER", .code = 0, .token_length = 25, .inverse_index = 0},
    {.token = "ORVL_MEM_USAGE_GOLDEN_FPGA_CONFIG_IMAGE", .code = 1, .token_length = 39, .inverse_index = 1},
    {.token = "ORVL_MEM_USAGE_GOLDEN_INTERPRETER_IMAGE", .code = 2, .token_length = 39, .inverse_index = 2},
    {.token = "ORVL_MEM_USAGE_ONBOARD_FAULT_LOGGING", .code = 3, .token_length = 36, .inverse_index = 3},
    {.token = "ORVL_MEM_USAGE_UNUSED", .code = 4, .token_length = 21, .inverse_index = 4},
    {.token = "ORVL_MEM_USAGE_WORKING_FPGA_CONFIG_IMAGE", .code = 5, .token_length = 40, .inverse_index = 5},
    {.token = "ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE", .code = 6, .token_length = 40, .inverse_index = 6},
};
constexpr auto BaseStorageMemoryMap_memoryUsage_links = token_links(BaseStorageMemoryMap_memoryUsage_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseStorageMemoryMap_memoryUsage = {.rows =
    BaseStorageMemoryMap_memoryUsage_rows, .links = BaseStorageMemoryMap_memoryUsage_links.data(), .count =
    7};

namespace
{

constexpr xb_enum_row BaseEntityType_adminState_rows[] = {
    {.token = "ORVL_ADMIN_STATE_DISABLED", .code = 2, .token_length = 25, .inverse_index = 4},
    {.token = "ORVL_ADMIN_STATE_ENABLED", .code = 1, .token_length = 24, .inverse_index = 1},
    {.token = "ORVL_ADMIN_STATE_MAX", .code = 4, .token_length = 20, .inverse_index = 0},
    {.token = "ORVL_ADMIN_STATE_N/A", .code = 3, .token_length = 20, .inverse_index = 3},
    {.token = "ORVL_ADMIN_STATE_UNKNOWN", .code = 0, .token_length = 24, .inverse_index = 2},
};
constexpr auto BaseEntityType_adminState_links = token_links(BaseEntityType_adminState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseEntityType_adminState = {.rows =
    BaseEntityType_adminState_rows, .links = BaseEntityType_adminState_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row BaseEntityType_operState_rows[] = {
    {.token = "ORVL_OPER_STATE_DOWN", .code = 2, .token_length = 20, .inverse_index = 3},
    {.token = "ORVL_OPER_STATE_MAX", .code = 4, .token_length = 19, .inverse_index = 4},
    {.token = "ORVL_OPER_STATE_N/A", .code = 3, .token_length = 19, .inverse_index = 0},
    {.token = "ORVL_OPER_STATE_UNKNOWN", .code = 0, .token_length = 23, .inverse_index = 2},
    {.token = "ORVL_OPER_STATE_UP", .code = 1, .token_length = 18, .inverse_index = 1},
};
constexpr auto BaseEntityType_operState_links = token_links(BaseEntityType_operState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseEntityType_operState = {.rows = BaseEntityType_operState_rows,
    .links = BaseEntityType_operState_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row BaseEntityType_powerAdminState_rows[] = {
    {.token = "ORVL_POWER_ADMIN_STATE_MAX", .code = 4, .token_length = 26, .inverse_index = 4},
    {.token = "ORVL_POWER_ADMIN_STATE_N/A", .code = 3, .token_length = 26, .inverse_index = 3},
    {.token = "ORVL_POWER_ADMIN_STATE_OFF", .code = 2, .token_length = 26, .inverse_index = 2},
    {.token = "ORVL_POWER_ADMIN_STATE_ON", .code = 1, .token_length = 25, .inverse_index = 1},
    {.token = "ORVL_POWER_ADMIN_STATE_UNKNOWN", .code = 0, .token_length = 30, .inverse_index = 0},
};
constexpr auto BaseEntityType_powerAdminState_links = token_links(BaseEntityType_powerAdminState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseEntityType_powerAdminState = {.rows =
    BaseEntityType_powerAdminState_rows, .links = BaseEntityType_powerAdminState_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row BaseEntityType_powerOperState_rows[] = {
    {.token = "ORVL_POWER_OPER_STATE_MAX", .code = 4, .token_length = 25, .inverse_index = 4},
    {.token = "ORVL_POWER_OPER_STATE_N/A", .code = 3, .token_length = 25, .inverse_index = 3},
    {.token = "ORVL_POWER_OPER_STATE_OFF", .code = 2, .token_length = 25, .inverse_index = 2},
    {.token = "ORVL_POWER_OPER_STATE_ON", .code = 1, .token_length = 24, .inverse_index = 1},
    {.token = "ORVL_POWER_OPER_STATE_UNKNOWN", .code = 0, .token_length = 29, .inverse_index = 0},
};
constexpr auto BaseEntityType_powerOperState_links = token_links(BaseEntityType_powerOperState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseEntityType_powerOperState = {.rows =
    BaseEntityType_powerOperState_rows, .links = BaseEntityType_powerOperState_links.data(), .count = 5};

namespace
{

constexpr xb_enum_row BaseEntityType_dualRouter_rows[] = {
    {.token = "ORVL_DUAL_ROUTER_MODE_BOTH", .code = 3, .token_length = 26, .inverse_index = 3},
    {.token = "ORVL_DUAL_ROUTER_MODE_RP0", .code = 1, .token_length = 25, .inverse_index = 1},
    {.token = "ORVL_DUAL_ROUTER_MODE_RP1", .code = 2, .token_length = 25, .inverse_index = 2},
    {.token = "ORVL_DUAL_ROUTER_MODE_SINGLE", .code = 0, .token_length = 28, .inverse_index = 0},
};
constexpr auto BaseEntityType_dualRouter_links = token_links(BaseEntityType_dualRouter_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseEntityType_dualRouter = {.rows =
    BaseEntityType_dualRouter_rows, .links = BaseEntityType_dualRouter_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row BaseSensorType_2_unit_rows[] = {
    {.token = "ORVL_SENSOR_UNIT_AMPS", .code = 5, .token_length = 21, .inverse_index = 5},
    {.token = "ORVL_SENSOR_UNIT_CELSIUS", .code = 8, .token_length = 24, .inverse_index = 7},
    {.token = "ORVL_SENSOR_UNIT_CMM", .code = 11, .token_length = 20, .inverse_index = 13},
    {.token = "ORVL_SENSOR_UNIT_DB", .code = 15, .token_length = 19, .inverse_index = 14},
    {.token = "ORVL_SENSOR_UNIT_DBM", .code = 14, .token_length = 20, .inverse_index = 15},
    {.token = "ORVL_SENSOR_UNIT_DUMMY", .code = 0, .token_length = 22, .inverse_index = 0},
    {.token = "ORVL_SENSOR_UNIT_HERTZ", .code = 7, .token_length = 22, .inverse_index = 16},
    {.token = "ORVL_SENSOR_UNIT_OTHER", .code = 1, .token_length = 22, .inverse_index = 6},
    {.token = "ORVL_SENSOR_UNIT_PASCAL", .code = 16, .token_length = 23, .inverse_index = 1},
    {.token = "ORVL_SENSOR_UNIT_PERCENT_RH", .code = 9, .token_length = 27, .inverse_index = 9},
    {.token = "ORVL_SENSOR_UNIT_RPM", .code = 10, .token_length = 20, .inverse_index = 10},
    {.token = "ORVL_SENSOR_UNIT_SPECIALENUM", .code = 13, .token_length = 28, .inverse_index = 2},
    {.token = "ORVL_SENSOR_UNIT_TRUTHVALUE", .code = 12, .token_length = 27, .inverse_index = 12},
    {.token = "ORVL_SENSOR_UNIT_UNKNOWN", .code = 2, .token_length = 24, .inverse_index = 11},
    {.token = "ORVL_SENSOR_UNIT_VOLT_AC", .code = 3, .token_length = 24, .inverse_index = 4},
    {.token = "ORVL_SENSOR_UNIT_VOLT_DC", .code = 4, .token_length = 24, .inverse_index = 3},
    {.token = "ORVL_SENSOR_UNIT_WATTS", .code = 6, .token_length = 22, .inverse_index = 8},
};
constexpr auto BaseSensorType_2_unit_links = token_links(BaseSensorType_2_unit_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseSensorType_2_unit = {.rows = BaseSensorType_2_unit_rows, .links
    = BaseSensorType_2_unit_links.data(), .count = 17};

namespace
{

constexpr xb_enum_row BaseSensorType_2_userDefinedUnit_rows[] = {
    {.token = "ORVL_USER_DEFINED_SENSOR_UNIT_FARENHEIT", .code = 0, .token_length = 39, .inverse_index = 0},
    {.token = "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIAMPS", .code = 3, .token_length = 39, .inverse_index = 2},
    {.token = "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIVOLT_AC", .code = 1, .token_length = 42,
     .inverse_index = 3},
    {.token = "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIVOLT_DC", .code = 2, .token_length = 42,
     .inverse_index = 1},
    {.token = "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIWATTS", .code = 4, .token_length = 40, .inverse_index = 4},
};
constexpr auto BaseSensorType_2_userDefinedUnit_links = token_links(BaseSensorType_2_userDefinedUnit_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseSensorType_2_userDefinedUnit = {.rows =
    BaseSensorType_2_userDefinedUnit_rows, .links = BaseSensorType_2_userDefinedUnit_links.data(), .count =
    5};

namespace
{

constexpr xb_enum_row BaseSensorType_2_scale_rows[] = {
    {.token = "ORVL_SENSOR_SCALE_ATTO", .code = 3, .token_length = 22, .inverse_index = 1},
    {.token = "ORVL_SENSOR_SCALE_DUMMY", .code = 0, .token_length = 23, .inverse_index = 14},
    {.token = "ORVL_SENSOR_SCALE_EXA", .code = 14, .token_length = 21, .inverse_index = 16},
    {.token = "ORVL_SENSOR_SCALE_FEMTO", .code = 4, .token_length = 23, .inverse_index = 0},
    {.token = "ORVL_SENSOR_SCALE_GIGA", .code = 12, .token_length = 22, .inverse_index = 3},
    {.token = "ORVL_SENSOR_SCALE_KILO", .code = 10, .token_length = 22, .inverse_index = 11},
    {.token = "ORVL_SENSOR_SCALE_MEGA", .code = 11, .token_length = 22, .inverse_index = 9},
    {.token = "ORVL_SENSOR_SCALE_MICRO", .code = 7, .token_length = 23, .inverse_index = 7},
    {.token = "ORVL_SENSOR_SCALE_MILLI", .code = 8, .token_length = 23, .inverse_index = 8},
    {.token = "ORVL_SENSOR_SCALE_NANO", .code = 6, .token_length = 22, .inverse_index = 13},
    {.token = "ORVL_SENSOR_SCALE_PETA", .code = 15, .token_length = 22, .inverse_index = 5},
    {.token = "ORVL_SENSOR_SCALE_PICO", .code = 5, .token_length = 22, .inverse_index = 6},
    {.token = "ORVL_SENSOR_SCALE_TERA", .code = 13, .token_length = 22, .inverse_index = 4},
    {.token = "ORVL_SENSOR_SCALE_UNITS", .code = 9, .token_length = 23, .inverse_index = 12},
    {.token = "ORVL_SENSOR_SCALE_YOCTO", .code = 1, .token_length = 23, .inverse_index = 2},
    {.token = "ORVL_SENSOR_SCALE_YOTTA", .code = 17, .token_length = 23, .inverse_index = 10},
    {.token = "ORVL_SENSOR_SCALE_ZEPTO", .code = 2, .token_length = 23, .inverse_index = 17},
    {.token = "ORVL_SENSOR_SCALE_ZETTA", .code = 16, .token_length = 23, .inverse_index = 15},
};
constexpr auto BaseSensorType_2_scale_links = token_links(BaseSensorType_2_scale_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseSensorType_2_scale = {.rows = BaseSensorType_2_scale_rows,
    .links = BaseSensorType_2_scale_links.data(), .count = 18};

namespace
{

constexpr xb_enum_row BaseVoltageMarginType_2_operation_rows[] = {
    {.token = "ORVL_VOLT_MARGIN_HIGH", .code = 0, .token_length = 21, .inverse_index = 0},
    {.token = "ORVL_VOLT_MARGIN_LOW", .code = 1, .token_length = 20, .inverse_index = 1},
    {.token = "ORVL_VOLT_MARGIN_OFF", .code = 2, .token_length = 20, .inverse_index = 2},
};
constexpr auto BaseVoltageMarginType_2_operation_links = token_links(BaseVoltageMarginType_2_operation_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseVoltageMarginType_2_operation = {.rows =
    BaseVoltageMarginType_2_operation_rows, .links = BaseVoltageMarginType_2_operation_links.data(), .count =
    3};

namespace
{

constexpr xb_enum_row BaseKestoType_2_isValidated_rows[] = {
    {.token = "ORVL_KESTO_FAILED", .code = 1, .token_length = 17, .inverse_index = 1},
    {.token = "ORVL_KESTO_PASSED", .code = 0, .token_length = 17, .inverse_index = 0},
    {.token = "ORVL_KESTO_UNTESTED", .code = 2, .token_length = 19, .inverse_index = 2},
};
constexpr auto BaseKestoType_2_isValidated_links = token_links(BaseKestoType_2_isValidated_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseKestoType_2_isValidated = {.rows =
    BaseKestoType_2_isValidated_rows, .links = BaseKestoType_2_isValidated_links.data(), .count = 3};

namespace
{

constexpr xb_enum_row BaseConsoleType_usage_rows[] = {
    {.token = "ORVL_CONSOLE_PORT_ANY", .code = 0, .token_length = 21, .inverse_index = 0},
    {.token = "ORVL_CONSOLE_PORT_CPU", .code = 2, .token_length = 21, .inverse_index = 2},
    {.token = "ORVL_CONSOLE_PORT_KERNEL", .code = 1, .token_length = 24, .inverse_index = 1},
    {.token = "ORVL_CONSOLE_PORT_OTHER", .code = 3, .token_length = 23, .inverse_index = 3},
};
constexpr auto BaseConsoleType_usage_links = token_links(BaseConsoleType_usage_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::BaseConsoleType_usage = {.rows = BaseConsoleType_usage_rows, .links
    = BaseConsoleType_usage_links.data(), .count = 4};

namespace
{

constexpr xb_enum_row PEMType_2_faultStatus_rows[] = {
    {.token = "ORVL_FAULT_STATUS_BOOST_VBULK_FAULT", .code = 12, .token_length = 35, .inverse_index = 7},
    {.token = "ORVL_FAULT_STATUS_CTRL_VOLT_OUT_OF_RANGE", .code = 8, .token_length = 40, .inverse_index = 3},
    {.token = "ORVL_FAULT_STATUS_FAULT_INDUCED_SHUTDOWN", .code = 13, .token_length = 40,
     .inverse_index = 10},
    {.token = "ORVL_FAULT_STATUS_FEEDER_FAULT", .code = 1, .token_length = 30, .inverse_index = 12},
    {.token = "ORVL_FAULT_STATUS_INPUT_DUAL_MODE_ORING_FAULT", .code = 11, .token_length = 45,
     .inverse_index = 9},
    {.token = "ORVL_FAULT_STATUS_INPUT_ORING_FAULT", .code = 10, .token_length = 35, .inverse_index = 6},
    {.token = "ORVL_FAULT_STATUS_INPUT_STAGE_OVER_TEMP", .code = 5, .token_length = 39, .inverse_index = 11},
    {.token = "ORVL_FAULT_STATUS_NONE", .code = 0, .token_length = 22, .inverse_index = 15},
    {.token = "ORVL_FAULT_STATUS_OUTPUT_ORING_FAULT", .code = 9, .token_length = 36, .inverse_index = 1},
    {.token = "ORVL_FAULT_STATUS_OUTPUT_STAGE_OVER_TEMP", .code = 4, .token_length = 40, .inverse_index = 8},
    {.token = "ORVL_FAULT_STATUS_OVER_CURRENT_SHUTDOWN", .code = 2, .token_length = 39, .inverse_index = 5},
    {.token = "ORVL_FAULT_STATUS_OVER_TEMP_SHUTDOWN", .code = 6, .token_length = 36, .inverse_index = 4},
    {.token = "ORVL_FAULT_STATUS_OVER_VOLTAGE_SHUTDOWN", .code = 3, .token_length = 39, .inverse_index = 0},
    {.token = "ORVL_FAULT_STATUS_PS_VIN_OUT_OF_RANGE", .code = 15, .token_length = 37, .inverse_index = 2},
    {.token = "ORVL_FAULT_STATUS_PS_VOUT_OUT_OF_RANGE", .code = 14, .token_length = 38, .inverse_index = 14},
    {.token = "ORVL_FAULT_STATUS_THERMAL_SENSOR_FAULT", .code = 7, .token_length = 38, .inverse_index = 13},
};
constexpr auto PEMType_2_faultStatus_links = token_links(PEMType_2_faultStatus_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PEMType_2_faultStatus = {.rows = PEMType_2_faultStatus_rows, .links
    = PEMType_2_faultStatus_links.data(), .count = 16};

namespace
{

constexpr xb_enum_row PEMType_2_psmState_rows[] = {
    {.token = "ORVL_PSM_STATE_DISABLED", .code = 1, .token_length = 23, .inverse_index = 1},
    {.token = "ORVL_PSM_STATE_ENABLED", .code = 0, .token_length = 22, .inverse_index = 0},
    {.token = "ORVL_PSM_STATE_FAILED", .code = 2, .token_length = 21, .inverse_index = 2},
};
constexpr auto PEMType_2_psmState_links = token_links(PEMType_2_psmState_rows);
}  // namespace

constexpr enumeration inv::decode::tokens::PEMType_2_psmState = {.rows = PEMType_2_psmState_rows, .links =
    PEMType_2_psmState_links.data(), .count = 3};

namespace
{

void Init_BaseLEDType_2(BaseLEDType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseContainerType_2(BaseContainerType_2 *record)
{
    clear_octets(*record);
}

void Init_PemBayType_2(PemBayType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseCEPortType_2(BaseCEPortType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseFPGAType_2(BaseFPGAType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseIdEEPROMType_2(BaseIdEEPROMType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseStorageType_2(BaseStorageType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseSpiFlash_2(BaseSpiFlash_2 *record)
{
    clear_octets(*record);
}

void Init_BaseSensorType_2(BaseSensorType_2 *record)
{
    clear_octets(*record);
}

void Init_BasePCIeSwitchType_2(BasePCIeSwitchType_2 *record)
{
    clear_octets(*record);
    Init_BaseSensorType(&record->sensor);
}

void Init_BaseVoltageMarginType_2(BaseVoltageMarginType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseProcessorType_2(BaseProcessorType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseMemoryType_2(BaseMemoryType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseCESwitchType_2(BaseCESwitchType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseKestoType_2(BaseKestoType_2 *record)
{
    clear_octets(*record);
}

void Init_BasePortType_2(BasePortType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseModuleType_2(BaseModuleType_2 *record)
{
    clear_octets(*record);
}

void Init_OpticsType_2(OpticsType_2 *record)
{
    clear_octets(*record);
}

void Init_PEMType_2(PEMType_2 *record)
{
    clear_octets(*record);
}

void Init_FanTrayType_2(FanTrayType_2 *record)
{
    clear_octets(*record);
}

void Init_BackPlaneType_2(BackPlaneType_2 *record)
{
    clear_octets(*record);
}

void Init_FanType_2(FanType_2 *record)
{
    clear_octets(*record);
    Init_BaseSensorType(&record->sensor);
}

void Init_BaseModuleTestType_2(BaseModuleTestType_2 *record)
{
    clear_octets(*record);
}

void Init_BaseCraftInterfaceType_2(BaseCraftInterfaceType_2 *record)
{
    clear_octets(*record);
}

void Init_ChassisEntityType_2(ChassisEntityType_2 *record)
{
    clear_octets(*record);
    Init_BackPlaneType(&record->backPlane);
}

void Init_PowerShelfType_2(PowerShelfType_2 *record)
{
    clear_octets(*record);
}

}  // namespace

int32_t ReplicationLevelsType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::ReplicationLevelsType, text, length, code);
}

const char *ReplicationLevelsType_ToString(uint32_t code)
{
    return find_token(tokens::ReplicationLevelsType, code);
}

int32_t EntityOwnerType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EntityOwnerType, text, length, code);
}

const char *EntityOwnerType_ToString(uint32_t code)
{
    return find_token(tokens::EntityOwnerType, code);
}

int32_t EntitySelectionType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EntitySelectionType, text, length, code);
}

const char *EntitySelectionType_ToString(uint32_t code)
{
    return find_token(tokens::EntitySelectionType, code);
}

int32_t EidType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EidType, text, length, code);
}

const char *EidType_ToString(uint32_t code)
{
    return find_token(tokens::EidType, code);
}

int32_t EidSubType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EidSubType, text, length, code);
}

const char *EidSubType_ToString(uint32_t code)
{
    return find_token(tokens::EidSubType, code);
}

int32_t MemAccessSpeedUnit_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::MemAccessSpeedUnit, text, length, code);
}

const char *MemAccessSpeedUnit_ToString(uint32_t code)
{
    return find_token(tokens::MemAccessSpeedUnit, code);
}

int32_t CyclesPerSecUnit_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::CyclesPerSecUnit, text, length, code);
}

const char *CyclesPerSecUnit_ToString(uint32_t code)
{
    return find_token(tokens::CyclesPerSecUnit, code);
}

int32_t HardwareModelType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::HardwareModelType, text, length, code);
}

const char *HardwareModelType_ToString(uint32_t code)
{
    return find_token(tokens::HardwareModelType, code);
}

int32_t LinkApplicableType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::LinkApplicableType, text, length, code);
}

const char *LinkApplicableType_ToString(uint32_t code)
{
    return find_token(tokens::LinkApplicableType, code);
}

int32_t SequenceType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::SequenceType, text, length, code);
}

const char *SequenceType_ToString(uint32_t code)
{
    return find_token(tokens::SequenceType, code);
}

int32_t I2cDeviceType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::I2cDeviceType, text, length, code);
}

const char *I2cDeviceType_ToString(uint32_t code)
{
    return find_token(tokens::I2cDeviceType, code);
}

int32_t PowerZonesValuesType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PowerZonesValuesType, text, length, code);
}

const char *PowerZonesValuesType_ToString(uint32_t code)
{
    return find_token(tokens::PowerZonesValuesType, code);
}

int32_t PciGen_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PciGen, text, length, code);
}

const char *PciGen_ToString(uint32_t code)
{
    return find_token(tokens::PciGen, code);
}

int32_t PhyType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PhyType, text, length, code);
}

const char *PhyType_ToString(uint32_t code)
{
    return find_token(tokens::PhyType, code);
}

int32_t EsdPortDestType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EsdPortDestType, text, length, code);
}

const char *EsdPortDestType_ToString(uint32_t code)
{
    return find_token(tokens::EsdPortDestType, code);
}

int32_t PortState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PortState, text, length, code);
}

const char *PortState_ToString(uint32_t code)
{
    return find_token(tokens::PortState, code);
}

int32_t MdioSpeed_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::MdioSpeed, text, length, code);
}

const char *MdioSpeed_ToString(uint32_t code)
{
    return find_token(tokens::MdioSpeed, code);
}

int32_t LocalSwitching_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::LocalSwitching, text, length, code);
}

const char *LocalSwitching_ToString(uint32_t code)
{
    return find_token(tokens::LocalSwitching, code);
}

int32_t SerdesParamsType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::SerdesParamsType, text, length, code);
}

const char *SerdesParamsType_ToString(uint32_t code)
{
    return find_token(tokens::SerdesParamsType, code);
}

int32_t SfpControllerType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::SfpControllerType, text, length, code);
}

const char *SfpControllerType_ToString(uint32_t code)
{
    return find_token(tokens::SfpControllerType, code);
}

int32_t EsdDevVlanType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EsdDevVlanType, text, length, code);
}

const char *EsdDevVlanType_ToString(uint32_t code)
{
    return find_token(tokens::EsdDevVlanType, code);
}

int32_t EsdDevClientType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EsdDevClientType, text, length, code);
}

const char *EsdDevClientType_ToString(uint32_t code)
{
    return find_token(tokens::EsdDevClientType, code);
}

int32_t PortSpeedType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PortSpeedType, text, length, code);
}

const char *PortSpeedType_ToString(uint32_t code)
{
    return find_token(tokens::PortSpeedType, code);
}

int32_t PortModeType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PortModeType, text, length, code);
}

const char *PortModeType_ToString(uint32_t code)
{
    return find_token(tokens::PortModeType, code);
}

int32_t BaseLedColorsType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseLedColorsType, text, length, code);
}

const char *BaseLedColorsType_ToString(uint32_t code)
{
    return find_token(tokens::BaseLedColorsType, code);
}

int32_t BaseLedControlType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseLedControlType, text, length, code);
}

const char *BaseLedControlType_ToString(uint32_t code)
{
    return find_token(tokens::BaseLedControlType, code);
}

int32_t PortUsageType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PortUsageType, text, length, code);
}

const char *PortUsageType_ToString(uint32_t code)
{
    return find_token(tokens::PortUsageType, code);
}

int32_t EepromUsageType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::EepromUsageType, text, length, code);
}

const char *EepromUsageType_ToString(uint32_t code)
{
    return find_token(tokens::EepromUsageType, code);
}

int32_t NodeInfoType_nodeType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::NodeInfoType_nodeType, text, length, code);
}

const char *NodeInfoType_nodeType_ToString(uint32_t code)
{
    return find_token(tokens::NodeInfoType_nodeType, code);
}

int32_t I2cPortType_portType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::I2cPortType_portType, text, length, code);
}

const char *I2cPortType_portType_ToString(uint32_t code)
{
    return find_token(tokens::I2cPortType_portType, code);
}

int32_t PCIeNodeType_deviceType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PCIeNodeType_deviceType, text, length, code);
}

const char *PCIeNodeType_deviceType_ToString(uint32_t code)
{
    return find_token(tokens::PCIeNodeType_deviceType, code);
}

int32_t BaseContainerListType_containerType_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseContainerListType_containerType, text, length, code);
}

const char *BaseContainerListType_containerType_ToString(uint32_t code)
{
    return find_token(tokens::BaseContainerListType_containerType, code);
}

int32_t BaseStorageMemoryMap_memoryUsage_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseStorageMemoryMap_memoryUsage, text, length, code);
}

const char *BaseStorageMemoryMap_memoryUsage_ToString(uint32_t code)
{
    return find_token(tokens::BaseStorageMemoryMap_memoryUsage, code);
}

int32_t BaseEntityType_adminState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseEntityType_adminState, text, length, code);
}

const char *BaseEntityType_adminState_ToString(uint32_t code)
{
    return find_token(tokens::BaseEntityType_adminState, code);
}

int32_t BaseEntityType_operState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseEntityType_operState, text, length, code);
}

const char *BaseEntityType_operState_ToString(uint32_t code)
{
    return find_token(tokens::BaseEntityType_operState, code);
}

int32_t BaseEntityType_powerAdminState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseEntityType_powerAdminState, text, length, code);
}

const char *BaseEntityType_powerAdminState_ToString(uint32_t code)
{
    return find_token(tokens::BaseEntityType_powerAdminState, code);
}

int32_t BaseEntityType_powerOperState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseEntityType_powerOperState, text, length, code);
}

const char *BaseEntityType_powerOperState_ToString(uint32_t code)
{
    return find_token(tokens::BaseEntityType_powerOperState, code);
}

int32_t BaseEntityType_dualRouter_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseEntityType_dualRouter, text, length, code);
}

const char *BaseEntityType_dualRouter_ToString(uint32_t code)
{
    return find_token(tokens::BaseEntityType_dualRouter, code);
}

int32_t BaseSensorType_2_unit_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseSensorType_2_unit, text, length, code);
}

const char *BaseSensorType_2_unit_ToString(uint32_t code)
{
    return find_token(tokens::BaseSensorType_2_unit, code);
}

int32_t BaseSensorType_2_userDefinedUnit_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseSensorType_2_userDefinedUnit, text, length, code);
}

const char *BaseSensorType_2_userDefinedUnit_ToString(uint32_t code)
{
    return find_token(tokens::BaseSensorType_2_userDefinedUnit, code);
}

int32_t BaseSensorType_2_scale_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseSensorType_2_scale, text, length, code);
}

const char *BaseSensorType_2_scale_ToString(uint32_t code)
{
    return find_token(tokens::BaseSensorType_2_scale, code);
}

int32_t BaseVoltageMarginType_2_operation_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseVoltageMarginType_2_operation, text, length, code);
}

const char *BaseVoltageMarginType_2_operation_ToString(uint32_t code)
{
    return find_token(tokens::BaseVoltageMarginType_2_operation, code);
}

int32_t BaseKestoType_2_isValidated_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseKestoType_2_isValidated, text, length, code);
}

const char *BaseKestoType_2_isValidated_ToString(uint32_t code)
{
    return find_token(tokens::BaseKestoType_2_isValidated, code);
}

int32_t BaseConsoleType_usage_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::BaseConsoleType_usage, text, length, code);
}

const char *BaseConsoleType_usage_ToString(uint32_t code)
{
    return find_token(tokens::BaseConsoleType_usage, code);
}

int32_t PEMType_2_faultStatus_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PEMType_2_faultStatus, text, length, code);
}

const char *PEMType_2_faultStatus_ToString(uint32_t code)
{
    return find_token(tokens::PEMType_2_faultStatus, code);
}

int32_t PEMType_2_psmState_ToEnum(const char *text, int32_t length, uint32_t *code)
{
    return find_code(tokens::PEMType_2_psmState, text, length, code);
}

const char *PEMType_2_psmState_ToString(uint32_t code)
{
    return find_token(tokens::PEMType_2_psmState, code);
}

void Init_NodeInfoType(NodeInfoType *record)
{
    clear_octets(*record);
}

void Init_I2cNodeType(I2cNodeType *record)
{
    clear_octets(*record);
}

void Init_I2cSequenceType(I2cSequenceType *record)
{
    clear_octets(*record);
}

void Init_I2cDestType(I2cDestType *record)
{
    clear_octets(*record);
}

void Init_I2cPortType(I2cPortType *record)
{
    clear_octets(*record);
}

void Init_PCIeNodeType(PCIeNodeType *record)
{
    clear_octets(*record);
}

void Init_PciSequenceType(PciSequenceType *record)
{
    clear_octets(*record);
}

void Init_PMBusPortType(PMBusPortType *record)
{
    clear_octets(*record);
}

void Init_SpiDestType(SpiDestType *record)
{
    clear_octets(*record);
}

void Init_SpiPortType(SpiPortType *record)
{
    clear_octets(*record);
}

void Init_PCIeDestType(PCIeDestType *record)
{
    clear_octets(*record);
}

void Init_BasePCIePortType(BasePCIePortType *record)
{
    clear_octets(*record);
}

void Init_HardwareRegistersType(HardwareRegistersType *record)
{
    clear_octets(*record);
}

void Init_HwSignalsType(HwSignalsType *record)
{
    clear_octets(*record);
}

void Init_PowerConsumerType(PowerConsumerType *record)
{
    clear_octets(*record);
}

void Init_PowerProducerType(PowerProducerType *record)
{
    clear_octets(*record);
}

void Init_PowerZoneType(PowerZoneType *record)
{
    clear_octets(*record);
}

void Init_PowerInfoType(PowerInfoType *record)
{
    clear_octets(*record);
}

void Init_BaseLedInfoType(BaseLedInfoType *record)
{
    clear_octets(*record);
}

void Init_BaseContainerListType(BaseContainerListType *record)
{
    clear_octets(*record);
}

void Init_BaseThresholdType(BaseThresholdType *record)
{
    clear_octets(*record);
}

void Init_BaseStorageMemoryMap(BaseStorageMemoryMap *record)
{
    clear_octets(*record);
}

void Init_BaseControlInfoType(BaseControlInfoType *record)
{
    clear_octets(*record);
}

void Init_SwitchPortMapType(SwitchPortMapType *record)
{
    clear_octets(*record);
}

void Init_BaseEntityType(BaseEntityType *record)
{
    clear_octets(*record);
    record->entityOwner = 1;
    record->snmpEntity = 1;
    record->isPrefixNeeded = 1;
}

void Init_BaseLEDType(BaseLEDType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseLEDType_2(&record->ext);
}

void Init_BaseContainerType(BaseContainerType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseContainerType_2(&record->ext);
    record->position = {};
    record->hardwarePosition = {};
}

void Init_PemBayType(PemBayType *record)
{
    Init_BaseContainerType(&record->base);
    clear_octets(record->has);
    Init_PemBayType_2(&record->ext);
}

void Init_BaseCEPortType(BaseCEPortType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseCEPortType_2(&record->ext);
    record->portUsage = {};
}

void Init_BaseCESwitchType_2_port(BaseCESwitchType_2_port *record)
{
    Init_BaseCEPortType(&record->base);
    record->facePlatePort = {};
}

void Init_BaseFPGAType(BaseFPGAType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseFPGAType_2(&record->ext);
}

void Init_BaseIdEEPROMType(BaseIdEEPROMType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseIdEEPROMType_2(&record->ext);
    record->eepromType = {};
}

void Init_BaseStorageType(BaseStorageType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseStorageType_2(&record->ext);
}

void Init_BaseSpiFlash(BaseSpiFlash *record)
{
    Init_BaseStorageType(&record->base);
    clear_octets(record->has);
    Init_BaseSpiFlash_2(&record->ext);
}

void Init_BaseSensorType(BaseSensorType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseSensorType_2(&record->ext);
    record->isMarginable = {};
    record->isRov = {};
    record->marginRegister = {};
}

void Init_I2cChipType(I2cChipType *record)
{
    Init_BaseEntityType(&record->base);
}

void Init_BasePCIeSwitchType(BasePCIeSwitchType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BasePCIeSwitchType_2(&record->ext);
}

void Init_BaseVoltageMarginType(BaseVoltageMarginType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseVoltageMarginType_2(&record->ext);
}

void Init_BaseProcessorType(BaseProcessorType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseProcessorType_2(&record->ext);
}

void Init_BaseMemoryType(BaseMemoryType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseMemoryType_2(&record->ext);
}

void Init_BaseCESwitchType(BaseCESwitchType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseCESwitchType_2(&record->ext);
}

void Init_BaseKestoType(BaseKestoType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseKestoType_2(&record->ext);
}

void Init_BasePortType(BasePortType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BasePortType_2(&record->ext);
    record->portUsage = {};
}

void Init_BaseConsoleType(BaseConsoleType *record)
{
    Init_BasePortType(&record->base);
    record->usage = {};
}

void Init_BaseModuleType(BaseModuleType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseModuleType_2(&record->ext);
}

void Init_OpticsType(OpticsType *record)
{
    Init_BaseModuleType(&record->base);
    clear_octets(record->has);
    Init_OpticsType_2(&record->ext);
}

void Init_PEMType(PEMType *record)
{
    Init_BaseModuleType(&record->base);
    clear_octets(record->has);
    Init_PEMType_2(&record->ext);
}

void Init_FanTrayType(FanTrayType *record)
{
    Init_BaseModuleType(&record->base);
    clear_octets(record->has);
    Init_FanTrayType_2(&record->ext);
}

void Init_BackPlaneType(BackPlaneType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BackPlaneType_2(&record->ext);
}

void Init_FanType(FanType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_FanType_2(&record->ext);
}

void Init_BaseModuleTestType(BaseModuleTestType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseModuleTestType_2(&record->ext);
}

void Init_BaseCraftInterfaceType(BaseCraftInterfaceType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_BaseCraftInterfaceType_2(&record->ext);
}

void Init_ChassisEntityType(ChassisEntityType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_ChassisEntityType_2(&record->ext);
}

void Init_PowerShelfType(PowerShelfType *record)
{
    Init_BaseEntityType(&record->base);
    clear_octets(record->has);
    Init_PowerShelfType_2(&record->ext);
}
