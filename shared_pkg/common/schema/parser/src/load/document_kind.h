// The six kinds of inventory documents and what is done with each.
#ifndef INV_LOAD_DOCUMENT_KIND_H
#define INV_LOAD_DOCUMENT_KIND_H

#include "frame/side_records.h"
#include "inv_parser/handle.h"

#include <stdint.h>

namespace inv::load
{

enum class document_kind : uint8_t {
    none,
    chassis,
    module,
    fan_tray,
    power_shelf,
    pem,
    cxp_optics,
    // Its tree does not begin with the unit, since a load ran out of memory or another one has followed. It
    // has no actions: no release may take the record there for the unit's.
    without_unit
};
static_assert(static_cast<uint8_t>(document_kind::chassis) == loaded_chassis_document);
static_assert(static_cast<uint8_t>(document_kind::cxp_optics) == loaded_optics_document);
static_assert(static_cast<uint8_t>(document_kind::without_unit) == loaded_without_unit);

struct kind_actions {
    const char *name;                   // as trace lines have it
    int32_t (*load)(inv_xml_handle *);  // 0, or the code that fails the open
    void (*release)(inv_xml_handle *);  // record, tree and handle
    bool needs_tree;                    // the release goes by the root's record and does nothing without
};

// The kind of a platform-independent hardware type; none for a type that names no document.
document_kind kind_of(uint32_t pi_hw_type);

// The same for the first generation of the open call, which does not know type 13.
document_kind kind_of_first_generation(uint32_t pi_hw_type);

// kind must be one of the six.
const kind_actions &actions_of(document_kind kind);

}  // namespace inv::load

#endif
