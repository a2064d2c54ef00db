// Walking an entity tree, and the triple by which an entity appears in EIDs.
#ifndef TREE_ENTITY_WALK_H
#define TREE_ENTITY_WALK_H

#include "inv_parser/base_entity.h"
#include "inv_parser/eid.h"

namespace inv
{

// Visits list in pre-order. Recursion goes into children only, whose nesting the decoder limits; the
// number of siblings is not limited.
template <class Visit>
void visit_entities(eid_chain_node *list, const Visit &visit)
{
    for (; list != nullptr; list = list->next_sibling) {
        visit(list);
        visit_entities(list->first_child, visit);
    }
}

// First node of list in pre-order for which matches() is true, or null.
template <class Matches>
eid_chain_node *find_first_entity(eid_chain_node *list, const Matches &matches)
{
    for (; list != nullptr; list = list->next_sibling) {
        if (matches(list))
            return list;
        eid_chain_node *below = find_first_entity(list->first_child, matches);
        if (below != nullptr)
            return below;
    }
    return nullptr;
}

inline uint16_t full_subtype(const eid_chain_node *node)
{
    return node->record == nullptr ? 0 : node->record->subtype;
}

inline sch_eid_level_type level_of(const eid_chain_node *node)
{
    const sch_base_entity_type *record = node->record;
    if (record == nullptr)
        return {};
    return {record->type, static_cast<uint8_t>(record->subtype), record->instance};
}

inline bool same_level(sch_eid_level_type a, sch_eid_level_type b)
{
    return a.type == b.type && a.subtype == b.subtype && a.instance == b.instance;
}

}  // namespace inv

#endif
