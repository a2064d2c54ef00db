// Ports of CE switches.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_ce_switch_port_data(sch_ce_switch_port_type *record,
                                                  const BaseCESwitchType_2_port *from,
                                                  sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::ce_switch_port_null>();
        return 0;
    }
    parser_retrieve_base_ce_port_data(&record->ce_port, &from->base, parent);
    record->face_plate_port = from->facePlatePort;
    return 0;
}

namespace
{

struct ce_switch_port {
    using record = sch_ce_switch_port_type;
    using decoded = BaseCESwitchType_2_port;
    using null_list = msg::ce_switch_port_list_null;
    using no_memory = msg::ce_switch_port_list_no_memory;
    static constexpr auto value = plain_value<BaseCESwitchType_2_port>;
    static constexpr auto fill = parser_retrieve_base_ce_switch_port_data;
};

}  // namespace

uint32_t parser_retrieve_base_ce_switch_port_data_list(sch_ce_switch_port_type **head,
                                                       const xb_data_list *list, sch_base_entity_type *parent)
{
    return append_list<ce_switch_port>(head, list, parent);
}

void inv_schema_free_ce_switch_port_data(sch_ce_switch_port_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_ce_port_data(&record->ce_port);
}

void inv_schema_free_ce_switch_port_data_list(sch_ce_switch_port_type *first)
{
    free_list(first, inv_schema_free_ce_switch_port_data);
}
