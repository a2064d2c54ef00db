// All differences of two documents.
#ifndef INVCTL_DOCUMENT_DIFF_H
#define INVCTL_DOCUMENT_DIFF_H

#include <vector>

#include "entity_records.h"
#include "record_diff.h"

namespace invctl
{

enum class change_kind { removed, added, changed };

struct entity_change {
    change_kind kind;
    const eid_chain_node *before;  // null: added
    const eid_chain_node *after;   // null: removed
    size_t below = 0;              // entities that came or went with it
    bool moved = false;            // to another parent or EID level
    std::vector<field_change> fields;
};

// Removed, changed and moved entities in the order of the first document, then the added ones in that of
// the second. An entity that came or went with the one above it is counted there and not listed; what
// only follows its parent to another place is no change. For documents of one kind.
std::vector<entity_change> diff_documents(const entity_records &before, const entity_records &after);

}  // namespace invctl

#endif
