// Destinations of a node type for which the library keeps no slots.
#include "access_model.h"
#include "checks.h"
#include "inv_parser/handle.h"

namespace invctl::check
{

void check_no_slot_list(const checked_document &document, finding_list &found)
{
    for (bus of : all_buses)
        for (const destination &each : access_of(document, of).destinations)
            if (each.node->nodeType >= INV_CC_SLOT_LIST_COUNT)
                report(found, document, each.owner, &each.node->nodeType,
                       std::string(NodeInfoType_nodeType_ToString(each.node->nodeType)) +
                           " has no slot list: this " + name_of(of) + " destination is never found")
                    .hint = "name the kind of unit that the slot takes";
}

}  // namespace invctl::check
