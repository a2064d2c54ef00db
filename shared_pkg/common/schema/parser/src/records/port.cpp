// Ports.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_port_data(sch_port_type *record, const BasePortType *from,
                                        sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::port_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    record->max_bandwidth = own.maxBandWidth;
    record->operating_bandwidth = own.operatingBandWidth;
    copy_text(record->hw_board_identifier, own.hwBoardIdentifier);
    parser_retrieve_base_led_data_list(&record->led_list, &own.led, &record->base);
    record->port_usage = from->portUsage;
    if (own.has.container) {
        parser_retrieve_base_container_data(
            &record->container, static_cast<const BaseContainerType *>(own.container.value), &record->base);
        mark_present(record->field_present, SCH_PORT_HAS_CONTAINER);
    }
    return 0;
}

namespace
{

struct port {
    using record = sch_port_type;
    using decoded = BasePortType;
    using null_list = msg::port_list_null;
    using no_memory = msg::port_list_no_memory;
    static constexpr auto value = chosen_value<BasePortType>;
    static constexpr auto fill = parser_retrieve_base_port_data;
};

}  // namespace

uint32_t parser_retrieve_base_port_data_list(sch_port_type **head, const xb_data_list *list,
                                             sch_base_entity_type *parent)
{
    return append_list<port>(head, list, parent);
}

void inv_schema_free_port_data(sch_port_type *record)
{
    if (record == nullptr)
        return;
    // Kept: what the container owns is not given back.
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_led_data_list(record->led_list);
}

void inv_schema_free_port_data_list(sch_port_type *first)
{
    free_list(first, inv_schema_free_port_data);
}
