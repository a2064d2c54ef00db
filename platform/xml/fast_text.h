// The text in front of a tag: most of it stands in the window, the rest is gathered.
//
// Functions that return false have given the source its ending.
#ifndef PLATFORM_XML_FAST_TEXT_H
#define PLATFORM_XML_FAST_TEXT_H

#include "fast_tokens.h"

namespace inv::xml
{

// Moves the text that still stands in the window to what is gathered, and `more` behind it.
bool gather(fast_source &source, std::string_view more);

// Text of a CDATA section, which the document goes on behind at `after`.
bool gather_character_data(fast_source &source, std::string_view text, const char *after);

// What a CDATA section that is at fault has held up to the fault.
void note_character_data_to_fault(fast_source &source);

// Makes sure that `count` octets from the next on are there.
bool see_octets(fast_source &source, ptrdiff_t count, XML_Error error_at_end);

// Reads up to the next '<'.
bool read_text(fast_source &source);

// Hands out the text in front of a tag that starts at `stop`.
void put_text(fast_source &source, const char *stop, event &out);

}  // namespace inv::xml

#endif
