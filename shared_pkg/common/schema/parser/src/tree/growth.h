// Growing an entity tree quickly while a document is converted.
//
// An entity is hung below the first node that has its parent's record, behind that node's last child: by
// contract a search of the whole tree and a walk along the siblings. While a scope lives, a tree whose
// root is made within it is shadowed by a table from record to node and last child. What becomes of the
// tree is the same; records that occur twice, trees of other origin, and memory running out are served
// by the literal search.
#ifndef TREE_GROWTH_H
#define TREE_GROWTH_H

#include "inv_parser/base_entity.h"
#include "inv_parser/handle.h"

#include <stddef.h>

namespace inv
{

// While it lives, only parser_update_eid_chain() may change the tree that is being built. One at a time.
class tree_growth_scope
{
public:
    // The number is a hint: what memory is taken at first.
    explicit tree_growth_scope(size_t expected_entities = 0) noexcept;
    ~tree_growth_scope();
    tree_growth_scope(const tree_growth_scope &) = delete;
    tree_growth_scope &operator=(const tree_growth_scope &) = delete;
};

// Gives back the nodes of a list with everything below them. No table that is still looked at may know them.
void release_eid_nodes(eid_chain_node *first) noexcept;

// A hint that an entity will be hung into the tree soon: its place in the table is then at hand.
void expect_growth(const sch_base_entity_type *record) noexcept;

}  // namespace inv

#endif
