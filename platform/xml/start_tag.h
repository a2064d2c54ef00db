// Start tags within a window.
#ifndef PLATFORM_XML_START_TAG_H
#define PLATFORM_XML_START_TAG_H

#include "lexer.h"

namespace inv::xml
{

// Reads a start tag from its '<' on: appends its attributes to the reader's array, values as they are
// meant, and fills the tag's part of the event. After anything but ok the array is as before.
lexed lex_start_tag(lexer &lex, const char *&at, const event_reader &reader, event &out, bool &is_empty);

}  // namespace inv::xml

#endif
