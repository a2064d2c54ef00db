// Xml instances that no access path may hold.
#include "access_model.h"
#include "checks.h"
#include "inv_parser/access_sequences.h"

namespace invctl::check
{

void check_instance_too_large(const checked_document &document, finding_list &found)
{
    // A negative one is read as a number above 32767.
    for (const entity &each : document.entities)
        if (instance_of(each) > INV_MAX_HOP_XML_INSTANCE)
            report(found, document, &each, &each.base->xmlInstance,
                   "xml instance " + std::to_string(each.base->xmlInstance) +
                       " is not within 1 to 10000: no access path can lead to or through the entity")
                .hint = "choose a free xml instance up to 10000";
}

}  // namespace invctl::check
