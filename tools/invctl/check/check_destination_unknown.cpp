// A port's destination that no entity of the document answers to.
#include "access_model.h"
#include "checks.h"

namespace invctl::check
{

void check_destination_unknown(const checked_document &document, finding_list &found)
{
    for (bus of : all_buses) {
        const access_model model = access_of(document, of);
        for (const destination &each : model.destinations) {
            if (!each.leads_to_entity() || model.entities.contains(each.instance()))
                continue;
            report(found, document, each.owner, each.item(),
                   std::string(name_of(of)) + " destination " + std::to_string(each.node->nodePosition) +
                       " of " + quoted(each.owner->base->name) + " is the xml instance of no entity")
                .hint = "name an entity of this document; units in slots have node types of their own";
        }
    }
}

}  // namespace invctl::check
