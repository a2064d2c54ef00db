// Files what hangs on I2C and PCIe ports in the current file, where access sequences find it.
#ifndef ACCESS_DESTINATION_FILING_H
#define ACCESS_DESTINATION_FILING_H

#include "OrvelianInventorySchema.h"
#include "inv_parser/base_entity.h"

#include <stdint.h>

namespace inv
{

struct destination {
    uint32_t applicable;
    uint32_t node_type;
    uint32_t node_position;
    uint32_t channel;             // of the port; for PCIe the port number
    uint16_t device_id;           // PCIe only
    sch_base_entity_type *owner;  // entity whose port it is; may be null
};

// Position of a destination as its record and the indexes have it. Without a position: 0.
inline uint32_t widened_position(const NodeInfoType &node)
{
    return node.has.nodePosition ? static_cast<uint32_t>(int32_t{node.nodePosition}) : 0;
}

// Each returns 0, or 1 after a failure that it traced. Without a current file, and for a node type
// that has no slot list, nothing is filed.
uint32_t file_i2c_destination(const destination &found);
uint32_t file_pcie_destination(const destination &found);

}  // namespace inv

#endif
