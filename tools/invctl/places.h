// Where in a document an entity stands.
#ifndef INVCTL_PLACES_H
#define INVCTL_PLACES_H

#include <cstdint>
#include <string>

namespace invctl
{

// "file:line:column" of the last entity with this xml instance, the one that the library answers with;
// the file's name alone where it has none.
std::string place_of_instance(const std::string &path, uint16_t xml_instance);

}  // namespace invctl

#endif
