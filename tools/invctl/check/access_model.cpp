#include "access_model.h"

#include "inv_parser/inventory_tokens.h"
#include "output.h"

namespace
{

using namespace invctl::check;

uint32_t first_octet(const xb_octets &octets)
{
    return octets.count == 0 || octets.octets == nullptr ? 0 : octets.octets[0];
}

uint32_t channel_of(const I2cPortType &port)
{
    return first_octet(port.channelNumber);
}

uint32_t channel_of(const BasePCIePortType &port)
{
    return port.portNumber.octets[0];
}

template <class Port, class Destination>
void add_ports(const entity &owner, const xb_data_list &ports, std::vector<destination> &to)
{
    for (const xb_data_node *node = ports.head; node != nullptr; node = node->next) {
        const auto *port = static_cast<const Port *>(node->data);
        if (port == nullptr)
            continue;
        for (const xb_data_node *each = port->dstInfo.head; each != nullptr; each = each->next)
            if (const auto *found = static_cast<const Destination *>(each->data))
                to.push_back({&owner, channel_of(*port), found->applicable, &found->nodeInfo});
    }
}

}  // namespace

namespace invctl::check
{

const char *name_of(bus of)
{
    return of == bus::i2c ? "I2C" : "PCIe";
}

bool destination::leads_to_entity() const
{
    return node->nodeType == ORVL_NODE_TYPE_ENTITY;
}

const void *destination::item() const
{
    return node->has.nodePosition ? static_cast<const void *>(&node->nodePosition) : node;
}

const destination *access_model::link_of(const entity &reached) const
{
    auto at = links.find(instance_of(reached));
    return at == links.end() ? nullptr : at->second;
}

access_model access_of(const checked_document &document, bus of)
{
    access_model model;
    model.of = of;
    for (const entity &each : document.entities) {
        if (!each.in_tree)
            continue;
        if (each.base->xmlInstance != 0)
            model.entities[instance_of(each)] = &each;
        if (of == bus::i2c)
            add_ports<I2cPortType, I2cDestType>(each, each.base->i2cPort, model.destinations);
        else
            add_ports<BasePCIePortType, PCIeDestType>(each, each.base->pciePort, model.destinations);
    }
    for (const destination &each : model.destinations)
        if (each.leads_to_entity() && each.instance() != 0 && each.owner->base->xmlInstance != 0)
            model.links[each.instance()] = &each;
    return model;
}

uint32_t instance_of(const entity &of)
{
    return static_cast<uint16_t>(of.base->xmlInstance);
}

std::string quoted(const char *text)
{
    return "\"" + printable(shown_name(text).c_str()) + "\"";
}

std::string label(const entity &of)
{
    return quoted(of.base->name) + " (" + std::to_string(instance_of(of)) + ")";
}

std::string line_of(const place &where)
{
    return "line " + std::to_string(where.line);
}

}  // namespace invctl::check
