#include "inv_platform/avl.h"

#include <boost/intrusive/avltree_algorithms.hpp>
#include <boost/intrusive/detail/avltree_node.hpp>
#include <new>

#include "inv_platform/system_memory.h"

namespace intrusive = boost::intrusive;

namespace
{

// Three pointers; the balance lives in the low bits of the parent pointer.
using node_traits = intrusive::avltree_node_traits<void *, true>;
using algorithms = intrusive::avltree_algorithms<node_traits>;
using links = node_traits::node;

static_assert(sizeof(links) == AVL_NODE_HEADER_SIZE);

enum comparison : int32_t { less = 0, equal = 1 };

}  // namespace

struct avl_tree_header {
    links anchor;  // parent: root of the tree, left: least node, right: greatest node
    uint64_t count;
};

namespace
{

avl_tree_header *new_header()
{
    void *block = inv::memory::request(sizeof(avl_tree_header));
    if (block == nullptr)
        return nullptr;
    auto *header = new (block) avl_tree_header{};
    algorithms::init_header(&header->anchor);
    return header;
}

links *find(avl_tree_header *header, const void *key_node, avl_compare compare)
{
    links *node = node_traits::get_parent(&header->anchor);
    while (node != nullptr) {
        int32_t order = compare(key_node, node);
        if (order == equal)
            return node;
        node = order == less ? node_traits::get_left(node) : node_traits::get_right(node);
    }
    return nullptr;
}

// Trees are emptied from their least node on, which needs no search.
links *find_to_delete(avl_root *root, const void *node, avl_compare compare)
{
    if (root == nullptr || *root == nullptr || node == nullptr || compare == nullptr)
        return nullptr;
    links *least = node_traits::get_left(&(*root)->anchor);
    return node == least && compare(node, least) == equal ? least : find(*root, node, compare);
}

}  // namespace

void *avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t)
{
    if (root == nullptr || node == nullptr || compare == nullptr)
        return nullptr;
    bool fresh = *root == nullptr;
    avl_tree_header *header = fresh ? new_header() : *root;
    if (header == nullptr)
        return nullptr;
    auto before = [compare](const void *a, const void *b) { return compare(a, b) == less; };
    algorithms::insert_commit_data place;
    auto *inserted = static_cast<links *>(node);
    if (!algorithms::insert_unique_check(&header->anchor, inserted, before, place).second)
        return nullptr;
    algorithms::insert_unique_commit(&header->anchor, inserted, place);
    ++header->count;
    *root = header;
    return node;
}

void *avl_search(avl_root *root, const void *key_node, avl_compare compare)
{
    if (root == nullptr || *root == nullptr || key_node == nullptr || compare == nullptr)
        return nullptr;
    return find(*root, key_node, compare);
}

void *avl_delete(avl_root *root, void *node, avl_compare compare, uint32_t)
{
    links *found = find_to_delete(root, node, compare);
    if (found == nullptr)
        return nullptr;
    algorithms::erase(&(*root)->anchor, found);
    if (--(*root)->count == 0) {
        inv::memory::release(*root);
        *root = nullptr;
    }
    return found;
}

void *avl_get_first(avl_root *root)
{
    if (root == nullptr || *root == nullptr)
        return nullptr;
    return algorithms::begin_node(&(*root)->anchor);
}
