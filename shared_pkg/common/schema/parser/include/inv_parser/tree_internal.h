/* Entity tree, EID construction, slot lists and indexes: exported for this library's own parts and for
 * tests, outside the umbrella header. Clients use queries.h.
 *
 * Nothing here takes the lock: callers hold it or are serialised otherwise, because root_eid, global_eid
 * and the two counts are working storage. Null arguments are safe and mean an empty tree or list, but
 * for those of parser_xml_inst_compare() and for a comparison, which may not be null. Walks go in
 * pre-order: a node, its children, then its next sibling; "list" is a node with its later siblings and
 * everything below them. A node without a record has an all-zero triple.
 *
 * Queries answer from tables of the tree. A tree that has been asked while nodes of another file were
 * linked into it by hand is closed before that file, also when they have been taken out again.
 */
#ifndef INV_PARSER_TREE_INTERNAL_H
#define INV_PARSER_TREE_INTERNAL_H

#include <stdint.h>

#include "inv_parser/base_entity.h"
#include "inv_parser/eid.h"
#include "inv_parser/handle.h"
#include "inv_parser/platform_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Root of the tree being built or queried. Cleared by each open, loaded from the handle by each query. */
extern eid_chain_node *root_eid;

/* Result array of the running query. Stale between queries; a query by type with an owner leaves it
 * dangling. Kept: only queries may look at it. */
extern sch_eid_type *global_eid;
extern uint16_t global_eid_count; /* low 16 bits of the count pass of the running query */
extern uint16_t global_tmp_count; /* low 16 bits of the number of the next entry to fill */

/* Always null; nothing writes or reads them. */
extern eid_chain_node *chassis_root;
extern eid_chain_node *lc_root;
extern eid_chain_node *rp_root;
extern eid_chain_node *fc_root;
extern eid_chain_node *fantray_root;
extern eid_chain_node *pem_root;
extern eid_chain_node *powershelf_root;

/* Hangs record below the first node whose record is parent_record, as its last child. Without a tree the
 * record becomes its root and parent_record its parent value, as given. A parent that is not in the tree
 * and memory running out both leave the entity out of the tree, silently. The node refers to the record:
 * it has to stay at its address while the tree lives. */
void parser_update_eid_chain(struct sch_base_entity_type *record, struct sch_base_entity_type *parent_record);

/* First node of list whose record is this very record, or null. */
eid_chain_node *parser_find_parent_node(struct sch_base_entity_type *record, eid_chain_node *list);

/* The handle whose document is being converted: builders file into its indexes. Null when none is. */
void parser_set_inv_file_instance(inv_xml_handle *handle);

/* Table of 65,536 entries of 24 octets (16-bit xml instance at 0, record pointer at 8) that the base
 * entity builder fills by xml instance; null: none. The table stays the caller's. Returns value. */
void *parser_set_xml_instance_chain_list(void *value);

/* Writes the node's full EID: its own triple and those of its ancestors up to root_eid or a node without
 * parent, the top one first. At most 16 levels: a deeper entity is named by itself and its 15 nearest
 * ancestors. Returns 0; a null node writes nothing. */
uint32_t parser_populate_parent_eid_data(eid_chain_node *node, sch_eid_type *eid);

/* Reverses the levels in use (of a depth above 16: all 16) and sets both reserved words. */
void parser_reverse_populate_eid_data(sch_eid_type *eid);

/* node, when its own EID agrees with eid on the levels that eid has in use; else, and for a depth above
 * 16, null. Depths and reserved words are not compared. */
eid_chain_node *parser_verify_eid_match(eid_chain_node *node, sch_eid_type *eid);

/* First node of list whose own triple, with all 16 bits of its subtype, is eid's last level in use, and
 * that passes parser_verify_eid_match(). Null when there is none and for a depth of 0 or above 16. */
eid_chain_node *parser_find_entity(eid_chain_node *list, sch_eid_type *eid);

/* Walks. Count functions add to global_eid_count; fill functions write full EIDs to
 * global_eid[global_tmp_count] and count that up, or do nothing while global_eid is null. Both counts
 * wrap at 65,536; the array must have room. A subtype argument is taken by its low 8 bits and compared
 * with all 16 bits of the record's. All return 0. */
uint32_t parser_get_child_eid_count(eid_chain_node *list);
uint32_t parser_get_child_eids(eid_chain_node *list);
uint32_t parser_get_eid_count_with_type(eid_chain_node *list, uint32_t type);
uint32_t parser_get_eid_with_type(eid_chain_node *list, uint32_t type);
uint32_t parser_get_eid_count_with_type_subtype(eid_chain_node *list, uint32_t type, uint32_t subtype);
uint32_t parser_get_eid_with_type_subtype(eid_chain_node *list, uint32_t type, uint32_t subtype);

/* Sets root_eid to the handle's tree; null, with trace 95, for a null handle. */
void parser_get_root_eid_internal(inv_xml_handle *handle);

/* Compacts array in place to the EIDs whose entity, looked up from root_eid, has a record with this owner
 * or ORVL_ENTITY_OWNER_TYPE_COMMON. Returns how many are left, in their order. */
uint32_t parser_get_eid_count_by_owner(sch_eid_type *array, uint32_t count, uint32_t owner);

/* The same into a new array in *out, released with inv_parser_free_eid_tree(); array is compacted, too,
 * and stays the caller's. Null and 0 when nothing is left or memory runs out (trace 13). */
void parser_filter_eid_by_owner(sch_eid_type *array, uint32_t count, sch_eid_type **out, uint32_t *out_count,
                                uint32_t owner);

/* First element of list whose key is the low 16 bits of key, or null. The last argument is ignored. */
sch_cc_slot_xml_inst_type *parser_verify_is_slot_xml_inst_available(sch_cc_slot_xml_inst_type *list,
                                                                    uint32_t key, uint32_t ignored);

/* Appends record to heads[index], of INV_CC_SLOT_LIST_COUNT lists; an index beyond them files nothing.
 * Returns 1, always. */
uint32_t parser_insert_cc_slot_xml_inst(sch_cc_slot_xml_inst_type **heads, uint32_t index,
                                        sch_cc_slot_xml_inst_type *record);

/* Frees all records of the INV_CC_SLOT_LIST_COUNT lists and clears the heads. */
void parser_free_cc_slot_xml_inst(sch_cc_slot_xml_inst_type **heads);

/* Takes nodes out of an index and frees them until it is empty or a deletion fails. */
void parser_avl_delete_inst_tree(avl_root *root, avl_compare compare);

/* Order of the indexes: by xml instance of two sch_xml_inst_node_type, as avl_compare says. */
int32_t parser_xml_inst_compare(const void *a, const void *b);

/* Debug walks whose output was taken out. Kept: they are called. They touch no memory; the first returns
 * 0, the second global_eid_count. */
uint32_t parser_display_parent_child(eid_chain_node *list);
uint16_t parser_display_global_eid_info(void);

/* Prints the triples of root_eid and its siblings to standard output, behind their parents' triples where
 * there is a parent. None is printed for root_eid. */
void parser_display_eid_chain(void);

#ifdef __cplusplus
}
#endif

#endif
