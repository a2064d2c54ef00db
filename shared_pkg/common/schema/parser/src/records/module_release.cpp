// Release of modules and back planes.
#include "inv_parser/release.h"

#include "access/append_records.h"

using namespace inv;

namespace
{

// All that a module owns but its child modules.
void release_own_lists(sch_module_type *record)
{
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_power_info_data(&record->power_info);
    inv_schema_free_fpga_data_list(record->fpga_list);
    inv_schema_free_i2c_chip_data_list(record->i2c_chip_list);
    inv_schema_free_pcie_switch_data_list(record->pcie_switch_list);
    inv_schema_free_sensor_data_list(record->sensor_list);
    inv_schema_free_volt_margin_data_list(record->volt_margin_list);
    inv_schema_free_spi_flash_data_list(record->spi_flash_list);
    inv_schema_free_storage_data_list(record->storage_list);
    inv_schema_free_processor_data_list(record->processor_list);
    inv_schema_free_memory_data_list(record->memory_list);
    inv_schema_free_ce_switch_data_list(record->ce_switch_list);
    inv_schema_free_kesto_data_list(record->kesto_list);
    inv_schema_free_console_data_list(record->console_list);
    inv_schema_free_container_data_list(record->container_list);
    inv_schema_free_ideeprom_data_list(record->ideeprom_list);
    inv_schema_free_port_data_list(record->port_list);
    inv_schema_free_led_data_list(record->led_list);
}

}  // namespace

void inv_schema_free_module_data(sch_module_type *record)
{
    if (record == nullptr)
        return;
    release_own_lists(record);
    inv_schema_free_module_data_list(record->module_list);
}

// The last module of a list goes on with its children in this loop: a back plane's modules hang in each
// other's child slots, 100,000 deep if need be. Nothing is relinked, since a file's modules outlive this.
void inv_schema_free_module_data_list(sch_module_type *first)
{
    while (first != nullptr) {
        release_own_lists(first);
        sch_module_type *children = first->module_list;
        sch_module_type *following = first->next;
        record_free(first);
        if (following != nullptr)
            inv_schema_free_module_data_list(children);
        first = following != nullptr ? following : children;
    }
}

void inv_schema_free_back_plane_data(sch_back_plane_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_ideeprom_data_list(record->ideeprom_list);
    inv_schema_free_sensor_data_list(record->sensor_list);
    inv_schema_free_module_data_list(record->module_list);
}
