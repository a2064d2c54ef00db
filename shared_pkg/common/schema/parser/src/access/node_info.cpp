// Names of units by kind and position.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "frame/trace.h"

using namespace inv;

uint32_t parser_retrieve_node_info_data(sch_node_info_type *record, const NodeInfoType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::node_info_null>();
        return 0;
    }
    record->node_type = from->nodeType;
    copy_optional(from->has.nodePosition, record->node_position, from->nodePosition, record->field_present,
                  SCH_NODE_INFO_HAS_NODE_POSITION);
    trace<msg::node_info_filled>(record->node_type, record->node_position);
    return 0;
}
