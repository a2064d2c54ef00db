// SPI flashes.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_spi_data(sch_spi_flash_type *record, const BaseSpiFlash *from,
                                       sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::spi_flash_null>();
        return 0;
    }
    const auto &own = from->ext;
    parser_retrieve_base_storage_data(&record->storage, &from->base, parent);
    record->channel = own.channel;
    record->block_size_kb = first_octet(own.blockSizeKB);
    parser_retrieve_base_storage_memory_map_data_list(&record->memory_map_list, &own.memoryRow,
                                                      &record->storage.base);
    return 0;
}

namespace
{

struct spi_flash {
    using record = sch_spi_flash_type;
    using decoded = BaseSpiFlash;
    using null_list = msg::spi_flash_list_null;
    using no_memory = msg::spi_flash_list_no_memory;
    static constexpr auto value = plain_value<BaseSpiFlash>;
    static constexpr auto fill = parser_retrieve_base_spi_data;
};

}  // namespace

uint32_t parser_retrieve_base_spi_data_list(sch_spi_flash_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent)
{
    return append_list<spi_flash>(head, list, parent);
}

void inv_schema_free_spi_flash_data(sch_spi_flash_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_storage_data_list(record->storage.next);
    inv_schema_free_storage_data(&record->storage);
    inv_schema_free_storage_mem_map_data_list(record->memory_map_list);
}

void inv_schema_free_spi_flash_data_list(sch_spi_flash_type *first)
{
    free_list(first, inv_schema_free_spi_flash_data);
}
