// SPI ports and what hangs on them. Nothing here is released by name: SPI lists go with their file.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/field_copy.h"

using namespace inv;

uint32_t parser_retrieve_spi_dest_data(sch_spi_dest_type *record, const SpiDestType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::spi_dest_null>();
        return 0;
    }
    copy_text(record->description, from->description);
    copy_optional(from->has.deviceAddress, record->device_address, from->deviceAddress.octets[0],
                  record->field_present, SCH_SPI_DEST_HAS_DEVICE_ADDRESS);
    return 0;
}

uint32_t parser_retrieve_spi_dest_data_list(sch_spi_dest_type **head, const xb_data_list *list)
{
    if (list == nullptr)
        trace<msg::spi_dest_list_null>();
    if (list == nullptr || head == nullptr)
        return 0;
    // Kept: the first record becomes the head, whatever hung there, and running out of memory is
    // neither traced nor reported.
    for (const xb_data_node *node = list->head; node != nullptr && node->data != nullptr; node = node->next) {
        auto *record = record_new<sch_spi_dest_type>();
        if (record == nullptr)
            return 0;
        *head = record;
        head = &record->next;
        parser_retrieve_spi_dest_data(record, static_cast<const SpiDestType *>(node->data));
    }
    return 0;
}

uint32_t parser_retrieve_spi_port_data(sch_spi_port_type *record, const SpiPortType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::spi_port_null>();
        return 0;
    }
    record->channel = first_octet(from->channel);
    parser_retrieve_spi_dest_data_list(&record->dest_list, &from->dstInfo);
    return 0;
}

uint32_t parser_retrieve_spi_port_data_list(sch_spi_port_type **head, const xb_data_list *list)
{
    if (list == nullptr)
        trace<msg::spi_port_list_null>();
    if (list == nullptr || head == nullptr)
        return 0;
    sch_spi_port_type **end = end_of_list(head);
    for (const xb_data_node *node = list->head; node != nullptr && node->data != nullptr; node = node->next) {
        auto *record = record_new<sch_spi_port_type>();
        if (record != nullptr) {
            *end = record;
            end = &record->next;
        }
        // Kept: a port without memory is left out, said by the single builder alone, and the walk goes on.
        parser_retrieve_spi_port_data(record, static_cast<const SpiPortType *>(node->data));
    }
    return 0;
}
