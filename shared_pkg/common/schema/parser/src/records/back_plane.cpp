// Back planes.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_back_plane_data(sch_back_plane_type *record, const BackPlaneType *from,
                                         sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::back_plane_null>();
        return 0;
    }
    const auto &own = from->ext;
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    parser_retrieve_base_ideeprom_data_list(&record->ideeprom_list, &own.eeprom, &record->base);
    parser_retrieve_base_sensor_data_list(&record->sensor_list, &own.sensor, &record->base);
    // Kept: each further module hangs in the child slot of the one before, in place of what the document
    // gave that module for children; in the entity tree those stay. Clients walk the chain through
    // module_list.
    sch_module_type **slot = &record->module_list;
    for (const xb_data_node *node = own.module.head; node != nullptr; node = node->next) {
        auto *module = record_new<sch_module_type>();
        if (module == nullptr) {
            if (node == own.module.head)
                trace<msg::back_plane_first_no_memory>();
            else
                trace<msg::back_plane_next_no_memory>();
            return 1;
        }
        *slot = module;
        if (const auto *value = chosen_value<BaseModuleType>(node))
            parser_retrieve_base_module_entity_data(module, value, &record->base);
        slot = &module->module_list;
    }
    return 0;
}
