// Subtypes that are not the type's: the library counts a subtype from its type's first one and gets another.
#include <string_view>
#include <unordered_map>

#include "checks.h"

namespace
{

// The subtypes of a type stand together in the schema, between its "..._DUMMY" and "..._MAX".
struct subtype_group {
    std::string prefix;
    uint32_t first = 1;
    uint32_t last = 0;
};

// "ORVL_ENTITY_TYPE_FAN" has the subtypes "ORVL_ENTITY_SUBTYPE_FAN_...". A type without subtypes has an
// empty prefix.
subtype_group group_of(uint32_t type)
{
    constexpr std::string_view before = "ORVL_ENTITY_TYPE_";
    const std::string_view token = EidType_ToString(type);
    subtype_group group;
    if (!token.starts_with(before))
        return group;
    const std::string prefix = "ORVL_ENTITY_SUBTYPE_" + std::string(token.substr(before.size())) + "_";
    if (EidSubType_ToEnum((prefix + "DUMMY").c_str(), -1, &group.first) == 0 &&
        EidSubType_ToEnum((prefix + "MAX").c_str(), -1, &group.last) == 0)
        group.prefix = prefix;
    return group;
}

}  // namespace

namespace invctl::check
{

void check_subtype_of_other_type(const checked_document &document, finding_list &found)
{
    std::unordered_map<uint32_t, subtype_group> groups;
    for (const entity &each : document.entities) {
        const BaseEntityType &base = *each.base;
        auto [at, is_new] = groups.try_emplace(base.type);
        if (is_new)
            at->second = group_of(base.type);
        const subtype_group &group = at->second;
        if (group.prefix.empty() || (base.subtype >= group.first && base.subtype <= group.last))
            continue;
        report(found, document, &each, &base.subtype,
               std::string(EidSubType_ToString(base.subtype)) + " is no subtype of " +
                   EidType_ToString(base.type))
            .hint = "its subtypes begin with " + group.prefix;
    }
}

}  // namespace invctl::check
