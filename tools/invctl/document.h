// One inventory document, opened through the library as a hardware process would.
#ifndef INVCTL_DOCUMENT_H
#define INVCTL_DOCUMENT_H

#include <string>

#include "inv_parser/inv_parser.h"

namespace invctl
{

struct document {
    std::string path;                  // as the user wrote it
    const char *kind = nullptr;        // root element's name; a constant
    inv_xml_handle *handle = nullptr;  // null when it could not be opened
};

// Opens path: finds the kind from the root element, loads it through the library. On failure every
// recorded error goes to standard error as file:line:column, and the exit code says whose fault it
// is. A document whose tree stays empty counts as a failure.
int open_document(const std::string &path, document *opened);

void close_document(document *opened);

}  // namespace invctl

#endif
