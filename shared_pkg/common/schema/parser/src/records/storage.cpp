// Storage devices.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_storage_data(sch_storage_type *record, const BaseStorageType *from,
                                           sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::storage_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    record->max_capacity = first_octet(own.maxCapacity);
    copy_optional(own.has.speed, record->speed, own.speed, record->field_present, SCH_STORAGE_HAS_SPEED);
    parser_retrieve_base_fpga_data_list(&record->fpga_list, &own.fpga, &record->base);
    return 0;
}

namespace
{

struct storage {
    using record = sch_storage_type;
    using decoded = BaseStorageType;
    using null_list = msg::storage_list_null;
    using no_memory = msg::storage_list_no_memory;
    static constexpr auto value = chosen_value<BaseStorageType>;
    static constexpr auto fill = parser_retrieve_base_storage_data;
};

}  // namespace

uint32_t parser_retrieve_base_storage_data_list(sch_storage_type **head, const xb_data_list *list,
                                                sch_base_entity_type *parent)
{
    return append_list<storage>(head, list, parent);
}

void inv_schema_free_storage_data(sch_storage_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_fpga_data_list(record->fpga_list);
}

void inv_schema_free_storage_data_list(sch_storage_type *first)
{
    free_list(first, inv_schema_free_storage_data);
}
