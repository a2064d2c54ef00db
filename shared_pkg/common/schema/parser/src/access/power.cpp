// What entities draw and supply, and the power zones of boards.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/field_copy.h"

#include <math.h>

using namespace inv;

namespace
{

// Truncates toward zero. What a 64-bit number cannot hold counts as the nearest that it can, and
// what is no number as 0; the caller wraps the result to its field.
int64_t whole_power(double value)
{
    constexpr double limit = 9223372036854775808.0;  // 2 to the 63rd
    if (isnan(value))
        return 0;
    if (value >= limit)
        return INT64_MAX;
    if (value < -limit)
        return INT64_MIN;
    return static_cast<int64_t>(value);
}

}  // namespace

sch_power_consumer_type *parser_retrieve_power_consumer_data(sch_power_consumer_type *record,
                                                             const PowerConsumerType *from)
{
    // No message for null pointers: there is none for this record.
    if (record == nullptr || from == nullptr)
        return record;
    auto &mask = record->field_present;
    copy_optional(from->has.minPowerBudget, record->min_budget, whole_power(from->minPowerBudget), mask,
                  SCH_POWER_CONSUMER_HAS_MIN_BUDGET);
    copy_optional(from->has.maxPowerBudget, record->max_budget, whole_power(from->maxPowerBudget), mask,
                  SCH_POWER_CONSUMER_HAS_MAX_BUDGET);
    copy_optional(from->has.extPowerBudget, record->ext_budget, whole_power(from->extPowerBudget), mask,
                  SCH_POWER_CONSUMER_HAS_EXT_BUDGET);
    copy_optional(from->has.powerUsage, record->power_usage, from->powerUsage, mask,
                  SCH_POWER_CONSUMER_HAS_POWER_USAGE);
    record->power_zone = from->powerZone;
    return record;
}

uint32_t parser_retrieve_power_producer_data(sch_power_producer_type *record, const PowerProducerType *from)
{
    if (record == nullptr || from == nullptr)
        return 0;
    copy_optional(from->has.maxPower, record->max_power, whole_power(from->maxPower), record->field_present,
                  SCH_POWER_PRODUCER_HAS_MAX_POWER);
    copy_optional(from->has.currentPower, record->current_power, whole_power(from->currentPower),
                  record->field_present, SCH_POWER_PRODUCER_HAS_CURRENT_POWER);
    return 0;
}

uint32_t parser_retrieve_power_zone_data(sch_power_zone_type *record, const PowerZoneType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::power_zone_null>();
        return 0;
    }
    copy_optional_text(from->has.description, record->description, from->description, record->field_present,
                       SCH_POWER_ZONE_HAS_DESCRIPTION);
    record->zone = static_cast<uint8_t>(from->zone);
    record->on_off_capability = from->powerOnOffCapability;
    record->power_applied = from->powerApplied;
    record->total_power_required = static_cast<uint16_t>(whole_power(from->totalPowerRequired));
    record->main_zone = from->mainZone;
    record->pd_zone_number = static_cast<uint16_t>(from->pdZoneNumber);
    return 0;
}

namespace
{

struct power_zone {
    using record = sch_power_zone_type;
    using decoded = PowerZoneType;
    using null_list = msg::power_zone_list_null;
    using no_memory = msg::power_zone_list_no_memory;
    static constexpr auto fill = parser_retrieve_power_zone_data;
};

}  // namespace

uint32_t parser_retrieve_power_zone_list(sch_power_zone_type **head, const xb_data_list *list, void *)
{
    return append_records<power_zone>(end_of_list(head), list);
}

uint32_t parser_retrieve_power_info_data(sch_power_info_type *record, const PowerInfoType *from,
                                         void *passed_on)
{
    if (record != nullptr && from != nullptr)
        parser_retrieve_power_zone_list(&record->power_zone_list, &from->powerZone, passed_on);
    return 0;
}

void inv_schema_free_power_zone_data_list(sch_power_zone_type *first)
{
    free_list(first);
}

void inv_schema_free_power_info_data(sch_power_info_type *record)
{
    if (record != nullptr)
        inv_schema_free_power_zone_data_list(record->power_zone_list);
}
