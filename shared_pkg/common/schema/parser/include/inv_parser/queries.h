/* Questions that a client asks about an open inventory file: EIDs and the records they name.
 *
 * A handle comes from inv_parser_open_xml_file(). Results are 0 for success and 1 for failure; an
 * output that a failure is not said to set keeps its value. A null output pointer is a failure that
 * does nothing else.
 *
 * Arrays and EID records belong to the caller and are released with inv_parser_free_eid_tree(). Entity
 * records belong to the library and live until the file is closed.
 *
 * The four queries that say so take the library lock for their whole run; the other functions here take
 * none. All but the release are to be serialised with the last close of the file. A failure to take the
 * lock is traced with the query's lock message and is a failure that touches no output. A failure to
 * release it is traced (EID data and EID tree use the lock text: kept, tools match it) and changes nothing.
 *
 * Owner argument: ORVL_ENTITY_OWNER_TYPE_ALL (6) answers all entities. Any other value narrows the
 * answer, in its order, to entities with that owner or with ORVL_ENTITY_OWNER_TYPE_COMMON (5). Each EID
 * is looked up again for this: where several entities share one EID, all of them pass or fail with the
 * first of them in tree pre-order. When nothing is left the answer is null and 0, result 0; so it is when
 * memory for the narrowed answer runs out, with trace 13.
 */
#ifndef INV_PARSER_QUERIES_H
#define INV_PARSER_QUERIES_H

#include <stdint.h>

#include "inv_parser/base_entity.h"
#include "inv_parser/eid.h"
#include "inv_parser/handle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Subtype argument of inv_parser_get_eid_by_type_subtype() that takes any subtype; the value of
 * ORVL_ENTITY_SUBTYPE_INVALID. */
#define INV_ANY_SUBTYPE 235u

/* Stores a new EID record of depth 1 for the file's top entity in *out.
 *
 * Takes no lock. Returns 1 with *out null when the handle is null (trace 96) or has no tree (97), and 1
 * with *out untouched when memory runs out (98). */
uint32_t inv_parser_get_root_eid(inv_xml_handle *handle, sch_eid_type **out);

/* Collects the EIDs of all entities of `type` that pass `owner`, in tree pre-order.
 *
 * Takes the library lock (traces 99, 102). On success *out holds *count EIDs. No entity of the type is an
 * empty answer: 0 and an array without records, or null with an owner. Returns 1, leaving both outputs
 * untouched, when the handle is null (95 and 100) or has no tree (100), and when memory runs out or the
 * file has more than 65,535 entities of the type, whoever owns them (101). */
uint32_t inv_parser_get_eid_by_type(inv_xml_handle *handle, uint32_t owner, uint8_t type, uint16_t *count,
                                    sch_eid_type **out);

/* The same, narrowed to `subtype`, compared with all 16 bits of the record's; INV_ANY_SUBTYPE takes all.
 *
 * Takes the library lock (traces 103, 107). Fails like the query by type: 95 and 104 for a null handle,
 * 104 without a tree, 105 for memory or too many results, 106 for these with INV_ANY_SUBTYPE. */
uint32_t inv_parser_get_eid_by_type_subtype(inv_xml_handle *handle, uint32_t owner, uint8_t type,
                                            uint8_t subtype, uint16_t *count, sch_eid_type **out);

/* Finds the entity that `eid` names, the first in tree pre-order, and stores its record in *out.
 *
 * Reserved words and levels beyond the depth are ignored; a depth of 0 or above 16 names nothing, and so
 * does a level for an entity whose subtype is above 255. Takes the library lock (traces 108, 110).
 * Returns 1 with *out null and no trace when no entity has the EID, and 1 with *out untouched when the
 * handle is null (95 and 109) or has no tree (109). */
uint32_t inv_parser_get_eid_data(inv_xml_handle *handle, struct sch_base_entity_type **out, sch_eid_type eid);

/* Collects the EIDs of the entity that *eid names (null: the top entity) and of all entities below it.
 *
 * Entry 0 is the entity itself, as its own triple with depth 1 and not as its full path; the full EIDs of
 * its descendants follow in pre-order. An owner is looked up for entry 0 like for any other, so below the
 * top entity's level it drops out, unless its triple is that of the top entity.
 *
 * An entity without children is traced (113) and answered with one record of depth 0 that holds its
 * triple, whatever the owner. Kept: clients tell leaves by it.
 *
 * Takes the library lock (traces 111, 115). Returns 1 with *out null, *count untouched and no trace when
 * no entity has the EID; 1 with both untouched when the handle is null (95 and 112) or has no tree (112),
 * or memory runs out (114; for an entity without children there is no line but 113). */
uint32_t inv_parser_get_eid_tree(inv_xml_handle *handle, uint32_t owner, const sch_eid_type *eid,
                                 sch_eid_type **out, uint32_t *count);

/* Releases an array or a record of the functions above. Ignores null. */
void inv_parser_free_eid_tree(sch_eid_type *array);

#ifdef __cplusplus
}
#endif

#endif
