// Console ports.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_console_data(sch_console_type *record, const BaseConsoleType *from,
                                           sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::console_null>();
        return 0;
    }
    parser_retrieve_base_port_data(&record->port, &from->base, parent);
    record->usage = static_cast<uint8_t>(from->usage);
    return 0;
}

namespace
{

struct console {
    using record = sch_console_type;
    using decoded = BaseConsoleType;
    using null_list = msg::console_list_null;
    using no_memory = msg::console_list_no_memory;
    static constexpr auto value = plain_value<BaseConsoleType>;
    static constexpr auto fill = parser_retrieve_base_console_data;
};

}  // namespace

uint32_t parser_retrieve_base_console_data_list(sch_console_type **head, const xb_data_list *list,
                                                sch_base_entity_type *parent)
{
    return append_list<console>(head, list, parent);
}

void inv_schema_free_console_data(sch_console_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_port_data(&record->port);
}

void inv_schema_free_console_data_list(sch_console_type *first)
{
    free_list(first, inv_schema_free_console_data);
}
