// Voltage margins.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_volt_margin_data(sch_volt_margin_type *record,
                                               const BaseVoltageMarginType *from,
                                               sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::volt_margin_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    record->high_value = from->ext.highValue;
    record->low_value = from->ext.lowValue;
    record->operation = static_cast<uint8_t>(from->ext.operation);
    trace<msg::volt_margin_filled>(record->high_value, record->low_value, record->operation);
    return 0;
}

namespace
{

struct volt_margin {
    using record = sch_volt_margin_type;
    using decoded = BaseVoltageMarginType;
    using null_list = msg::volt_margin_list_null;
    using no_memory = msg::volt_margin_list_no_memory;
    static constexpr auto value = plain_value<BaseVoltageMarginType>;
    static constexpr auto fill = parser_retrieve_base_volt_margin_data;
};

}  // namespace

uint32_t parser_retrieve_base_volt_margin_data_list(sch_volt_margin_type **head, const xb_data_list *list,
                                                    sch_base_entity_type *parent)
{
    return append_list<volt_margin>(head, list, parent);
}

void inv_schema_free_volt_margin_data(sch_volt_margin_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_volt_margin_data_list(sch_volt_margin_type *first)
{
    free_list(first, inv_schema_free_volt_margin_data);
}
