// Growing an entity tree quickly while a document is converted.
//
// An entity is hung below the first node that has its parent's record, behind that node's last child: by
// contract a search of the whole tree and a walk along the siblings. While a scope lives, a tree whose
// root is made within it is shadowed by a table from record to node and last child. What becomes of the
// tree is the same; records that occur twice, trees of other origin, and memory running out are served
// by the literal search.
#ifndef TREE_GROWTH_H
#define TREE_GROWTH_H

namespace inv
{

// While it lives, only parser_update_eid_chain() may change the tree that is being built. One at a time.
class tree_growth_scope
{
public:
    tree_growth_scope() noexcept;
    ~tree_growth_scope();
    tree_growth_scope(const tree_growth_scope &) = delete;
    tree_growth_scope &operator=(const tree_growth_scope &) = delete;
};

}  // namespace inv

#endif
