/* Entity identifiers and the entity tree. */
#ifndef INV_PARSER_EID_H
#define INV_PARSER_EID_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct sch_base_entity_type;

/* Number of levels an EID can hold. An entity deeper in its document is named by itself and its
 * 15 nearest ancestors. */
#define INV_EID_MAX_DEPTH 16

/* Both reserved words of every EID that the library produces. */
#define INV_EID_RESERVED_WORD 0xFFFEu

/* One level of an EID: an entity on the path. */
typedef struct sch_eid_level_type {
    uint8_t type;      /* entity type, ORVL_ENTITY_TYPE_* */
    uint8_t subtype;   /* subtype within the type; the low 8 bits of the record's 16 */
    uint16_t instance; /* instance as the document gives it */
} sch_eid_level_type;

/* The EID of an entity: the path of (type, subtype, instance) from the document's top entity down.
 * 70 octets, packed, host byte order; crosses the library boundary singly and in arrays. */
#pragma pack(push, 1)
typedef struct sch_eid_type {
    uint16_t reserved0; /* INV_EID_RESERVED_WORD when the library made it; ignored on lookup */
    uint16_t reserved1; /* likewise */
    uint8_t depth;      /* levels in use, 1 to 16; 0 only in the tree query's answer for a leaf */
    uint8_t reserved2;  /* 0 */
    sch_eid_level_type levels[INV_EID_MAX_DEPTH]; /* [0] the top entity, [depth - 1] the entity; rest 0 */
} sch_eid_type;
#pragma pack(pop)

/* A node of the entity tree. Children are in document order. */
typedef struct eid_chain_node {
    struct sch_base_entity_type *record; /* the entity; referenced, not owned */
    struct eid_chain_node *parent;       /* null at the root */
    struct eid_chain_node *first_child;  /* null for a leaf */
    struct eid_chain_node *next_sibling; /* null for the last child */
} eid_chain_node;

#ifdef __cplusplus
}
static_assert(sizeof(sch_eid_type) == 70, "layout that clients rely on");
static_assert(offsetof(sch_eid_type, levels) == 6, "layout that clients rely on");
static_assert(sizeof(eid_chain_node) == 32, "layout that clients rely on");
#else
_Static_assert(sizeof(sch_eid_type) == 70, "layout that clients rely on");
_Static_assert(offsetof(sch_eid_type, levels) == 6, "layout that clients rely on");
_Static_assert(sizeof(eid_chain_node) == 32, "layout that clients rely on");
#endif

#endif
