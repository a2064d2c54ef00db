// Release of what a load results in: the handle with its tree and its unit's record.
#include "inv_parser/release.h"

#include "frame/chunk_ranges.h"
#include "frame/file_memory.h"
#include "inv_parser/unit_records.h"
#include "tree/growth.h"

using namespace inv;

namespace
{

// False for a result that was loaded as another kind: its record is none of this one. It goes with its file.
bool may_hold(const inv_xml_handle *result, loaded_document kind)
{
    uint8_t loaded = loaded_kind(result);
    return loaded == 0 || loaded == kind;
}

// The tables that know a tree in the memory of a file go with its handle; those of other files are right as
// they are.
void release_tree(const inv_xml_handle *result)
{
    if (has_side_record(result) && frame::is_in_chunk(result->root))
        release_eid_nodes(result->root);
    else
        inv_schema_free_eid_chain_list(result->root);
}

// Kept: when the handle, its root or the root's record is missing nothing at all is released.
template <class Record, class Release>
void free_result(inv_xml_handle *result, loaded_document kind, Release release_owned)
{
    if (result == nullptr || result->root == nullptr || result->root->record == nullptr)
        return;
    if (may_hold(result, kind)) {
        // The base entity stands first in every unit's record.
        auto *record = reinterpret_cast<Record *>(result->root->record);
        release_owned(record);
        record_free(record);
    }
    release_tree(result);
    handle_forget(result);
}

void release_embedded_module(sch_module_type *module)
{
    inv_schema_free_module_data_list(module->next);
    inv_schema_free_module_data(module);
}

void release_chassis(sch_chassis_type *record)
{
    // Kept: what the ECU slot owns is not given back.
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_power_info_data(&record->power_info);
    inv_schema_free_back_plane_data(&record->back_plane);
    inv_schema_free_container_data(&record->craft_interface_slot);
    inv_schema_free_container_list_data_list(record->container_list_list);
    inv_schema_free_led_data_list(record->led_list);
}

template <class Record>
void release_module_with_fans(Record *record)
{
    release_embedded_module(&record->module);
    inv_schema_free_fan_data_list(record->fan_list);
}

void release_power_shelf(sch_power_shelf_type *record)
{
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_power_info_data(&record->power_info);
    inv_schema_free_i2c_chip_data_list(record->i2c_chip_list);
    inv_schema_free_ideeprom_data_list(record->ideeprom_list);
    inv_schema_free_sensor_data_list(record->sensor_list);
    inv_schema_free_pem_bay_data_list(record->pem_bay_list);
    release_embedded_module(&record->module);
}

}  // namespace

void inv_schema_free_chassis_data(inv_xml_handle *result)
{
    free_result<sch_chassis_type>(result, loaded_chassis_document, release_chassis);
}

void inv_schema_free_pem_data(inv_xml_handle *result)
{
    free_result<sch_pem_type>(result, loaded_pem_document, release_module_with_fans<sch_pem_type>);
}

void inv_schema_free_fan_tray_data(inv_xml_handle *result)
{
    free_result<sch_fan_tray_type>(result, loaded_fan_tray_document,
                                   release_module_with_fans<sch_fan_tray_type>);
}

void inv_schema_free_power_shelf_data(inv_xml_handle *result)
{
    free_result<sch_power_shelf_type>(result, loaded_power_shelf_document, release_power_shelf);
}

void inv_schema_free_port_module_data(inv_xml_handle *result)
{
    free_result<sch_module_type>(result, loaded_optics_document, release_embedded_module);
}

void inv_schema_free_base_module_data(inv_xml_handle *result)
{
    if (result == nullptr)
        return;
    release_tree(result);
    inv_schema_free_module_data_list(result->module_record);
    handle_forget(result);
}
