// What is wrong behind the root element.
#ifndef PLATFORM_XML_EPILOG_FAULT_H
#define PLATFORM_XML_EPILOG_FAULT_H

#include "event_source.h"

#include <expat.h>

namespace inv::xml
{

// Expat reads what follows a root element as if a document type could stand there, and names mistakes
// accordingly. So it is asked for the name and the place of one.
struct epilog_fault {
    XML_Parser parser;
    position start;  // of the octets that it gets, complete
};

// False when memory is out; there is nothing to close then.
bool open_epilog_fault(epilog_fault &fault, const position &start);

// As many of the octets as may be handed over before more of the document is there. Expat takes a name or a
// literal that ends with what it has for a whole one, and sees only later what is wrong with it: the mistake
// would depend on how the document is read. A name of more than a kilobyte is no longer waited for.
std::string_view whole_tokens(std::string_view octets);

// Hands over the octets that follow; `is_last` when there are no more. True: the mistake has been found.
bool look_for_fault(epilog_fault &fault, std::string_view octets, bool is_last);

// The mistake, XML_ERROR_NONE if there is none, and where it is; the place is left alone when memory is out.
XML_Error close_epilog_fault(epilog_fault &fault, position &place);

}  // namespace inv::xml

#endif
