// States of an LED.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_led_info_data(sch_led_info_type *record, const BaseLedInfoType *from,
                                            sch_base_entity_type *)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::led_info_null>();
        return 0;
    }
    record->color = static_cast<uint8_t>(from->color);
    record->control = static_cast<uint8_t>(from->control);
    return 0;
}

namespace
{

struct led_info {
    using record = sch_led_info_type;
    using decoded = BaseLedInfoType;
    using null_list = msg::led_info_list_null;
    using no_memory = msg::led_info_list_no_memory;
    static constexpr auto value = plain_value<BaseLedInfoType>;
    static constexpr auto fill = parser_retrieve_base_led_info_data;
};

}  // namespace

uint32_t parser_retrieve_base_led_info_data_list(sch_led_info_type **head, const xb_data_list *list,
                                                 sch_base_entity_type *parent)
{
    return append_list<led_info>(head, list, parent);
}

void inv_schema_free_led_info_data_list(sch_led_info_type *first)
{
    free_list(first);
}
