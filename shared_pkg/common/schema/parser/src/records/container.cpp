// Containers: slots that take units.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_container_data(sch_container_type *record, const BaseContainerType *from,
                                             sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::container_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    auto &mask = record->field_present;
    if (from->ext.has.i2cIDPROM) {
        parser_retrieve_i2c_sequence_data(&record->i2c_idprom, &from->ext.i2cIDPROM);
        mark_present(mask, SCH_CONTAINER_HAS_I2C_IDPROM);
    }
    copy_optional(from->has.position, record->position, from->position, mask, SCH_CONTAINER_HAS_POSITION);
    copy_optional(from->has.hardwarePosition, record->hardware_position, from->hardwarePosition, mask,
                  SCH_CONTAINER_HAS_HARDWARE_POSITION);
    trace<msg::container_filled>(record->position, record->hardware_position,
                                 from->ext.has.i2cIDPROM ? 1 : 0);
    return 0;
}

namespace
{

struct container {
    using record = sch_container_type;
    using decoded = BaseContainerType;
    using null_list = msg::container_elements_null;
    using no_memory = msg::container_elements_no_memory;
    static constexpr auto value = chosen_value<BaseContainerType>;
    static constexpr auto fill = parser_retrieve_base_container_data;
};

}  // namespace

uint32_t parser_retrieve_base_container_data_list(sch_container_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent)
{
    return append_list<container>(head, list, parent);
}

void inv_schema_free_container_data(sch_container_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_i2c_sequence_data(&record->i2c_idprom);
}

void inv_schema_free_container_data_list(sch_container_type *first)
{
    free_list(first, inv_schema_free_container_data);
}
