// Plain values on their way from a document's octets to a record.
#ifndef PLATFORM_XML_PLAIN_STORE_H
#define PLATFORM_XML_PLAIN_STORE_H

#include "heap.h"
#include "inv_platform/xml_runtime.h"

namespace inv::xml
{

// Stores the value. False for one that is not valid or not plain, and when memory is out: nothing is stored
// then, and the long way has to see it. is_padded: heap_text_padding octets behind the text may be looked
// at.
bool store_value(heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded, void *to);

// The same with the value's presence bit.
inline bool store_plain(heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded,
                        void *record)
{
    if (!store_value(memory, row, text, is_padded, static_cast<char *>(record) + row.offset))
        return false;
    static_cast<uint8_t *>(record)[row.present_offset] |= row.present_mask;
    return true;
}

}  // namespace inv::xml

#endif
