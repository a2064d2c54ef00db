/* The inventory parser library: everything a client needs.
 *
 * Call inv_parser_init() once, open inventory files with inv_parser_open_xml_file(), ask for EIDs,
 * records and access sequences, close with inv_parser_close_xml_file(). Link with -linv_parser.
 */
#ifndef INV_PARSER_INV_PARSER_H
#define INV_PARSER_INV_PARSER_H

#include "inv_parser/access_records.h"
#include "inv_parser/access_sequences.h"
#include "inv_parser/base_entity.h"
#include "inv_parser/component_records.h"
#include "inv_parser/eid.h"
#include "inv_parser/frame.h"
#include "inv_parser/handle.h"
#include "inv_parser/inventory_tokens.h"
#include "inv_parser/module_records.h"
#include "inv_parser/power_records.h"
#include "inv_parser/queries.h"
#include "inv_parser/release.h"
#include "inv_parser/unit_records.h"

#endif
