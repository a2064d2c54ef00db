// Finding many entities by their EIDs: a table of one tree's paths.
#ifndef TREE_PATH_TABLE_H
#define TREE_PATH_TABLE_H

#include "inv_parser/eid.h"

#include <stddef.h>
#include <stdint.h>

namespace inv
{

// Answers exactly as parser_find_entity(root, eid) does, in every tree: under each EID that a node can be
// found by stands the first such node in pre-order.
class path_table
{
public:
    path_table() noexcept = default;
    ~path_table();
    path_table(const path_table &) = delete;
    path_table &operator=(const path_table &) = delete;

    // Takes in the tree of root_eid. False, and the table must not be used, when memory is out; may be
    // tried again.
    bool build() noexcept;

    eid_chain_node *find(const sch_eid_type &eid) const noexcept;

    // The same node, when its records as they are now spell out the EID from the root down to it. Null when
    // they do not, and in rare other cases: then find() has to tell.
    eid_chain_node *find_whole(const sch_eid_type &eid) const noexcept;

private:
    // A node, and how many levels of its EID are the path it stands under. Free while node is null.
    struct entry {
        eid_chain_node *node;
        uint32_t hash;
        uint8_t depth;
    };

    entry *locate(const sch_eid_type &path, uint8_t depth, size_t hash) const noexcept;
    void enter(eid_chain_node *node) noexcept;

    entry *entries = nullptr;
    size_t mask = 0;
};

}  // namespace inv

#endif
