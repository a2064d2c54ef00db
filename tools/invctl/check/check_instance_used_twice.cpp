// The library's indexes hold one entity for each xml instance: of several only the last can be reached.
#include <unordered_map>

#include "access_model.h"
#include "checks.h"

namespace invctl::check
{

void check_instance_used_twice(const checked_document &document, finding_list &found)
{
    std::unordered_map<uint32_t, const entity *> first;
    for (const entity &each : document.entities) {
        // 0 stands for no instance; it is also what a faulty attribute leaves.
        if (each.base->xmlInstance == 0)
            continue;
        auto [at, is_new] = first.emplace(instance_of(each), &each);
        if (is_new)
            continue;
        const entity &other = *at->second;
        report(found, document, &each, &each.base->xmlInstance,
               "xml instance " + std::to_string(each.base->xmlInstance) + " belongs to " +
                   quoted(other.base->name) + " on " + line_of(other.where) + " already")
            .hint = "give each entity of a document an xml instance of its own";
    }
}

}  // namespace invctl::check
