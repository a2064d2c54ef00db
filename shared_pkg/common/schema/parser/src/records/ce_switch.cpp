// CE switches.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_ce_switch_data(sch_ce_switch_type *record, const BaseCESwitchType *from,
                                             sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::ce_switch_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    copy_optional(own.has.maxPorts, record->max_ports, own.maxPorts, record->field_present,
                  SCH_CE_SWITCH_HAS_MAX_PORTS);
    record->cores = static_cast<uint16_t>(own.cores);
    parser_retrieve_base_ce_switch_port_data_list(&record->port_list, &own.port, &record->base);
    parser_retrieve_base_fpga_data_list(&record->fpga_list, &own.fpga, &record->base);
    return 0;
}

namespace
{

struct ce_switch {
    using record = sch_ce_switch_type;
    using decoded = BaseCESwitchType;
    using null_list = msg::ce_switch_list_null;
    using no_memory = msg::ce_switch_list_no_memory;
    static constexpr auto value = plain_value<BaseCESwitchType>;
    static constexpr auto fill = parser_retrieve_base_ce_switch_data;
};

}  // namespace

uint32_t parser_retrieve_base_ce_switch_data_list(sch_ce_switch_type **head, const xb_data_list *list,
                                                  sch_base_entity_type *parent)
{
    return append_list<ce_switch>(head, list, parent);
}

void inv_schema_free_ce_switch_data(sch_ce_switch_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_ce_switch_port_data_list(record->port_list);
    inv_schema_free_fpga_data_list(record->fpga_list);
}

void inv_schema_free_ce_switch_data_list(sch_ce_switch_type *first)
{
    free_list(first, inv_schema_free_ce_switch_data);
}
