// LEDs.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_led_data(sch_led_type *record, const BaseLEDType *from,
                                       sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::led_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    parser_retrieve_base_led_info_data_list(&record->led_info_list, &own.ledInfo, &record->base);
    if (own.has.cccAddrOffset)
        record->ccc_addr_offset = join_octets(own.cccAddrOffset.octets);
    if (own.has.cccAddrBits)
        record->ccc_addr_bits = join_octets(own.cccAddrBits.octets);
    return 0;
}

namespace
{

struct led {
    using record = sch_led_type;
    using decoded = BaseLEDType;
    using null_list = msg::led_list_null;
    using no_memory = msg::led_list_no_memory;
    static constexpr auto value = plain_value<BaseLEDType>;
    static constexpr auto fill = parser_retrieve_base_led_data;
};

}  // namespace

uint32_t parser_retrieve_base_led_data_list(sch_led_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent)
{
    return append_list<led>(head, list, parent);
}

void inv_schema_free_led_data(sch_led_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_led_info_data_list(record->led_info_list);
}

void inv_schema_free_led_data_list(sch_led_type *first)
{
    free_list(first, inv_schema_free_led_data);
}
