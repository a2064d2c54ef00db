// Slots of chassis and the destinations of control cards that lead to them.
#ifndef INVCTL_CHECK_SLOT_MODEL_H
#define INVCTL_CHECK_SLOT_MODEL_H

#include <cstdint>
#include <string>
#include <vector>

#include "access_model.h"
#include "checks.h"

namespace invctl::check
{

// A destination of a catalogued document that lies in a slot of a chassis.
struct slot_destination {
    const checked_document *document = nullptr;
    bus of = bus::i2c;
    destination to;
    uint32_t container_type = 0;  // BaseContainerListType_containerType of the slots for this node type
};

// In the order of the documents' names, then in document order, I2C before PCIe. Destinations whose node
// type stands for no kind of slot are left out.
std::vector<slot_destination> slot_destinations(const catalogue_check &catalogue);

// "ORVL_CONTAINER_TYPE_FANTRAYSLOT"
std::string name_of_container_type(uint32_t container_type);

}  // namespace invctl::check

#endif
