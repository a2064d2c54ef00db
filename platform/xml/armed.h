// What an armed context knows beyond an ordinary one: places of decoded items, circumstances of errors.
//
// The rest of the runtime meets it in three places only: the context owns it, the error log asks
// may_record() and tells note_error().
#ifndef PLATFORM_XML_ARMED_H
#define PLATFORM_XML_ARMED_H

#include "event_source.h"
#include "growing_array.h"
#include "inv_platform/xml_runtime.h"

namespace inv::xml
{

struct noted_item {
    const void *address;
    const void *parent;
    uint64_t offset;
    uint32_t line;
    uint32_t column;
};

struct open_item {
    const void *item;
    uint64_t tag_offset;  // of the element it was noted for; the entry holds for that element only
};

struct armed_state {
    growing_array<noted_item> items;  // in order of noting
    growing_array<uint32_t> slots;    // hash table over items: index plus 1, 0 is free; a power of two
    growing_array<xb_error_details> errors;
    open_item open[XB_MAX_DEPTH];  // by depth
};

// Forgets the elements that are open: the next document has others at the same places.
void begin_document(armed_state &armed);

void release_armed(armed_state *armed);

// False when an armed context has recorded all errors that it may.
bool may_record(const xb_context_state &state);

// Notes the circumstances of the error recorded last.
void note_error(xb_context_state &state);

}  // namespace inv::xml

#endif
