/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#include "inventory_DerivationsDec.h"

#include "OrvelianInventorySchemaDec.h"
#include "decode/engine.h"

using namespace inv::decode;

namespace
{

constexpr choice_row BaseEntityType_rows[] = {
    {.size = sizeof(BaseEntityType), .init = init<Init_BaseEntityType>,
     .decode = child<XmlDT_BaseEntityType>},
    {.size = sizeof(BaseLEDType), .init = init<Init_BaseLEDType>, .decode = child<XmlDT_BaseLEDType>},
    {.size = sizeof(BaseContainerType), .init = init<Init_BaseContainerType>,
     .decode = child<XmlDT_BaseContainerType>},
    {.size = sizeof(PemBayType), .init = init<Init_PemBayType>, .decode = child<XmlDT_PemBayType>},
    {.size = sizeof(BaseCEPortType), .init = init<Init_BaseCEPortType>,
     .decode = child<XmlDT_BaseCEPortType>},
    {.size = sizeof(BaseCESwitchType_2_port), .init = init<Init_BaseCESwitchType_2_port>,
     .decode = child<XmlDT_BaseCESwitchType_2_port>},
    {.size = sizeof(BaseFPGAType), .init = init<Init_BaseFPGAType>, .decode = child<XmlDT_BaseFPGAType>},
    {.size = sizeof(BaseIdEEPROMType), .init = init<Init_BaseIdEEPROMType>,
     .decode = child<XmlDT_BaseIdEEPROMType>},
    {.size = sizeof(BaseStorageType), .init = init<Init_BaseStorageType>,
     .decode = child<XmlDT_BaseStorageType>},
    {.size = sizeof(BaseSpiFlash), .init = init<Init_BaseSpiFlash>, .decode = child<XmlDT_BaseSpiFlash>},
    {.size = sizeof(BaseSensorType), .init = init<Init_BaseSensorType>,
     .decode = child<XmlDT_BaseSensorType>},
    {.size = sizeof(I2cChipType), .init = init<Init_I2cChipType>, .decode = child<XmlDT_I2cChipType>},
    {.size = sizeof(BasePCIeSwitchType), .init = init<Init_BasePCIeSwitchType>,
     .decode = child<XmlDT_BasePCIeSwitchType>},
    {.size = sizeof(BaseVoltageMarginType), .init = init<Init_BaseVoltageMarginType>,
     .decode = child<XmlDT_BaseVoltageMarginType>},
    {.size = sizeof(BaseProcessorType), .init = init<Init_BaseProcessorType>,
     .decode = child<XmlDT_BaseProcessorType>},
    {.size = sizeof(BaseMemoryType), .init = init<Init_BaseMemoryType>,
     .decode = child<XmlDT_BaseMemoryType>},
    {.size = sizeof(BaseCESwitchType), .init = init<Init_BaseCESwitchType>,
     .decode = child<XmlDT_BaseCESwitchType>},
    {.size = sizeof(BaseKestoType), .init = init<Init_BaseKestoType>, .decode = child<XmlDT_BaseKestoType>},
    {.size = sizeof(BasePortType), .init = init<Init_BasePortType>, .decode = child<XmlDT_BasePortType>},
    {.size = sizeof(BaseConsoleType), .init = init<Init_BaseConsoleType>,
     .decode = child<XmlDT_BaseConsoleType>},
    {.size = sizeof(BaseModuleType), .init = init<Init_BaseModuleType>,
     .decode = child<XmlDT_BaseModuleType>},
    {.size = sizeof(OpticsType), .init = init<Init_OpticsType>, .decode = child<XmlDT_OpticsType>},
    {.size = sizeof(PEMType), .init = init<Init_PEMType>, .decode = child<XmlDT_PEMType>},
    {.size = sizeof(FanTrayType), .init = init<Init_FanTrayType>, .decode = child<XmlDT_FanTrayType>},
    {.size = sizeof(BackPlaneType), .init = init<Init_BackPlaneType>, .decode = child<XmlDT_BackPlaneType>},
    {.size = sizeof(FanType), .init = init<Init_FanType>, .decode = child<XmlDT_FanType>},
    {.size = sizeof(BaseModuleTestType), .init = init<Init_BaseModuleTestType>,
     .decode = child<XmlDT_BaseModuleTestType>},
    {.size = sizeof(BaseCraftInterfaceType), .init = init<Init_BaseCraftInterfaceType>,
     .decode = child<XmlDT_BaseCraftInterfaceType>},
    {.size = sizeof(ChassisEntityType), .init = init<Init_ChassisEntityType>,
     .decode = child<XmlDT_ChassisEntityType>},
    {.size = sizeof(PowerShelfType), .init = init<Init_PowerShelfType>,
     .decode = child<XmlDT_PowerShelfType>},
};
constexpr choice_description BaseEntityType_choices = {
    .first_step = 100,
    .names = BaseEntityType_type_names,
    .rows = BaseEntityType_rows,
    .count = 30};

constexpr choice_row BaseContainerType_rows[] = {
    {.size = sizeof(BaseContainerType), .init = init<Init_BaseContainerType>,
     .decode = child<XmlDT_BaseContainerType>},
    {.size = sizeof(PemBayType), .init = init<Init_PemBayType>, .decode = child<XmlDT_PemBayType>},
};
constexpr choice_description BaseContainerType_choices = {
    .first_step = 200,
    .names = BaseContainerType_type_names,
    .rows = BaseContainerType_rows,
    .count = 2};

constexpr choice_row BaseCEPortType_rows[] = {
    {.size = sizeof(BaseCEPortType), .init = init<Init_BaseCEPortType>,
     .decode = child<XmlDT_BaseCEPortType>},
    {.size = sizeof(BaseCESwitchType_2_port), .init = init<Init_BaseCESwitchType_2_port>,
     .decode = child<XmlDT_BaseCESwitchType_2_port>},
};
constexpr choice_description BaseCEPortType_choices = {
    .first_step = 300,
    .names = BaseCEPortType_type_names,
    .rows = BaseCEPortType_rows,
    .count = 2};

constexpr choice_row BaseStorageType_rows[] = {
    {.size = sizeof(BaseStorageType), .init = init<Init_BaseStorageType>,
     .decode = child<XmlDT_BaseStorageType>},
    {.size = sizeof(BaseSpiFlash), .init = init<Init_BaseSpiFlash>, .decode = child<XmlDT_BaseSpiFlash>},
};
constexpr choice_description BaseStorageType_choices = {
    .first_step = 400,
    .names = BaseStorageType_type_names,
    .rows = BaseStorageType_rows,
    .count = 2};

constexpr choice_row BasePortType_rows[] = {
    {.size = sizeof(BasePortType), .init = init<Init_BasePortType>, .decode = child<XmlDT_BasePortType>},
    {.size = sizeof(BaseConsoleType), .init = init<Init_BaseConsoleType>,
     .decode = child<XmlDT_BaseConsoleType>},
};
constexpr choice_description BasePortType_choices = {
    .first_step = 500,
    .names = BasePortType_type_names,
    .rows = BasePortType_rows,
    .count = 2};

constexpr choice_row BaseModuleType_rows[] = {
    {.size = sizeof(BaseModuleType), .init = init<Init_BaseModuleType>,
     .decode = child<XmlDT_BaseModuleType>},
    {.size = sizeof(OpticsType), .init = init<Init_OpticsType>, .decode = child<XmlDT_OpticsType>},
    {.size = sizeof(PEMType), .init = init<Init_PEMType>, .decode = child<XmlDT_PEMType>},
    {.size = sizeof(FanTrayType), .init = init<Init_FanTrayType>, .decode = child<XmlDT_FanTrayType>},
};
constexpr choice_description BaseModuleType_choices = {
    .first_step = 600,
    .names = BaseModuleType_type_names,
    .rows = BaseModuleType_rows,
    .count = 4};

}  // namespace

int32_t XmlDT_BaseEntityType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BaseEntityType_choices, choice);
}

int32_t XmlDT_BaseContainerType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BaseContainerType_choices, choice);
}

int32_t XmlDT_BaseCEPortType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BaseCEPortType_choices, choice);
}

int32_t XmlDT_BaseStorageType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BaseStorageType_choices, choice);
}

int32_t XmlDT_BasePortType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BasePortType_choices, choice);
}

int32_t XmlDT_BaseModuleType_derivations(xb_context *ctx, xb_choice *choice)
{
    return decode_choice(ctx, BaseModuleType_choices, choice);
}
