/* The document loaders and the records of the documents loaded last: exported for this library's
 * own parts and for tests, outside the umbrella header. Clients call inv_parser_open_xml_file().
 *
 * A loader runs with the library lock held by its caller and root_eid cleared. It decodes the file
 * that handle names, builds the unit's record with everything below it, hangs every entity into
 * the tree of root_eid and fills the handle's indexes. What it builds belongs to the file and goes
 * when the handle is released. Returns 0 or the code that fails the open:
 * rtXmlInitContext()'s when no parser context could be made, 1 when no record could be allocated or
 * handle is null. The memory of a load that failed serves the handle's next one; until then the
 * globals below and the handle's module_record keep pointing to its record.
 */
#ifndef INV_PARSER_LOADERS_H
#define INV_PARSER_LOADERS_H

#include <stdint.h>

#include "inv_parser/handle.h"
#include "inv_parser/module_records.h"
#include "inv_parser/unit_records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A module document (root element "module"). Traces 246; 247 no memory for the record, 248 no
 * context, 249 reading or decoding failed: the only loader that also returns that status. */
int32_t parser_retrieve_module_data(inv_xml_handle *handle);

/* The other kinds return 0 also when the file could not be read or decoded, with a trace: the
 * handle then has an empty tree. Kept: clients rely on the open to succeed. */
int32_t parser_retrieve_chassis_data(inv_xml_handle *handle);              /* traces 244, 245 */
int32_t parser_retrieve_pem_xml_data(inv_xml_handle *handle);              /* traces 250, 251 */
int32_t parser_retrieve_powershelf_xml_data(inv_xml_handle *handle);       /* traces 252, 253 */
int32_t parser_retrieve_cxp_fixed_optics_xml_data(inv_xml_handle *handle); /* traces 255, 256 */
int32_t parser_retrieve_fantray_xml_data(inv_xml_handle *handle);          /* traces 257, 258 */

/* Record of the document of each kind that was loaded last, complete or not; null before the first
 * and after an allocation failure. Overwritten by the next load of the kind and never cleared: it
 * dangles once that file is closed, or once a handle whose load failed is loaded again. */
extern sch_chassis_type *chassis_data;
extern sch_module_type *module_data;
extern sch_pem_type *pem_data;
extern sch_power_shelf_type *power_shelf_data;
extern sch_cxp_fixed_optics_type *cxp_data;
extern sch_fan_tray_type *fantray_data;

#ifdef __cplusplus
}
#endif

#endif
