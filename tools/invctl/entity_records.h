// Which full record each entity of a document has.
#ifndef INVCTL_ENTITY_RECORDS_H
#define INVCTL_ENTITY_RECORDS_H

#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "document.h"
#include "record_table.h"

namespace invctl
{

// The entity tree names entities by the base record at their head only; the type of the rest follows
// from the way that leads to it: the unit's record and its lists.
struct entity_records {
    // Base records that the unit's lists lead to. Some may not be entities: an embedded record that no
    // item of the document filled.
    std::unordered_map<const void *, const record_table *> tables;
    std::vector<const eid_chain_node *> in_order;                    // the tree in pre-order
    std::unordered_map<const void *, const eid_chain_node *> nodes;  // by base record

    bool is_entity(const void *base) const
    {
        return nodes.contains(base);
    }
    const record_table &table(const void *base) const
    {
        return *tables.at(base);
    }
};

entity_records find_entity_records(const document &opened);

// The levels from the top down, as parse_eid() reads them. Of an entity deeper than an EID can say only
// the last levels.
std::string eid_text(const eid_chain_node *node);

// "eid  "name"  xml 3": an entity in a line.
std::string entity_heading(const eid_chain_node *node);

// Root elements of documents, each of a unit of its own kind.
std::span<const char *const> unit_kinds();

bool has_eid(const eid_chain_node *node, const sch_eid_type &eid);

}  // namespace invctl

#endif
