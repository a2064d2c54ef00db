// Memory maps of flash memories.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_storage_memory_map_data(sch_storage_memory_map_type *record,
                                                      const BaseStorageMemoryMap *from,
                                                      sch_base_entity_type *)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::storage_memory_map_null>();
        return 0;
    }
    record->memory_usage = static_cast<uint8_t>(from->memoryUsage);
    record->blocks = from->blocks;
    // Kept: of the addresses only the first octet is carried.
    record->start_addr = first_octet(from->startAddr);
    record->end_addr = first_octet(from->endAddr);
    return 0;
}

namespace
{

struct storage_memory_map {
    using record = sch_storage_memory_map_type;
    using decoded = BaseStorageMemoryMap;
    using null_list = msg::storage_memory_map_list_null;
    using no_memory = msg::storage_memory_map_list_no_memory;
    static constexpr auto value = plain_value<BaseStorageMemoryMap>;
    static constexpr auto fill = parser_retrieve_base_storage_memory_map_data;
};

}  // namespace

uint32_t parser_retrieve_base_storage_memory_map_data_list(sch_storage_memory_map_type **head,
                                                           const xb_data_list *list,
                                                           sch_base_entity_type *parent)
{
    return append_list<storage_memory_map>(head, list, parent);
}

void inv_schema_free_storage_mem_map_data_list(sch_storage_memory_map_type *first)
{
    free_list(first);
}
