// Finding the entity of an EID in the tree of a handle, in constant time once a handle is asked often.
#ifndef TREE_EID_LOOKUP_H
#define TREE_EID_LOOKUP_H

#include "inv_parser/eid.h"
#include "inv_parser/handle.h"

namespace inv
{

// What parser_find_entity(root_eid, eid) answers; root_eid is the handle's tree. The handle's second
// lookup makes a table of paths that belongs to the handle; a tree that has changed since, or a handle that
// the registry did not make, is searched literally. Records must not be changed by clients; an entity
// whose triple was changed all the same is found by the literal search.
eid_chain_node *find_entity_of(const inv_xml_handle *handle, sch_eid_type *eid) noexcept;

// To be called whenever a tree that has been handed out grows or loses nodes: tables made before are out of
// date.
void note_tree_change() noexcept;

// Differs from what it was when such a tree has changed.
uint64_t tree_change_count() noexcept;

}  // namespace inv

#endif
