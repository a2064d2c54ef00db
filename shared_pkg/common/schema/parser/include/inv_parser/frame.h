/* Starting the library, its trace channel, and the files it knows.
 *
 *     inv_parser_init(NULL);
 *     inv_xml_handle *card = inv_parser_open_xml_file(0, 3, 17, "LC-48");
 *     if (card != NULL) {
 *         ... queries ...
 *         inv_parser_close_xml_file(card);
 *     }
 *
 * Every failure is a line on the library's trace channel, named by its message id; the ids are
 * listed in docs/trace-messages.md. Until inv_parser_init() has opened the channel no line is
 * written anywhere.
 *
 * Locking. "Takes the library lock" means: held for the whole run of the call, never nested, so
 * that such calls may come from any thread. Calls without the lock are safe beside them as long as the
 * caller keeps the files that it asks about open, or are the caller's to serialise with open and close:
 * docs/concurrency.md has a row for each.
 */
#ifndef INV_PARSER_FRAME_H
#define INV_PARSER_FRAME_H

#include <stdint.h>

#include "inv_parser/handle.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Start and trace channel ---------------------------------------------------------------- */

/* The first call of a client: opens the trace channel unless it is open already and applies
 * `config`, the trace library's own configuration (opaque here, not kept; may be null). Needed for
 * traces only: everything else works without it. A later call applies its configuration to the
 * channel that is open; nothing closes the channel.
 *
 * Takes the library lock. Returns 0 when the lock was taken and released, whatever became of the
 * channel and the configuration: a channel that cannot be opened is reported on standard error and
 * tried again by the next call. When the lock cannot be taken (message 52, nothing is done) or
 * released (message 53): 22 while there is no channel, else what writing the message returned,
 * which is 0 when the line was written. */
uint32_t inv_parser_init(void *config);

/* Opens the channel unless it is open and applies `config` as above. No lock: to be serialised with
 * inv_parser_init() and inv_schema_qtrace_init(). Returns what the trace library's
 * qtrace_enable_configuration() returned, or 22 with a line on standard error when the channel cannot be
 * opened. */
uint32_t inv_schema_qtrace_enable_config(void *config);

/* Opens the channel, also when one is open, and arms its dump at process exit. No lock: to be serialised
 * with every call that may trace. Returns 0, or 22 with a line on standard error; a channel that was open
 * before then stays in use. */
uint32_t inv_schema_qtrace_init(void);

/* Stores the open channel's handle in *out; it belongs to the library. No lock. Returns 0, or 22
 * with *out untouched while there is no channel (or out is null). */
uint32_t inv_schema_get_qtrace_hdl(void **out);

/* Non-zero when the functions above echo their names on standard error. Always 0: the library has
 * no switch for it. No lock. */
uint8_t inv_schema_debug_enable_console(void);

/* ---- Opening and closing -------------------------------------------------------------------- */

/* Opens the inventory of the unit that the platform's file lookup finds for the two hardware types
 * and the product identifier `pid` (may be null). The first open of a file loads it, as the kind of
 * document that `pi_hw_type` names:
 *
 *     1, 2, 20                        chassis         8     power shelf
 *     3 to 6, 11, 14 to 19, 21        module          9     PEM
 *     7                               fan tray        12    CXP optics
 *
 * A further open of a loaded file, under whatever hardware type, returns the same handle and
 * counts. `inv_type` (8 bits, no meaning to the library) is kept in the handle by the first opener.
 * A chassis, fan tray, power shelf, PEM or CXP document that cannot be read or decoded still opens,
 * with an empty or partial tree (messages 245, 251, 253, 256, 258).
 *
 * Takes the library lock. The handle belongs to the library; match each successful open with one
 * inv_parser_close_xml_file(). Null when
 *   - the lock cannot be taken (message 14), or not be released after a load (39),
 *   - the lookup has no file, or none with fewer than 256 characters (1, then 16), or memory is out
 *     (2 or 5, then 16),
 *   - the loader fails (19, 22, 25, 28, 31 or 34 by kind): the file stays known, and the next open
 *     tries again.
 * A `pi_hw_type` that names no kind, 13 included (message 37), yields the handle in state
 * INV_HANDLE_REGISTERED, neither loaded nor counted. */
inv_xml_handle *inv_parser_open_xml_file(uint8_t inv_type, uint32_t pi_hw_type, uint32_t pd_hw_type,
                                         const char *pid);

/* The same by a location record, which carries the hardware version as well; it is not kept.
 *
 * Differs in three points: a null loc gives null (message 41); 13 is a module; any other
 * `pi_hw_type` that names no kind gives null (46). The other messages: lock 40, unlock 51, no file
 * 7, no memory 8 or 11, no handle 43, loader failed 47. */
inv_xml_handle *inv_parser_open_xml_file_v2(uint8_t inv_type, const fru_xml_loc_info *loc);

/* Takes one open back. With the last one the handle, its entity tree, its indexes and every record
 * of the file are released: nothing that was reached through the handle may be used afterwards.
 *
 * A handle whose count is already 0 wraps to 65535 and releases nothing. A handle without a root
 * record (a document that could not be decoded; not a module's) or with a hardware type that names
 * no kind (message 118) leaves the registry but stays allocated, empty.
 *
 * Takes the library lock. Returns 0 always; a null handle is message 119, a lock that cannot be
 * taken (116, nothing is done) or released (120) is only reported. */
uint32_t inv_parser_close_xml_file(inv_xml_handle *handle);

/* ---- Registry ------------------------------------------------------------------------------- */

/* Finds the handle of a unit's file, or registers the file: a new handle in state
 * INV_HANDLE_REGISTERED with count 0, at the end of the list. A file is known by the name that the
 * platform's lookup gives (compared exactly); a known file's handle is returned unchanged (message
 * 4). The open calls do this for their caller.
 *
 * No lock: the open calls hold it. The handle belongs to the library. Null when the lookup has no
 * file, or a name of 256 or more characters (message 1), or memory is out (2 for the first file in
 * an empty list, else 5). */
inv_xml_handle *inv_parser_get_xml_handle(uint8_t inv_type, uint32_t pi_hw_type, uint32_t pd_hw_type,
                                          const char *pid);

/* The same by a location record; a null loc gives null without a message. Messages 10, 7, 8, 11. */
inv_xml_handle *inv_parser_get_xml_handle_v2(uint8_t inv_type, const fru_xml_loc_info *loc);

/* Takes the handle whose file name equals this one's out of the registry; releases nothing. Message
 * 0 says so, except for the first in the list. Nothing happens when no name equals, or handle is
 * null. No lock: close holds it. */
void inv_schema_update_the_xml_handle_list(inv_xml_handle *handle);

/* The file name of a handle, an empty text for null. Valid as long as the handle. No lock. */
const char *inv_parser_get_file_name(inv_xml_handle *handle);

#ifdef __cplusplus
}
#endif

#endif
