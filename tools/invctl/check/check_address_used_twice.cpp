// Two devices that answer to one address of one I2C bus.
#include <unordered_map>

#include "access_model.h"
#include "checks.h"
#include "inv_parser/inventory_tokens.h"

namespace
{

using namespace invctl::check;

// Entities of one device type and model are parts of one device: a converter and its sensors, for example.
bool is_same_device(const I2cNodeType &a, const I2cNodeType &b)
{
    return a.deviceType == b.deviceType && a.has.deviceModel == b.has.deviceModel &&
           a.deviceModel == b.deviceModel;
}

// Whether the destination leads on from the control card in slot 0 or 1.
bool leads_from(uint32_t slot, const destination &from)
{
    return from.applicable != (slot == 0 ? ORVL_CTRL_SLOT_1 : ORVL_CTRL_SLOT_0);
}

const entity *device_at(const access_model &model, const destination &to)
{
    auto at = to.leads_to_entity() ? model.entities.find(to.instance()) : model.entities.end();
    if (at == model.entities.end())
        return nullptr;
    const BaseEntityType &base = *at->second->base;
    const bool has_address =
        base.has.i2cNode && base.i2cNode.has.deviceAddress && base.i2cNode.deviceAddress.count == 1;
    return has_address ? at->second : nullptr;
}

std::string hexadecimal(uint32_t octet)
{
    constexpr char digits[] = "0123456789ABCDEF";
    return {'0', 'x', digits[octet >> 4 & 15], digits[octet & 15]};
}

void report_device(const checked_document &document, const destination &way, const entity &device,
                   const entity &other, finding_list &found)
{
    const Hex8BitHexAddressType &address = device.base->i2cNode.deviceAddress;
    report(found, document, &device, &address,
           "address " + hexadecimal(address.octets[0]) + " behind channel " + std::to_string(way.channel) +
               " of " + label(*way.owner) + " is that of " + label(other) + " on " + line_of(other.where) +
               " too")
        .hint = "give the devices addresses of their own, or put one of them behind another channel";
}

}  // namespace

namespace invctl::check
{

void check_address_used_twice(const checked_document &document, finding_list &found)
{
    const access_model model = access_of(document, bus::i2c);
    std::unordered_map<uint64_t, const entity *> first;  // by owner, channel, control slot and address
    for (const destination &each : model.destinations) {
        const entity *device = device_at(model, each);
        if (device == nullptr)
            continue;
        const auto owner = static_cast<uint64_t>(each.owner - document.entities.data());
        const entity *other = nullptr;
        for (uint32_t slot : {0u, 1u}) {
            if (!leads_from(slot, each))
                continue;
            const uint64_t key = ((owner << 8 | each.channel) << 1 | slot) << 8 |
                                 device->base->i2cNode.deviceAddress.octets[0];
            auto [at, is_new] = first.try_emplace(key, device);
            if (!is_new && !is_same_device(device->base->i2cNode, at->second->base->i2cNode))
                other = at->second;
        }
        if (other != nullptr)
            report_device(document, each, *device, *other, found);
    }
}

}  // namespace invctl::check
