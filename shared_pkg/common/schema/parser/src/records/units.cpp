// Chassis, power entry module, power shelf and fan tray: the root records of their documents. Null
// pointers build nothing; there is no message for them.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_chassis_entity_data(sch_chassis_type *record, const ChassisEntityType_2 *from)
{
    if (record == nullptr || from == nullptr)
        return 0;
    sch_base_entity_type *parent = &record->base;
    auto &mask = record->field_present;
    record->available_power = from->availablePower;
    record->rack_number = from->rackNumber;
    record->fru_bits = from->fruBits;
    record->instance_bits = from->instanceBits;
    parser_retrieve_power_info_data(&record->power_info, &from->powerInfo, record);
    if (from->has.backPlane) {
        parser_retrieve_back_plane_data(&record->back_plane, &from->backPlane, parent);
        mark_present(mask, SCH_CHASSIS_HAS_BACK_PLANE);
    }
    if (from->has.ecuSlot) {
        parser_retrieve_base_container_data(
            &record->ecu_slot, static_cast<const BaseContainerType *>(from->ecuSlot.value), parent);
        mark_present(mask, SCH_CHASSIS_HAS_ECU_SLOT);
    }
    if (from->has.craftInterfaceSlot) {
        parser_retrieve_base_container_data(
            &record->craft_interface_slot,
            static_cast<const BaseContainerType *>(from->craftInterfaceSlot.value), parent);
        mark_present(mask, SCH_CHASSIS_HAS_CRAFT_INTERFACE_SLOT);
    }
    parser_retrieve_base_container_list_data_list(&record->container_list_list, &from->entityContainerList,
                                                  parent);
    parser_retrieve_base_led_data_list(&record->led_list, &from->led, parent);
    return 0;
}

uint32_t parser_retrieve_pem_entity_data(sch_pem_type *record, const PEMType *from)
{
    if (record == nullptr || from == nullptr)
        return 0;
    parser_retrieve_base_module_entity_data(&record->module, &from->base, nullptr);
    parser_retrieve_fan_data_list(&record->fan_list, &from->ext.fan, &record->module.base);
    return 0;
}

uint32_t parser_retrieve_fantray_entity_data(sch_fan_tray_type *record, const FanTrayType *from)
{
    if (record == nullptr || from == nullptr)
        return 0;
    parser_retrieve_base_module_entity_data(&record->module, &from->base, nullptr);
    parser_retrieve_fan_data_list(&record->fan_list, &from->ext.fan, &record->module.base);
    return 0;
}

uint32_t parser_retrieve_power_shelf_entity_data(sch_power_shelf_type *record, const PowerShelfType_2 *from)
{
    if (record == nullptr || from == nullptr)
        return 0;
    sch_base_entity_type *parent = &record->base;
    parser_retrieve_power_info_data(&record->power_info, &from->powerInfo, record);
    parser_retrieve_i2c_chip_data_list(&record->i2c_chip_list, &from->i2c, parent);
    parser_retrieve_base_ideeprom_data_list(&record->ideeprom_list, &from->eeprom, parent);
    parser_retrieve_base_sensor_data_list(&record->sensor_list, &from->sensor, parent);
    record->max_pem_containers = from->maxPemContainers;
    parser_retrieve_pem_bay_data_list(&record->pem_bay_list, &from->pemBay, parent);
    // Kept: of several modules only the first is carried.
    const xb_data_node *first = from->module.head;
    if (const auto *value = first == nullptr ? nullptr : chosen_value<BaseModuleType>(first))
        parser_retrieve_base_module_entity_data(&record->module, value, parent);
    return 0;
}
