// Plain values on their way from a document's octets to a record.
#ifndef PLATFORM_XML_PLAIN_STORE_H
#define PLATFORM_XML_PLAIN_STORE_H

#include "heap.h"
#include "inv_platform/xml_runtime.h"

namespace inv::xml
{

// Stores the value and marks it present. False for one that is not valid or not plain, and when memory is
// out: nothing is stored then, and the long way has to see it. is_padded: heap_text_padding octets behind
// the text may be looked at.
bool store_plain(heap &memory, const xb_plain_row &row, std::string_view text, bool is_padded, void *record);

}  // namespace inv::xml

#endif
