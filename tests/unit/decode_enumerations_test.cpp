// Every enumeration: tokens to codes and back.
#include <gtest/gtest.h>

#include <string>

#include "OrvelianInventorySchemaDec.h"
#include "inv_parser/inventory_tokens.h"
#include "unit/decode_support.h"

using namespace decode_test;

namespace
{

struct enumeration_case {
    const char *name;
    int32_t (*to_enum)(const char *text, int32_t length, uint32_t *code);
    const char *(*to_string)(uint32_t code);
    int32_t (*decode)(xb_context *ctx, uint32_t *code);
    uint32_t count;
    const char *first;
    const char *last;
    const char *foreign;  // a token of another enumeration
};

const enumeration_case cases[] = {
    {"ReplicationLevelsType", ReplicationLevelsType_ToEnum, ReplicationLevelsType_ToString,
     XmlDT_ReplicationLevelsType, 6, "ORVL_REPLICATION_TYPE_NONE",
     "ORVL_REPLICATION_TYPE_ADMIN_RACK_SVC_SYSTEM", "ORVL_ENTITY_OWNER_TYPE_NONE"},
    {"EntityOwnerType", EntityOwnerType_ToEnum, EntityOwnerType_ToString, XmlDT_EntityOwnerType, 7,
     "ORVL_ENTITY_OWNER_TYPE_NONE", "ORVL_ENTITY_OWNER_TYPE_ALL", "ORVL_ENTITY_ADD_SELECTIVE"},
    {"EntitySelectionType", EntitySelectionType_ToEnum, EntitySelectionType_ToString,
     XmlDT_EntitySelectionType, 2, "ORVL_ENTITY_ADD_SELECTIVE", "ORVL_ENTITY_ADD_ALL",
     "ORVL_ENTITY_TYPE_DUMMY"},
    {"EidType", EidType_ToEnum, EidType_ToString, XmlDT_EidType, 13, "ORVL_ENTITY_TYPE_DUMMY",
     "ORVL_ENTITY_TYPE_CPU", "ORVL_ENTITY_SUBTYPE_BACKPLANE_DUMMY"},
    {"EidSubType", EidSubType_ToEnum, EidSubType_ToString, XmlDT_EidSubType, 236,
     "ORVL_ENTITY_SUBTYPE_BACKPLANE_DUMMY", "ORVL_ENTITY_SUBTYPE_INVALID", "ORVL_MEM_SPEED_UNIT_DUMMY"},
    {"MemAccessSpeedUnit", MemAccessSpeedUnit_ToEnum, MemAccessSpeedUnit_ToString, XmlDT_MemAccessSpeedUnit,
     4, "ORVL_MEM_SPEED_UNIT_DUMMY", "ORVL_MEM_SPEED_UNIT_MEGABYTES_PER_SEC",
     "ORVL_CYCLES_PER_SEC_UNIT_DUMMY"},
    {"CyclesPerSecUnit", CyclesPerSecUnit_ToEnum, CyclesPerSecUnit_ToString, XmlDT_CyclesPerSecUnit, 5,
     "ORVL_CYCLES_PER_SEC_UNIT_DUMMY", "ORVL_CYSCLES_PER_SEC_UNIT_GHZ", "ORVL_HW_MODEL_UNKNOWN"},
    {"HardwareModelType", HardwareModelType_ToEnum, HardwareModelType_ToString, XmlDT_HardwareModelType, 145,
     "ORVL_HW_MODEL_UNKNOWN", "ORVL_HW_MODEL_AUTHENTICITY_CHIP", "ORVL_CTRL_SLOT_0"},
    {"LinkApplicableType", LinkApplicableType_ToEnum, LinkApplicableType_ToString, XmlDT_LinkApplicableType,
     3, "ORVL_CTRL_SLOT_0", "ORVL_CTRL_SLOT_ANY", "ORVL_SEQ_FULL"},
    {"SequenceType", SequenceType_ToEnum, SequenceType_ToString, XmlDT_SequenceType, 3, "ORVL_SEQ_FULL",
     "ORVL_SEQ_LINK", "ORVL_NODE_TYPE_UNKNOWN"},
    {"NodeInfoType_nodeType", NodeInfoType_nodeType_ToEnum, NodeInfoType_nodeType_ToString,
     XmlDT_NodeInfoType_nodeType, 22, "ORVL_NODE_TYPE_UNKNOWN", "ORVL_NODE_TYPE_MAX", "ORVL_I2CDEV_TYPE_CCC"},
    {"I2cDeviceType", I2cDeviceType_ToEnum, I2cDeviceType_ToString, XmlDT_I2cDeviceType, 17,
     "ORVL_I2CDEV_TYPE_CCC", "ORVL_I2CDEV_TYPE_PCISWITCH", "ORVL_PORT_TYPE_MASTER"},
    {"I2cPortType_portType", I2cPortType_portType_ToEnum, I2cPortType_portType_ToString,
     XmlDT_I2cPortType_portType, 4, "ORVL_PORT_TYPE_MASTER", "ORVL_PORT_TYPE_SMBUS",
     "ORVL_DEV_TYPE_PCISWITCH"},
    {"PCIeNodeType_deviceType", PCIeNodeType_deviceType_ToEnum, PCIeNodeType_deviceType_ToString,
     XmlDT_PCIeNodeType_deviceType, 3, "ORVL_DEV_TYPE_PCISWITCH", "ORVL_DEV_TYPE_UNKNOWN",
     "ORVL_ADMIN_STATE_UNKNOWN"},
    {"BaseEntityType_adminState", BaseEntityType_adminState_ToEnum, BaseEntityType_adminState_ToString,
     XmlDT_BaseEntityType_adminState, 5, "ORVL_ADMIN_STATE_UNKNOWN", "ORVL_ADMIN_STATE_MAX",
     "ORVL_OPER_STATE_UNKNOWN"},
    {"BaseEntityType_operState", BaseEntityType_operState_ToEnum, BaseEntityType_operState_ToString,
     XmlDT_BaseEntityType_operState, 5, "ORVL_OPER_STATE_UNKNOWN", "ORVL_OPER_STATE_MAX",
     "ORVL_POWER_ADMIN_STATE_UNKNOWN"},
    {"BaseEntityType_powerAdminState", BaseEntityType_powerAdminState_ToEnum,
     BaseEntityType_powerAdminState_ToString, XmlDT_BaseEntityType_powerAdminState, 5,
     "ORVL_POWER_ADMIN_STATE_UNKNOWN", "ORVL_POWER_ADMIN_STATE_MAX", "ORVL_POWER_OPER_STATE_UNKNOWN"},
    {"BaseEntityType_powerOperState", BaseEntityType_powerOperState_ToEnum,
     BaseEntityType_powerOperState_ToString, XmlDT_BaseEntityType_powerOperState, 5,
     "ORVL_POWER_OPER_STATE_UNKNOWN", "ORVL_POWER_OPER_STATE_MAX", "ORVL_DUAL_ROUTER_MODE_SINGLE"},
    {"BaseEntityType_dualRouter", BaseEntityType_dualRouter_ToEnum, BaseEntityType_dualRouter_ToString,
     XmlDT_BaseEntityType_dualRouter, 4, "ORVL_DUAL_ROUTER_MODE_SINGLE", "ORVL_DUAL_ROUTER_MODE_BOTH",
     "ORVL_POWER_ZONE_UNKNOWN"},
    {"PowerZonesValuesType", PowerZonesValuesType_ToEnum, PowerZonesValuesType_ToString,
     XmlDT_PowerZonesValuesType, 18, "ORVL_POWER_ZONE_UNKNOWN", "ORVL_POWER_ZONE_FABRICASICS5",
     "ORVL_PCI_GEN_DMI1"},
    {"PciGen", PciGen_ToEnum, PciGen_ToString, XmlDT_PciGen, 7, "ORVL_PCI_GEN_DMI1", "ORVL_PCI_GEN_GEN4",
     "ORVL_PHY_TYPE_INTERNAL"},
    {"PhyType", PhyType_ToEnum, PhyType_ToString, XmlDT_PhyType, 9, "ORVL_PHY_TYPE_INTERNAL",
     "ORVL_PHY_TYPE_NLP1342", "ORVL_ESD_PORT_DEST_MISC"},
    {"EsdPortDestType", EsdPortDestType_ToEnum, EsdPortDestType_ToString, XmlDT_EsdPortDestType, 59,
     "ORVL_ESD_PORT_DEST_MISC", "ORVL_ESD_PORT_DEST_CPU_PORT1", "ORVL_PORT_STATE_ADMIN_UP"},
    {"PortState", PortState_ToEnum, PortState_ToString, XmlDT_PortState, 2, "ORVL_PORT_STATE_ADMIN_UP",
     "ORVL_PORT_STATE_ADMIN_DOWN", "ORVL_MDIO_CLK_SPEED_DEFAULT"},
    {"MdioSpeed", MdioSpeed_ToEnum, MdioSpeed_ToString, XmlDT_MdioSpeed, 3, "ORVL_MDIO_CLK_SPEED_DEFAULT",
     "ORVL_MDIO_CLK_SPEED_SLOW", "ORVL_LOCAL_SWITCHING_DISABLE"},
    {"LocalSwitching", LocalSwitching_ToEnum, LocalSwitching_ToString, XmlDT_LocalSwitching, 2,
     "ORVL_LOCAL_SWITCHING_DISABLE", "ORVL_LOCAL_SWITCHING_ENABLE", "ORVL_SERDES_SHORT_REACH"},
    {"SerdesParamsType", SerdesParamsType_ToEnum, SerdesParamsType_ToString, XmlDT_SerdesParamsType, 4,
     "ORVL_SERDES_SHORT_REACH", "ORVL_SERDES_MAX", "ORVL_SFP_CONTROLLER_UNKNOWN"},
    {"SfpControllerType", SfpControllerType_ToEnum, SfpControllerType_ToString, XmlDT_SfpControllerType, 3,
     "ORVL_SFP_CONTROLLER_UNKNOWN", "ORVL_SFP_CONTROLLER_PHY", "ORVL_VLAN_BLUE"},
    {"EsdDevVlanType", EsdDevVlanType_ToEnum, EsdDevVlanType_ToString, XmlDT_EsdDevVlanType, 11,
     "ORVL_VLAN_BLUE", "ORVL_VLAN_ALL", "ORVL_ESD_CLIENT_NONE"},
    {"EsdDevClientType", EsdDevClientType_ToEnum, EsdDevClientType_ToString, XmlDT_EsdDevClientType, 27,
     "ORVL_ESD_CLIENT_NONE", "ORVL_ESD_CLIENT_XC", "ORVL_PORT_SPEED_UNKNOWN"},
    {"PortSpeedType", PortSpeedType_ToEnum, PortSpeedType_ToString, XmlDT_PortSpeedType, 7,
     "ORVL_PORT_SPEED_UNKNOWN", "ORVL_PORT_SPEED_2_5GB", "ORVL_PORT_MODE_UNKNOWN"},
    {"PortModeType", PortModeType_ToEnum, PortModeType_ToString, XmlDT_PortModeType, 8,
     "ORVL_PORT_MODE_UNKNOWN", "ORVL_PORT_MODE_40G_SR_LR", "ORVL_LED_COLOR_BLUE"},
    {"BaseLedColorsType", BaseLedColorsType_ToEnum, BaseLedColorsType_ToString, XmlDT_BaseLedColorsType, 4,
     "ORVL_LED_COLOR_BLUE", "ORVL_LED_COLOR_RED", "ORVL_LED_CONTROL_ON"},
    {"BaseLedControlType", BaseLedControlType_ToEnum, BaseLedControlType_ToString, XmlDT_BaseLedControlType,
     5, "ORVL_LED_CONTROL_ON", "ORVL_LED_CONTROL_BLINKFAST", "ORVL_PORT_USAGE_UNKNOWN"},
    {"PortUsageType", PortUsageType_ToEnum, PortUsageType_ToString, XmlDT_PortUsageType, 8,
     "ORVL_PORT_USAGE_UNKNOWN", "ORVL_PORT_USAGE_OTHER", "ORVL_CONSOLE_PORT_ANY"},
    {"BaseConsoleType_usage", BaseConsoleType_usage_ToEnum, BaseConsoleType_usage_ToString,
     XmlDT_BaseConsoleType_usage, 4, "ORVL_CONSOLE_PORT_ANY", "ORVL_CONSOLE_PORT_OTHER",
     "ORVL_EEPROM_TYPE_ID"},
    {"EepromUsageType", EepromUsageType_ToEnum, EepromUsageType_ToString, XmlDT_EepromUsageType, 3,
     "ORVL_EEPROM_TYPE_ID", "ORVL_EEPROM_TYPE_UNKNOWN", "ORVL_KESTO_PASSED"},
    {"BaseKestoType_2_isValidated", BaseKestoType_2_isValidated_ToEnum, BaseKestoType_2_isValidated_ToString,
     XmlDT_BaseKestoType_2_isValidated, 3, "ORVL_KESTO_PASSED", "ORVL_KESTO_UNTESTED",
     "ORVL_SENSOR_UNIT_DUMMY"},
    {"BaseSensorType_2_unit", BaseSensorType_2_unit_ToEnum, BaseSensorType_2_unit_ToString,
     XmlDT_BaseSensorType_2_unit, 17, "ORVL_SENSOR_UNIT_DUMMY", "ORVL_SENSOR_UNIT_PASCAL",
     "ORVL_USER_DEFINED_SENSOR_UNIT_FARENHEIT"},
    {"BaseSensorType_2_userDefinedUnit", BaseSensorType_2_userDefinedUnit_ToEnum,
     BaseSensorType_2_userDefinedUnit_ToString, XmlDT_BaseSensorType_2_userDefinedUnit, 5,
     "ORVL_USER_DEFINED_SENSOR_UNIT_FARENHEIT", "ORVL_USER_DEFINED_SENSOR_UNIT_MILLIWATTS",
     "ORVL_SENSOR_SCALE_DUMMY"},
    {"BaseSensorType_2_scale", BaseSensorType_2_scale_ToEnum, BaseSensorType_2_scale_ToString,
     XmlDT_BaseSensorType_2_scale, 18, "ORVL_SENSOR_SCALE_DUMMY", "ORVL_SENSOR_SCALE_YOTTA",
     "ORVL_MEM_USAGE_BOOTHEADER"},
    {"BaseStorageMemoryMap_memoryUsage", BaseStorageMemoryMap_memoryUsage_ToEnum,
     BaseStorageMemoryMap_memoryUsage_ToString, XmlDT_BaseStorageMemoryMap_memoryUsage, 7,
     "ORVL_MEM_USAGE_BOOTHEADER", "ORVL_MEM_USAGE_WORKING_INTERPRETER_IMAGE", "ORVL_VOLT_MARGIN_HIGH"},
    {"BaseVoltageMarginType_2_operation", BaseVoltageMarginType_2_operation_ToEnum,
     BaseVoltageMarginType_2_operation_ToString, XmlDT_BaseVoltageMarginType_2_operation, 3,
     "ORVL_VOLT_MARGIN_HIGH", "ORVL_VOLT_MARGIN_OFF", "ORVL_CONTAINER_TYPE_CONTROLCARDSLOT"},
    {"BaseContainerListType_containerType", BaseContainerListType_containerType_ToEnum,
     BaseContainerListType_containerType_ToString, XmlDT_BaseContainerListType_containerType, 12,
     "ORVL_CONTAINER_TYPE_CONTROLCARDSLOT", "ORVL_CONTAINER_TYPE_BPID2SLOT", "ORVL_FAULT_STATUS_NONE"},
    {"PEMType_2_faultStatus", PEMType_2_faultStatus_ToEnum, PEMType_2_faultStatus_ToString,
     XmlDT_PEMType_2_faultStatus, 16, "ORVL_FAULT_STATUS_NONE", "ORVL_FAULT_STATUS_PS_VIN_OUT_OF_RANGE",
     "ORVL_PSM_STATE_ENABLED"},
    {"PEMType_2_psmState", PEMType_2_psmState_ToEnum, PEMType_2_psmState_ToString, XmlDT_PEMType_2_psmState,
     3, "ORVL_PSM_STATE_ENABLED", "ORVL_PSM_STATE_FAILED", "ORVL_REPLICATION_TYPE_NONE"},
};

constexpr uint32_t untouched = 0xABCDEF;

// Gives the code, or `untouched` when the text is not found and nothing was written.
uint32_t code_of(const enumeration_case &c, const char *text, int32_t length = -1)
{
    uint32_t code = untouched;
    int32_t status = c.to_enum(text, length, &code);
    EXPECT_EQ(status < 0, code == untouched) << c.name;
    return code;
}

TEST(DecodeEnumerations, there_are_46)
{
    EXPECT_EQ(std::size(cases), 46u);
}

TEST(DecodeEnumerations, first_and_last_code_give_their_tokens)
{
    for (const enumeration_case &c : cases) {
        EXPECT_STREQ(c.to_string(0), c.first);
        EXPECT_STREQ(c.to_string(c.count - 1), c.last);
    }
}

TEST(DecodeEnumerations, codes_from_the_count_on_are_unknown)
{
    for (const enumeration_case &c : cases) {
        for (uint32_t code : {c.count, c.count + 1, 0x7FFFFFFFu, 0xFFFFFFFFu})
            EXPECT_STREQ(c.to_string(code), "_UNKNOWN_") << c.name;
    }
}

TEST(DecodeEnumerations, every_code_survives_the_round_trip)
{
    for (const enumeration_case &c : cases) {
        for (uint32_t code = 0; code < c.count; ++code)
            EXPECT_EQ(code_of(c, c.to_string(code)), code) << c.name;
    }
}

TEST(DecodeEnumerations, a_token_of_another_enumeration_is_not_found)
{
    for (const enumeration_case &c : cases)
        EXPECT_EQ(code_of(c, c.foreign), untouched) << c.name;
}

TEST(DecodeEnumerations, a_token_in_other_letter_case_is_not_found)
{
    for (const enumeration_case &c : cases) {
        std::string token = c.first;
        for (char &letter : token)
            letter = static_cast<char>(tolower(letter));
        EXPECT_EQ(code_of(c, token.c_str()), untouched) << c.name;
    }
}

TEST(DecodeEnumerations, blanks_around_a_token_and_empty_text_are_not_found)
{
    for (const enumeration_case &c : cases) {
        EXPECT_EQ(code_of(c, (c.first + std::string(" ")).c_str()), untouched) << c.name;
        EXPECT_EQ(code_of(c, (" " + std::string(c.first)).c_str()), untouched) << c.name;
        EXPECT_EQ(code_of(c, ""), untouched) << c.name;
        EXPECT_EQ(code_of(c, c.first, 0), untouched) << c.name;
    }
}

TEST(DecodeEnumerations, a_null_text_is_not_found)
{
    for (const enumeration_case &c : cases) {
        EXPECT_EQ(code_of(c, nullptr), untouched) << c.name;
        EXPECT_EQ(code_of(c, nullptr, 5), untouched) << c.name;
    }
}

TEST(DecodeEnumerations, a_given_length_is_compared_exactly)
{
    for (const enumeration_case &c : cases) {
        const auto length = static_cast<int32_t>(std::string(c.last).size());
        EXPECT_EQ(code_of(c, (c.last + std::string("tail")).c_str(), length), c.count - 1) << c.name;
        EXPECT_EQ(code_of(c, c.last, length - 1), untouched) << c.name;
        EXPECT_EQ(code_of(c, c.last, length + 1), untouched) << c.name;
    }
}

TEST(DecodeEnumerations, a_null_code_pointer_only_validates)
{
    for (const enumeration_case &c : cases) {
        EXPECT_EQ(c.to_enum(c.first, -1, nullptr), 0) << c.name;
        EXPECT_LT(c.to_enum(c.foreign, -1, nullptr), 0) << c.name;
    }
}

// <e>TEXT</e> read by the enumeration's decoder.
int32_t decode_text(const enumeration_case &c, const std::string &text, uint32_t *code,
                    std::vector<std::string> *parameters)
{
    context d("<e>" + text + "</e>");
    rtXmlpCreateReader(&d.ctx);
    rtXmlpMatchStartTag(&d.ctx, "e", -1);
    int32_t status = c.decode(&d.ctx, code);
    if (status < 0)
        *parameters = d.parameters();
    return status;
}

TEST(DecodeEnumerations, an_element_holds_the_code_of_its_token)
{
    for (const enumeration_case &c : cases) {
        uint32_t code = untouched;
        std::vector<std::string> parameters;
        EXPECT_EQ(decode_text(c, c.last, &code, &parameters), 0) << c.name;
        EXPECT_EQ(code, c.count - 1) << c.name;
    }
}

TEST(DecodeEnumerations, an_unknown_token_travels_with_the_error)
{
    for (const enumeration_case &c : cases) {
        uint32_t code = untouched;
        std::vector<std::string> parameters;
        EXPECT_EQ(decode_text(c, "ORVL_NO_SUCH_TOKEN", &code, &parameters), XB_E_UNKNOWN_TOKEN) << c.name;
        EXPECT_EQ(code, untouched) << c.name;
        EXPECT_EQ(parameters, std::vector<std::string>{"ORVL_NO_SUCH_TOKEN"}) << c.name;
    }
}

TEST(DecodeEnumerations, old_misspellings_are_the_tokens)
{
    EXPECT_EQ(code_of(cases[6], "ORVL_CYSCLES_PER_SEC_UNIT_OTHER"), 1u);
    EXPECT_EQ(code_of(cases[6], "ORVL_CYCLES_PER_SEC_UNIT_OTHER"), untouched);
    EXPECT_STREQ(BaseEntityType_adminState_ToString(3), "ORVL_ADMIN_STATE_N/A");
    EXPECT_STREQ(BaseSensorType_2_userDefinedUnit_ToString(0), "ORVL_USER_DEFINED_SENSOR_UNIT_FARENHEIT");
}

TEST(DecodeEnumerations, client_enumerators_are_the_codes)
{
    EXPECT_EQ(static_cast<uint32_t>(ORVL_ADMIN_STATE_N_A), 3u);
    EXPECT_EQ(static_cast<uint32_t>(ORVL_ENTITY_SUBTYPE_INVALID), 235u);
    EXPECT_EQ(static_cast<uint32_t>(ORVL_ESD_PORT_DEST_CPU_PORT1), 58u);
    EXPECT_EQ(static_cast<uint32_t>(ORVL_ENTITY_OWNER_TYPE_ALL), 6u);
}

struct subtype_group {
    const char *name;
    uint32_t first;
    uint32_t last;
};

TEST(DecodeEnumerations, subtypes_stand_in_groups_from_dummy_to_max)
{
    const subtype_group groups[] = {{"BACKPLANE", 0, 5},  {"CHASSIS", 6, 10},  {"CONTAINER", 11, 43},
                                    {"CPU", 44, 57},      {"FAN", 58, 61},     {"MODULE", 62, 135},
                                    {"OTHER", 136, 143},  {"PORT", 144, 188},  {"POWERSUPPLY", 189, 193},
                                    {"SENSOR", 194, 226}, {"STACK", 227, 232}, {"UNKNOWN", 233, 234}};
    for (const subtype_group &group : groups) {
        const std::string prefix = std::string("ORVL_ENTITY_SUBTYPE_") + group.name;
        EXPECT_EQ(EidSubType_ToString(group.first), prefix + "_DUMMY");
        EXPECT_EQ(EidSubType_ToString(group.last), prefix + "_MAX");
        for (uint32_t code = group.first; code <= group.last; ++code)
            EXPECT_EQ(std::string(EidSubType_ToString(code)).rfind(prefix, 0), 0u) << code;
    }
}

}  // namespace
