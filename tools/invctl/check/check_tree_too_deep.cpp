// Entities below more others than an EID has levels.
#include "checks.h"
#include "inv_parser/eid.h"

namespace invctl::check
{

void check_tree_too_deep(const checked_document &document, finding_list &found)
{
    std::vector<uint32_t> levels(document.entities.size(), 1);
    for (const entity &each : document.entities) {
        const auto index = static_cast<size_t>(&each - document.entities.data());
        if (each.parent != nullptr)
            levels[index] = levels[static_cast<size_t>(each.parent - document.entities.data())] + 1;
        // What stands below such an entity is not told again.
        if (each.in_tree && levels[index] == INV_EID_MAX_DEPTH + 1)
            report(found, document, &each, each.record,
                   "the entity is on level " + std::to_string(levels[index]) + " of the tree; an EID has " +
                       std::to_string(INV_EID_MAX_DEPTH))
                .hint = "move the entity up; queries cannot name it where it is";
    }
}

}  // namespace invctl::check
