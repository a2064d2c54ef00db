/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#include "inventory_Derivations.h"

const xb_type_name_row BaseEntityType_type_names[30] = {
    {.name = "BaseEntityType", .name_length = 14},
    {.name = "BaseLEDType", .name_length = 11},
    {.name = "BaseContainerType", .name_length = 17},
    {.name = "PemBayType", .name_length = 10},
    {.name = "BaseCEPortType", .name_length = 14},
    {.name = "BaseCESwitchType_2_port", .name_length = 23},
    {.name = "BaseFPGAType", .name_length = 12},
    {.name = "BaseIdEEPROMType", .name_length = 16},
    {.name = "BaseStorageType", .name_length = 15},
    {.name = "BaseSpiFlash", .name_length = 12},
    {.name = "BaseSensorType", .name_length = 14},
    {.name = "I2cChipType", .name_length = 11},
    {.name = "BasePCIeSwitchType", .name_length = 18},
    {.name = "BaseVoltageMarginType", .name_length = 21},
    {.name = "BaseProcessorType", .name_length = 17},
    {.name = "BaseMemoryType", .name_length = 14},
    {.name = "BaseCESwitchType", .name_length = 16},
    {.name = "BaseKestoType", .name_length = 13},
    {.name = "BasePortType", .name_length = 12},
    {.name = "BaseConsoleType", .name_length = 15},
    {.name = "BaseModuleType", .name_length = 14},
    {.name = "OpticsType", .name_length = 10},
    {.name = "PEMType", .name_length = 7},
    {.name = "FanTrayType", .name_length = 11},
    {.name = "BackPlaneType", .name_length = 13},
    {.name = "FanType", .name_length = 7},
    {.name = "BaseModuleTestType", .name_length = 18},
    {.name = "BaseCraftInterfaceType", .name_length = 22},
    {.name = "ChassisEntityType", .name_length = 17},
    {.name = "PowerShelfType", .name_length = 14},
};

const xb_type_name_row BaseContainerType_type_names[2] = {
    {.name = "BaseContainerType", .name_length = 17},
    {.name = "PemBayType", .name_length = 10},
};

const xb_type_name_row BaseCEPortType_type_names[2] = {
    {.name = "BaseCEPortType", .name_length = 14},
    {.name = "BaseCESwitchType_2_port", .name_length = 23},
};

const xb_type_name_row BaseStorageType_type_names[2] = {
    {.name = "BaseStorageType", .name_length = 15},
    {.name = "BaseSpiFlash", .name_length = 12},
};

const xb_type_name_row BasePortType_type_names[2] = {
    {.name = "BasePortType", .name_length = 12},
    {.name = "BaseConsoleType", .name_length = 15},
};

const xb_type_name_row BaseModuleType_type_names[4] = {
    {.name = "BaseModuleType", .name_length = 14},
    {.name = "OpticsType", .name_length = 10},
    {.name = "PEMType", .name_length = 7},
    {.name = "FanTrayType", .name_length = 11},
};

void Init_BaseEntityType_derivations(xb_choice *choice)
{
    *choice = {};
}

void Init_BaseContainerType_derivations(xb_choice *choice)
{
    *choice = {};
}

void Init_BaseCEPortType_derivations(xb_choice *choice)
{
    *choice = {};
}

void Init_BaseStorageType_derivations(xb_choice *choice)
{
    *choice = {};
}

void Init_BasePortType_derivations(xb_choice *choice)
{
    *choice = {};
}

void Init_BaseModuleType_derivations(xb_choice *choice)
{
    *choice = {};
}
