/* The few types that both sides of the platform boundary name.
 *
 * The library imports XML runtime, AVL tree, trace channel and file lookup as plain C
 * functions; clients meet these types in handles, record builders and decoders. They stand
 * here so that every public header is complete without the platform's own headers.
 */
#ifndef INV_PARSER_PLATFORM_TYPES_H
#define INV_PARSER_PLATFORM_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* An AVL tree as its owner holds it: one pointer, null while the tree is empty. The AVL
 * library makes the header behind it with the first node and gives it back with the last. */
typedef struct avl_tree_header *avl_root;

/* Three-way comparison of two nodes: 0 when a is less than b, 1 when they are equal, 2 when a
 * is greater. A search passes the key node as a. */
typedef int32_t (*avl_compare)(const void *a, const void *b);

/* Parser context of the XML runtime: error records, memory heap, input and reading position.
 * The owner provides the storage (usually on the stack) and brackets its use with
 * rtXmlInitContext() and rtxFreeContext(); `state` belongs to the runtime. */
typedef struct xb_context {
    struct xb_context_state *state;
} xb_context;

/* One node of a decoded list. Node and payload live in the heap of the context that decoded
 * them; `data` is the decoded value (a record, a string's first character) or null. */
typedef struct xb_data_node {
    void *data;
    struct xb_data_node *next; /* null at the tail */
    struct xb_data_node *prev; /* null at the head */
} xb_data_node;

/* A decoded list, in document order. All zero when empty. */
typedef struct xb_data_list {
    uint32_t count;     /* number of nodes */
    xb_data_node *head; /* first node or null */
    xb_data_node *tail; /* last node or null */
} xb_data_list;

/* An octet string of any length, decoded from hexadecimal text into the context's heap. */
typedef struct xb_octets {
    uint32_t count;  /* number of octets; 0 leaves `octets` null */
    uint8_t *octets; /* the octets, first digit pair first */
} xb_octets;

/* A decoded item whose type the document chose with xsi:type. The base type's record stands first
 * in every derived one, so `value` may be used as the base type whatever the tag. */
typedef struct xb_choice {
    uint32_t tag; /* 0: nothing decoded; k: the k-th type of the base's type-name table */
    void *value;  /* record of the chosen type, in the context's heap */
} xb_choice;

#ifdef __cplusplus
}
#endif

#endif
