// I2C sequences: the commands that open the way to a device.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "frame/trace.h"

using namespace inv;

namespace
{

void copy_node(const NodeInfoType &from, uint32_t &node_type, uint16_t &node_position)
{
    node_type = from.nodeType;
    if (from.has.nodePosition)
        node_position = static_cast<uint16_t>(from.nodePosition);
}

}  // namespace

uint32_t parser_retrieve_i2c_sequence_data(sch_i2c_sequence_type *record, const I2cSequenceType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::i2c_sequence_null>();
        return 0;
    }
    auto &mask = record->field_present;
    copy_optional(from->has.applicable, record->applicable, from->applicable, mask,
                  SCH_I2C_SEQUENCE_HAS_APPLICABLE);
    record->seq_type = static_cast<uint8_t>(from->seqType);
    copy_text(record->description, from->description);
    if (from->has.srcInfo) {
        copy_node(from->srcInfo, record->src_node_type, record->src_node_position);
        mark_present(mask, SCH_I2C_SEQUENCE_HAS_SOURCE);
    }
    if (from->has.dstInfo) {
        copy_node(from->dstInfo, record->dst_node_type, record->dst_node_position);
        mark_present(mask, SCH_I2C_SEQUENCE_HAS_DESTINATION);
    }
    parser_retrieve_i2c_node_data_list(&record->command_list, &from->cmdInfo);
    return 0;
}

void inv_schema_free_i2c_sequence_data(sch_i2c_sequence_type *record)
{
    if (record != nullptr)
        inv_schema_free_i2c_node_data_list(record->command_list);
}
