/* Inventory file lookup: which file describes a unit.
 *
 * The reference implementation reads a text catalogue, named by $INV_CATALOG, else the installed
 * one. One line per unit:
 *
 *   pi_hw_type  pd_hw_type  PID pattern  hardware versions  file
 *
 * e.g. "3 17 LC-48* 1.0-2.9 line_card_48.xml". Numbers are decimal or 0x hexadecimal, "*" stands
 * for any value of the first four columns. The PID pattern may hold * and ? (no blanks; a ? stands
 * for one) and has at most 255 octets. Versions are a single major.minor or an inclusive range and
 * are ignored by the first-generation call. File names are relative to the catalogue's folder and
 * may hold blanks. "#" begins a comment line. The first fitting line wins. A broken line is reported
 * on standard error with file and line, once per reading, and passed over; so is a fitting line whose
 * file's path would be longer than PATH_MAX, and the next fitting one wins. Every lookup reads the
 * catalogue anew, so that edits count at once. A catalogue of more than 16 MiB is not read.
 */
#ifndef INV_PLATFORM_LOOKUP_H
#define INV_PLATFORM_LOOKUP_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct fru_xml_loc_info;

/* The file of a unit, or null when no line fits or the catalogue cannot be read (which is reported
 * on standard error). A null pid counts as an empty text. The text stays valid until the calling
 * thread's next lookup; the caller copies what it keeps. */
const char *platform_get_inv_xml_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid);

/* The same with the hardware version taken into account: major and minor lie within the line's
 * versions, compared as pairs. Null for a null loc. */
const char *platform_get_inv_xml_file_name_v2(const struct fru_xml_loc_info *loc);

#ifdef __cplusplus
}
#endif

#endif
