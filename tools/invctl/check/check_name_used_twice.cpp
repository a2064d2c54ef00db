// Names that two entities under one other have: people cannot tell them apart.
#include <string_view>
#include <unordered_map>

#include "access_model.h"
#include "checks.h"

namespace
{

using namespace invctl::check;

struct sibling {
    const entity *parent;
    std::string_view name;
    bool operator==(const sibling &) const = default;
};

struct sibling_hash {
    size_t operator()(const sibling &of) const
    {
        return std::hash<std::string_view>()(of.name) * 31 + std::hash<const void *>()(of.parent);
    }
};

}  // namespace

namespace invctl::check
{

void check_name_used_twice(const checked_document &document, finding_list &found)
{
    std::unordered_map<sibling, const entity *, sibling_hash> first;
    for (const entity &each : document.entities) {
        if (each.base->name == nullptr || each.base->name[0] == '\0')
            continue;
        auto [at, is_new] = first.try_emplace({each.parent, each.base->name}, &each);
        if (!is_new)
            report(found, document, &each, &each.base->name,
                   "the name " + quoted(each.base->name) + " is that of another entity here, on " +
                       line_of(at->second->where))
                .hint = "number the names or tell them apart by what they are for";
    }
}

}  // namespace invctl::check
