// Which entity of one document is which of another.
#ifndef INVCTL_ENTITY_MATCH_H
#define INVCTL_ENTITY_MATCH_H

#include <unordered_map>

#include "entity_records.h"

namespace invctl
{

using node_map = std::unordered_map<const eid_chain_node *, const eid_chain_node *>;

struct entity_match {
    node_map after;   // of entities of the first document: their counterparts
    node_map before;  // and the other way round
};

// Pairs the top entities and goes down from there. The children of a pair are the same when EID level and
// name are; then those anywhere whose type, subtype and name are found once on either side: they were
// moved; then children of a pair that have the EID level alone: they were renamed. Entities with records
// of different kinds are never the same. In time linear to the entities.
entity_match match_entities(const entity_records &first, const entity_records &second);

// True when the pair is not in the same place: below entities that are no pair, or with another EID level.
bool is_moved(const entity_match &match, const eid_chain_node *before, const eid_chain_node *after);

}  // namespace invctl

#endif
