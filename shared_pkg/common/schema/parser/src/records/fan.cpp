// Fans.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_fan_data(sch_fan_type *record, const FanType *from, sch_base_entity_type *parent)
{
    // No message for null pointers: there is none for this record.
    if (record == nullptr || from == nullptr)
        return 0;
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    parser_retrieve_base_sensor_data(&record->sensor, &from->ext.sensor, &record->base);
    return 0;
}

namespace
{

struct fan {
    using record = sch_fan_type;
    using decoded = FanType;
    using null_list = msg::fan_list_null;
    using no_memory = msg::fan_list_no_memory;
    static constexpr auto value = plain_value<FanType>;
    static constexpr auto fill = parser_retrieve_fan_data;
};

}  // namespace

uint32_t parser_retrieve_fan_data_list(sch_fan_type **head, const xb_data_list *list,
                                       sch_base_entity_type *parent)
{
    return append_list<fan>(head, list, parent);
}

void inv_schema_free_fan_data(sch_fan_type *record)
{
    if (record == nullptr)
        return;
    // Kept: what the sensor owns is not given back.
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_module_data_list(record->module.next);
    inv_schema_free_module_data(&record->module);
}

void inv_schema_free_fan_data_list(sch_fan_type *first)
{
    free_list(first, inv_schema_free_fan_data);
}
