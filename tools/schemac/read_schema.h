#ifndef SCHEMAC_READ_SCHEMA_H
#define SCHEMAC_READ_SCHEMA_H

#include "model.h"
#include "xml_tree.h"

namespace schemac
{

// Makes the model out of the tree. False with a message about the first thing that has no meaning here.
bool read_schema(const xml_node &root, schema &s, std::string &message);

}  // namespace schemac

#endif
