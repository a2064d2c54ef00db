// Entities that the library decodes and then leaves aside.
#include "checks.h"

namespace
{

using namespace invctl::check;

size_t count_below(const checked_document &document, const entity &top)
{
    // Descendants follow their ancestor without a gap.
    size_t count = 0;
    for (const entity *each = &top + 1; each < document.entities.data() + document.entities.size(); ++each) {
        if (each->parent < &top)
            break;
        ++count;
    }
    return count;
}

}  // namespace

namespace invctl::check
{

void check_not_in_tree(const checked_document &document, finding_list &found)
{
    for (const entity &each : document.entities) {
        // Only the topmost of them is told.
        if (each.in_tree || each.parent == nullptr || !each.parent->in_tree)
            continue;
        const size_t below = count_below(document, each);
        std::string text = "the entity will not be in the entity tree: the library does not read it here";
        if (below != 0)
            text += below == 1 ? ", nor the entity in it" : ", nor the " + std::to_string(below) + " in it";
        finding &told = report(found, document, &each, each.record, text);
        told.hint = "place it under an element that the library reads entities from";
    }
}

}  // namespace invctl::check
