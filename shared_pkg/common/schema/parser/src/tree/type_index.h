// The EIDs of a handle's entities by type, ready to be handed out.
#ifndef TREE_TYPE_INDEX_H
#define TREE_TYPE_INDEX_H

#include "inv_parser/handle.h"
#include "tree/eid_walks.h"

#include <stddef.h>

namespace inv
{

struct type_index;

// The index of root_eid, which is the handle's tree. Made by the first query by type and kept with the
// handle: 70 octets for an entity, and 12 for each change of subtype among the entities of a type. A tree
// that has changed since is taken in anew. Null without memory, for a handle that the registry did not make
// and for a filter that asks for no type: the tree has to be walked. Records must not be changed by clients.
const type_index *type_index_for(const inv_xml_handle *handle, const entity_filter &filter) noexcept;

// What count_entities() and fill_eids() answer for root_eid, in the time that copying takes.
size_t count_entities(const type_index &index, const entity_filter &filter) noexcept;
size_t fill_eids(const type_index &index, const entity_filter &filter, sch_eid_type *array) noexcept;

}  // namespace inv

#endif
