// Finding many entities by their EIDs: a table of one tree's paths, made for one query.
#ifndef TREE_PATH_TABLE_H
#define TREE_PATH_TABLE_H

#include "inv_parser/eid.h"

#include <stddef.h>

namespace inv
{

// Answers exactly as parser_find_entity(root, eid) does: the first node in pre-order with that path.
class path_table
{
public:
    path_table() noexcept = default;
    ~path_table();
    path_table(const path_table &) = delete;
    path_table &operator=(const path_table &) = delete;

    // Takes in the tree of root_eid. False, and the table must not be used, when memory is out or the
    // tree has what a path does not tell exactly: a subtype above 255, a node deeper than an EID, or a
    // parent link that is not the way down.
    bool build() noexcept;

    eid_chain_node *find(const sch_eid_type &eid) const noexcept;

private:
    // parent stands for all nodes with the path of the one it points to; null above the first level.
    struct entry {
        const eid_chain_node *parent;
        eid_chain_node *node;
    };

    entry *locate(const eid_chain_node *parent, sch_eid_level_type level) const noexcept;
    void enter(eid_chain_node *list, const eid_chain_node *parent) noexcept;

    entry *entries = nullptr;
    size_t mask = 0;
};

}  // namespace inv

#endif
