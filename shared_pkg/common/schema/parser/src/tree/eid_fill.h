// Visiting the entities of a list with their full EIDs, each in constant time.
#ifndef TREE_EID_FILL_H
#define TREE_EID_FILL_H

#include "inv_parser/tree_internal.h"
#include "tree/entity_walk.h"

namespace inv
{

template <class Visit>
void visit_eids_below(eid_chain_node *node, sch_eid_type &path, const Visit &visit);

// The node has the EID `own`; its descendants may write behind the levels in use and clear them again.
template <class Visit>
void visit_eids_from(eid_chain_node *node, sch_eid_type &own, const Visit &visit)
{
    visit(node, own);
    if (node->first_child != nullptr)
        visit_eids_below(node, own, visit);
}

// path is the node's full EID. A child that fits in is named by it and its own triple; one that does not,
// or that has another parent, is named by climbing as parser_populate_parent_eid_data() does.
template <class Visit>
void visit_eids_below(eid_chain_node *node, sch_eid_type &path, const Visit &visit)
{
    uint8_t depth = path.depth;
    for (eid_chain_node *child = node->first_child; child != nullptr; child = child->next_sibling) {
        if (child->parent != node || child == root_eid || depth >= INV_EID_MAX_DEPTH) {
            sch_eid_type own;
            parser_populate_parent_eid_data(child, &own);
            visit_eids_from(child, own, visit);
            continue;
        }
        path.levels[depth] = level_of(child);
        path.depth = static_cast<uint8_t>(depth + 1);
        visit_eids_from(child, path, visit);
        path.levels[depth] = {};
        path.depth = depth;
    }
}

// Calls visit(node, eid) in pre-order, for list and everything below.
template <class Visit>
void visit_eids(eid_chain_node *list, const Visit &visit)
{
    for (; list != nullptr; list = list->next_sibling) {
        sch_eid_type own;
        parser_populate_parent_eid_data(list, &own);
        visit_eids_from(list, own, visit);
    }
}

}  // namespace inv

#endif
