// How a document begins.
#ifndef PLATFORM_XML_DOCUMENT_START_H
#define PLATFORM_XML_DOCUMENT_START_H

#include "lexer.h"

namespace inv::xml
{

// Passes over a byte order mark of UTF-8 and a plain XML declaration of version 1.0 that names UTF-8 or
// nothing. bad: another encoding, or anything else that is not for the fast road.
lexed lex_document_start(lexer &lex, const char *&at);

}  // namespace inv::xml

#endif
