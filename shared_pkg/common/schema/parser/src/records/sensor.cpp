// Sensors.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

namespace
{

void fill_reading(sch_sensor_type *record, const BaseSensorType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    copy_optional(has.userDefinedUnit, record->user_defined_unit, own.userDefinedUnit, mask,
                  SCH_SENSOR_HAS_USER_DEFINED_UNIT);
    copy_optional(has.pd_data1, record->pd_data1, join_octets(own.pd_data1.octets), mask,
                  SCH_SENSOR_HAS_PD_DATA1);
    copy_optional(has.pd_data2, record->pd_data2, join_octets(own.pd_data2.octets), mask,
                  SCH_SENSOR_HAS_PD_DATA2);
    copy_optional(has.powerdomain, record->powerdomain, join_octets(own.powerdomain.octets), mask,
                  SCH_SENSOR_HAS_POWERDOMAIN);
    copy_optional(has.hwPollRegisterOffset, record->hw_poll_register_offset,
                  join_octets(own.hwPollRegisterOffset.octets), mask, SCH_SENSOR_HAS_HW_POLL_REGISTER_OFFSET);
    // Kept: these two have no bit.
    if (has.isCoreAutopolled)
        record->is_core_autopolled = own.isCoreAutopolled;
    if (has.sensorDataLength)
        record->sensor_data_length = own.sensorDataLength;
    record->unit = static_cast<uint8_t>(own.unit);
    record->scale = static_cast<uint8_t>(own.scale);
    copy_optional(has.precision, record->precision, own.precision, mask, SCH_SENSOR_HAS_PRECISION);
}

void fill_margin(sch_sensor_type *record, const BaseSensorType *from)
{
    const auto &has = from->has;
    auto &mask = record->field_present;
    copy_optional(has.isMarginable, record->is_marginable, from->isMarginable, mask,
                  SCH_SENSOR_HAS_IS_MARGINABLE);
    copy_optional(has.isRov, record->is_rov, from->isRov, mask, SCH_SENSOR_HAS_IS_ROV);
    copy_optional(has.marginRegister, record->margin_register, join_octets(from->marginRegister.octets), mask,
                  SCH_SENSOR_HAS_MARGIN_REGISTER);
}

}  // namespace

uint32_t parser_retrieve_base_sensor_data(sch_sensor_type *record, const BaseSensorType *from,
                                          sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::sensor_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    if (from->ext.has.threshold) {
        parser_retrieve_base_threshold_data(&record->threshold, &from->ext.threshold);
        mark_present(record->field_present, SCH_SENSOR_HAS_THRESHOLD);
    }
    fill_reading(record, from->ext);
    fill_margin(record, from);
    return 0;
}

namespace
{

struct sensor {
    using record = sch_sensor_type;
    using decoded = BaseSensorType;
    using null_list = msg::sensor_list_null;
    using no_memory = msg::sensor_list_no_memory;
    static constexpr auto value = plain_value<BaseSensorType>;
    static constexpr auto fill = parser_retrieve_base_sensor_data;
};

}  // namespace

uint32_t parser_retrieve_base_sensor_data_list(sch_sensor_type **head, const xb_data_list *list,
                                               sch_base_entity_type *parent)
{
    return append_list<sensor>(head, list, parent);
}

void inv_schema_free_sensor_data(sch_sensor_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_sensor_data_list(sch_sensor_type *first)
{
    free_list(first, inv_schema_free_sensor_data);
}
