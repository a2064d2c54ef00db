/* AVL tree: what the xml-instance indexes import.
 *
 * Intrusive: a node is the caller's storage and begins with AVL_NODE_HEADER_SIZE octets of links
 * that belong to the tree while the node is in it. A node is aligned as a pointer is: low bits of its
 * links serve the tree. What compare looks at must not change while the node is in the tree. Not locked;
 * the owner serialises.
 */
#ifndef INV_PLATFORM_AVL_H
#define INV_PLATFORM_AVL_H

#include <stdint.h>

#include "inv_parser/platform_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define AVL_NODE_HEADER_SIZE 24

/* Inserts node. Returns it, or null when it did nothing: a node with an equal key is there, or
 * the header of an empty tree could not be allocated. flag is reserved; pass 0. */
void *avl_insert(avl_root *root, void *node, avl_compare compare, uint32_t flag);

/* The node equal to key_node (compare gets key_node first), or null. */
void *avl_search(avl_root *root, const void *key_node, avl_compare compare);

/* Takes the node equal to `node` out and returns it; null when there is none. `node` may be any storage
 * with that key: what is returned and no longer in the tree is the node that was inserted. With the last node
 * the header is given back and *root is null. flag is reserved; pass 0. */
void *avl_delete(avl_root *root, void *node, avl_compare compare, uint32_t flag);

/* The least node, or null. */
void *avl_get_first(avl_root *root);

#ifdef __cplusplus
}
#endif

#endif
