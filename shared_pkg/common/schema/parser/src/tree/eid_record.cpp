// Building EIDs from the tree and finding entities by them.
#include "inv_parser/tree_internal.h"
#include "tree/entity_walk.h"

#include <utility>

using namespace inv;

uint32_t parser_populate_parent_eid_data(eid_chain_node *node, sch_eid_type *eid)
{
    if (node == nullptr || eid == nullptr)
        return 0;
    sch_eid_type built = {};
    // The root may carry a parent value that is no node: climbing ends at root_eid, whatever it holds.
    const eid_chain_node *each = node;
    while (each != nullptr && built.depth < INV_EID_MAX_DEPTH) {
        built.levels[built.depth++] = level_of(each);
        each = each == root_eid ? nullptr : each->parent;
    }
    parser_reverse_populate_eid_data(&built);
    *eid = built;
    return 0;
}

void parser_reverse_populate_eid_data(sch_eid_type *eid)
{
    if (eid == nullptr)
        return;
    int first = 0;
    int last = (eid->depth < INV_EID_MAX_DEPTH ? eid->depth : INV_EID_MAX_DEPTH) - 1;
    for (; first < last; ++first, --last)
        std::swap(eid->levels[first], eid->levels[last]);
    eid->reserved0 = INV_EID_RESERVED_WORD;
    eid->reserved1 = INV_EID_RESERVED_WORD;
}

eid_chain_node *parser_verify_eid_match(eid_chain_node *node, sch_eid_type *eid)
{
    if (node == nullptr || eid == nullptr || eid->depth > INV_EID_MAX_DEPTH)
        return nullptr;
    sch_eid_type own;
    parser_populate_parent_eid_data(node, &own);
    for (int i = 0; i < eid->depth; ++i)
        if (!same_level(own.levels[i], eid->levels[i]))
            return nullptr;
    return node;
}

eid_chain_node *parser_find_entity(eid_chain_node *list, sch_eid_type *eid)
{
    if (eid == nullptr || eid->depth == 0 || eid->depth > INV_EID_MAX_DEPTH)
        return nullptr;
    sch_eid_level_type last = eid->levels[eid->depth - 1];
    return find_first_entity(list, [&](eid_chain_node *node) {
        // Kept: an EID holds 8 bits of the subtype and is compared with all 16 of the record's.
        return full_subtype(node) == last.subtype && same_level(level_of(node), last) &&
               parser_verify_eid_match(node, eid) != nullptr;
    });
}
