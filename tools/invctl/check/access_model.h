// How the entities of a document are reached: the destinations of its ports, as the library files them.
#ifndef INVCTL_CHECK_ACCESS_MODEL_H
#define INVCTL_CHECK_ACCESS_MODEL_H

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "checked_document.h"

namespace invctl::check
{

enum class bus : uint8_t { i2c, pcie };

inline constexpr bus all_buses[] = {bus::i2c, bus::pcie};

const char *name_of(bus of);  // "I2C", "PCIe"

// One destination of a port of an entity in the library's tree.
struct destination {
    const entity *owner = nullptr;  // whose port it is
    uint32_t channel = 0;           // of the port; on PCIe the port number
    uint32_t applicable = 0;        // LinkApplicableType
    const NodeInfoType *node = nullptr;

    bool leads_to_entity() const;
    // The xml instance asked for, widened as the library's index has it.
    uint32_t instance() const
    {
        return static_cast<uint32_t>(node->nodePosition);
    }
    // Where the destination says which one it means.
    const void *item() const;
};

struct access_model {
    bus of = bus::i2c;
    std::vector<destination> destinations;  // document order
    // By xml instance; of several the last one counts, as in the library's index. Instance 0 is left out:
    // no path is built for it.
    std::unordered_map<uint32_t, const entity *> entities;
    std::unordered_map<uint32_t, const destination *> links;  // what leads to the instance

    // The destination that leads to the entity's parent, null at the top of its path.
    const destination *link_of(const entity &reached) const;
};

access_model access_of(const checked_document &document, bus of);

uint32_t instance_of(const entity &of);  // its xml instance as the records hold it

// '"Sensor mux" (11)': an entity by its own name and xml instance.
std::string label(const entity &of);

std::string quoted(const char *text);  // by shown_name(), with what could forge a line escaped

// "line 12", for texts that point at a second place.
std::string line_of(const place &where);

}  // namespace invctl::check

#endif
