// Memories.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_memory_data(sch_memory_type *record, const BaseMemoryType *from,
                                          sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::memory_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    // Kept: eight octets, though the arrays could hold more.
    constexpr size_t text_limit = 8;
    copy_text(record->capacity, from->ext.capacity, text_limit);
    copy_text(record->serial_number, from->ext.serialNumber, text_limit);
    copy_text(record->firmware_version, from->ext.firmwareVersion, text_limit);
    return 0;
}

namespace
{

struct memory_chip {
    using record = sch_memory_type;
    using decoded = BaseMemoryType;
    using null_list = msg::memory_list_null;
    using no_memory = msg::memory_list_no_memory;
    static constexpr auto value = plain_value<BaseMemoryType>;
    static constexpr auto fill = parser_retrieve_base_memory_data;
};

}  // namespace

uint32_t parser_retrieve_base_memory_data_list(sch_memory_type **head, const xb_data_list *list,
                                               sch_base_entity_type *parent)
{
    return append_list<memory_chip>(head, list, parent);
}

void inv_schema_free_memory_data(sch_memory_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_memory_data_list(sch_memory_type *first)
{
    free_list(first, inv_schema_free_memory_data);
}
