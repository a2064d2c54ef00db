// Processors.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_processor_data(sch_processor_type *record, const BaseProcessorType *from,
                                             sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::processor_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    auto &mask = record->field_present;
    record->cores = own.cores;
    copy_optional(own.has.busSpeed, record->bus_speed, own.busSpeed, mask, SCH_PROCESSOR_HAS_BUS_SPEED);
    copy_optional(own.has.cpuSpeed, record->cpu_speed, own.cpuSpeed, mask, SCH_PROCESSOR_HAS_CPU_SPEED);
    copy_optional(own.has.oscillationSpeed, record->oscillation_speed, own.oscillationSpeed, mask,
                  SCH_PROCESSOR_HAS_OSCILLATION_SPEED);
    copy_text(record->clock_speed, own.clockSpeed);
    copy_text(record->cache_size_l1, own.cacheSizeL1);
    copy_text(record->cache_size_l2, own.cacheSizeL2);
    copy_text(record->cache_size_l3, own.cacheSizeL3);
    return 0;
}

namespace
{

struct processor {
    using record = sch_processor_type;
    using decoded = BaseProcessorType;
    using null_list = msg::processor_list_null;
    using no_memory = msg::processor_list_no_memory;
    static constexpr auto value = plain_value<BaseProcessorType>;
    static constexpr auto fill = parser_retrieve_base_processor_data;
};

}  // namespace

uint32_t parser_retrieve_base_processor_data_list(sch_processor_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent)
{
    return append_list<processor>(head, list, parent);
}

void inv_schema_free_processor_data(sch_processor_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_processor_data_list(sch_processor_type *first)
{
    free_list(first, inv_schema_free_processor_data);
}
