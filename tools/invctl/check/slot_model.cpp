#include "slot_model.h"

#include "inv_parser/access_sequences.h"

namespace invctl::check
{

std::vector<slot_destination> slot_destinations(const catalogue_check &catalogue)
{
    std::vector<slot_destination> found;
    for (const auto &[file, document] : catalogue.documents) {
        if (document == nullptr)
            continue;
        for (bus of : all_buses)
            for (const destination &each : access_of(*document, of).destinations) {
                const uint32_t type = inv_parser_convert_node_type_to_container_type(each.node->nodeType);
                if (type != INV_NO_CONTAINER_TYPE)
                    found.push_back({document.get(), of, each, type});
            }
    }
    return found;
}

std::string name_of_container_type(uint32_t container_type)
{
    return BaseContainerListType_containerType_ToString(container_type);
}

}  // namespace invctl::check
