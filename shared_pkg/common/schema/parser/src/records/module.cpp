// Modules and the optics part of fixed optics.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"
#include "records/spent_children.h"

using namespace inv;

namespace
{

void fill_own_part(sch_module_type *record, const BaseModuleType_2 &own)
{
    auto &mask = record->field_present;
    copy_optional(own.has.logicalModuleNum, record->logical_module_num, own.logicalModuleNum, mask,
                  SCH_MODULE_HAS_LOGICAL_MODULE_NUM);
    copy_optional(own.has.powerController, record->power_controller, own.powerController, mask,
                  SCH_MODULE_HAS_POWER_CONTROLLER);
    if (own.has.powerInfo) {
        parser_retrieve_power_info_data(&record->power_info, &own.powerInfo, record);
        mark_present(mask, SCH_MODULE_HAS_POWER_INFO);
    }
}

void fill_component_lists(sch_module_type *record, const BaseModuleType_2 &own)
{
    sch_base_entity_type *parent = &record->base;
    parser_retrieve_base_fpga_data_list(&record->fpga_list, &own.fpga, parent);
    parser_retrieve_i2c_chip_data_list(&record->i2c_chip_list, &own.i2c, parent);
    parser_retrieve_base_pcie_switch_data_list(&record->pcie_switch_list, &own.pcieSwitch, parent);
    parser_retrieve_base_sensor_data_list(&record->sensor_list, &own.sensor, parent);
    parser_retrieve_base_volt_margin_data_list(&record->volt_margin_list, &own.voltMargin, parent);
    parser_retrieve_base_spi_data_list(&record->spi_flash_list, &own.storageSPI, parent);
    parser_retrieve_base_storage_data_list(&record->storage_list, &own.storageHDD, parent);
    parser_retrieve_base_processor_data_list(&record->processor_list, &own.processor, parent);
    parser_retrieve_base_memory_data_list(&record->memory_list, &own.memory, parent);
    parser_retrieve_base_ce_switch_data_list(&record->ce_switch_list, &own.ceSwitch, parent);
    parser_retrieve_base_kesto_data_list(&record->kesto_list, &own.security, parent);
    parser_retrieve_base_console_data_list(&record->console_list, &own.console, parent);
    parser_retrieve_base_container_data_list(&record->container_list, &own.container, parent);
    parser_retrieve_base_ideeprom_data_list(&record->ideeprom_list, &own.eeprom, parent);
    parser_retrieve_base_port_data_list(&record->port_list, &own.fixedPorts, parent);
    parser_retrieve_base_led_data_list(&record->led_list, &own.led, parent);
}

// A child whose own children ran out of memory is kept, and its siblings are built all the same.
uint32_t fill_child_modules(sch_module_type *record, const xb_data_list &modules)
{
    sch_module_type **end = end_of_list(&record->module_list);
    spent_children spent;
    const xb_data_node *next = nullptr;
    for (const xb_data_node *node = modules.head; node != nullptr; node = next) {
        next = node->next;
        auto *child = record_new<sch_module_type>();
        if (child == nullptr) {
            trace<msg::module_child_no_memory>();
            return 1;
        }
        const auto *value = chosen_value<BaseModuleType>(node);
        if (value == nullptr) {
            record_free(child);
            return 0;
        }
        *end = child;
        end = &child->next;
        parser_retrieve_base_module_entity_data(child, value, &record->base);
        spent.add(node);
    }
    return 0;
}

}  // namespace

uint32_t parser_retrieve_base_module_entity_data(sch_module_type *record, const BaseModuleType *from,
                                                 sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::module_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    if (!from->has.ext)
        return 0;
    fill_own_part(record, from->ext);
    fill_component_lists(record, from->ext);
    return fill_child_modules(record, from->ext.module);
}
