// The manual page of the document format.
#ifndef SCHEMAMAN_MANUAL_H
#define SCHEMAMAN_MANUAL_H

#include <string>

#include "xml_tree.h"

namespace schemaman
{

// Source for man, from the tree of a schema document.
std::string page_of(const schemac::xml_node &schema);

}  // namespace schemaman

#endif
