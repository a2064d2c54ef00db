// Access paths of more hops than the library answers with.
#include <algorithm>
#include <unordered_map>

#include "access_model.h"
#include "checks.h"
#include "inv_parser/access_sequences.h"

namespace
{

using namespace invctl::check;

size_t max_hops(bus of)
{
    return of == bus::i2c ? INV_I2C_MAX_HOPS : INV_PCIE_MAX_HOPS;
}

// Hops from the top down to the entity. Paths that go round in a circle have none: they count as 0.
size_t hops_to(const access_model &model, const entity &target, std::unordered_map<uint32_t, size_t> &known)
{
    std::vector<uint32_t> climb;
    const entity *at = &target;
    bool at_top = false;
    while (!at_top && known.try_emplace(instance_of(*at), 0).second) {
        climb.push_back(instance_of(*at));
        const destination *link = model.link_of(*at);
        at_top = link == nullptr;
        if (!at_top)
            at = model.entities.at(instance_of(*link->owner));
    }
    size_t hops = at_top ? 0 : known[instance_of(*at)];
    const bool is_circle = !at_top && hops == 0;
    for (size_t i = climb.size(); i-- > 0 && !is_circle;)
        known[climb[i]] = ++hops;
    return known[instance_of(target)];
}

void check_bus(const checked_document &document, bus of, finding_list &found)
{
    const access_model model = access_of(document, of);
    std::unordered_map<uint32_t, size_t> known;
    for (const destination &each : model.destinations) {
        auto at = each.leads_to_entity() ? model.entities.find(each.instance()) : model.entities.end();
        // Only the destination that counts, and of a path that goes on from here only its first part.
        if (at == model.entities.end() || model.link_of(*at->second) != &each)
            continue;
        if (hops_to(model, *at->second, known) != max_hops(of) + 1)
            continue;
        report(found, document, each.owner, each.item(),
               std::string(name_of(of)) + " path to " + label(*at->second) + " has " +
                   std::to_string(max_hops(of) + 1) + " hops; at most " + std::to_string(max_hops(of)) +
                   " are possible")
            .hint = "reach the device by fewer devices in between";
    }
}

}  // namespace

namespace invctl::check
{

void check_path_too_long(const checked_document &document, finding_list &found)
{
    for (bus each : all_buses)
        check_bus(document, each, found);
}

}  // namespace invctl::check
