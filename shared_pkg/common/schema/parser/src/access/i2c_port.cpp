// I2C ports and what hangs on them.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/append_records.h"
#include "access/destination_filing.h"
#include "access/field_copy.h"

using namespace inv;

uint32_t parser_retrieve_i2c_dest_data(sch_i2c_dest_type *record, const I2cDestType *from, uint32_t channel,
                                       sch_base_entity_type *owner)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::i2c_dest_null>();
        return 0;
    }
    record->applicable = from->applicable;
    record->node_type = from->nodeInfo.nodeType;
    record->node_position = widened_position(from->nodeInfo);
    return file_i2c_destination({.applicable = record->applicable,
                                 .node_type = record->node_type,
                                 .node_position = record->node_position,
                                 .channel = channel,
                                 .device_id = 0,
                                 .owner = owner});
}

namespace
{

struct i2c_dest {
    using record = sch_i2c_dest_type;
    using decoded = I2cDestType;
    using null_list = msg::i2c_dest_list_null;
    using no_memory = msg::i2c_dest_list_no_memory;
    static constexpr auto fill = parser_retrieve_i2c_dest_data;
};

struct i2c_port {
    using record = sch_i2c_port_type;
    using decoded = I2cPortType;
    using null_list = msg::i2c_port_list_null;
    using no_memory = msg::i2c_port_list_no_memory;
    static constexpr auto fill = parser_retrieve_i2c_port_data;
};

}  // namespace

uint32_t parser_retrieve_i2c_dest_data_list(sch_i2c_dest_type **head, const xb_data_list *list,
                                            uint32_t channel, sch_base_entity_type *owner)
{
    return append_records<i2c_dest>(end_of_list(head), list, channel, owner);
}

uint32_t parser_retrieve_i2c_port_data(sch_i2c_port_type *record, const I2cPortType *from,
                                       sch_base_entity_type *owner)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::i2c_port_null>();
        return 0;
    }
    record->port_type = static_cast<uint8_t>(from->portType);
    record->channel_number = first_octet(from->channelNumber);
    parser_retrieve_i2c_dest_data_list(&record->dest_list, &from->dstInfo, record->channel_number, owner);
    trace<msg::i2c_port_filled>(record->port_type, record->channel_number);
    return 0;
}

uint32_t parser_retrieve_i2c_port_data_list(sch_i2c_port_type **head, const xb_data_list *list,
                                            sch_base_entity_type *owner)
{
    return append_records<i2c_port>(end_of_list(head), list, owner);
}

void inv_schema_free_i2c_dest_data_list(sch_i2c_dest_type *first)
{
    free_list(first);
}

void inv_schema_free_i2c_port_data(sch_i2c_port_type *record)
{
    if (record != nullptr)
        inv_schema_free_i2c_dest_data_list(record->dest_list);
}

void inv_schema_free_i2c_port_data_list(sch_i2c_port_type *first)
{
    free_list(first, inv_schema_free_i2c_port_data);
}
